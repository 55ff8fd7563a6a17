#include "adapters/automation/class_factory.h"

#include <atomic>
#include <new>

namespace orvendal {
namespace {

/// Apart from what else keeps the module: a client that unlocks once too often must not take it from under
/// the objects of others.
std::atomic<long> locks{0};

bool TakeOneLock() noexcept {
  long held = locks.load();
  while (held > 0) {
    if (locks.compare_exchange_weak(held, held - 1)) return true;
  }
  return false;
}

}  // namespace

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
  AddRef();
  *object = static_cast<IClassFactory*>(this);
  return S_OK;
}

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

HRESULT GetClassFactory(ClassFactory::Make make, REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  auto* const factory = new (std::nothrow) ClassFactory(make);
  if (!factory) return E_OUTOFMEMORY;
  const HRESULT result = factory->QueryInterface(iid, object);
  factory->Release();
  return result;
}

}  // namespace orvendal
