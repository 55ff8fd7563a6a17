#include "platform/forms/push_button.h"

#include "platform/forms/control_looks.h"

namespace orvendal {

void PushButton::RestoreDefaults() {
  Control::RestoreDefaults();
  caption_.clear();
  looks_pushed_ = mouse_is_down_ = blank_is_down_ = false;
}

void PushButton::Caption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Invalidate();
}

void PushButton::Look(bool pushed) {
  if (pushed == looks_pushed_) return;
  looks_pushed_ = pushed;
  Invalidate();
}

// Ends a press of mouse or key without a click.
void PushButton::LetGo() {
  mouse_is_down_ = blank_is_down_ = false;
  Look(false);
}

void PushButton::MousePressed(int button, int, Point) {
  if (button != mouse_button::kLeft) return;
  mouse_is_down_ = true;
  Look(true);
}

void PushButton::MouseMoved(int, int, Point local) {
  if (mouse_is_down_) Look(LocalBounds().Contains(local));
}

void PushButton::MouseReleased(int, int, Point) {
  LetGo();
}

void PushButton::GestureCancelled() {
  LetGo();
}

bool PushButton::KeyDownDefault(int key_code, int) {
  if (key_code == key::kSpace) {
    blank_is_down_ = true;
    Look(true);
  }
  if (key_code != key::kReturn) return false;
  if (OnClick) OnClick();
  return true;
}

void PushButton::KeyUpDefault(int key_code, int) {
  if (key_code != key::kSpace) return;
  const bool clicked = blank_is_down_;
  LetGo();
  if (clicked && OnClick) OnClick();
}

void PushButton::FocusChanged(bool has_focus) {
  if (!has_focus) LetGo();
  Invalidate();
}

void PushButton::PaintContents(Canvas& canvas, const Rect& inside, double focus_margin) const {
  const double shift = looks_pushed_ ? kTwipsPerPixel : 0;
  const Rgb color = Resolve(IsOperable() ? ForeColor() : system_color::kGrayText);
  PaintCaption(canvas, Host(), inside.Moved(shift, shift), caption_, Font().Spec(), color,
               HorizontalAlign::kCenter, VerticalAlign::kCenter);
  if (HasFocus()) canvas.FocusRectangle(inside.Deflated(focus_margin));
}

}  // namespace orvendal
