#include "platform/forms/h_scroll_bar.h"

#include <algorithm>
#include <cmath>

#include "platform/base/runtime_error.h"

namespace orvendal {

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

ScrollTrack HScrollBar::Track() const {
  const double range = std::fabs(static_cast<double>(max_) - min_);
  const double position = std::fabs(static_cast<double>(value_) - min_);
  ScrollTrack track(LocalBounds(), ScrollTrack::Direction::kHorizontal, Height(),
                    {position, range, large_change_ / (range + large_change_)});
  if (IsInert() || track.TrackLength() < ScrollTrack::kShortestThumb) track.RemoveThumb();
  return track;
}

void HScrollBar::MousePressed(int button, int, Point local) {
  if (button != mouse_button::kLeft) return;
  const ScrollTrack track = Track();
  switch (track.PartAt(local)) {
    case ScrollTrack::Part::kBackArrow:
      Step(-small_change_);
      break;
    case ScrollTrack::Part::kForwardArrow:
      Step(small_change_);
      break;
    case ScrollTrack::Part::kThumb:
      dragging_ = true;
      grip_ = track.GripAt(local);
      break;
    case ScrollTrack::Part::kBeforeThumb:
      Step(-large_change_);
      break;
    case ScrollTrack::Part::kBehindThumb:
      Step(large_change_);
      break;
  }
}

void HScrollBar::MouseMoved(int, int, Point local) {
  if (!dragging_) return;
  const std::optional<double> progress = Track().DraggedTo(local, grip_);
  if (progress) Value(Clamped(min_ + *progress * (static_cast<double>(max_) - min_)));
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

bool HScrollBar::MouseWheel(WheelTurn turn) {
  if (IsInert()) return false;
  Step(static_cast<double>(turn.lines) * small_change_);
  return true;
}

void HScrollBar::FocusChanged(bool) {
  Invalidate();
}

void HScrollBar::Paint(Canvas& canvas) {
  const ScrollTrack track = Track();
  const bool is_dead = IsInert() || !IsOperable();
  track.Paint(canvas, Host(), Resolve(system_color::kScrollBars),
              Resolve(is_dead ? system_color::kGrayText : system_color::kButtonText));
  if (HasFocus() && !track.Thumb().IsEmpty()) {
    canvas.FocusRectangle(track.Thumb().Deflated(3 * kTwipsPerPixel));
  }
}

}  // namespace orvendal
