#pragma once

#include "platform/base/clock.h"

namespace orvendal {

/// The machine's clock, in its local time.
class SystemClock final : public Clock {
 public:
  Date Now() override;
};

}  // namespace orvendal
