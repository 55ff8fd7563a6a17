#pragma once

#include <cstdint>

#include "platform/base/runtime_error.h"

namespace orvendal::testing_support {

/// The number of the runtime error that the action ends in; 0 if it ends well.
template <typename Action>
std::int32_t ErrorOf(const Action& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace orvendal::testing_support
