#pragma once

namespace orvendal {

/// A hold on the code of this module, from any thread, while it must not be unloaded: a window of it exists
/// or one of its procedures runs. The objects of it that somebody outside has hold it by themselves.
class ModuleUse {
 public:
  ModuleUse();
  ~ModuleUse();
  ModuleUse(const ModuleUse&) = delete;
  ModuleUse& operator=(const ModuleUse&) = delete;
};

/// Whether anybody holds it. What the last of them left in the system is taken away by asking.
bool ModuleIsInUse();

}  // namespace orvendal
