#include "adapters/com/class_orvendal_object.h"

#include "DllTrevano.h"
#include "adapters/automation/bstr.h"
#include "adapters/automation/dispatch_rules.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/type_information.h"
#include "adapters/com/component_module.h"
#include "adapters/com/identity.h"
#include "adapters/com/no_connection_points.h"
#include "adapters/com/orvendal_arguments.h"

namespace orvendal {
namespace {

constexpr DISPID kOrvendal = 0x60030000;
constexpr wchar_t kOrvendalName[] = L"Orvendal";

template <typename Interface>
HRESULT Give(Interface* wanted, void** object) {
  wanted->AddRef();
  *object = wanted;
  return S_OK;
}

}  // namespace

HRESULT ClassOrvendalObject::QueryInterface(REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (iid == IID_IUnknown || iid == IID_IDispatch || iid == identity::kInterface) {
    return Give(static_cast<_ClassOrvendal*>(this), object);
  }
  if (iid == IID_ISupportErrorInfo) return Give(static_cast<ISupportErrorInfo*>(this), object);
  if (iid == IID_IProvideClassInfo) return Give(static_cast<IProvideClassInfo*>(this), object);
  if (iid == IID_IConnectionPointContainer) {
    return Give(static_cast<IConnectionPointContainer*>(this), object);
  }
  return E_NOINTERFACE;
}

HRESULT ClassOrvendalObject::GetTypeInfoCount(UINT* count) noexcept {
  if (!count) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT ClassOrvendalObject::GetTypeInfo(UINT index, LCID /*lcid*/, ITypeInfo** info) noexcept {
  if (!info) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  ComPtr<ITypeInfo> own;
  const HRESULT result = OwnTypeInfo(identity::kInterface, own);
  *info = own.Detach();
  return result;
}

HRESULT ClassOrvendalObject::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*lcid*/,
                                           DISPID* ids) noexcept {
  if (!IsReserved(iid)) return DISP_E_UNKNOWNINTERFACE;
  if (count == 0) return S_OK;
  if (!names || !ids) return E_POINTER;
  const auto is_function = [](LPCOLESTR name) {
    return name && CompareStringOrdinal(name, -1, kOrvendalName, -1, TRUE) == CSTR_EQUAL;
  };
  // The first is the function, the others are its arguments.
  ids[0] = is_function(names[0]) ? kOrvendal : DISPID_UNKNOWN;
  bool all_known = ids[0] != DISPID_UNKNOWN;
  for (UINT index = 1; index < count; ++index) {
    ids[index] =
        ids[0] == DISPID_UNKNOWN || !names[index] ? DISPID_UNKNOWN : OrvendalArgumentByName(names[index]);
    all_known = all_known && ids[index] != DISPID_UNKNOWN;
  }
  return all_known ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT ClassOrvendalObject::Invoke(DISPID member, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* arguments,
                                    VARIANT* result, EXCEPINFO* exception, UINT* wrong) noexcept {
  if (!IsReserved(iid)) return DISP_E_UNKNOWNINTERFACE;
  if (member != kOrvendal || !(flags & DISPATCH_METHOD)) return DISP_E_MEMBERNOTFOUND;
  if (const HRESULT whole = CheckArguments(arguments); FAILED(whole)) return whole;
  try {
    // An argument whose text is an object's own, or the host, may let go of this object while the call runs.
    const ComPtr<IUnknown> self(static_cast<_ClassOrvendal*>(this));
    OrvendalArguments read;
    const HRESULT reading = ReadOrvendalArguments(*arguments, lcid, read, wrong);
    if (FAILED(reading)) return reading;
    auto* const host = reinterpret_cast<_DatosClase*>(read.datos_clase.Get());
    const VARIANT_BOOL answer = CallComponent(host, read.suc, read.puest, read.turn);
    if (result) {
      VariantInit(result);
      V_VT(result) = VT_BOOL;
      V_BOOL(result) = answer;
    }
    return S_OK;
  } catch (...) {
    return FillExceptionInfo(exception);
  }
}

HRESULT ClassOrvendalObject::Orvendal(_DatosClase** datos_clase, BSTR* suc, BSTR* puest, BSTR* turn,
                                      VARIANT_BOOL* result) noexcept {
  if (!datos_clase || !suc || !puest || !turn || !result) {
    ForgetErrorInformation();  // what is left of an earlier failure does not explain this one
    return E_POINTER;
  }
  *result = VARIANT_FALSE;
  return Guarded(identity::kInterface, [&] {
    const ComPtr<IUnknown> self(static_cast<_ClassOrvendal*>(this));
    *result = CallComponent(*datos_clase, TextOfBstr(*suc), TextOfBstr(*puest), TextOfBstr(*turn));
  });
}

VARIANT_BOOL ClassOrvendalObject::CallComponent(_DatosClase* host, const std::string& suc,
                                                const std::string& puest, const std::string& turn) {
  if (GetCurrentThreadId() != home_) {
    ForgetErrorInformation();
    throw ErrorOfResult(RPC_E_WRONG_THREAD);
  }
  const ComPtr<_DatosClase> held(host);
  const bool answer = ComponentModule::Instance().Orvendal(held.Get(), suc, puest, turn);
  return answer ? VARIANT_TRUE : VARIANT_FALSE;
}

HRESULT ClassOrvendalObject::InterfaceSupportsErrorInfo(REFIID iid) noexcept {
  return iid == identity::kInterface ? S_OK : S_FALSE;
}

HRESULT ClassOrvendalObject::GetClassInfo(ITypeInfo** info) noexcept {
  if (!info) return E_POINTER;
  *info = nullptr;
  ComPtr<ITypeInfo> own;
  const HRESULT result = OwnTypeInfo(identity::kClass, own);
  *info = own.Detach();
  return result;
}

HRESULT ClassOrvendalObject::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
  if (!points) return E_POINTER;
  *points = new (std::nothrow) NoConnectionPoints;
  return *points ? S_OK : E_OUTOFMEMORY;
}

HRESULT ClassOrvendalObject::FindConnectionPoint(REFIID /*iid*/, IConnectionPoint** point) noexcept {
  if (!point) return E_POINTER;
  *point = nullptr;
  return CONNECT_E_NOCONNECTION;
}

}  // namespace orvendal
