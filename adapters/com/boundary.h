#pragma once

#include <cstring>

#include "adapters/automation/call_out.h"
#include "adapters/automation/in_out.h"
#include "adapters/com/object_bridge.h"
#include "adapters/com/store_bridge.h"
#include "platform/base/value.h"

namespace orvendal {

/// What marshalling needs in calls out of the module: how windows, stores and objects cross.
struct Boundary {
  WindowHost& windows;
  StoreBridge& store;
  ObjectBridge& objects;
};

/// The host's number of a width that only the host knows: eight bytes that are copied unread.
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
