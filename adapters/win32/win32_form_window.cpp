#include "adapters/win32/win32_form_window.h"

#include <algorithm>
#include <cmath>

#include "adapters/win32/form_accessible.h"
#include "adapters/win32/win32_window_host.h"
#include "adapters/win32/window_class.h"

namespace orvendal {
namespace {

constexpr double kTwipsPerInch = 1440.0;

int Round(double value) {
  return static_cast<int>(std::floor(value + 0.5));
}

// Of the display that the window stands on; of the primary one for nullptr.
RECT WorkAreaAround(HWND window) {
  MONITORINFO display{};
  display.cbSize = sizeof(display);
  const HMONITOR nearest = window == nullptr ? MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY)
                                             : MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY);
  if (GetMonitorInfoW(nearest, &display)) return display.rcWork;
  return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

}  // namespace

WindowClass Win32FormWindow::kClass(L"OrvendalForm", CS_DBLCLKS, Win32FormWindow::Procedure);

Win32FormWindow::Win32FormWindow(Win32WindowHost& host, Form& form)
    : CommonWindow(host, form),
      host_(host),
      form_(form),
      link_(std::make_shared<Link>(Link{this})),
      dpi_(host.Dpi()) {}

Win32FormWindow::~Win32FormWindow() {
  const DpiScope sharp(DpiContext::Sharpest());
  host_.EndModal(*this);
  link_->window = nullptr;
  Destroy();
}

// Making and unmaking.

Win32FormWindow::Look Win32FormWindow::WantedLook(bool modal) const {
  if (!IsFramed()) {
    if (modal) return {WS_POPUP | WS_SYSMENU, 0};
    return {WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX, WS_EX_APPWINDOW};
  }
  if (modal) return {WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME};
  return {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, WS_EX_APPWINDOW};
}

void Win32FormWindow::Make(HWND owner, const Look& look) {
  if (window_ != nullptr && owner == owner_ && look == look_) return;
  Destroy();
  kClass.Enter();
  owner_ = owner;
  look_ = look;
  window_ = CreateWindowExW(look.extended, kClass.Name(), SingleLine(Title()).c_str(), look.style, 0, 0, 0, 0,
                            owner, nullptr, ThisModule(), link_.get());
  if (window_ == nullptr) {
    kClass.Leave();
    throw RuntimeError(error_number::kInternal, "The system refuses a window");
  }
  use_.emplace();
  if (host_.given_dpi_ == 0) TakeDpi(DpiOf(window_));
}

void Win32FormWindow::Destroy() {
  accessible_.reset();
  DropCaret();
  held_buttons_ = 0;
  if (window_ == nullptr) return;
  const HWND window = window_;
  window_ = nullptr;
  SetWindowLongPtrW(window, GWLP_USERDATA, 0);
  DestroyWindow(window);
  kClass.Leave();
  use_.reset();
}

// Somebody else destroyed the window.
void Win32FormWindow::LostFromOutside() {
  if (window_ == nullptr) return;
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DropCaret();
  held_buttons_ = 0;
  window_ = nullptr;
  const std::shared_ptr<Link> link = link_;
  const ObjectRef keep = form_.shared_from_this();
  Form& form = form_;
  accessible_.reset();
  kClass.Leave();  // the window is on its way out, and its class with the next one that goes
  use_.reset();
  host_.Guard([&] { form.Unload(); });
  if (link->window != nullptr) host_.Guard([&] { form.Hide(); });
}

// Place and state.

RECT Win32FormWindow::FormPixels() const {
  const int width = Round(form_.Width() * dpi_ / kTwipsPerInch);
  const int height = Round(form_.Height() * dpi_ / kTwipsPerInch);
  if (form_.WindowState() == WindowState::kMaximized) return {0, 0, width, height};
  const int left = Round(form_.Left() * dpi_ / kTwipsPerInch);
  const int top = Round(form_.Top() * dpi_ / kTwipsPerInch);
  return {left, top, left + width, top + height};
}

POINT Win32FormWindow::PlaceAtFirst(SIZE size) const {
  const auto rect_of = [](const RECT& rect) {
    return Rect{static_cast<double>(rect.left), static_cast<double>(rect.top),
                static_cast<double>(rect.right - rect.left), static_cast<double>(rect.bottom - rect.top)};
  };
  RECT owner{};
  if (owner_ != nullptr) GetWindowRect(owner_, &owner);
  const Size whole{static_cast<double>(size.cx), static_cast<double>(size.cy)};
  const Point place = FirstPlace(whole, whole, rect_of(WorkAreaAround(owner_)), rect_of(owner));
  return {static_cast<LONG>(place.x), static_cast<LONG>(place.y)};
}

void Win32FormWindow::PlaceWindow() {
  const RECT form = FormPixels();
  RECT outside{0, 0, form.right - form.left, form.bottom - form.top};
  AdjustWindowRectEx(&outside, look_.style, FALSE, look_.extended);
  const SIZE size{outside.right - outside.left, outside.bottom - outside.top};
  POINT place{form.left, form.top};
  UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER;
  if (IsPlacedOnce()) {
    place = PlaceAtFirst(size);
    if (placed_) flags |= SWP_NOMOVE;
  }
  placed_ = true;
  SetWindowPos(window_, nullptr, place.x, place.y, size.cx, size.cy, flags);
  if (!IsFramed()) return;
  // The frame is as wide as the display wants it, which is known now.
  RECT inside{};
  GetClientRect(window_, &inside);
  const LONG wider = form.right - form.left - inside.right, higher = form.bottom - form.top - inside.bottom;
  if (wider != 0 || higher != 0) {
    SetWindowPos(window_, nullptr, 0, 0, size.cx + wider, size.cy + higher, flags | SWP_NOMOVE);
  }
}

