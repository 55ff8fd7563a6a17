#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "platform/forms/font.h"

namespace orvendal {

/// The settings that a control of the maker's library stores with the form: named values, in stored order.
struct StoredProperty {
  std::string name;
  std::variant<std::int32_t, std::string, FontSpec> value;
};
using PropertyList = std::vector<StoredProperty>;

/// The value stored under that exact name; nullptr if there is none of that type.
template <typename Type>
const Type* FindStored(const PropertyList& list, const std::string& name) {
  for (const StoredProperty& property : list) {
    if (property.name == name) return std::get_if<Type>(&property.value);
  }
  return nullptr;
}

}  // namespace orvendal
