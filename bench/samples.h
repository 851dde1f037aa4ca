// What one thing took, time and again, of which the median counts.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace terramark {

class Samples {
 public:
  void Add(double sample) { samples_.push_back(sample); }

  /// Adds the seconds that it takes this time, and gives them.
  double Take(const std::function<void()>& act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    Add(took.count());
    return took.count();
  }

  /// Needs a sample.
  double Median() const {
    std::vector<double> sorted = samples_;
    std::ranges::sort(sorted);
    return sorted.at(sorted.size() / 2);
  }

 private:
  std::vector<double> samples_;
};

}  // namespace terramark
