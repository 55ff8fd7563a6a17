#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/column_type.h"
#include "adapters/sqlite/statement_rewriter.h"

struct sqlite3_stmt;

namespace orvendal::sqlite {

struct ResultColumn {
  std::string name;
  ColumnType type;
};
using ResultColumns = std::vector<ResultColumn>;

/// What all statements have in common that differ only in the values compared.
struct StatementShape {
  std::string sql;
  std::vector<std::string> tables;
  std::vector<ParameterSource> sources;  // empty where the parameters cannot be told from the values alone
  /// Of its rows, once somebody has prepared it; good until the store's tables change.
  mutable std::shared_ptr<const ResultColumns> columns;
};

/// A statement that the engine can run.
struct ShapedStatement {
  std::shared_ptr<const StatementShape> shape;
  std::vector<Parameter> parameters;
};

/// The shapes of the statements that a connection has run, so that one that differs from an earlier one only
/// in its values is not taken apart again. Values that would make a difference to the text (wildcards,
/// letters outside ASCII, quotes) always go the whole way.
class StatementShapes {
 public:
  /// As sqlite::Rewrite. `generation` is a number that changes whenever the tables of the store may have
  /// changed: what was known is then forgotten.
  ShapedStatement Rewrite(std::string_view source, Dialect dialect, const Region& region,
                          const ColumnLookup& find_column, std::uint64_t generation);

 private:
  std::map<std::string, std::shared_ptr<const StatementShape>, std::less<>> shapes_;
  std::uint64_t generation_ = 0;
};

}  // namespace orvendal::sqlite
