#pragma once

#include <initializer_list>

#include "adapters/automation/call_out.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/variant.h"

namespace orvendal::ado {

/// An optional argument that is left out.
class Omitted : public Variant {
 public:
  Omitted() {
    V_VT(Address()) = VT_ERROR;
    V_ERROR(Address()) = DISP_E_PARAMNOTFOUND;
  }
};

/// The first of `iids` that `object` answers to, taken for `Interface`: they must agree in the operations
/// that are used of it. Empty if it answers to none.
template <typename Interface>
ComPtr<Interface> QueryAny(IUnknown* object, std::initializer_list<GUID> iids) {
  const ComPtr<IUnknown> given(object);
  for (const GUID& iid : iids) {
    if (auto found = given.Query<Interface>(iid)) return found;
  }
  return {};
}

}  // namespace orvendal::ado
