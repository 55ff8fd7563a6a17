#include "adapters/com/module_parts.h"
#include "adapters/headless/headless_host.h"
#include "adapters/sqlite/sqlite_store.h"
#include "tests/adapters/com/fake_store.h"

// A module without windows and without ADO, for what clients see of the component before a screen opens.

namespace orvendal {

ModuleParts MakeModuleParts() {
  static FixedClock clock(Date(2026, 11, 16, 10, 30, 0));
  ModuleParts parts;
  parts.windows = std::make_unique<HeadlessHost>(Region::Spanish(), clock);
  parts.recordsets = std::make_unique<SqliteRecordsetFactory>();
  parts.store = std::make_unique<FakeStoreBridge>();
  return parts;
}

}  // namespace orvendal
