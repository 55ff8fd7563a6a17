#pragma once

#include <compare>
#include <cstdint>

namespace orvendal {

/// A day and a second of that day. Day 0 is 30 December 1899; days before it are negative.
/// Invariant: 0 <= second of the day < 86400; the day lies in the years 100 to 9999.
class Date {
 public:
  Date() = default;
  /// Raises error 5 for a day that the calendar does not have or a time that the clock does not show.
  Date(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
  /// The moment `serial` days after midnight of day 0, to the nearest second. A negative serial counts
  /// its fraction forward from its whole day, as the platform's dates do. Raises error 5 out of range.
  static Date FromSerial(double serial);
  static Date FromDayNumber(std::int32_t day_number, std::int32_t second_of_day = 0);

  /// Whether the Gregorian calendar has this day, in the years 100 to 9999.
  static bool IsValid(int year, int month, int day);
  static int DaysInMonth(int year, int month);

  int Year() const;
  int Month() const;
  int Day() const;
  int Hour() const { return second_of_day_ / 3600; }
  int Minute() const { return second_of_day_ / 60 % 60; }
  int Second() const { return second_of_day_ % 60; }
  /// 0 for Monday to 6 for Sunday.
  int Weekday() const;

  std::int32_t DayNumber() const { return day_number_; }
  std::int32_t SecondOfDay() const { return second_of_day_; }
  double Serial() const;
  /// The same day at midnight.
  Date DayOnly() const { return FromDayNumber(day_number_); }

  auto operator<=>(const Date&) const = default;

 private:
  std::int32_t day_number_ = 0;
  std::int32_t second_of_day_ = 0;
};

}  // namespace orvendal
