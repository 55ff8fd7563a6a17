#include "adapters/win32/win32_form_window.h"

#include <windowsx.h>

#include "adapters/win32/form_accessible.h"
#include "adapters/win32/win32_canvas.h"
#include "adapters/win32/win32_window_host.h"
#include "adapters/win32/window_class.h"
#include "platform/forms/keys.h"

namespace orvendal {
namespace {

constexpr UINT kDpiChanged = 0x02E0;    // WM_DPICHANGED, which older headers lack
constexpr UINT kThemeChanged = 0x031A;  // WM_THEMECHANGED, likewise
constexpr WPARAM kSystemCommand = 0xFFF0;
constexpr std::size_t kMostPaintRectangles = 8;
constexpr double kTwipsPerInch = 1440.0;

bool IsCharacter(WPARAM code_point) {
  return code_point <= 0x10FFFF && (code_point < 0xD800 || code_point > 0xDFFF);
}

// What the window waits to have painted, as few rectangles.
std::vector<RECT> PartsToPaint(HWND window) {
  const HRGN region = CreateRectRgn(0, 0, 0, 0);
  std::vector<RECT> parts;
  if (GetUpdateRgn(window, region, FALSE) > NULLREGION) {
    std::vector<char> data(GetRegionData(region, 0, nullptr));
    auto* header = reinterpret_cast<RGNDATA*>(data.data());
    if (!data.empty() && GetRegionData(region, static_cast<DWORD>(data.size()), header) != 0) {
      const auto* first = reinterpret_cast<const RECT*>(header->Buffer);
      parts.assign(first, first + header->rdh.nCount);
    }
    if (parts.size() > kMostPaintRectangles) {
      RECT whole{};
      GetRgnBox(region, &whole);
      parts = {whole};
    }
  }
  DeleteObject(region);
  return parts;
}

}  // namespace

LRESULT CALLBACK Win32FormWindow::Procedure(HWND window, UINT message, WPARAM wparam,
                                            LPARAM lparam) noexcept {
  const ModuleUse use;
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lparam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
  }
  const auto* linked = reinterpret_cast<const Link*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (linked == nullptr || linked->window == nullptr) return DefWindowProcW(window, message, wparam, lparam);
  // The message may be the last of the form and of its window.
  const std::shared_ptr<Link> link = linked->window->link_;
  Form& form = link->window->form_;
  Win32WindowHost& host = link->window->host_;
  std::optional<LRESULT> result;
  host.GuardQuietly("A message", [&] {
    const ObjectRef keep = form.shared_from_this();
    result = link->window->Handle(message, wparam, lparam);
    if (link->window != nullptr) link->window->events_.Announce(form, link->window->window_);
  });
  return result ? *result : DefWindowProcW(window, message, wparam, lparam);
}

