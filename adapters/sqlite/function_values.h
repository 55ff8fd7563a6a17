#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <string_view>

namespace orvendal::sqlite {

// Arguments and results of our own functions in statements.

inline bool IsNull(sqlite3_value* value) {
  return sqlite3_value_type(value) == SQLITE_NULL;
}

/// The value as text; borrowed until the value is read in another way.
inline std::string_view Text(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text == nullptr ? std::string_view()
                         : std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

/// The function's result; the engine copies it.
inline void Answer(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text64(context, text.data() == nullptr ? "" : text.data(), text.size(), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
}

}  // namespace orvendal::sqlite
