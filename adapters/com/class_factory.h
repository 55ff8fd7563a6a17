#pragma once

#include "adapters/com/counted.h"

namespace orvendal {

/// Makes objects of the component's class. No aggregation.
class ClassFactory final : public Counted<IClassFactory> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;
};

/// The body of DllGetClassObject.
[[nodiscard]] HRESULT GetClassFactory(REFCLSID class_id, REFIID iid, void** object) noexcept;

}  // namespace orvendal
