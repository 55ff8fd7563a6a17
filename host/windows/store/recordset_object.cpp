#include "host/windows/store/recordset_object.h"

#include <limits>

#include "adapters/automation/bstr.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/variant.h"
#include "host/windows/store/fields_object.h"
#include "host/windows/store/value_variant.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

constexpr GUID kIdentifiers[] = {
    ado::kAdo,         ado::kNewerAdo,         ado::kRecordset15, ado::kNewerRecordset15,
    ado::kRecordset20, ado::kNewerRecordset20, ado::kRecordset21, ado::kNewerRecordset21,
    ado::kRecordset,   ado::kNewerRecordset};
constexpr DataObjectKind kKind{L"ADODB.Recordset", kIdentifiers};

constexpr DISPID kCollect = -8;

bool IsGiven(const VARIANT& argument) {
  return !IsOmitted(argument) && V_VT(&argument) != VT_EMPTY;
}

}  // namespace

RecordsetObject::RecordsetObject() noexcept
    : RecordsetPlaces(kKind),
      cursor_(cursor_type::kForwardOnly),
      lock_(lock_type::kReadOnly),
      cursor_location_(cursor_location::kServer) {}

void RecordsetObject::RequireOpen() const {
  if (!IsOpen()) throw AdoError(ado_error::kObjectClosed);
}

void RecordsetObject::RequireClosed() const {
  if (IsOpen()) throw AdoError(ado_error::kObjectOpen);
}

bool RecordsetObject::CountsRows() const {
  return cursor_ != cursor_type::kForwardOnly || cursor_location_ == cursor_location::kClient;
}

Dialect RecordsetObject::GetDialect() const {
  return connection_->Store()->GetDialect();
}

std::size_t RecordsetObject::FieldAt(const VARIANT& index) const {
  std::string name;
  LONG number = 0;
  Variant plain;
  if (FAILED(ReadDirect(index, plain))) throw AdoError(ado_error::kInvalidArgument);
  if (V_VT(&plain.Get()) == VT_BSTR) {
    return rows_.FieldIndex(TextOfBstr(V_BSTR(&plain.Get())));
  }
  if (FAILED(ReadLong(plain.Get(), LOCALE_USER_DEFAULT, number))) throw AdoError(ado_error::kInvalidArgument);
  if (number < 0 || static_cast<std::size_t>(number) >= rows_.FieldCount()) {
    throw AdoError(ado_error::kItemNotFound);
  }
  return static_cast<std::size_t>(number);
}

void RecordsetObject::Forget(const FieldsObject* fields) {
  if (fields_ == fields) fields_ = nullptr;
}

// A script's rs("Name") and rs.Fields("Name") come as the default property with an argument more than it has.
HRESULT RecordsetObject::Call(const DispatchCall& call) {
  const bool indexed = call.member == DISPID_VALUE && call.arguments.cArgs == (call.Puts() ? 2U : 1U);
  if (indexed && call.Puts()) {
    return RecordsetPlaces::Call(
        {kCollect, call.lcid, DISPATCH_PROPERTYPUT, call.arguments, call.result, call.exception, call.wrong});
  }
  if (!indexed || call.arguments.cNamedArgs != 0) return RecordsetPlaces::Call(call);
  ComPtr<::Fields> fields;
  Check(get_Fields(fields.Receive()));
  return CallDefault(*fields.Get(), DISPATCH_PROPERTYGET, call);
}

HRESULT RecordsetObject::get_AbsolutePosition(ADO_LONGPTR* result) noexcept {
  return Give(result, [&] {
    RequireOpen();
    return static_cast<ADO_LONGPTR>(CountsRows() ? rows_.Position() : -1);
  });
}

HRESULT RecordsetObject::put_AbsolutePosition(ADO_LONGPTR position) noexcept {
  return Do([&] {
    RequireOpen();
    if (!CountsRows()) RaiseNotProvided();
    if (position > std::numeric_limits<std::int32_t>::max() || position < 1) {
      throw AdoError(ado_error::kInvalidArgument);
    }
    rows_.AbsolutePosition(static_cast<std::int32_t>(position));
  });
}

