#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/data/recordset.h"

namespace orvendal {

/// An open read-only recordset of one row held in memory, for values that come from no statement, such as a
/// dictionary of captions. It cannot be opened, searched or written.
class MemoryRecordset final : public Recordset {
 public:
  using NamedValue = std::pair<std::string, Value>;
  explicit MemoryRecordset(std::vector<NamedValue> row) : row_(std::move(row)) {}

  /// Replaces the value of a field, or adds the field.
  void Set(const std::string& name, const Value& value);
  void Remove(const std::string& name);

  void Open(const std::string& source, const ConnectionRef& connection, CursorType cursor, LockType lock,
            std::int32_t options) override;
  void Close() override;
  std::int32_t State() const override { return state_; }
  std::int32_t EditMode() const override;
  bool AtEnd() const override;
  void MoveNext() override;
  std::int32_t RecordCount() const override;
  void Find(const std::string& criteria, std::int32_t skip_records, SearchDirection direction) override;
  void AbsolutePosition(std::int32_t position) override;
  std::size_t FieldCount() const override { return state_ == kStateOpen ? row_.size() : 0; }
  std::string FieldName(std::size_t index) const override { return row_[index].first; }
  void AddNew() override;
  void Collect(std::string_view name, const Value& value) override;
  void Update() override;
  void CancelUpdate() override;

 protected:
  std::size_t FieldIndex(std::string_view name) const override;
  Value FieldValue(std::size_t index) const override;

 private:
  void CheckOpen() const;

  std::vector<NamedValue> row_;
  std::int32_t state_ = kStateOpen;
  bool at_end_ = false;
};

}  // namespace orvendal
