#pragma once

#include <optional>
#include <string>

#include "adapters/automation/com_headers.h"

namespace orvendal::ado_testing {

/// Of the Wine that the program runs under; nothing on Windows.
inline std::optional<std::string> VersionOfWine() {
  const auto version = reinterpret_cast<const char*(CDECL*)()>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version")));
  if (!version) return std::nullopt;
  return version();
}

/// The library in which the registry finds ADO's connections.
inline std::wstring FileOfSystemAdo() {
  wchar_t file[MAX_PATH] = L"";
  DWORD bytes = sizeof(file);
  RegGetValueW(HKEY_CLASSES_ROOT, L"CLSID\\{00000514-0000-0010-8000-00AA006D2EA4}\\InprocServer32", nullptr,
               RRF_RT_REG_SZ, nullptr, file, &bytes);
  return file;
}

}  // namespace orvendal::ado_testing
