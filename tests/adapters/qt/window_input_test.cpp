#include <QInputMethodEvent>
#include <QWheelEvent>
#include <stdexcept>

#include "platform/forms/keys.h"
#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

// As the window system does it: the second press comes as a double click.
void DoubleClick(QWidget* window, QPoint place) {
  const QPointer<QWidget> alive = window;
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                  QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
    if (alive.isNull()) return;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, window->mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(window, &event);
  }
}

void MoveMouse(QWidget* window, QPoint place) {
  QMouseEvent event(QEvent::MouseMove, place, window->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                    Qt::NoModifier);
  QApplication::sendEvent(window, &event);
}

class WindowInput : public QtFormTest {};

TEST_F(WindowInput, AClickArrivesAtItsPlaceInTwips) {
  ShowForm();
  form->LogMouseWithPlaces(form->right);
  QTest::mouseClick(Window(), Qt::LeftButton, Qt::ShiftModifier, QPoint(210, 20));
  EXPECT_EQ(form->log, (Log{"down 1 1 150 300", "up", "click"}));
}

TEST_F(WindowInput, TheSecondPressOfADoubleClickIsNoPressOfItsOwn) {
  ShowForm();
  form->LogMouse(form->left);
  DoubleClick(Window(), QPoint(10, 10));
  EXPECT_EQ(form->log, (Log{"down", "up", "click", "double", "up"}));
}

TEST_F(WindowInput, AnExtraButtonOfTheMouseDoesNothing) {
  ShowForm();
  form->LogMouse(form->left);
  QTest::mouseClick(Window(), Qt::BackButton, {}, QPoint(10, 10));
  EXPECT_TRUE(form->log.empty());
}

