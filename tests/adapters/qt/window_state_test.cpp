#include <QScreen>
#include <QWindow>

#include "tests/adapters/qt/qt_fixture.h"

namespace orvendal {
namespace {

class FormWindows : public QtFormTest {};
using FormState = enum WindowState;

QSize ScreenSize() {
  return QGuiApplication::primaryScreen()->geometry().size();
}

TEST_F(FormWindows, AFormWithoutBorderIsABareWindowOfItsExactSize) {
  ShowForm();
  EXPECT_TRUE(Window()->windowFlags() & Qt::FramelessWindowHint);
  EXPECT_EQ(Window()->size(), QSize(400, 300));
  EXPECT_EQ(Window()->minimumSize(), Window()->maximumSize());
  EXPECT_EQ(Window()->windowTitle(), "Orvendal");
  EXPECT_FALSE(QApplication::windowIcon().isNull());
}

TEST_F(FormWindows, ACaptionThatIsEmptyGivesWayToTheApplicationsTitle) {
  ShowForm();
  form->Caption("Día 16");
  EXPECT_EQ(Window()->windowTitle(), QString::fromUtf8("Día 16"));
  form->Caption("");
  EXPECT_EQ(Window()->windowTitle(), "Recuento");
}

TEST_F(FormWindows, AFormWithABorderHasTheSystemsFrameAndAFixedSize) {
  form->border_style = 3;
  ShowForm();
  EXPECT_FALSE(Window()->windowFlags() & Qt::FramelessWindowHint);
  EXPECT_TRUE(Window()->windowFlags() & Qt::WindowCloseButtonHint);
  EXPECT_FALSE(Window()->windowFlags() & Qt::WindowMaximizeButtonHint);
  EXPECT_EQ(Window()->minimumSize(), QSize(400, 300));
  EXPECT_EQ(Window()->maximumSize(), QSize(400, 300));
}

TEST_F(FormWindows, PlaceAndSizeFollowTheForm) {
  ShowForm();
  form->Move(1500, 750);
  form->Width(7500);
  form->Height(3000);
  EXPECT_EQ(Window()->geometry(), QRect(100, 50, 500, 200));
}

TEST_F(FormWindows, AMaximisedFormCoversTheScreen) {
  ShowForm();
  form->WindowState(FormState::kMaximized);
  EXPECT_EQ(Window()->size(), ScreenSize());
  EXPECT_TRUE(Window()->isFullScreen());
  EXPECT_EQ(form->Width(), ScreenSize().width() * kTwipsPerPixel);
  form->WindowState(FormState::kNormal);
  QApplication::processEvents();
  EXPECT_FALSE(Window()->isFullScreen());
  EXPECT_EQ(Window()->size(), QSize(400, 300));
}

TEST_F(FormWindows, AMinimisedFormComesBackFromTheWindowManagerAsItWas) {
  for (const FormState before : {FormState::kNormal, FormState::kMaximized}) {
    form = std::make_shared<ProbeForm>(host);
    ShowForm();
    form->WindowState(before);
    form->WindowState(FormState::kMinimized);
    QApplication::processEvents();
    EXPECT_TRUE(Window()->isMinimized());
    EXPECT_EQ(form->WindowState(), FormState::kMinimized);

    int resized = 0;
    form->OnResize = [&] { ++resized; };
    Window()->setWindowState(Window()->windowState() & ~Qt::WindowMinimized);
    QApplication::processEvents();
    EXPECT_EQ(form->WindowState(), before);
    EXPECT_EQ(resized, 1);
    EXPECT_FALSE(Window()->isMinimized());
    form->OnResize = nullptr;
    form->Unload();
  }
}

TEST_F(FormWindows, TheWindowManagerMayMinimise) {
  ShowForm();
  Window()->setWindowState(Qt::WindowMinimized);
  QApplication::processEvents();
  EXPECT_EQ(form->WindowState(), FormState::kMinimized);
  form->WindowState(FormState::kMaximized);
  EXPECT_FALSE(Window()->isMinimized());
  EXPECT_EQ(Window()->size(), ScreenSize());
}

// Seen: being minimised put it back into full screen, and so showed it again.
TEST_F(FormWindows, AWindowThatTheManagerTookOutOfFullScreenCanBeMinimised) {
  ShowForm();
  form->WindowState(FormState::kMaximized);
  QApplication::processEvents();
  ASSERT_TRUE(Window()->isFullScreen());
  Window()->setWindowState(Qt::WindowNoState);  // as the manager does it
  QApplication::processEvents();
  form->WindowState(FormState::kMinimized);
  QApplication::processEvents();
  EXPECT_TRUE(Window()->isMinimized());
  EXPECT_FALSE(Window()->isFullScreen());
  EXPECT_EQ(form->WindowState(), FormState::kMinimized);
  Window()->setWindowState(Window()->windowState() & ~Qt::WindowMinimized);
  QApplication::processEvents();
  EXPECT_EQ(form->WindowState(), FormState::kMaximized);
  EXPECT_TRUE(Window()->isFullScreen());
}

TEST_F(FormWindows, AMinimisedWindowThatStillTakesInputComesBackByIt) {
  ShowForm();
  form->WindowState(FormState::kMinimized);
  QTest::keyClick(Window(), Qt::Key_A);
  EXPECT_EQ(form->WindowState(), FormState::kNormal);
  EXPECT_EQ(form->box.Text(), "");
  QTest::keyClick(Window(), Qt::Key_A);
  EXPECT_EQ(form->box.Text(), "a");
}

TEST_F(FormWindows, AHiddenFormLeavesTheScreenAndKeepsItsState) {
  ShowForm();
  QTest::keyClicks(Window(), "ab");
  form->Hide();
  EXPECT_FALSE(Window()->isVisible());
  form->Show();
  EXPECT_TRUE(Window()->isVisible());
  EXPECT_EQ(form->box.Text(), "ab");
}

class SimulatedDisplay : public ::testing::Test {
 protected:
  SimulatedDisplay() : host(Region::Spanish(), clock, Options()), form(std::make_shared<ProbeForm>(host)) {
    form->Show();
    QApplication::processEvents();
  }
  ~SimulatedDisplay() override {
    form->Unload();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static QtHostOptions Options() {
    QtHostOptions options;
    options.display = QSize(600, 500);
    return options;
  }
  StillClock clock;
  QtWindowHost host;
  std::shared_ptr<ProbeForm> form;
};

TEST_F(SimulatedDisplay, TheScreenIsTheWindow) {
  EXPECT_EQ(host.ScreenWidth(), 600 * kTwipsPerPixel);
  EXPECT_EQ(host.ScreenHeight(), 500 * kTwipsPerPixel);
  QWidget* window = host.WidgetOf(*form);
  EXPECT_FALSE(window->windowFlags() & Qt::FramelessWindowHint);
  EXPECT_EQ(window->size(), QSize(600, 500));
}

TEST_F(SimulatedDisplay, TheFormStandsAtItsPlaceInTheWindow) {
  form->Move(50 * kTwipsPerPixel, 20 * kTwipsPerPixel);
  QWidget* window = host.WidgetOf(*form);
  const QImage image = window->grab().toImage();
  EXPECT_EQ(image.pixel(50, 20), qRgb(255, 0, 0));
  EXPECT_NE(image.pixel(49, 20), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(250, 20), qRgb(0, 0, 255));

  int clicks = 0;
  form->left.OnClick = [&] { ++clicks; };
  form->OnMouseDown = [&] { ADD_FAILURE() << "a press beside the form reached it"; };
  QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(52, 22));
  QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(40, 22));
  EXPECT_EQ(clicks, 1);
}

TEST_F(SimulatedDisplay, AMaximisedFormFillsTheWindow) {
  form->Move(50 * kTwipsPerPixel, 20 * kTwipsPerPixel);
  form->WindowState(FormState::kMaximized);
  QWidget* window = host.WidgetOf(*form);
  EXPECT_EQ(window->size(), QSize(600, 500));
  const QImage image = window->grab().toImage();
  EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(599, 499), qRgb(212, 208, 200));
}

TEST_F(SimulatedDisplay, OnlyTheFormsOwnPartIsPaintedAgain) {
  form->Move(50 * kTwipsPerPixel, 20 * kTwipsPerPixel);
  QApplication::processEvents();
  form->left.times_painted = form->right.times_painted = 0;
  form->right.Refresh();
  QApplication::processEvents();
  EXPECT_EQ(form->right.times_painted, 1);
  EXPECT_EQ(form->left.times_painted, 0);
}

}  // namespace
}  // namespace orvendal
