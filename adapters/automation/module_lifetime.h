#pragma once

namespace orvendal {

/// Reference count of the module, which stays loaded while it is not zero: objects that clients hold, locks
/// of the class factory, and calls out of the module that have not come back. Counted across threads.
namespace module_lifetime {

void Keep() noexcept;
void LetGo() noexcept;
/// Whether nothing keeps the module.
bool IsFree() noexcept;

/// Keeps the module for its scope.
class Hold {
 public:
  Hold() noexcept { Keep(); }
  ~Hold() { LetGo(); }
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;
};

}  // namespace module_lifetime
}  // namespace orvendal
