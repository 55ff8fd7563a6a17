#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/date.h"

namespace orvendal::sqlite {

/// Milliseconds since midnight of day 0. The store's own measure of dates, finer than Date because other
/// programs may leave fractions of a second in the file.
using Moment = std::int64_t;

Moment MomentOf(Date date);
/// The second in which the moment lies; nothing outside the calendar.
std::optional<Date> DateOf(Moment moment);

/// A date column's text as it stands in the file: yyyy-mm-dd, with or without a time (after a blank or a T),
/// with or without seconds and their fraction.
std::optional<Moment> ParseStoredDate(std::string_view text);
/// How dates are written to the file: yyyy-mm-dd hh:mm:ss.
std::string StoredDate(Date date);
/// The lowest text that a date column can hold on the day of `moment`: yyyy-mm-dd.
std::string FirstTextOfDay(Moment moment);
/// A text above every one of the day of `moment` and not above any of a later day.
std::string FirstTextAfterDay(Moment moment);

/// A text in the year-month-day style of CONVERT: separators ".", "-" or "/", a time if wanted; a time alone
/// lies on 1 January 1900.
std::optional<Moment> ParseYearMonthDay(std::string_view text);

}  // namespace orvendal::sqlite
