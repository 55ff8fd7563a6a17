#pragma once

#include <string>

#include "adapters/automation/com_ptr.h"
#include "data_objects.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// The core's view of a connection object of ADO's that stands outside and stays the outside's.
class AdoConnection final : public Connection {
 public:
  explicit AdoConnection(ComPtr<Connection15> object) : object_(std::move(object)) {}
  /// `object` by any identifier of ADO's connection interface; empty if it answers to none.
  static ComPtr<Connection15> InterfaceOf(IUnknown* object);

  std::string Provider() const override;
  void CheckNumber(const std::string& text) const override;
  void Close() override;
  /// Borrowed.
  IDispatch* Object() const { return object_.Get(); }

 private:
  ComPtr<Connection15> object_;
};

}  // namespace orvendal
