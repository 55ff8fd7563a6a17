#include "platform/base/region.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// `number` is not negative.
void AppendPadded(std::string& text, int number, int width) {
  std::array<char, 12> digits;
  const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  const auto length = static_cast<int>(end - digits.data());
  if (length < width) text.append(static_cast<std::size_t>(width - length), '0');
  text.append(digits.data(), static_cast<std::size_t>(length));
}

struct Numeral {
  int value = 0;
  std::size_t digits = 0;
};

// Reads "10:30", "10:30:05", "9:05:00 AM"; nothing if the text is no time.
std::optional<std::int32_t> ParseTime(std::string_view text) {
  std::array<int, 3> parts{};
  std::size_t count = 0;
  std::size_t at = 0;
  while (count < 3) {
    std::size_t digits = 0;
    int value = 0;
    while (at < text.size() && IsDigit(text[at]) && digits < 2) {
      value = value * 10 + (text[at++] - '0');
      ++digits;
    }
    if (digits == 0) return std::nullopt;
    parts[count++] = value;
    if (at >= text.size() || text[at] != ':') break;
    ++at;
  }
  if (count < 2) return std::nullopt;
  const std::string suffix = ToLower(Trim(text.substr(at)));
  int hour = parts[0];
  if (suffix == "am" || suffix == "pm") {
    if (hour < 1 || hour > 12) return std::nullopt;
    hour = hour % 12 + (suffix == "pm" ? 12 : 0);
  } else if (!suffix.empty()) {
    return std::nullopt;
  }
  if (hour > 23 || parts[1] > 59 || parts[2] > 59) return std::nullopt;
  return hour * 3600 + parts[1] * 60 + parts[2];
}

int FullYear(const Numeral& year) {
  if (year.digits > 2) return year.value;
  return year.value <= 29 ? 2000 + year.value : 1900 + year.value;
}

std::optional<Date> DateOf(const Numeral& year, const Numeral& month, const Numeral& day,
                           std::int32_t seconds) {
  const int full_year = FullYear(year);
  if (!Date::IsValid(full_year, month.value, day.value)) return std::nullopt;
  return Date::FromDayNumber(Date(full_year, month.value, day.value).DayNumber(), seconds);
}

using DateParts = std::array<Numeral, 3>;

// Reads "16/11/2026" into its three numbers; where they end, or nothing if the text does not begin so.
std::optional<std::size_t> ReadDateParts(std::string_view text, char own_separator, DateParts& parts) {
  std::size_t at = 0;
  for (Numeral& part : parts) {
    if (&part != parts.data()) {
      const char separator = at < text.size() ? text[at] : '\0';
      if (separator != '/' && separator != '-' && separator != '.' && separator != own_separator) {
        return std::nullopt;
      }
      ++at;
    }
    while (at < text.size() && IsDigit(text[at]) && part.digits < 4) {
      part.value = part.value * 10 + (text[at++] - '0');
      ++part.digits;
    }
    if (part.digits == 0) return std::nullopt;
  }
  return at;
}

// The order first that the region writes, else the one that makes a date of it.
std::optional<Date> DateOf(const DateParts& parts, DateOrder order, std::int32_t seconds) {
  if (parts[0].digits > 2) return DateOf(parts[0], parts[1], parts[2], seconds);
  if (parts[1].digits > 2) return std::nullopt;
  if (order == DateOrder::kYearMonthDay && parts[2].digits <= 2) {
    return DateOf(parts[0], parts[1], parts[2], seconds);
  }
  const std::optional<Date> day_first = DateOf(parts[2], parts[1], parts[0], seconds);
  const std::optional<Date> month_first = DateOf(parts[2], parts[0], parts[1], seconds);
  if (order == DateOrder::kDayMonthYear) return day_first ? day_first : month_first;
  return month_first ? month_first : day_first;
}

}  // namespace

