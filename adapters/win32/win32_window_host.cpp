#include "adapters/win32/win32_window_host.h"

#include <algorithm>
#include <exception>
#include <new>

#include "adapters/win32/clipboard.h"
#include "adapters/win32/message_box_keys.h"
#include "adapters/win32/win32_form_window.h"
#include "adapters/win32/window_class.h"
#include "platform/forms/form.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

constexpr double kTwipsPerInch = 1440.0;
// A window that keeps asking for something must not hold a DoEvents for ever.
constexpr int kMostMessagesOfOneTurn = 20000;

void LogToDebugger(const char* what) {
  OutputDebugStringA("DllOrvendal: ");
  OutputDebugStringA(what);
  OutputDebugStringA("\n");
}

void Dispatch(MSG& message) {
  if (CallMsgFilterW(&message, MSGF_DIALOGBOX)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

int PrimaryDpi() {
  const DpiScope sharp(DpiContext::Sharpest());
  return SystemDpi();
}

struct WindowSearch {
  HWND open;
  std::vector<HWND> found;
};

BOOL CALLBACK FindToShut(HWND window, LPARAM parameter) noexcept {
  auto& search = *reinterpret_cast<WindowSearch*>(parameter);
  if (window == search.open || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  try {
    search.found.push_back(window);
    return TRUE;
  } catch (const std::bad_alloc&) {
    return FALSE;
  }
}

// All windows of this thread but `open` that the user could turn to; they take no input from here on.
std::vector<HWND> ShutWindows(HWND open) {
  WindowSearch search{open, {}};
  EnumThreadWindows(GetCurrentThreadId(), FindToShut, reinterpret_cast<LPARAM>(&search));
  for (const HWND window : search.found) EnableWindow(window, FALSE);
  return search.found;
}

void OpenWindows(const std::vector<HWND>& windows) {
  for (const HWND window : windows) EnableWindow(window, TRUE);
}

}  // namespace

Win32WindowHost::Win32WindowHost(Win32HostOptions options)
    : options_(std::move(options)),
      region_(UserRegionOfSystem()),
      dpi_(options_.dpi > 0 ? options_.dpi : PrimaryDpi()),
      timers_([this](Timer& timer) { Guard([&] { timer.Parent().TimerElapsed(timer); }); }) {}

Win32WindowHost::~Win32WindowHost() {
  WindowClass::SweepAll();
}

// Screen and fonts.

double Win32WindowHost::ScreenWidth() {
  const DpiScope sharp(DpiContext::Sharpest());
  return GetSystemMetrics(SM_CXSCREEN) * kTwipsPerInch / dpi_;
}

double Win32WindowHost::ScreenHeight() {
  const DpiScope sharp(DpiContext::Sharpest());
  return GetSystemMetrics(SM_CYSCREEN) * kTwipsPerInch / dpi_;
}

Rect Win32WindowHost::RoomInFrame() {
  const DpiScope sharp(DpiContext::Sharpest());
  RECT free{};
  if (!SystemParametersInfoW(SPI_GETWORKAREA, 0, &free, 0)) return {0, 0, ScreenWidth(), ScreenHeight()};
  RECT frame{};
  AdjustWindowRectEx(&frame, WS_POPUP | WS_CAPTION | WS_SYSMENU, FALSE, WS_EX_DLGMODALFRAME);
  const double pixel = kTwipsPerInch / dpi_;
  return {0, 0, (free.right - free.left - (frame.right - frame.left)) * pixel,
          (free.bottom - free.top - (frame.bottom - frame.top)) * pixel};
}

ColorWord Win32WindowHost::SystemColor(std::uint32_t index) {
  return GetSysColor(static_cast<int>(index));
}

double Win32WindowHost::TextWidth(const FontSpec& font, std::string_view text) {
  return fonts_.TextWidth(font, dpi_, SingleLine(text)) * kTwipsPerInch / dpi_;
}

double Win32WindowHost::LineHeight(const FontSpec& font) {
  return fonts_.LineMeasures(font, dpi_).height * kTwipsPerInch / dpi_;
}

Rect Win32WindowHost::TextInk(const FontSpec& font, std::string_view text) {
  const RECT ink = fonts_.TextInk(font, dpi_, SingleLine(text));
  const double twips = kTwipsPerInch / dpi_;
  return {ink.left * twips, ink.top * twips, (ink.right - ink.left) * twips, (ink.bottom - ink.top) * twips};
}

DibSurface& Win32WindowHost::Surface(int width, int height) {
  if (!surface_ || surface_->Width() < width || surface_->Height() < height) {
    const int wider = surface_ ? std::max(width, surface_->Width()) : width;
    const int higher = surface_ ? std::max(height, surface_->Height()) : height;
    surface_.reset();
    surface_ = std::make_unique<DibSurface>(wider, higher);
  }
  return *surface_;
}

// Windows.

std::unique_ptr<FormWindow> Win32WindowHost::CreateFormWindow(Form& form) {
  return std::make_unique<Win32FormWindow>(*this, form);
}

Win32FormWindow* Win32WindowHost::WindowOf(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const Win32FormWindow* window) { return &window->TheForm() == &form; });
  return found == windows_.end() ? nullptr : *found;
}

