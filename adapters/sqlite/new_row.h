#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "adapters/sqlite/sqlite_store.h"
#include "adapters/sqlite/statement_cache.h"
#include "adapters/sqlite/statement_shapes.h"

namespace orvendal::sqlite {

/// The new row of a recordset: its fields as assigned, and the statement that adds it to the table, prepared
/// once for all rows that assign the same fields in the same order. Fields not assigned are left to the
/// store's defaults.
class NewRow {
 public:
  /// The table is the first of the statement's.
  NewRow(std::shared_ptr<SqliteConnection> connection, std::shared_ptr<const StatementShape> statement,
         std::shared_ptr<const ResultColumns> columns);

  void Start();
  void Drop() { pending_ = false; }
  bool Pending() const { return pending_; }
  /// Converts the value to the column's type; raises 3421 if that cannot be done.
  void Assign(std::size_t column, const Value& value);
  /// Adds the row to the table. Raises what the store objects to; then the row stays pending.
  void Post();
  /// As assigned; Null where nothing was.
  const std::vector<Value>& Fields() const { return values_; }
  const ResultColumns& Columns() const { return *columns_; }
  /// The row last posted as it stands in the store, defaults included.
  std::vector<Value> ReadBack() const;

 private:
  void CheckLengths() const;
  void PrepareInsert();
  std::string Table() const;

  std::shared_ptr<SqliteConnection> connection_;
  std::shared_ptr<const StatementShape> statement_;
  std::shared_ptr<const ResultColumns> columns_;
  bool pending_ = false;
  std::vector<Value> values_;
  std::vector<std::size_t> assigned_;  // columns, in the order of their first assignment
  std::vector<std::size_t> prepared_for_;
  StatementLease insert_;
  std::int64_t row_id_ = 0;
};

}  // namespace orvendal::sqlite
