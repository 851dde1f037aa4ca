#include "forms/control.h"

#include "forms/form.h"

namespace terramark::forms {

Control::~Control() {
  if (form_ != nullptr && form_ != this) form_->Remove(*this);
}

bool Control::IsVisible() const {
  return Visible && (container_ == nullptr || container_->IsVisible());
}

void Control::Drag() {
  if (form_ != nullptr) form_->Pointer.BeginDrag(*this);
}

void Control::Move(float left, float top) {
  Left = left;
  Top = top;
}

void Control::ZOrder(StackEnd end) {
  if (form_ != nullptr) form_->Restack(*this, end);
}

void Control::SetFocus() {
  if (form_ != nullptr) form_->Focus(this);
}

void Control::Refresh() {
  if (form_ != nullptr && form_->observer_ != nullptr) form_->observer_->Refreshed(*this);
}

void Control::PropertyChanged(PropertyId id) {
  if (form_ != nullptr) form_->NotifyObserver(*this, id);
}

void Control::CopyCommon(const Control& from) {
  Left = from.Left;
  Top = from.Top;
  Width = from.Width;
  Height = from.Height;
  Enabled = from.Enabled;
  BackColor = from.BackColor;
  ForeColor = from.ForeColor;
  Tag = from.Tag;
  ToolTipText = from.ToolTipText;
  AccessibleName = from.AccessibleName;
  AccessibleNameOf = from.AccessibleNameOf;
  AccessibleDescriptionOf = from.AccessibleDescriptionOf;
  ListOrder = from.ListOrder;
  HelpTopic = from.HelpTopic;
  InnerScale = from.InnerScale;
  MouseDown = from.MouseDown;
  MouseMove = from.MouseMove;
  MouseUp = from.MouseUp;
  DragDrop = from.DragDrop;
  KeyDown = from.KeyDown;
  KeyUp = from.KeyUp;
  KeyPress = from.KeyPress;
  GotFocus = from.GotFocus;
}

}  // namespace terramark::forms
