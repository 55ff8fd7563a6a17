#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/qt_window_host.h"
#include "platform/forms/form.h"
#include "platform/forms/text_box.h"

namespace orvendal {

/// One application without a display for the tests of a program.
class QtEnvironment final : public ::testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef ORVENDAL_TEST_SCALE
    qputenv("QT_SCALE_FACTOR", ORVENDAL_TEST_SCALE);
#else
    qunsetenv("QT_SCALE_FACTOR");
#endif
    static int argument_count = 1;
    static char program[] = "test";
    static char* arguments[] = {program, nullptr};
    application_ = std::make_unique<QApplication>(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);  // a caret that blinks would paint when it likes
  }
  void TearDown() override {
    application_.reset();
  }

 private:
  std::unique_ptr<QApplication> application_;
};

inline ::testing::Environment* const kQtEnvironment = ::testing::AddGlobalTestEnvironment(new QtEnvironment);

class StillClock final : public Clock {
 public:
  Date Now() override { return Date(2026, 11, 16, 10, 30); }
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

  void Note(const std::string& line) { log.push_back(line); }
  std::vector<std::string> log;

 protected:
  void ApplyDesign() override {
    Caption("Orvendal");
    BorderStyle(border_style);
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

class QtFormTest : public ::testing::Test {
 protected:
  QtFormTest() : host(Region::Spanish(), clock, Options()), form(std::make_shared<ProbeForm>(host)) {}
  ~QtFormTest() override {
    form->Unload();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void ShowForm() {
    form->Show();
    QApplication::processEvents();
  }
  QWidget* Window() { return host.WidgetOf(*form); }

  StillClock clock;
  std::vector<RuntimeError> errors;
  QtWindowHost host;
  std::shared_ptr<ProbeForm> form;

 private:
  QtHostOptions Options() {
    QtHostOptions options;
    options.application_title = "Recuento";
    options.on_error = [this](const RuntimeError& error) { errors.push_back(error); };
    return options;
  }
};

/// Collects what is logged as critical while it lives.
class CriticalMessages {
 public:
  CriticalMessages() {
    Kept().clear();
    previous_ = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
      if (type == QtCriticalMsg) Kept().push_back(text.toStdString());
    });
  }
  ~CriticalMessages() { qInstallMessageHandler(previous_); }
  const std::vector<std::string>& All() const { return Kept(); }

 private:
  static std::vector<std::string>& Kept() {
    static std::vector<std::string> kept;
    return kept;
  }
  QtMessageHandler previous_;
};

/// Runs `action` inside the event loop of the dialog that comes up next.
inline void InNextDialog(std::function<void()> action) {
  QMetaObject::invokeMethod(qApp, std::move(action), Qt::QueuedConnection);
}

}  // namespace orvendal
