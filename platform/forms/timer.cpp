#include "platform/forms/timer.h"

#include "platform/base/runtime_error.h"
#include "platform/forms/window_host.h"

namespace orvendal {
namespace {

constexpr int kLongestInterval = 65535;

}  // namespace

Timer::Timer(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

Timer::~Timer() {
  Host().TimerChanged(*this, false);
}

void Timer::RestoreDefaults() {
  Control::RestoreDefaults();
  Interval(0);
}

void Timer::Enabled(bool enabled) {
  if (enabled == Enabled()) return;
  Control::Enabled(enabled);
  Host().TimerChanged(*this, true);
}

void Timer::Interval(int milliseconds) {
  if (milliseconds < 0 || milliseconds > kLongestInterval) {
    throw RuntimeError(error_number::kInvalidPropertyValue);
  }
  if (milliseconds == interval_) return;
  interval_ = milliseconds;
  Host().TimerChanged(*this, true);
}

void Timer::Paint(Canvas&) {}

}  // namespace orvendal
