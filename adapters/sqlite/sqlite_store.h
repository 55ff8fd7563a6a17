#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/sqlite/dialect.h"
#include "platform/base/region.h"
#include "platform/base/value.h"
#include "platform/data/recordset.h"

struct sqlite3;
struct sqlite3_stmt;

namespace orvendal {

namespace sqlite {
class StatementCache;
class StatementGuard;
class StatementLease;
class StatementShapes;
}  // namespace sqlite

/// kExisting: the file must be there. kCreate: it is made if it is not.
enum class OpenMode { kExisting, kCreate };

/// A link to a store in one SQLite file, which answers as the provider of a dialect. Recordsets are opened on
/// it with the statements of that dialect; the host's own work on the file goes through Execute and
/// SqliteStatement, in plain SQLite. Every statement commits by itself unless the host has said BEGIN.
///
/// Whatever file it is and whatever a statement says, nothing beyond the tables of the file is within reach:
/// see StatementGuard. What a recordset or a SqliteStatement runs raises -2147217911 for an attempt, and
/// -2147217871 when it takes longer than the time for a command.
///
/// Invariant: open from Open until Close; a recordset of a closed connection is closed.
class SqliteConnection final : public Connection {
 public:
  /// Looks at a file that is open, before anything has been written to it; what it raises ends the opening.
  using FirstLook = std::function<void(SqliteConnection& store)>;

  /// Opens the file, or a store in memory of its own for ":memory:". Any other `path` is the name of a file
  /// and nothing else. `region` is how texts given to columns are read and must live as long as the
  /// connection. Raises -2147467259, in plain words, if the file is missing, locked, damaged or no database.
  static std::shared_ptr<SqliteConnection> Open(const std::string& path, Dialect dialect,
                                                const Region& region, OpenMode mode,
                                                const FirstLook& first_look = {});
  SqliteConnection(const SqliteConnection&) = delete;
  SqliteConnection& operator=(const SqliteConnection&) = delete;
  ~SqliteConnection() override;

  std::string Provider() const override;
  void CheckNumber(const std::string& text) const override;
  Dialect GetDialect() const { return dialect_; }
  const Region& GetRegion() const { return region_; }
  const std::string& Path() const { return path_; }

  bool IsOpen() const { return database_ != nullptr; }
  void Close() override;
  /// How long to wait for another program that holds the store, 2,000 milliseconds at first.
  void BusyTimeout(int milliseconds);
  /// How long a statement may run, 30,000 milliseconds at first; 0 for without end.
  void CommandTimeout(int milliseconds);

  /// Runs any number of statements of plain SQLite that the host wrote itself, for as long as they take, and
  /// with any pragma. Raises the store's error at the first that fails; 3709 on a closed connection.
  void Execute(const std::string& native_sql);
  /// Null when closed. It stays the connection's.
  sqlite3* Handle() const { return database_; }

  /// Raises -2147467259 if the file has been moved away or deleted under the open connection; 3709 on a
  /// closed one.
  void CheckInPlace() const;
  const std::shared_ptr<sqlite::StatementCache>& Statements() const { return statements_; }
  sqlite::StatementShapes& Shapes() const { return *shapes_; }

 private:
  SqliteConnection(sqlite3* database, std::string path, Dialect dialect, const Region& region);
  int UseWriteAheadLog();

  sqlite3* database_;
  std::string path_;
  Dialect dialect_;
  const Region& region_;
  std::unique_ptr<sqlite::StatementGuard> guard_;
  std::shared_ptr<sqlite::StatementCache> statements_;
  std::unique_ptr<sqlite::StatementShapes> shapes_;
};

/// One statement of plain SQLite, for the host's own work, to be used once or many times. Must not outlive
/// the connection's being open. The connection keeps it prepared for the next one of the same text.
class SqliteStatement {
 public:
  /// Raises the store's error if `native_sql` cannot be prepared or has a NUL in it. What follows its first
  /// statement is left over: see Rest.
  SqliteStatement(SqliteConnection& connection, std::string_view native_sql);
  SqliteStatement(const SqliteStatement&) = delete;
  SqliteStatement& operator=(const SqliteStatement&) = delete;
  ~SqliteStatement();

  /// Assigns the parameter `index`, from 1. Dates go in the form of the file.
  SqliteStatement& Bind(int index, const Value& value);
  /// Goes to the next row; false at the end. Raises the store's error.
  bool Step();
  /// Runs it to its end and makes it ready for the next use. Parameters keep their values.
  void Run();
  void Reset();

  /// Columns count from 0.
  int ColumnCount() const;
  std::string ColumnName(int column) const;
  Value ValueAt(int column) const;
  /// The column as the engine writes it; empty for Null.
  std::string TextAt(int column) const;
  /// The part of the text after this statement.
  const std::string& Rest() const { return rest_; }
  /// False for a text of blanks and comments alone.
  bool HasStatement() const { return statement_ != nullptr; }

 private:
  SqliteConnection& connection_;
  std::unique_ptr<sqlite::StatementLease> lease_;
  sqlite3_stmt* statement_;  // the lease's
  std::string rest_;
};

/// Makes recordsets for connections of this kind. On any other connection they raise 3709.
class SqliteRecordsetFactory final : public RecordsetFactory {
 public:
  RecordsetRef NewRecordset() override;
};

}  // namespace orvendal
