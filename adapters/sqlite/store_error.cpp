#include "adapters/sqlite/store_error.h"

#include <sqlite3.h>

#include "platform/data/ado_error.h"

namespace orvendal::sqlite {
namespace {

constexpr const char* kNotAllowed = "The store does not allow this statement.";
constexpr const char* kTimeout = "Query timeout expired";

// The rest of `message` after `start`, if it begins so.
bool TakeAfter(std::string_view message, std::string_view start, std::string& rest) {
  if (message.substr(0, start.size()) != start) return false;
  rest = message.substr(start.size());
  return true;
}

// In quotes, with the full stop of the sentence that it ends.
std::string Quoted(std::string_view text) {
  std::string quoted("'");
  return quoted.append(text).append("'.");
}

std::string BetweenQuotes(const std::string& message) {
  const std::size_t open = message.find('"');
  const std::size_t close = message.rfind('"');
  return open == close ? message : message.substr(open + 1, close - open - 1);
}

RuntimeError StatementError(const std::string& message, Dialect dialect) {
  const bool sql_server = dialect == Dialect::kSqlServer;
  std::string name;
  if (TakeAfter(message, "no such table: ", name)) {
    return {ado_error::kNoTable, sql_server
                                     ? "Invalid object name '" + name + "'."
                                     : "The database engine cannot find the input table or query '" + name +
                                           "'. Make sure it exists and that its name is spelled correctly."};
  }
  if (TakeAfter(message, "no such column: ", name)) {
    if (sql_server) return {ado_error::kSyntax, "Invalid column name '" + name + "'."};
    return {ado_error::kNoValueGiven, "No value given for one or more required parameters."};
  }
  if (message.find("syntax error") != std::string::npos || TakeAfter(message, "unrecognized token", name)) {
    return SyntaxError(dialect, BetweenQuotes(message));
  }
  if (message.starts_with("not authorized")) return {ado_error::kPermissionDenied, kNotAllowed};
  return {ado_error::kSyntax, message};
}

RuntimeError ConstraintError(int extended_code, const std::string& message, Dialect dialect) {
  const bool sql_server = dialect == Dialect::kSqlServer;
  switch (extended_code) {
    case SQLITE_CONSTRAINT_NOTNULL:
      return RefusedValue(dialect);
    case SQLITE_CONSTRAINT_TRIGGER:
      return {sql_server ? ado_error::kSyntax : ado_error::kUnspecified, message};
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      if (sql_server) {
        return {ado_error::kIntegrityViolation, "Cannot insert duplicate key: " + message + "."};
      }
      return {
          ado_error::kUnspecified,
          "The changes you requested to the table were not successful because they would create duplicate "
          "values in the index, primary key, or relationship."};
    default:
      return {sql_server ? ado_error::kIntegrityViolation : ado_error::kUnspecified, message};
  }
}

// The failures of the file, which read the same whatever was asked of it; an empty text for other failures.
std::string FileTrouble(int code) {
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "The store is locked by another program.";
    case SQLITE_READONLY:
      return code == SQLITE_READONLY_DBMOVED ? "The store file is no longer in its place."
                                             : "The store can only be read.";
    case SQLITE_FULL:
      return "The disk of the store is full.";
    case SQLITE_IOERR:
      return "The store cannot be read or written: the disk reports an error.";
    case SQLITE_CORRUPT:
      return "The store file is damaged.";
    case SQLITE_NOTADB:
      return "The file is not a store: it is no database.";
    case SQLITE_CANTOPEN:
      return "The store file cannot be opened.";
    default:
      return {};
  }
}

}  // namespace

RuntimeError StoreError(sqlite3* database, Dialect dialect) {
  const int code = sqlite3_extended_errcode(database);
  const std::string message = sqlite3_errmsg(database);
  if (const std::string trouble = FileTrouble(code); !trouble.empty())
    return {ado_error::kUnspecified, trouble};
  switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
      return ConstraintError(code, message, dialect);
    case SQLITE_MISMATCH:
    case SQLITE_TOOBIG:
      return RefusedValue(dialect);
    case SQLITE_ERROR:
      return StatementError(message, dialect);
    case SQLITE_AUTH:
      return {ado_error::kPermissionDenied, kNotAllowed};
    case SQLITE_INTERRUPT:
      return {ado_error::kTimeout, kTimeout};
    default:
      return {ado_error::kUnspecified, message};
  }
}

RuntimeError NativeError(sqlite3* database, Dialect dialect) {
  const bool file_trouble = !FileTrouble(sqlite3_extended_errcode(database)).empty();
  const RuntimeError error = StoreError(database, dialect);
  const bool refused =
      error.Number() == ado_error::kPermissionDenied || error.Number() == ado_error::kTimeout;
  return file_trouble || refused ? error : RuntimeError(error.Number(), sqlite3_errmsg(database));
}

RuntimeError OpenError(int code, const std::string& path) {
  std::string trouble;
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      trouble = "is locked by another program.";
      break;
    case SQLITE_NOTADB:
      trouble = "is not a store: it is no database.";
      break;
    case SQLITE_CANTOPEN:
      trouble = "does not exist or cannot be opened.";
      break;
    case SQLITE_CORRUPT:
      trouble = "is damaged.";
      break;
    case SQLITE_READONLY:
    case SQLITE_PERM:
      trouble = "can only be read.";
      break;
    default:
      trouble = std::string("cannot be opened: ") + sqlite3_errstr(code) + ".";
      break;
  }
  return {ado_error::kUnspecified, "The store file '" + path + "' " + trouble};
}

RuntimeError FileVanished(const std::string& path) {
  return {ado_error::kUnspecified, "The store file '" + path + "' is no longer in its place."};
}

RuntimeError SyntaxError(Dialect dialect, std::string_view near) {
  const std::string quoted = Quoted(near);
  return {ado_error::kSyntax, dialect == Dialect::kSqlServer
                                  ? "Incorrect syntax near " + quoted
                                  : "Syntax error (missing operator) in query expression " + quoted};
}

RuntimeError UnclosedText(Dialect dialect, std::string_view text) {
  const std::string quoted = Quoted(text);
  return {ado_error::kSyntax, dialect == Dialect::kSqlServer
                                  ? "Unclosed quotation mark after the character string " + quoted
                                  : "Syntax error in string in query expression " + quoted};
}

RuntimeError UndefinedFunction(std::string_view name) {
  return {ado_error::kSyntax, "Undefined function '" + std::string(name) + "' in expression."};
}

RuntimeError BadDate(Dialect dialect, std::string_view literal) {
  if (dialect == Dialect::kSqlServer) {
    return {ado_error::kConversionFailed,
            "Conversion failed when converting date and/or time from character string."};
  }
  return {ado_error::kSyntax, "Syntax error in date in query expression " + Quoted(literal)};
}

RuntimeError TypeMismatch() {
  return {ado_error::kConversionFailed, "Data type mismatch in criteria expression."};
}

RuntimeError RefusedValue(Dialect dialect) {
  return {
      ado_error::kMultipleStep,
      dialect == Dialect::kSqlServer
          ? "Multiple-step OLE DB operation generated errors. Check each OLE DB status value, if available. "
            "No work was done."
          : "Multiple-step operation generated errors. Check each status value."};
}

}  // namespace orvendal::sqlite
