#include "platform/base/value.h"

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

template <typename Kind>
const Kind& Get(const std::variant<std::monostate, double, Date, std::string>& content) {
  if (const Kind* held = std::get_if<Kind>(&content)) return *held;
  throw RuntimeError(error_number::kTypeMismatch);
}

}  // namespace

double Value::Number() const {
  return Get<double>(content_);
}
Date Value::AsDate() const {
  return Get<Date>(content_);
}
const std::string& Value::Text() const {
  return Get<std::string>(content_);
}

}  // namespace orvendal
