#pragma once

#include <functional>

#include "platform/forms/control.h"

namespace orvendal {

/// Raises OnTimer every Interval milliseconds while enabled; 0 is never. Has a place and nothing to see.
class Timer final : public Control {
 public:
  Timer(Form& form, Control* container, std::string_view name, int index = -1);
  ~Timer() override;
  ControlKind Kind() const override { return ControlKind::kTimer; }

  bool Enabled() const { return Control::Enabled(); }
  void Enabled(bool enabled);
  int Interval() const { return interval_; }
  /// Milliseconds, 0 to 65535; error 380 otherwise.
  void Interval(int milliseconds);

  std::function<void()> OnTimer;

  void RestoreDefaults() override;
  bool IsLightweight() const override { return true; }
  bool TakesMouse() const override { return false; }
  void Paint(Canvas& canvas) override;

 protected:
  bool HasFont() const override { return false; }

 private:
  int interval_ = 0;
};

}  // namespace orvendal
