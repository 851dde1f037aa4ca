// What a Map Layout of 96 Areas costs to read, write, route and judge. The column "copies" gives
// each cost as a multiple of copying the file's text line by line with std::getline and a stream.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "canvas/readmapfile.h"
#include "canvas/writemapfile.h"
#include "gridmap.h"
#include "layoutfile/layoutreader.h"
#include "layoutfile/routes.h"
#include "shell/form1.h"
#include "shell/startup.h"
#include "support/scripteddesktop.h"
#include "validation/rules.h"

namespace terramark {
namespace {

struct Bench {
  Bench() {
    Form_Load(Form);
    MakeGridMap(Form);
    const LayoutWritten file = WriteMapFile(Form);
    if (CheckMap(Form).Status != 0 || file.StoppedAtArea != 0) std::abort();
    Text = file.Text;
  }

  StockedDesktop Desktop;
  Form1 Form{Desktop};
  std::string Text;
};

Bench& TheBench() {
  static Bench bench;
  return bench;
}

void CopyLines(benchmark::State& state) {
  const std::string& text = TheBench().Text;
  for (auto _ : state) {
    std::istringstream in(text);
    std::ostringstream out;
    for (std::string line; std::getline(in, line);) out << line << '\n';
    benchmark::DoNotOptimize(out.view().data());
  }
}

/// All fields of the file, each read as what it is, and none kept.
bool ReadAllFields(std::string_view text) {
  using Whole = std::int16_t;
  using Text = std::string_view;
  FieldReader file(text);
  const bool headed = file.Line() && file.Line();
  const auto head =
      file.Fields<Whole, Whole, Text, Components, Components, Components, Components>();
  if (!headed || !head) return false;
  const Whole regions = std::get<0>(*head);
  const Whole areas = std::get<1>(*head);
  bool read = true;
  for (Whole r = 0; r < regions && read; ++r) {
    const auto region = file.Fields<Whole, Whole, Components, Text, Whole>();
    read = region.has_value();
    for (Whole i = 0; read && i < std::get<1>(*region); ++i) {
      read = file.Fields<Whole, Text, Text, Text, Whole>().has_value();
    }
  }
  const auto pairs = [&](Whole count) {
    read = read && file.Line();
    for (Whole i = 0; i < count; ++i) read = read && file.Fields<Whole, Text>();
  };
  const auto places = [&](Whole count) {
    for (Whole i = 0; i < count; ++i) read = read && file.Fields<Whole, float, float>();
  };
  pairs(0);
  while (read) {
    const auto bridge = file.Fields<Whole, Text>();
    read = bridge.has_value();
    if (read && std::get<0>(*bridge) == 0) break;
  }
  pairs(areas);
  pairs(regions);
  read = read && file.Line() && file.Fields<float, float>();
  places(static_cast<Whole>(areas + 1));
  read = read && file.Line();
  places(regions);
  return read && file.Line();
}

void ReadFields(benchmark::State& state) {
  const std::string& text = TheBench().Text;
  for (auto _ : state) {
    if (!ReadAllFields(text)) std::abort();
  }
}

void ReadValue(benchmark::State& state) {
  const std::string& text = TheBench().Text;
  for (auto _ : state) benchmark::DoNotOptimize(ReadLayout(text));
}

void ReadIntoWindow(benchmark::State& state) {
  Bench& bench = TheBench();
  for (auto _ : state) {
    ClearMap(bench.Form);
    ReadMapFile(bench.Form, bench.Text);
  }
  if (!bench.Desktop.Boxes.empty()) std::abort();
}

void WriteFromWindow(benchmark::State& state) {
  Bench& bench = TheBench();
  for (auto _ : state) {
    const LayoutWritten file = WriteMapFile(bench.Form);
    if (file.StoppedAtArea != 0) std::abort();
    benchmark::DoNotOptimize(file.Text.data());
  }
}

void AllBlitzRoutes(benchmark::State& state) {
  const Tables& map = TheBench().Form;
  for (auto _ : state) {
    const RouteFinder routes(map);
    for (std::int16_t i = 1; i <= map.AreaCount; ++i) {
      benchmark::DoNotOptimize(routes.BlitzRoute(i));
    }
  }
}

void JudgeGoodMap(benchmark::State& state) {
  const Tables& map = TheBench().Form;
  for (auto _ : state) benchmark::DoNotOptimize(CheckMap(map));
}

BENCHMARK(CopyLines);
BENCHMARK(ReadFields);
BENCHMARK(ReadValue);
BENCHMARK(ReadIntoWindow);
BENCHMARK(WriteFromWindow);
BENCHMARK(AllBlitzRoutes);
BENCHMARK(JudgeGoodMap);

/// Puts beside each time how many copies of the text it would have made; the copy runs first.
class CopiesReporter : public benchmark::ConsoleReporter {
 public:
  CopiesReporter() : ConsoleReporter(OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    std::vector<Run> reported = runs;
    for (Run& run : reported) {
      if (copy_ == 0) copy_ = run.GetAdjustedCPUTime();
      run.counters["copies"] = run.GetAdjustedCPUTime() / copy_;
    }
    ConsoleReporter::ReportRuns(reported);
  }

 private:
  double copy_ = 0;
};

}  // namespace
}  // namespace terramark

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  terramark::CopiesReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}
