#pragma once

#include <span>
#include <string>
#include <vector>

#include "adapters/automation/com_headers.h"

namespace orvendal {

/// A class or an interface by name and identifier.
struct RegisteredName {
  const wchar_t* name;
  GUID identifier;
};

/// The identity of a module, as registered in COM. Its classes go by the names project.class; the first one
/// stands for the others where it is asked whether the module is registered.
struct ModuleIdentity {
  const wchar_t* project;
  const wchar_t* version;  // of the type library
  GUID type_library;
  std::span<const RegisteredName> classes;
  std::span<const RegisteredName> interfaces;
};

/// One value of the registration: `key` under HKEY_CLASSES_ROOT, `name` empty for the key's own value.
struct RegistryEntry {
  std::wstring key;
  std::wstring name;
  std::wstring text;
};

/// All that a host needs to find the classes in the module at `path`.
std::vector<RegistryEntry> RegistrationOf(const ModuleIdentity& identity, const std::wstring& path);

/// Writes it for this module; if that fails half-way, takes back what was written.
[[nodiscard]] HRESULT Register(const ModuleIdentity& identity) noexcept;
/// Removes every key of it. What a 32- and a 64-bit module share stays while the other one is registered.
/// Nothing to remove is no failure.
[[nodiscard]] HRESULT Unregister(const ModuleIdentity& identity) noexcept;

}  // namespace orvendal
