#include "adapters/win32/module_use.h"

#include <atomic>

namespace orvendal {
namespace {
std::atomic<int> uses = 0;
}

ModuleUse::ModuleUse() {
  ++uses;
}
ModuleUse::~ModuleUse() {
  --uses;
}

bool ModuleIsInUse() {
  return uses > 0;
}

}  // namespace orvendal
