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

void MemoryRecordset::Open(const std::string&, const ConnectionRef&, CursorType, LockType, std::int32_t) {
  throw AdoError(state_ == kStateOpen ? ado_error::kObjectOpen : ado_error::kInvalidConnection);
}

void MemoryRecordset::MoveNext() {
  if (at_end_) throw AdoError(ado_error::kEitherBofOrEof);
  at_end_ = true;
}

void MemoryRecordset::Find(const std::string&, std::int32_t, SearchDirection) {
  throw AdoError(ado_error::kFeatureNotAvailable);
}

void MemoryRecordset::AbsolutePosition(std::int32_t position) {
  if (position != 1) throw AdoError(ado_error::kInvalidArgument);
  at_end_ = false;
}

void MemoryRecordset::AddNew() {
  throw AdoError(ado_error::kFeatureNotAvailable);
}
void MemoryRecordset::Collect(std::string_view, const Value&) {
  throw AdoError(ado_error::kFeatureNotAvailable);
}
void MemoryRecordset::Update() {
  throw AdoError(ado_error::kFeatureNotAvailable);
}
void MemoryRecordset::CancelUpdate() {
  throw AdoError(ado_error::kFeatureNotAvailable);
}

std::size_t MemoryRecordset::FieldIndex(std::string_view name) const {
  for (std::size_t i = 0; i < row_.size(); ++i) {
    if (EqualsIgnoringCase(row_[i].first, name)) return i;
  }
  throw AdoError(ado_error::kItemNotFound);
}

Value MemoryRecordset::FieldValue(std::size_t index) const {
  if (at_end_) throw AdoError(ado_error::kEitherBofOrEof);
  return row_[index].second;
}

}  // namespace orvendal
