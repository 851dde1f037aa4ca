// What it costs to flood pictures. A row is a picture; its columns give the cost as a multiple of a
// pass, which reads and writes each pixel of the picture once, by the editor and by libraries that
// flood too, where they are installed. All of a row are timed in turn, and the least time counts.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "floodmaps.h"
#include "forms/borderfill.h"
#include "peers.h"

namespace terramark {
namespace {

constexpr forms::Color Brush = 0x00000080;
constexpr forms::Color Black = 0;

/// The shortest of the times of one thing.
struct Least {
  double Seconds = std::numeric_limits<double>::max();

  /// Gives the seconds that it took this time.
  double Time(const std::function<void()>& act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    Seconds = std::min(Seconds, took.count());
    return took.count();
  }
};

void Pass(forms::Raster& raster) {
  for (std::uint32_t& pixel : raster.Pixels) pixel ^= 0x00010203U;
  benchmark::DoNotOptimize(raster.Pixels.data());
  benchmark::ClobberMemory();
}

void FloodRow(benchmark::State& state, FloodMap (*make)(int width, int height)) {
  const auto width = static_cast<int>(state.range(0));
  const auto height = static_cast<int>(state.range(1));
  const FloodMap map = make(width, height);
  forms::Raster raster = map.Picture;
  std::vector<std::pair<std::string, Least>> peers;
  const auto fresh = [&] { std::ranges::copy(map.Picture.Pixels, raster.Pixels.begin()); };
  Least pass;
  Least own;
  for (auto _ : state) {
    fresh();
    pass.Time([&] { Pass(raster); });
    fresh();
    state.SetIterationTime(own.Time([&] { forms::BorderFill(raster, map.Seeds, Brush, Black); }));
    std::size_t column = 0;
    for (const Peer& peer : Peers()) {
      const auto flood = peer.Prepare(map, forms::PixelOf(Brush));
      if (column == peers.size()) peers.emplace_back(peer.Name, Least{});
      peers[column++].second.Time(flood);
    }
  }
  state.counters["pass_ms"] = 1000 * pass.Seconds;
  state.counters["editor"] = own.Seconds / pass.Seconds;
  for (const auto& [name, least] : peers) state.counters[name] = least.Seconds / pass.Seconds;
}

FloodMap Lands(int width, int height) {
  return LandsMap(width, height, false);
}

FloodMap LeakingLands(int width, int height) {
  return LandsMap(width, height, true);
}

void Row(const std::string& name, FloodMap (*make)(int width, int height), int width, int height) {
  const int pixels = width * height;
  benchmark::RegisterBenchmark(name.c_str(), FloodRow, make)
      ->Args({width, height})
      ->Iterations(std::clamp(100'000'000 / pixels, 5, 200))
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
}

void RegisterRows() {
  Row("Open", OpenMap, 4096, 4096);
  Row("Lands", Lands, 4096, 4096);
  Row("Lands", Lands, 8192, 8192);
  Row("Open", OpenMap, 546, 308);
  Row("Lands", Lands, 546, 308);
  Row("LeakingLands", LeakingLands, 4096, 4096);
  Row("Comb", CombMap, 2048, 2048);
  Row("Noise", NoiseMap, 2048, 2048);
  Row("Spiral", SpiralMap, 2048, 2048);
  Row("Maze", MazeMap, 2048, 2048);
}

}  // namespace
}  // namespace terramark

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  terramark::RegisterRows();
  terramark::OnDeepStack([] {
    benchmark::ConsoleReporter table(benchmark::ConsoleReporter::OO_Tabular);
    benchmark::RunSpecifiedBenchmarks(&table);
  });
  return 0;
}
