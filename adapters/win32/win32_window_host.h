#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/win32/dib_surface.h"
#include "adapters/win32/thread_dpi.h"
#include "adapters/win32/user_region.h"
#include "adapters/win32/win32_fonts.h"
#include "adapters/win32/win32_timers.h"
#include "platform/forms/common_host.h"

namespace orvendal {

class Win32FormWindow;

struct Win32HostOptions : CommonHostOptions {
  /// The user's own region and the machine's clock without one; both outlive the host.
  const Region* region = nullptr;
  Clock* clock = nullptr;
  /// Pixels to an inch that are to be taken for the display's; 0 for what the system says.
  int dpi = 0;
};

/// The desktop of Windows. Everything runs on the thread that made it, in whatever message loop turns there:
/// the host has a loop of its own only while a modal form is up.
///
/// Its windows count the pixels of each display, whatever the program around them does; what forms call in
/// turn runs with pixels as the thread counted them when the host was made.
///
/// Invariants: no exception leaves a window procedure. When the last form is unloaded and the host is
/// destroyed, nothing of it is left in the system: no window, class, timer, caret or graphics object.
///
/// A program that quits while a modal form is up hides that, and the program's own loop learns of it too.
class Win32WindowHost : public CommonHost {
 public:
  explicit Win32WindowHost(const Win32HostOptions& options = {});
  ~Win32WindowHost() override;

  const Region& UserRegion() override { return given_region_ != nullptr ? *given_region_ : region_; }
  // cppcheck-suppress returnTempReference
  Clock& SystemClock() override { return given_clock_ != nullptr ? *given_clock_ : clock_; }
  /// Of the primary display.
  double ScreenWidth() override;
  double ScreenHeight() override;
  Rect RoomInFrame() override;
  ColorWord SystemColor(std::uint32_t index) override;
  double TextWidth(const FontSpec& font, std::string_view text) override;
  double LineHeight(const FontSpec& font) override;
  Rect TextInk(const FontSpec& font, std::string_view text) override;
  std::unique_ptr<FormWindow> CreateFormWindow(Form& form) override;
  void DoEvents() override;
  void Beep() override;
  std::string ClipboardText() override;
  void ClipboardText(const std::string& text) override;

  /// The system's window of a loaded form; nullptr if it has not been shown yet.
  HWND HandleOf(const Form& form) const;
  Win32Fonts& Fonts() { return fonts_; }
  /// Pixels to an inch that texts are measured at and new windows are made for.
  int Dpi() const { return dpi_; }

  /// As every host's, with the pixels that forms count.
  template <typename Action>
  void Guard(const Action& action) noexcept {
    const DpiScope callers(callers_pixels_);
    CommonHost::Guard(action);
  }

 protected:
  std::unique_ptr<ModalLoop> MakeModalLoop(const CommonWindow& window) override;
  int RunMessageBox(const std::string& text, int style, const std::string& title) override;
  void StartTimer(Timer& timer, int milliseconds) override { timers_.Set(timer, milliseconds); }
  void StopTimer(Timer& timer) override { timers_.Stop(timer); }
  /// To the debugger.
  void Log(const char* what_ended, const char* how) override;
  void LastWindowGone() override { surface_.reset(); }

 private:
  friend class Win32FormWindow;
  class MessageLoop;

  Win32FormWindow* WindowOf(const Form& form) const;
  /// The window that a dialog is to stand in front of; nullptr without one.
  HWND FrontWindow() const;
  /// The clipboard takes texts of a window only.
  HWND AnyWindow() const;
  void WindowDpi(int dpi) { dpi_ = dpi; }
  /// Somewhere to paint on, at least that large; lives until the last window is gone.
  DibSurface& Surface(int width, int height);

  const Region* given_region_;
  Clock* given_clock_;
  const int given_dpi_;  // 0 without one
  Region region_;
  LocalClock clock_;
  DpiContext callers_pixels_ = DpiContext::OfThread();
  int dpi_;
  Win32Fonts fonts_;
  std::unique_ptr<DibSurface> surface_;
  Win32Timers timers_;
};

}  // namespace orvendal
