#pragma once

#include "platform/data/recordset.h"

namespace orvendal {

/// Makes ADO's own Recordset objects, by the class identifier under which the system knows them. NewRecordset
/// raises 429 where there is no such class and 430 where it makes something else.
class AdoRecordsetFactory final : public RecordsetFactory {
 public:
  RecordsetRef NewRecordset() override;
};

}  // namespace orvendal
