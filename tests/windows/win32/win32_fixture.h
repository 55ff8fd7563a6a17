#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/win32/win32_window_host.h"
#include "platform/forms/form.h"
#include "platform/forms/text_box.h"

namespace orvendal {

using Log = std::vector<std::string>;

class StillClock final : public Clock {
 public:
  Date Now() override { return Date(2026, 11, 16, 10, 30, 0); }
};

/// A control that tells what reaches it and paints itself in one colour.
class ProbeControl final : public Control {
 public:
  ProbeControl(Form& form, std::string_view name, Rgb color) : Control(form, nullptr, name), color_(color) {
    InitializeDefaults();
  }
  ControlKind Kind() const override { return ControlKind::kPictureBox; }
  void Color(Rgb color) {
    color_ = color;
    Refresh();
  }
  void Paint(Canvas& canvas) override {
    ++times_painted;
    canvas.FillRectangle(LocalBounds(), color_);
    if (OnPaint) OnPaint();
  }
  bool MouseWheel(double lines) override {
    wheel_lines += lines;
    return true;
  }
  CursorShape Cursor(Point) const override { return CursorShape::kText; }

  std::function<void()> OnPaint;
  int times_painted = 0;
  double wheel_lines = 0;

 private:
  Rgb color_;
};

/// A form of 400 by 300 pixels: two probes side by side on top, a text box below.
class ProbeForm final : public Form {
 public:
  explicit ProbeForm(WindowHost& host)
      : Form(host, "Probe"),
        left(*this, "Left", {255, 0, 0}),
        right(*this, "Right", {0, 0, 255}),
        box(*this, nullptr, "Box") {}

  ProbeControl left;
  ProbeControl right;
  TextBox box;
  int border_style = 0;
  int start_up_position = 3;

  void Note(const std::string& line) { log.push_back(line); }
  Log log;

 protected:
  void ApplyDesign() override {
    Caption("Orvendal");
    BorderStyle(border_style);
    StartUpPosition(start_up_position);
    KeyPreview(true);
    Width(400 * kTwipsPerPixel);
    Height(300 * kTwipsPerPixel);
    left.Move(0, 0, 200 * kTwipsPerPixel, 100 * kTwipsPerPixel);
    right.Move(200 * kTwipsPerPixel, 0, 200 * kTwipsPerPixel, 100 * kTwipsPerPixel);
    box.Move(15 * kTwipsPerPixel, 150 * kTwipsPerPixel, 300 * kTwipsPerPixel, 30 * kTwipsPerPixel);
    box.TabIndex(0);
    left.TabIndex(1);
    right.TabIndex(2);
  }
};

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
