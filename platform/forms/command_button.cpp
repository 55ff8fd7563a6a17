#include "platform/forms/command_button.h"

#include "platform/forms/control_looks.h"

namespace orvendal {

CommandButton::CommandButton(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties CommandButton::DefaultProperties() const {
  ControlProperties properties;
  properties.back_color = system_color::kButtonFace;
  properties.fore_color = system_color::kButtonText;
  return properties;
}

void CommandButton::RestoreDefaults() {
  Control::RestoreDefaults();
  caption_.clear();
  style_ = 0;
  press_ = {};
}

void CommandButton::Caption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Invalidate();
}

void CommandButton::Style(int style) {
  if (style == style_) return;
  style_ = style;
  Invalidate();
}

void CommandButton::MousePressed(int button, int, Point) {
  if (button == mouse_button::kLeft && press_.MouseDown()) Invalidate();
}

void CommandButton::MouseMoved(int, int, Point local) {
  if (press_.MouseOver(LocalBounds().Contains(local))) Invalidate();
}

void CommandButton::MouseReleased(int, int, Point) {
  if (press_.Release()) Invalidate();
}

void CommandButton::GestureCancelled() {
  if (press_.Release()) Invalidate();
}

bool CommandButton::KeyDownDefault(int key_code, int) {
  if (key_code == key::kSpace && press_.BlankDown()) Invalidate();
  if (key_code != key::kReturn) return false;
  if (OnClick) OnClick();
  return true;
}

void CommandButton::KeyUpDefault(int key_code, int) {
  if (key_code != key::kSpace) return;
  const bool clicked = press_.TakeBlank();
  if (press_.Release()) Invalidate();
  if (clicked && OnClick) OnClick();
}

void CommandButton::FocusChanged(bool has_focus) {
  if (!has_focus) press_.Release();
  Invalidate();
}

void CommandButton::Paint(Canvas& canvas) {
  const bool pushed = press_.LooksPushed();
  Rect face = LocalBounds();
  if (HasFocus()) {
    canvas.FrameRectangle(face, Resolve(system_color::kWindowFrame), kTwipsPerPixel);
    face = face.Deflated(kTwipsPerPixel);
  }
  PaintButtonFace(canvas, Host(), face, style_ == 1 ? BackColor() : system_color::kButtonFace,
                  pushed ? Relief::kPushed : Relief::kRaised);
  const double shift = pushed ? kTwipsPerPixel : 0;
  const Rgb color = Resolve(IsOperable() ? ForeColor() : system_color::kGrayText);
  PaintCaption(canvas, Host(), face.Deflated(2 * kTwipsPerPixel).Moved(shift, shift), caption_, Font().Spec(),
               color, HorizontalAlign::kCenter, VerticalAlign::kCenter);
  if (HasFocus()) canvas.FocusRectangle(face.Deflated(3 * kTwipsPerPixel));
}

}  // namespace orvendal
