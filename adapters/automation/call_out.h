#pragma once

#include <exception>
#include <optional>
#include <utility>

#include "adapters/automation/error_boundary.h"
#include "adapters/automation/module_lifetime.h"

namespace orvendal {

/// One call out of the module: the module stays meanwhile, stale error information is forgotten, and what
/// came back by reference is taken over even if the call failed, as it is with variables of the caller's own.
class CallOut {
 public:
  CallOut() { ForgetErrorInformation(); }

  /// Runs `call`, which answers an HRESULT. Its error information is read before anything else may change it.
  /// What the other side throws is its error too.
  template <typename Call>
  CallOut& Make(Call&& call) {
    try {
      const HRESULT result = std::forward<Call>(call)();
      if (FAILED(result)) error_.emplace(ErrorOfResult(result));
    } catch (...) {
      error_.emplace(CurrentError());
    }
    return *this;
  }
  /// Runs `take_over`; what it throws comes out of Finish.
  template <typename TakeOver>
  CallOut& Take(TakeOver&& take_over) {
    try {
      std::forward<TakeOver>(take_over)();
    } catch (...) {
      if (!failure_) failure_ = std::current_exception();
    }
    return *this;
  }
  /// Throws the error of the call, else the first one of taking over.
  void Finish() const {
    if (error_) throw *error_;
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  module_lifetime::Hold hold_;
  std::optional<RuntimeError> error_;
  std::exception_ptr failure_;
};

/// A call out without anything by reference that would have to be taken over. Throws the error of the call.
template <typename Call>
void Ask(Call&& call) {
  CallOut().Make(std::forward<Call>(call)).Finish();
}

}  // namespace orvendal