std::optional<LRESULT> Win32FormWindow::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
  const bool is_input = (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
                        (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
  return is_input ? HandleInput(message, wparam, lparam) : HandleWindow(message, wparam, lparam);
}

std::optional<LRESULT> Win32FormWindow::HandleWindow(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PAINT:
      PaintWindow();
      return 0;
    case WM_PRINTCLIENT: {
      RECT inside{};
      GetClientRect(window_, &inside);
      PaintPart(reinterpret_cast<HDC>(wparam), inside);
      return 0;
    }
    case WM_ERASEBKGND:
      return 1;
    case WM_SETCURSOR:
      if (LOWORD(lparam) != HTCLIENT) return std::nullopt;
      ShowPointer();
      return TRUE;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      TakeFocus(message == WM_SETFOCUS);
      return 0;
    case WM_CAPTURECHANGED:
      LoseMouse();
      return 0;
    case WM_GETDLGCODE:
      // The form moves its focus by itself, whatever dialog keys the host's loop knows.
      return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTTAB | DLGC_WANTCHARS;
    case WM_CLOSE:
      host_.Guard([this] { form_.CloseRequest(); });
      return 0;
    case WM_QUERYENDSESSION:
      return SessionMayEnd(lparam) ? TRUE : FALSE;
    case WM_SIZE:
      TakeStateFromSystem(wparam);
      return 0;
    case WM_GETMINMAXINFO:
      LimitSize(*reinterpret_cast<MINMAXINFO*>(lparam));
      return 0;
    case WM_SYSCOMMAND:
      // A menu key alone would open the menu that the window does not show, and the next key would be lost.
      if ((wparam & kSystemCommand) == SC_KEYMENU && lparam != VK_SPACE) return 0;
      return std::nullopt;
    case kDpiChanged:
      MoveToOtherDisplay(HIWORD(wparam), *reinterpret_cast<const RECT*>(lparam));
      return 0;
    case WM_DISPLAYCHANGE:
      BoundsChanged();
      InvalidateRect(window_, nullptr, FALSE);
      return 0;
    case WM_SYSCOLORCHANGE:
    case kThemeChanged:
    case WM_SETTINGCHANGE:
      ShowCaret();
      InvalidateRect(window_, nullptr, FALSE);
      return std::nullopt;
    case WM_IME_STARTCOMPOSITION:
      PlaceComposition();
      return std::nullopt;
    case WM_IME_CHAR:
      // Not by the message that the system would post for it: a host's loop may know fewer letters.
      Type(static_cast<wchar_t>(wparam), false);
      return 0;
    case WM_GETOBJECT:
      return AnswerAssistant(wparam, lparam);
    case FormAccessible::kPerformMessage:
      if (accessible_ != nullptr) accessible_->Perform();
      return 0;
    case WM_NCDESTROY:
      LostFromOutside();
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

// Taken as the close button is, so that what is not saved is asked for; a screen that stays keeps the
// session, one under a dialog as well. When the system goes in any case there is nobody to answer.
bool Win32FormWindow::SessionMayEnd(LPARAM reason) {
  if ((static_cast<DWORD>(reason) & ENDSESSION_CRITICAL) != 0 || !IsShown()) return true;
  const std::shared_ptr<Link> link = link_;
  host_.Guard([this] { form_.CloseRequest(); });
  return link->window == nullptr || !link->window->IsShown();
}

std::optional<LRESULT> Win32FormWindow::HandleInput(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      Press(mouse_button::kLeft, message == WM_LBUTTONDBLCLK, wparam, lparam);
      return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      Press(mouse_button::kRight, message == WM_RBUTTONDBLCLK, wparam, lparam);
      return 0;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
      Press(mouse_button::kMiddle, message == WM_MBUTTONDBLCLK, wparam, lparam);
      return 0;
    case WM_LBUTTONUP:
      Release(mouse_button::kLeft, wparam, lparam);
      return 0;
    case WM_RBUTTONUP:
      Release(mouse_button::kRight, wparam, lparam);
      return 0;
    case WM_MBUTTONUP:
      Release(mouse_button::kMiddle, wparam, lparam);
      return 0;
    case WM_MOUSEMOVE:
      host_.Guard([&] {
        form_.MouseMove(PlaceOnForm({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}), ButtonsOfMouse(wparam),
                        ShiftOfMouse(wparam));
      });
      return 0;
    case WM_MOUSEWHEEL:
      Turn(wparam, lparam);
      return 0;
    case WM_KEYDOWN:
      KeyDown(wparam, false);
      return 0;
    case WM_SYSKEYDOWN:
      // Keys with Alt go on to the system, which knows its own; the rest is settled.
      if (KeyDown(wparam, true)) return 0;
      return std::nullopt;
    case WM_KEYUP:
    case WM_SYSKEYUP:
      key_is_down_ = false;
      host_.Guard([&] { form_.KeyRelease(static_cast<int>(wparam), ShiftNow()); });
      if (message == WM_KEYUP || wparam == VK_F10) return 0;
      return std::nullopt;
    case WM_CHAR:
      Type(static_cast<wchar_t>(wparam), key_is_down_);
      return 0;
    case WM_UNICHAR:
      if (wparam == UNICODE_NOCHAR) return TRUE;
      if (IsCharacter(wparam)) Enter(static_cast<char32_t>(wparam), key_is_down_);
      return 0;
    default:
      return std::nullopt;
  }
}

// Painting. The system keeps what has to be painted, the form's own list only keeps it from asking twice.

void Win32FormWindow::PaintWindow() {
  const std::vector<RECT> parts = PartsToPaint(window_);
  form_.TakeDirtyRectangles();
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(window_, &paint);
  if (dc != nullptr) {
    for (const RECT& part : parts) PaintPart(dc, part);
  }
  EndPaint(window_, &paint);
}

void Win32FormWindow::PaintPart(HDC dc, const RECT& part) {
  const int width = part.right - part.left, height = part.bottom - part.top;
  if (width <= 0 || height <= 0) return;
  host_.GuardQuietly("Painting", [&] {
    DibSurface& surface = host_.Surface(width, height);
    const RECT form = PixelsOf({0, 0, form_.Width(), form_.Height()});
    if (part.right > form.right || part.bottom > form.bottom) {
      const RECT whole{0, 0, width, height};
      FillRect(surface.Dc(), &whole, GetSysColorBrush(COLOR_BACKGROUND));
    }
    {
      const double pixel = kTwipsPerInch / dpi_;
      const Rect area{part.left * pixel, part.top * pixel, width * pixel, height * pixel};
      Win32Canvas canvas(surface, host_.Fonts(), dpi_, part);
      form_.Paint(canvas, area.Intersection({0, 0, form_.Width(), form_.Height()}));
    }
    BitBlt(dc, part.left, part.top, width, height, surface.Dc(), 0, 0, SRCCOPY);
  });
}

// Assistive software.

std::optional<LRESULT> Win32FormWindow::AnswerAssistant(WPARAM wparam, LPARAM lparam) {
  const auto object = static_cast<LONG>(static_cast<DWORD>(lparam));
  if (object != OBJID_CLIENT && object <= 0) return std::nullopt;
  if (accessible_ == nullptr) accessible_ = std::make_unique<FormAccessible>(form_, *this, host_);
  return accessible_->Answer(object, wparam);
}

}  // namespace orvendal
