// The control table: which controls a form has, where, and with which texts.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "forms/controlarray.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace terramark {

/// Finds a control of a form, for a row of a table.
template <typename FormType, typename Kind = forms::Control>
using Finder = Kind& (*)(FormType&);

/// A row of a form's control table; the rows are in tab order. Left, Top, Width and Height are
/// twips in the inside of the container.
template <typename FormType>
struct ControlRow {
  Finder<FormType> Locate;
  const char* Caption;
  std::int16_t HelpTopic;  // opened by a press with the Shift key alone, and by F1; 0 for none
  Finder<FormType> Container;
  float Left;
  float Top;
  float Width;
  float Height;
  const char* ToolTipText = "";
  /// As Control::AccessibleName. For a button it is the caption in this row, even if the caption
  /// changes later.
  const char* AccessibleName = "";
};

/// The control that is a member of the form. Where a row needs one kind of control, a member of
/// another kind does not compile.
template <auto Member, typename Kind, typename FormType>
Kind& ControlOf(FormType& form) {
  return form.*Member;
}

/// Creates and returns an element of a control array; for the control table only.
template <auto Array, std::int16_t Index, typename Kind, typename FormType>
Kind& Make(FormType& form) {
  return (form.*Array).Design(Index);
}

/// The element of a control array that the control table has created.
template <auto Array, std::int16_t Index, typename Kind, typename FormType>
Kind& Element(FormType& form) {
  return (form.*Array)(Index);
}

/// The form itself as a container.
template <typename Kind, typename FormType>
Kind& Itself(FormType& form) {
  return form;
}

/// Sets the caption of a control that has one.
void SetCaption(forms::Control& control, const std::string& caption);

/// The accessible name of the control of a row.
const char* AccessibleNameIn(const forms::Control& control, const char* caption, const char* name);

/// Places a control by its row, in the container's scale, with the colours of its kind.
void PlaceControl(forms::Form& form, forms::Control& control, forms::Control& container, float left,
                  float top, float width, float height);

/// Puts all controls of a table on a form.
template <typename FormType>
void BuildControls(FormType& form, std::span<const ControlRow<FormType>> table) {
  for (const ControlRow<FormType>& row : table) {
    forms::Control& control = row.Locate(form);
    forms::Control& container = row.Container(form);
    // On the form first: the conversion from twips to pixels needs the form.
    form.Add(control, container);
    control.HelpTopic = row.HelpTopic;
    control.ToolTipText = row.ToolTipText;
    control.AccessibleName = AccessibleNameIn(control, row.Caption, row.AccessibleName);
    SetCaption(control, row.Caption);
    PlaceControl(form, control, container, row.Left, row.Top, row.Width, row.Height);
  }
}

}  // namespace terramark
