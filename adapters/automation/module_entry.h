#pragma once

namespace orvendal {

/// Whether the module is being unloaded while its process goes on: the time to give back what it holds of the
/// process. At the end of a process nothing has to be given back, and may be: threads that were ended may
/// have left locks behind.
bool ModuleIsBeingUnloaded() noexcept;

}  // namespace orvendal
