#include "adapters/sqlite/column_type.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>

#include "adapters/sqlite/packed_values.h"
#include "adapters/sqlite/stored_date.h"
#include "platform/data/ado_error.h"

namespace orvendal::sqlite {
namespace {

bool ContainsAny(std::string_view text, std::initializer_list<std::string_view> words) {
  return std::any_of(words.begin(), words.end(),
                     [text](std::string_view word) { return text.find(word) != std::string_view::npos; });
}

std::size_t LengthIn(std::string_view declared) {
  const std::size_t open = declared.find('(');
  std::size_t length = 0;
  if (open == std::string_view::npos) return 0;
  for (const char c : declared.substr(open + 1)) {
    if (c < '0' || c > '9' || length > 100'000'000) break;
    length = length * 10 + static_cast<std::size_t>(c - '0');
  }
  return length;
}

std::string_view TextOf(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
  return text == nullptr ? std::string_view() : std::string_view(text, bytes);
}

std::optional<Date> DateIn(std::string_view text) {
  const std::optional<Moment> moment = ParseStoredDate(text);
  return moment ? DateOf(*moment) : std::nullopt;
}

[[noreturn]] void RaiseConversion() {
  throw AdoError(ado_error::kDataConversion);
}

Value ToNumber(const Value& value, const ColumnType& type, const Region& region) {
  double number = 0;
  if (value.IsNumber()) {
    number = value.Number();
  } else if (value.IsDate()) {
    number = value.AsDate().Serial();
  } else {
    const std::optional<double> parsed = region.ParseNumber(value.Text());
    if (!parsed) RaiseConversion();
    number = *parsed;
  }
  return type.whole_numbers ? std::nearbyint(number) : number;
}

Value ToDate(const Value& value, const Region& region) {
  if (value.IsDate()) return value;
  if (value.IsNumber()) {
    try {
      return Date::FromSerial(value.Number());
    } catch (const RuntimeError&) {
      RaiseConversion();
    }
  }
  const std::optional<Date> date = region.ParseDate(value.Text());
  if (!date) RaiseConversion();
  return *date;
}

}  // namespace

ColumnType ColumnTypeOf(const char* declared_type) {
  if (declared_type == nullptr) return {};
  std::string declared(declared_type);
  for (char& c : declared) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  if (ContainsAny(declared, {"DATE", "TIME"})) return {ColumnKind::kDate, false, 0};
  if (ContainsAny(declared, {"CHAR", "TEXT", "CLOB", "MEMO", "STRING"})) {
    return {ColumnKind::kText, false, LengthIn(declared)};
  }
  if (ContainsAny(declared, {"INT", "BOOL", "BIT", "BYTE", "LONG", "SHORT", "COUNTER"})) {
    return {ColumnKind::kNumber, true, 0};
  }
  if (ContainsAny(declared, {"REAL", "FLOA", "DOUB", "NUM", "DEC", "MONEY", "CURRENCY", "SINGLE"})) {
    return {ColumnKind::kNumber, false, 0};
  }
  return {};
}

Value ReadColumn(sqlite3_stmt* statement, int column, ColumnKind kind) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
      if (kind == ColumnKind::kText) return std::string(TextOf(statement, column));
      return sqlite3_column_double(statement, column);
    default:
      break;
  }
  const std::string_view text = TextOf(statement, column);
  if (kind == ColumnKind::kDate) {
    if (const std::optional<Date> date = DateIn(text)) return *date;
  }
  return std::string(text);
}

void ColumnReader::Read(sqlite3_stmt* statement, int column, ColumnKind kind, PackedValues& values) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return values.AppendNull();
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
      if (kind == ColumnKind::kText) return values.AppendText(TextOf(statement, column));
      return values.AppendNumber(sqlite3_column_double(statement, column));
    default:
      break;
  }
  const std::string_view text = TextOf(statement, column);
  if (kind != ColumnKind::kDate) return values.AppendText(text);
  if (!last_date_text_.empty() && text == last_date_text_) return values.AppendDate(last_date_);
  const std::optional<Date> date = DateIn(text);
  if (!date) return values.AppendText(text);
  last_date_text_ = text;
  last_date_ = *date;
  values.AppendDate(*date);
}

Value ConvertForColumn(const Value& value, const ColumnType& type, const Region& region) {
  if (value.IsNull()) return value;
  switch (type.kind) {
    case ColumnKind::kText:
      return region.ToText(value);
    case ColumnKind::kNumber:
      return ToNumber(value, type, region);
    case ColumnKind::kDate:
      return ToDate(value, region);
    case ColumnKind::kUntyped:
      break;
  }
  return value;
}

void BindValue(sqlite3_stmt* statement, int index, const Value& value) {
  if (value.IsNull()) {
    sqlite3_bind_null(statement, index);
  } else if (value.IsNumber()) {
    sqlite3_bind_double(statement, index, value.Number());
  } else if (value.IsDate()) {
    const std::string text = StoredDate(value.AsDate());
    sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
  } else {
    const std::string& text = value.Text();
    sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
  }
}

}  // namespace orvendal::sqlite
