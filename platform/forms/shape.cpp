#include "platform/forms/shape.h"

#include <algorithm>

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

constexpr double kShorterSideToRadius = 6.0;

}  // namespace

Shape::Shape(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties Shape::DefaultProperties() const {
  ControlProperties properties;
  properties.back_color = system_color::kWindowBackground;
  properties.tab_stop = false;
  return properties;
}

void Shape::RestoreDefaults() {
  Control::RestoreDefaults();
  shape_ = ShapeForm::kRectangle;
  border_color_ = system_color::kWindowText;
  border_width_ = 1;
  opaque_ = false;
}

void Shape::FormOfShape(ShapeForm shape) {
  if (shape == shape_) return;
  shape_ = shape;
  Invalidate();
}

void Shape::BorderColor(ColorWord color) {
  if (color == border_color_) return;
  border_color_ = color;
  Invalidate();
}

void Shape::BorderWidth(int pixels) {
  if (pixels < 1) throw RuntimeError(error_number::kInvalidPropertyValue);
  if (pixels == border_width_) return;
  border_width_ = pixels;
  Invalidate();
}

void Shape::Opaque(bool opaque) {
  if (opaque == opaque_) return;
  opaque_ = opaque;
  Invalidate();
}

void Shape::Paint(Canvas& canvas) {
  const Rect bounds = LocalBounds();
  const double width = border_width_ * kTwipsPerPixel;
  const Rgb border = Resolve(border_color_);
  if (shape_ == ShapeForm::kRectangle) {
    if (opaque_) canvas.FillRectangle(bounds, Resolve(BackColor()));
    canvas.FrameRectangle(bounds, border, width);
    return;
  }
  // The edge lies half the border inside, so that all of the border shows.
  const Rect edge = bounds.Deflated(width / 2);
  const double radius = std::min(edge.width, edge.height) / kShorterSideToRadius;
  std::optional<Rgb> fill;
  if (opaque_) fill = Resolve(BackColor());
  canvas.RoundedRectangle(edge, radius, fill, border, width);
}

}  // namespace orvendal
