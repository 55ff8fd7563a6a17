#include "platform/forms/line.h"

#include <algorithm>
#include <cmath>

namespace orvendal {

Line::Line(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

void Line::RestoreDefaults() {
  Control::RestoreDefaults();
  x1_ = y1_ = x2_ = y2_ = 0;
  border_color_ = system_color::kWindowText;
  PlaceBox();
}

void Line::X1(double twips) {
  x1_ = twips;
  PlaceBox();
}
void Line::Y1(double twips) {
  y1_ = twips;
  PlaceBox();
}
void Line::X2(double twips) {
  x2_ = twips;
  PlaceBox();
}
void Line::Y2(double twips) {
  y2_ = twips;
  PlaceBox();
}

void Line::BorderColor(ColorWord color) {
  if (color == border_color_) return;
  border_color_ = color;
  Invalidate();
}

// Half a pixel around the points, so that an upright line has a box too.
void Line::PlaceBox() {
  const double half = kTwipsPerPixel / 2;
  Move(std::min(x1_, x2_) - half, std::min(y1_, y2_) - half, std::fabs(x2_ - x1_) + kTwipsPerPixel,
       std::fabs(y2_ - y1_) + kTwipsPerPixel);
  Invalidate();
}

void Line::Paint(Canvas& canvas) {
  canvas.DrawLine({x1_ - Left(), y1_ - Top()}, {x2_ - Left(), y2_ - Top()}, Resolve(border_color_),
                  kTwipsPerPixel);
}

}  // namespace orvendal
