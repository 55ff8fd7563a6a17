#pragma once

#include <string>

#include "session/component_state.h"

namespace orvendal {

/// The component's one public class.
class ClassOrvendal {
 public:
  /// `state` is the module's and outlives the object.
  explicit ClassOrvendal(ComponentState& state) : state_(state) {}

  /// Opens the screen for branch `suc`, workstation `puest` and shift `turn`, or brings it back, and returns
  /// without waiting for it. The result is always False. Raises whatever the session object or the form's
  /// load raises; an empty session object is error 91.
  bool Orvendal(const DatosClaseRef& datos_clase, const std::string& suc, const std::string& puest,
                const std::string& turn);

 private:
  ComponentState& state_;
};

}  // namespace orvendal