HWND Win32WindowHost::HandleOf(const Form& form) const {
  const Win32FormWindow* window = WindowOf(form);
  return window == nullptr ? nullptr : window->Handle();
}

HWND Win32WindowHost::FrontWindow() const {
  const HWND active = GetActiveWindow();
  if (active != nullptr && IsWindowVisible(active)) return active;
  for (auto window = windows_.rbegin(); window != windows_.rend(); ++window) {
    if (IsWindowVisible((*window)->Handle())) return GetLastActivePopup((*window)->Handle());
  }
  return nullptr;
}

HWND Win32WindowHost::AnyWindow() const {
  for (const Win32FormWindow* window : windows_) {
    if (window->Handle() != nullptr) return window->Handle();
  }
  return FrontWindow();
}

void Win32WindowHost::RunModal(Form& form) {
  const Win32FormWindow* window = WindowOf(form);
  if (window == nullptr || !form.Visible()) return;
  ModalLoop loop;
  loop.window = window;
  loop.shut = ShutWindows(window->Handle());
  modal_loops_.push_back(&loop);
  MSG message{};
  while (!loop.ended) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got > 0) {
      Dispatch(message);
      continue;
    }
    // The program quits: the dialog is over, and the outer loop is to learn of it as well.
    Guard([&] { form.Hide(); });
    if (!loop.ended) OpenShutWindows(*window);
    if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
  }
  modal_loops_.erase(std::find(modal_loops_.begin(), modal_loops_.end(), &loop));
}

void Win32WindowHost::OpenShutWindows(const Win32FormWindow& window) {
  for (std::size_t i = 0; i < modal_loops_.size(); ++i) {
    ModalLoop& loop = *modal_loops_[i];
    if (loop.window != &window || loop.ended) continue;
    loop.ended = true;
    // With another dialog still in front of it, the windows stay shut until that one ends.
    const auto inner = std::find_if(modal_loops_.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                    modal_loops_.end(), [](const ModalLoop* other) { return !other->ended; });
    if (inner == modal_loops_.end()) {
      OpenWindows(loop.shut);
    } else {
      (*inner)->shut.insert((*inner)->shut.end(), loop.shut.begin(), loop.shut.end());
    }
    loop.shut.clear();
  }
}

void Win32WindowHost::WindowGone(const Win32FormWindow& window) {
  windows_.erase(std::remove(windows_.begin(), windows_.end(), &window), windows_.end());
  if (windows_.empty()) surface_.reset();
}

void Win32WindowHost::DoEvents() {
  MSG message{};
  for (int i = 0; i < kMostMessagesOfOneTurn && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); ++i) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Dispatch(message);
  }
}

void Win32WindowHost::TimerChanged(Timer& timer, bool alive) {
  timers_.Stop(timer);
  if (alive && timer.Enabled() && timer.Interval() > 0) timers_.Set(timer, timer.Interval());
}

// Sound and clipboard.

void Win32WindowHost::Beep() {
  MessageBeep(MB_OK);
}

std::string Win32WindowHost::ClipboardText() {
  return ReadClipboard(AnyWindow());
}

void Win32WindowHost::ClipboardText(const std::string& text) {
  WriteClipboard(AnyWindow(), text);
}

// Messages and errors.

int Win32WindowHost::ShowMessage(std::string_view text, int style, std::string_view title) {
  const ModalScope scope(*this);
  const std::wstring wide_text = Wide(text);
  const std::wstring wide_title = Wide(title.empty() ? std::string_view(options_.application_title) : title);
  const HWND owner = FrontWindow();
  // The box shuts its owner by itself, and opens it before it goes.
  const std::vector<HWND> shut = ShutWindows(owner);
  const MessageBoxKeys box_keys(Keys(), [this] { Beep(); });
  const int answer = MessageBoxW(owner, wide_text.c_str(), wide_title.c_str(), static_cast<UINT>(style));
  OpenWindows(shut);
  return answer;
}

void Win32WindowHost::ReportError(const RuntimeError& error) {
  if (options_.on_error) {
    options_.on_error(error);
    return;
  }
  errors_to_report_.push_back(error);
  if (reporting_) return;
  reporting_ = true;
  GuardQuietly([this] {
    while (!errors_to_report_.empty()) {
      const RuntimeError next = errors_to_report_.front();
      errors_to_report_.pop_front();
      ShowMessage("Error " + std::to_string(next.Number()) + ": " + next.Description(), MB_ICONHAND, "");
    }
  });
  reporting_ = false;
}

void Win32WindowHost::ReportCaught() {
  try {
    throw;
  } catch (const RuntimeError& error) {
    ReportError(error);
  } catch (const std::exception& error) {
    LogToDebugger(error.what());
    ReportError(RuntimeError(error_number::kInternal, error.what()));
  } catch (...) {
    ReportError(RuntimeError(error_number::kInternal));
  }
}

void Win32WindowHost::LogCaught() noexcept {
  try {
    throw;
  } catch (const std::exception& error) {
    LogToDebugger(error.what());
  } catch (...) {
    LogToDebugger("an unknown exception");
  }
}

}  // namespace orvendal
