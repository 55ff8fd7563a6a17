#pragma once

#include <string>

#include "platform/base/date.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// Adds an entry to the stand-in library's own table: a statement that the screen told it, with the moment
/// and the session. Makes the table first if need be. Raises the store's error.
void WriteJournal(RecordsetFactory& recordsets, const ConnectionRef& connection, Date moment,
                  const std::string& session, const std::string& statement);

}  // namespace orvendal
