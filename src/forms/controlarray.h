// A control array: controls of one kind and name, told apart by their index. Element 0 is the
// template from which Load makes more while the form runs.
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

  /// The element, which must exist: another index ends the program and names the array.
  T& operator()(std::int16_t index) { return *Existing(index); }
  const T& operator()(std::int16_t index) const { return *Existing(index); }

  /// The element, or null when there is none of that index, whatever the index.
  T* Find(std::int16_t index) const {
    return InRange(index) ? elements_[static_cast<std::size_t>(index)].get() : nullptr;
  }

  /// Creates an element at design time, with the defaults of its kind; not yet on a form. An
  /// element that exists is given as it is. An index out of range ends the program, here and in
  /// Load.
  T& Design(std::int16_t index) {
    if (!InRange(index)) FatalError(ElementName(index) + " is out of range");
    auto& element = elements_[static_cast<std::size_t>(index)];
    if (!element) element = std::make_unique<T>(name_, index);
    return *element;
  }

  /// Creates an element as an invisible copy of element 0, which must be on a form, in front of its
  /// container's stack. False where it exists already: it stays as it is.
  bool Load(std::int16_t index) {
    if (Find(index) != nullptr) return false;
    T& pattern = (*this)(0);
    T& element = Design(index);
    element.Visible = false;
    // On the form first: a caption is measured there.
    pattern.ParentForm()->Add(element, *pattern.Container());
    element.CopyTemplate(pattern);
    return true;
  }

  /// Destroys an element; one that does not exist is passed over, whatever the index.
  void Unload(std::int16_t index) {
    if (Find(index) != nullptr) elements_[static_cast<std::size_t>(index)].reset();
  }

  /// Calls visit with each element that exists, by rising index.
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
