#include "host/store/default_store.h"

#include <windows.h>

#include <shlobj.h>

#include "adapters/win32/windows_api.h"

namespace orvendal {

std::string DefaultStore() {
  wchar_t folder[MAX_PATH] = L"";
  const HRESULT found =
      SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, folder);
  return FAILED(found) ? "cadena.db" : Utf8(folder) + "\\orvendal\\cadena.db";
}

}  // namespace orvendal
