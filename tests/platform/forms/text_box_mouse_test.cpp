#include <gtest/gtest.h>

#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class TextBoxMouseTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    box.Appearance(Appearance::kFlat);
    box.Text("tinte rojo cobre");
    other.SetFocus();
  }
  // The place between two characters, with the text unscrolled.
  Point Before(std::size_t position) {
    return {30 + stage.host.TextWidth(box.Font().Spec(), Mid(box.Text(), 1, position)), 180};
  }
  Rect Caret() { return box.CaretRectangle().value(); }

  Stage stage;
  TextBox& box = stage.Add<TextBox>("TxtBox", {300, 300, 3000, 360});
  TextBox& other = stage.Add<TextBox>("TxtOther", {300, 900, 3000, 360});
};

TEST_F(TextBoxMouseTest, AClickTakesTheFocusAndPutsTheCaretBetweenTheNearestCharacters) {
  stage.Click(box, Before(6));
  EXPECT_TRUE(box.HasFocus());
  EXPECT_EQ(box.SelStart(), 6);
  EXPECT_EQ(box.SelLength(), 0);
  stage.Click(box, {2900, 180});
  EXPECT_EQ(box.SelStart(), 16);
  stage.Click(box, {20, 20});
  EXPECT_EQ(box.SelStart(), 0);
}

TEST_F(TextBoxMouseTest, DraggingSelectsInBothDirections) {
  stage.Press(box, Before(6));
  stage.Drag(box, Before(10));
  EXPECT_EQ(box.SelText(), "rojo");
  stage.Drag(box, Before(2));
  EXPECT_EQ(box.SelText(), "nte ");
  stage.Drag(box, {20000, 180});
  EXPECT_EQ(box.SelText(), "rojo cobre");
  stage.Release(box, {20000, 180});
  stage.form->MouseMove(Stage::At(box, Before(1)), 0, 0);
  EXPECT_EQ(box.SelText(), "rojo cobre");
}

TEST_F(TextBoxMouseTest, ShiftClickExtendsTheSelection) {
  stage.Click(box, Before(6));
  stage.Click(box, Before(10), shift_mask::kShift);
  EXPECT_EQ(box.SelText(), "rojo");
  stage.Click(box, Before(0), shift_mask::kShift);
  EXPECT_EQ(box.SelText(), "tinte ");
}

TEST_F(TextBoxMouseTest, ADoubleClickSelectsTheWord) {
  stage.DoubleClick(box, {Before(8).x + 5, 180});
  EXPECT_EQ(box.SelText(), "rojo");
  stage.DoubleClick(box, {2900, 180});
  EXPECT_EQ(box.SelText(), "cobre");
  box.Text("");
  stage.DoubleClick(box, {200, 180});
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxMouseTest, ASelectionMadeInGotFocusSurvivesTheClick) {
  box.OnGotFocus = [this] {
    box.SelStart(0);
    box.SelLength(static_cast<int>(Len(box.Text())));
  };
  stage.Press(box, Before(6));
  EXPECT_EQ(box.SelLength(), 16);
  stage.Drag(box, {Before(6).x + 10, 190});
  stage.Release(box, {Before(6).x + 10, 190});
  EXPECT_EQ(box.SelLength(), 16);
}

TEST_F(TextBoxMouseTest, ASelectionMadeInGotFocusSurvivesTheClickThoughItScrollsTheText) {
  box.Text(std::string(200, 'n'));
  box.OnGotFocus = [this] {
    box.SelStart(0);
    box.SelLength(200);
  };
  stage.Press(box, Before(3));
  stage.Drag(box, {Before(3).x + 10, 180});
  EXPECT_EQ(box.SelLength(), 200);
}

TEST_F(TextBoxMouseTest, DraggingAfterASelectionInGotFocusStartsAtThePress) {
  box.OnGotFocus = [this] {
    box.SelStart(0);
    box.SelLength(16);
  };
  stage.Press(box, Before(6));
  stage.Drag(box, Before(10));
  EXPECT_EQ(box.SelText(), "rojo");
}

