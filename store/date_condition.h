#pragma once

#include <string>

#include "platform/base/date.h"
#include "platform/base/region.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// Whether the store speaks the dialect of SQL Server. The provider's name is compared exactly, version
/// included, so that every other provider is taken for one with the date literals of Jet. Raises error 91
/// without a connection.
bool SpeaksSqlServer(const ConnectionRef& connection);

/// The condition that a load puts on the date field, beginning with its operator: the whole day to its last
/// second.
std::string DateConditionOfLoad(const ConnectionRef& connection, Date day, const Region& region);

/// The condition that a save puts on the date field. Other than a load it starts from the text of the day as
/// the screen shows it, and on a provider other than SQL Server's compares by that text as a prefix.
std::string DateConditionOfSave(const ConnectionRef& connection, const std::string& day_text,
                                const Region& region);

}  // namespace orvendal
