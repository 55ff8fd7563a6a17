#include "tests/scripts/win32_script_windows.h"

#include <utility>

#include "adapters/win32/clipboard.h"
#include "tests/adapters/win32/message_input.h"
#include "tests/scripts/desktop_script_windows.h"

namespace orvendal {
namespace {

constexpr int kPixelsPerInch = 96;

Win32HostOptions ToldTo(const Region& region, Clock& clock, std::function<void(const RuntimeError&)> told) {
  Win32HostOptions options;
  options.region = &region;
  options.clock = &clock;
  options.dpi = kPixelsPerInch;
  options.on_error = std::move(told);
  return options;
}

class MeasuredWin32Host final : public MeasuredDesktop<Win32WindowHost> {
 public:
  MeasuredWin32Host(const Region& region, Clock& clock, std::function<void(const RuntimeError&)> told)
      : MeasuredDesktop(region, clock, ToldTo(region, clock, std::move(told))) {
    WriteClipboard(nullptr, "");  // the desktop keeps what the script before has copied
  }

 protected:
  // Timers come when no other message is left.
  void AtNextTurn(std::function<void()> action) override {
    next_turn_ = std::move(action);
    SetTimer(nullptr, 0, 0, Turn);
  }

 private:
  static void CALLBACK Turn(HWND, UINT, UINT_PTR timer, DWORD) noexcept {
    KillTimer(nullptr, timer);
    std::exchange(next_turn_, nullptr)();
  }
  static inline std::function<void()> next_turn_;
};

}  // namespace

std::unique_ptr<ScriptWindows> MakeWin32ScriptWindows(const Region& region, Clock& clock) {
  return std::make_unique<DesktopScriptWindows<MeasuredWin32Host, MessageInput>>(region, clock);
}

}  // namespace orvendal
