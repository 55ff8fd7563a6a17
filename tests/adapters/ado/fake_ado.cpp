#include "tests/adapters/ado/fake_ado.h"

#include <algorithm>
#include <cstdio>

#include "adapters/automation/bstr.h"

namespace orvendal::ado_testing {
namespace {

// Texts among the values stand as pointers to literals; the copies that go out are the caller's to free.
void CopyOut(const VARIANT& value, VARIANT* copy) {
  *copy = value;
  if (V_VT(&value) == VT_BSTR && V_BSTR(&value)) V_BSTR(copy) = SysAllocString(V_BSTR(&value));
}

std::string Shown(BSTR text) {
  return "'" + TextOfBstr(text) + "'";
}

std::string Shown(const VARIANT& value) {
  char number[64];
  switch (V_VT(&value)) {
    case VT_BSTR:
      return Shown(V_BSTR(&value));
    case VT_NULL:
      return "Null";
    case VT_R8:
      std::snprintf(number, sizeof number, "R8 %.15g", V_R8(&value));
      return number;
    case VT_DATE:
      std::snprintf(number, sizeof number, "DATE %.10g", V_DATE(&value));
      return number;
    case VT_I4:
      std::snprintf(number, sizeof number, "I4 %ld", static_cast<long>(V_I4(&value)));
      return number;
    case VT_DISPATCH:
      return V_DISPATCH(&value) ? "object" : "nothing";
    case VT_ERROR:
      return V_ERROR(&value) == DISP_E_PARAMNOTFOUND ? "missing" : "an error";
    default:
      std::snprintf(number, sizeof number, "type %d", V_VT(&value));
      return number;
  }
}

void LeaveDescription(const wchar_t* description) {
  ICreateErrorInfo* made = nullptr;
  CreateErrorInfo(&made);
  made->SetDescription(const_cast<LPOLESTR>(description));
  IErrorInfo* info = nullptr;
  made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info));
  SetErrorInfo(0, info);
  info->Release();
  made->Release();
}

HRESULT STDMETHODCALLTYPE GetProvider(FakeConnection* self, BSTR* name) {
  const HRESULT result = self->provider.Called("Provider");
  const bool named = SUCCEEDED(result) && !self->provider.null_provider_name;
  *name = named ? SysAllocString(self->provider.provider.c_str()) : nullptr;
  return result;
}

HRESULT STDMETHODCALLTYPE PutAbsolutePosition(FakeRecordset* self, LONG_PTR position) {
  return self->provider.Called("AbsolutePosition", std::to_string(position));
}
HRESULT STDMETHODCALLTYPE GetAtEnd(FakeRecordset* self, VARIANT_BOOL* at_end) {
  *at_end = self->provider.at_end;
  return self->provider.Called("EOF");
}
HRESULT STDMETHODCALLTYPE GetFields(FakeRecordset* self, void** fields) {
  const HRESULT result = self->provider.Called("Fields");
  const bool given = SUCCEEDED(result) && !self->provider.null_objects;
  *fields = given ? new FakeFields(self->provider) : nullptr;
  return result;
}
HRESULT STDMETHODCALLTYPE GetRecordCount(FakeRecordset* self, LONG_PTR* count) {
  *count = self->provider.record_count;
  return self->provider.Called("RecordCount");
}
HRESULT STDMETHODCALLTYPE AddNew(FakeRecordset* self, VARIANT fields, VARIANT values) {
  return self->provider.Called("AddNew", Shown(fields) + ", " + Shown(values));
}
HRESULT STDMETHODCALLTYPE CancelUpdate(FakeRecordset* self) {
  return self->provider.Called("CancelUpdate");
}
HRESULT STDMETHODCALLTYPE Close(FakeRecordset* self) {
  return self->provider.Called("Close");
}
HRESULT STDMETHODCALLTYPE MoveNext(FakeRecordset* self) {
  return self->provider.Called("MoveNext");
}
HRESULT STDMETHODCALLTYPE Open(FakeRecordset* self, VARIANT source, VARIANT connection, LONG cursor,
                               LONG lock, LONG options) {
  return self->provider.Called("Open", Shown(source) + ", " + Shown(connection) + ", " +
                                           std::to_string(cursor) + ", " + std::to_string(lock) + ", " +
                                           std::to_string(options));
}
HRESULT STDMETHODCALLTYPE Update(FakeRecordset* self, VARIANT fields, VARIANT values) {
  return self->provider.Called("Update", Shown(fields) + ", " + Shown(values));
}
HRESULT STDMETHODCALLTYPE GetState(FakeRecordset* self, LONG* state) {
  *state = self->provider.state;
  return self->provider.Called("State");
}
HRESULT STDMETHODCALLTYPE PutCollect(FakeRecordset* self, VARIANT index, VARIANT value) {
  return self->provider.Called("Collect", Shown(index) + ", " + Shown(value));
}
HRESULT STDMETHODCALLTYPE Find(FakeRecordset* self, BSTR criteria, LONG skipped, LONG direction,
                               VARIANT start) {
  return self->provider.Called("Find", Shown(criteria) + ", " + std::to_string(skipped) + ", " +
                                           std::to_string(direction) + ", " + Shown(start));
}

