#pragma once

#include "adapters/automation/com_ptr.h"

namespace orvendal {

/// An object of a class that the system knows, made in this process or, where `context` says so, in another.
/// Raises 429 where it cannot be made.
ComPtr<IUnknown> CreateObject(REFCLSID class_id, DWORD context);

/// Raises 430: the class makes something else.
[[noreturn]] void RaiseNoSuchInterface();

}  // namespace orvendal
