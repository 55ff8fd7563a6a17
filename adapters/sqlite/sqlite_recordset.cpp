#include "adapters/sqlite/sqlite_recordset.h"

#include <sqlite3.h>

#include "adapters/sqlite/find_criteria.h"
#include "adapters/sqlite/sql_tokens.h"
#include "adapters/sqlite/statement_cache.h"
#include "adapters/sqlite/statement_shapes.h"
#include "adapters/sqlite/store_error.h"
#include "platform/base/text.h"
#include "platform/data/ado_error.h"

namespace orvendal::sqlite {
namespace {

std::optional<ColumnType> FindColumn(const SqliteConnection& store, const std::string& table,
                                     const std::string& column) {
  const char* declared = nullptr;
  const int code = sqlite3_table_column_metadata(store.Handle(), nullptr, table.c_str(), column.c_str(),
                                                 &declared, nullptr, nullptr, nullptr, nullptr);
  if (code == SQLITE_OK) return ColumnTypeOf(declared);
  // A view has no columns of its own; a statement that reads it knows where they come from.
  const StatementLease lease = StatementCache::Prepare(
      store.Statements(), "SELECT " + QuotedName(column) + " FROM " + QuotedName(table));
  if (!lease) return std::nullopt;
  return ColumnTypeOf(sqlite3_column_decltype(lease.Get(), 0));
}

std::shared_ptr<const ResultColumns> ColumnsOf(sqlite3_stmt* statement) {
  auto columns = std::make_shared<ResultColumns>();
  for (int i = 0; i < sqlite3_column_count(statement); ++i) {
    columns->push_back(
        {sqlite3_column_name(statement, i), ColumnTypeOf(sqlite3_column_decltype(statement, i))});
  }
  return columns;
}

}  // namespace

void SqliteRecordset::Open(const std::string& source, const ConnectionRef& connection, CursorType cursor,
                           LockType lock, std::int32_t) {
  if (State() == kStateOpen) throw AdoError(ado_error::kObjectOpen);
  contents_.reset();
  auto store = std::dynamic_pointer_cast<SqliteConnection>(connection);
  if (store == nullptr || !store->IsOpen()) throw AdoError(ado_error::kInvalidConnection);
  store->CheckInPlace();
  sqlite3* database = store->Handle();
  const StatementCache& prepared = *store->Statements();
  ShapedStatement statement = store->Shapes().Rewrite(
      source, store->GetDialect(), store->GetRegion(),
      [&store](const std::string& table, const std::string& column) {
        return FindColumn(*store, table, column);
      },
      prepared.Generation());
  // The columns of a statement used again are known for sure once it has made its first step.
  const bool read_later = cursor == CursorType::kDynamic;
  StatementLease lease = read_later ? StatementCache::PrepareAfresh(store->Statements(), statement.shape->sql)
                                    : StatementCache::Prepare(store->Statements(), statement.shape->sql);
  if (!lease) throw StoreError(database, store->GetDialect());
  Bind(statement.parameters, lease.Get());
  const bool has_rows = sqlite3_column_count(lease.Get()) != 0;
  const std::uint64_t generation = prepared.Generation();
  const int first_step = read_later && has_rows ? SQLITE_DONE : lease.Step();
  if (first_step != SQLITE_ROW && first_step != SQLITE_DONE) throw StoreError(database, store->GetDialect());
  if (!has_rows) return;

  std::shared_ptr<const ResultColumns> columns = statement.shape->columns;
  if (!columns || read_later || prepared.Generation() != generation) {
    columns = statement.shape->columns = ColumnsOf(lease.Get());
  }
  NewRow new_row(store, statement.shape, columns);
  RowBuffer rows(store, std::move(statement), columns);
  if (!read_later) rows.ReadAll(lease, first_step);
  contents_.emplace(
      Contents{std::move(store), cursor, lock, std::move(columns), std::move(rows), std::move(new_row)});
}

SqliteRecordset::Contents& SqliteRecordset::Opened() const {
  if (State() == kStateClosed) throw AdoError(ado_error::kObjectClosed);
  return *contents_;
}

void SqliteRecordset::Close() {
  Opened();
  contents_.reset();
}

std::int32_t SqliteRecordset::State() const {
  return contents_ && contents_->connection->IsOpen() ? kStateOpen : kStateClosed;
}

std::int32_t SqliteRecordset::EditMode() const {
  return Opened().new_row.Pending() ? 2 : 0;
}

// Whether there is a current row; reads as far as it takes to know.
bool SqliteRecordset::OnRow(Contents& contents) const {
  if (contents.new_row.Pending() || contents.on_posted_row) return true;
  return contents.position >= 0 && contents.rows.Reach(static_cast<std::size_t>(contents.position));
}

bool SqliteRecordset::AtEnd() const {
  Contents& contents = Opened();
  if (contents.position == kBeforeFirst && contents.rows.Reach(0)) return false;
  return !OnRow(contents);
}

void SqliteRecordset::MoveNext() {
  Contents& contents = Opened();
  PostPending(contents);
  if (AtEnd()) throw AdoError(ado_error::kEitherBofOrEof);
  contents.position = contents.on_posted_row ? kAfterLast : contents.position + 1;
  contents.on_posted_row = false;
}

std::int32_t SqliteRecordset::RecordCount() const {
  const Contents& contents = Opened();
  if (contents.cursor == CursorType::kStatic) return static_cast<std::int32_t>(contents.rows.Count());
  return contents.connection->GetDialect() == Dialect::kJet ? contents.rows.CountInStore() : -1;
}

void SqliteRecordset::Find(const std::string& criteria, std::int32_t skip_records,
                           SearchDirection direction) {
  Contents& contents = Opened();
  PostPending(contents);
  const FindCriteria wanted(criteria);
  const std::size_t field = FieldIndex(wanted.FieldName());
  if (!OnRow(contents)) throw AdoError(ado_error::kEitherBofOrEof);
  const bool forward = direction == SearchDirection::kForward;
  if (contents.on_posted_row && skip_records == 0 && wanted.Matches(Cell(contents, field))) return;
  std::int64_t at = kAfterLast;
  if (!contents.on_posted_row) {
    at = contents.position + (forward ? skip_records : -std::int64_t{skip_records});
  } else if (!forward) {
    while (contents.rows.Reach(contents.rows.Count())) {
    }
    at = static_cast<std::int64_t>(contents.rows.Count()) - 1;
  }
  contents.on_posted_row = false;
  contents.position = forward ? kAfterLast : kBeforeFirst;
  for (; at >= 0 && contents.rows.Reach(static_cast<std::size_t>(at)); at += forward ? 1 : -1) {
    if (wanted.Matches(contents.rows.Cell(static_cast<std::size_t>(at), field))) {
      contents.position = at;
      return;
    }
  }
}

void SqliteRecordset::AbsolutePosition(std::int32_t position) {
  Contents& contents = Opened();
  if (!KnowsPositions(contents)) {
    throw RuntimeError(
        ado_error::kFeatureNotAvailable,
        "Current Recordset does not support bookmarks. This may be a limitation of the provider or "
        "of the selected cursor type.");
  }
  PostPending(contents);
  if (!contents.rows.Reach(0)) throw AdoError(ado_error::kEitherBofOrEof);
  if (position < 1 || !contents.rows.Reach(static_cast<std::size_t>(position) - 1)) {
    throw AdoError(ado_error::kInvalidArgument);
  }
  StandOn(contents, position - 1);
}

bool SqliteRecordset::KnowsPositions(const Contents& contents) {
  return contents.cursor != CursorType::kDynamic || contents.connection->GetDialect() == Dialect::kJet;
}

void SqliteRecordset::StandOn(Contents& contents, std::int64_t position) {
  contents.on_posted_row = false;
  contents.position = position;
}

std::int64_t SqliteRecordset::Position() const {
  Contents& contents = Opened();
  if (contents.new_row.Pending() || contents.on_posted_row || !KnowsPositions(contents)) return -1;
  if (AtStart()) return -2;
  return OnRow(contents) ? contents.position + 1 : -3;
}

bool SqliteRecordset::AtStart() const {
  Contents& contents = Opened();
  if (contents.new_row.Pending() || contents.on_posted_row) return false;
  return contents.position == kBeforeFirst || !contents.rows.Reach(0);
}

void SqliteRecordset::MoveFirst() {
  Contents& contents = Opened();
  PostPending(contents);
  if (!contents.rows.Reach(0)) throw AdoError(ado_error::kEitherBofOrEof);
  StandOn(contents, 0);
}

void SqliteRecordset::MovePrevious() {
  Contents& contents = Opened();
  PostPending(contents);
  if (AtStart()) throw AdoError(ado_error::kEitherBofOrEof);
  if (!OnRow(contents)) return MoveLast();
  if (contents.on_posted_row) {
    // It is the last row of those that are read now.
    MoveLast();
  }
  StandOn(contents, contents.position - 1);
}

void SqliteRecordset::MoveLast() {
  Contents& contents = Opened();
  PostPending(contents);
  while (contents.rows.Reach(contents.rows.Count())) {
  }
  if (contents.rows.Count() == 0) throw AdoError(ado_error::kEitherBofOrEof);
  StandOn(contents, static_cast<std::int64_t>(contents.rows.Count()) - 1);
}

std::size_t SqliteRecordset::FieldCount() const {
  return State() == kStateOpen ? contents_->columns->size() : 0;
}

std::string SqliteRecordset::FieldName(std::size_t index) const {
  if (index >= FieldCount()) throw AdoError(ado_error::kItemNotFound);
  return (*contents_->columns)[index].name;
}

std::size_t SqliteRecordset::FieldIndex(std::string_view name) const {
  const std::size_t count = FieldCount();
  for (std::size_t i = 0; i < count; ++i) {
    if (EqualsIgnoringCase((*contents_->columns)[i].name, name)) return i;
  }
  throw AdoError(ado_error::kItemNotFound);
}

Value SqliteRecordset::Cell(Contents& contents, std::size_t field) const {
  if (contents.new_row.Pending()) return contents.new_row.Fields()[field];
  if (contents.on_posted_row) {
    if (contents.posted_row.empty()) contents.posted_row = contents.new_row.ReadBack();
    return contents.posted_row[field];
  }
  if (!OnRow(contents)) throw AdoError(ado_error::kEitherBofOrEof);
  return contents.rows.Cell(static_cast<std::size_t>(contents.position), field);
}

Value SqliteRecordset::FieldValue(std::size_t index) const {
  return Cell(Opened(), index);
}

void SqliteRecordset::AddNew() {
  Contents& contents = Opened();
  if (contents.lock == LockType::kReadOnly) throw AdoError(ado_error::kFeatureNotAvailable);
  PostPending(contents);
  contents.new_row.Start();
}

const ColumnType& SqliteRecordset::FieldType(std::size_t index) const {
  if (index >= FieldCount()) throw AdoError(ado_error::kItemNotFound);
  return contents_->new_row.Columns()[index].type;
}

void SqliteRecordset::Collect(std::string_view name, const Value& value) {
  Opened();
  Assign(FieldIndex(name), value);
}

void SqliteRecordset::Assign(std::size_t field, const Value& value) {
  Contents& contents = Opened();
  if (!OnRow(contents)) throw AdoError(ado_error::kEitherBofOrEof);
  if (!contents.new_row.Pending()) throw AdoError(ado_error::kFeatureNotAvailable);
  contents.new_row.Assign(field, value);
}

void SqliteRecordset::Update() {
  PostPending(Opened());
}

// The row added becomes the current one. Where all rows have been read it takes its place after them.
void SqliteRecordset::PostPending(Contents& contents) {
  if (!contents.new_row.Pending()) return;
  contents.new_row.Post();
  contents.posted_row.clear();
  contents.on_posted_row = !contents.rows.Complete();
  if (contents.on_posted_row) return;
  contents.rows.Append(contents.new_row.ReadBack());
  contents.position = static_cast<std::int64_t>(contents.rows.Count()) - 1;
}

void SqliteRecordset::CancelUpdate() {
  Opened().new_row.Drop();
}

}  // namespace orvendal::sqlite
