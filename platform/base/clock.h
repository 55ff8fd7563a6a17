#pragma once

#include "platform/base/date.h"

namespace orvendal {

/// The system's clock, in local time.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date Now() = 0;
  /// Today at midnight.
  Date Today() { return Now().DayOnly(); }
};

}  // namespace orvendal
