#pragma once

#include <atomic>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/dispatch_rules.h"
#include "adapters/automation/module_lifetime.h"

namespace orvendal {

/// An object of ours that clients hold: born with one reference, gone with the last one, and the module stays
/// as long as it lives. Answers to each of its interfaces; the first stands for IUnknown.
template <typename First, typename... Others>
class Counted : public First, public Others... {
 public:
  Counted() = default;
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (IsMissing(iid)) return E_INVALIDARG;
    void* const found = Find(iid);
    if (!found) return E_NOINTERFACE;
    AddRef();
    *object = found;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~Counted() = default;

  /// The interface of that identifier, not counted yet; nullptr for one that it does not answer to.
  virtual void* Find(REFIID iid) noexcept {
    if (iid == IID_IUnknown || iid == __uuidof(First)) return static_cast<First*>(this);
    void* found = nullptr;
    ((found = !found && iid == __uuidof(Others) ? static_cast<Others*>(this) : found), ...);
    return found;
  }

 private:
  module_lifetime::Hold hold_;
  std::atomic<ULONG> references_{1};
};

}  // namespace orvendal
