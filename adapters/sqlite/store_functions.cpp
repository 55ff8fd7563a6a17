#include "adapters/sqlite/store_functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/sqlite/bounded_functions.h"
#include "adapters/sqlite/function_values.h"
#include "adapters/sqlite/stored_date.h"
#include "adapters/sqlite/text_folding.h"
#include "adapters/sqlite/text_pattern.h"

namespace orvendal::sqlite {
namespace {

// Whether `text` matches the pattern in the second argument, which is parsed once for each run of a
// statement.
void AnswerMatch(sqlite3_context* context, sqlite3_value** arguments, std::string_view text) {
  const std::size_t pattern_size = Text(arguments[1]).size();
  // A set of characters may be longer than the text.
  if (TakesTooLong(std::max(text.size(), pattern_size), std::min(text.size(), pattern_size))) {
    return sqlite3_result_error_toobig(context);
  }
  const auto* pattern = static_cast<const TextPattern*>(sqlite3_get_auxdata(context, 1));
  std::unique_ptr<TextPattern> parsed;
  if (pattern == nullptr) {
    parsed = std::make_unique<TextPattern>(Text(arguments[1]));
    pattern = parsed.get();
  }
  sqlite3_result_int(context, pattern->Matches(text) ? 1 : 0);
  if (!parsed) return;
  sqlite3_set_auxdata(context, 1, parsed.release(), [](void* old) { delete static_cast<TextPattern*>(old); });
}

std::optional<Date> DateIn(sqlite3_value* value) {
  const std::optional<Moment> moment = ParseStoredDate(Text(value));
  return moment ? DateOf(*moment) : std::nullopt;
}

void TextEqualsFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return;
  sqlite3_result_int(context, TextEquals(Text(arguments[0]), Text(arguments[1])) ? 1 : 0);
}

void TextLikeFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return;
  AnswerMatch(context, arguments, Text(arguments[0]));
}

// Codes are, nearly always: then the range begins with the text itself.
bool IsPlain(std::string_view text) {
  return !text.ends_with(' ') &&
         std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80U; });
}

void RangeLowFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0])) return;
  const std::string_view text = Text(arguments[0]);
  if (IsPlain(text)) return Answer(context, text);
  Answer(context, RangeOfEqualTexts(text).low);
}

void RangeHighFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0])) return;
  const std::string_view text = Text(arguments[0]);
  std::array<char, 32> room;
  if (IsPlain(text) && text.size() < room.size()) {
    std::copy(text.begin(), text.end(), room.begin());
    room[text.size()] = kAfterBlank;
    return Answer(context, {room.data(), text.size() + 1});
  }
  const std::string high = RangeOfEqualTexts(text).high;
  // Bytes that are no text stand above every text.
  if (high.empty()) return sqlite3_result_zeroblob(context, 0);
  Answer(context, high);
}

void SortKeyFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (!IsNull(arguments[0])) Answer(context, SortKey(Text(arguments[0])));
}

// The moment read last: the rows of a day have the same text.
struct LastMoment {
  std::string text;
  std::optional<Moment> moment;
};

void MomentFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0])) return;
  auto& last = *static_cast<LastMoment*>(sqlite3_user_data(context));
  const std::string_view text = Text(arguments[0]);
  if (text != last.text) {
    last.moment = ParseStoredDate(text);
    last.text = text;
  }
  if (last.moment) sqlite3_result_int64(context, *last.moment);
}

void RegionDateLikeFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return;
  const auto* region = static_cast<const Region*>(sqlite3_user_data(context));
  const std::optional<Date> date = DateIn(arguments[0]);
  const std::string text = date ? region->ToText(*date) : std::string(Text(arguments[0]));
  AnswerMatch(context, arguments, text);
}

// How the server writes a date where it needs a text and is told no style: "Nov 16 2026 12:00AM".
std::string ServerText(Date date) {
  static constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  char text[40];
  std::snprintf(text, sizeof text, "%s %2d %4d %2d:%02d%s", kMonths[date.Month() - 1], date.Day(),
                date.Year(), date.Hour() % 12 == 0 ? 12 : date.Hour() % 12, date.Minute(),
                date.Hour() < 12 ? "AM" : "PM");
  return text;
}

void ServerDateLikeFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return;
  const std::optional<Date> date = DateIn(arguments[0]);
  const std::string text = date ? ServerText(*date) : std::string(Text(arguments[0]));
  AnswerMatch(context, arguments, text);
}

}  // namespace

void RegisterFunctions(sqlite3* database, const Region& region) {
  // Only direct: no view, trigger or index of a file may come to depend on them.
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
  const auto give = [database, &region](const char* name, int arguments,
                                        void (*call)(sqlite3_context*, int, sqlite3_value**)) {
    sqlite3_create_function_v2(database, name, arguments, kFlags, const_cast<Region*>(&region), call, nullptr,
                               nullptr, nullptr);
  };
  RegisterBoundedFunctions(database);
  sqlite3_create_function_v2(database, function::kMoment, 1, kFlags, new LastMoment, MomentFunction, nullptr,
                             nullptr, [](void* last) { delete static_cast<LastMoment*>(last); });
  give(function::kTextEquals, 2, TextEqualsFunction);
  give(function::kTextLike, 2, TextLikeFunction);
  give(function::kRangeLow, 1, RangeLowFunction);
  give(function::kRangeHigh, 1, RangeHighFunction);
  give(function::kSortKey, 1, SortKeyFunction);
  give(function::kRegionDateLike, 2, RegionDateLikeFunction);
  give(function::kServerDateLike, 2, ServerDateLikeFunction);
}

}  // namespace orvendal::sqlite
