#include "adapters/com/registration.h"

#include <new>

#include "adapters/automation/error_boundary.h"
#include "adapters/automation/type_information.h"
#include "adapters/com/identity.h"

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

std::wstring ClassKey() {
  return L"CLSID\\" + TextOf(identity::kClass);
}
std::wstring InterfaceKey() {
  return L"Interface\\" + TextOf(identity::kInterface);
}
std::wstring TypeLibraryKey() {
  return L"TypeLib\\" + TextOf(identity::kTypeLibrary);
}
std::wstring TypeLibraryVersionKey() {
  return TypeLibraryKey() + L"\\" + identity::kVersion;
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

/// Whether the class of the other bitness is registered: it shares the program's name and the type library.
bool OtherBitnessIsRegistered() {
  BOOL is_32_on_64 = FALSE;
  if (!kIs64Bit && (!IsWow64Process(GetCurrentProcess(), &is_32_on_64) || !is_32_on_64)) return false;
  return Exists(ClassKey() + L"\\InprocServer32", kIs64Bit ? KEY_WOW64_32KEY : KEY_WOW64_64KEY);
}

void KeepFirst(HRESULT& first, HRESULT result) {
  if (SUCCEEDED(first)) first = result;
}

}  // namespace

std::vector<RegistryEntry> RegistrationOf(const std::wstring& path) {
  const std::wstring class_key = ClassKey();
  const std::wstring interface_key = InterfaceKey();
  const std::wstring library_key = TypeLibraryVersionKey();
  const std::wstring library = TextOf(identity::kTypeLibrary);
  const std::wstring folder = path.substr(0, path.find_last_of(L'\\'));
  return {
      {identity::kProgId, L"", identity::kProgId},
      {std::wstring(identity::kProgId) + L"\\Clsid", L"", TextOf(identity::kClass)},
      {class_key, L"", identity::kProgId},
      {class_key + L"\\InprocServer32", L"", path},
      {class_key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {class_key + L"\\ProgID", L"", identity::kProgId},
      {class_key + L"\\TypeLib", L"", library},
      {class_key + L"\\VERSION", L"", identity::kVersion},
      {class_key + L"\\Programmable", L"", L""},
      {class_key + L"\\Implemented Categories\\" + kAutomationCategory, L"", L""},
      {interface_key, L"", identity::kInterfaceName},
      {interface_key + L"\\ProxyStubClsid", L"", kAutomationMarshaller},
      {interface_key + L"\\ProxyStubClsid32", L"", kAutomationMarshaller},
      {interface_key + L"\\TypeLib", L"", library},
      {interface_key + L"\\TypeLib", L"Version", identity::kVersion},
      {library_key, L"", identity::kProject},
      {library_key + L"\\0\\" + kPlatform, L"", path},
      {library_key + L"\\FLAGS", L"", L"0"},
      {library_key + L"\\HELPDIR", L"", folder},
  };
}

HRESULT Register() noexcept {
  try {
    HRESULT result = S_OK;
    for (const RegistryEntry& entry : RegistrationOf(OwnPath())) {
      result = Write(entry);
      if (FAILED(result)) break;
    }
    if (FAILED(result)) static_cast<void>(Unregister());
    return result;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT Unregister() noexcept {
  try {
    HRESULT result = RemoveTree(ClassKey());
    KeepFirst(result, RemoveTree(InterfaceKey()));
    KeepFirst(result, RemoveTree(TypeLibraryVersionKey() + L"\\0\\" + kPlatform));
    if (!OtherBitnessIsRegistered()) {
      KeepFirst(result, RemoveTree(identity::kProgId));
      KeepFirst(result, RemoveTree(TypeLibraryVersionKey()));
      KeepFirst(result, RemoveIfEmpty(TypeLibraryKey()));
    }
    return result;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace orvendal
