#pragma once

#include "adapters/automation/com_headers.h"
#include "adapters/automation/com_ptr.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// Marshalling of connections and recordsets: ADO's objects outside, the core's inside.
class StoreBridge {
 public:
  virtual ~StoreBridge() = default;
  /// Raises error 13 for an object that is none. An empty pointer gives an empty reference, and back.
  virtual ConnectionRef ConnectionOf(IDispatch* object) = 0;
  virtual RecordsetRef RecordsetOf(IDispatch* object) = 0;
  /// The very pointer to ADO's _Connection or _Recordset that callers early-bind to.
  virtual ComPtr<IDispatch> ObjectOf(const ConnectionRef& connection) = 0;
  virtual ComPtr<IDispatch> ObjectOf(const RecordsetRef& recordset) = 0;
};

}  // namespace orvendal
