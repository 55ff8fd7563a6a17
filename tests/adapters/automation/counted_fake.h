#pragma once

#include "adapters/automation/com_headers.h"

namespace orvendal {

/// An object of a test that counts the references to it, apart from what holds a module. Born with one.
template <typename First, typename... Others>
class CountedFake : public First, public Others... {
 public:
  CountedFake() = default;
  CountedFake(const CountedFake&) = delete;
  CountedFake& operator=(const CountedFake&) = delete;

  ULONG References() const { return references_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = iid == IID_IUnknown ? static_cast<First*>(this) : Find(iid);
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~CountedFake() = default;
  /// The interface of that identifier, not counted yet; nullptr for one that it does not answer to.
  virtual void* Find(REFIID iid) = 0;

 private:
  ULONG references_ = 1;
};

}  // namespace orvendal
