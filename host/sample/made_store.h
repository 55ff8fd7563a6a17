#pragma once

#include <memory>

#include "host/store/host_store.h"
#include "platform/base/date.h"

namespace orvendal {

/// Opens the store. One that does not exist yet, or has no table at all, is made with the sample chain, whose
/// counts end at `today`. Raises StoreUnavailable as OpenOrMake does.
std::shared_ptr<SqliteConnection> OpenOrMakeStore(const StoreSettings& settings, Date today);

}  // namespace orvendal
