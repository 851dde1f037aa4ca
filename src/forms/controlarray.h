// A control array: controls of one kind and name, told apart by their index. Element 0 is the
// template from which Load makes more while the form runs.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "forms/form.h"

namespace terramark::forms {

template <typename T>
class ControlArray {
 public:
  /// Indices run from 0 to MaxElements - 1.
  static constexpr std::size_t MaxElements = 100;

  /// The element, which must exist.
  T& operator()(std::int16_t index) { return *elements_.at(Place(index)); }
  const T& operator()(std::int16_t index) const { return *elements_.at(Place(index)); }

  /// The element, or null when there is none of that index, whatever the index.
  T* Find(std::int16_t index) {
    if (index < 0 || Place(index) >= MaxElements) return nullptr;
    return elements_[Place(index)].get();
  }

  /// Creates an element at design time, with the defaults of its kind; not yet on a form.
  T& Design(std::int16_t index) {
    auto& element = elements_.at(Place(index));
    if (!element) element = std::make_unique<T>();
    return *element;
  }

  /// Creates an element as an invisible copy of element 0, in front of its container's stack.
  /// An element that exists stays as it is.
  void Load(std::int16_t index) {
    auto& element = elements_.at(Place(index));
    if (element) return;
    T& pattern = (*this)(0);
    element = std::make_unique<T>();
    element->Visible = false;
    // On the form first: a caption is measured there.
    pattern.Owner()->Add(*element, *pattern.Container(), pattern.Name(), index);
    element->CopyTemplate(pattern);
  }

  /// Destroys an element; one that does not exist is passed over.
  void Unload(std::int16_t index) {
    if (Find(index) != nullptr) elements_[Place(index)].reset();
  }

 private:
  static std::size_t Place(std::int16_t index) { return static_cast<std::size_t>(index); }

  std::array<std::unique_ptr<T>, MaxElements> elements_;
};

}  // namespace terramark::forms
