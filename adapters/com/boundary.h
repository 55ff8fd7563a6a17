#pragma once

#include <cstdint>
#include <cstring>
#include <exception>
#include <optional>
#include <string>
#include <utility>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/module_lifetime.h"
#include "adapters/com/object_bridge.h"
#include "adapters/com/store_bridge.h"
#include "platform/base/value.h"

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

// What goes out and back by reference. The other side may call the component again before it returns, or pump
// messages that do, so a variable may hold something newer by then: each cell keeps what it sent, and only
// what the other side replaced is taken over.

/// A number of the same meaning on both sides.
class LongCell {
 public:
  explicit LongCell(std::int32_t number) : sent_(number), cell_(number) {}
  LONG* InOut() { return &cell_; }
  void TakeOver(std::int32_t& number) const {
    if (cell_ != sent_) number = cell_;
  }

 private:
  LONG sent_;
  LONG cell_;
};

/// The host's number of a width that only the host knows: eight bytes that are never looked into.
class ScreenDatumCell {
 public:
  explicit ScreenDatumCell(const Value& datum)
      : sent_(datum.IsNumber() ? datum.Number() : 0.0), cell_(sent_) {}
  double* InOut() { return &cell_; }
  void TakeOver(Value& datum) const {
    if (std::memcmp(&cell_, &sent_, sizeof(cell_)) != 0) datum = Value(cell_);
  }

 private:
  double sent_;
  double cell_;
};

class TextCell {
 public:
  explicit TextCell(const std::string& text) : sent_(text), cell_(text) {}
  BSTR* InOut() { return cell_.InOut(); }
  void TakeOver(std::string& text) const {
    std::string now = cell_.Text();
    if (now != sent_) text = std::move(now);
  }

 private:
  std::string sent_;
  BstrCell cell_;
};

/// An object: the same pointer coming back is the same object.
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