Region Region::MakeSpanish() {
  Region region;
  region.name_ = "es-ES";
  region.month_names_ = {"enero", "febrero", "marzo",      "abril",   "mayo",      "junio",
                         "julio", "agosto",  "septiembre", "octubre", "noviembre", "diciembre"};
  region.weekday_letters_ = {"lu", "ma", "mi", "ju", "vi", "sá", "do"};
  region.today_word_ = "Hoy";
  return region;
}

Region Region::MakeCatalan() {
  Region region;
  region.name_ = "ca-ES";
  region.month_names_ = {"gener",  "febrer", "març",     "abril",   "maig",     "juny",
                         "juliol", "agost",  "setembre", "octubre", "novembre", "desembre"};
  region.weekday_letters_ = {"dl", "dt", "dc", "dj", "dv", "ds", "dg"};
  region.today_word_ = "Avui";
  return region;
}

Region Region::MakeEnglish() {
  Region region;
  region.name_ = "en-US";
  region.decimal_mark_ = '.';
  region.date_order_ = DateOrder::kMonthDayYear;
  region.padded_day_and_month_ = false;
  region.twelve_hour_clock_ = true;
  region.first_weekday_ = 6;
  region.month_names_ = {"January", "February", "March",     "April",   "May",      "June",
                         "July",    "August",   "September", "October", "November", "December"};
  region.weekday_letters_ = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
  region.today_word_ = "Today";
  return region;
}

Region Region::FromSystem(const RegionSettings& settings) {
  Region region;
  region.name_ = settings.name;
  region.decimal_mark_ = settings.decimal_mark;
  region.date_separator_ = settings.date_separator;
  region.date_order_ = settings.date_order;
  region.padded_day_and_month_ = settings.padded_day_and_month;
  region.twelve_hour_clock_ = settings.twelve_hour_clock;
  region.first_weekday_ = settings.first_weekday;
  region.month_names_ = settings.month_names;
  region.weekday_letters_ = settings.weekday_letters;
  region.today_word_ = settings.today_word;
  return region;
}

const Region& Region::Spanish() {
  static const Region region = MakeSpanish();
  return region;
}

const Region& Region::Catalan() {
  static const Region region = MakeCatalan();
  return region;
}

const Region& Region::English() {
  static const Region region = MakeEnglish();
  return region;
}

const Region* Region::Find(std::string_view name) {
  for (const Region* region : {&Spanish(), &Catalan(), &English()}) {
    if (name == region->name_ || name == region->name_.substr(0, 2)) return region;
  }
  return nullptr;
}

std::string Region::ToText(const Value& value) const {
  if (value.IsNull()) throw RuntimeError(error_number::kInvalidUseOfNull);
  if (value.IsText()) return value.Text();
  if (value.IsDate()) return ToText(value.AsDate());
  return ToText(value.Number());
}

std::string Region::ToText(Value&& value) const {
  return value.IsText() ? std::move(value).TakeText() : ToText(std::as_const(value));
}

