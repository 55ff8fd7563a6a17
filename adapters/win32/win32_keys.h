#pragma once

#include <optional>

#include "adapters/win32/windows_api.h"

namespace orvendal {

/// Bits of shift_mask for the keys that are down at the message that is being worked on. The key that chooses
/// the third level of a keyboard is neither Ctrl nor Alt, although the system reports both.
int ShiftNow();
/// The same for a message of the mouse, which brings Shift and Ctrl along.
int ShiftOfMouse(WPARAM keys);
/// Bits of mouse_button in a message of the mouse.
int ButtonsOfMouse(WPARAM keys);

/// Puts characters together from the UTF-16 units that come one by one.
class CharacterAssembler {
 public:
  /// The character that ends with `unit`; nothing in the middle of one, or for a lone half.
  std::optional<char32_t> Add(wchar_t unit);

 private:
  wchar_t high_ = 0;
};

}  // namespace orvendal
