#pragma once

#include <gtest/gtest.h>

#include <string>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_headers.h"

namespace orvendal {

/// A file that the build names in the environment, as this system writes its path.
inline std::wstring FileOfBuild(const wchar_t* variable) {
  std::wstring path(32767, L'\0');
  path.resize(GetEnvironmentVariableW(variable, path.data(), static_cast<DWORD>(path.size())));
  for (wchar_t& character : path) {
    if (character == L'/') character = L'\\';
  }
  return path.empty() || path[0] != L'\\' ? path : L"Z:" + path;
}
inline std::wstring TestedDll() {
  return FileOfBuild(L"ORVENDAL_DLL");
}
/// The type library of the maker's library.
inline std::wstring ContractLibrary() {
  return FileOfBuild(L"ORVENDAL_CONTRACT");
}

/// The component's DLL as a client without COM's help loads it.
class LoadedDll {
 public:
  LoadedDll() : module_(LoadLibraryW(TestedDll().c_str())) {
    EXPECT_NE(module_, nullptr) << Utf8Text(TestedDll());
  }
  ~LoadedDll() { Free(); }
  LoadedDll(const LoadedDll&) = delete;
  LoadedDll& operator=(const LoadedDll&) = delete;

  HMODULE Module() const { return module_; }
  void Free() {
    if (module_) FreeLibrary(std::exchange(module_, nullptr));
  }
  template <typename Function>
  Function* Entry(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
  }
  HRESULT Call(const char* name) const { return Entry<HRESULT WINAPI()>(name)(); }
  HRESULT GetClassObject(REFCLSID class_id, REFIID iid, void** object) const {
    return Entry<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject")(class_id, iid, object);
  }

 private:
  HMODULE module_;
};

inline bool IsInMemory() {
  return GetModuleHandleW(L"DllOrvendal.dll") != nullptr;
}

}  // namespace orvendal
