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
/// void(int y, std::span<std::uint64_t> bits). Bits past the width do not matter. Paint paints the
/// pixels left <= x < right of a row: void(int y, int left, int right). A row is asked for its bits
/// once at most, before anything in it is painted, so painting may make open pixels of closed ones.
template <class Open, class Paint>
class Flooder {
 public:
  /// Takes all the memory that the flood will need, two bits a pixel and a few words a row, or
  /// throws std::bad_alloc. Width and height are not below 0.
  Flooder(int width, int height, const Open& open, const Paint& paint)
      : width_(width),
        height_(height),
        words_((width + WordBits - 1) / WordBits),
        askOpen_(open),
        paint_(paint),
        open_(Index(height)),
        pending_(Index(height)),
        rows_(static_cast<std::size_t>(height)) {
    waiting_.reserve(rows_.size());
  }

  /// Paints all open pixels that are 4-connected with a seed, each once, whatever seeds reach it.
  /// Seeds outside or on closed pixels paint nothing.
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
      const Range range = std::exchange(rows_[static_cast<std::size_t>(y)].Pending, {});
      Word* const pending = &pending_[Index(y)];
      SpreadTo(y - 1, pending, range);
      SpreadTo(y + 1, pending, range);
      for (int i = range.First; i <= range.Last; ++i) pending[i] = 0;
    }
  }

 private:
  using Word = std::uint64_t;
  static constexpr int WordBits = 64;
  static constexpr Word AllBits = ~Word{0};

  /// Words of a row, both ends included; empty when First lies behind Last.
  struct Range {
    int First = 0;
    int Last = -1;
  };
  struct Row {
    bool Asked = false;
    Range Pending;
  };

  /// The lowest bits of a word; less than all of them.
  static Word BitsBelow(int count) { return (Word{1} << count) - 1; }

  /// Where the words of a row begin.
  std::size_t Index(int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(words_);
  }

  bool HasRow(int y) const { return y >= 0 && y < height_; }

  Word* OpenWords(int y) {
    Word* const open = &open_[Index(y)];
    Row& row = rows_[static_cast<std::size_t>(y)];
    if (!row.Asked) {
      row.Asked = true;
      askOpen_(y, std::span(open, static_cast<std::size_t>(words_)));
      if (width_ % WordBits != 0) open[words_ - 1] &= BitsBelow(width_ % WordBits);
    }
    return open;
  }

  /// Goes from what is pending in a row to one beside it.
  void SpreadTo(int y, const Word* pending, Range range) {
    if (!HasRow(y)) return;
    Word* const open = OpenWords(y);
    for (int i = range.First; i <= range.Last; ++i) {
      // A run that is taken is open no more, so each seed left begins another.
      while ((pending[i] & open[i]) != 0) {
        TakeRun(y, open, i, std::countr_zero(pending[i] & open[i]));
      }
    }
  }

  /// Paints the whole run round an open pixel, closes it, and leaves its neighbours for later.
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
    Word* const pending = &pending_[Index(y)];
    const auto take = [&](int i, Word taken) {
      open[i] &= ~taken;
      pending[i] |= taken;
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
    Range& dirty = rows_[static_cast<std::size_t>(y)].Pending;
    if (dirty.First > dirty.Last) {
      dirty = run;
      waiting_.push_back(y);
    } else {
      dirty = {std::min(dirty.First, run.First), std::max(dirty.Last, run.Last)};
    }
    paint_(y, run.First * WordBits + before, run.Last * WordBits + upTo);
  }

  const int width_;
  const int height_;
  const int words_;
  const Open& askOpen_;
  const Paint& paint_;
  /// What the flood may still enter, as far as rows have been asked.
  std::vector<Word> open_;
  /// What is painted and has neighbours above and below that are still to be seen.
  std::vector<Word> pending_;
  std::vector<Row> rows_;
  /// The rows with pending pixels, each once.
  std::vector<int> waiting_;
};

}  // namespace terramark::forms
