#pragma once

#include "adapters/sqlite/sqlite_store.h"

namespace orvendal {

/// Version of the tables, kept in the file as its `user_version`.
inline constexpr int kSchemaVersion = 1;

/// Makes the six tables that the screen works on, empty, in a store that has none of them. Everything in them
/// is built into SQLite, so that any tool can open and fill the file. Raises the store's error.
void CreateSchema(SqliteConnection& store);

}  // namespace orvendal