std::string Region::ToText(double number) const {
  if (number == 0.0) return "0";
  if (!std::isfinite(number)) throw RuntimeError(error_number::kOverflow);
  // Whole numbers, as nearly all are.
  constexpr double kMostWhole = 1e15;
  if (std::fabs(number) < kMostWhole && number == std::trunc(number)) {
    std::array<char, 24> digits;
    const std::to_chars_result written =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::int64_t>(number));
    return {digits.data(), written.ptr};
  }
  // Fifteen significant digits decide; the E-form begins at 1E+15 and below 1E-4 where it is the shorter one.
  std::array<char, 40> scientific;
  const std::to_chars_result written = std::to_chars(scientific.data(), scientific.data() + scientific.size(),
                                                     number, std::chars_format::scientific, 14);
  std::string mantissa(scientific.data(), written.ptr);
  const std::size_t e = mantissa.find('e');
  const int exponent = std::stoi(mantissa.substr(e + 1));
  mantissa.resize(e);
  const bool negative = mantissa[0] == '-';
  std::string digits;
  for (const char c : mantissa) {
    if (IsDigit(c)) digits.push_back(c);
  }
  digits.erase(digits.find_last_not_of('0') + 1);
  const int length = static_cast<int>(digits.size());

  std::string text;
  if (exponent >= 15 || (exponent < 0 && length - exponent > 15)) {
    text = digits.substr(0, 1);
    if (length > 1) text += decimal_mark_ + digits.substr(1);
    text += exponent < 0 ? "E-" : "E+";
    AppendPadded(text, std::abs(exponent), 2);
  } else if (exponent < 0) {
    text =
        std::string("0") + decimal_mark_ + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  } else if (length <= exponent + 1) {
    text = digits + std::string(static_cast<std::size_t>(exponent + 1 - length), '0');
  } else {
    text = digits.substr(0, static_cast<std::size_t>(exponent) + 1) + decimal_mark_ +
           digits.substr(static_cast<std::size_t>(exponent) + 1);
  }
  return negative ? "-" + text : text;
}

std::string Region::TimeText(Date date) const {
  if (!twelve_hour_clock_) return Format(date, "h:nn:ss");
  const int hour = date.Hour() % 12 == 0 ? 12 : date.Hour() % 12;
  return std::to_string(hour) + Format(date, ":nn:ss") + (date.Hour() < 12 ? " AM" : " PM");
}

std::string Region::ToText(Date date) const {
  const bool has_time = date.SecondOfDay() != 0;
  if (date.DayNumber() == 0 && has_time) return TimeText(date);
  std::string text;
  switch (date_order_) {
    case DateOrder::kDayMonthYear:
      text = Format(date, padded_day_and_month_ ? "dd/mm/yyyy" : "d/m/yyyy");
      break;
    case DateOrder::kMonthDayYear:
      text = Format(date, padded_day_and_month_ ? "mm/dd/yyyy" : "m/d/yyyy");
      break;
    case DateOrder::kYearMonthDay:
      text = Format(date, padded_day_and_month_ ? "yyyy/mm/dd" : "yyyy/m/d");
      break;
  }
  return has_time ? text + " " + TimeText(date) : text;
}

std::optional<double> Region::ParseNumber(std::string_view text) const {
  // A few digits alone, as nearly all quantities are.
  constexpr std::size_t kFewDigits = 9;
  if (!text.empty() && text.size() <= kFewDigits && std::all_of(text.begin(), text.end(), IsDigit)) {
    int number = 0;
    for (const char c : text) number = number * 10 + (c - '0');
    return number;
  }
  const std::string trimmed = Trim(text);
  std::size_t at = 0;
  std::string plain;
  if (at < trimmed.size() && (trimmed[at] == '+' || trimmed[at] == '-')) {
    if (trimmed[at] == '-') plain.push_back('-');
    ++at;
  }
  bool has_digits = false;
  bool has_mark = false;
  for (; at < trimmed.size(); ++at) {
    if (IsDigit(trimmed[at])) {
      has_digits = true;
      plain.push_back(trimmed[at]);
    } else if (trimmed[at] == decimal_mark_ && !has_mark) {
      has_mark = true;
      plain.push_back('.');
    } else {
      break;
    }
  }
  if (!has_digits) return std::nullopt;
  if (at < trimmed.size() && (trimmed[at] == 'E' || trimmed[at] == 'e')) {
    std::string exponent = "E";
    if (++at < trimmed.size() && (trimmed[at] == '+' || trimmed[at] == '-'))
      exponent.push_back(trimmed[at++]);
    const std::size_t sign_length = exponent.size();
    while (at < trimmed.size() && IsDigit(trimmed[at])) exponent.push_back(trimmed[at++]);
    if (exponent.size() == sign_length || exponent.size() > 5) return std::nullopt;
    plain += exponent;
  }
  if (at != trimmed.size()) return std::nullopt;
  double number = 0;
  const std::from_chars_result read = std::from_chars(plain.data(), plain.data() + plain.size(), number);
  if (read.ec != std::errc() || !std::isfinite(number)) return std::nullopt;
  return number;
}

