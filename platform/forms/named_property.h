#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/base/value.h"
#include "platform/forms/control.h"
#include "platform/forms/form.h"

namespace orvendal {

/// What a property's value means beyond its being a number or a text: numbers are whole, lengths or sizes,
/// flags (0 is no) and colour words.
enum class PropertyType { kText, kWhole, kNumber, kFlag, kColor, kDate };

/// A property of a kind of control, for those who know it by its name alone: scripts, clients of automation,
/// assistive software. Reading and writing do what the member of that name does, and raise what it raises.
struct NamedProperty {
  /// Row and column, an index, or nothing.
  using Place = std::vector<int>;

  std::string_view name;  // as it is written in a program
  PropertyType type;
  std::size_t arguments;  // how many numbers Place has
  std::function<Value(Control& control, const Place& place)> get;
  std::function<void(Control& control, const Place& place, const Value& value)> put;  // empty: read only
};

/// The property of that name, in whatever case, with that many arguments; nullptr if the kind has none.
const NamedProperty* FindProperty(ControlKind kind, std::string_view name, std::size_t arguments = 0);

/// The same of a form. Visible shows and hides; WindowState raises 380 for a number that is no state.
struct FormProperty {
  std::string_view name;
  PropertyType type;
  Value (*get)(Form& form);
  void (*put)(Form& form, const Value& value);  // nullptr: read only
};

/// nullptr if forms have none of that name.
const FormProperty* FindFormProperty(std::string_view name);

}  // namespace orvendal
