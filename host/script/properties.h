#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/forms/control.h"

namespace orvendal {

/// A property of a control, by its name in lower case and the number of its arguments.
struct ScriptProperty {
  std::string name;
  std::size_t arguments = 0;
  std::function<std::string(Control& control, const std::vector<int>& arguments)> read;
};
using ScriptProperties = std::vector<ScriptProperty>;

/// What every control has.
const ScriptProperties& CommonProperties();
/// What a kind of control has beyond that.
const ScriptProperties& PropertiesOf(ControlKind kind);

}  // namespace orvendal
