#pragma once

#include <string>
#include <string_view>

#include "adapters/sqlite/dialect.h"
#include "platform/base/runtime_error.h"

struct sqlite3;

namespace orvendal::sqlite {

/// The connection's last failure as the provider of that dialect reports it.
RuntimeError StoreError(sqlite3* database, Dialect dialect);
/// The same number, with the engine's own words, for SQL that the host wrote itself.
RuntimeError NativeError(sqlite3* database, Dialect dialect);
/// Why the file cannot be opened, in plain words. `code` is the engine's extended result code.
RuntimeError OpenError(int code, const std::string& path);
RuntimeError FileVanished(const std::string& path);

RuntimeError SyntaxError(Dialect dialect, std::string_view near);
RuntimeError UnclosedText(Dialect dialect, std::string_view text);
RuntimeError UndefinedFunction(std::string_view name);
/// A date literal that is no date.
RuntimeError BadDate(Dialect dialect, std::string_view literal);
/// A text compared with a date, where the dialect does not convert it.
RuntimeError TypeMismatch();
/// A value that its column does not take, or a Null where none is allowed.
RuntimeError RefusedValue(Dialect dialect);

}  // namespace orvendal::sqlite
