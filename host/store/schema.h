#pragma once

#include <string>

#include "adapters/sqlite/sqlite_store.h"

namespace orvendal {

/// Version of the tables, kept in the file as its `user_version`.
inline constexpr int kSchemaVersion = 1;

/// Makes the six tables that the screen works on, empty, in a store that has none of them. Everything in them
/// is built into SQLite, so that any tool can open and fill the file. Raises the store's error.
void CreateSchema(SqliteConnection& store);

/// The stand-in library's own table, and the statement that makes it: every statement that the screen told
/// the library, with the moment and the session.
inline constexpr const char* kJournalTable = "Diario";
std::string JournalDefinition();

}  // namespace orvendal
