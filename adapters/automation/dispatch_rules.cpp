#include "adapters/automation/dispatch_rules.h"

#include <algorithm>

#include "adapters/automation/variant.h"

namespace orvendal {
namespace {

bool IsReserved(REFIID iid) noexcept {
  return IsMissing(iid) || iid == IID_NULL;
}

}  // namespace

HRESULT CheckNames(REFIID reserved, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
  if (!IsReserved(reserved)) return DISP_E_UNKNOWNINTERFACE;
  if (count == 0) return S_FALSE;
  if (!names || !ids) return E_POINTER;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const bool all_there = std::all_of(names, names + count, [](LPCOLESTR name) { return name != nullptr; });
  return all_there ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT CheckCall(REFIID reserved, const DISPPARAMS* arguments, VARIANT* result, UINT* wrong) noexcept {
  if (!IsReserved(reserved)) return DISP_E_UNKNOWNINTERFACE;
  if (!arguments || (arguments->cArgs > 0 && !arguments->rgvarg)) return E_INVALIDARG;
  if (arguments->cNamedArgs > 0 && !arguments->rgdispidNamedArgs) return E_INVALIDARG;
  if (arguments->cNamedArgs > arguments->cArgs) return DISP_E_BADPARAMCOUNT;
  for (UINT index = 0; index < arguments->cArgs; ++index) {
    if (!LeadsNowhere(arguments->rgvarg[index])) continue;
    if (wrong) *wrong = index;
    return DISP_E_TYPEMISMATCH;
  }
  if (result) VariantInit(result);
  return S_OK;
}

}  // namespace orvendal
