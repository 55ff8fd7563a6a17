#include "platform/forms/h_scroll_bar.h"

#include <algorithm>
#include <cmath>

#include "platform/base/runtime_error.h"
#include "platform/forms/control_looks.h"

namespace orvendal {
namespace {

constexpr double kShortestThumb = 8 * kTwipsPerPixel;

}  // namespace

HScrollBar::HScrollBar(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

void HScrollBar::RestoreDefaults() {
  Control::RestoreDefaults();
  min_ = 0;
  max_ = 32767;
  value_ = 0;
  small_change_ = large_change_ = 1;
  dragging_ = false;
}

void HScrollBar::Min(int minimum) {
  min_ = minimum;
  HoldWithinLimits();
}

void HScrollBar::Max(int maximum) {
  max_ = maximum;
  HoldWithinLimits();
}

void HScrollBar::HoldWithinLimits() {
  value_ = Clamped(value_);
  Invalidate();
}

int HScrollBar::Clamped(double value) const {
  return static_cast<int>(std::lround(std::clamp(value, static_cast<double>(std::min(min_, max_)),
                                                 static_cast<double>(std::max(min_, max_)))));
}

void HScrollBar::Value(int value) {
  if (value != Clamped(value)) throw RuntimeError(error_number::kInvalidPropertyValue);
  if (value == value_) return;
  value_ = value;
  Invalidate();
  if (OnChange) OnChange();
}

void HScrollBar::Step(double change) {
  if (!IsInert()) Value(Clamped(value_ + (max_ < min_ ? -change : change)));
}

HScrollBar::Layout HScrollBar::Measure() const {
  Layout layout;
  const double arrow = std::min(Height(), Width() / 2);
  layout.left_arrow = {0, 0, arrow, Height()};
  layout.right_arrow = {Width() - arrow, 0, arrow, Height()};
  layout.track = {arrow, 0, Width() - 2 * arrow, Height()};
  const double range = std::fabs(static_cast<double>(max_) - min_);
  if (range == 0 || layout.track.width < kShortestThumb) return layout;
  const double share = large_change_ / (range + large_change_);
  const double length = std::max(kShortestThumb, layout.track.width * share);
  const double travel = layout.track.width - length;
  const double progress = std::fabs(static_cast<double>(value_) - min_) / range;
  layout.thumb = {layout.track.left + travel * progress, 0, length, Height()};
  return layout;
}

void HScrollBar::MousePressed(int button, int, Point local) {
  if (button != mouse_button::kLeft) return;
  const Layout layout = Measure();
  if (layout.left_arrow.Contains(local)) {
    Step(-small_change_);
  } else if (layout.right_arrow.Contains(local)) {
    Step(small_change_);
  } else if (layout.thumb.Contains(local)) {
    dragging_ = true;
    drag_offset_ = local.x - layout.thumb.left;
  } else {
    Step(local.x < layout.thumb.left ? -large_change_ : large_change_);
  }
}

void HScrollBar::MouseMoved(int, int, Point local) {
  if (!dragging_) return;
  const Layout layout = Measure();
  const double travel = layout.track.width - layout.thumb.width;
  if (travel <= 0) return;
  const double progress = (local.x - drag_offset_ - layout.track.left) / travel;
  Value(Clamped(min_ + progress * (static_cast<double>(max_) - min_)));
}

void HScrollBar::MouseReleased(int, int, Point) {
  dragging_ = false;
}

bool HScrollBar::KeyDownDefault(int key_code, int) {
  switch (key_code) {
    case key::kLeft:
    case key::kUp:
      Step(-small_change_);
      return false;
    case key::kRight:
    case key::kDown:
      Step(small_change_);
      return false;
    case key::kPageUp:
      Step(-large_change_);
      return false;
    case key::kPageDown:
      Step(large_change_);
      return false;
    case key::kHome:
      Value(min_);
      return false;
    case key::kEnd:
      Value(max_);
      return false;
    default:
      return false;
  }
}

bool HScrollBar::MouseWheel(double lines) {
  if (IsInert()) return false;
  Step(lines * small_change_);
  return true;
}

void HScrollBar::FocusChanged(bool) {
  Invalidate();
}

void HScrollBar::Paint(Canvas& canvas) {
  const Layout layout = Measure();
  const Rgb mark = Resolve(IsInert() || !IsOperable() ? system_color::kGrayText : system_color::kButtonText);
  canvas.FillRectangle(LocalBounds(), Resolve(system_color::kScrollBars));
  PaintButtonFace(canvas, Host(), layout.left_arrow, system_color::kButtonFace, Relief::kRaised);
  PaintButtonFace(canvas, Host(), layout.right_arrow, system_color::kButtonFace, Relief::kRaised);
  PaintArrow(canvas, layout.left_arrow, ArrowDirection::kLeft, mark);
  PaintArrow(canvas, layout.right_arrow, ArrowDirection::kRight, mark);
  if (layout.thumb.IsEmpty()) return;
  PaintButtonFace(canvas, Host(), layout.thumb, system_color::kButtonFace, Relief::kRaised);
  if (HasFocus()) canvas.FocusRectangle(layout.thumb.Deflated(3 * kTwipsPerPixel));
}

}  // namespace orvendal
