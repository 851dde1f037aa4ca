#include "metafile/graphicsobjects.h"

#include <algorithm>
#include <utility>

#include "metafile/limits.h"

namespace terramark::metafile {

std::size_t ObjectTable::Add(GraphicsObject object) {
  const std::size_t from = lowestFree_;
  while (lowestFree_ < slots_.size() && slots_[lowestFree_].index() != 0) ++lowestFree_;
  const std::size_t passed = lowestFree_ - from;
  if (lowestFree_ == MaxObjects) return passed;
  if (lowestFree_ == slots_.size()) slots_.emplace_back();
  slots_[lowestFree_++] = std::move(object);
  return passed;
}

void ObjectTable::Delete(std::size_t number) {
  if (number >= slots_.size()) return;
  slots_[number] = std::monostate();
  lowestFree_ = std::min(lowestFree_, number);
}

const GraphicsObject& ObjectTable::At(std::size_t number) const {
  static const GraphicsObject nothing;
  return number < slots_.size() ? slots_[number] : nothing;
}

}  // namespace terramark::metafile
