#include "adapters/com/automation_object.h"

#include "adapters/automation/dispatch_rules.h"
#include "adapters/automation/error_boundary.h"

namespace orvendal {

HRESULT AutomationObject::QueryInterface(REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (iid == IID_IUnknown || iid == IID_IDispatch ||
      (PrivateInterface() != GUID_NULL && iid == PrivateInterface())) {
    *object = static_cast<IDispatch*>(this);
  } else if (iid == IID_ISupportErrorInfo) {
    *object = static_cast<ISupportErrorInfo*>(this);
  } else if (iid == kOrvendalObject && ComesBackAsItself()) {
    *object = static_cast<IOrvendalObject*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

HRESULT AutomationObject::GetTypeInfoCount(UINT* count) noexcept {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT AutomationObject::GetTypeInfo(UINT /*index*/, LCID /*lcid*/, ITypeInfo** info) noexcept {
  if (!info) return E_POINTER;
  *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT AutomationObject::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*lcid*/,
                                        DISPID* ids) noexcept {
  if (!IsReserved(iid)) return DISP_E_UNKNOWNINTERFACE;
  if (count == 0) return S_OK;
  if (!names || !ids) return E_POINTER;
  if (!IsAtHome()) return RPC_E_WRONG_THREAD;
  for (UINT index = 0; index < count; ++index) ids[index] = DISPID_UNKNOWN;
  const HRESULT result = Guarded(IID_IDispatch, [&] {
    if (names[0]) ids[0] = IdOf(names[0]);
  });
  if (FAILED(result)) return result;
  // No member names its arguments.
  return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT AutomationObject::Invoke(DISPID member, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* arguments,
                                 VARIANT* result, EXCEPINFO* exception, UINT* wrong) noexcept {
  if (!IsReserved(iid)) return DISP_E_UNKNOWNINTERFACE;
  if (const HRESULT whole = CheckArguments(arguments); FAILED(whole)) return whole;
  if (!IsAtHome()) return RPC_E_WRONG_THREAD;
  const bool put = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  if (arguments->cNamedArgs > (put ? 1U : 0U)) return DISP_E_NONAMEDARGS;
  if (result) VariantInit(result);
  try {
    // The last client may let go of the object while its member runs.
    const ComPtr<IDispatch> self(this);
    const AutomationCall call(*arguments, lcid, put ? nullptr : result);
    return (put ? Put(member, call) : Get(member, call)) ? S_OK : DISP_E_MEMBERNOTFOUND;
  } catch (const ArgumentError& error) {
    if (wrong) *wrong = error.index;
    return error.result;
  } catch (...) {
    return FillExceptionInfo(exception);
  }
}

HRESULT AutomationObject::InterfaceSupportsErrorInfo(REFIID iid) noexcept {
  return iid == IID_IDispatch ? S_OK : S_FALSE;
}

bool AutomationObject::SameName(const wchar_t* left, const wchar_t* right) {
  return CompareStringOrdinal(left, -1, right, -1, TRUE) == CSTR_EQUAL;
}

}  // namespace orvendal
