#pragma once

#include <string>

#include "platform/forms/button_press.h"
#include "platform/forms/control.h"
#include "platform/forms/property_list.h"

namespace orvendal {

/// The maker's push button. Click by mouse, by Enter and by the blank key.
class Boton final : public Control {
 public:
  Boton(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kBoton; }

  /// Takes "caption", "font" and "tamañoborde" (pixels) from the list.
  void StoredProperties(PropertyList properties);
  const PropertyList& StoredProperties() const { return stored_; }
  const std::string& Caption() const { return caption_; }

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
  PropertyList stored_;
  std::string caption_;
  int border_pixels_ = 1;
  ButtonPress press_;
};

}  // namespace orvendal
