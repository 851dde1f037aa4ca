// The flood itself, whatever is flooded: it goes by one bit a pixel and leaves to its caller which
// pixels are open and how they are painted.
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

/// Open sets the bits of a row that a flood may enter, 64 pixels a word from the lowest bit on:
/// void(int y, std::span<std::uint64_t> bits). Bits past the width do not matter. A row is asked
/// for its bits once at most, before anything in it is painted, so painting may make open pixels of
/// closed ones.
///
/// Painter paints the pixels left <= x < right of a row, void Run(int y, int left, int right), or
/// those of the 32 from left on whose bits are set, from the lowest bit on,
/// void PaintBits(int y, int left, std::uint32_t bits).
template <class Open, class Painter>
class Flooder {
 public:
  /// Takes all the memory that the flood will need, two bits a pixel and a few words a row, or
  /// throws std::bad_alloc. Width and height are not below 0.
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

  /// Paints all open pixels that are 4-connected with a seed, each once, whatever seeds reach it.
  /// Seeds outside or on closed pixels paint nothing. Once at most.
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
      // Beside what was taken earlier nothing is open any more: it does no harm in the range.
      const Word* const taken = &taken_[Index(y)];
      SpreadTo(y - 1, taken, range);
      SpreadTo(y + 1, taken, range);
    }
    // Short runs one by one would lie far apart in memory, where the flood goes up and down.
    for (int y = 0; y < height_; ++y) {
      if (RowAt(y).HasShortRuns) PaintShortRuns(y);
    }
  }

 private:
  using Word = std::uint64_t;
  static constexpr int WordBits = 64;
  static constexpr Word AllBits = ~Word{0};
  static constexpr int HalfBits = 32;

  /// Words of a row, both ends included; empty when First lies behind Last.
  struct Range {
    int First = 0;
    int Last = -1;
  };
  struct Row {
    bool Asked = false;
    /// Whether runs within half a word each are taken, which are painted in the end.
    bool HasShortRuns = false;
    /// What is taken and has neighbours above and below that are still to be seen.
    Range Fresh;
  };

  /// The lowest bits of a word; less than all of them.
  static Word BitsBelow(int count) { return (Word{1} << count) - 1; }

  /// Where the words of a row begin.
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

  /// Goes from what is taken in a row to one beside it.
  void SpreadTo(int y, const Word* taken, Range range) {
    if (!HasRow(y)) return;
    Word* const open = OpenWords(y);
    for (int i = range.First; i <= range.Last; ++i) {
      // A run that is taken is open no more, so each seed left begins another.
      while ((taken[i] & open[i]) != 0) TakeRun(y, open, i, std::countr_zero(taken[i] & open[i]));
    }
  }

  /// Takes the whole run round an open pixel, and leaves its neighbours for later.
  void TakeRun(int y, Word* open, int word, int bit) {
    Range run{word, word};
    // How many bits of the first word lie before the run, and of the last before its end.
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

  /// Paints the runs of a row that lie within half a word each; the others are painted.
  void PaintShortRuns(int y) {
    constexpr Word All = (Word{1} << HalfBits) - 1;
    const Word* const taken = &taken_[Index(y)];
    const auto half = [&](int i) { return taken[i / 2] >> i % 2 * HalfBits & All; };
    bool joined = false;
    for (int i = 0; i < 2 * words_; ++i) {
      Word spots = half(i);
      const bool joins =
          spots >> (HalfBits - 1) != 0 && i + 1 < 2 * words_ && (half(i + 1) & 1) != 0;
      // The run at the end that hangs together with another half does not count.
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
  /// What the flood may still enter, as far as rows have been asked.
  std::vector<Word> open_;
  std::vector<Word> taken_;
  std::vector<Row> rows_;
  /// The rows with fresh pixels, each once.
  std::vector<int> waiting_;
};

}  // namespace terramark::forms
