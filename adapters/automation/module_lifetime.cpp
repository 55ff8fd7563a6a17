#include "adapters/automation/module_lifetime.h"

#include <atomic>

namespace orvendal::module_lifetime {
namespace {

std::atomic<long> holds{0};

}  // namespace

void Keep() noexcept {
  ++holds;
}
void LetGo() noexcept {
  --holds;
}
bool IsFree() noexcept {
  return holds.load() == 0;
}

}  // namespace orvendal::module_lifetime
