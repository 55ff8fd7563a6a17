#pragma once

#include "platform/forms/control.h"

namespace orvendal {

enum class ShapeForm { kRectangle = 0, kRoundedRectangle = 4 };

/// A frame or a filled area. Takes no input and no focus.
class Shape final : public Control {
 public:
  Shape(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kShape; }

  ShapeForm FormOfShape() const { return shape_; }
  void FormOfShape(ShapeForm shape);
  ColorWord BorderColor() const { return border_color_; }
  void BorderColor(ColorWord color);
  /// Pixels.
  int BorderWidth() const { return border_width_; }
  void BorderWidth(int pixels);
  bool Opaque() const { return opaque_; }
  void Opaque(bool opaque);

  void RestoreDefaults() override;
  bool IsLightweight() const override { return true; }
  bool TakesMouse() const override { return false; }
  void Paint(Canvas& canvas) override;

 protected:
  bool HasFont() const override { return false; }
  ControlProperties DefaultProperties() const override;

 private:
  ShapeForm shape_ = ShapeForm::kRectangle;
  ColorWord border_color_ = system_color::kWindowText;
  int border_width_ = 1;
  bool opaque_ = false;
};

}  // namespace orvendal
