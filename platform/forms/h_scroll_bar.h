#pragma once

#include <functional>

#include "platform/forms/control.h"
#include "platform/forms/scroll_track.h"

namespace orvendal {

/// A horizontal scroll bar. Invariant: Value lies between Min and Max. With Min = Max it does nothing.
class HScrollBar final : public Control {
 public:
  HScrollBar(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kHScrollBar; }

  int Min() const { return min_; }
  /// Min and Max may stand in either order. A limit that cuts Value off moves it, raising nothing.
  void Min(int minimum);
  int Max() const { return max_; }
  void Max(int maximum);
  int Value() const { return value_; }
  /// Raises OnChange if it differs; error 380 outside Min..Max.
  void Value(int value);
  int SmallChange() const { return small_change_; }
  void SmallChange(int step) { small_change_ = step; }
  int LargeChange() const { return large_change_; }
  void LargeChange(int step) { large_change_ = step; }

  std::function<void()> OnChange;

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  void MousePressed(int button, int shift, Point local) override;
  void MouseMoved(int buttons, int shift, Point local) override;
  void MouseReleased(int button, int shift, Point local) override;
  bool KeyDownDefault(int key_code, int shift) override;
  bool MouseWheel(WheelTurn turn) override;
  bool RaisesClick(Point /*local*/) const override { return false; }
  void FocusChanged(bool has_focus) override;
  void GestureCancelled() override { dragging_ = false; }

 private:
  ScrollTrack Track() const;
  bool IsInert() const { return min_ == max_; }
  int Clamped(double value) const;
  void Step(double change);  // from Min towards Max
  void HoldWithinLimits();

  int min_ = 0;
  int max_ = 32767;
  int value_ = 0;
  int small_change_ = 1;
  int large_change_ = 1;
  bool dragging_ = false;
  double grip_ = 0;  // where the thumb is held
};

}  // namespace orvendal
