#pragma once

#include <map>
#include <optional>
#include <string>

#include "adapters/win32/windows_api.h"

namespace orvendal {

class Control;
class Form;

/// Raises accessibility events for what has changed on a form since it was told last: where the focus is, and
/// what the controls and the current cell of the focused grid hold.
class AccessibleEvents {
 public:
  /// `window` may be nullptr. Cheap if nobody listens.
  void Announce(const Form& form, HWND window);
  /// The window gets the keyboard: where the focus stands is news again.
  void Forget() { focus_.reset(); }

 private:
  /// An object of the window and a child of it, as the system's events name them.
  struct Spot {
    LONG object = 0;
    LONG child = 0;
    auto operator<=>(const Spot&) const = default;
  };
  static Spot SpotOf(const Control& control);
  void AnnounceValue(HWND window, const Spot& spot, const std::string& value);

  std::optional<Spot> focus_;
  std::map<Spot, std::string> values_;
  std::optional<Spot> cell_;
};

}  // namespace orvendal
