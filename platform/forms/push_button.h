#pragma once

#include <string>

#include "platform/forms/control.h"

namespace orvendal {

/// What every push button does. Click comes from the mouse, from Enter at once, and from the blank key when
/// it is released.
///
/// Invariant: it looks pushed only while the mouse button that went down on it is held over it, or the blank
/// key is.
class PushButton : public Control {
 public:
  const std::string& Caption() const { return caption_; }

  void RestoreDefaults() override;
  void MousePressed(int button, int shift, Point local) override;
  void MouseMoved(int buttons, int shift, Point local) override;
  void MouseReleased(int button, int shift, Point local) override;
  bool ClickPrecedesMouseUp() const override { return true; }
  bool KeyDownDefault(int key_code, int shift) override;
  void KeyUpDefault(int key_code, int shift) override;
  void FocusChanged(bool has_focus) override;
  void GestureCancelled() override;

 protected:
  using Control::Control;

  void Caption(const std::string& caption);
  bool LooksPushed() const { return looks_pushed_; }
  /// The caption in the middle of `inside`, a pixel away while the button looks pushed; and the mark of the
  /// focus, that far inside the edge of `inside`.
  void PaintContents(Canvas& canvas, const Rect& inside, double focus_margin) const;

 private:
  void Look(bool pushed);
  void LetGo();

  std::string caption_;
  bool looks_pushed_ = false;
  bool mouse_is_down_ = false;
  bool blank_is_down_ = false;
};

}  // namespace orvendal
