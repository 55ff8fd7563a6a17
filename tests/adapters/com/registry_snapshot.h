#pragma once

#include <map>
#include <string>

#include "adapters/automation/com_headers.h"

namespace orvendal {

/// Every key and value below some root: the path of a key, a "|" and the name of a value, to type and bytes.
using RegistrySnapshot = std::map<std::wstring, std::wstring>;

inline void AddKey(HKEY key, const std::wstring& path, RegistrySnapshot& snapshot) {
  snapshot[path] = L"";
  wchar_t name[512];
  for (DWORD index = 0;; ++index) {
    DWORD name_size = 512;
    DWORD type = 0;
    DWORD size = 0;
    if (RegEnumValueW(key, index, name, &name_size, nullptr, &type, nullptr, &size) != ERROR_SUCCESS) break;
    std::wstring bytes(size / sizeof(wchar_t) + 1, L'\0');
    RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size);
    bytes.resize(size / sizeof(wchar_t));
    while (type == REG_SZ && !bytes.empty() && bytes.back() == L'\0') bytes.pop_back();
    snapshot[path + L"|" + name] = std::to_wstring(type) + L":" + bytes;
  }
  for (DWORD index = 0;; ++index) {
    DWORD name_size = 512;
    if (RegEnumKeyExW(key, index, name, &name_size, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
      break;
    HKEY child = nullptr;
    if (RegOpenKeyExW(key, name, 0, KEY_READ, &child) != ERROR_SUCCESS) continue;
    AddKey(child, path + L"\\" + name, snapshot);
    RegCloseKey(child);
  }
}

/// What registration of classes can touch, of the machine and of the user, of both bitnesses.
inline RegistrySnapshot SnapshotOfClasses() {
  RegistrySnapshot snapshot;
  const struct {
    HKEY root;
    const wchar_t* name;
    const wchar_t* path;
  } places[] = {{HKEY_LOCAL_MACHINE, L"HKLM", L"Software\\Classes"},
                {HKEY_LOCAL_MACHINE, L"HKLM32", L"Software\\Wow6432Node\\Classes"},
                {HKEY_CURRENT_USER, L"HKCU", L"Software\\Classes"}};
  for (const auto& place : places) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(place.root, place.path, 0, KEY_READ | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS) continue;
    AddKey(key, place.name, snapshot);
    RegCloseKey(key);
  }
  return snapshot;
}

}  // namespace orvendal
