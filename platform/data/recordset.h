#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/base/value.h"

namespace orvendal {

enum class CursorType : std::int32_t { kDynamic = 2, kStatic = 3 };
enum class LockType : std::int32_t { kReadOnly = 1, kOptimistic = 3 };
enum class SearchDirection : std::int32_t { kForward = 1, kBackward = -1 };

inline constexpr std::int32_t kStateClosed = 0;
inline constexpr std::int32_t kStateOpen = 1;
inline constexpr std::int32_t kCommandUnspecified = -1;

/// An open link to the store.
class Connection {
 public:
  virtual ~Connection() = default;
  /// Name and version of the provider behind it, such as "SQLOLEDB.1".
  virtual std::string Provider() const = 0;
  /// Raises what the assignment of `text` to a number field of this store raises, if it cannot be a number.
  /// A store that cannot tell beforehand takes every text here.
  virtual void CheckNumber(const std::string& text) const;
  /// Ends the link for everybody who holds it: recordsets opened on it afterwards raise 3709. Raises what the
  /// store objects to, an open transaction for one.
  virtual void Close();
};

using ConnectionRef = std::shared_ptr<Connection>;

class Recordset;

/// One field of a recordset's current row. Lives no longer than the recordset and its statement.
class Field {
 public:
  Field(const Recordset& recordset, std::size_t index) : recordset_(&recordset), index_(index) {}
  /// Raises 3021 where there is no current row, 6 where the stored number is
  /// infinite or not a number (NaN).
  class Value Value() const;

 private:
  const Recordset* recordset_;
  std::size_t index_;
};

/// A set of rows with a current one, opened by a statement. A new one is closed.
///
/// Invariants: State is 0 (closed) or 1 (open). While closed, everything but State, Open and Fields raises
/// 3704. A closed one has no fields. EditMode is 2 from AddNew until Update, CancelUpdate or Close.
///
/// Errors of the store carry the provider's number (ado_error.h). Field names are looked up without regard to
/// case.
class Recordset {
 public:
  virtual ~Recordset() = default;

  /// Runs `source` on `connection` and stands on the first row. A statement without rows leaves the recordset
  /// closed, ready to be opened at once. Raises 3705 if it is open, 3709 without an open connection.
  virtual void Open(const std::string& source, const ConnectionRef& connection, CursorType cursor,
                    LockType lock, std::int32_t options) = 0;
  /// Drops a new row that is pending.
  virtual void Close() = 0;
  virtual std::int32_t State() const = 0;
  virtual std::int32_t EditMode() const = 0;

  /// Past the last row, or no row at all (what the platform calls EOF, a macro of the C library).
  virtual bool AtEnd() const = 0;
  /// Past the last row it raises 3021.
  virtual void MoveNext() = 0;
  /// The true count with a static cursor; -1 where the provider cannot tell.
  virtual std::int32_t RecordCount() const = 0;
  /// Goes to the first row, from the current one on, that meets "field operator value"; to the end if none
  /// does. Raises 3021 where there is no current row.
  virtual void Find(const std::string& criteria, std::int32_t skip_records, SearchDirection direction) = 0;
  /// Makes row `position`, from 1, the current one. Raises 3251 if the cursor cannot.
  virtual void AbsolutePosition(std::int32_t position) = 0;

  /// Raises 3265 for a name that the row does not have.
  Field Fields(std::string_view name) const { return Field(*this, FieldIndex(name)); }
  virtual std::size_t FieldCount() const = 0;
  virtual std::string FieldName(std::size_t index) const = 0;

  /// Starts a new row, which becomes the current one. Raises 3251 if the lock is read-only.
  virtual void AddNew() = 0;
  /// Assigns a field of the current row.
  virtual void Collect(std::string_view name, const Value& value) = 0;
  /// Hands the pending row to the store. If the store refuses it, the row stays pending.
  virtual void Update() = 0;
  virtual void CancelUpdate() = 0;

 protected:
  friend class Field;
  virtual std::size_t FieldIndex(std::string_view name) const = 0;
  virtual Value FieldValue(std::size_t index) const = 0;
};

using RecordsetRef = std::shared_ptr<Recordset>;

/// Makes recordsets, each new and closed.
class RecordsetFactory {
 public:
  virtual ~RecordsetFactory() = default;
  virtual RecordsetRef NewRecordset() = 0;
};

}  // namespace orvendal
