#pragma once

#include <string>

#include "adapters/sqlite/sqlite_store.h"
#include "host/words.h"

namespace orvendal {

/// Why the screen cannot work on this store, in words; empty if it can. The store needs the tables of the
/// sample schema with all their fields (docs/store.md), more fields and tables are no matter; its dates have
/// to be declared as dates, no further field of a table that is written may demand a value, and its version
/// may not be above kSchemaVersion. One that somebody else filled, without a version, serves as well if all
/// is there. Reads the schema alone: nothing is written, no row is read and no view is run. `name` is the
/// store as it is named to the user. Raises the store's error.
std::string WhyUnfit(SqliteConnection& store, const std::string& name, const Words& words);

}  // namespace orvendal
