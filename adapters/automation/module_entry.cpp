// The entry point that the loader calls, for every module that COM loads and unloads. The system takes back
// nothing by itself when a module goes while its process goes on: what the C++ runtime, which is linked in,
// has taken for itself is given back here.

#include "adapters/automation/module_entry.h"

#include <cstdlib>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/runtime_threads.h"

namespace __gnu_cxx {
/// Of the runtime: frees the memory that it holds ready for errors where no other is left.
void __freeres() noexcept;
}  // namespace __gnu_cxx

namespace orvendal {
namespace {

bool unloading = false;

void GiveRuntimeBack() {
  if (!unloading) return;
  __gnu_cxx::__freeres();
  ReleaseThreadValues();
}

// Registered before any object of the module is made: runs after the last one is gone.
[[gnu::constructor(101)]] void RegisterLastAct() {
  std::atexit(GiveRuntimeBack);
}

}  // namespace

bool ModuleIsBeingUnloaded() noexcept {
  return unloading;
}

}  // namespace orvendal

extern "C" BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, LPVOID process_ends) {
  if (reason == DLL_PROCESS_DETACH) orvendal::unloading = process_ends == nullptr;
  return TRUE;
}
