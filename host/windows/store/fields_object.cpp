#include "host/windows/store/fields_object.h"

#include <new>

#include "adapters/automation/bstr.h"
#include "adapters/automation/variant.h"
#include "host/windows/store/value_variant.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

constexpr GUID kFieldsIdentifiers[] = {ado::kCollection,    ado::kNewerCollection, ado::kFields15,
                                       ado::kNewerFields15, ado::kFields20,        ado::kNewerFields20,
                                       ado::kFields,        ado::kNewerFields};
constexpr DataObjectKind kFieldsKind{L"ADODB.Fields", ado::kFields, kFieldsIdentifiers};

constexpr GUID kFieldIdentifiers[] = {ado::kAdo,          ado::kNewerAdo, ado::kField20,
                                      ado::kNewerField20, ado::kField,    ado::kNewerField};
constexpr DataObjectKind kFieldKind{L"ADODB.Field", ado::kField, kFieldIdentifiers};

constexpr std::int32_t kObjectNotValid = 3420;

/// The fields one after another, for For Each.
class FieldEnumerator final : public Counted<IEnumVARIANT> {
 public:
  FieldEnumerator(const ComPtr<::Fields>& fields, LONG next) : fields_(fields), next_(next) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IEnumVARIANT) return E_NOINTERFACE;
    AddRef();
    *object = static_cast<IEnumVARIANT*>(this);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* fields, ULONG* fetched) noexcept override {
    if (fetched) *fetched = 0;
    if (!fields) return E_POINTER;
    ULONG given = 0;
    for (; given < count && next_ < Count(); ++given, ++next_) {
      VARIANT index;
      VariantInit(&index);
      WriteLong(index, next_);
      ComPtr<::Field> field;
      const HRESULT result = fields_->get_Item(index, field.Receive());
      if (FAILED(result)) return result;
      VariantInit(&fields[given]);
      WriteObject(fields[given], ComPtr<IDispatch>::Adopt(field.Detach()));
      if (fetched) *fetched = given + 1;
    }
    return given == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
    const auto left = static_cast<ULONG>(Count() - next_);
    next_ += static_cast<LONG>(count < left ? count : left);
    return count <= left ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override {
    next_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) noexcept override {
    if (!copy) return E_POINTER;
    *copy = new (std::nothrow) FieldEnumerator(fields_, next_);
    return *copy ? S_OK : E_OUTOFMEMORY;
  }

 private:
  LONG Count() const noexcept {
    LONG count = 0;
    fields_->get_Count(&count);
    return count < next_ ? next_ : count;
  }

  ComPtr<::Fields> fields_;
  LONG next_;
};

}  // namespace

FieldsObject::FieldsObject(RecordsetObject& recordset) noexcept
    : DataObject(kFieldsKind), recordset_(&recordset) {}

FieldsObject::~FieldsObject() {
  recordset_->Forget(this);
}

// fields("Name") = value is an assignment to the field's default property.
HRESULT FieldsObject::Invoke(DISPID member, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* arguments,
                             VARIANT* result, EXCEPINFO* exception, UINT* wrong) noexcept {
  const bool puts = (flags & DISPATCH_PROPERTYPUT) != 0 && member == DISPID_VALUE && arguments &&
                    arguments->cArgs == 2 && arguments->rgvarg && IsReserved(iid);
  if (!puts) return DataObject::Invoke(member, iid, lcid, flags, arguments, result, exception, wrong);
  const ComPtr<IUnknown> self(static_cast<::Fields*>(this));
  ComPtr<::Field> field;
  HRESULT done = get_Item(arguments->rgvarg[1], field.Receive());
  if (SUCCEEDED(done)) done = field->put_Value(arguments->rgvarg[0]);
  return FAILED(done) ? AsInvokeFailure(done, exception) : S_OK;
}

HRESULT FieldsObject::get_Count(LONG* result) noexcept {
  return Give(result, [&] { return static_cast<LONG>(recordset_->Rows().FieldCount()); });
}

HRESULT FieldsObject::_NewEnum(IUnknown** result) noexcept {
  return Give(result, [&]() -> IUnknown* { return new FieldEnumerator(ComPtr<::Fields>(this), 0); });
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
    const ComPtr<IUnknown> self(static_cast<::Field*>(this));
    Rows();
    const Value read = ValueOf(value);
    Rows().Assign(index_, read);  // asked again: an object's default property may do anything
  });
}

}  // namespace orvendal
