#pragma once

#include <vector>

#include "tests/adapters/win32/message_input.h"
#include "tests/adapters/win32/win32_fixture.h"
#include "tests/support/form_driver.h"

namespace orvendal {

/// The desktop around a screen. The clock stands at 2026-11-16 10:30:00.
struct RealSurroundings {
  Win32HostOptions Options() {
    Win32HostOptions options;
    options.region = &Region::Spanish();
    options.clock = &clock;
    options.on_error = [this](const RuntimeError& error) { errors.push_back(error); };
    return options;
  }

  StillClock clock;
  std::vector<RuntimeError> errors;
  Win32WindowHost host{Options()};
  MessageInput input{host};
};

/// The component in a window of the system, which its hands reach by messages.
class RealScreen : public RealSurroundings, public ScreenDriver {
 public:
  RealScreen() : ScreenDriver(host, Dialect::kSqlServer, input) {}
  ~RealScreen() {
    if (HasForm()) {
      form().OnUnload = nullptr;
      form().Unload();
    }
    Pump();
  }

  void Open() {
    ScreenDriver::Open();
    Pump();
  }
  HWND Window() const { return host.HandleOf(*state.form); }
  using ScreenDriver::Click;
  void Click(const Control& control) { robot().Click(control); }
  /// In the middle of a part of the title bar.
  void ClickTitleBar(const Rect& part) {
    const Rect bar = form().Barra1.Bounds();
    robot().ClickAt({bar.left + part.left + part.width / 2, bar.top + part.top + part.height / 2});
  }
};

}  // namespace orvendal
