// A byte for each pixel of an area: in a mask 0 where it is not marked, in text how much of the
// pixel is covered.
#pragma once

#include <QSize>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace terramark::metafile {

class PixelMask {
 public:
  /// `size` is in pixels and not empty. std::bad_alloc when memory runs out.
  PixelMask(QSize size, std::uint8_t value)
      : size_(size),
        bytes_(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()),
               value) {}

  QSize Size() const { return size_; }
  /// The bytes of row y, counted from the top; the row must be inside.
  std::uint8_t* Row(int y) { return bytes_.data() + At(y); }
  const std::uint8_t* Row(int y) const { return bytes_.data() + At(y); }

 private:
  std::size_t At(int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width());
  }

  QSize size_;
  std::vector<std::uint8_t> bytes_;
};

}  // namespace terramark::metafile
