#include "adapters/com/class_factory.h"

#include <new>

#include "adapters/com/class_orvendal_object.h"
#include "adapters/com/identity.h"

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
  auto* const made = new (std::nothrow) ClassOrvendalObject;
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

HRESULT GetClassFactory(REFCLSID class_id, REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (class_id != identity::kClass) return CLASS_E_CLASSNOTAVAILABLE;
  auto* const made = new (std::nothrow) ClassFactory;
  if (!made) return E_OUTOFMEMORY;
  const HRESULT result = made->QueryInterface(iid, object);
  made->Release();
  return result;
}

}  // namespace orvendal
