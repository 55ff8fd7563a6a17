#pragma once

#include <string>

#include "platform/forms/button_press.h"
#include "platform/forms/control.h"

namespace orvendal {

/// A push button. Click comes from the mouse, from Enter at once, and from the blank key when it is released.
class CommandButton final : public Control {
 public:
  CommandButton(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kCommandButton; }

  const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);
  /// 1 (graphical) shows BackColor.
  int Style() const { return style_; }
  void Style(int style);

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  void MousePressed(int button, int shift, Point local) override;
  void MouseMoved(int buttons, int shift, Point local) override;
  void MouseReleased(int button, int shift, Point local) override;
  bool ClickPrecedesMouseUp() const override { return true; }
  bool KeyDownDefault(int key_code, int shift) override;
  void KeyUpDefault(int key_code, int shift) override;
  void FocusChanged(bool has_focus) override;
  void GestureCancelled() override;

 protected:
  ControlProperties DefaultProperties() const override;

 private:
  std::string caption_;
  int style_ = 0;
  ButtonPress press_;
};

}  // namespace orvendal
