#pragma once

#include <new>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/counted.h"

namespace orvendal {

/// The enumeration of the connection points of a class without events: it is at its end from the start.
class NoConnectionPoints final : public Counted<IEnumConnectionPoints> {
 public:
  HRESULT STDMETHODCALLTYPE Next(ULONG count, IConnectionPoint** points, ULONG* fetched) noexcept override {
    if (!points || (!fetched && count != 1)) return E_POINTER;
    if (fetched) *fetched = 0;
    return count == 0 ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override { return count == 0 ? S_OK : S_FALSE; }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints** copy) noexcept override {
    if (!copy) return E_POINTER;
    *copy = new (std::nothrow) NoConnectionPoints;
    return *copy ? S_OK : E_OUTOFMEMORY;
  }
};

}  // namespace orvendal
