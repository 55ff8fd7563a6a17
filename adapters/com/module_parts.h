#pragma once

#include <cstdint>
#include <memory>

#include "adapters/com/store_bridge.h"
#include "platform/data/recordset.h"
#include "platform/forms/window_host.h"

namespace orvendal {

/// Factories of what the component stands on in this module, windows and store; the build links one of each.
struct ModuleParts {
  std::unique_ptr<WindowHost> windows;
  std::unique_ptr<RecordsetFactory> recordsets;
  std::unique_ptr<StoreBridge> store;
  /// The native window of a loaded form, as automation gives it out; 0 without one.
  std::intptr_t (*native_window)(WindowHost& windows, const Form& form) = nullptr;
  /// Whether a window, a procedure of one or an object that describes one still needs the module's code, even
  /// after the window host is gone. May be nullptr.
  bool (*windows_in_use)() = nullptr;
};

/// Called on the user interface's thread, once for each life of the component's state.
ModuleParts MakeModuleParts();

}  // namespace orvendal
