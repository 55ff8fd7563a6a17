#pragma once

#include <string>

#include "adapters/sqlite/sqlite_store.h"
#include "host/words.h"

namespace orvendal {

/// Why the screen cannot work on this store, in words; empty if it can. The store needs the tables of the
/// sample schema with all their fields (docs/store.md), declared as the kinds that they hold, and those that
/// are written wide enough; more fields and tables are no matter. A table that is written may have nothing
/// that can stop a save after its delete (OwnRuleOf), and the version may be neither above kSchemaVersion nor
/// below 0. One that somebody else filled, without a version, serves as well if all is there. Reads the
/// schema alone: nothing is written, no row is read and no view is run, only defaults that calculate are
/// worked out. `name` is the store as it is named to the user. Raises the store's error.
std::string WhyUnfit(SqliteConnection& store, const std::string& name, const Words& words);

}  // namespace orvendal
