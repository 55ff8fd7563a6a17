#pragma once

namespace orvendal {

/// While one lives, on any thread, the code of this module must stay where it is: a window of it exists, one
/// of its procedures runs, or somebody outside has an object of it.
class ModuleUse {
 public:
  ModuleUse();
  ~ModuleUse();
  ModuleUse(const ModuleUse&) = delete;
  ModuleUse& operator=(const ModuleUse&) = delete;
};

/// Whether one lives. What the last of them left in the system is taken away by asking.
bool ModuleIsInUse();

}  // namespace orvendal
