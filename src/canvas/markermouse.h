// The mouse on the markers: turning the fill corner, selecting, dragging, hover texts.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// The right button turns the fill corner clockwise; any other takes hold of the marker for a drag,
/// unless the Shift key alone is down.
void ArmyAt_MouseDown(Form1& form, const forms::MouseEvent& event);
/// The release of a press that began no drag: flips the mark, or selects when no key is
/// down by then.
void ArmyAt_MouseUp(Form1& form, const forms::MouseEvent& event);
void ArmyAt_MouseMove(Form1& form, const forms::MouseEvent& event);
/// A drop on the dragged marker itself moves it by the travel, and without travel selects it. A
/// drop of another marker leaves that where it was.
void ArmyAt_DragDrop(Form1& form, const forms::DropEvent& event);

/// The same for Region markers, which know no fill corner and no single marks.
void Continent_MouseDown(Form1& form, const forms::MouseEvent& event);
void Continent_MouseUp(Form1& form, const forms::MouseEvent& event);
void Continent_MouseMove(Form1& form, const forms::MouseEvent& event);
void Continent_DragDrop(Form1& form, const forms::DropEvent& event);

/// A drop on the backdrop lands the grabbed point under the pointer. No place is clamped.
void Picture1_DragDrop(Form1& form, const forms::DropEvent& event);

}  // namespace terramark
