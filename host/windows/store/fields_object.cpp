#include "host/windows/store/fields_object.h"

#include "adapters/automation/bstr.h"
#include "adapters/automation/enumeration.h"
#include "adapters/automation/variant.h"
#include "host/windows/store/value_variant.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

constexpr GUID kFieldsIdentifiers[] = {ado::kCollection,    ado::kNewerCollection, ado::kFields15,
                                       ado::kNewerFields15, ado::kFields20,        ado::kNewerFields20,
                                       ado::kFields,        ado::kNewerFields};
constexpr DataObjectKind kFieldsKind{L"ADODB.Fields", kFieldsIdentifiers};

constexpr GUID kFieldIdentifiers[] = {ado::kAdo,          ado::kNewerAdo, ado::kField20,
                                      ado::kNewerField20, ado::kField,    ado::kNewerField};
constexpr DataObjectKind kFieldKind{L"ADODB.Field", kFieldIdentifiers};

constexpr std::int32_t kObjectNotValid = 3420;

/// The fields one after another, for For Each.
class FieldEnumeration final : public Enumeration {
 public:
  explicit FieldEnumeration(ComPtr<::Fields> fields) : fields_(std::move(fields)) {}

 private:
  std::size_t Size() const override {
    LONG count = 0;
    Check(fields_->get_Count(&count));
    return static_cast<std::size_t>(count);
  }
  ComPtr<IDispatch> At(std::size_t place) override {
    Variant index;
    WriteLong(*index.Address(), static_cast<LONG>(place));
    ComPtr<::Field> field;
    Check(fields_->get_Item(index.Get(), field.Receive()));
    return ComPtr<IDispatch>(field.Get());
  }
  Enumeration* Copy() const override { return new FieldEnumeration(fields_); }

  ComPtr<::Fields> fields_;
};

}  // namespace

FieldsObject::FieldsObject(RecordsetObject& recordset) noexcept
    : DataObject(kFieldsKind), recordset_(&recordset) {}

FieldsObject::~FieldsObject() {
  recordset_->Forget(this);
}

// fields("Name") = value is an assignment to the field's default property.
HRESULT FieldsObject::Call(const DispatchCall& call) {
  const bool puts = (call.flags & DISPATCH_PROPERTYPUT) != 0 && call.member == DISPID_VALUE;
  if (!puts || call.arguments.cArgs != 2) return DataObject::Call(call);
  ComPtr<::Field> field;
  Check(get_Item(call.arguments.rgvarg[1], field.Receive()));
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS value{call.arguments.rgvarg, &put, 1, 1};
  return CallDefault(*field.Get(), DISPATCH_PROPERTYPUT,
                     {call.member, call.lcid, call.flags, value, call.result, call.exception, call.wrong});
}

HRESULT FieldsObject::get_Count(LONG* result) noexcept {
  return Give(result, [&] { return static_cast<LONG>(recordset_->Rows().FieldCount()); });
}

HRESULT FieldsObject::_NewEnum(IUnknown** result) noexcept {
  return Give(result, [&]() -> IUnknown* { return new FieldEnumeration(ComPtr<::Fields>(this)); });
}

HRESULT FieldsObject::Refresh() noexcept {
  return S_OK;  // they are always as the recordset stands
}

HRESULT FieldsObject::get_Item(VARIANT index, ::Field** result) noexcept {
  return Give(result,
              [&]() -> ::Field* { return new FieldObject(*recordset_.Get(), recordset_->FieldAt(index)); });
}

FieldObject::FieldObject(RecordsetObject& recordset, std::size_t index) noexcept
    : DataObject(kFieldKind), recordset_(&recordset), index_(index), opening_(recordset.Opening()) {}

sqlite::SqliteRecordset& FieldObject::Rows() const {
  if (recordset_->Opening() != opening_ || !recordset_->IsOpen()) {
    throw RuntimeError(kObjectNotValid, "Object is no longer valid.");
  }
  return recordset_->Rows();
}

HRESULT FieldObject::get_Name(BSTR* result) noexcept {
  return Give(result, [&] { return MakeBstr(Rows().FieldName(index_)); });
}

HRESULT FieldObject::get_Type(LONG* result) noexcept {
  return Give(result, [&] { return DataTypeOf(Rows().FieldType(index_), recordset_->GetDialect()); });
}

HRESULT FieldObject::get_DefinedSize(ADO_LONGPTR* result) noexcept {
  return Give(result, [&] { return ADO_LONGPTR{DefinedSizeOf(Rows().FieldType(index_))}; });
}

HRESULT FieldObject::get_Value(VARIANT* result) noexcept {
  return Give(result, [&] {
    const sqlite::SqliteRecordset& rows = Rows();
    return VariantOf(rows.FieldValue(index_), rows.FieldType(index_));
  });
}

HRESULT FieldObject::put_Value(VARIANT value) noexcept {
  return Do([&] {
    Rows();
    const Value read = ValueOf(value);
    Rows().Assign(index_, read);  // asked again: an object's default property may do anything
  });
}

}  // namespace orvendal