TEST_F(WindowInput, TheWheelTurnedTowardsTheUserScrollsDown) {
  ShowForm();
  QWheelEvent event(QPointF(10, 10), Window()->mapToGlobal(QPointF(10, 10)), QPoint(), QPoint(0, -120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(Window(), &event);
  EXPECT_DOUBLE_EQ(form->left.wheel_lines, QApplication::wheelScrollLines());
}

// Each of the small turns was a month: a touchpad over the calendar flew a year.
TEST_F(WindowInput, ATouchpadTurnsACalendarByAMonthANotch) {
  const auto months = std::make_shared<CalendarForm>(host);
  months->Show();
  QWidget* window = host.WidgetOf(*months);
  for (int turn = 0; turn < 12; ++turn) {
    QWheelEvent event(QPointF(10, 200), window->mapToGlobal(QPointF(10, 200)), QPoint(), QPoint(0, -10),
                      Qt::NoButton, Qt::NoModifier, Qt::ScrollUpdate, false);
    QApplication::sendEvent(window, &event);
  }
  EXPECT_EQ(months->calendar.ViewMonth(), Date(2026, 12, 1));
  months->Unload();
}

TEST_F(WindowInput, ThePointerTakesTheShapeOfWhatLiesUnderIt) {
  ShowForm();
  MoveMouse(Window(), QPoint(10, 10));
  EXPECT_EQ(Window()->cursor().shape(), Qt::IBeamCursor);
  MoveMouse(Window(), QPoint(10, 250));
  EXPECT_EQ(Window()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(WindowInput, AKeyIsPressedThenWrittenThenReleased) {
  ShowForm();
  form->LogKeys();
  QTest::keyClick(Window(), Qt::Key_A);
  QTest::keyClick(Window(), Qt::Key_F1);
  QTest::keyClick(Window(), Qt::Key_Return);
  EXPECT_EQ(form->log,
            (Log{"down 65", "press 97", "up 65", "down 112", "up 112", "down 13", "press 13", "up 13"}));
  EXPECT_EQ(form->box.Text(), "a");
}

TEST_F(WindowInput, AKeyHeldDownRepeatsWithoutBeingReleased) {
  ShowForm();
  form->LogKeys();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a", true);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, "a", true);
  for (int i = 0; i < 2; ++i) {
    QApplication::sendEvent(Window(), &press);
    QApplication::sendEvent(Window(), &release);
  }
  EXPECT_EQ(form->log, (Log{"down 65", "press 97", "down 65", "press 97"}));
}

TEST_F(WindowInput, TabGoesRoundTheControlsAndShiftTabBack) {
  ShowForm();
  EXPECT_TRUE(form->box.HasFocus());
  QTest::keyClick(Window(), Qt::Key_Tab);
  EXPECT_TRUE(form->left.HasFocus());
  QTest::keyClick(Window(), Qt::Key_Tab);
  EXPECT_TRUE(form->right.HasFocus());
  QTest::keyClick(Window(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(form->left.HasFocus());
}

TEST_F(WindowInput, ControlLettersCopyAndPaste) {
  ShowForm();
  QTest::keyClicks(Window(), "abc");
  QTest::keyClick(Window(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(Window(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(host.ClipboardText(), "abc");
  QTest::keyClick(Window(), Qt::Key_End);
  QTest::keyClick(Window(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form->box.Text(), "abcabc");
  QTest::keyClick(Window(), Qt::Key_Backspace);
  EXPECT_EQ(form->box.Text(), "abcab");
}

TEST_F(WindowInput, ADeadKeyOrAnInputMethodWritesWhatItCommits) {
  ShowForm();
  form->LogKeys();
  QInputMethodEvent event;
  event.setCommitString(QString::fromUtf8("éñ"));
  QApplication::sendEvent(Window(), &event);
  EXPECT_EQ(form->box.Text(), "éñ");
  EXPECT_EQ(form->log, (Log{"down 69", "press 233", "down 78", "press 241"}));
}

TEST_F(WindowInput, AKeyThatWroteNothingDoesNotSwallowTheDeadKeyAfterIt) {
  ShowForm();
  QTest::keyClick(Window(), Qt::Key_Tab);
  QTest::keyClick(Window(), Qt::Key_Backtab, Qt::ShiftModifier);
  QInputMethodEvent event;
  event.setCommitString(QString::fromUtf8("á"));
  QApplication::sendEvent(Window(), &event);
  EXPECT_EQ(form->box.Text(), "á");
}

TEST_F(WindowInput, InputMethodsAreToldWhereTheCaretStands) {
  ShowForm();
  EXPECT_TRUE(Window()->inputMethodQuery(Qt::ImEnabled).toBool());
  QTest::keyClicks(Window(), "abc");
  const QRect caret = Window()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  EXPECT_TRUE(QRect(15, 150, 300, 30).contains(caret)) << caret.x() << " " << caret.y();
}

TEST_F(WindowInput, ClosingAsksTheFormAndClosesNothingByItself) {
  ShowForm();
  form->OnCloseRequest = [this] { form->Note("close"); };
  EXPECT_FALSE(Window()->close());
  EXPECT_EQ(form->log, (Log{"close"}));
  EXPECT_TRUE(Window()->isVisible());
}

TEST_F(WindowInput, ClosingAFormWithoutAnOpinionUnloadsIt) {
  ShowForm();
  Window()->close();
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(WindowInput, AFormMayUnloadInEveryKindOfEvent) {
  const auto unload = [this] { form->Unload(); };
  const std::vector<std::function<void()>> gestures = {
      [&] {
        form->left.OnMouseDown = [=](int, int, double, double) { unload(); };
        QTest::mouseClick(Window(), Qt::LeftButton, {}, QPoint(10, 10));
      },
      [&] {
        form->left.OnClick = unload;
        QTest::mouseClick(Window(), Qt::LeftButton, {}, QPoint(10, 10));
      },
      [&] {
        form->OnKeyDown = [=](int&, int) { unload(); };
        QTest::keyClick(Window(), Qt::Key_A);
      },
      [&] {
        form->OnKeyPress = [=](int&) { unload(); };
        QTest::keyClick(Window(), Qt::Key_A);
      },
      [&] {
        form->OnKeyUp = [=](int&, int) { unload(); };
        QTest::keyClick(Window(), Qt::Key_A);
      },
      [&] {
        form->OnKeyPress = [=](int&) { unload(); };
        QInputMethodEvent event;
        event.setCommitString("abc");
        QApplication::sendEvent(Window(), &event);
      },
      [&] {
        form->left.OnDblClick = unload;
        DoubleClick(Window(), QPoint(10, 10));
      },
  };
  for (const auto& gesture : gestures) {
    form = std::make_shared<ProbeForm>(host);
    ShowForm();
    const QPointer<QWidget> widget = Window();
    gesture();
    EXPECT_FALSE(form->IsLoaded());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
  }
}

TEST_F(WindowInput, AFormThatIsLoadedAnewInItsHandlerGetsNothingOfTheOldKey) {
  ShowForm();
  form->OnKeyDown = [this](int&, int) {
    form->OnKeyDown = nullptr;
    form->Unload();
    form->Show();
  };
  QTest::keyClick(Window(), Qt::Key_A);
  EXPECT_TRUE(form->IsLoaded());
  EXPECT_EQ(form->box.Text(), "");
}

TEST_F(WindowInput, AnErrorOfAHandlerIsReportedAndTheScreenGoesOn) {
  ShowForm();
  form->left.OnClick = [] { throw RuntimeError(error_number::kInvalidProcedureCall); };
  QTest::mouseClick(Window(), Qt::LeftButton, {}, QPoint(10, 10));
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].Number(), 5);
  form->box.SetFocus();
  QTest::keyClicks(Window(), "z");
  EXPECT_EQ(form->box.Text(), "z");
}

TEST_F(WindowInput, AnExceptionThatIsNoErrorOfTheRuntimeDoesNotCrossTheWindow) {
  ShowForm();
  form->OnKeyDown = [](int&, int) { throw std::logic_error("broken"); };
  const CriticalMessages messages;
  QTest::keyClick(Window(), Qt::Key_F1);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].Number(), error_number::kInternal);
  EXPECT_EQ(errors[0].Description(), "broken");
  EXPECT_EQ(messages.All(), (Log{"An event ended with: broken"}));
}

}  // namespace
}  // namespace orvendal
