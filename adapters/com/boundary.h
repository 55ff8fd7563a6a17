#pragma once

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
class ScreenDatumCell : public NumberCell<double> {
 public:
  explicit ScreenDatumCell(const Value& datum) : NumberCell(datum.IsNumber() ? datum.Number() : 0.0) {}
};

/// A connection or a recordset.
template <typename Ref, Ref (StoreBridge::*FromOutside)(IDispatch*)>
class StoreCell {
 public:
  StoreCell(Boundary& boundary, const Ref& ours)
      : store_(boundary.store), cell_(boundary.store.ObjectOf(ours)) {}
  IDispatch** InOut() { return cell_.InOut(); }
  void TakeOver(Ref& ours) const {
    if (cell_.WasReplaced()) ours = (store_.*FromOutside)(cell_.Get());
  }

 private:
  StoreBridge& store_;
  InterfaceCell cell_;
};
using ConnectionCell = StoreCell<ConnectionRef, &StoreBridge::ConnectionOf>;
using RecordsetCell = StoreCell<RecordsetRef, &StoreBridge::RecordsetOf>;

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
