#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/date.h"
#include "platform/base/value.h"

namespace orvendal {

enum class DateOrder { kDayMonthYear, kMonthDayYear, kYearMonthDay };

/// What a system tells of its user's region; see the members of Region of the same names. The mark and the
/// separator are ASCII.
struct RegionSettings {
  std::string name;
  char decimal_mark = ',';
  char date_separator = '/';
  DateOrder date_order = DateOrder::kDayMonthYear;
  bool padded_day_and_month = true;
  bool twelve_hour_clock = false;
  int first_weekday = 0;
  std::array<std::string, 12> month_names;
  std::array<std::string, 7> weekday_letters;
  std::string today_word;
};

/// How the user's system writes and reads numbers and dates. Immutable; the built-in ones live for ever.
class Region {
 public:
  static Region FromSystem(const RegionSettings& settings);
  static const Region& Spanish();  // es-ES
  static const Region& Catalan();  // ca-ES
  static const Region& English();  // en-US
  /// By name, such as "es-ES" or "en"; nullptr if there is none.
  static const Region* Find(std::string_view name);

  const std::string& Name() const { return name_; }
  char DecimalMark() const { return decimal_mark_; }
  /// 0 for Monday to 6 for Sunday.
  int FirstWeekday() const { return first_weekday_; }
  /// Month from 1; weekday from 0 for Monday.
  const std::string& MonthName(int month) const { return month_names_[static_cast<std::size_t>(month - 1)]; }
  const std::string& WeekdayLetter(int weekday) const {
    return weekday_letters_[static_cast<std::size_t>(weekday)];
  }
  const std::string& TodayWord() const { return today_word_; }

  /// A value as text: numbers with 15 digits at most and the decimal mark, dates in the short form with the
  /// time if it is not midnight. Null raises error 94, a number that is not finite error 6.
  std::string ToText(const Value& value) const;
  std::string ToText(Value&& value) const;
  std::string ToText(double number) const;
  std::string ToText(Date date) const;

  /// A text as a number, with this region's decimal mark and blanks around it allowed; nothing if it is none.
  std::optional<double> ParseNumber(std::string_view text) const;
  /// A text as a date: the region's order first, else the one order that makes a date of it; year-month-day
  /// with the year in four digits everywhere; two-digit years up to 29 belong to this century; a time may
  /// follow. Between the parts stand "/", "-", "." or the region's own separator.
  std::optional<Date> ParseDate(std::string_view text) const;

  /// A value as a whole number of 32 bits, halves to the even one. Raises 94 for Null, 13 for a text that is
  /// no number, 6 out of range.
  std::int32_t ToLong(const Value& value) const;
  /// A value as a date. Raises 94 for Null, 13 for a text that is no date, 5 for a number of days beyond the
  /// calendar.
  Date ToDate(const Value& value) const;

  /// A date by a mask of d, dd, m, mm, yyyy, hh, nn, ss; "/" prints the region's date separator, other
  /// characters stand for themselves.
  std::string Format(Date date, std::string_view mask) const;
  /// A text that reads as a date or as a number (a serial) by the mask; an empty or other text unchanged.
  std::string Format(std::string_view text, std::string_view mask) const;

 private:
  Region() = default;
  static Region MakeSpanish();
  static Region MakeCatalan();
  static Region MakeEnglish();
  std::string TimeText(Date date) const;

  std::string name_;
  char decimal_mark_ = ',';
  char date_separator_ = '/';
  DateOrder date_order_ = DateOrder::kDayMonthYear;
  bool padded_day_and_month_ = true;
  bool twelve_hour_clock_ = false;
  int first_weekday_ = 0;
  std::array<std::string, 12> month_names_;
  std::array<std::string, 7> weekday_letters_;
  std::string today_word_;
};

/// `number` as a whole number of 32 bits, halves to the even one. Raises error 6 out of range.
std::int32_t RoundToLong(double number);

}  // namespace orvendal
