#include "platform/forms/command_button.h"

#include "platform/forms/control_looks.h"

namespace orvendal {

CommandButton::CommandButton(Form& form, Control* container, std::string_view name, int index)
    : PushButton(form, container, name, index) {
  InitializeDefaults();
}

void CommandButton::RestoreDefaults() {
  PushButton::RestoreDefaults();
  style_ = 0;
}

void CommandButton::Style(int style) {
  if (style == style_) return;
  style_ = style;
  Invalidate();
}

void CommandButton::Paint(Canvas& canvas) {
  Rect face = LocalBounds();
  if (HasFocus()) {
    canvas.FrameRectangle(face, Resolve(system_color::kWindowFrame), kTwipsPerPixel);
    face = face.Deflated(kTwipsPerPixel);
  }
  PaintButtonFace(canvas, Host(), face, style_ == 1 ? BackColor() : system_color::kButtonFace,
                  LooksPushed() ? Relief::kPushed : Relief::kRaised);
  PaintContents(canvas, face.Deflated(2 * kTwipsPerPixel), kTwipsPerPixel);
}

}  // namespace orvendal
