#include "adapters/sqlite/new_row.h"

#include <sqlite3.h>

#include <algorithm>

#include "adapters/sqlite/sql_tokens.h"
#include "adapters/sqlite/store_error.h"
#include "platform/base/text.h"

namespace orvendal::sqlite {

NewRow::NewRow(std::shared_ptr<SqliteConnection> connection, std::shared_ptr<const StatementShape> statement,
               std::shared_ptr<const ResultColumns> columns)
    : connection_(std::move(connection)), statement_(std::move(statement)), columns_(std::move(columns)) {}

std::string NewRow::Table() const {
  return statement_->tables.empty() ? std::string() : statement_->tables.front();
}

void NewRow::Start() {
  values_.assign(columns_->size(), Value());
  assigned_.clear();
  pending_ = true;
}

void NewRow::Assign(std::size_t column, const Value& value) {
  values_[column] = ConvertForColumn(value, (*columns_)[column].type, connection_->GetRegion());
  if (std::find(assigned_.begin(), assigned_.end(), column) == assigned_.end()) assigned_.push_back(column);
}

void NewRow::CheckLengths() const {
  for (const std::size_t column : assigned_) {
    const ColumnType& type = (*columns_)[column].type;
    const Value& value = values_[column];
    // A text has no more characters than bytes.
    const bool may_exceed = type.length != 0 && value.IsText() && value.Text().size() > type.length;
    if (may_exceed && Len(value.Text()) > type.length) throw RefusedValue(connection_->GetDialect());
  }
}

void NewRow::PrepareInsert() {
  if (insert_ && prepared_for_ == assigned_) return;
  std::string names;
  std::string parameters;
  for (const std::size_t column : assigned_) {
    names += (names.empty() ? "" : ", ") + QuotedName((*columns_)[column].name);
    parameters += parameters.empty() ? "?" : ", ?";
  }
  const std::string values =
      assigned_.empty() ? " DEFAULT VALUES" : " (" + names + ") VALUES (" + parameters + ")";
  insert_ = StatementCache::Prepare(connection_->Statements(), "INSERT INTO " + QuotedName(Table()) + values);
  if (!insert_) throw StoreError(connection_->Handle(), connection_->GetDialect());
  prepared_for_ = assigned_;
}

void NewRow::Post() {
  connection_->CheckInPlace();
  CheckLengths();
  PrepareInsert();
  int index = 0;
  for (const std::size_t column : assigned_) BindValue(insert_.Get(), ++index, values_[column]);
  if (insert_.Step() != SQLITE_DONE) {
    const RuntimeError error = StoreError(connection_->Handle(), connection_->GetDialect());
    insert_.Reset();
    throw error;
  }
  row_id_ = sqlite3_last_insert_rowid(connection_->Handle());
  insert_.Reset();
  pending_ = false;
}

std::vector<Value> NewRow::ReadBack() const {
  std::string names;
  for (const ResultColumn& column : *columns_) names += (names.empty() ? "" : ", ") + QuotedName(column.name);
  StatementLease lease = StatementCache::Prepare(
      connection_->Statements(), "SELECT " + names + " FROM " + QuotedName(Table()) + " WHERE rowid = ?");
  if (!lease) return values_;  // a table without row numbers
  sqlite3_bind_int64(lease.Get(), 1, row_id_);
  if (lease.Step() != SQLITE_ROW) return values_;
  std::vector<Value> row;
  for (std::size_t i = 0; i < columns_->size(); ++i) {
    row.push_back(ReadColumn(lease.Get(), static_cast<int>(i), (*columns_)[i].type.kind));
  }
  return row;
}

}  // namespace orvendal::sqlite
