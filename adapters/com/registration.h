#pragma once

#include <string>
#include <vector>

#include "adapters/automation/com_headers.h"

namespace orvendal {

/// One value of the registration: `key` under HKEY_CLASSES_ROOT, `name` empty for the key's own value.
struct RegistryEntry {
  std::wstring key;
  std::wstring name;
  std::wstring text;
};

/// All that a host needs to find the component in the module at `path`, from the identity table.
std::vector<RegistryEntry> RegistrationOf(const std::wstring& path);

/// Writes it; if that fails half-way, takes back what was written.
[[nodiscard]] HRESULT Register() noexcept;
/// Removes every key of it. What a 32- and a 64-bit component share stays while the other one is registered.
/// Nothing to remove is no failure.
[[nodiscard]] HRESULT Unregister() noexcept;

}  // namespace orvendal
