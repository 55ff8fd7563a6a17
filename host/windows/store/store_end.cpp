// SQLite's own locks and memory, which it keeps until it is told that nobody needs it any more.

#include <sqlite3.h>

#include <cstdlib>

#include "adapters/automation/module_entry.h"

namespace {

void EndSqlite() {
  if (orvendal::ModuleIsBeingUnloaded()) sqlite3_shutdown();
}

// Registered before the objects of the module are made: runs after the last of them is gone.
[[gnu::constructor(102)]] void RegisterEndOfSqlite() {
  std::atexit(EndSqlite);
}

}  // namespace
