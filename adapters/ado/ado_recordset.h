#pragma once

#include <string>
#include <vector>

#include "adapters/automation/com_ptr.h"
#include "data_objects.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// The core's view of a recordset object of ADO's. Everything that the core asks is asked of the object; what
/// it answers, errors included, is ADO's and the provider's own.
///
/// Invariants: a new row is pending from an AddNew that ADO accepted until ADO posts or drops it. Fields are
/// kept by name only for a statement that was opened here: nobody else can put another in its place.
class AdoRecordset final : public Recordset {
 public:
  explicit AdoRecordset(ComPtr<Recordset15> object) : object_(std::move(object)) {}
  /// `object` by any identifier of ADO's recordset interface; empty if it answers to none.
  static ComPtr<Recordset15> InterfaceOf(IUnknown* object);

  /// Raises 13 for a connection that is not ADO's.
  void Open(const std::string& source, const ConnectionRef& connection, CursorType cursor, LockType lock,
            std::int32_t options) override;
  void Close() override;
  std::int32_t State() const override;
  /// Knows of the rows that were added here only.
  std::int32_t EditMode() const override;
  bool AtEnd() const override;
  void MoveNext() override;
  /// Raises 6 for a count beyond 32 bits.
  std::int32_t RecordCount() const override;
  void Find(const std::string& criteria, std::int32_t skip_records, SearchDirection direction) override;
  void AbsolutePosition(std::int32_t position) override;
  std::size_t FieldCount() const override;
  std::string FieldName(std::size_t index) const override;
  void AddNew() override;
  void Collect(std::string_view name, const Value& value) override;
  void Update() override;
  void CancelUpdate() override;

  /// Borrowed.
  IDispatch* Object() const { return object_.Get(); }

 protected:
  std::size_t FieldIndex(std::string_view name) const override;
  Value FieldValue(std::size_t index) const override;

 private:
  // A field's object follows the current row, so that one for each name serves all rows.
  struct NamedField {
    std::string name;
    ComPtr<::Field> object;
  };

  ComPtr<::Fields> FieldList() const;
  ComPtr<::Field> FieldObject(const VARIANT& index) const;
  void ForgetStatement();

  ComPtr<Recordset15> object_;
  mutable std::vector<NamedField> fields_;
  bool opened_here_ = false;
  bool pending_ = false;
};

}  // namespace orvendal
