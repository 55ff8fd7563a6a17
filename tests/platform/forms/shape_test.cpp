#include "platform/forms/shape.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "platform/forms/label.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class ShapeTest : public ::testing::Test {
 protected:
  void SetUp() override { stage.Show(); }

  Stage stage;
  Shape& shape = stage.Add<Shape>("DivBox", {720, 600, 3000, 900});
};

TEST_F(ShapeTest, ANewShapeIsAThinTransparentFrame) {
  EXPECT_FALSE(shape.Opaque());
  EXPECT_EQ(shape.BackColor(), system_color::kWindowBackground);
  const RecordingCanvas canvas = stage.Painted();
  EXPECT_EQ(Count(canvas, "fill"), 1U);  // the form's own
  EXPECT_EQ(Find(canvas, "frame").area, (Rect{720, 600, 3000, 900}));
}

TEST_F(ShapeTest, AnOpaqueRoundedRectangleFillsWithItsColourInsideItsBounds) {
  shape.FormOfShape(ShapeForm::kRoundedRectangle);
  shape.Opaque(true);
  shape.BackColor(0xE1C0B3);
  shape.BorderColor(0x800000);
  shape.BorderWidth(3);
  const RecordingCanvas canvas = stage.Painted();
  EXPECT_EQ(Find(canvas, "rounded").color, RgbOf(0xE1C0B3));
  EXPECT_EQ(Find(canvas, "frame").color, RgbOf(0x800000));
  EXPECT_EQ(Find(canvas, "rounded").area, (Rect{742.5, 622.5, 2955, 855}));
}

TEST_F(ShapeTest, ABorderOfNoWidthIsRefused) {
  try {
    shape.BorderWidth(0);
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 380);
  }
}

TEST_F(ShapeTest, AShapeHasNoFont) {
  try {
    shape.Font();
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 438);
  }
}

TEST(ShapeStage, TheMouseGoesThroughAShape) {
  Stage stage;
  stage.Add<Shape>("DivFront", {0, 0, 3000, 900}).Opaque(true);
  auto& label = stage.Add<Label>("LblBehind", {0, 0, 3000, 900});
  stage.Show();
  int clicks = 0;
  label.OnClick = [&clicks] { ++clicks; };
  stage.Click(label);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace orvendal::testing
