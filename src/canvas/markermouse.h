// The mouse on the markers: turning the fill corner, selecting, dragging, and the descriptions in
// the help bar.
#pragma once

#include "forms/events.h"

namespace terramark {

struct Form1;

/// The right button turns the fill corner clockwise. Any other button begins a drag of the marker,
/// unless the Shift key alone is down.
void ArmyAt_MouseDown(Form1& form, const forms::MouseEvent& event);
/// The release of a press that began no drag: with Shift it toggles the mark; with no key down it
/// selects the Area.
void ArmyAt_MouseUp(Form1& form, const forms::MouseEvent& event);
void ArmyAt_MouseMove(Form1& form, const forms::MouseEvent& event);
/// A drop on the dragged marker itself moves it by the distance of the drag, or selects it when
/// that is 0. A drop of another marker leaves that where it was.
void ArmyAt_DragDrop(Form1& form, const forms::DropEvent& event);

/// The same for Region markers, which have no fill corner and no marks of their own.
void Continent_MouseDown(Form1& form, const forms::MouseEvent& event);
void Continent_MouseUp(Form1& form, const forms::MouseEvent& event);
void Continent_MouseMove(Form1& form, const forms::MouseEvent& event);
void Continent_DragDrop(Form1& form, const forms::DropEvent& event);

/// A drop on the backdrop moves the marker so that the point where it is held is under the pointer.
/// The place is not limited.
void Picture1_DragDrop(Form1& form, const forms::DropEvent& event);

}  // namespace terramark
