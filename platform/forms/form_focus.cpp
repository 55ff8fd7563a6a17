#include "platform/forms/form.h"

namespace orvendal {
namespace {

bool IsTabStop(const Control& control) {
  return control.TabIndex() >= 0 && control.TabStop() && control.IsFocusable();
}

}  // namespace

void Form::MoveFocus(Control* target) {
  if (target == active_control_) return;
  const ObjectRef self = shared_from_this();
  const std::uint64_t life = life_;
  Control* old = active_control_;
  active_control_ = nullptr;  // inside its own LostFocus a control no longer holds the focus
  const std::uint64_t serial = ++focus_serial_;
  if (old != nullptr) {
    old->FocusChanged(false);
    if (old->OnLostFocus) old->OnLostFocus();
  }
  if (life != life_ || serial != focus_serial_ || !visible_) return;
  if (target != nullptr && !target->IsFocusable()) target = NextTabStop(target, false);
  active_control_ = target;
  if (target == nullptr) return;
  target->FocusChanged(true);
  if (target->OnGotFocus) target->OnGotFocus();
}

void Form::LeaveIneligible() {
  if (active_control_ == nullptr || active_control_->IsFocusable()) return;
  MoveFocus(NextTabStop(active_control_, false));
}

Control* Form::NextTabStop(const Control* from, bool backwards) const {
  // The nearest index beyond `from`, or the outermost one of the other end.
  const int origin = from != nullptr ? from->TabIndex() : -1;
  Control* nearest = nullptr;
  Control* wrapped = nullptr;
  for (Control* control : controls_) {
    if (control == from || !IsTabStop(*control)) continue;
    const int index = control->TabIndex();
    Control*& best = (backwards ? index < origin : index > origin) ? nearest : wrapped;
    if (best == nullptr || (backwards ? index > best->TabIndex() : index < best->TabIndex())) best = control;
  }
  return nearest != nullptr ? nearest : wrapped;
}

bool Form::MoveFocusByTab(bool backwards) {
  Control* next = NextTabStop(active_control_, backwards);
  if (next == nullptr) return false;
  MoveFocus(next);
  return true;
}

void Form::SetFocus() {
  if (active_control_ != nullptr) return;
  if (Control* first = NextTabStop(nullptr, false)) {
    MoveFocus(first);
  } else if (OnGotFocus) {
    OnGotFocus();
  }
}

std::optional<Rect> Form::CaretRectangle() const {
  if (active_control_ == nullptr || !active_control_->IsShown()) return std::nullopt;
  const std::optional<Rect> local = active_control_->CaretRectangle();
  if (!local) return std::nullopt;
  const Rect bounds = active_control_->Bounds();
  return local->Moved(bounds.left, bounds.top);
}

void Form::UpdateCaret() {
  if (window_) window_->Caret(CaretRectangle());
}

}  // namespace orvendal
