#pragma once

#include <string>

#include "adapters/sqlite/sqlite_store.h"
#include "platform/base/date.h"

namespace orvendal {

/// The stand-in library's own table, `Diario`: every statement that the screen told it, with the moment and
/// the session. Made if the store has none.
void CreateJournal(SqliteConnection& store);

/// Adds an entry, and makes the table first if need be. Raises the store's error.
void WriteJournal(SqliteConnection& store, Date moment, const std::string& session,
                  const std::string& statement);

}  // namespace orvendal
