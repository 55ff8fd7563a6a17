#pragma once

#include <new>
#include <span>

#include "adapters/automation/counted.h"

namespace orvendal {

/// Makes objects of one class. No aggregation.
class ClassFactory final : public Counted<IClassFactory> {
 public:
  /// Gives a new object with one reference, or nullptr where memory has run out. Throws nothing.
  using Make = IUnknown* (*)() noexcept;

  explicit ClassFactory(Make make) : make_(make) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

 private:
  Make make_;
};

/// One class that a module makes objects of.
struct CreatableClass {
  GUID identifier;
  ClassFactory::Make make;
};

/// The body of DllGetClassObject: the factory of one of `classes` as `iid`.
[[nodiscard]] HRESULT GetClassFactory(std::span<const CreatableClass> classes, REFCLSID class_id, REFIID iid,
                                      void** object) noexcept;

/// Makes objects of a class whose constructor takes nothing.
template <typename Object>
IUnknown* MakeObject() noexcept {
  auto* const made = new (std::nothrow) Object;
  return made ? static_cast<IDispatch*>(made) : nullptr;
}

}  // namespace orvendal
