// A bit for each pixel of a raster.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace terramark::forms {

class PixelBits {
 public:
  using Word = std::uint64_t;
  static constexpr int WordBits = 64;

  /// No bits at all.
  PixelBits() = default;
  /// All clear. Width and height are not negative. std::bad_alloc when memory runs out.
  PixelBits(int width, int height)
      : wordsInRow_((width + WordBits - 1) / WordBits), words_(IndexOf(height)) {}

  /// Whether there are no pixels at all.
  bool IsEmpty() const { return words_.empty(); }

  /// The words of row y, which exists: 64 pixels a word from the lowest bit. Bits beyond the width
  /// belong to no pixel.
  std::span<Word> Row(int y) { return {words_.data() + IndexOf(y), RowSize()}; }
  std::span<const Word> Row(int y) const { return {words_.data() + IndexOf(y), RowSize()}; }

  /// The bit of a pixel that exists.
  bool At(int x, int y) const {
    return (Row(y)[static_cast<std::size_t>(x / WordBits)] >> x % WordBits & 1) != 0;
  }

  void Set(int x, int y) {
    Row(y)[static_cast<std::size_t>(x / WordBits)] |= Word{1} << x % WordBits;
  }

  /// Sets the bits that are set in `other`, which has the same size.
  void Add(const PixelBits& other) {
    for (std::size_t i = 0; i < words_.size(); ++i) words_[i] |= other.words_[i];
  }

  /// Calls visit(int begin, int end) for each run of set bits in the pixels left <= x < right of a
  /// row that exists; they exist too. A run that goes on in the next word comes in pieces.
  template <class Visit>
  void ForEachRun(int y, int left, int right, const Visit& visit) const {
    const std::span<const Word> row = Row(y);
    for (int word = left / WordBits; word * WordBits < right; ++word) {
      Word bits = row[static_cast<std::size_t>(word)];
      const int from = word * WordBits;
      while (bits != 0) {
        const int begin = std::countr_zero(bits);
        const int end = begin + std::countr_one(bits >> begin);
        if (from + end > left && from + begin < right) {
          visit(std::max(left, from + begin), std::min(right, from + end));
        }
        if (end == WordBits) break;
        bits &= ~Word{0} << end;
      }
    }
  }

 private:
  std::size_t RowSize() const { return static_cast<std::size_t>(wordsInRow_); }
  std::size_t IndexOf(int y) const { return static_cast<std::size_t>(y) * RowSize(); }

  int wordsInRow_ = 0;
  std::vector<Word> words_;
};

}  // namespace terramark::forms
