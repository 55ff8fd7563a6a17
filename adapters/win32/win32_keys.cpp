#include "adapters/win32/win32_keys.h"

#include "platform/forms/keys.h"

namespace orvendal {
namespace {

bool IsDown(int virtual_key) {
  return GetKeyState(virtual_key) < 0;
}

bool ThirdLevelIsChosen() {
  return IsDown(VK_RMENU) && IsDown(VK_LCONTROL) && !IsDown(VK_RCONTROL);
}

}  // namespace

int ShiftNow() {
  int shift = IsDown(VK_SHIFT) ? shift_mask::kShift : 0;
  if (ThirdLevelIsChosen()) return shift;
  if (IsDown(VK_CONTROL)) shift |= shift_mask::kControl;
  if (IsDown(VK_MENU)) shift |= shift_mask::kAlt;
  return shift;
}

int ShiftOfMouse(WPARAM keys) {
  int shift = IsDown(VK_MENU) ? shift_mask::kAlt : 0;
  if ((keys & MK_SHIFT) != 0) shift |= shift_mask::kShift;
  if ((keys & MK_CONTROL) != 0) shift |= shift_mask::kControl;
  return shift;
}

int ButtonsOfMouse(WPARAM keys) {
  int buttons = 0;
  if ((keys & MK_LBUTTON) != 0) buttons |= mouse_button::kLeft;
  if ((keys & MK_RBUTTON) != 0) buttons |= mouse_button::kRight;
  if ((keys & MK_MBUTTON) != 0) buttons |= mouse_button::kMiddle;
  return buttons;
}

std::optional<char32_t> CharacterAssembler::Add(wchar_t unit) {
  const wchar_t high = high_;
  high_ = 0;
  if (IS_HIGH_SURROGATE(unit)) {
    high_ = unit;
    return std::nullopt;
  }
  if (!IS_LOW_SURROGATE(unit)) return static_cast<char32_t>(unit);
  if (high == 0) return std::nullopt;
  return 0x10000 + ((static_cast<char32_t>(high) - 0xD800) << 10) + (static_cast<char32_t>(unit) - 0xDC00);
}

}  // namespace orvendal
