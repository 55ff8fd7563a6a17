#include "adapters/sqlite/sqlite_store.h"

#include <sqlite3.h>

#include "adapters/sqlite/column_type.h"
#include "adapters/sqlite/sqlite_recordset.h"
#include "adapters/sqlite/statement_cache.h"
#include "adapters/sqlite/store_error.h"
#include "adapters/sqlite/store_functions.h"
#include "adapters/sqlite/stored_date.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

constexpr int kBusyMilliseconds = 2000;

int Run(sqlite3* database, const char* sql) {
  return sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
}

// What has to hold before the first statement. The first pragma reads the file, so that it fails here if the
// file is no database. A file that may only be read, or that others use at this moment, keeps the journal
// that it has.
int Prepare(sqlite3* database) {
  sqlite3_busy_timeout(database, kBusyMilliseconds);
  // A misspelt name in double quotes must not turn into a text.
  sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  if (Run(database, "PRAGMA schema_version") != SQLITE_OK) return sqlite3_extended_errcode(database);
  const int journal = Run(database, "PRAGMA journal_mode = WAL") & 0xFF;
  const bool kept = journal == SQLITE_READONLY || journal == SQLITE_BUSY;
  if (journal != SQLITE_OK && !kept) return sqlite3_extended_errcode(database);
  if (Run(database, "PRAGMA synchronous = NORMAL") != SQLITE_OK) return sqlite3_extended_errcode(database);
  return SQLITE_OK;
}

}  // namespace

SqliteConnection::SqliteConnection(sqlite3* database, std::string path, Dialect dialect, const Region& region)
    : database_(database),
      path_(std::move(path)),
      dialect_(dialect),
      region_(region),
      statements_(std::make_shared<sqlite::StatementCache>(database)) {
  sqlite::RegisterFunctions(database_, region_);
}

std::shared_ptr<SqliteConnection> SqliteConnection::Open(const std::string& path, Dialect dialect,
                                                         const Region& region, OpenMode mode) {
  // The engine would make a store of its own for an empty path.
  if (path.empty()) throw sqlite::OpenError(SQLITE_CANTOPEN, path);
  sqlite3* database = nullptr;
  const int create = mode == OpenMode::kCreate ? SQLITE_OPEN_CREATE : 0;
  int code = sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE | create,
                             nullptr);
  if (code == SQLITE_OK) code = Prepare(database);
  if (code != SQLITE_OK) {
    sqlite3_close(database);
    throw sqlite::OpenError(code, path);
  }
  return std::shared_ptr<SqliteConnection>(new SqliteConnection(database, path, dialect, region));
}

std::string SqliteConnection::Provider() const {
  return dialect_ == Dialect::kSqlServer ? "SQLOLEDB.1" : "Microsoft.Jet.OLEDB.4.0";
}

void SqliteConnection::CheckNumber(const std::string& text) const {
  sqlite::ConvertForColumn(text, {sqlite::ColumnKind::kNumber, false, 0}, region_);
}

void SqliteConnection::Close() {
  if (database_ == nullptr) return;
  statements_->Close();
  sqlite3_close_v2(database_);
  database_ = nullptr;
}

void SqliteConnection::BusyTimeout(int milliseconds) {
  if (IsOpen()) sqlite3_busy_timeout(database_, milliseconds);
}

void SqliteConnection::Execute(const std::string& native_sql) {
  CheckInPlace();
  statements_->Clear();  // it may alter the tables that they name
  if (Run(database_, native_sql.c_str()) != SQLITE_OK) throw sqlite::NativeError(database_, dialect_);
}

void SqliteConnection::CheckInPlace() const {
  if (!IsOpen()) throw AdoError(ado_error::kInvalidConnection);
  int moved = 0;
  const int code = sqlite3_file_control(database_, nullptr, SQLITE_FCNTL_HAS_MOVED, &moved);
  if (code == SQLITE_OK && moved != 0) throw sqlite::FileVanished(path_);
}

SqliteStatement::SqliteStatement(SqliteConnection& connection, std::string_view native_sql)
    : connection_(connection), statement_(nullptr) {
  connection.CheckInPlace();
  const std::string sql(native_sql);
  sqlite::StatementLease lease = sqlite::StatementCache::Prepare(connection.Statements(), sql, &rest_);
  if (!lease && sqlite3_errcode(connection.Handle()) != SQLITE_OK) {
    throw sqlite::NativeError(connection.Handle(), connection.GetDialect());
  }
  lease_ = std::make_unique<sqlite::StatementLease>(std::move(lease));
  statement_ = lease_->Get();
}

SqliteStatement::~SqliteStatement() = default;

SqliteStatement& SqliteStatement::Bind(int index, const Value& value) {
  if (value.IsText()) {
    const std::string& text = value.Text();
    sqlite3_bind_text(statement_, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
  } else {
    sqlite::BindValue(statement_, index, value);
  }
  return *this;
}

bool SqliteStatement::Step() {
  const int code = sqlite3_step(statement_);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  const RuntimeError error = sqlite::NativeError(connection_.Handle(), connection_.GetDialect());
  sqlite3_reset(statement_);
  throw error;
}

void SqliteStatement::Run() {
  while (Step()) {
  }
  Reset();
}

void SqliteStatement::Reset() {
  sqlite3_reset(statement_);
}

int SqliteStatement::ColumnCount() const {
  return sqlite3_column_count(statement_);
}

std::string SqliteStatement::ColumnName(int column) const {
  return sqlite3_column_name(statement_, column);
}

Value SqliteStatement::ValueAt(int column) const {
  const sqlite::ColumnType type = sqlite::ColumnTypeOf(sqlite3_column_decltype(statement_, column));
  return sqlite::ReadColumn(statement_, column, type.kind);
}

std::string SqliteStatement::TextAt(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

RecordsetRef SqliteRecordsetFactory::NewRecordset() {
  return std::make_shared<sqlite::SqliteRecordset>();
}

}  // namespace orvendal
