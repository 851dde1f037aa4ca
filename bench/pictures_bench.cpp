// What it costs to flood pictures. A row is a picture; its columns give the cost as a multiple of a
// pass, which reads and writes each pixel of the picture once, by the editor and by libraries that
// flood too, where they are installed. All of a row are timed in turn, and the medians count: what
// else the machine does slows them alike.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "floodmaps.h"
#include "forms/borderfill.h"
#include "peers.h"
#include "samples.h"

namespace terramark {
namespace {

constexpr forms::Color Brush = 0x00000080;
constexpr forms::Color Black = 0;

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
  std::vector<std::pair<std::string, Samples>> peers;
  const auto fresh = [&] { std::ranges::copy(map.Picture.Pixels, raster.Pixels.begin()); };
  Samples pass;
  Samples own;
  for (auto _ : state) {
    // On a thread of its own, whose memory no peer has been at.
    std::thread([&] {
      fresh();
      pass.Take([&] { Pass(raster); });
      fresh();
      state.SetIterationTime(
          own.Take([&] { benchmark::DoNotOptimize(forms::BorderFill(raster, map.Seeds, Black)); }));
    }).join();
    std::size_t column = 0;
    for (const Peer& peer : Peers()) {
      const auto flood = peer.Prepare(map, forms::PixelOf(Brush));
      if (column == peers.size()) peers.emplace_back(peer.Name, Samples{});
      peers[column++].second.Take(flood);
    }
  }
  state.counters["pass_ms"] = 1000 * pass.Median();
  state.counters["editor"] = own.Median() / pass.Median();
  for (const auto& [name, times] : peers) state.counters[name] = times.Median() / pass.Median();
}

void Row(const std::string& name, FloodMap (*make)(int width, int height), int width, int height) {
  const int pixels = width * height;
  benchmark::RegisterBenchmark(name.c_str(), FloodRow, make)
      ->Args({width, height})
      ->Iterations(std::clamp(300'000'000 / pixels, 5, 200))
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
}

void RegisterRows() {
  Row("Open", OpenMap, 4096, 4096);
  Row("Lands", LandsMap, 4096, 4096);
  Row("Lands", LandsMap, 8192, 8192);
  Row("Open", OpenMap, 546, 308);
  Row("Lands", LandsMap, 546, 308);
  Row("Leaks", LeaksMap, 4096, 4096);
  Row("Comb", CombMap, 2048, 2048);
  Row("Noise", NoiseMap, 2048, 2048);
  Row("Spiral", SpiralMap, 2048, 2048);
  Row("Maze", MazeMap, 2048, 2048);
}

}  // namespace
}  // namespace terramark

int main(int argc, char** argv) {
  // Each flood gets its large memory from the system, as one does that comes now and then.
  mallopt(M_MMAP_THRESHOLD, 128 * 1024);
  benchmark::Initialize(&argc, argv);
  terramark::RegisterRows();
  terramark::OnDeepStack([] {
    benchmark::ConsoleReporter table(benchmark::ConsoleReporter::OO_Tabular);
    benchmark::RunSpecifiedBenchmarks(&table);
  });
  return 0;
}
