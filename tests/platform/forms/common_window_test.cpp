#include "platform/forms/common_window.h"

#include <gtest/gtest.h>

#include "adapters/headless/headless_host.h"
#include "tests/support/probe_form.h"

namespace orvendal::testing {
namespace {

/// A window that shows nothing and tells what the windows of all systems know.
class PlainWindow final : public CommonWindow {
 public:
  using CommonWindow::CommonWindow;
  using CommonWindow::FirstPlace;
  using CommonWindow::IsFramed;
  using CommonWindow::IsPlacedOnce;
  using CommonWindow::Title;

  void Show() override {}
  void Hide() override {}
  void Raise() override {}
  void BoundsChanged() override {}
  void CaptionChanged() override {}
  void StateChanged(WindowState) override {}
  void RequestPaint(const Rect&) override {}
  void PaintNow() override {}
  void Cursor(CursorShape) override {}
  void Caret(const std::optional<Rect>&) override {}
};

class CommonWindowTest : public ::testing::Test {
 protected:
  void Design(int border_style, int start_up_position) {
    form->BorderStyle(border_style);
    form->StartUpPosition(start_up_position);
  }

  StillClock clock;
  HeadlessHost host{Region::Spanish(), clock};
  std::shared_ptr<ProbeForm> form = std::make_shared<ProbeForm>(host);
  PlainWindow window{host, *form};
};

TEST_F(CommonWindowTest, TheHostKnowsItFromItsMakingToItsEnd) {
  EXPECT_TRUE(host.HasWindows());
  {
    const PlainWindow second(host, *form);
    EXPECT_EQ(&second.TheForm(), form.get());
  }
  EXPECT_TRUE(host.HasWindows());
}

TEST_F(CommonWindowTest, ItsTitleIsTheFormsCaption) {
  EXPECT_EQ(window.Title(), "");
  form->Caption("Recuento");
  EXPECT_EQ(window.Title(), "Recuento");
}

TEST_F(CommonWindowTest, AFramedOneAndACentredOneArePlacedOnceAnyOtherStandsWhereItsFormSays) {
  Design(0, 0);
  EXPECT_FALSE(window.IsFramed());
  EXPECT_FALSE(window.IsPlacedOnce());
  Design(3, 0);
  EXPECT_TRUE(window.IsFramed());
  EXPECT_TRUE(window.IsPlacedOnce());
  Design(0, 1);
  EXPECT_TRUE(window.IsPlacedOnce());
  Design(0, 2);
  EXPECT_TRUE(window.IsPlacedOnce());
  Design(0, 3);
  EXPECT_FALSE(window.IsPlacedOnce());
}

TEST_F(CommonWindowTest, ItAppearsInTheMiddleOfItsOwnerOrOfTheScreen) {
  const Rect screen{0, 0, 1000, 800};
  const Rect owner{100, 100, 300, 300};
  Design(3, 1);
  EXPECT_EQ(window.FirstPlace({200, 100}, {200, 100}, screen, owner), (Point{150, 200}));
  EXPECT_EQ(window.FirstPlace({200, 100}, {200, 100}, screen, {}), (Point{400, 350})) << "no owner";
  Design(3, 2);
  EXPECT_EQ(window.FirstPlace({200, 100}, {200, 100}, screen, owner), (Point{400, 350}));
}

TEST_F(CommonWindowTest, AllOfItsFrameIsOnTheScreen) {
  const Rect screen{0, 0, 1000, 800};
  Design(3, 1);
  EXPECT_EQ(window.FirstPlace({200, 100}, {220, 140}, screen, {-300, 700, 300, 300}), (Point{0, 660}));
  EXPECT_EQ(window.FirstPlace({2000, 1600}, {2020, 1640}, screen, {}), (Point{0, 0})) << "larger than it";
}

}  // namespace
}  // namespace orvendal::testing
