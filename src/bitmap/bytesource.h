// Bytes that are read piece by piece: of a record in memory, or of a file that is never in memory
// as a whole.
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
  /// `count` bytes from an offset on, neither negative; valid until the next call. None when the
  /// bytes do not all exist, or when a read fails.
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

/// The bytes of an open file from its byte `start` on, which exists. It uses as much memory as the
/// longest piece. The file is not mapped: the process would crash when another program truncates
/// it.
class FileBytes final : public ByteSource {
 public:
  FileBytes(const files::RegularFile& file, qint64 start) : file_(file), start_(start) {}

  qint64 Size() const override;
  std::optional<QByteArrayView> At(qint64 offset, qint64 count) override;

  /// Why a read failed; nothing when none has failed.
  const std::optional<files::Fault>& Fault() const { return fault_; }

 private:
  const files::RegularFile& file_;
  qint64 start_;
  QByteArray piece_;
  std::optional<files::Fault> fault_;
};

}  // namespace terramark::bitmap
