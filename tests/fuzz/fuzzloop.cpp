// Runs a fuzz target without a fuzzing compiler: on the seed files as they are, then on mutations
// of them. A run depends on its number alone, so that a run that failed can be repeated.
//
// A run that takes longer than its limit of time is ended and told like one that broke.
//
// By hand, for an hour:  layout_fuzz 3600 samples/*.tml
// Run 1234 once more:    layout_fuzz @1234 samples/*.tml
// With clang and coverage, configure with -DCMAKE_CXX_COMPILER=clang++ -DTERRAMARK_LIBFUZZER=ON
// -DTERRAMARK_SANITIZE=ON -DCMAKE_CXX_FLAGS=-fsanitize=fuzzer-no-link, and give the target a folder
// with the seeds.
#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
/// Of the sanitizers, and not there without one.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" [[gnu::weak]] void __sanitizer_set_death_callback(void (*callback)());

namespace {

/// Processor seconds that one run may take under the sanitizers.
constexpr rlim_t MaxRunSeconds = 15;

unsigned long currentRun = 0;

void TellRun() {
  std::fprintf(stderr, "in run @%lu\n", currentRun);
}

class Mutator {
 public:
  Mutator(unsigned long run, const std::vector<std::string>& seeds) : random_(run), seeds_(seeds) {}

  std::string Mutated() {
    std::string bytes = AnySeed();
    for (std::size_t left = 1 + Below(6); left > 0; --left) MutateOnce(bytes);
    return bytes;
  }

 private:
  void MutateOnce(std::string& bytes) {
    static constexpr auto Pieces = std::to_array<const char*>(
        {"\"", ",", "\r\n", "\n", " ", "-1", "99", "100", "32768", ".5", "0000", "\xFF\x7F"});
    const std::size_t at = Below(bytes.size() + 1);
    const std::size_t length = Below(std::min<std::size_t>(bytes.size() - at, 64) + 1);
    const std::string& other = AnySeed();
    // clang-format off
    switch (Below(8)) {
      case 0: if (at < bytes.size()) bytes[at] = static_cast<char>(bytes[at] ^ (1 << Below(8))); break;
      case 1: if (at < bytes.size()) bytes[at] = static_cast<char>(Below(256)); break;
      case 2: bytes.erase(at, length); break;
      case 3: bytes.insert(Below(bytes.size() + 1), bytes.substr(at, length)); break;
      case 4: bytes.replace(at, std::min<std::size_t>(length, 2), Pieces.at(Below(Pieces.size()))); break;
      case 5: bytes.replace(at, length, other, std::min(at, other.size()), length); break;
      case 6: Repeat(bytes, at, length); break;
      default: if (Below(8) == 0) bytes.resize(at);
    }
    // clang-format on
  }

  // Many times over, since what costs little once may cost much a thousand times over.
  void Repeat(std::string& bytes, std::size_t at, std::size_t length) {
    const std::string piece = bytes.substr(at, length);
    std::string many;
    for (std::size_t left = Below(Below(8) == 0 ? 2000 : 20); left > 0; --left) many += piece;
    bytes.insert(at, many);
  }

  const std::string& AnySeed() { return seeds_[Below(seeds_.size())]; }
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::mt19937_64 random_;
  const std::vector<std::string>& seeds_;
};

/// Ends the process when it uses so much more of the processor.
void LimitTime(rlim_t seconds) {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto spent = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec);
  const rlimit limit{spent + 1 + seconds, RLIM_INFINITY};
  setrlimit(RLIMIT_CPU, &limit);
}

void Run(const std::string& bytes) {
  LimitTime(MaxRunSeconds);
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> seeds;
  for (int k = 2; k < argc; ++k) {
    std::ifstream file(argv[k], std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    if (seeds.back().empty()) std::fprintf(stderr, "no seed in %s\n", argv[k]);
  }
  if (seeds.empty() || std::count(seeds.begin(), seeds.end(), "") != 0) {
    std::fprintf(stderr, "usage: %s seconds|@run seed...\n", argv[0]);
    return 2;
  }
  std::signal(SIGABRT, [](int) { TellRun(); });
  std::signal(SIGXCPU, [](int) {
    std::fputs("too slow\n", stderr);
    std::abort();
  });
  if (__sanitizer_set_death_callback != nullptr) __sanitizer_set_death_callback(TellRun);
  const bool one = argv[1][0] == '@';
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(std::atoi(argv[1]));
  if (one) currentRun = std::strtoul(argv[1] + 1, nullptr, 10) - 1;
  if (!one) std::for_each(seeds.begin(), seeds.end(), Run);
  do {
    ++currentRun;
    Run(Mutator(currentRun, seeds).Mutated());
  } while (std::chrono::steady_clock::now() < end);
  std::printf("%lu runs\n", currentRun);
  return 0;
}
