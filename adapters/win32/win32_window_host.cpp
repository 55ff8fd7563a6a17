#include "adapters/win32/win32_window_host.h"

#include <algorithm>
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

void Dispatch(MSG& message) {
  if (CallMsgFilterW(&message, MSGF_DIALOGBOX)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

HWND HandleOfWindow(const CommonWindow& window) {
  return static_cast<const Win32FormWindow&>(window).Handle();
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

Win32WindowHost::Win32WindowHost(const Win32HostOptions& options)
    : CommonHost(options),
      given_region_(options.region),
      given_clock_(options.clock),
      given_dpi_(options.dpi),
      region_(UserRegionOfSystem()),
      dpi_(given_dpi_ > 0 ? given_dpi_ : PrimaryDpi()),
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
  return static_cast<Win32FormWindow*>(CommonHost::WindowOf(form));
}

HWND Win32WindowHost::HandleOf(const Form& form) const {
  const Win32FormWindow* window = WindowOf(form);
  return window == nullptr ? nullptr : window->Handle();
}

HWND Win32WindowHost::FrontWindow() const {
  const HWND active = GetActiveWindow();
  if (active != nullptr && IsWindowVisible(active)) return active;
  for (auto window = Windows().rbegin(); window != Windows().rend(); ++window) {
    const HWND handle = HandleOfWindow(**window);
    if (IsWindowVisible(handle)) return GetLastActivePopup(handle);
  }
  return nullptr;
}

HWND Win32WindowHost::AnyWindow() const {
  for (const CommonWindow* window : Windows()) {
    if (const HWND handle = HandleOfWindow(*window)) return handle;
  }
  return FrontWindow();
}

/// One modal form with the windows that it has shut.
class Win32WindowHost::MessageLoop final : public ModalLoop {
 public:
  MessageLoop(Win32WindowHost& host, const CommonWindow& window)
      : ModalLoop(window), host_(host), window_(window), shut_(ShutWindows(HandleOfWindow(window))) {}

  void Run(Form& form) override {
    MSG message{};
    while (!HasEnded()) {
      const BOOL got = GetMessageW(&message, nullptr, 0, 0);
      if (got > 0) {
        Dispatch(message);
        continue;
      }
      // The program quits: the dialog is over, and the outer loop is to learn of it as well.
      host_.Guard([&] { form.Hide(); });
      if (!HasEnded()) host_.EndModal(window_);
      if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
    }
  }

 protected:
  /// At once, so that the system activates one of the windows that were shut when this one goes.
  void End(ModalLoop* inner) override {
    if (inner == nullptr) {
      OpenWindows(shut_);
    } else {
      // With another dialog still in front of it, the windows stay shut until that one ends.
      std::vector<HWND>& kept = static_cast<MessageLoop*>(inner)->shut_;
      kept.insert(kept.end(), shut_.begin(), shut_.end());
    }
    shut_.clear();
  }

 private:
  Win32WindowHost& host_;
  const CommonWindow& window_;
  std::vector<HWND> shut_;
};

std::unique_ptr<CommonHost::ModalLoop> Win32WindowHost::MakeModalLoop(const CommonWindow& window) {
  return std::make_unique<MessageLoop>(*this, window);
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

int Win32WindowHost::RunMessageBox(const std::string& text, int style, const std::string& title) {
  const std::wstring wide_text = Wide(text);
  const std::wstring wide_title = Wide(title);
  const HWND owner = FrontWindow();
  // The box shuts its owner by itself, and opens it before it goes.
  const std::vector<HWND> shut = ShutWindows(owner);
  const MessageBoxKeys box_keys(Keys(), [this] { Beep(); });
  const int answer = MessageBoxW(owner, wide_text.c_str(), wide_title.c_str(), static_cast<UINT>(style));
  OpenWindows(shut);
  return answer;
}

void Win32WindowHost::Log(const char* what_ended, const char* how) {
  for (const char* part : {"DllOrvendal: ", what_ended, " ended with: ", how, "\n"}) OutputDebugStringA(part);
}

}  // namespace orvendal
