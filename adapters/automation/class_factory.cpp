#include "adapters/automation/class_factory.h"

#include <atomic>
#include <new>

namespace orvendal {
namespace {

/// Locks of LockServer, counted apart from the other references to the module: a client that unlocks once too
/// often must not unload it while others have objects.
std::atomic<long> locks{0};

bool TakeOneLock() noexcept {
  long held = locks.load();
  while (held > 0) {
    if (locks.compare_exchange_weak(held, held - 1)) return true;
  }
  return false;
}

}  // namespace

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  IUnknown* const made = make_();
  if (!made) return E_OUTOFMEMORY;
  const HRESULT result = made->QueryInterface(iid, object);
  made->Release();
  return result;
}

HRESULT ClassFactory::LockServer(BOOL lock) noexcept {
  if (lock) {
    ++locks;
    module_lifetime::Keep();
    return S_OK;
  }
  if (!TakeOneLock()) return E_UNEXPECTED;
  module_lifetime::LetGo();
  return S_OK;
}

HRESULT GetClassFactory(std::span<const CreatableClass> classes, REFCLSID class_id, REFIID iid,
                        void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (IsMissing(class_id)) return E_INVALIDARG;
  for (const CreatableClass& known : classes) {
    if (known.identifier != class_id) continue;
    auto* const factory = new (std::nothrow) ClassFactory(known.make);
    if (!factory) return E_OUTOFMEMORY;
    const HRESULT result = factory->QueryInterface(iid, object);
    factory->Release();
    return result;
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

}  // namespace orvendal
