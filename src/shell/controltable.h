// The control table: what stands on a form, where and with which words.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "forms/controlarray.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace terramark {

/// A row of a form's control table; the rows stand in tab order. Left, Top, Width and Height are
/// twips from the inside of the container.
template <typename FormType>
struct ControlRow {
  using Place = forms::Control& (*)(FormType&);

  Place Of;
  const char* Name;
  std::int16_t Index;
  const char* Caption;
  Place Container;
  float Left;
  float Top;
  float Width;
  float Height;
};

/// The control that a member of the form holds, for a row.
template <auto Member, typename FormType>
forms::Control& The(FormType& form) {
  return form.*Member;
}

/// The element of a control array, created when it does not exist yet, for a row.
template <auto Array, std::int16_t Index, typename FormType>
forms::Control& Element(FormType& form) {
  return (form.*Array).Design(Index);
}

/// The form itself as a container, for a row.
template <typename FormType>
forms::Control& Itself(FormType& form) {
  return form;
}

/// Sets the caption of a control that has one.
void SetCaption(forms::Control& control, const std::string& caption);

/// Places a control by its row, in the container's scale, with the colours of its kind.
void PlaceControl(forms::Form& form, forms::Control& control, forms::Control& container, float left,
                  float top, float width, float height);

/// Puts all controls of a table on a form.
template <typename FormType>
void BuildControls(FormType& form, std::span<const ControlRow<FormType>> table) {
  for (const ControlRow<FormType>& row : table) {
    forms::Control& control = row.Of(form);
    forms::Control& container = row.Container(form);
    // On the form first: only there does a size in twips mean pixels.
    form.Add(control, container, row.Name, row.Index);
    SetCaption(control, row.Caption);
    PlaceControl(form, control, container, row.Left, row.Top, row.Width, row.Height);
  }
}

}  // namespace terramark
