#include <gtest/gtest.h>

#include "platform/forms/label.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/picture_box.h"
#include "platform/forms/shape.h"
#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class FormPaintTest : public ::testing::Test {
 protected:
  FormPaintTest() {
    stage.Show();
    form().TakeDirtyRectangles();
  }
  StageForm& form() { return *stage.form; }
  std::vector<Rect> Dirty() { return form().TakeDirtyRectangles(); }
  RecordingCanvas PaintedIn(const Rect& area) {
    RecordingCanvas canvas;
    form().Paint(canvas, area);
    return canvas;
  }
  std::size_t PlaceOfText(const RecordingCanvas& canvas, const std::string& text) {
    const auto& all = canvas.Operations();
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (all[i].text == text) return i;
    }
    ADD_FAILURE() << text << " was not painted";
    return 0;
  }

  Stage stage;
  Label& first = stage.Add<Label>("First", {1000, 1000, 2000, 300});
  Label& second = stage.Add<Label>("Second", {1000, 1000, 2000, 300});
  PictureBox& panel = stage.Add<PictureBox>("Panel", {4000, 1000, 3000, 3000});
  Label& inside = stage.Add<Label>("Inside", {2500, 100, 2000, 300}, &panel);
  TextBox& box = stage.Add<TextBox>("Box", {1000, 2000, 2000, 300});
  PictureBox& top_bar = stage.Add<PictureBox>("TopBar", {0, 0, 100, 400});
  PictureBox& under_it = stage.Add<PictureBox>("UnderIt", {0, 0, 100, 300});
};

// Only what changed.

TEST_F(FormPaintTest, NothingChangedNothingWaits) {
  EXPECT_TRUE(Dirty().empty());
  first.ForeColor(first.ForeColor());
  first.Move(1000, 1000, 2000, 300);
  first.Caption("");
  EXPECT_TRUE(Dirty().empty());
}

TEST_F(FormPaintTest, AChangeAsksForItsOwnControlOnly) {
  first.ForeColor(0xFF);
  EXPECT_EQ(Dirty(), std::vector<Rect>{first.Bounds()});
  box.BackColor(0xFF);
  EXPECT_EQ(Dirty(), std::vector<Rect>{box.Bounds()});
}

TEST_F(FormPaintTest, SeveralChangesOfOneControlAskOnce) {
  first.ForeColor(0xFF);
  first.BackColor(0xFF00);
  first.Caption("x");
  EXPECT_EQ(Dirty().size(), 1U);
}

TEST_F(FormPaintTest, TakingForgets) {
  first.ForeColor(0xFF);
  Dirty();
  EXPECT_TRUE(Dirty().empty());
}

TEST_F(FormPaintTest, AMoveAsksForTheOldPlaceAndTheNew) {
  const Rect old = first.Bounds();
  first.Left(8000);
  EXPECT_EQ(Dirty(), (std::vector<Rect>{old, first.Bounds()}));
}

TEST_F(FormPaintTest, HidingAndShowingAskForThePlace) {
  first.Visible(false);
  EXPECT_EQ(Dirty(), std::vector<Rect>{first.Bounds()});
  first.ForeColor(0xFF);
  EXPECT_TRUE(Dirty().empty());
  first.Visible(true);
  EXPECT_EQ(Dirty(), std::vector<Rect>{first.Bounds()});
}

TEST_F(FormPaintTest, WhatAHiddenContainerHoldsAsksForNothing) {
  panel.Visible(false);
  Dirty();
  inside.Caption("x");
  EXPECT_TRUE(Dirty().empty());
}

TEST_F(FormPaintTest, WhatLiesOffTheFormAsksForNothing) {
  box.Move(20000, 20000, 2000, 300);
  Dirty();
  box.BackColor(0xFF);
  EXPECT_TRUE(Dirty().empty());
}

TEST_F(FormPaintTest, ManyPlacesAreJoined) {
  for (int i = 0; i < 100; ++i) {
    box.Move(i * 30, 5000 + i * 30, 10, 10);
  }
  const std::vector<Rect> dirty = Dirty();
  EXPECT_LE(dirty.size(), 12U);
  Rect all;
  for (const Rect& area : dirty) all = all.Union(area);
  EXPECT_TRUE(all.Contains({box.Left(), box.Top()}));
}

