#include "adapters/com/class_orvendal_object.h"

#include <new>

#include "DllTrevano.h"
#include "adapters/automation/bstr.h"
#include "adapters/automation/variant.h"
#include "adapters/com/component_module.h"
#include "adapters/com/no_connection_points.h"
#include "adapters/com/orvendal_arguments.h"

namespace orvendal {
namespace {

constexpr DISPID kOrvendal = 0x60030000;
constexpr wchar_t kOrvendalName[] = L"Orvendal";

bool IsFunction(LPCOLESTR name) {
  return CompareStringOrdinal(name, -1, kOrvendalName, -1, TRUE) == CSTR_EQUAL;
}

}  // namespace

// The first is the function, the others are its arguments.
HRESULT ClassOrvendalObject::NumbersOf(LPOLESTR* names, UINT count, DISPID* ids) {
  if (!IsFunction(names[0])) return DISP_E_UNKNOWNNAME;
  ids[0] = kOrvendal;
  bool all_known = true;
  for (UINT index = 1; index < count; ++index) {
    ids[index] = OrvendalArgumentByName(names[index]);
    all_known = all_known && ids[index] != DISPID_UNKNOWN;
  }
  return all_known ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT ClassOrvendalObject::Call(const DispatchCall& call) {
  if (call.member != kOrvendal || !(call.flags & DISPATCH_METHOD)) return DISP_E_MEMBERNOTFOUND;
  OrvendalArguments read;
  const HRESULT reading = ReadOrvendalArguments(call.arguments, call.lcid, read, call.wrong);
  if (FAILED(reading)) return reading;
  auto* const host = reinterpret_cast<_DatosClase*>(read.datos_clase.Get());
  const VARIANT_BOOL answer = CallComponent(host, read.suc, read.puest, read.turn);
  if (call.result) WriteFlag(*call.result, answer != VARIANT_FALSE);
  return S_OK;
}

HRESULT ClassOrvendalObject::Orvendal(_DatosClase** datos_clase, BSTR* suc, BSTR* puest, BSTR* turn,
                                      VARIANT_BOOL* result) noexcept {
  return Do({datos_clase, suc, puest, turn, result}, [&] {
    *result = VARIANT_FALSE;
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
  return FlagOf(answer);
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
