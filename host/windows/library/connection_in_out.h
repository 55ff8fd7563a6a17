#pragma once

#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/in_out.h"

namespace orvendal {

inline void ReplaceConnection(IDispatch*& place, const ConnectionRef& connection) {
  Replace(place, ComPtr<IDispatch>(Unwrap(connection)));
}

/// The connection of a call by reference. Raises 13 for what is no connection of ADO's.
using ConnectionInOut = InOut<ConnectionRef, IDispatch*, WrapConnection, ReplaceConnection>;

}  // namespace orvendal
