#include "adapters/automation/type_information.h"

#include "adapters/automation/error_boundary.h"

namespace orvendal {

HMODULE OwnModule() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&OwnModule), &module);
  return module;
}

std::wstring OwnPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(OwnModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) throw RuntimeError(HRESULT_FROM_WIN32(GetLastError()), "The module has no path");
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

HRESULT OwnTypeInfo(REFGUID guid, ComPtr<ITypeInfo>& info) noexcept {
  try {
    ComPtr<ITypeLib> library;
    const HRESULT result = LoadTypeLibEx(OwnPath().c_str(), REGKIND_NONE, library.Receive());
    return FAILED(result) ? result : library->GetTypeInfoOfGuid(guid, info.Receive());
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace orvendal
