#include "platform/base/date.h"

#include <chrono>
#include <cmath>

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

namespace chrono = std::chrono;

constexpr chrono::sys_days kDayZero = chrono::year{1899} / chrono::December / 30;
constexpr std::int32_t kSecondsPerDay = 86400;
constexpr std::int32_t kFirstDay = (chrono::sys_days{chrono::year{100} / 1 / 1} - kDayZero).count();
constexpr std::int32_t kLastDay = (chrono::sys_days{chrono::year{9999} / 12 / 31} - kDayZero).count();

chrono::year_month_day Calendar(std::int32_t day_number) {
  return chrono::year_month_day{kDayZero + chrono::days{day_number}};
}

}  // namespace

Date::Date(int year, int month, int day, int hour, int minute, int second) {
  const bool valid_time = hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
  if (!IsValid(year, month, day) || !valid_time) throw RuntimeError(error_number::kInvalidProcedureCall);
  const chrono::sys_days days = chrono::year{year} / chrono::month{static_cast<unsigned>(month)} /
                                chrono::day{static_cast<unsigned>(day)};
  day_number_ = (days - kDayZero).count();
  second_of_day_ = hour * 3600 + minute * 60 + second;
}

Date Date::FromSerial(double serial) {
  if (!(serial > kFirstDay - 1.0 && serial < kLastDay + 1.0)) {
    throw RuntimeError(error_number::kInvalidProcedureCall);
  }
  const double whole = std::trunc(serial);
  auto day_number = static_cast<std::int32_t>(whole);
  auto seconds = static_cast<std::int32_t>(std::lround(std::fabs(serial - whole) * kSecondsPerDay));
  if (seconds == kSecondsPerDay) {
    ++day_number;
    seconds = 0;
  }
  return FromDayNumber(day_number, seconds);
}

Date Date::FromDayNumber(std::int32_t day_number, std::int32_t second_of_day) {
  if (day_number < kFirstDay || day_number > kLastDay || second_of_day < 0 ||
      second_of_day >= kSecondsPerDay) {
    throw RuntimeError(error_number::kInvalidProcedureCall);
  }
  Date date;
  date.day_number_ = day_number;
  date.second_of_day_ = second_of_day;
  return date;
}

bool Date::IsValid(int year, int month, int day) {
  return year >= 100 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
         day <= DaysInMonth(year, month);
}

int Date::DaysInMonth(int year, int month) {
  const auto last = chrono::year{year} / chrono::month{static_cast<unsigned>(month)} / chrono::last;
  return static_cast<int>(static_cast<unsigned>(chrono::year_month_day_last{last}.day()));
}

int Date::Year() const {
  return static_cast<int>(Calendar(day_number_).year());
}
int Date::Month() const {
  return static_cast<int>(static_cast<unsigned>(Calendar(day_number_).month()));
}
int Date::Day() const {
  return static_cast<int>(static_cast<unsigned>(Calendar(day_number_).day()));
}

int Date::Weekday() const {
  const chrono::weekday weekday{kDayZero + chrono::days{day_number_}};
  return static_cast<int>(weekday.iso_encoding()) - 1;
}

double Date::Serial() const {
  const double fraction = static_cast<double>(second_of_day_) / kSecondsPerDay;
  return day_number_ < 0 ? day_number_ - fraction : day_number_ + fraction;
}

}  // namespace orvendal
