#pragma once

#include <atomic>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/module_lifetime.h"

namespace orvendal {

/// The counting of an object of ours that clients hold: born with one reference, gone with the last one, and
/// the module stays as long as it lives. QueryInterface is the class's own.
template <typename... Interfaces>
class Counted : public Interfaces... {
 public:
  Counted() = default;
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~Counted() = default;

 private:
  module_lifetime::Hold hold_;
  std::atomic<ULONG> references_{1};
};

}  // namespace orvendal
