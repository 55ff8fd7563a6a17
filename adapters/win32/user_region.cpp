#include "adapters/win32/user_region.h"

#include <algorithm>

#include "adapters/win32/windows_api.h"

namespace orvendal {
namespace {

constexpr char kDefaultSeparator = '/';

std::wstring Setting(LCTYPE type) {
  const int length = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, nullptr, 0);
  if (length <= 0) return {};
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text.data(), length);
  text.pop_back();  // the closing zero
  return text;
}

// The first sign of a setting, if it is one that texts of the engine can bear.
char SignOf(const std::wstring& setting, char otherwise) {
  for (const wchar_t unit : setting) {
    if (unit > L' ' && unit < 0x7F) return static_cast<char>(unit);
  }
  return otherwise;
}

DateOrder OrderOf(const std::wstring& short_date) {
  const std::size_t day = short_date.find(L'd');
  const std::size_t month = short_date.find(L'M');
  const std::size_t year = short_date.find(L'y');
  if (year < day && year < month) return DateOrder::kYearMonthDay;
  return month < day ? DateOrder::kMonthDayYear : DateOrder::kDayMonthYear;
}

// A word that the system does not keep: today, in a language that we have.
std::string TodayWord(const std::string& locale) {
  const Region* known = Region::Find(locale.substr(0, 2));
  return (known != nullptr ? *known : Region::English()).TodayWord();
}

}  // namespace

Region UserRegionOfSystem() {
  RegionSettings settings;
  settings.name = Utf8(Setting(LOCALE_SNAME));
  settings.decimal_mark = SignOf(Setting(LOCALE_SDECIMAL), '.');
  settings.date_separator = SignOf(Setting(LOCALE_SDATE), kDefaultSeparator);
  const std::wstring short_date = Setting(LOCALE_SSHORTDATE);
  settings.date_order = OrderOf(short_date);
  settings.padded_day_and_month = short_date.find(L"dd") != std::wstring::npos;
  settings.twelve_hour_clock = Setting(LOCALE_STIMEFORMAT).find(L'h') != std::wstring::npos;
  const std::wstring first_weekday = Setting(LOCALE_IFIRSTDAYOFWEEK);
  settings.first_weekday = first_weekday.empty() ? 0 : std::clamp(first_weekday[0] - L'0', 0, 6);
  for (LCTYPE month = 0; month < settings.month_names.size(); ++month) {
    settings.month_names[month] = Utf8(Setting(LOCALE_SMONTHNAME1 + month));
  }
  for (LCTYPE weekday = 0; weekday < settings.weekday_letters.size(); ++weekday) {
    settings.weekday_letters[weekday] = Utf8(Setting(LOCALE_SSHORTESTDAYNAME1 + weekday));
  }
  settings.today_word = TodayWord(settings.name);
  return Region::FromSystem(settings);
}

Date LocalClock::Now() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

}  // namespace orvendal
