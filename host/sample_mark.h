#pragma once

#include "platform/data/recordset.h"

namespace orvendal {

/// Whether the store says of itself that it is the sample chain (see kSampleMark), whatever provider is
/// behind the connection. False for one that does not answer.
bool SaysItIsMadeUp(RecordsetFactory& recordsets, const ConnectionRef& connection);

}  // namespace orvendal
