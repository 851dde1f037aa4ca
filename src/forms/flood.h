// The flood fill, for anything that has pixels: it finds the pixels that a flood reaches. Its
// caller knows which pixels are open, and paints.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "forms/geometry.h"
#include "forms/pixelbits.h"

namespace terramark::forms {

/// Open sets the bits of the pixels of a row that the flood may enter: void(int y,
/// std::span<std::uint64_t> bits), 64 pixels a word from the lowest bit. All bits are clear when it
/// is called; those beyond the width do not matter. It is called at most once for each row, and
/// must outlive the Flooder.
template <class Open>
class Flooder {
 public:
  /// Allocates all the memory that the flood needs, two bits for each pixel and a few words for
  /// each row, or throws std::bad_alloc. Width and height are not negative.
  Flooder(int width, int height, const Open& open)
      : width_(width),
        height_(height),
        words_((width + WordBits - 1) / WordBits),
        askOpen_(open),
        open_(width, height),
        reached_(width, height),
        rows_(static_cast<std::size_t>(height)) {
    waiting_.reserve(rows_.size());
  }

  /// All open pixels that are 4-connected with a seed. Seeds outside or on closed pixels reach
  /// nothing. To be called at most once.
  PixelBits From(std::span<const PixelPoint> seeds) {
    for (const PixelPoint seed : seeds) {
      if (seed.X < 0 || seed.X >= width_ || !HasRow(seed.Y)) continue;
      Word* const open = OpenWords(seed.Y);
      const int word = seed.X / WordBits;
      const int bit = seed.X % WordBits;
      if ((open[word] >> bit & 1) != 0) TakeRun(seed.Y, open, word, bit);
    }
    while (!waiting_.empty()) {
      const int y = waiting_.back();
      waiting_.pop_back();
      const Range range = std::exchange(RowAt(y).Fresh, {});
      // The range may contain words that were taken earlier: none of their pixels are open any
      // more.
      const Word* const taken = reached_.Row(y).data();
      SpreadTo(y - 1, taken, range);
      SpreadTo(y + 1, taken, range);
    }
    return std::move(reached_);
  }

 private:
  using Word = PixelBits::Word;
  static constexpr int WordBits = PixelBits::WordBits;
  static constexpr Word AllBits = ~Word{0};

  /// Words of a row, both ends included; empty when First is after Last.
  struct Range {
    int First = 0;
    int Last = -1;
  };
  struct Row {
    bool Asked = false;
    /// The taken words whose neighbours above and below have not been visited yet.
    Range Fresh;
  };

  /// The lowest `count` bits of a word; fewer than all.
  static Word BitsBelow(int count) { return (Word{1} << count) - 1; }

  Row& RowAt(int y) { return rows_[static_cast<std::size_t>(y)]; }

  bool HasRow(int y) const { return y >= 0 && y < height_; }

  Word* OpenWords(int y) {
    const std::span<Word> open = open_.Row(y);
    Row& row = RowAt(y);
    if (!row.Asked) {
      row.Asked = true;
      askOpen_(y, open);
      if (width_ % WordBits != 0) open.back() &= BitsBelow(width_ % WordBits);
    }
    return open.data();
  }

  /// Continues from the taken pixels of a row into an adjacent row.
  void SpreadTo(int y, const Word* taken, Range range) {
    if (!HasRow(y)) return;
    Word* const open = OpenWords(y);
    for (int i = range.First; i <= range.Last; ++i) {
      // Taking a run closes it, so each bit that is still set begins another run.
      while ((taken[i] & open[i]) != 0) TakeRun(y, open, i, std::countr_zero(taken[i] & open[i]));
    }
  }

  /// Takes the whole run around an open pixel; its neighbours are visited later.
  void TakeRun(int y, Word* open, int word, int bit) {
    Range run{word, word};
    // The number of bits of the first word before the run, and of the last word before its end.
    int before = WordBits - std::countl_zero(~open[word] & BitsBelow(bit));
    int upTo = bit + std::countr_one(open[word] >> bit);
    while (before == 0 && run.First > 0 && open[run.First - 1] >> (WordBits - 1) != 0) {
      before = WordBits - std::countl_one(open[--run.First]);
    }
    while (upTo == WordBits && run.Last + 1 < words_ && (open[run.Last + 1] & 1) != 0) {
      upTo = std::countr_one(open[++run.Last]);
    }
    Word* const taken = reached_.Row(y).data();
    const auto take = [&](int i, Word bits) {
      open[i] &= ~bits;
      taken[i] |= bits;
    };
    const Word head = AllBits << before;
    const Word tail = AllBits >> (WordBits - upTo);
    if (run.First == run.Last) {
      take(word, head & tail);
    } else {
      take(run.First, head);
      for (int i = run.First + 1; i < run.Last; ++i) take(i, AllBits);
      take(run.Last, tail);
    }
    Row& row = RowAt(y);
    if (row.Fresh.First > row.Fresh.Last) {
      row.Fresh = run;
      waiting_.push_back(y);
    } else {
      row.Fresh = {std::min(row.Fresh.First, run.First), std::max(row.Fresh.Last, run.Last)};
    }
  }

  const int width_;
  const int height_;
  const int words_;
  const Open& askOpen_;
  /// The pixels that the flood may still enter, in the rows that have been asked for.
  PixelBits open_;
  PixelBits reached_;
  std::vector<Row> rows_;
  /// The rows with fresh words, each once.
  std::vector<int> waiting_;
};

}  // namespace terramark::forms
