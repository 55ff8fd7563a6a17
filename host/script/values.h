#pragma once

#include <string>

#include "platform/base/date.h"
#include "platform/base/value.h"
#include "platform/forms/color.h"
#include "platform/forms/named_property.h"

namespace orvendal {

// Values as a script prints them, the same in every region.

inline std::string ValueText(const std::string& text) {
  return text;
}
inline std::string ValueText(bool flag) {
  return flag ? "True" : "False";
}
inline std::string ValueText(int number) {
  return std::to_string(number);
}
std::string ValueText(double number);
/// yyyy-mm-dd, with hh:mm:ss unless it is midnight.
std::string ValueText(Date date);
/// 0xBBGGRR, or 0x80000005 for a system colour.
std::string ValueText(ColorWord color);
/// What was read of a property of that type.
std::string ValueText(const Value& value, PropertyType type);

}  // namespace orvendal
