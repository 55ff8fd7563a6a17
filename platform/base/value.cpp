#include "platform/base/value.h"

#include "platform/base/runtime_error.h"

namespace orvendal {

void Value::RaiseOtherKind() {
  throw RuntimeError(error_number::kTypeMismatch);
}

}  // namespace orvendal
