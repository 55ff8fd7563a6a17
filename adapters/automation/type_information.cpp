#include "adapters/automation/type_information.h"

#include <cstring>
#include <map>
#include <mutex>

#include "adapters/automation/error_boundary.h"

namespace orvendal {
namespace {

bool IsLess(REFGUID left, REFGUID right) {
  return std::memcmp(&left, &right, sizeof left) < 0;
}

ComPtr<ITypeInfo> ReadTypeInfo(REFGUID guid) {
  ComPtr<ITypeLib> library;
  Check(LoadTypeLibEx(OwnPath().c_str(), REGKIND_NONE, library.Receive()));
  ComPtr<ITypeInfo> info;
  Check(library->GetTypeInfoOfGuid(guid, info.Receive()));
  return info;
}

/// Reading a type library anew for every field that a script touches would cost far more than the field.
class TypeDescriptions {
 public:
  void Keep() noexcept {
    const std::lock_guard lock(mutex_);
    ++users_;
  }
  void LetGo() noexcept {
    std::map<GUID, ComPtr<ITypeInfo>, decltype(&IsLess)> dropped(IsLess);
    const std::lock_guard lock(mutex_);
    if (--users_ == 0) dropped.swap(known_);
  }
  ComPtr<ITypeInfo> Find(REFGUID guid) {
    const std::lock_guard lock(mutex_);
    ComPtr<ITypeInfo>& known = known_[guid];
    if (!known) known = ReadTypeInfo(guid);
    return known;
  }

 private:
  std::mutex mutex_;
  int users_ = 0;
  std::map<GUID, ComPtr<ITypeInfo>, decltype(&IsLess)> known_{IsLess};
};

TypeDescriptions& Descriptions() {
  static TypeDescriptions descriptions;
  return descriptions;
}

}  // namespace

TypeDescriptionsHold::TypeDescriptionsHold() noexcept {
  Descriptions().Keep();
}

TypeDescriptionsHold::~TypeDescriptionsHold() {
  Descriptions().LetGo();
}

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
    info = Descriptions().Find(guid);
    return S_OK;
  } catch (const RuntimeError& error) {
    return HresultOfNumber(error.Number());
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace orvendal
