// Bytes that are taken piece by piece: of a record in memory, or of a file that is never held
// whole.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

#include "files/regularfile.h"

namespace terramark::bitmap {

class ByteSource {
 public:
  ByteSource() = default;
  ByteSource(const ByteSource&) = delete;
  ByteSource& operator=(const ByteSource&) = delete;
  virtual ~ByteSource() = default;

  virtual qint64 Size() const = 0;
  /// So many bytes from the offset on, neither negative; good until the next call. None when they
  /// are not all there, or when a read fails.
  virtual std::optional<QByteArrayView> At(qint64 offset, qint64 count) = 0;
};

class MemoryBytes final : public ByteSource {
 public:
  explicit MemoryBytes(QByteArrayView bytes) : bytes_(bytes) {}

  qint64 Size() const override { return bytes_.size(); }
  std::optional<QByteArrayView> At(qint64 offset, qint64 count) override;

 private:
  QByteArrayView bytes_;
};

/// An open file's bytes from its byte `start` on, which it has. Its memory is that of the longest
/// piece taken. The file is not mapped: the process would die with it when another program cuts it
/// short.
class FileBytes final : public ByteSource {
 public:
  FileBytes(const files::RegularFile& file, qint64 start) : file_(file), start_(start) {}

  qint64 Size() const override;
  std::optional<QByteArrayView> At(qint64 offset, qint64 count) override;

  /// Why a read has failed; nothing when none has.
  const std::optional<files::Fault>& Fault() const { return fault_; }

 private:
  const files::RegularFile& file_;
  qint64 start_;
  QByteArray piece_;
  std::optional<files::Fault> fault_;
};

}  // namespace terramark::bitmap
