#include "host/script/values.h"

#include <cstdio>

#include "platform/base/region.h"

namespace orvendal {

std::string ValueText(double number) {
  return Region::English().ToText(number);
}

std::string ValueText(Date date) {
  const bool midnight = date.SecondOfDay() == 0;
  return Region::English().Format(date, midnight ? "yyyy-mm-dd" : "yyyy-mm-dd hh:nn:ss");
}

std::string ValueText(ColorWord color) {
  char text[16];
  std::snprintf(text, sizeof text, IsSystemColor(color) ? "0x%08X" : "0x%06X", color);
  return text;
}

std::string ValueText(const Value& value, PropertyType type) {
  switch (type) {
    case PropertyType::kText:
      return value.Text();
    case PropertyType::kWhole:
      return ValueText(static_cast<int>(value.Number()));
    case PropertyType::kNumber:
      return ValueText(value.Number());
    case PropertyType::kFlag:
      return ValueText(value.Number() != 0);
    case PropertyType::kColor:
      return ValueText(static_cast<ColorWord>(value.Number()));
    case PropertyType::kDate:
      return ValueText(value.AsDate());
  }
  return {};
}

}  // namespace orvendal
