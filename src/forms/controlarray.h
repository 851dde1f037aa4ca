// A control array: controls of one kind and name, distinguished by their index. Element 0 is the
// template: Load makes copies of it while the form runs.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "forms/fatalerror.h"
#include "forms/form.h"

namespace terramark::forms {

template <typename T>
class ControlArray {
 public:
  /// Indices run from 0 to MaxElements - 1.
  static constexpr std::size_t MaxElements = 100;

  explicit ControlArray(std::string name) : name_(std::move(name)) {}

  /// The element, which must exist: for any other index the program ends with the name of the
  /// array.
  T& operator()(std::int16_t index) { return *Existing(index); }
  const T& operator()(std::int16_t index) const { return *Existing(index); }

  /// The element, or null when there is none with that index; any index is allowed.
  T* Find(std::int16_t index) const {
    return InRange(index) ? elements_[static_cast<std::size_t>(index)].get() : nullptr;
  }

  /// Creates an element at design time, with the defaults of its kind, not yet on a form. Returns
  /// an element that exists already unchanged. An index out of range ends the program, here and in
  /// Load.
  T& Design(std::int16_t index) {
    if (!InRange(index)) FatalError(ElementName(index) + " is out of range");
    auto& element = elements_[static_cast<std::size_t>(index)];
    if (!element) element = std::make_unique<T>(name_, index);
    return *element;
  }

  /// Creates an element as an invisible copy of element 0, which must be on a form, at the front of
  /// its container's stack. False when the element exists already: it is unchanged.
  bool Load(std::int16_t index) {
    if (Find(index) != nullptr) return false;
    T& pattern = (*this)(0);
    T& element = Design(index);
    element.Visible = false;
    // On the form first: measuring a caption needs the form.
    pattern.ParentForm()->Add(element, *pattern.Container());
    element.CopyTemplate(pattern);
    return true;
  }

  /// Destroys an element; one that does not exist is ignored, with any index.
  void Unload(std::int16_t index) {
    if (Find(index) != nullptr) elements_[static_cast<std::size_t>(index)].reset();
  }

  /// Calls `visit` with each element that exists, in the order of the indices.
  template <typename Visit>
  void ForEach(Visit visit) {
    for (auto& element : elements_) {
      if (element) visit(*element);
    }
  }

 private:
  static bool InRange(std::int16_t index) {
    return index >= 0 && static_cast<std::size_t>(index) < MaxElements;
  }
  std::string ElementName(std::int16_t index) const {
    return name_ + "(" + std::to_string(index) + ")";
  }
  T* Existing(std::int16_t index) const {
    T* element = Find(index);
    if (element == nullptr) FatalError(ElementName(index) + " does not exist");
    return element;
  }

  const std::string name_;
  std::array<std::unique_ptr<T>, MaxElements> elements_;
};

}  // namespace terramark::forms
