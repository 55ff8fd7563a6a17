#pragma once

#include <memory>

#include "adapters/sqlite/sqlite_store.h"
#include "host/windows/store/connection_string.h"

namespace orvendal {

/// Opens the store that the settings name: a file that has to be there, UTF-8, relative to the current
/// folder. The provider's name, with or without its version, chooses the dialect. Texts given to typed
/// columns are read as the user's region writes them at this moment. Raises 3706 for another provider,
/// -2147467259 in plain words for a file that is missing, locked, damaged or no store.
std::shared_ptr<SqliteConnection> OpenStore(const ConnectionSettings& settings);

}  // namespace orvendal
