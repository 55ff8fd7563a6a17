#include "adapters/win32/win32_form_window.h"

#include <imm.h>
#include <windowsx.h>

#include <algorithm>

#include "adapters/win32/win32_window_host.h"
#include "platform/forms/keys.h"

namespace orvendal {
namespace {

// A wheel that is set to turn pages turns this many lines.
constexpr int kLinesOfAPage = 10;
// Where no control is.
constexpr Point kNowhere{-1e7, -1e7};

int LinesPerNotch() {
  UINT lines = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  return lines == WHEEL_PAGESCROLL ? kLinesOfAPage : static_cast<int>(std::min<UINT>(lines, 100));
}

}  // namespace

// The mouse. Every call can end the form's life.

void Win32FormWindow::Press(int button, bool second_of_double, WPARAM keys, LPARAM place) {
  if (held_buttons_ == 0) SetCapture(window_);
  held_buttons_ |= button;
  const std::shared_ptr<Link> link = link_;
  if (GetFocus() != window_) SetFocus(window_);
  if (link->window == nullptr) return;
  host_.Guard([&] {
    form_.MousePress(PlaceOnForm({GET_X_LPARAM(place), GET_Y_LPARAM(place)}), button, ShiftOfMouse(keys),
                     second_of_double);
  });
}

void Win32FormWindow::Release(int button, WPARAM keys, LPARAM place) {
  held_buttons_ &= ~button;
  if (held_buttons_ == 0 && GetCapture() == window_) ReleaseCapture();
  host_.Guard([&] {
    form_.MouseRelease(PlaceOnForm({GET_X_LPARAM(place), GET_Y_LPARAM(place)}), button, ShiftOfMouse(keys));
  });
}

// The releases of the buttons that are down will go to somebody else: they are over, and clicked nothing.
void Win32FormWindow::LoseMouse() {
  const int held = held_buttons_;
  held_buttons_ = 0;
  const std::shared_ptr<Link> link = link_;
  for (const int button : {mouse_button::kLeft, mouse_button::kRight, mouse_button::kMiddle}) {
    if ((held & button) == 0 || link->window == nullptr) continue;
    host_.Guard([&] { form_.MouseRelease(kNowhere, button, ShiftNow()); });
  }
}

void Win32FormWindow::Turn(WPARAM wparam, LPARAM place) {
  const int lines_of_a_notch = LinesPerNotch();
  const double notches = -GET_WHEEL_DELTA_WPARAM(wparam) / static_cast<double>(WHEEL_DELTA);
  POINT pixels{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  ScreenToClient(window_, &pixels);
  host_.Guard([&] { form_.MouseWheel(PlaceOnForm(pixels), notches * lines_of_a_notch, lines_of_a_notch); });
}

// The keyboard.

// A character that the key stands for has been posted behind it. It belongs to the key: whatever a handler
// of the key does, a dialog included, the character comes after it and before any other key.
bool Win32FormWindow::KeyDown(WPARAM key_code, bool with_menu_key) {
  last_key_ = key_code;
  key_is_down_ = true;
  host_.InputTime(static_cast<DWORD>(GetMessageTime()));
  const std::shared_ptr<Link> link = link_;
  const HWND window = window_;
  std::vector<wchar_t> units;
  MSG next{};
  while (PeekMessageW(&next, window, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE) && next.message == WM_CHAR) {
    if (!PeekMessageW(&next, window, WM_CHAR, WM_CHAR, PM_REMOVE)) break;
    units.push_back(static_cast<wchar_t>(next.wParam));
  }
  // Looking for messages lets those of other threads in, which may have closed the form.
  if (link->window == nullptr) return true;
  const int shift = ShiftNow() | (with_menu_key && key_code != VK_F10 ? shift_mask::kAlt : 0);
  const bool settled = key_code == VK_F4 || key_code == VK_F10;
  host_.Guard([&] { form_.KeyPress(static_cast<int>(key_code), shift); });
  for (const wchar_t unit : units) {
    if (link->window == nullptr) return true;
    Type(unit, true);
  }
  return settled || link->window == nullptr;
}

void Win32FormWindow::Type(wchar_t unit, bool of_a_key) {
  // The Tab key belongs to the form; the same code from Ctrl+I is a character.
  if (unit == L'\t' && last_key_ == VK_TAB) return;
  if (const std::optional<char32_t> character = characters_.Add(unit)) Enter(*character, of_a_key);
}

// Input methods and keyboards on the display bring characters without keys; the form must not take such a one
// for that of the key before.
void Win32FormWindow::Enter(char32_t character, bool of_a_key) {
  const std::shared_ptr<Link> link = link_;
  if (!of_a_key) {
    host_.InputTime(static_cast<DWORD>(GetMessageTime()));
    host_.Guard([&] { form_.KeyPress(VK_PROCESSKEY, 0); });
  }
  if (link->window != nullptr) host_.Guard([&] { form_.Character(character); });
}

// Focus, caret and input methods.

void Win32FormWindow::TakeFocus(bool has_focus) {
  if (has_focus) {
    events_.Forget();
    ShowCaret();
  } else {
    DropCaret();
    key_is_down_ = false;
  }
}

void Win32FormWindow::DropCaret() {
  if (caret_size_.cy > 0) DestroyCaret();
  caret_size_ = {};
}

void Win32FormWindow::ShowCaret() {
  if (window_ == nullptr || GetFocus() != window_) return;
  if (!caret_) {
    DropCaret();
    return;
  }
  const RECT pixels = PixelsOf(*caret_);
  DWORD width = 1;
  SystemParametersInfoW(SPI_GETCARETWIDTH, 0, &width, 0);
  const SIZE size{static_cast<LONG>(std::clamp<DWORD>(width, 1, 20)),
                  std::max(1L, pixels.bottom - pixels.top)};
  const bool is_new = size.cx != caret_size_.cx || size.cy != caret_size_.cy;
  if (is_new && !CreateCaret(window_, nullptr, size.cx, size.cy)) return;
  SetCaretPos(pixels.left, pixels.top);
  if (is_new) ::ShowCaret(window_);
  caret_size_ = size;
}

void Win32FormWindow::ShowPointer() const {
  SetCursor(LoadCursorW(nullptr, cursor_ == CursorShape::kText ? reinterpret_cast<LPCWSTR>(IDC_IBEAM)
                                                               : reinterpret_cast<LPCWSTR>(IDC_ARROW)));
}

void Win32FormWindow::PlaceComposition() {
  if (window_ == nullptr || !caret_ || GetFocus() != window_) return;
  const HIMC context = ImmGetContext(window_);
  if (context == nullptr) return;
  const RECT pixels = PixelsOf(*caret_);
  COMPOSITIONFORM form{};
  form.dwStyle = CFS_POINT;
  form.ptCurrentPos = {pixels.left, pixels.top};
  ImmSetCompositionWindow(context, &form);
  ImmReleaseContext(window_, context);
}

}  // namespace orvendal
