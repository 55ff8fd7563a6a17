#include "platform/forms/picture_box.h"

#include <gtest/gtest.h>

#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class PictureBoxTest : public ::testing::Test {
 protected:
  void SetUp() override { stage.Show(); }

  Stage stage;
  PictureBox& picture_box = stage.Add<PictureBox>("PicPanel", {300, 600, 3000, 1500});
  TextBox& child = stage.Add<TextBox>("TxtChild", {100, 200, 900, 300}, &picture_box);
};

TEST_F(PictureBoxTest, ChildrenCountFromInsideTheBorder) {
  EXPECT_EQ(child.Bounds(), (Rect{300 + 30 + 100, 600 + 30 + 200, 900, 300}));
  picture_box.Appearance(Appearance::kFlat);
  EXPECT_EQ(child.Bounds(), (Rect{300 + 15 + 100, 600 + 15 + 200, 900, 300}));
  picture_box.BorderStyle(0);
  EXPECT_EQ(child.Bounds(), (Rect{300 + 100, 600 + 200, 900, 300}));
}

TEST_F(PictureBoxTest, AFlatOneHasABlackFrame) {
  picture_box.Appearance(Appearance::kFlat);
  picture_box.BackColor(0xD3E8E9);
  RecordingCanvas canvas;
  picture_box.Paint(canvas);
  EXPECT_EQ(canvas.FillAt({100, 100}), RgbOf(0xD3E8E9));
  EXPECT_EQ(Find(canvas, "frame").color, (Rgb{0, 0, 0}));
  EXPECT_EQ(Find(canvas, "frame").area, picture_box.LocalBounds());
}

TEST_F(PictureBoxTest, ThePictureKeepsItsSizeAndIsCutAtTheInside) {
  picture_box.Appearance(Appearance::kFlat);
  auto small = std::make_shared<Bitmap>();
  small->width = 10;
  small->height = 20;
  picture_box.Picture(small);
  EXPECT_EQ(Find(stage.Painted(), "bitmap").area, (Rect{315, 615, 150, 300}));
  auto large = std::make_shared<Bitmap>();
  large->width = 1149;
  large->height = 770;
  picture_box.Picture(large);
  EXPECT_EQ(Find(stage.Painted(), "bitmap").area, (Rect{315, 615, 2970, 1470}));
}

TEST_F(PictureBoxTest, AClickOnItsSurfaceGivesItTheFocus) {
  child.SetFocus();
  stage.Click(picture_box, {2500, 1300});
  EXPECT_TRUE(picture_box.HasFocus());
}

}  // namespace
}  // namespace orvendal::testing
