#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/sqlite/new_row.h"
#include "adapters/sqlite/row_buffer.h"
#include "adapters/sqlite/sqlite_store.h"
#include "platform/data/recordset.h"

namespace orvendal::sqlite {

/// A recordset over the embedded store.
///
/// A static cursor reads its rows at Open. A dynamic one reads nothing until somebody moves or reads, so that
/// a whole table can be opened to add rows to it; its count is -1 in the SQL Server dialect, exact in Jet's,
/// which answers with a keyset.
///
/// Rows can be added, to the first table of the statement; those that are there cannot be edited (3251).
/// Moving with a new row pending posts it first.
class SqliteRecordset final : public Recordset {
 public:
  void Open(const std::string& source, const ConnectionRef& connection, CursorType cursor, LockType lock,
            std::int32_t options) override;
  void Close() override;
  std::int32_t State() const override;
  std::int32_t EditMode() const override;
  bool AtEnd() const override;
  void MoveNext() override;
  std::int32_t RecordCount() const override;
  void Find(const std::string& criteria, std::int32_t skip_records, SearchDirection direction) override;
  void AbsolutePosition(std::int32_t position) override;
  std::size_t FieldCount() const override;
  std::string FieldName(std::size_t index) const override;
  void AddNew() override;
  void Collect(std::string_view name, const Value& value) override;
  void Update() override;
  void CancelUpdate() override;

  // What hosts and scripts use beyond the interface.

  /// Before the first row, or no row at all.
  bool AtStart() const;
  /// These raise 3021 if there is no row, MovePrevious before the first one.
  void MoveFirst();
  void MovePrevious();
  void MoveLast();
  /// The number of the current row, from 1, or why there is none: -1 unknown (a new row, a cursor that does
  /// not count), -2 before the first row, -3 past the last.
  std::int64_t Position() const;
  std::size_t FieldIndex(std::string_view name) const override;
  Value FieldValue(std::size_t index) const override;
  const ColumnType& FieldType(std::size_t index) const;
  /// As Collect.
  void Assign(std::size_t field, const Value& value);

 private:
  // Positions where there is no row.
  static constexpr std::int64_t kBeforeFirst = -1;
  static constexpr std::int64_t kAfterLast = -2;

  // What an open recordset has.
  struct Contents {
    std::shared_ptr<SqliteConnection> connection;
    CursorType cursor;
    LockType lock;
    std::shared_ptr<const ResultColumns> columns;
    RowBuffer rows;
    NewRow new_row;
    std::int64_t position = 0;        // of the current row, from 0
    bool on_posted_row = false;       // the row last added is current and stands past the rows read
    std::vector<Value> posted_row{};  // read when it is asked for
  };

  Contents& Opened() const;
  bool OnRow(Contents& contents) const;
  static bool KnowsPositions(const Contents& contents);
  static void StandOn(Contents& contents, std::int64_t position);
  Value Cell(Contents& contents, std::size_t field) const;
  void PostPending(Contents& contents);

  mutable std::optional<Contents> contents_;
};

}  // namespace orvendal::sqlite
