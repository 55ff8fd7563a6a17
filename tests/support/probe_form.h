#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/form.h"
#include "platform/forms/month_view.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"

namespace orvendal {

using Log = std::vector<std::string>;

/// It is half past ten on 16 November 2026.
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
  bool MouseWheel(WheelTurn turn) override {
    wheel_lines += turn.lines;
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
  /// Notes the form's keys: "down 65" or "down 65+1" with what is held, "press 97", "up 65".
  void LogKeys() {
    OnKeyDown = [this](int& code, int shift) {
      Note("down " + std::to_string(code) + (shift != 0 ? "+" + std::to_string(shift) : ""));
    };
    OnKeyPress = [this](int& ascii) { Note("press " + std::to_string(ascii)); };
    OnKeyUp = [this](int& code, int) { Note("up " + std::to_string(code)); };
  }
  /// Notes what the mouse does on a probe: "down", "up", "click", "double".
  void LogMouse(ProbeControl& probe) {
    probe.OnMouseDown = [this](int, int, double, double) { Note("down"); };
    probe.OnMouseUp = [this](int, int, double, double) { Note("up"); };
    probe.OnClick = [this] { Note("click"); };
    probe.OnDblClick = [this] { Note("double"); };
  }
  /// The same with button, what is held, and place of a press: "down 1 0 150 300".
  void LogMouseWithPlaces(ProbeControl& probe) {
    LogMouse(probe);
    probe.OnMouseDown = [this](int button, int shift, double x, double y) {
      Note("down " + std::to_string(button) + " " + std::to_string(shift) + " " +
           std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)));
    };
  }
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

/// A form that is a calendar.
class CalendarForm final : public Form {
 public:
  explicit CalendarForm(WindowHost& host) : Form(host, "Calendars") {}
  MonthView calendar{*this, nullptr, "Calendar"};

 protected:
  void ApplyDesign() override {
    Width(6000);
    Height(6000);
    calendar.Move(0, 0, 6000, 6000);
  }
};

/// A form with a timer.
class TimerForm final : public Form {
 public:
  explicit TimerForm(WindowHost& host) : Form(host, "Timers") {}
  Timer timer{*this, nullptr, "Clock"};

 protected:
  void ApplyDesign() override {
    Width(1500);
    Height(1500);
  }
};

}  // namespace orvendal
