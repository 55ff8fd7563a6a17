#pragma once

#include "platform/base/clock.h"
#include "platform/base/region.h"

namespace orvendal {

/// How the user of this system writes numbers and dates, the user's own changes included, as it stands now.
Region UserRegionOfSystem();

/// The system's clock in its local time.
class LocalClock final : public Clock {
 public:
  Date Now() override;
};

}  // namespace orvendal
