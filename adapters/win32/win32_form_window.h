#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/win32/accessible_events.h"
#include "adapters/win32/module_use.h"
#include "adapters/win32/win32_keys.h"
#include "adapters/win32/windows_api.h"
#include "platform/forms/common_window.h"
#include "platform/forms/form.h"

namespace orvendal {

class FormAccessible;
class WindowClass;
class Win32WindowHost;

/// The window of one form: turns what the system says into the form's input members, and paints the form
/// where it has to be painted.
///
/// A form without border is a bare window of the form's size that the taskbar knows; one with a border has
/// the system's frame around its size, and stays where the user puts it. A dialog stands in front of the
/// window that was in front of it. The system's window is made at the first Show.
///
/// A handler can unload the form in the middle of a message of this window; whoever calls the form looks at
/// `link_` afterwards before touching anything. Invariant: `link_->window` is this object, and the system's
/// window knows it through `link_` alone.
class Win32FormWindow final : public CommonWindow {
 public:
  Win32FormWindow(Win32WindowHost& host, Form& form);
  ~Win32FormWindow() override;

  /// nullptr before the first Show.
  HWND Handle() const { return window_; }

  void Show() override;
  void Hide() override;
  void Raise() override;
  void BoundsChanged() override;
  void CaptionChanged() override;
  void StateChanged(WindowState state) override;
  void RequestPaint(const Rect& area) override;
  void PaintNow() override;
  void Cursor(CursorShape shape) override;
  void Caret(const std::optional<Rect>& caret) override;

  /// Pixels of the window's inside that a place on the form takes up, rounded outwards.
  RECT PixelsOf(const Rect& area) const;
  Point PlaceOnForm(POINT pixels) const;

 private:
  struct Link {
    Win32FormWindow* window;
  };
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
  static WindowClass kClass;

  // The window and its system (win32_form_window.cpp).
  struct Look {
    DWORD style = 0;
    DWORD extended = 0;
    bool operator==(const Look&) const = default;
  };
  bool IsShown() const { return window_ != nullptr && form_.Visible(); }
  Look WantedLook(bool modal) const;
  void Make(HWND owner, const Look& look);
  void Destroy();
  /// The form's place on the display, in pixels.
  RECT FormPixels() const;
  POINT PlaceAtFirst(SIZE size) const;
  void PlaceWindow();
  void ApplyState();
  void TakeStateFromSystem(WPARAM size_kind);
  void LimitSize(MINMAXINFO& limits) const;
  void TakeDpi(int dpi);
  void MoveToOtherDisplay(int dpi, const RECT& suggested);

  // Messages (win32_form_messages.cpp). Empty: the system is to do what it does by default.
  std::optional<LRESULT> Handle(UINT message, WPARAM wparam, LPARAM lparam);
  std::optional<LRESULT> HandleWindow(UINT message, WPARAM wparam, LPARAM lparam);
  std::optional<LRESULT> HandleInput(UINT message, WPARAM wparam, LPARAM lparam);
  std::optional<LRESULT> AnswerAssistant(WPARAM wparam, LPARAM lparam);
  bool SessionMayEnd(LPARAM reason);
  void PaintWindow();
  void PaintPart(HDC dc, const RECT& part);
  void LostFromOutside();

  // Input (win32_form_input.cpp).
  void Press(int button, bool second_of_double, WPARAM keys, LPARAM place);
  void Release(int button, WPARAM keys, LPARAM place);
  void LoseMouse();
  void Turn(WPARAM wparam, LPARAM place);
  bool KeyDown(WPARAM key_code, bool with_menu_key);
  void Type(wchar_t unit, bool of_a_key);
  void Enter(char32_t character, bool of_a_key);
  void TakeFocus(bool has_focus);
  void ShowCaret();
  void DropCaret();
  void PlaceComposition();
  void ShowPointer() const;

  Win32WindowHost& host_;
  Form& form_;
  std::shared_ptr<Link> link_;
  std::optional<ModuleUse> use_;  // while there is a window
  HWND window_ = nullptr;
  HWND owner_ = nullptr;
  Look look_;
  int dpi_;
  bool placed_ = false;          // a framed window is placed once, then it is the user's
  bool applying_state_ = false;  // what the system says of the state is no news then
  CursorShape cursor_ = CursorShape::kArrow;
  std::optional<Rect> caret_;
  SIZE caret_size_{};  // of the system's caret; empty without one
  int held_buttons_ = 0;
  WPARAM last_key_ = 0;
  bool key_is_down_ = false;
  CharacterAssembler characters_;
  std::unique_ptr<FormAccessible> accessible_;  // made when somebody asks for it
  AccessibleEvents events_;
};

}  // namespace orvendal
