#pragma once

#include "adapters/automation/com_headers.h"

namespace orvendal {

// What Automation demands of every call of IDispatch, whoever answers it.

/// Whether the reserved interface identifier is what it has to be. Clients in C leave it out altogether.
inline bool IsReserved(REFIID iid) noexcept {
  const IID* const volatile given = &iid;  // a reference may be nothing at all once it has crossed from C
  return !given || *given == IID_NULL;
}

/// E_INVALIDARG for a call that promises arguments or names and does not bring them.
[[nodiscard]] inline HRESULT CheckArguments(const DISPPARAMS* given) noexcept {
  if (!given || (given->cArgs > 0 && !given->rgvarg)) return E_INVALIDARG;
  return given->cNamedArgs > 0 && !given->rgdispidNamedArgs ? E_INVALIDARG : S_OK;
}

}  // namespace orvendal
