#include "metafile/budget.h"

#include "files/threadtime.h"

namespace terramark::metafile {

Budget::Budget(std::chrono::nanoseconds time) : end_(files::ThreadTime() + time) {
}

bool Budget::Spend(std::int64_t steps) {
  if (steps < stepsLeft_) {
    stepsLeft_ -= steps;
    return !usedUp_;
  }
  stepsLeft_ = StepsPerQuestion;
  usedUp_ = usedUp_ || files::ThreadTime() >= end_;
  return !usedUp_;
}

bool Budget::Keep(std::int64_t bytes) {
  keptBytes_ += bytes;
  usedUp_ = usedUp_ || keptBytes_ > MaxKeptBytes;
  return !usedUp_;
}

}  // namespace terramark::metafile
