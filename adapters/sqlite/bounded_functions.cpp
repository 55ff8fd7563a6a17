#include "adapters/sqlite/bounded_functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>

#include "adapters/sqlite/function_values.h"

namespace orvendal::sqlite {
namespace {

constexpr std::uint64_t kMostComparisons = 200'000'000;  // bytes with bytes, a second at worst

std::string_view Blob(sqlite3_value* value) {
  const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
  return bytes == nullptr ? std::string_view()
                          : std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

bool ContinuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

std::size_t CharacterEnd(std::string_view text, std::size_t at) {
  // What is no beginning of a longer character stands alone, as the engine has it.
  const bool is_long = static_cast<unsigned char>(text[at++]) >= 0xC0;
  while (is_long && at < text.size() && ContinuesCharacter(text[at])) ++at;
  return at;
}

// From 1, in characters, of blobs in bytes; 0 if it is not there.
void InStrFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return;
  const bool bytes =
      sqlite3_value_type(arguments[0]) == SQLITE_BLOB && sqlite3_value_type(arguments[1]) == SQLITE_BLOB;
  const std::string_view text = bytes ? Blob(arguments[0]) : Text(arguments[0]);
  const std::string_view needle = bytes ? Blob(arguments[1]) : Text(arguments[1]);
  if (TakesTooLong(text.size(), needle.size())) return sqlite3_result_error_toobig(context);
  std::size_t found = text.find(needle);
  // Never inside a character.
  while (!bytes && found != std::string_view::npos && found > 0 && found < text.size() &&
         ContinuesCharacter(text[found])) {
    found = text.find(needle, found + 1);
  }
  if (found == std::string_view::npos) return sqlite3_result_int(context, 0);
  std::int64_t place = 1;
  for (const char c : text.substr(0, found)) place += bytes || !ContinuesCharacter(c) ? 1 : 0;
  sqlite3_result_int64(context, place);
}

void ReplaceFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return;
  const std::string_view text = Text(arguments[0]);
  const std::string_view old = Text(arguments[1]);
  if (old.empty() || old.front() == '\0') return Answer(context, text);
  if (IsNull(arguments[2])) return;
  const std::string_view instead = Text(arguments[2]);
  if (TakesTooLong(text.size(), old.size())) return sqlite3_result_error_toobig(context);
  const auto most =
      static_cast<std::size_t>(sqlite3_limit(sqlite3_context_db_handle(context), SQLITE_LIMIT_LENGTH, -1));
  std::string replaced;
  std::size_t at = 0;
  for (std::size_t found = 0; (found = text.find(old, at)) != std::string_view::npos;
       at = found + old.size()) {
    replaced.append(text.substr(at, found - at)).append(instead);
    if (replaced.size() > most) return sqlite3_result_error_toobig(context);
  }
  Answer(context, replaced.append(text.substr(at)));
}

using Characters = std::unordered_set<std::string_view>;

// Up to a NUL, as the engine has it.
Characters CharactersOf(std::string_view text) {
  text = text.substr(0, text.find('\0'));
  Characters characters;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = CharacterEnd(text, at);
    characters.insert(text.substr(at, end - at));
    at = end;
  }
  return characters;
}

// The bytes of a character that is taken, where one stands at that end of the text; 0 if none does.
template <typename Part>
std::size_t TakenAt(std::string_view text, const Characters& taken, Part&& part) {
  constexpr std::size_t kLongestCharacter = 4;
  for (std::size_t size = 1; size <= std::min(kLongestCharacter, text.size()); ++size) {
    if (taken.contains(part(size))) return size;
  }
  return 0;
}

template <bool Left, bool Right>
void TrimFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (IsNull(arguments[0]) || IsNull(arguments[1])) return;
  std::string_view text = Text(arguments[0]);
  const Characters taken = CharactersOf(Text(arguments[1]));
  const auto first = [&text](std::size_t size) { return text.substr(0, size); };
  const auto last = [&text](std::size_t size) { return text.substr(text.size() - size); };
  if (Left) {
    while (const std::size_t size = TakenAt(text, taken, first)) text.remove_prefix(size);
  }
  if (Right) {
    while (const std::size_t size = TakenAt(text, taken, last)) text.remove_suffix(size);
  }
  Answer(context, text);
}

}  // namespace

bool TakesTooLong(std::size_t text, std::size_t needle) {
  return needle <= text && std::uint64_t{text} * needle > kMostComparisons;
}

void RegisterBoundedFunctions(sqlite3* database) {
  const auto give = [database](const char* name, int arguments,
                               void (*call)(sqlite3_context*, int, sqlite3_value**)) {
    constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_function_v2(database, name, arguments, kFlags, nullptr, call, nullptr, nullptr, nullptr);
  };
  give("instr", 2, InStrFunction);
  give("replace", 3, ReplaceFunction);
  give("trim", 2, TrimFunction<true, true>);
  give("ltrim", 2, TrimFunction<true, false>);
  give("rtrim", 2, TrimFunction<false, true>);
}

}  // namespace orvendal::sqlite