std::optional<Date> Region::ParseDate(std::string_view text) const {
  const std::string trimmed = Trim(text);
  if (const std::optional<std::int32_t> time = ParseTime(trimmed)) return Date::FromDayNumber(0, *time);
  DateParts parts;
  const std::optional<std::size_t> end = ReadDateParts(trimmed, date_separator_, parts);
  if (!end) return std::nullopt;
  if (*end == trimmed.size()) return DateOf(parts, date_order_, 0);
  if (trimmed[*end] != ' ' && trimmed[*end] != 'T') return std::nullopt;
  const std::optional<std::int32_t> time = ParseTime(Trim(std::string_view(trimmed).substr(*end + 1)));
  return time ? DateOf(parts, date_order_, *time) : std::nullopt;
}

std::int32_t RoundToLong(double number) {
  const double floor = std::floor(number);
  const double fraction = number - floor;
  double rounded = floor;
  if (fraction > 0.5 || (fraction == 0.5 && std::fmod(floor, 2.0) != 0.0)) rounded += 1.0;
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) {
    throw RuntimeError(error_number::kOverflow);
  }
  return static_cast<std::int32_t>(rounded);
}

std::int32_t Region::ToLong(const Value& value) const {
  if (value.IsNull()) throw RuntimeError(error_number::kInvalidUseOfNull);
  if (value.IsNumber()) return RoundToLong(value.Number());
  if (value.IsDate()) return RoundToLong(value.AsDate().Serial());
  const std::optional<double> number = ParseNumber(value.Text());
  if (!number) throw RuntimeError(error_number::kTypeMismatch);
  return RoundToLong(*number);
}

Date Region::ToDate(const Value& value) const {
  if (value.IsNull()) throw RuntimeError(error_number::kInvalidUseOfNull);
  if (value.IsDate()) return value.AsDate();
  if (value.IsNumber()) return Date::FromSerial(value.Number());
  if (const std::optional<Date> date = ParseDate(value.Text())) return *date;
  if (const std::optional<double> number = ParseNumber(value.Text())) return Date::FromSerial(*number);
  throw RuntimeError(error_number::kTypeMismatch);
}

std::string Region::Format(Date date, std::string_view mask) const {
  std::string text;
  for (std::size_t at = 0; at < mask.size();) {
    const char letter = mask[at];
    std::size_t run = 1;
    while (at + run < mask.size() && mask[at + run] == letter) ++run;
    const int width = run >= 2 ? 2 : 1;
    switch (letter) {
      case 'd':
        AppendPadded(text, date.Day(), width);
        break;
      case 'm':
        AppendPadded(text, date.Month(), width);
        break;
      case 'y':
        run > 2 ? AppendPadded(text, date.Year(), 4) : AppendPadded(text, date.Year() % 100, 2);
        break;
      case 'h':
        AppendPadded(text, date.Hour(), width);
        break;
      case 'n':
        AppendPadded(text, date.Minute(), width);
        break;
      case 's':
        AppendPadded(text, date.Second(), width);
        break;
      case '/':
        text.append(run, date_separator_);
        break;
      default:
        text.append(run, letter);
    }
    at += run;
  }
  return text;
}

std::string Region::Format(std::string_view text, std::string_view mask) const {
  if (const std::optional<Date> date = ParseDate(text)) return Format(*date, mask);
  if (const std::optional<double> number = ParseNumber(text)) {
    try {
      return Format(Date::FromSerial(*number), mask);
    } catch (const RuntimeError&) {
      return std::string(text);  // a number outside the calendar reads as no date either
    }
  }
  return std::string(text);
}

}  // namespace orvendal