TEST_F(FormPaintTest, OneCellOfAGridAsksForThatCell) {
  MSFlexGrid& grid = stage.Add<MSFlexGrid>("Grid", {1000, 4000, 6000, 3000});
  form().Unload();
  stage.Show();
  grid.Rows(20);
  Dirty();
  grid.TextMatrix(3, 1, "7");
  double area = 0;
  for (const Rect& dirty : Dirty()) area += dirty.width * dirty.height;
  EXPECT_GT(area, 0);
  EXPECT_LE(area, grid.ColWidth(1) * grid.RowHeight(3) * 1.2);
  grid.TextMatrix(19, 1, "out of view");
  EXPECT_TRUE(Dirty().empty());
}

TEST_F(FormPaintTest, TheCellsOfARowAskForOneArea) {
  MSFlexGrid& grid = stage.Add<MSFlexGrid>("Grid", {1000, 4000, 6000, 3000});
  form().Unload();
  stage.Show();
  grid.Rows(20);
  grid.Cols(6);
  Dirty();
  for (int column = 1; column < 6; ++column) {
    grid.TextMatrix(2, column, "2");
    grid.TextMatrix(5, column, "5");
  }
  const std::vector<Rect> dirty = Dirty();
  ASSERT_EQ(dirty.size(), 2U);
  const Rect of_grid = grid.Bounds();
  for (std::size_t i = 0; i < 2; ++i) {
    Rect row = grid.CellRectangle(i == 0 ? 2 : 5, 1);
    for (int column = 2; column < 6; ++column) {
      row = row.Union(grid.CellRectangle(i == 0 ? 2 : 5, column));
    }
    EXPECT_EQ(dirty[i], row.Moved(of_grid.left, of_grid.top)) << i;
  }
}

TEST_F(FormPaintTest, PlacesThatOnlyTouchAtACornerStayTwo) {
  first.Move(1000, 5000, 300, 300);
  second.Move(1300, 5300, 300, 300);
  Dirty();
  first.ForeColor(0xFF);
  second.ForeColor(0xFF);
  EXPECT_EQ(Dirty(), (std::vector<Rect>{first.Bounds(), second.Bounds()}));
}

TEST_F(FormPaintTest, AFormThatDoesNotShowAsksForNothing) {
  form().Hide();
  first.ForeColor(0xFF);
  EXPECT_TRUE(Dirty().empty());
  form().Unload();
  first.ForeColor(0xFF00);
  EXPECT_TRUE(Dirty().empty());
}

TEST_F(FormPaintTest, RefreshPaintsAtOnce) {
  HeadlessWindow* window = stage.host.WindowOf(form());
  const int painted = window->TimesPainted();
  form().Refresh();
  EXPECT_EQ(window->TimesPainted(), painted + 1);
  form().Hide();
  form().Refresh();
  EXPECT_EQ(window->TimesPainted(), painted + 1);
}

TEST_F(FormPaintTest, RefreshOfAControlAsksForIt) {
  box.Refresh();
  EXPECT_EQ(Dirty(), std::vector<Rect>{box.Bounds()});
}

// What is painted, and over what.

TEST_F(FormPaintTest, OnlyWhatLiesInTheAreaIsPainted) {
  first.Caption("first");
  box.Text("box");
  const std::vector<std::string> texts = PaintedIn({0, 1900, 9000, 500}).Texts();
  EXPECT_EQ(texts, std::vector<std::string>{"box"});
}

TEST_F(FormPaintTest, OfLabelsTheOneMadeFirstLiesInFront) {
  first.Caption("first");
  second.Caption("second");
  const RecordingCanvas canvas = stage.Painted();
  EXPECT_LT(PlaceOfText(canvas, "second"), PlaceOfText(canvas, "first"));
}

TEST_F(FormPaintTest, WindowsLieOverLabelsWhicheverWasMadeFirst) {
  first.Caption("first");
  box.Text("box");
  box.Move(1000, 1000, 2000, 300);
  const RecordingCanvas canvas = stage.Painted();
  EXPECT_LT(PlaceOfText(canvas, "first"), PlaceOfText(canvas, "box"));
}

