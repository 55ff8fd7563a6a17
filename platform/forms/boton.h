#pragma once

#include "platform/forms/property_list.h"
#include "platform/forms/push_button.h"

namespace orvendal {

/// The maker's push button.
class Boton final : public PushButton {
 public:
  Boton(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kBoton; }

  /// Takes "caption", "font" and "tamañoborde" (pixels) from the list.
  void StoredProperties(PropertyList properties);
  const PropertyList& StoredProperties() const { return stored_; }

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;

 private:
  PropertyList stored_;
  int border_pixels_ = 1;
};

}  // namespace orvendal
