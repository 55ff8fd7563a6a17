#include "platform/data/memory_recordset.h"

#include <algorithm>

#include "platform/base/text.h"
#include "platform/data/ado_error.h"

namespace orvendal {

void MemoryRecordset::Set(const std::string& name, const Value& value) {
  for (NamedValue& field : row_) {
    if (EqualsIgnoringCase(field.first, name)) {
      field.second = value;
      return;
    }
  }
  row_.emplace_back(name, value);
}

void MemoryRecordset::Remove(const std::string& name) {
  std::erase_if(row_, [&name](const NamedValue& field) { return EqualsIgnoringCase(field.first, name); });
}

void MemoryRecordset::CheckOpen() const {
  if (state_ == kStateClosed) throw AdoError(ado_error::kObjectClosed);
}

void MemoryRecordset::Close() {
  CheckOpen();
  state_ = kStateClosed;
}

std::int32_t MemoryRecordset::EditMode() const {
  CheckOpen();
  return 0;
}

bool MemoryRecordset::AtEnd() const {
  CheckOpen();
  return at_end_;
}

std::int32_t MemoryRecordset::RecordCount() const {
  CheckOpen();
  return 1;
}

void MemoryRecordset::Open(const std::string&, const ConnectionRef&, CursorType, LockType, std::int32_t) {
  throw AdoError(state_ == kStateOpen ? ado_error::kObjectOpen : ado_error::kInvalidConnection);
}

void MemoryRecordset::MoveNext() {
  CheckOpen();
  if (at_end_) throw AdoError(ado_error::kEitherBofOrEof);
  at_end_ = true;
}

void MemoryRecordset::Find(const std::string&, std::int32_t, SearchDirection) {
  CheckOpen();
  throw AdoError(ado_error::kFeatureNotAvailable);
}

void MemoryRecordset::AbsolutePosition(std::int32_t position) {
  CheckOpen();
  if (position != 1) throw AdoError(ado_error::kInvalidArgument);
  at_end_ = false;
}

void MemoryRecordset::AddNew() {
  CheckOpen();
  throw AdoError(ado_error::kFeatureNotAvailable);
}
void MemoryRecordset::Collect(std::string_view, const Value&) {
  CheckOpen();
  throw AdoError(ado_error::kFeatureNotAvailable);
}
void MemoryRecordset::Update() {
  CheckOpen();
  throw AdoError(ado_error::kFeatureNotAvailable);
}
void MemoryRecordset::CancelUpdate() {
  CheckOpen();
  throw AdoError(ado_error::kFeatureNotAvailable);
}

std::size_t MemoryRecordset::FieldIndex(std::string_view name) const {
  for (std::size_t i = 0; i < FieldCount(); ++i) {
    if (EqualsIgnoringCase(row_[i].first, name)) return i;
  }
  throw AdoError(ado_error::kItemNotFound);
}

Value MemoryRecordset::FieldValue(std::size_t index) const {
  CheckOpen();
  if (at_end_) throw AdoError(ado_error::kEitherBofOrEof);
  return row_[index].second;
}

}  // namespace orvendal
