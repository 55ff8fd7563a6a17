#include "platform/forms/h_scroll_bar.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class HScrollBarTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    bar.Min(0);
    bar.Max(100);
    bar.SmallChange(1);
    bar.LargeChange(10);
    bar.OnChange = [this] { log += std::to_string(bar.Value()) + " "; };
    bar.OnClick = [this] { log += "click "; };
  }

  Stage stage;
  HScrollBar& bar = stage.Add<HScrollBar>("ScrollBar", {0, 0, 6000, 300});
  std::string log;
};

TEST_F(HScrollBarTest, ChangeIsRaisedByAnotherValueOnly) {
  bar.Value(5);
  bar.Value(5);
  EXPECT_EQ(log, "5 ");
}

TEST_F(HScrollBarTest, AValueOutsideTheLimitsIsRefused) {
  for (const int value : {-1, 101}) {
    try {
      bar.Value(value);
      FAIL() << "no error";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 380);
    }
  }
  EXPECT_EQ(bar.Value(), 0);
}

TEST_F(HScrollBarTest, LimitsMoveTheValueSilently) {
  bar.Value(50);
  log.clear();
  bar.Max(40);
  EXPECT_EQ(bar.Value(), 40);
  bar.Min(40);
  EXPECT_EQ(log, "");
}

TEST_F(HScrollBarTest, ArrowsAndTrackStepByTheirMeasures) {
  stage.Click(bar, {5900, 150});
  stage.Click(bar, {5900, 150});
  stage.Click(bar, {100, 150});
  stage.Click(bar, {5000, 150});
  stage.Click(bar, {310, 150});
  EXPECT_EQ(log, "1 2 1 11 1 ");
}

TEST_F(HScrollBarTest, TheThumbIsDraggedFromOneEndToTheOther) {
  stage.Press(bar, {400, 150});
  stage.Drag(bar, {9000, 150});
  EXPECT_EQ(bar.Value(), 100);
  stage.Drag(bar, {-9000, 150});
  EXPECT_EQ(bar.Value(), 0);
  stage.Drag(bar, {400 + (5400 - 5400 / 11.0) / 2, 150});
  EXPECT_EQ(bar.Value(), 50);
  stage.Release(bar, {400, 150});
  stage.form->MouseMove({9000, 150}, 0, 0);
  EXPECT_EQ(bar.Value(), 50);
}

TEST_F(HScrollBarTest, KeysAndWheelMoveIt) {
  stage.Key(key::kRight);
  stage.Key(key::kPageDown);
  stage.Key(key::kLeft);
  stage.Key(key::kEnd);
  stage.Key(key::kRight);
  stage.Key(key::kPageUp);
  stage.Key(key::kHome);
  stage.form->MouseWheel({100, 100}, 3);
  EXPECT_EQ(log, "1 11 10 100 90 0 3 ");
}

// None of them moved it.
TEST_F(HScrollBarTest, TwelveQuarterLinesOfATouchpadAreOneNotch) {
  bar.Value(50);
  for (int turn = 0; turn < 12; ++turn) stage.form->MouseWheel({100, 100}, 0.25);
  EXPECT_EQ(bar.Value(), 53);
  for (int turn = 0; turn < 12; ++turn) stage.form->MouseWheel({100, 100}, -0.25);
  EXPECT_EQ(bar.Value(), 50);
}

TEST_F(HScrollBarTest, WithMinEqualToMaxNothingMovesIt) {
  bar.Min(1);
  bar.Max(1);
  for (const double x : {100.0, 400.0, 3000.0, 5900.0}) stage.Click(bar, {x, 150});
  for (const int code : {key::kLeft, key::kRight, key::kPageUp, key::kPageDown, key::kHome, key::kEnd}) {
    stage.Key(code);
  }
  stage.form->MouseWheel({100, 100}, 3);
  EXPECT_EQ(bar.Value(), 1);
  EXPECT_EQ(log, "");
}

TEST_F(HScrollBarTest, ABarFromHighToLowRunsTheOtherWay) {
  bar.Max(0);
  bar.Min(10);
  EXPECT_EQ(bar.Value(), 0);
  bar.Value(10);
  stage.Key(key::kRight);
  EXPECT_EQ(bar.Value(), 9);
  stage.Key(key::kEnd);
  EXPECT_EQ(bar.Value(), 0);
}

}  // namespace
}  // namespace orvendal::testing
