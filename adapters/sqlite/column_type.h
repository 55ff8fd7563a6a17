#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/base/region.h"
#include "platform/base/value.h"

struct sqlite3;
struct sqlite3_stmt;
struct sqlite3_value;

namespace orvendal::sqlite {

enum class ColumnKind { kUntyped, kText, kNumber, kDate };

/// The data type of a column as a provider reports it, read from the column's declaration.
struct ColumnType {
  ColumnKind kind = ColumnKind::kUntyped;
  bool whole_numbers = false;
  std::size_t length = 0;  // characters that a text may have; 0 for no limit
};

/// From a declared type such as "VARCHAR(20)", "DATETIME", "NUMERIC". Null pointer: untyped.
ColumnType ColumnTypeOf(const char* declared_type);

/// The value of a column of the statement's current row: dates from date columns, numbers, texts, Null. What
/// does not read as its declared kind comes as it stands in the file.
Value ReadColumn(sqlite3_stmt* statement, int column, ColumnKind kind);

class PackedValues;

/// Reads the same into packed values. A date that repeats, as one does through a day's rows, is read once.
class ColumnReader {
 public:
  void Read(sqlite3_stmt* statement, int column, ColumnKind kind, PackedValues& values);

 private:
  std::string last_date_text_;
  Date last_date_;
};

/// `value` as a column of this type takes it, texts read by the region. Raises 3421 if it cannot be
/// converted.
Value ConvertForColumn(const Value& value, const ColumnType& type, const Region& region);

/// Binds `value` to the parameter `index`, from 1; dates in the form of the file. A text is not copied: it
/// has to stay alive until the statement is reset.
void BindValue(sqlite3_stmt* statement, int index, const Value& value);

}  // namespace orvendal::sqlite
