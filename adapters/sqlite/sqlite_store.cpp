#include "adapters/sqlite/sqlite_store.h"

#include <sqlite3.h>

#include <chrono>
#include <filesystem>

#include "adapters/sqlite/column_type.h"
#include "adapters/sqlite/sqlite_recordset.h"
#include "adapters/sqlite/statement_cache.h"
#include "adapters/sqlite/statement_guard.h"
#include "adapters/sqlite/statement_shapes.h"
#include "adapters/sqlite/store_error.h"
#include "adapters/sqlite/store_functions.h"
#include "adapters/sqlite/stored_date.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

constexpr int kBusyMilliseconds = 2000;
constexpr int kCommandMilliseconds = 30000;
constexpr const char* kInMemory = ":memory:";
// In KiB. The products of a chain and the day's part of the history stay in it; the engine's own two
// megabytes would be read from the file again and again.
constexpr const char* kPageCache = "PRAGMA cache_size = -16384";

int Run(sqlite3* database, const char* sql) {
  return sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
}

// The engine reads "file:" names as instructions to itself, which no absolute path can be taken for. Empty
// for a path that cannot be made absolute.
std::string AbsolutePath(const std::string& path) {
  namespace fs = std::filesystem;
  if (path == kInMemory) return path;
  if (path.empty() || path.find('\0') != std::string::npos) return {};
  std::error_code error;
  const std::u8string absolute = fs::absolute(std::u8string(path.begin(), path.end()), error).u8string();
  return error ? std::string() : std::string(absolute.begin(), absolute.end());
}

}  // namespace

SqliteConnection::SqliteConnection(sqlite3* database, std::string path, Dialect dialect, const Region& region)
    : database_(database),
      path_(std::move(path)),
      dialect_(dialect),
      region_(region),
      guard_(std::make_unique<sqlite::StatementGuard>(database)),
      statements_(std::make_shared<sqlite::StatementCache>(database)),
      shapes_(std::make_unique<sqlite::StatementShapes>()) {
  sqlite::RegisterFunctions(database_, region_);
  BusyTimeout(kBusyMilliseconds);
  CommandTimeout(kCommandMilliseconds);
}

SqliteConnection::~SqliteConnection() {
  Close();
}

std::shared_ptr<SqliteConnection> SqliteConnection::Open(const std::string& path, Dialect dialect,
                                                         const Region& region, OpenMode mode,
                                                         const FirstLook& first_look) {
  // The engine would make a store of its own for an empty path.
  const std::string file = AbsolutePath(path);
  if (file.empty()) throw sqlite::OpenError(SQLITE_CANTOPEN, path);
  sqlite3* database = nullptr;
  const int create = mode == OpenMode::kCreate ? SQLITE_OPEN_CREATE : 0;
  // A connection belongs to the thread of its screen, so that the engine need not lock it for every column.
  constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX;
  int code = sqlite3_open_v2(file.c_str(), &database, kFlags | create, nullptr);
  if (code != SQLITE_OK) {
    sqlite3_close(database);
    throw sqlite::OpenError(code, path);
  }
  std::shared_ptr<SqliteConnection> store(new SqliteConnection(database, path, dialect, region));
  // The first pragma reads the file, so that the opening fails here if the file is no database.
  if (Run(database, "PRAGMA schema_version") != SQLITE_OK) {
    throw sqlite::OpenError(sqlite3_extended_errcode(database), path);
  }
  if (first_look) first_look(*store);
  code = store->UseWriteAheadLog();
  if (code != SQLITE_OK) throw sqlite::OpenError(code, path);
  return store;
}

// A file that may only be read, or that others use at this moment, keeps the journal that it has.
int SqliteConnection::UseWriteAheadLog() {
  const sqlite::StatementGuard::HostsOwn own(*guard_);
  const int journal = Run(database_, "PRAGMA journal_mode = WAL") & 0xFF;
  const bool kept = journal == SQLITE_READONLY || journal == SQLITE_BUSY;
  if (journal != SQLITE_OK && !kept) return sqlite3_extended_errcode(database_);
  if (Run(database_, kPageCache) != SQLITE_OK) return sqlite3_extended_errcode(database_);
  if (Run(database_, "PRAGMA synchronous = NORMAL") != SQLITE_OK) return sqlite3_extended_errcode(database_);
  return SQLITE_OK;
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
  guard_->LetGo();
  sqlite3_close_v2(database_);
  database_ = nullptr;
}

void SqliteConnection::BusyTimeout(int milliseconds) {
  if (IsOpen()) sqlite3_busy_timeout(database_, milliseconds);
}

void SqliteConnection::CommandTimeout(int milliseconds) {
  statements_->TimeLimit(std::chrono::milliseconds(milliseconds));
}

void SqliteConnection::Execute(const std::string& native_sql) {
  CheckInPlace();
  const sqlite::StatementGuard::HostsOwn own(*guard_);
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
  // The engine would take it for the end.
  if (sql.find('\0') != std::string::npos) throw sqlite::SyntaxError(connection.GetDialect(), "NUL");
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
  const int code = lease_->Step();
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  const RuntimeError error = sqlite::NativeError(connection_.Handle(), connection_.GetDialect());
  lease_->Reset();
  throw error;
}

void SqliteStatement::Run() {
  while (Step()) {
  }
  Reset();
}

void SqliteStatement::Reset() {
  lease_->Reset();
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
