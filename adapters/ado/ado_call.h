#pragma once

#include <initializer_list>
#include <utility>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/module_lifetime.h"
#include "adapters/automation/variant.h"

namespace orvendal::ado {

/// One call of an operation of ADO's: the module stays meanwhile, and what the operation answers is thrown
/// with its own description, not with one that an earlier call left behind.
template <typename Call>
void Ask(Call&& call) {
  const module_lifetime::Hold hold;
  ForgetErrorInformation();
  Check(std::forward<Call>(call)());
}

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
