#include "adapters/automation/class_factory.h"

#include <new>

namespace orvendal {

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
    module_lifetime::Keep();
  } else {
    module_lifetime::LetGo();
  }
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
