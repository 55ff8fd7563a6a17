#include "adapters/automation/variant.h"

#include "adapters/automation/bstr.h"

namespace orvendal {
namespace {

constexpr VARTYPE kReference = VT_BYREF | VT_VARIANT;

/// The value at the end of a chain of references. A chain longer than any client makes on purpose may be a
/// cycle: following it stops, and the result is still a reference.
const VARIANT& Behind(const VARIANT& value) {
  constexpr int kLongestChain = 8;
  const VARIANT* behind = &value;
  for (int step = 0; step < kLongestChain && V_VT(behind) == kReference && V_VARIANTREF(behind); ++step) {
    behind = V_VARIANTREF(behind);
  }
  return *behind;
}

HRESULT Converted(const VARIANT& value, LCID lcid, VARTYPE type, Variant& converted) {
  const VARIANT& behind = Behind(value);
  if (LeadsNowhere(value)) return DISP_E_TYPEMISMATCH;
  if (V_VT(&behind) & (VT_ARRAY | VT_VECTOR)) return DISP_E_TYPEMISMATCH;
  const HRESULT result =
      VariantChangeTypeEx(converted.Address(), const_cast<VARIANT*>(&behind), lcid, VARIANT_ALPHABOOL, type);
  // An object that has no default property, or one that fails, is no text; nor is no object at all.
  const bool says_why = SUCCEEDED(result) || result == DISP_E_OVERFLOW || result == E_OUTOFMEMORY;
  return says_why ? result : DISP_E_TYPEMISMATCH;
}

}  // namespace

HRESULT ReadDirect(const VARIANT& value, Variant& direct) {
  const VARIANT& behind = Behind(value);
  if (LeadsNowhere(value)) return DISP_E_TYPEMISMATCH;
  return VariantCopyInd(direct.Address(), const_cast<VARIANT*>(&behind));
}

HRESULT ReadText(const VARIANT& value, LCID lcid, std::string& text) {
  Variant converted;
  const HRESULT result = Converted(value, lcid, VT_BSTR, converted);
  if (SUCCEEDED(result)) text = TextOfBstr(V_BSTR(&converted.Get()));
  return result;
}

HRESULT ReadNumber(const VARIANT& value, LCID lcid, double& number) {
  Variant converted;
  const HRESULT result = Converted(value, lcid, VT_R8, converted);
  if (SUCCEEDED(result)) number = V_R8(&converted.Get());
  return result;
}

HRESULT ReadLong(const VARIANT& value, LCID lcid, LONG& number) {
  Variant converted;
  const HRESULT result = Converted(value, lcid, VT_I4, converted);
  if (SUCCEEDED(result)) number = V_I4(&converted.Get());
  return result;
}

HRESULT ReadFlag(const VARIANT& value, LCID lcid, bool& flag) {
  Variant converted;
  const HRESULT result = Converted(value, lcid, VT_BOOL, converted);
  if (SUCCEEDED(result)) flag = V_BOOL(&converted.Get()) != VARIANT_FALSE;
  return result;
}

HRESULT ReadObject(const VARIANT& value, ComPtr<IUnknown>& object) {
  const VARIANT& behind = Behind(value);
  IUnknown* found = nullptr;
  switch (V_VT(&behind)) {
    case VT_DISPATCH:
    case VT_UNKNOWN:
      found = V_UNKNOWN(&behind);
      break;
    case VT_BYREF | VT_DISPATCH:
    case VT_BYREF | VT_UNKNOWN:
      if (!V_UNKNOWNREF(&behind)) return DISP_E_TYPEMISMATCH;
      found = *V_UNKNOWNREF(&behind);
      break;
    default:
      return DISP_E_TYPEMISMATCH;
  }
  object = ComPtr<IUnknown>(found);
  return S_OK;
}

// What is still a reference at the end of Behind is a cycle. The system's own functions would follow a null
// reference.
bool LeadsNowhere(const VARIANT& value) {
  const VARIANT& behind = Behind(value);
  return V_VT(&behind) == kReference || ((V_VT(&behind) & VT_BYREF) && !V_BYREF(&behind));
}

bool IsOmitted(const VARIANT& value) {
  const VARIANT& behind = Behind(value);
  return V_VT(&behind) == VT_ERROR && V_ERROR(&behind) == DISP_E_PARAMNOTFOUND;
}

void WriteText(VARIANT& value, const std::string& text) {
  V_BSTR(&value) = MakeBstr(text);
  V_VT(&value) = VT_BSTR;
}

void WriteNumber(VARIANT& value, double number) {
  V_VT(&value) = VT_R8;
  V_R8(&value) = number;
}

void WriteLong(VARIANT& value, LONG number) {
  V_VT(&value) = VT_I4;
  V_I4(&value) = number;
}

void WriteFlag(VARIANT& value, bool flag) {
  V_VT(&value) = VT_BOOL;
  V_BOOL(&value) = FlagOf(flag);
}

void WriteObject(VARIANT& value, ComPtr<IDispatch> object) {
  V_VT(&value) = VT_DISPATCH;
  V_DISPATCH(&value) = object.Detach();
}

}  // namespace orvendal
