#pragma once

#include <vector>

#include "platform/base/clock.h"

namespace orvendal {

/// A clock that remembers what it said while somebody wants to know.
class RecordedClock final : public Clock {
 public:
  /// What it said from one reading on.
  struct Change {
    int reading = 0;  // counted from 0
    Date said;
  };

  /// `inner` outlives the object.
  explicit RecordedClock(Clock& inner) : inner_(inner) {}

  Date Now() override {
    const Date now = inner_.Now();
    if (listening_) {
      if (changes_.empty() || !(changes_.back().said == now)) changes_.push_back({readings_, now});
      ++readings_;
    }
    return now;
  }

  void Listen() {
    listening_ = true;
    changes_.clear();
    readings_ = 0;
  }
  /// What it said since Listen, once for each moment.
  std::vector<Change> Heard() {
    listening_ = false;
    return std::move(changes_);
  }
  Clock& Inner() const { return inner_; }

 private:
  Clock& inner_;
  bool listening_ = false;
  int readings_ = 0;
  std::vector<Change> changes_;
};

}  // namespace orvendal
