#include "host/store/sample_mark.h"

#include "host/store/store_rows.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

bool SaysItIsMadeUp(RecordsetFactory& recordsets, const ConnectionRef& connection) {
  if (!connection) return false;
  try {
    const std::string mark(kSampleMark);
    return !ReadRows(recordsets, connection, "SELECT " + mark + ".* FROM " + mark)->AtEnd();
  } catch (const RuntimeError&) {
    return false;  // a chain of somebody's own has no such table
  }
}

}  // namespace orvendal
