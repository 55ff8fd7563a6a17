#include "adapters/win32/module_use.h"

#include <atomic>

#include "adapters/win32/window_class.h"

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
  return uses > 0 || !WindowClass::SweepAll();
}

}  // namespace orvendal
