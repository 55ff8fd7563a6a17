#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "adapters/sqlite/column_type.h"
#include "adapters/sqlite/dialect.h"
#include "platform/base/region.h"

struct sqlite3_stmt;

namespace orvendal::sqlite {

using Parameter = std::variant<std::int64_t, std::string>;

/// How a parameter comes of a text of the statement.
struct ParameterSource {
  enum class Form { kAsItIs, kWithoutTrailingBlanks, kAboveIt, kAboveItWithoutTrailingBlanks };
  std::size_t text = 0;  // its number among the texts of the statement, from 0
  Form form = Form::kAsItIs;
  bool is_pattern = false;
};

/// A statement that the engine can run. Two statements that differ only in the values compared have the same
/// `sql`, so that it needs to be prepared once.
///
/// Texts are compared as the providers do, dates as moments, and each comparison comes with conditions that
/// the file's own indexes can answer: those find few candidates, the functions of store_functions.h decide.
struct RewrittenStatement {
  std::string sql;
  std::vector<Parameter> parameters;
  std::vector<std::string> tables;  // those it reads or writes, in the order of the text
  /// Where each parameter comes from. Meaningful only if `depends_on_values_alone`: then a statement that
  /// differs only in its texts (ASCII, patterns without wildcards) has the same `sql`, and its parameters are
  /// made from its own texts by these sources.
  std::vector<ParameterSource> sources;
  bool depends_on_values_alone = false;
};

/// Binds parameters, numbered from 1. The texts are not copied.
void Bind(const std::vector<Parameter>& parameters, sqlite3_stmt* statement);

/// The type of a column, or nothing if the table has no such column. Names are taken without regard to case.
using ColumnLookup =
    std::function<std::optional<ColumnType>(const std::string& table, const std::string& column)>;

/// `source` is one statement of the dialect. Raises -2147217900 if it cannot be read, -2147217913 for a
/// CONVERT of a text that is no date.
RewrittenStatement Rewrite(std::string_view source, Dialect dialect, const Region& region,
                           const ColumnLookup& find_column);

}  // namespace orvendal::sqlite
