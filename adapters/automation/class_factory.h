#pragma once

#include "adapters/automation/counted.h"

namespace orvendal {

/// Makes objects of one class. No aggregation.
class ClassFactory final : public Counted<IClassFactory> {
 public:
  /// Gives a new object with one reference, or nullptr where memory has run out. Throws nothing.
  using Make = IUnknown* (*)() noexcept;

  explicit ClassFactory(Make make) : make_(make) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

 private:
  Make make_;
};

/// A factory for `make` as `iid`, for DllGetClassObject.
[[nodiscard]] HRESULT GetClassFactory(ClassFactory::Make make, REFIID iid, void** object) noexcept;

}  // namespace orvendal
