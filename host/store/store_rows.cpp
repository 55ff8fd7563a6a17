#include "host/store/store_rows.h"

#include <array>
#include <charconv>

#include "platform/base/text.h"

namespace orvendal {
namespace {

RecordsetRef Opened(RecordsetFactory& recordsets, const ConnectionRef& connection, const std::string& sql,
                    CursorType cursor, LockType lock) {
  RecordsetRef rows = recordsets.NewRecordset();
  rows->Open(sql, connection, cursor, lock, kCommandUnspecified);
  return rows;
}

}  // namespace

RecordsetRef ReadRows(RecordsetFactory& recordsets, const ConnectionRef& connection, const std::string& sql) {
  return Opened(recordsets, connection, sql, CursorType::kStatic, LockType::kReadOnly);
}

RecordsetRef OpenToAdd(RecordsetFactory& recordsets, const ConnectionRef& connection,
                       const std::string& table) {
  return Opened(recordsets, connection, "SELECT " + table + ".* FROM " + table, CursorType::kDynamic,
                LockType::kOptimistic);
}

void RunStatement(RecordsetFactory& recordsets, const ConnectionRef& connection, const std::string& sql) {
  Opened(recordsets, connection, sql, CursorType::kDynamic, LockType::kOptimistic);
}

std::string TextOf(const Recordset& rows, std::string_view field, const Region& region) {
  const Value value = rows.Fields(field).Value();
  return value.IsNull() ? std::string() : region.ToText(value);
}

bool HasField(const Recordset& rows, std::string_view field) {
  for (std::size_t i = 0; i < rows.FieldCount(); ++i) {
    if (EqualsIgnoringCase(rows.FieldName(i), field)) return true;
  }
  return false;
}

std::string SqlText(std::string_view text) {
  std::string quoted = "'";
  for (const char character : text) {
    if (character == '\'') quoted += '\'';
    quoted += character;
  }
  return quoted + "'";
}

std::string SqlNumber(double number) {
  // The longest is the smallest number: 0, the point and 324 digits. An exponent is no matter of every
  // dialect.
  std::array<char, 400> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed).ptr;
  return {digits.data(), end};
}

std::string SqlMoment(const Connection& connection, Date moment) {
  const std::string time = Region::English().Format(moment, " hh:nn:ss");
  if (connection.Provider() == "SQLOLEDB.1") {
    return "CONVERT(DATETIME, '" + Region::English().Format(moment, "yyyy-mm-dd") + time + "', 102)";
  }
  return "#" + Region::English().Format(moment, "m/d/yyyy") + time + "#";
}

}  // namespace orvendal
