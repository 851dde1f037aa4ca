// The flood fill, for anything that has pixels. It uses one bit for each pixel; its caller knows
// which pixels are open and paints them.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "forms/geometry.h"

namespace terramark::forms {

/// Open sets the bits of a row that the flood may enter, 64 pixels a word from the lowest bit:
/// void(int y, std::span<std::uint64_t> bits). Bits beyond the width do not matter. It is called at
/// most once for each row, before anything in the row is painted, so painting may change which
/// pixels would be open. Painter has two functions. void Run(int y, int left, int right) paints the
/// pixels left <= x < right of a row. void PaintBits(int y, int left, std::uint32_t bits) paints
/// those of the 32 pixels from `left` whose bits are set, from the lowest bit on.
template <class Open, class Painter>
class Flooder {
 public:
  /// Allocates all the memory that the flood needs, two bits for each pixel and a few words for
  /// each row, or throws std::bad_alloc. Width and height are not negative.
  Flooder(int width, int height, const Open& open, Painter& painter)
      : width_(width),
        height_(height),
        words_((width + WordBits - 1) / WordBits),
        askOpen_(open),
        painter_(painter),
        open_(Index(height)),
        taken_(Index(height)),
        rows_(static_cast<std::size_t>(height)) {
    waiting_.reserve(rows_.size());
  }

  /// Paints all open pixels that are 4-connected with a seed, each once, even if several seeds
  /// reach it. Seeds outside or on closed pixels paint nothing. To be called at most once.
  void From(std::span<const PixelPoint> seeds) {
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
      const Word* const taken = &taken_[Index(y)];
      SpreadTo(y - 1, taken, range);
      SpreadTo(y + 1, taken, range);
    }
    // Painted at the end, row by row: while the flood goes up and down they would be far apart in
    // memory.
    for (int y = 0; y < height_; ++y) {
      if (RowAt(y).HasShortRuns) PaintShortRuns(y);
    }
  }

 private:
  using Word = std::uint64_t;
  static constexpr int WordBits = 64;
  static constexpr Word AllBits = ~Word{0};
  static constexpr int HalfBits = 32;

  /// Words of a row, both ends included; empty when First is after Last.
  struct Range {
    int First = 0;
    int Last = -1;
  };
  struct Row {
    bool Asked = false;
    /// Whether the row has taken runs that are within half a word; they are painted at the end.
    bool HasShortRuns = false;
    /// The taken words whose neighbours above and below have not been visited yet.
    Range Fresh;
  };

  /// The lowest `count` bits of a word; fewer than all.
  static Word BitsBelow(int count) { return (Word{1} << count) - 1; }

  /// The index of a row's first word.
  std::size_t Index(int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(words_);
  }

  Row& RowAt(int y) { return rows_[static_cast<std::size_t>(y)]; }

  bool HasRow(int y) const { return y >= 0 && y < height_; }

  Word* OpenWords(int y) {
    Word* const open = &open_[Index(y)];
    Row& row = RowAt(y);
    if (!row.Asked) {
      row.Asked = true;
      askOpen_(y, std::span(open, static_cast<std::size_t>(words_)));
      if (width_ % WordBits != 0) open[words_ - 1] &= BitsBelow(width_ % WordBits);
    }
    return open;
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
    Word* const taken = &taken_[Index(y)];
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
    if (run.First == run.Last && before / HalfBits == (upTo - 1) / HalfBits) {
      row.HasShortRuns = true;
    } else {
      painter_.Run(y, run.First * WordBits + before, run.Last * WordBits + upTo);
    }
  }

  /// Paints the runs of a row that are within half a word; the others are painted already.
  void PaintShortRuns(int y) {
    constexpr Word All = (Word{1} << HalfBits) - 1;
    const Word* const taken = &taken_[Index(y)];
    const auto half = [&](int i) { return taken[i / 2] >> i % 2 * HalfBits & All; };
    bool joined = false;
    for (int i = 0; i < 2 * words_; ++i) {
      Word spots = half(i);
      const bool joins =
          spots >> (HalfBits - 1) != 0 && i + 1 < 2 * words_ && (half(i + 1) & 1) != 0;
      // A run at the end that continues in the next half word does not count.
      if (joined) spots &= spots + 1;
      if (joins) spots &= All >> std::countl_one(static_cast<std::uint32_t>(spots));
      if (spots != 0) painter_.PaintBits(y, i * HalfBits, static_cast<std::uint32_t>(spots));
      joined = joins;
    }
  }

  const int width_;
  const int height_;
  const int words_;
  const Open& askOpen_;
  Painter& painter_;
  /// The pixels that the flood may still enter, in the rows that have been asked for.
  std::vector<Word> open_;
  std::vector<Word> taken_;
  std::vector<Row> rows_;
  /// The rows with fresh words, each once.
  std::vector<int> waiting_;
};

}  // namespace terramark::forms
