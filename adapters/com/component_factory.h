#pragma once

#include "adapters/automation/com_headers.h"

namespace orvendal {

/// The body of DllGetClassObject: the factory of the component's class, the only one there is.
[[nodiscard]] HRESULT GetComponentFactory(REFCLSID class_id, REFIID iid, void** object) noexcept;

}  // namespace orvendal
