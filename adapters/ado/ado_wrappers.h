#pragma once

#include "adapters/automation/com_headers.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// ADO's connection or recordset `object` as the core uses it; the reference holds the object. An empty
/// pointer gives an empty reference. Raises 13 for an object that answers to no identifier of that interface.
ConnectionRef WrapConnection(IUnknown* object);
RecordsetRef WrapRecordset(IUnknown* object);

/// The object that `reference` stands for, by the interface that callers bind to early; borrowed. An empty
/// reference gives an empty pointer. Raises 13 for what is not ADO's, such as a recordset in memory: it has
/// no object outside.
IDispatch* Unwrap(const ConnectionRef& reference);
IDispatch* Unwrap(const RecordsetRef& reference);

}  // namespace orvendal
