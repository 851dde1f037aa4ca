#include "files/regularfile.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>

namespace terramark::files {
namespace {

TEST(RegularFile, GivesStretchesThatLieWhollyInIt) {
  const RegularFile file = RegularFile::Open(SAMPLES "/europe.bmp").value();
  const std::string whole = file.Read(SIZE_MAX).value();
  std::array<char, 4> room{};
  EXPECT_EQ(file.ReadAt(whole.size() - 4, room), 4U);
  EXPECT_EQ(std::string(room.data(), 4), whole.substr(whole.size() - 4));
  EXPECT_EQ(file.ReadAt(whole.size() - 3, room), 3U);
  EXPECT_FALSE(file.ReadAt(UINTMAX_MAX - 1, room));
}

TEST(FileVersion, SettlesOnceItsTimesMustMoveWithAnyChange) {
  const Moment now{1000, 10'000'000};
  const struct {
    Moment Modified, Changed;
    bool Settled;
  } cases[]{{{999, 989'999'999}, {5, 5}, true},  {{999, 990'000'000}, {5, 5}, false},
            {{5, 5}, {999, 990'000'000}, false}, {{5, 0}, {999, 1}, true},
            {{998, 0}, {998, 0}, true},          {{999, 0}, {5, 0}, false},
            {{INT64_MAX, 0}, {5, 5}, false}};
  for (const auto& [modified, changed, settled] : cases) {
    EXPECT_EQ((FileVersion{1, 1, 1, modified, changed}.SettledBy(now)), settled)
        << modified.Seconds << " " << changed.Seconds;
  }
}

}  // namespace
}  // namespace terramark::files
