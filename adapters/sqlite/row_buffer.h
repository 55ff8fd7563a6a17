#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "adapters/sqlite/column_type.h"
#include "adapters/sqlite/packed_values.h"
#include "adapters/sqlite/sqlite_store.h"
#include "adapters/sqlite/statement_cache.h"
#include "adapters/sqlite/statement_shapes.h"

namespace orvendal::sqlite {

/// The rows of a statement, read either all at once or, in order, as far as they are asked for. Reading in
/// parts leaves no statement open between them, so that the file is never held.
///
/// Invariant: the rows 0 to Count() - 1 are here; Complete() says whether there are no more.
class RowBuffer {
 public:
  /// Takes the statement, which has rows. Nothing is read.
  RowBuffer(std::shared_ptr<SqliteConnection> connection, ShapedStatement statement,
            std::shared_ptr<const ResultColumns> columns)
      : connection_(std::move(connection)), statement_(std::move(statement)), columns_(std::move(columns)) {}

  /// Reads `prepared`, the statement itself, to its end; `code` is what its first step gave.
  void ReadAll(StatementLease& prepared, int code);
  /// Reads on until the row `index` is here; false if there is none. Raises the store's error.
  bool Reach(std::size_t index);
  /// Adds a row at the end; only where Complete().
  void Append(const std::vector<Value>& row);

  std::size_t Count() const { return columns_->empty() ? 0 : cells_.Size() / columns_->size(); }
  bool Complete() const { return complete_; }
  Value Cell(std::size_t row, std::size_t column) const { return cells_[row * columns_->size() + column]; }
  /// How many rows the statement gives at this moment, without reading them.
  std::int32_t CountInStore() const;

 private:
  void ReadPart();
  void ReadRows(StatementLease& prepared, int code);

  std::shared_ptr<SqliteConnection> connection_;
  ShapedStatement statement_;
  std::shared_ptr<const ResultColumns> columns_;
  ColumnReader reader_;
  PackedValues cells_;
  bool complete_ = false;
};

}  // namespace orvendal::sqlite
