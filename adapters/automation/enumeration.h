#pragma once

#include "adapters/automation/com_ptr.h"
#include "adapters/automation/counted.h"

namespace orvendal {

/// The objects of a collection one after another, for For Each.
class Enumeration : public Counted<IEnumVARIANT> {
 public:
  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* objects, ULONG* fetched) noexcept final;
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept final;
  HRESULT STDMETHODCALLTYPE Reset() noexcept final;
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) noexcept final;

 protected:
  // Each may throw.
  /// How many there are now.
  virtual std::size_t Size() const = 0;
  /// The object at a place, from 0.
  virtual ComPtr<IDispatch> At(std::size_t place) = 0;
  /// Another enumeration of the same collection.
  virtual Enumeration* Copy() const = 0;

 private:
  std::size_t next_ = 0;
};

}  // namespace orvendal
