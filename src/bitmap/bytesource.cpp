#include "bitmap/bytesource.h"

#include <span>

namespace terramark::bitmap {

std::optional<QByteArrayView> MemoryBytes::At(qint64 offset, qint64 count) {
  if (offset > Size() || count > Size() - offset) return std::nullopt;
  return bytes_.sliced(offset, count);
}

qint64 FileBytes::Size() const {
  return static_cast<qint64>(file_.Size()) - start_;
}

std::optional<QByteArrayView> FileBytes::At(qint64 offset, qint64 count) {
  if (offset > Size() || count > Size() - offset) return std::nullopt;
  if (piece_.size() < count) piece_ = QByteArray(count, Qt::Uninitialized);
  const std::span bytes(piece_.data(), static_cast<std::size_t>(count));
  const auto got = file_.ReadAt(static_cast<std::uintmax_t>(start_ + offset), bytes);
  if (!got) fault_ = got.error();
  if (got != bytes.size()) return std::nullopt;
  return QByteArrayView(piece_.constData(), count);
}

}  // namespace terramark::bitmap
