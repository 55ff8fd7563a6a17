#include "adapters/sqlite/stored_date.h"

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"

namespace orvendal::sqlite {
namespace {

constexpr Moment kMillisecondsPerDay = 86'400'000;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Reads a text from left to right; every step that fails leaves the reader failed.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  int Number(std::size_t least, std::size_t most) {
    int value = 0;
    std::size_t digits = 0;
    while (digits < most && at_ < text_.size() && IsDigit(text_[at_])) {
      value = value * 10 + (text_[at_++] - '0');
      ++digits;
    }
    if (digits < least) failed_ = true;
    return value;
  }
  // Takes the next character if it is one of `wanted`, and gives it; otherwise gives 0.
  char Take(std::string_view wanted) {
    if (at_ >= text_.size() || wanted.find(text_[at_]) == std::string_view::npos) return 0;
    return text_[at_++];
  }
  void Fail() { failed_ = true; }
  bool AtEnd() const { return at_ == text_.size(); }
  bool Failed() const { return failed_; }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  bool failed_ = false;
};

Moment ReadTime(Reader& reader) {
  const int hour = reader.Number(1, 2);
  if (reader.Take(":") == 0) reader.Fail();
  const int minute = reader.Number(1, 2);
  int second = 0;
  int milliseconds = 0;
  if (reader.Take(":") != 0) {
    second = reader.Number(1, 2);
    if (reader.Take(".,") != 0) {
      for (int scale = 100; !reader.AtEnd(); scale /= 10) {
        milliseconds += reader.Number(1, 1) * scale;
        if (reader.Failed()) break;
      }
    }
  }
  if (hour > 23 || minute > 59 || second > 59) reader.Fail();
  return ((hour * 60 + minute) * 60 + second) * Moment{1000} + milliseconds;
}

std::optional<Moment> ReadDateAndTime(std::string_view text, std::string_view separators) {
  Reader reader(text);
  const int year = reader.Number(4, 4);
  const char separator = reader.Take(separators);
  const int month = reader.Number(1, 2);
  if (separator == 0 || reader.Take({&separator, 1}) == 0) reader.Fail();
  const int day = reader.Number(1, 2);
  if (reader.Failed() || !Date::IsValid(year, month, day)) return std::nullopt;
  Moment time = 0;
  if (!reader.AtEnd()) {
    if (reader.Take(" T") == 0) return std::nullopt;
    time = ReadTime(reader);
  }
  if (reader.Failed() || !reader.AtEnd()) return std::nullopt;
  return MomentOf(Date(year, month, day)) + time;
}

void AppendDigits(std::string& text, int number, int count) {
  if (count > 1) AppendDigits(text, number / 10, count - 1);
  text.push_back(static_cast<char>('0' + number % 10));
}

std::string DayText(Date date) {
  std::string text;
  AppendDigits(text, date.Year(), 4);
  text.push_back('-');
  AppendDigits(text, date.Month(), 2);
  text.push_back('-');
  AppendDigits(text, date.Day(), 2);
  return text;
}

std::int32_t DayNumberOf(Moment moment) {
  Moment day = moment / kMillisecondsPerDay;
  if (moment % kMillisecondsPerDay < 0) --day;
  return static_cast<std::int32_t>(day);
}

}  // namespace

Moment MomentOf(Date date) {
  return date.DayNumber() * kMillisecondsPerDay + date.SecondOfDay() * Moment{1000};
}

std::optional<Date> DateOf(Moment moment) {
  const std::int32_t day = DayNumberOf(moment);
  try {
    return Date::FromDayNumber(day, static_cast<std::int32_t>((moment - day * kMillisecondsPerDay) / 1000));
  } catch (const RuntimeError&) {
    return std::nullopt;  // the calendar ends before it
  }
}

std::optional<Moment> ParseStoredDate(std::string_view text) {
  return ReadDateAndTime(text, "-");
}

std::string StoredDate(Date date) {
  std::string text = DayText(date);
  text.push_back(' ');
  AppendDigits(text, date.Hour(), 2);
  text.push_back(':');
  AppendDigits(text, date.Minute(), 2);
  text.push_back(':');
  AppendDigits(text, date.Second(), 2);
  return text;
}

std::string FirstTextOfDay(Moment moment) {
  const std::optional<Date> date = DateOf(moment);
  return date ? DayText(*date) : std::string();
}

std::string FirstTextAfterDay(Moment moment) {
  const std::optional<Date> next = DateOf(moment + kMillisecondsPerDay);
  return next ? DayText(*next) : ":";  // the character after the digits: above the last day of all
}

std::optional<Moment> ParseYearMonthDay(std::string_view text) {
  const std::string trimmed = Trim(text);
  if (const std::optional<Moment> moment = ReadDateAndTime(trimmed, "-./")) return moment;
  Reader reader(trimmed);
  const Moment time = ReadTime(reader);
  if (reader.Failed() || !reader.AtEnd()) return std::nullopt;
  return MomentOf(Date(1900, 1, 1)) + time;
}

}  // namespace orvendal::sqlite
