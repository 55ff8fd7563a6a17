#include "adapters/ado/ado_recordset.h"

#include <algorithm>
#include <limits>

#include "adapters/ado/ado_call.h"
#include "adapters/ado/ado_identity.h"
#include "adapters/ado/ado_value.h"
#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/bstr.h"
#include "platform/data/ado_error.h"

namespace orvendal {

namespace {

constexpr std::int32_t kEditNone = 0;
constexpr std::int32_t kEditAdd = 2;

}  // namespace

ComPtr<Recordset15> AdoRecordset::InterfaceOf(IUnknown* object) {
  return ado::QueryAny<Recordset15>(
      object, {ado::kRecordset, ado::kNewerRecordset, ado::kRecordset21, ado::kNewerRecordset21,
               ado::kRecordset20, ado::kNewerRecordset20, ado::kRecordset15, ado::kNewerRecordset15});
}

void AdoRecordset::Open(const std::string& source, const ConnectionRef& connection, CursorType cursor,
                        LockType lock, std::int32_t options) {
  Variant text;
  WriteText(*text.Address(), source);
  Variant link;
  WriteObject(*link.Address(), ComPtr<IDispatch>(Unwrap(connection)));
  Ask([&] {
    return object_->Open(text.Get(), link.Get(), static_cast<long>(cursor), static_cast<long>(lock), options);
  });
  ForgetStatement();
  opened_here_ = true;
}

// ADO refuses to close while a new row is pending. Whether one is, is kept here: EditMode, which would tell,
// is none of the operations that the screen's store has to offer. If the row cannot be dropped, the close
// says why.
void AdoRecordset::Close() {
  if (pending_) pending_ = FAILED(object_->CancelUpdate());
  Ask([&] { return object_->Close(); });
  ForgetStatement();
}

void AdoRecordset::ForgetStatement() {
  fields_.clear();
  opened_here_ = false;
  pending_ = false;
}

std::int32_t AdoRecordset::State() const {
  long state = kStateClosed;
  Ask([&] { return object_->get_State(&state); });
  return state;
}

std::int32_t AdoRecordset::EditMode() const {
  if (State() == kStateClosed) throw AdoError(ado_error::kObjectClosed);
  return pending_ ? kEditAdd : kEditNone;
}

bool AdoRecordset::AtEnd() const {
  VARIANT_BOOL at_end = VARIANT_FALSE;
  Ask([&] { return object_->get_EOF(&at_end); });
  return at_end != VARIANT_FALSE;
}

// Moving posts a pending row.
void AdoRecordset::MoveNext() {
  Ask([&] { return object_->MoveNext(); });
  pending_ = false;
}

std::int32_t AdoRecordset::RecordCount() const {
  ADO_LONGPTR count = 0;
  Ask([&] { return object_->get_RecordCount(&count); });
  if (count < std::numeric_limits<std::int32_t>::min() || count > std::numeric_limits<std::int32_t>::max()) {
    throw RuntimeError(error_number::kOverflow);
  }
  return static_cast<std::int32_t>(count);
}

void AdoRecordset::Find(const std::string& criteria, std::int32_t skip_records, SearchDirection direction) {
  const BstrCell text(criteria);
  const ado::Omitted start;
  Ask([&] { return object_->Find(text.Get(), skip_records, static_cast<long>(direction), start.Get()); });
  pending_ = false;
}

void AdoRecordset::AbsolutePosition(std::int32_t position) {
  Ask([&] { return object_->put_AbsolutePosition(position); });
  pending_ = false;
}

ComPtr<::Fields> AdoRecordset::FieldList() const {
  ComPtr<::Fields> list;
  Ask([&] { return object_->get_Fields(list.Receive()); });
  if (!list) throw RuntimeError(error_number::kObjectNotSet);
  return list;
}

ComPtr<::Field> AdoRecordset::FieldObject(const VARIANT& index) const {
  const ComPtr<::Fields> list = FieldList();
  ComPtr<::Field> field;
  Ask([&] { return list->get_Item(index, field.Receive()); });
  if (!field) throw RuntimeError(error_number::kObjectNotSet);
  return field;
}

std::size_t AdoRecordset::FieldCount() const {
  const ComPtr<::Fields> list = FieldList();
  long count = 0;
  Ask([&] { return list->get_Count(&count); });
  return static_cast<std::size_t>(std::max(count, 0L));
}

std::string AdoRecordset::FieldName(std::size_t index) const {
  Variant number;
  WriteLong(*number.Address(), static_cast<LONG>(index));
  const ComPtr<::Field> field = FieldObject(number.Get());
  BstrCell name;
  Ask([&] { return field->get_Name(name.InOut()); });
  return name.Text();
}

std::size_t AdoRecordset::FieldIndex(std::string_view name) const {
  auto known = std::find_if(fields_.begin(), fields_.end(),
                            [name](const NamedField& field) { return field.name == name; });
  if (known == fields_.end() || !opened_here_) {
    Variant text;
    WriteText(*text.Address(), std::string(name));
    ComPtr<::Field> object = FieldObject(text.Get());
    if (known == fields_.end()) known = fields_.insert(known, {std::string(name), {}});
    known->object = std::move(object);
  }
  return static_cast<std::size_t>(known - fields_.begin());
}

Value AdoRecordset::FieldValue(std::size_t index) const {
  if (index >= fields_.size()) throw AdoError(ado_error::kItemNotFound);
  const ComPtr<::Field> field = fields_[index].object;
  Variant value;
  Ask([&] { return field->get_Value(value.Address()); });
  return ValueOf(value.Get(), LOCALE_USER_DEFAULT);
}

void AdoRecordset::AddNew() {
  const ado::Omitted fields;
  const ado::Omitted values;
  Ask([&] { return object_->AddNew(fields.Get(), values.Get()); });
  pending_ = true;
}

void AdoRecordset::Collect(std::string_view name, const Value& value) {
  Variant index;
  WriteText(*index.Address(), std::string(name));
  Variant content;
  WriteValue(*content.Address(), value);
  Ask([&] { return object_->put_Collect(index.Get(), content.Get()); });
}

void AdoRecordset::Update() {
  const ado::Omitted fields;
  const ado::Omitted values;
  Ask([&] { return object_->Update(fields.Get(), values.Get()); });
  pending_ = false;
}

void AdoRecordset::CancelUpdate() {
  Ask([&] { return object_->CancelUpdate(); });
  pending_ = false;
}

}  // namespace orvendal
