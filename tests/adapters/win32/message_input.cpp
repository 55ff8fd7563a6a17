#include "tests/adapters/win32/message_input.h"

#include <optional>
#include <string>

#include "platform/forms/form.h"
#include "platform/forms/keys.h"
#include "tests/support/wrapped_import.h"

namespace {

using MessageTime = LONG(WINAPI*)();

// When the key came that is on its way: its message itself comes whenever the test has got so far.
std::optional<LONG> time_of_key;

}  // namespace

extern "C" {

extern MessageTime real_message_time asm(IMPORT_REAL(GetMessageTime, 0));

static LONG WINAPI TimeOfKey() {
  return time_of_key ? *time_of_key : real_message_time();
}

extern MessageTime wrapped_message_time asm(IMPORT_WRAP(GetMessageTime, 0));
MessageTime wrapped_message_time = TimeOfKey;

}  // extern "C"

namespace orvendal {
namespace {

constexpr LPARAM kOnce = 1;
constexpr LPARAM kMenuKeyIsHeld = 1 << 29;
constexpr LPARAM kKeyGoesUp = static_cast<LPARAM>(0xC0000000);

// The keyboard of this thread with nothing but these keys held, and as it was afterwards.
class HeldKeys {
 public:
  explicit HeldKeys(int shift) {
    GetKeyboardState(before_);
    BYTE now[kKeys] = {};
    if ((shift & shift_mask::kShift) != 0) now[VK_SHIFT] = kDown;
    if ((shift & shift_mask::kControl) != 0) now[VK_CONTROL] = kDown;
    if ((shift & shift_mask::kAlt) != 0) now[VK_MENU] = kDown;
    SetKeyboardState(now);
  }
  ~HeldKeys() { SetKeyboardState(before_); }
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;

 private:
  static constexpr int kKeys = 256;
  static constexpr BYTE kDown = 0x80;
  BYTE before_[kKeys] = {};
};

std::wstring UnitsOf(char32_t character) {
  if (character == 0) return {};
  if (character < 0x10000) return {static_cast<wchar_t>(character)};
  const char32_t rest = character - 0x10000;
  return {static_cast<wchar_t>(0xD800 + (rest >> 10)), static_cast<wchar_t>(0xDC00 + (rest & 0x3FF))};
}

// No TranslateMessage: the characters have been posted already, whatever keyboard the machine has.
void Settle() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

}  // namespace

void MessageInput::MousePress(Form& form, Point position, int button, int shift, bool is_double) {
  const bool left = button == mouse_button::kLeft;
  const UINT press = left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN;
  const UINT second = left ? WM_LBUTTONDBLCLK : WM_RBUTTONDBLCLK;
  Mouse(form, is_double ? second : press, left ? MK_LBUTTON : MK_RBUTTON, position, shift);
}

void MessageInput::MouseRelease(Form& form, Point position, int button, int shift) {
  Mouse(form, button == mouse_button::kLeft ? WM_LBUTTONUP : WM_RBUTTONUP, 0, position, shift);
}

void MessageInput::Mouse(const Form& form, UINT message, WPARAM buttons, Point position, int shift) {
  const HeldKeys held(shift);
  if ((shift & shift_mask::kShift) != 0) buttons |= MK_SHIFT;
  if ((shift & shift_mask::kControl) != 0) buttons |= MK_CONTROL;
  PostMessageW(host_.HandleOf(form), message, buttons,
               MAKELPARAM(static_cast<int>(position.x / kTwipsPerPixel),
                          static_cast<int>(position.y / kTwipsPerPixel)));
  Settle();
}

void MessageInput::Key(Form& form, int key_code, int shift, char32_t character) {
  const HWND window = host_.HandleOf(form);
  const HeldKeys held(shift);
  const bool with_menu_key = shift == shift_mask::kAlt;
  const LPARAM how = kOnce | (with_menu_key ? kMenuKeyIsHeld : 0);
  const auto code = static_cast<WPARAM>(key_code);
  time_of_key = static_cast<LONG>(host_.InputTime());
  PostMessageW(window, with_menu_key ? WM_SYSKEYDOWN : WM_KEYDOWN, code, how);
  for (const wchar_t unit : UnitsOf(character)) PostMessageW(window, WM_CHAR, unit, how);
  Settle();
  if (IsWindow(window)) {
    PostMessageW(window, with_menu_key ? WM_SYSKEYUP : WM_KEYUP, code, how | kKeyGoesUp);
    Settle();
  }
  time_of_key.reset();
}

}  // namespace orvendal
