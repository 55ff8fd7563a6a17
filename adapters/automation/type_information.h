#pragma once

#include <string>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/com_ptr.h"

namespace orvendal {

/// The module that this code is linked into.
HMODULE OwnModule() noexcept;
/// The description of `guid` in the type library that the module carries; read once while a
/// TypeDescriptionsHold lives.
[[nodiscard]] HRESULT OwnTypeInfo(REFGUID guid, ComPtr<ITypeInfo>& info) noexcept;
/// Full path of the module. Throws std::bad_alloc, RuntimeError.
std::wstring OwnPath();

/// Keeps the descriptions that have been read for as long as one of these lives.
class TypeDescriptionsHold {
 public:
  TypeDescriptionsHold() noexcept;
  ~TypeDescriptionsHold();
  TypeDescriptionsHold(const TypeDescriptionsHold&) = delete;
  TypeDescriptionsHold& operator=(const TypeDescriptionsHold&) = delete;
};

}  // namespace orvendal
