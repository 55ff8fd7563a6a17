#pragma once

#include <deque>

#include "platform/base/clock.h"

namespace orvendal {

/// A clock that stands where a script sets it, and moves on to where the script says after so many readings.
class ScriptClock final : public Clock {
 public:
  explicit ScriptClock(Date now) : now_(now) {}

  Date Now() override {
    while (!later_.empty() && later_.front().readings == 0) TakeNext();
    if (!later_.empty()) --later_.front().readings;
    return now_;
  }

  /// At once for 0, which also ends what was to come; else after so many readings more than what was set
  /// before needs.
  void SetAfter(int readings, Date now) {
    if (readings == 0) {
      later_.clear();
      now_ = now;
    } else {
      later_.push_back({readings, now});
    }
  }

 private:
  struct Later {
    int readings;
    Date now;
  };

  void TakeNext() {
    now_ = later_.front().now;
    later_.pop_front();
  }

  Date now_;
  std::deque<Later> later_;
};

}  // namespace orvendal
