#include "adapters/automation/variant.h"

#include "adapters/automation/bstr.h"

namespace orvendal {
namespace {

/// VARIANTs refer to VARIANTs no more than once; a chain is cut there.
const VARIANT& Behind(const VARIANT& value) {
  const bool refers = V_VT(&value) == (VT_BYREF | VT_VARIANT) && V_VARIANTREF(&value);
  return refers ? *V_VARIANTREF(&value) : value;
}

HRESULT Converted(const VARIANT& value, LCID lcid, VARTYPE type, Variant& converted) {
  const VARIANT& behind = Behind(value);
  if (V_VT(&behind) & (VT_ARRAY | VT_VECTOR)) return DISP_E_TYPEMISMATCH;
  return VariantChangeTypeEx(converted.Address(), const_cast<VARIANT*>(&behind), lcid, VARIANT_ALPHABOOL,
                             type);
}

}  // namespace

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
  V_BOOL(&value) = flag ? VARIANT_TRUE : VARIANT_FALSE;
}

void WriteObject(VARIANT& value, ComPtr<IDispatch> object) {
  V_VT(&value) = VT_DISPATCH;
  V_DISPATCH(&value) = object.Detach();
}

}  // namespace orvendal
