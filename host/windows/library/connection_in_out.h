#pragma once

#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/in_out.h"

namespace orvendal {

/// The connection of a call by reference: read when the call begins, given back if it is another one since.
/// Raises 13 for what is no connection of ADO's.
class ConnectionInOut {
 public:
  explicit ConnectionInOut(IDispatch** place)
      : connection(WrapConnection(*place)), place_(place), was_(connection) {}
  void Give() {
    if (connection != was_) Replace(*place_, ComPtr<IDispatch>(Unwrap(connection)));
  }

  ConnectionRef connection;

 private:
  IDispatch** place_;
  ConnectionRef was_;
};

}  // namespace orvendal
