#pragma once

#include <exception>
#include <optional>
#include <utility>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/module_lifetime.h"
#include "adapters/com/object_bridge.h"
#include "adapters/com/store_bridge.h"

namespace orvendal {

/// What calls out of the module need.
struct Boundary {
  WindowHost& windows;
  StoreBridge& store;
  ObjectBridge& objects;
};

/// One call out: the module stays meanwhile, stale error information is forgotten, and what came back by
/// reference is taken over even if the call failed, as it is with variables of the caller's own.
class CallOut {
 public:
  CallOut() { ForgetErrorInformation(); }

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
  /// Throws the error that the call answered, else the first one of taking over.
  void Finish() const {
    if (error_) throw *error_;
    if (failure_) std::rethrow_exception(failure_);
  }
  /// The result of the call, read before anything else may change the thread's error information.
  void Answered(HRESULT result) {
    if (FAILED(result)) error_.emplace(ErrorOfResult(result));
  }

 private:
  module_lifetime::Hold hold_;
  std::optional<RuntimeError> error_;
  std::exception_ptr failure_;
};

/// An object on its way out and back by reference. Each cell keeps what it sent, so that the same pointer
/// coming back is known to be the same object.
class InterfaceCell {
 public:
  explicit InterfaceCell(ComPtr<IDispatch> object) : sent_(object), cell_(std::move(object)) {}
  IDispatch** InOut() { return cell_.InOut(); }
  bool WasReplaced() const { return cell_.Get() != sent_.Get(); }
  IDispatch* Get() const { return cell_.Get(); }

 private:
  ComPtr<IDispatch> sent_;
  ComPtr<IDispatch> cell_;
};

class ConnectionCell {
 public:
  ConnectionCell(Boundary& boundary, const ConnectionRef& connection)
      : boundary_(boundary), cell_(boundary.store.ObjectOf(connection)) {}
  IDispatch** InOut() { return cell_.InOut(); }
  void TakeOver(ConnectionRef& connection) const {
    if (cell_.WasReplaced()) connection = boundary_.store.ConnectionOf(cell_.Get());
  }

 private:
  Boundary& boundary_;
  InterfaceCell cell_;
};

class RecordsetCell {
 public:
  RecordsetCell(Boundary& boundary, const RecordsetRef& recordset)
      : boundary_(boundary), cell_(boundary.store.ObjectOf(recordset)) {}
  IDispatch** InOut() { return cell_.InOut(); }
  void TakeOver(RecordsetRef& recordset) const {
    if (cell_.WasReplaced()) recordset = boundary_.store.RecordsetOf(cell_.Get());
  }

 private:
  Boundary& boundary_;
  InterfaceCell cell_;
};

class ObjectCell {
 public:
  ObjectCell(Boundary& boundary, const ObjectRef& object, ObjectRole role = ObjectRole::kAny)
      : boundary_(boundary), cell_(boundary.objects.ToCom(object)), role_(role) {}
  IDispatch** InOut() { return cell_.InOut(); }
  void TakeOver(ObjectRef& object) const {
    if (cell_.WasReplaced()) object = boundary_.objects.FromCom(cell_.Get(), role_);
  }

 private:
  Boundary& boundary_;
  InterfaceCell cell_;
  ObjectRole role_;
};

}  // namespace orvendal
