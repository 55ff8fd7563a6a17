#include "host/windows/store/connection_string.h"

#include <algorithm>
#include <cstdint>

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr std::int32_t kBadConnectionString = -2147217805;  // 80040E73

[[noreturn]] void RaiseBadString() {
  throw RuntimeError(kBadConnectionString,
                     "The connection string is not a list of Name=Value with semicolons between.");
}

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// Takes what stands in quotes off the start of `rest`; a quote within is written twice.
std::string TakeQuoted(std::string_view& rest) {
  const char quote = rest.front();
  std::string value;
  for (std::size_t at = 1; at < rest.size(); ++at) {
    if (rest[at] == quote && (at + 1 == rest.size() || rest[at + 1] != quote)) {
      rest.remove_prefix(at + 1);
      return value;
    }
    if (rest[at] == quote) ++at;
    value.push_back(rest[at]);
  }
  RaiseBadString();
}

/// Takes what stands before the next semicolon, and the semicolon.
std::string_view TakePart(std::string_view& rest) {
  const std::string_view part = rest.substr(0, rest.find(';'));
  rest.remove_prefix(std::min(part.size() + 1, rest.size()));
  return WithoutBlanks(part);
}

std::string TakeValue(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
  const bool quoted = !rest.empty() && (rest.front() == '"' || rest.front() == '\'');
  if (!quoted) return std::string(TakePart(rest));
  std::string value = TakeQuoted(rest);
  if (!TakePart(rest).empty()) RaiseBadString();
  return value;
}

}  // namespace

ConnectionSettings ReadConnectionString(std::string_view text) {
  ConnectionSettings settings;
  std::string_view rest = text;
  for (;;) {
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t;"), rest.size()));
    if (rest.empty()) return settings;
    const std::size_t equals = rest.find('=');
    if (equals == std::string_view::npos || rest.substr(0, equals).find(';') != std::string_view::npos) {
      RaiseBadString();
    }
    const std::string_view name = WithoutBlanks(rest.substr(0, equals));
    if (name.empty()) RaiseBadString();
    rest.remove_prefix(equals + 1);
    std::string value = TakeValue(rest);
    if (EqualsIgnoringCase(name, "Provider")) settings.provider = std::move(value);
    if (EqualsIgnoringCase(name, "Data Source")) settings.data_source = std::move(value);
  }
}

}  // namespace orvendal
