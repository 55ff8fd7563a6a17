#pragma once

#include "platform/forms/control.h"

namespace orvendal {

/// A straight line between two points of its container, in twips.
class Line final : public Control {
 public:
  Line(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kLine; }

  double X1() const { return x1_; }
  void X1(double twips);
  double Y1() const { return y1_; }
  void Y1(double twips);
  double X2() const { return x2_; }
  void X2(double twips);
  double Y2() const { return y2_; }
  void Y2(double twips);
  ColorWord BorderColor() const { return border_color_; }
  void BorderColor(ColorWord color);

  void RestoreDefaults() override;
  bool IsLightweight() const override { return true; }
  bool TakesMouse() const override { return false; }
  void Paint(Canvas& canvas) override;

 protected:
  bool HasFont() const override { return false; }

 private:
  void PlaceBox();

  double x1_ = 0;
  double y1_ = 0;
  double x2_ = 0;
  double y2_ = 0;
  ColorWord border_color_ = system_color::kWindowText;
};

}  // namespace orvendal
