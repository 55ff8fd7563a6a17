#include "adapters/automation/registration.h"

#include <new>

#include "adapters/automation/error_boundary.h"
#include "adapters/automation/type_information.h"

namespace orvendal {
namespace {

/// The marshaller for interfaces that a type library describes.
constexpr wchar_t kAutomationMarshaller[] = L"{00020424-0000-0000-C000-000000000046}";
/// The category of classes that can be called by Automation.
constexpr wchar_t kAutomationCategory[] = L"{40FC6ED5-2438-11CF-A3DB-080036F12502}";
constexpr bool kIs64Bit = sizeof(void*) == 8;
constexpr const wchar_t* kPlatform = kIs64Bit ? L"win64" : L"win32";

std::wstring TextOf(REFGUID guid) {
  wchar_t text[40] = L"";
  StringFromGUID2(guid, text, 40);
  return text;
}

std::wstring ProgId(const ModuleIdentity& identity, const RegisteredName& named) {
  return std::wstring(identity.project) + L"." + named.name;
}
std::wstring ClassKey(const RegisteredName& named) {
  return L"CLSID\\" + TextOf(named.identifier);
}
std::wstring InterfaceKey(const RegisteredName& named) {
  return L"Interface\\" + TextOf(named.identifier);
}
std::wstring TypeLibraryKey(const ModuleIdentity& identity) {
  return L"TypeLib\\" + TextOf(identity.type_library);
}
std::wstring TypeLibraryVersionKey(const ModuleIdentity& identity) {
  return TypeLibraryKey(identity) + L"\\" + identity.version;
}

HRESULT Write(const RegistryEntry& entry) {
  HKEY key = nullptr;
  LSTATUS status = RegCreateKeyExW(HKEY_CLASSES_ROOT, entry.key.c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                                   nullptr, &key, nullptr);
  if (status == ERROR_SUCCESS) {
    const auto bytes = static_cast<DWORD>((entry.text.size() + 1) * sizeof(wchar_t));
    status = RegSetValueExW(key, entry.name.empty() ? nullptr : entry.name.c_str(), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(entry.text.c_str()), bytes);
    RegCloseKey(key);
  }
  return HRESULT_FROM_WIN32(status);
}

/// With everything below it.
HRESULT RemoveTree(const std::wstring& key) {
  const LSTATUS status = RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
  return status == ERROR_FILE_NOT_FOUND ? S_OK : HRESULT_FROM_WIN32(status);
}

bool Exists(const std::wstring& key, REGSAM view) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ | view, &opened) != ERROR_SUCCESS)
    return false;
  RegCloseKey(opened);
  return true;
}

/// Only where nothing is left in it.
HRESULT RemoveIfEmpty(const std::wstring& key) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return S_OK;
  DWORD keys = 0;
  RegQueryInfoKeyW(opened, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, nullptr, nullptr, nullptr,
                   nullptr, nullptr);
  RegCloseKey(opened);
  return keys == 0 ? RemoveTree(key) : S_OK;
}

/// Whether the classes of the other bitness are registered: they share their names and the type library.
bool OtherBitnessIsRegistered(const ModuleIdentity& identity) {
  BOOL is_32_on_64 = FALSE;
  if (!kIs64Bit && (!IsWow64Process(GetCurrentProcess(), &is_32_on_64) || !is_32_on_64)) return false;
  return Exists(ClassKey(identity.classes.front()) + L"\\InprocServer32",
                kIs64Bit ? KEY_WOW64_32KEY : KEY_WOW64_64KEY);
}

void KeepFirst(HRESULT& first, HRESULT result) {
  if (SUCCEEDED(first)) first = result;
}

void AddClass(const ModuleIdentity& identity, const RegisteredName& named, const std::wstring& path,
              std::vector<RegistryEntry>& entries) {
  const std::wstring prog_id = ProgId(identity, named);
  const std::wstring key = ClassKey(named);
  entries.insert(entries.end(), {{prog_id, L"", prog_id},
                                 {prog_id + L"\\Clsid", L"", TextOf(named.identifier)},
                                 {key, L"", prog_id},
                                 {key + L"\\InprocServer32", L"", path},
                                 {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
                                 {key + L"\\ProgID", L"", prog_id},
                                 {key + L"\\TypeLib", L"", TextOf(identity.type_library)},
                                 {key + L"\\VERSION", L"", identity.version},
                                 {key + L"\\Programmable", L"", L""},
                                 {key + L"\\Implemented Categories\\" + kAutomationCategory, L"", L""}});
}

void AddInterface(const ModuleIdentity& identity, const RegisteredName& named,
                  std::vector<RegistryEntry>& entries) {
  const std::wstring key = InterfaceKey(named);
  entries.insert(entries.end(), {{key, L"", named.name},
                                 {key + L"\\ProxyStubClsid", L"", kAutomationMarshaller},
                                 {key + L"\\ProxyStubClsid32", L"", kAutomationMarshaller},
                                 {key + L"\\TypeLib", L"", TextOf(identity.type_library)},
                                 {key + L"\\TypeLib", L"Version", identity.version}});
}

}  // namespace

std::vector<RegistryEntry> RegistrationOf(const ModuleIdentity& identity, const std::wstring& path) {
  std::vector<RegistryEntry> entries;
  for (const RegisteredName& named : identity.classes) AddClass(identity, named, path, entries);
  for (const RegisteredName& named : identity.interfaces) AddInterface(identity, named, entries);
  const std::wstring library_key = TypeLibraryVersionKey(identity);
  entries.insert(entries.end(),
                 {{library_key, L"", identity.project},
                  {library_key + L"\\0\\" + kPlatform, L"", path},
                  {library_key + L"\\FLAGS", L"", L"0"},
                  {library_key + L"\\HELPDIR", L"", path.substr(0, path.find_last_of(L'\\'))}});
  return entries;
}

HRESULT Register(const ModuleIdentity& identity) noexcept {
  try {
    HRESULT result = S_OK;
    for (const RegistryEntry& entry : RegistrationOf(identity, OwnPath())) {
      result = Write(entry);
      if (FAILED(result)) break;
    }
    if (FAILED(result)) static_cast<void>(Unregister(identity));
    return result;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT Unregister(const ModuleIdentity& identity) noexcept {
  try {
    HRESULT result = S_OK;
    for (const RegisteredName& named : identity.classes) KeepFirst(result, RemoveTree(ClassKey(named)));
    for (const RegisteredName& named : identity.interfaces)
      KeepFirst(result, RemoveTree(InterfaceKey(named)));
    const std::wstring library_key = TypeLibraryVersionKey(identity);
    KeepFirst(result, RemoveTree(library_key + L"\\0\\" + kPlatform));
    if (!OtherBitnessIsRegistered(identity)) {
      for (const RegisteredName& named : identity.classes) {
        KeepFirst(result, RemoveTree(ProgId(identity, named)));
      }
      KeepFirst(result, RemoveTree(library_key));
      KeepFirst(result, RemoveIfEmpty(TypeLibraryKey(identity)));
    }
    return result;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace orvendal
