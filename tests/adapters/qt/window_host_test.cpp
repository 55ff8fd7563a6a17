#include <QScreen>

#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

class WindowHosts : public QtFormTest {};

TEST_F(WindowHosts, TheScreenIsTheDisplayInTwips) {
  const QSize size = QGuiApplication::primaryScreen()->geometry().size();
  EXPECT_EQ(host.ScreenWidth(), size.width() * 15.0);
  EXPECT_EQ(host.ScreenHeight(), size.height() * 15.0);
}

TEST_F(WindowHosts, TextsAreMeasuredInTwips) {
  QtFonts fonts;
  const FontSpec font{"Bookman Old Style", 12, 600, false};
  EXPECT_DOUBLE_EQ(host.TextWidth(font, "Línea"), 15 * fonts.TextWidth(font, QString::fromUtf8("Línea")));
  EXPECT_DOUBLE_EQ(host.LineHeight(font), 15 * fonts.LineMeasures(font).height);
  EXPECT_EQ(host.TextWidth(font, ""), 0);
}

TEST_F(WindowHosts, TheClipboardKeepsLettersOfAnyLanguage) {
  host.ClipboardText("ñandú €");
  EXPECT_EQ(host.ClipboardText(), "ñandú €");
}

TEST_F(WindowHosts, AModalFormHoldsTheCallerUntilItIsHidden) {
  ShowForm();
  const auto dialog = std::make_shared<ProbeForm>(host);
  dialog->border_style = 3;
  bool ran = false;
  InNextDialog([&] {
    ran = true;
    QWidget* window = host.WidgetOf(*dialog);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(QApplication::activeModalWidget(), window);
    EXPECT_FALSE(host.TakesInput(*form));
    EXPECT_TRUE(host.TakesInput(*dialog));
    QTest::keyClicks(window, "hola");
    dialog->Hide();
  });
  dialog->Show(ShowMode::kModal);
  EXPECT_TRUE(ran);
  EXPECT_EQ(dialog->box.Text(), "hola");
  EXPECT_TRUE(dialog->IsLoaded());
  EXPECT_TRUE(QTest::qWaitForWindowActive(Window()));
  dialog->Unload();
}

TEST_F(WindowHosts, AModalFormThatUnloadsFromItsOwnKeyLetsTheCallerGoOn) {
  ShowForm();
  auto dialog = std::make_shared<ProbeForm>(host);
  dialog->border_style = 3;
  dialog->OnKeyPress = [&](int& ascii) {
    if (ascii == 27) dialog->Unload();
  };
  InNextDialog([&] { QTest::keyClick(host.WidgetOf(*dialog), Qt::Key_Escape); });
  dialog->Show(ShowMode::kModal);
  EXPECT_FALSE(dialog->IsLoaded());
  dialog.reset();
  QTest::keyClicks(Window(), "a");
  EXPECT_EQ(form->box.Text(), "a");
}

TEST_F(WindowHosts, ADialogOverADialogGivesBackOneAfterTheOther) {
  ShowForm();
  const auto outer = std::make_shared<ProbeForm>(host);
  const auto inner = std::make_shared<ProbeForm>(host);
  outer->border_style = inner->border_style = 3;
  std::vector<std::string> log;
  outer->left.OnClick = [&] {
    InNextDialog([&] {
      log.push_back("inner");
      inner->Unload();
    });
    inner->Show(ShowMode::kModal);
    log.push_back("inner done");
    outer->Unload();
  };
  InNextDialog([&] { QTest::mouseClick(host.WidgetOf(*outer), Qt::LeftButton, {}, QPoint(10, 10)); });
  outer->Show(ShowMode::kModal);
  log.push_back("outer done");
  EXPECT_EQ(log, (std::vector<std::string>{"inner", "inner done", "outer done"}));
}

TEST_F(WindowHosts, AFormOfACenteredDesignStandsOverItsOwner) {
  ShowForm();
  form->Move(3000, 3000);
  const auto dialog = std::make_shared<ProbeForm>(host);
  dialog->border_style = 3;
  dialog->OnLoad = [&] {
    dialog->StartUpPosition(1);
    dialog->Width(1500);
    dialog->Height(1500);
  };
  QRect place;
  InNextDialog([&] {
    place = host.WidgetOf(*dialog)->geometry();
    dialog->Unload();
  });
  dialog->Show(ShowMode::kModal);
  EXPECT_NEAR(place.center().x(), Window()->geometry().center().x(), 2);
  EXPECT_NEAR(place.center().y(), Window()->geometry().center().y(), 2);
}

TEST_F(WindowHosts, ATimerRunsWhileItIsEnabled) {
  const auto ticking = std::make_shared<TimerForm>(host);
  ticking->Show();
  int ticks = 0;
  ticking->timer.OnTimer = [&] { ++ticks; };
  ticking->timer.Enabled(false);
  ticking->timer.Interval(5);
  QTest::qWait(40);
  EXPECT_EQ(ticks, 0);
  ticking->timer.Enabled(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 3; }, 5000));
  ticking->timer.Enabled(false);
  const int stopped = ticks;
  QTest::qWait(40);
  EXPECT_EQ(ticks, stopped);
  ticking->Unload();
}

TEST_F(WindowHosts, ATimerMayStopItselfOrItsForm) {
  auto ticking = std::make_shared<TimerForm>(host);
  ticking->Show();
  int ticks = 0;
  ticking->timer.OnTimer = [&] {
    ++ticks;
    ticking->Unload();
  };
  ticking->timer.Interval(5);
  ticking->timer.Enabled(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 1; }, 5000));
  ticking.reset();
  QTest::qWait(30);
  EXPECT_EQ(ticks, 1);
}

TEST_F(WindowHosts, AnErrorInATimerIsReported) {
  const auto ticking = std::make_shared<TimerForm>(host);
  ticking->Show();
  ticking->timer.OnTimer = [&] {
    ticking->timer.Enabled(false);
    throw RuntimeError(error_number::kTypeMismatch);
  };
  ticking->timer.Interval(5);
  ticking->timer.Enabled(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return errors.size() == 1; }, 5000));
  EXPECT_EQ(errors[0].Number(), 13);
  ticking->Unload();
}

TEST_F(WindowHosts, DoEventsLetsPaintingThrough) {
  ShowForm();
  form->left.times_painted = 0;
  form->left.Refresh();
  host.DoEvents();
  EXPECT_EQ(form->left.times_painted, 1);
}

TEST_F(WindowHosts, TheProgramIsToldWhenTheLastWindowIsGone) {
  int told = 0;
  QtHostOptions options;
  options.on_last_window_gone = [&] { ++told; };
  QtWindowHost own(Region::Spanish(), clock, options);
  const auto first = std::make_shared<ProbeForm>(own);
  const auto second = std::make_shared<ProbeForm>(own);
  first->Show();
  second->Show();
  first->Unload();
  QApplication::processEvents();
  EXPECT_EQ(told, 0);
  second->Unload();
  second->Show();  // a new one before the next turn of the loop
  QApplication::processEvents();
  EXPECT_EQ(told, 0);
  second->Unload();
  QApplication::processEvents();
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace orvendal
