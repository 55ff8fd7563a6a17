#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/win32/win32_window_host.h"
#include "tests/support/probe_form.h"

namespace orvendal {

/// Turns the message loop of the test, as a host program would, until nothing is left to do.
inline void Pump() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

/// The same until `done`, or until it has clearly failed. Gives what `done` says at last.
inline bool PumpUntil(const std::function<bool()>& done, int milliseconds = 5000) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  while (!done() && std::chrono::steady_clock::now() < end) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    Pump();
  }
  return done();
}

class Win32FormTest : public ::testing::Test {
 protected:
  Win32FormTest() : host(Options()), form(std::make_shared<ProbeForm>(host)) {}
  ~Win32FormTest() override {
    form->Unload();
    Pump();
  }

  Win32HostOptions Options() {
    Win32HostOptions options;
    options.region = &Region::Spanish();
    options.clock = &clock;
    options.application_title = "Recuento";
    options.on_error = [this](const RuntimeError& error) { errors.push_back(error); };
    return options;
  }
  void ShowForm() {
    form->Show();
    Pump();
  }
  HWND Window() const { return host.HandleOf(*form); }

  // Hands. Places are pixels of the window's inside.
  void Post(UINT message, WPARAM wparam, LPARAM lparam) const {
    PostMessageW(Window(), message, wparam, lparam);
  }
  void Press(int x, int y, WPARAM keys = MK_LBUTTON) const {
    Post(WM_LBUTTONDOWN, keys, MAKELPARAM(x, y));
    Pump();
  }
  void Release(int x, int y, WPARAM keys = 0) const {
    Post(WM_LBUTTONUP, keys, MAKELPARAM(x, y));
    Pump();
  }
  void Click(int x, int y) const {
    Press(x, y);
    Release(x, y);
  }
  /// A key that is pressed and released; the loop makes its character, as for a real one.
  void Key(WPARAM key_code) const {
    Post(WM_KEYDOWN, key_code, 1);
    Pump();
    if (Window() != nullptr) Post(WM_KEYUP, key_code, static_cast<LPARAM>(0xC0000001));
    Pump();
  }

  StillClock clock;
  std::vector<RuntimeError> errors;
  Win32WindowHost host;
  std::shared_ptr<ProbeForm> form;
};

/// What stands on a window at that place, 0xBBGGRR.
inline COLORREF PixelOf(HWND window, int x, int y) {
  const HDC dc = GetDC(window);
  const COLORREF color = GetPixel(dc, x, y);
  ReleaseDC(window, dc);
  return color;
}

}  // namespace orvendal