TEST_F(FormPaintTest, WhatAContainerHoldsIsCutToItsInside) {
  inside.BackColor(0x0000FF);
  const RecordingCanvas canvas = stage.Painted();
  bool found = false;
  for (const auto& operation : canvas.Operations()) {
    if (operation.color == Rgb{255, 0, 0}) {
      found = true;
      EXPECT_EQ(operation.area.left, 4000 + 15 * 2 + 2500);
      EXPECT_EQ(operation.area.Right(), 4000 + 3000 - 15 * 2);
    }
  }
  EXPECT_TRUE(found);
  EXPECT_EQ(form().ControlAt({7200, 1200}), nullptr);
}

TEST_F(FormPaintTest, TheFormsColourLiesUnderEverything) {
  form().BackColor(0x123456);
  EXPECT_EQ(stage.Painted().FillAt({14000, 8000}), (Rgb{0x56, 0x34, 0x12}));
  EXPECT_EQ(Dirty(), (std::vector<Rect>{{0, 0, 15000, 9000}}));
}

// Aligned controls.

TEST_F(FormPaintTest, AlignedControlsStandUnderOneAnotherOverTheFormsWidth) {
  top_bar.Align(AlignMode::kTop);
  under_it.Align(AlignMode::kTop);
  EXPECT_EQ(top_bar.Bounds(), (Rect{0, 0, 15000, 400}));
  EXPECT_EQ(under_it.Bounds(), (Rect{0, 400, 15000, 300}));
}

TEST_F(FormPaintTest, AnAlignedControlTakesOnlyTheHeightOfAMove) {
  top_bar.Align(AlignMode::kTop);
  under_it.Align(AlignMode::kTop);
  top_bar.Move(500, 600, 700, 900);
  EXPECT_EQ(top_bar.Bounds(), (Rect{0, 0, 15000, 900}));
  EXPECT_EQ(under_it.Bounds(), (Rect{0, 900, 15000, 300}));
  under_it.Left(77);
  under_it.Top(77);
  under_it.Width(77);
  EXPECT_EQ(under_it.Bounds(), (Rect{0, 900, 15000, 300}));
}

TEST_F(FormPaintTest, AlignedControlsFollowTheForm) {
  top_bar.Align(AlignMode::kTop);
  form().Width(12000);
  EXPECT_EQ(top_bar.Width(), 12000);
  stage.host.SetScreenTwips(20000, 13000);
  form().WindowState(WindowState::kMaximized);
  EXPECT_EQ(top_bar.Width(), 20000);
  form().WindowState(WindowState::kNormal);
  EXPECT_EQ(top_bar.Width(), 12000);
}

TEST_F(FormPaintTest, AHiddenAlignedControlGivesItsRoomToTheNext) {
  top_bar.Align(AlignMode::kTop);
  under_it.Align(AlignMode::kTop);
  top_bar.Visible(false);
  EXPECT_EQ(under_it.Top(), 0);
  top_bar.Visible(true);
  EXPECT_EQ(under_it.Top(), 400);
}

TEST_F(FormPaintTest, ControlsThatAreNotAlignedStay) {
  top_bar.Align(AlignMode::kTop);
  form().Width(12000);
  EXPECT_EQ(box.Bounds(), (Rect{1000, 2000, 2000, 300}));
}

// Controls in general.

TEST_F(FormPaintTest, SizesReadBackAsWrittenAndNoneIsNegative) {
  box.Move(1.5, -2.25, 3.75, 4.125);
  EXPECT_EQ(box.Left(), 1.5);
  EXPECT_EQ(box.Top(), -2.25);
  EXPECT_EQ(box.Width(), 3.75);
  EXPECT_EQ(box.Height(), 4.125);
  EXPECT_THROW(box.Width(-1), RuntimeError);
  EXPECT_THROW(box.Move(0, 0, 10, -1), RuntimeError);
  EXPECT_EQ(box.Width(), 3.75);
}

TEST_F(FormPaintTest, AMoveOfThreeLeavesTheHeight) {
  box.Move(10, 20, 30);
  EXPECT_EQ(box.Bounds(), (Rect{10, 20, 30, 300}));
}

TEST_F(FormPaintTest, FontsReadBackExactlyAndShapesHaveNone) {
  box.Font().Size(12.25);
  EXPECT_EQ(box.Font().Size(), 12.25);
  EXPECT_EQ(first.Font().Size(), 8.25);
  Shape& shape = stage.Add<Shape>("Shape", {0, 0, 10, 10});
  try {
    shape.Font();
    FAIL() << "a shape has a font";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 438);
  }
}

}  // namespace
}  // namespace orvendal::testing