void Win32FormWindow::ApplyState() {
  applying_state_ = true;
  switch (form_.WindowState()) {
    case WindowState::kMinimized:
      ShowWindow(window_, SW_MINIMIZE);
      break;
    case WindowState::kMaximized:
      ShowWindow(window_, SW_SHOWMAXIMIZED);
      PlaceWindow();
      break;
    case WindowState::kNormal:
      if (IsIconic(window_) || IsZoomed(window_)) ShowWindow(window_, SW_SHOWNORMAL);
      PlaceWindow();
      // Not by ShowWindow: its first call in a process obeys what the program was started with.
      SetWindowPos(window_, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
      break;
  }
  applying_state_ = false;
}

void Win32FormWindow::LimitSize(MINMAXINFO& limits) const {
  const RECT form = FormPixels();
  const POINT size{form.right - form.left, form.bottom - form.top};
  if (!IsFramed()) {
    limits.ptMaxPosition = {0, 0};
    limits.ptMaxSize = size;
  }
  limits.ptMaxTrackSize = {std::max(limits.ptMaxTrackSize.x, size.x),
                           std::max(limits.ptMaxTrackSize.y, size.y)};
}

void Win32FormWindow::TakeStateFromSystem(WPARAM size_kind) {
  if (applying_state_ || !IsShown()) return;
  WindowState state = form_.WindowState();
  if (size_kind == SIZE_MINIMIZED) state = WindowState::kMinimized;
  if (size_kind == SIZE_MAXIMIZED) state = WindowState::kMaximized;
  if (size_kind == SIZE_RESTORED) state = WindowState::kNormal;
  if (state != form_.WindowState()) host_.Guard([&] { form_.WindowState(state); });
}

void Win32FormWindow::TakeDpi(int dpi) {
  dpi_ = dpi;
  host_.WindowDpi(dpi);
}

// A window that the user moves has to go where the system says, or it would stand on the other display again.
void Win32FormWindow::MoveToOtherDisplay(int dpi, const RECT& suggested) {
  if (host_.given_dpi_ == 0) TakeDpi(dpi);
  if (IsFramed()) {
    SetWindowPos(window_, nullptr, suggested.left, suggested.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  BoundsChanged();
  InvalidateRect(window_, nullptr, FALSE);
}

// What the form says.

void Win32FormWindow::Show() {
  const DpiScope sharp(DpiContext::Sharpest());
  const bool modal = host_.IsInnermostDialog(form_);
  Make(modal ? host_.FrontWindow() : nullptr, WantedLook(modal));
  ApplyState();
  Raise();
}

void Win32FormWindow::Hide() {
  host_.EndModal(*this);
  if (window_ != nullptr) ShowWindow(window_, SW_HIDE);
  placed_ = false;
}

void Win32FormWindow::Raise() {
  if (window_ == nullptr || form_.WindowState() == WindowState::kMinimized) return;
  const DpiScope sharp(DpiContext::Sharpest());
  const HWND window = window_;
  // The host can have hidden it, and the form knows nothing of that.
  if (form_.Visible() && !IsWindowVisible(window)) ApplyState();
  // Behind a dialog it is the dialog that comes to the front and keeps the keyboard.
  if (!IsWindowEnabled(window)) {
    SetForegroundWindow(GetLastActivePopup(window));
    return;
  }
  SetForegroundWindow(window);
  BringWindowToTop(window);
  SetFocus(window);
}

void Win32FormWindow::BoundsChanged() {
  if (!IsShown() || form_.WindowState() == WindowState::kMinimized) return;
  const DpiScope sharp(DpiContext::Sharpest());
  applying_state_ = true;
  PlaceWindow();
  applying_state_ = false;
}

void Win32FormWindow::CaptionChanged() {
  if (window_ != nullptr) SetWindowTextW(window_, SingleLine(Title()).c_str());
}

void Win32FormWindow::StateChanged(WindowState state) {
  if (!IsShown()) return;
  const DpiScope sharp(DpiContext::Sharpest());
  ApplyState();
  if (state != WindowState::kMinimized) Raise();
}

RECT Win32FormWindow::PixelsOf(const Rect& area) const {
  const double scale = dpi_ / kTwipsPerInch;
  return {static_cast<LONG>(std::floor(area.left * scale)), static_cast<LONG>(std::floor(area.top * scale)),
          static_cast<LONG>(std::ceil(area.Right() * scale)),
          static_cast<LONG>(std::ceil(area.Bottom() * scale))};
}

Point Win32FormWindow::PlaceOnForm(POINT pixels) const {
  return {pixels.x * kTwipsPerInch / dpi_, pixels.y * kTwipsPerInch / dpi_};
}

void Win32FormWindow::RequestPaint(const Rect& area) {
  if (window_ == nullptr) return;
  const DpiScope sharp(DpiContext::Sharpest());
  const RECT pixels = PixelsOf(area);
  InvalidateRect(window_, &pixels, FALSE);
}

void Win32FormWindow::PaintNow() {
  if (window_ != nullptr) UpdateWindow(window_);
}

void Win32FormWindow::Cursor(CursorShape shape) {
  if (shape == cursor_) return;
  cursor_ = shape;
  // The system asks before it tells of a move, and asks no more while a button is held.
  ShowPointer();
}

void Win32FormWindow::Caret(const std::optional<Rect>& caret) {
  const DpiScope sharp(DpiContext::Sharpest());
  caret_ = caret;
  ShowCaret();
  PlaceComposition();
  // The form tells its caret after each thing that it did, by hand or by timer.
  events_.Announce(form_, window_);
}

}  // namespace orvendal
