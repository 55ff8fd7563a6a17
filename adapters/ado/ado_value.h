#pragma once

#include "adapters/automation/com_headers.h"
#include "platform/base/value.h"

namespace orvendal {

/// What a field holds, as a value of the core. A number that 15 digits do not hold comes as its text in the
/// locale `lcid`; a flag is the number -1 or 0, an empty value the empty text. Raises 13 for what is no value
/// of a field: objects, arrays, error codes; 5 for a date outside the calendar.
Value ValueOf(const VARIANT& value, LCID lcid);

/// Writes `value` into an empty VARIANT that the caller owns, in the type that it has: what a column of
/// another type makes of it is the provider's to say.
void WriteValue(VARIANT& variant, const Value& value);

}  // namespace orvendal
