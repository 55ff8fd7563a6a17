#include <QPaintEvent>
#include <stdexcept>

#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

// Collects what Qt asks a widget to paint.
class PaintSpy final : public QObject {
 public:
  explicit PaintSpy(QWidget* widget) { widget->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      painted += static_cast<QPaintEvent*>(event)->region();
      ++events;
    }
    return false;
  }
  QRegion painted;
  int events = 0;
};

class WindowPainting : public QtFormTest {
 protected:
  void SetUp() override {
    ShowForm();
    QApplication::processEvents();
    form->left.times_painted = 0;
    form->right.times_painted = 0;
  }
};

TEST_F(WindowPainting, TheWindowShowsTheForm) {
  const QImage image = Window()->grab().toImage();
  EXPECT_EQ(image.size(), QSize(400, 300));
  EXPECT_EQ(image.pixel(199, 50), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(200, 50), qRgb(0, 0, 255));
  EXPECT_EQ(image.pixel(5, 290), qRgb(212, 208, 200));
}

TEST_F(WindowPainting, OnlyWhatChangedIsPaintedAgain) {
  PaintSpy spy(Window());
  form->right.Refresh();
  QApplication::processEvents();
  EXPECT_EQ(spy.painted, QRegion(200, 0, 200, 100));
  EXPECT_EQ(form->right.times_painted, 1);
  EXPECT_EQ(form->left.times_painted, 0);
}

TEST_F(WindowPainting, ManyChangesOfOneTurnArePaintedOnce) {
  PaintSpy spy(Window());
  for (int i = 0; i < 50; ++i) form->right.Refresh();
  EXPECT_EQ(spy.events, 0);
  QApplication::processEvents();
  EXPECT_EQ(spy.events, 1);
  EXPECT_EQ(form->right.times_painted, 1);
}

TEST_F(WindowPainting, ChangesAfterAPaintArePaintedToo) {
  form->right.Refresh();
  QApplication::processEvents();
  form->right.Refresh();
  QApplication::processEvents();
  EXPECT_EQ(form->right.times_painted, 2);
}

TEST_F(WindowPainting, RefreshPaintsWithoutWaiting) {
  PaintSpy spy(Window());
  form->right.Refresh();
  form->Refresh();
  EXPECT_EQ(form->right.times_painted, 1);
  QApplication::processEvents();
  EXPECT_EQ(form->right.times_painted, 1);
}

TEST_F(WindowPainting, NothingToPaintPaintsNothing) {
  PaintSpy spy(Window());
  form->Refresh();
  QApplication::processEvents();
  EXPECT_EQ(spy.events, 0);
}

TEST_F(WindowPainting, TheCaretBlinksAndPaintsOnlyItself) {
  QApplication::setCursorFlashTime(60);
  QTest::keyClicks(Window(), "ab");
  QApplication::processEvents();
  const QRect caret = Window()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  const auto lit = [&] {
    const QImage image = Window()->grab().toImage();
    return image.pixel(caret.center()) != image.pixel(caret.right() + 3, caret.center().y());
  };
  PaintSpy spy(Window());
  bool seen_lit = false, seen_dark = false;
  for (int i = 0; i < 200 && !(seen_lit && seen_dark); ++i) {
    QTest::qWait(10);
    (lit() ? seen_lit : seen_dark) = true;
  }
  EXPECT_TRUE(seen_lit);
  EXPECT_TRUE(seen_dark);
  QApplication::setCursorFlashTime(0);

  QTest::qWait(10);
  QApplication::setCursorFlashTime(60);
  QTest::keyClicks(Window(), "c");
  QApplication::processEvents();
  const QRect moved = Window()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  PaintSpy blink(Window());
  EXPECT_TRUE(QTest::qWaitFor([&] { return blink.events > 2; }, 2000));
  EXPECT_TRUE((blink.painted - moved.adjusted(-1, 0, 1, 0)).isEmpty());
  QApplication::setCursorFlashTime(0);
}

TEST_F(WindowPainting, AFormWithoutTheKeyboardShowsNoCaret) {
  QTest::keyClicks(Window(), "ab");
  const QRect caret = Window()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  const auto ink = [&] { return Window()->grab().toImage().pixel(caret.center()); };
  ASSERT_TRUE(Window()->isActiveWindow());
  const QRgb lit = ink();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  QApplication::processEvents();
  EXPECT_NE(ink(), lit);
}

TEST_F(WindowPainting, AnExceptionWhilePaintingDoesNotCrossTheWindow) {
  form->right.OnPaint = [] { throw std::logic_error("torn"); };
  const CriticalMessages messages;
  form->right.Refresh();
  QApplication::processEvents();
  form->right.OnPaint = nullptr;
  form->right.Refresh();
  QApplication::processEvents();
  EXPECT_EQ(form->right.times_painted, 2);
  EXPECT_TRUE(errors.empty());
  EXPECT_EQ(messages.All(), (std::vector<std::string>{"Painting ended with: torn"}));
}

}  // namespace
}  // namespace orvendal
