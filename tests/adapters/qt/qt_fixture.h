#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/qt_window_host.h"
#include "tests/support/probe_form.h"

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
