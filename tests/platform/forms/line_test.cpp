#include "platform/forms/line.h"

#include <gtest/gtest.h>

#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class LineTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    line.X1(1000);
    line.Y1(2000);
    line.X2(400);
    line.Y2(2600);
  }

  Stage stage;
  Line& line = stage.Add<Line>("LinRule", {0, 0, 0, 0});
};

TEST_F(LineTest, PointsReadBackAsWrittenAndTheBoxFollows) {
  EXPECT_EQ(line.X1(), 1000);
  EXPECT_EQ(line.Y1(), 2000);
  EXPECT_EQ(line.X2(), 400);
  EXPECT_EQ(line.Y2(), 2600);
  EXPECT_EQ(line.Bounds(), (Rect{392.5, 1992.5, 615, 615}));
}

TEST_F(LineTest, ItRunsBetweenItsPointsInItsColour) {
  line.BorderColor(0x000080);
  const auto painted = Find(stage.Painted(), "line");
  EXPECT_EQ(painted.area, (Rect{400, 2000, 600, 600}));
  EXPECT_EQ(painted.color, RgbOf(0x000080));
}

TEST_F(LineTest, AnUprightLineIsSeenToo) {
  line.X2(1000);
  EXPECT_EQ(Find(stage.Painted(), "line").area, (Rect{1000, 2000, 0, 600}));
  stage.form->TakeDirtyRectangles();
  line.X1(1100);
  EXPECT_FALSE(stage.form->TakeDirtyRectangles().empty());
}

}  // namespace
}  // namespace orvendal::testing