HRESULT RecordsetObject::get_RecordCount(ADO_LONGPTR* result) noexcept {
  return Give(result, [&] {
    RequireOpen();
    return static_cast<ADO_LONGPTR>(CountsRows() ? rows_.RecordCount() : -1);
  });
}

HRESULT RecordsetObject::get_BOF(VARIANT_BOOL* result) noexcept {
  return Give(result, [&] { return FlagOf(rows_.AtStart()); });
}

HRESULT RecordsetObject::get_EOF(VARIANT_BOOL* result) noexcept {
  return Give(result, [&] { return FlagOf(rows_.AtEnd()); });
}

HRESULT RecordsetObject::MoveNext() noexcept {
  return Do([&] { rows_.MoveNext(); });
}

HRESULT RecordsetObject::MovePrevious() noexcept {
  return Do([&] { rows_.MovePrevious(); });
}

HRESULT RecordsetObject::MoveFirst() noexcept {
  return Do([&] { rows_.MoveFirst(); });
}

HRESULT RecordsetObject::MoveLast() noexcept {
  return Do([&] { rows_.MoveLast(); });
}

HRESULT RecordsetObject::Find(BSTR criteria, LONG skip, LONG direction, VARIANT start) noexcept {
  return Do([&] {
    RequireOpen();
    if (IsGiven(start)) RaiseNotProvided();
    const bool forward = direction == static_cast<LONG>(SearchDirection::kForward);
    if (!forward && direction != static_cast<LONG>(SearchDirection::kBackward)) {
      throw AdoError(ado_error::kInvalidArgument);
    }
    rows_.Find(TextOfBstr(criteria), skip, forward ? SearchDirection::kForward : SearchDirection::kBackward);
  });
}

HRESULT RecordsetObject::AddNew(VARIANT fields, VARIANT values) noexcept {
  return Do([&] {
    RequireOpen();
    if (IsGiven(fields) || IsGiven(values)) RaiseNotProvided();
    rows_.AddNew();
  });
}

HRESULT RecordsetObject::Update(VARIANT fields, VARIANT values) noexcept {
  return Do([&] {
    RequireOpen();
    if (IsGiven(fields) || IsGiven(values)) RaiseNotProvided();
    rows_.Update();
  });
}

HRESULT RecordsetObject::CancelUpdate() noexcept {
  return Do([&] { rows_.CancelUpdate(); });
}

HRESULT RecordsetObject::get_EditMode(LONG* result) noexcept {
  return Give(result, [&] { return LONG{rows_.EditMode()}; });
}

HRESULT RecordsetObject::get_Fields(::Fields** result) noexcept {
  return Give(result, [&]() -> ::Fields* {
    if (!fields_) {
      fields_ = new FieldsObject(*this);
      return fields_;
    }
    fields_->AddRef();
    return fields_;
  });
}

HRESULT RecordsetObject::get_Collect(VARIANT index, VARIANT* result) noexcept {
  return Give(result, [&] {
    RequireOpen();
    const std::size_t field = FieldAt(index);
    return VariantOf(rows_.FieldValue(field), rows_.FieldType(field));
  });
}

HRESULT RecordsetObject::put_Collect(VARIANT index, VARIANT value) noexcept {
  return Do([&] {
    RequireOpen();
    const std::size_t field = FieldAt(index);
    const unsigned opening = opening_;
    const Value read = ValueOf(value);
    // An object that was asked for its value may have closed the recordset.
    if (opening != opening_) throw AdoError(ado_error::kObjectClosed);
    rows_.Assign(field, read);
  });
}

HRESULT RecordsetObject::Cancel() noexcept {
  return Do([&] { RequireOpen(); });  // nothing ever runs on
}

}  // namespace orvendal
