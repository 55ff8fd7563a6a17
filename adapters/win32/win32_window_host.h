#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/win32/dib_surface.h"
#include "adapters/win32/thread_dpi.h"
#include "adapters/win32/user_region.h"
#include "adapters/win32/win32_fonts.h"
#include "adapters/win32/win32_timers.h"
#include "platform/forms/window_host.h"

namespace orvendal {

class Win32FormWindow;

struct Win32HostOptions {
  /// The user's own region and the machine's clock without one; both outlive the host.
  const Region* region = nullptr;
  Clock* clock = nullptr;
  /// Title of windows and message boxes that have none.
  std::string application_title;
  /// Told of errors in place of the message box.
  std::function<void(const RuntimeError&)> on_error;
  /// Pixels to an inch that are to be taken for the display's; 0 for what the system says.
  int dpi = 0;
};

/// The desktop of Windows. Everything runs on the thread that made it, in whatever message loop turns there:
/// the host has a loop of its own only while a modal form is up.
///
/// Its windows count the pixels of each display, whatever the program around them does; what forms call in
/// turn runs with pixels as the thread counted them when the host was made.
///
/// Invariants: `windows_` holds the windows of the loaded forms in order of making; no exception leaves a
/// window procedure. When the last form is unloaded and the host is destroyed, nothing of it is left in the
/// system: no window, class, timer, caret or graphics object.
class Win32WindowHost : public WindowHost {
 public:
  explicit Win32WindowHost(Win32HostOptions options = {});
  ~Win32WindowHost() override;

  const Region& UserRegion() override { return options_.region != nullptr ? *options_.region : region_; }
  Clock& SystemClock() override { return options_.clock != nullptr ? *options_.clock : clock_; }
  /// Of the primary display.
  double ScreenWidth() override;
  double ScreenHeight() override;
  Rect RoomInFrame() override;
  ColorWord SystemColor(std::uint32_t index) override;
  double TextWidth(const FontSpec& font, std::string_view text) override;
  double LineHeight(const FontSpec& font) override;
  Rect TextInk(const FontSpec& font, std::string_view text) override;
  std::unique_ptr<FormWindow> CreateFormWindow(Form& form) override;
  /// A program that quits meanwhile hides the form, and the program's own loop learns of it too.
  void RunModal(Form& form) override;
  void DoEvents() override;
  void TimerChanged(Timer& timer, bool alive) override;
  void Beep() override;
  std::string ClipboardText() override;
  void ClipboardText(const std::string& text) override;
  /// A message box with number and description. An error that comes while it is up waits for its turn.
  void ReportError(const RuntimeError& error) override;

  /// A message box of the user's, styles and answers as the platform numbers them. An empty title is the
  /// application's.
  int ShowMessage(std::string_view text, int style, std::string_view title);

  /// The system's window of a loaded form; nullptr if it has not been shown yet.
  HWND HandleOf(const Form& form) const;
  Win32Fonts& Fonts() { return fonts_; }
  /// Pixels to an inch that texts are measured at and new windows are made for.
  int Dpi() const { return dpi_; }

  /// Runs `action`, which is the form's, and reports what it throws.
  template <typename Action>
  void Guard(const Action& action) noexcept {
    const DpiScope callers(callers_pixels_);
    GuardQuietly([&] {
      try {
        action();
      } catch (...) {
        ReportCaught();
      }
    });
  }
  /// Runs `action` where no dialog can come up: the error goes to the debugger's log.
  template <typename Action>
  static void GuardQuietly(const Action& action) noexcept {
    try {
      action();
    } catch (...) {
      LogCaught();
    }
  }

 private:
  friend class Win32FormWindow;
  /// One modal form with the windows that it has shut.
  struct ModalLoop {
    const Win32FormWindow* window = nullptr;
    std::vector<HWND> shut;
    bool ended = false;
  };

  Win32FormWindow* WindowOf(const Form& form) const;
  /// The window that a dialog is to stand in front of; nullptr without one.
  HWND FrontWindow() const;
  /// The clipboard takes texts of a window only.
  HWND AnyWindow() const;
  /// Before the window of a modal form goes, so that the system activates one of those that it had shut.
  void OpenShutWindows(const Win32FormWindow& window);
  void WindowGone(const Win32FormWindow& window);
  void WindowDpi(int dpi) { dpi_ = dpi; }
  /// What is being caught.
  void ReportCaught();
  static void LogCaught() noexcept;
  /// Somewhere to paint on, at least that large; lives until the last window is gone.
  DibSurface& Surface(int width, int height);

  Win32HostOptions options_;
  Region region_;
  LocalClock clock_;
  DpiContext callers_pixels_ = DpiContext::OfThread();
  int dpi_;
  Win32Fonts fonts_;
  std::unique_ptr<DibSurface> surface_;
  Win32Timers timers_;
  std::vector<Win32FormWindow*> windows_;
  std::vector<ModalLoop*> modal_loops_;
  std::deque<RuntimeError> errors_to_report_;
  bool reporting_ = false;
};

}  // namespace orvendal
