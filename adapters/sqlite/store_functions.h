#pragma once

#include "platform/base/region.h"

struct sqlite3;

namespace orvendal::sqlite {

/// Names of the functions that rewritten statements call. They belong to a connection, not to the file: the
/// schema never uses them.
namespace function {
inline constexpr const char* kTextEquals = "orvendal_text_equals";  // (text, text)
inline constexpr const char* kTextLike = "orvendal_text_like";      // (value, pattern)
inline constexpr const char* kRangeLow = "orvendal_range_low";  // (text): where its equals begin in an index
inline constexpr const char* kRangeHigh = "orvendal_range_high";  // (text): above its equals
inline constexpr const char* kSortKey = "orvendal_sort_key";      // (text)
inline constexpr const char* kMoment = "orvendal_moment";         // (date column): milliseconds, or Null
inline constexpr const char* kRegionDateLike = "orvendal_region_date_like";  // (date column, pattern)
inline constexpr const char* kServerDateLike = "orvendal_server_date_like";  // (date column, pattern)
}  // namespace function

/// Gives the functions to a connection. `region` must live as long as the connection.
void RegisterFunctions(sqlite3* database, const Region& region);

}  // namespace orvendal::sqlite
