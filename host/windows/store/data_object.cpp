#include "host/windows/store/data_object.h"

#include <limits>

#include "adapters/automation/error_boundary.h"
#include "platform/data/ado_error.h"

namespace orvendal {

const wchar_t* SourceOfDataError(const wchar_t* source) noexcept {
  try {
    return CurrentError().Number() > 0 ? source : L"OrvendalStore";
  } catch (...) {
    return source;
  }
}

void NarrowCount(VARIANT* result) noexcept {
  if (!result || V_VT(result) != VT_I8) return;
  const LONGLONG count = V_I8(result);
  if (count < std::numeric_limits<LONG>::min() || count > std::numeric_limits<LONG>::max()) return;
  V_VT(result) = VT_I4;
  V_I4(result) = static_cast<LONG>(count);
}

HRESULT CallDefault(IDispatch& object, WORD flags, const DispatchCall& call) noexcept {
  return object.Invoke(DISPID_VALUE, IID_NULL, call.lcid, flags, &call.arguments, call.result, call.exception,
                       call.wrong);
}

void RaiseNotProvided() {
  throw RuntimeError(ado_error::kFeatureNotAvailable,
                     "Object or provider is not capable of performing requested operation.");
}

}  // namespace orvendal