HRESULT STDMETHODCALLTYPE GetCount(FakeFields* self, LONG* count) {
  *count = static_cast<LONG>(self->provider.values.size());
  return self->provider.Called("Count");
}
HRESULT STDMETHODCALLTYPE GetItem(FakeFields* self, VARIANT index, void** field) {
  *field = nullptr;
  FakeProvider& provider = self->provider;
  const HRESULT result = provider.Called("Item", Shown(index));
  if (FAILED(result) || provider.null_objects) return result;
  auto found = provider.values.end();
  if (V_VT(&index) == VT_BSTR) {
    found = provider.values.find(TextOfBstr(V_BSTR(&index)));
  } else if (V_I4(&index) < static_cast<LONG>(provider.values.size())) {
    found = std::next(provider.values.begin(), V_I4(&index));
  }
  if (found == provider.values.end()) return static_cast<HRESULT>(0x800A0CC1);
  *field = new FakeField(provider, found->first);
  return S_OK;
}

HRESULT STDMETHODCALLTYPE GetName(FakeField* self, BSTR* name) {
  *name = SysAllocString(WideText(self->name).c_str());
  return self->provider.Called("Name");
}
HRESULT STDMETHODCALLTYPE GetValue(FakeField* self, VARIANT* value) {
  VariantInit(value);
  const HRESULT result = self->provider.Called("Value", self->name);
  if (SUCCEEDED(result)) CopyOut(self->provider.values[self->name], value);
  return result;
}

const auto connection_table = MakeTable<FakeConnection, 37>({{32, Slot(GetProvider)}});
const auto recordset_table = MakeTable<FakeRecordset, 85>({{9, Slot(PutAbsolutePosition)},
                                                           {20, Slot(GetAtEnd)},
                                                           {21, Slot(GetFields)},
                                                           {26, Slot(GetRecordCount)},
                                                           {30, Slot(AddNew)},
                                                           {31, Slot(CancelUpdate)},
                                                           {32, Slot(Close)},
                                                           {36, Slot(MoveNext)},
                                                           {40, Slot(Open)},
                                                           {43, Slot(Update)},
                                                           {55, Slot(GetState)},
                                                           {64, Slot(PutCollect)},
                                                           {67, Slot(Find)}});
const auto fields_table = MakeTable<FakeFields, 17>({{7, Slot(GetCount)}, {10, Slot(GetItem)}});
const auto field_table = MakeTable<FakeField, 29>({{11, Slot(GetName)}, {13, Slot(GetValue)}});

}  // namespace

HRESULT FakeProvider::Called(const std::string& operation, const std::string& arguments) {
  calls.push_back(arguments.empty() ? operation : operation + "(" + arguments + ")");
  if (const auto found = meanwhile.find(operation); found != meanwhile.end()) found->second();
  const auto failure = failures.find(operation);
  if (failure == failures.end()) return S_OK;
  if (failure->second.description) LeaveDescription(failure->second.description);
  return failure->second.result;
}

std::size_t FakeProvider::Count(const std::string& operation) const {
  return static_cast<std::size_t>(std::count_if(calls.begin(), calls.end(), [&](const std::string& call) {
    return call == operation || call.rfind(operation + "(", 0) == 0;
  }));
}

FakeConnection::FakeConnection(FakeProvider& provider)
    : RawObject(connection_table.data()), provider(provider) {}
FakeRecordset::FakeRecordset(FakeProvider& provider)
    : RawObject(recordset_table.data()), provider(provider) {}
FakeFields::FakeFields(FakeProvider& provider) : RawObject(fields_table.data()), provider(provider) {}
FakeField::FakeField(FakeProvider& provider, std::string name)
    : RawObject(field_table.data()), provider(provider), name(std::move(name)) {}

VARIANT Long(LONG number) {
  VARIANT value = {};
  V_VT(&value) = VT_I4;
  V_I4(&value) = number;
  return value;
}

VARIANT Text(const wchar_t* text) {
  VARIANT value = {};
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = const_cast<BSTR>(text);
  return value;
}

}  // namespace orvendal::ado_testing