TEST_F(TextBoxMouseTest, TheOtherMouseButtonKeepsTheSelection) {
  box.SelStart(0);
  box.SelLength(5);
  stage.form->MousePress(Stage::At(box, Before(10)), mouse_button::kRight, 0, false);
  stage.form->MouseRelease(Stage::At(box, Before(10)), mouse_button::kRight, 0);
  EXPECT_EQ(box.SelText(), "tinte");
}

TEST_F(TextBoxMouseTest, TheCaretStaysInsideTheBoxHoweverLongTheText) {
  box.SetFocus();
  box.Text("");
  for (int i = 0; i < 100; ++i) {
    stage.Type("n");
    EXPECT_GE(Caret().left, 15);
    EXPECT_LE(Caret().Right(), 3000 - 15);
  }
  stage.Key(key::kHome);
  EXPECT_EQ(Caret().left, 30);
  stage.Key(key::kEnd);
  for (int i = 0; i < 40; ++i) stage.Key(key::kBack);
  EXPECT_GT(Caret().left, 3000 - 60);  // no gap opens at the right end
  for (int i = 0; i < 50; ++i) stage.Key(key::kBack);
  EXPECT_NEAR(Caret().left, 30 + stage.host.TextWidth(box.Font().Spec(), "nnnnnnnnnn"), 1);
}

TEST_F(TextBoxMouseTest, AlignmentShiftsTextCaretAndClicks) {
  box.SetFocus();
  box.Text("ab");
  const double width = stage.host.TextWidth(box.Font().Spec(), "ab");
  box.Alignment(HorizontalAlign::kCenter);
  EXPECT_NEAR(Caret().left, (3000 - width) / 2, 30);
  stage.Click(box, {1500 - width, 180});
  EXPECT_EQ(box.SelStart(), 0);
  stage.Click(box, {1500 + width, 180});
  EXPECT_EQ(box.SelStart(), 2);
  box.Alignment(HorizontalAlign::kRight);
  EXPECT_NEAR(Caret().left, 3000 - 30, 30);
}

TEST_F(TextBoxMouseTest, OnlyTheFocusedBoxShowsItsSelectionAndACaret) {
  box.SelStart(6);
  box.SelLength(4);
  const Rgb highlight = stage.host.Resolve(system_color::kHighlight);
  const Point selected = Stage::At(box, {Before(8).x, 180});
  EXPECT_NE(stage.Painted().FillAt(selected), highlight);
  EXPECT_FALSE(box.CaretRectangle().has_value());
  box.SetFocus();
  EXPECT_EQ(stage.Painted().FillAt(selected), highlight);
  EXPECT_NE(stage.Painted().FillAt(Stage::At(box, {Before(5).x, 180})), highlight);
  EXPECT_TRUE(box.CaretRectangle().has_value());
}

TEST_F(TextBoxMouseTest, AFlatBoxHasABlackFrameAroundItsOwnColour) {
  box.BackColor(0xA5CACB);
  RecordingCanvas canvas;
  box.Paint(canvas);
  EXPECT_EQ(canvas.Operations()[0].color, RgbOf(0xA5CACB));
  EXPECT_EQ(Find(canvas, "frame").color, (Rgb{0, 0, 0}));
  EXPECT_EQ(Find(canvas, "frame").area, box.LocalBounds());
}

TEST_F(TextBoxMouseTest, ThePointerIsATextCursorOverTheBox) {
  stage.form->MouseMove(Stage::At(box, {100, 100}), 0, 0);
  EXPECT_EQ(stage.host.WindowOf(*stage.form)->LastCursor(), CursorShape::kText);
  stage.form->MouseMove({10000, 8000}, 0, 0);
  EXPECT_EQ(stage.host.WindowOf(*stage.form)->LastCursor(), CursorShape::kArrow);
}

}  // namespace
}  // namespace orvendal::testing
