#include "adapters/sqlite/row_buffer.h"

#include <sqlite3.h>

#include <algorithm>

#include "adapters/sqlite/store_error.h"

namespace orvendal::sqlite {
namespace {

constexpr std::size_t kFirstPart = 64;

StatementLease PrepareOn(const SqliteConnection& connection, const std::string& sql) {
  connection.CheckInPlace();
  StatementLease lease = StatementCache::Prepare(connection.Statements(), sql);
  if (!lease) throw StoreError(connection.Handle(), connection.GetDialect());
  return lease;
}

}  // namespace

void RowBuffer::ReadRows(StatementLease& prepared, int code) {
  for (; code == SQLITE_ROW; code = prepared.Step()) {
    for (std::size_t i = 0; i < columns_->size(); ++i) {
      reader_.Read(prepared.Get(), static_cast<int>(i), (*columns_)[i].type.kind, cells_);
    }
  }
  if (code != SQLITE_DONE) throw StoreError(connection_->Handle(), connection_->GetDialect());
}

void RowBuffer::ReadAll(StatementLease& prepared, int code) {
  ReadRows(prepared, code);
  complete_ = true;
}

// Each part is as long as all that is here, so that the rows skipped over stay in proportion to those read.
void RowBuffer::ReadPart() {
  const std::size_t present = Count();
  const std::size_t wanted = std::max(present, kFirstPart);
  const std::size_t parameters = statement_.parameters.size();
  const std::string limit =
      " LIMIT ?" + std::to_string(parameters + 1) + " OFFSET ?" + std::to_string(parameters + 2);
  StatementLease lease = PrepareOn(*connection_, "SELECT * FROM (" + statement_.shape->sql + ")" + limit);
  Bind(statement_.parameters, lease.Get());
  sqlite3_bind_int64(lease.Get(), static_cast<int>(parameters) + 1, static_cast<sqlite3_int64>(wanted));
  sqlite3_bind_int64(lease.Get(), static_cast<int>(parameters) + 2, static_cast<sqlite3_int64>(present));
  ReadRows(lease, lease.Step());
  complete_ = Count() - present < wanted;
}

bool RowBuffer::Reach(std::size_t index) {
  while (Count() <= index && !complete_) ReadPart();
  return index < Count();
}

void RowBuffer::Append(const std::vector<Value>& row) {
  for (const Value& value : row) cells_.Append(value);
}

std::int32_t RowBuffer::CountInStore() const {
  StatementLease lease = PrepareOn(*connection_, "SELECT COUNT(*) FROM (" + statement_.shape->sql + ")");
  Bind(statement_.parameters, lease.Get());
  if (lease.Step() != SQLITE_ROW) throw StoreError(connection_->Handle(), connection_->GetDialect());
  return sqlite3_column_int(lease.Get(), 0);
}

}  // namespace orvendal::sqlite
