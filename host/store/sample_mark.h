#pragma once

#include <string_view>

#include "platform/data/recordset.h"

namespace orvendal {

/// The table with one row that a store has which was made with the sample chain. It says so to whoever looks
/// into the file, too; who fills the store with a chain of their own drops it.
inline constexpr std::string_view kSampleMark = "CadenaDeMuestra";

/// Whether the store says of itself that it is the sample chain (see kSampleMark), whatever provider is
/// behind the connection. False for one that does not answer.
bool SaysItIsMadeUp(RecordsetFactory& recordsets, const ConnectionRef& connection);

}  // namespace orvendal
