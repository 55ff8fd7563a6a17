#include "platform/forms/barra.h"

#include <algorithm>

#include "platform/forms/control_looks.h"

namespace orvendal {
namespace {

constexpr double kLargestMargin = 5 * kTwipsPerPixel;
constexpr double kMarginToHeight = 0.15;
constexpr double kGapOfButtons = 2 * kTwipsPerPixel;
constexpr double kTwipsPerPoint = 20.0;
constexpr double kCaptionToHeight = 0.45;
constexpr double kLargestCaption = 12.0;  // points

double Margin(double height) {
  return std::min(kLargestMargin, height * kMarginToHeight);
}

}  // namespace

Barra::Barra(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties Barra::DefaultProperties() const {
  ControlProperties properties;
  properties.back_color = system_color::kActiveTitleBar;
  properties.fore_color = system_color::kTitleBarText;
  properties.tab_stop = false;
  return properties;
}

void Barra::RestoreDefaults() {
  Control::RestoreDefaults();
  stored_.clear();
  caption_.clear();
  pressed_ = Part::kNone;
  inside_ = false;
}

void Barra::StoredProperties(PropertyList properties) {
  stored_ = std::move(properties);
  if (const auto* caption = FindStored<std::string>(stored_, "caption")) caption_ = *caption;
  Invalidate();
}

Rect Barra::CloseButton() const {
  const double margin = Margin(Height());
  const double side = Height() - 2 * margin;
  return {Width() - margin - side, margin, side, side};
}

Rect Barra::MinimizeButton() const {
  const Rect close = CloseButton();
  return close.Moved(-close.width - kGapOfButtons, 0);
}

Barra::Part Barra::PartAt(Point local) const {
  if (CloseButton().Contains(local)) return Part::kClose;
  if (MinimizeButton().Contains(local)) return Part::kMinimize;
  return Part::kNone;
}

void Barra::MousePressed(int button, int, Point local) {
  if (button != mouse_button::kLeft) return;
  pressed_ = PartAt(local);
  inside_ = pressed_ != Part::kNone;
  if (inside_) Invalidate();
}

void Barra::MouseMoved(int, int, Point local) {
  if (pressed_ == Part::kNone) return;
  const bool inside = PartAt(local) == pressed_;
  if (inside == inside_) return;
  inside_ = inside;
  Invalidate();
}

void Barra::MouseReleased(int, int, Point local) {
  const Part released = pressed_;
  const bool clicked = released != Part::kNone && PartAt(local) == released;
  GestureCancelled();
  if (!clicked) return;
  const std::function<void()>& event = released == Part::kClose ? OnCerrar : OnMinimizar;
  if (event) event();
}

void Barra::GestureCancelled() {
  if (pressed_ == Part::kNone) return;
  pressed_ = Part::kNone;
  inside_ = false;
  Invalidate();
}

void Barra::Paint(Canvas& canvas) {
  canvas.FillRectangle(LocalBounds(), Resolve(BackColor()));
  FontSpec font = Font().Spec();
  font.weight = 700;
  font.size = std::min(kLargestCaption, Height() * kCaptionToHeight / kTwipsPerPoint);
  const double left = 2 * Margin(Height());
  const double right = MinimizeButton().left - left;
  PaintCaption(canvas, Host(), {left, 0, std::max(0.0, right - left), Height()}, caption_, font,
               Resolve(ForeColor()), HorizontalAlign::kLeft, VerticalAlign::kCenter);
  PaintButton(canvas, MinimizeButton(), Part::kMinimize);
  PaintButton(canvas, CloseButton(), Part::kClose);
}

void Barra::PaintButton(Canvas& canvas, const Rect& place, Part part) const {
  const bool pushed = pressed_ == part && inside_;
  PaintButtonFace(canvas, Host(), place, system_color::kButtonFace,
                  pushed ? Relief::kPushed : Relief::kRaised);
  const double shift = pushed ? kTwipsPerPixel : 0;
  const Rect mark = place.Deflated(place.height * 0.3).Moved(shift, shift);
  const Rgb color = Resolve(system_color::kButtonText);
  const double stroke = 2 * kTwipsPerPixel;
  if (part == Part::kMinimize) {
    canvas.FillRectangle({mark.left, mark.Bottom() - stroke, mark.width * 0.7, stroke}, color);
    return;
  }
  canvas.DrawLine({mark.left, mark.top}, {mark.Right(), mark.Bottom()}, color, stroke);
  canvas.DrawLine({mark.left, mark.Bottom()}, {mark.Right(), mark.top}, color, stroke);
}

}  // namespace orvendal
