#include "tests/platform/forms/ms_flex_grid_fixture.h"

namespace orvendal {
namespace {

Rect BarAtRight() {
  return {GridForm::kWidth - 270, 30, 240, GridForm::kHeight - 60};
}

TEST_F(GridTest, TenLinesShowBelowTheTitle) {
  EXPECT_EQ(Grid().CellRectangle(0, 0), (Rect{30, 30, 1500, 300}));
  EXPECT_EQ(Grid().CellRectangle(1, 1), (Rect{1530, 330, 3000, 300}));
  EXPECT_EQ(Grid().CellRectangle(10, 3), (Rect{4530, 3030, 1500, 300}));
  EXPECT_TRUE(Grid().CellRectangle(11, 0).IsEmpty());
  EXPECT_TRUE(Grid().CellRectangle(1, 2).IsEmpty()) << "a column of width 0";
}

TEST_F(GridTest, ColumnsThatLeaveThreeHundredTwipsNeedNoHorizontalBar) {
  const Point below{600, GridForm::kHeight - 60};
  EXPECT_TRUE(Grid().RaisesClick(below));
  Grid().ColWidth(3, 1515);
  EXPECT_FALSE(Grid().RaisesClick(below)) << "one pixel more calls for the bar";
}

TEST_F(GridTest, AVerticalBarShowsOnlyWhenRowsDoNotFit) {
  const Point right{BarAtRight().left + 100, 600};
  EXPECT_FALSE(Grid().RaisesClick(right));
  Grid().Rows(11);
  EXPECT_TRUE(Grid().RaisesClick(right));
  Grid().AddItem("");
  EXPECT_FALSE(Grid().RaisesClick(right));
}

TEST_F(GridTest, ARowThatShowsInPartIsVisible) {
  Grid().Height(GridForm::kHeight + 45);
  EXPECT_TRUE(Grid().RowIsVisible(11));
  EXPECT_EQ(Grid().CellRectangle(11, 0).height, 45);
  EXPECT_FALSE(Grid().RowIsVisible(12));
}

TEST_F(GridTest, TitlesAreAlwaysVisible) {
  Grid().TopRow(15);
  EXPECT_TRUE(Grid().RowIsVisible(0));
  EXPECT_FALSE(Grid().RowIsVisible(14));
  EXPECT_TRUE(Grid().RowIsVisible(15));
  EXPECT_TRUE(Grid().RowIsVisible(24));
  EXPECT_FALSE(Grid().RowIsVisible(25));
}

TEST_F(GridTest, TopRowStopsWhereTheLastLineIsSeen) {
  Grid().TopRow(29);
  EXPECT_EQ(Grid().TopRow(), 21);
  EXPECT_EQ(TakeLog(), Log{"scroll 21"});
  Grid().TopRow(30);
  EXPECT_EQ(TakeLog(), Log{}) << "the view did not move";
  Grid().TopRow(-4);
  EXPECT_EQ(Grid().TopRow(), 1);
}

TEST_F(GridTest, CuttingRowsPullsTheViewBackSilently) {
  Grid().TopRow(21);
  TakeLog();
  Grid().Rows(13);
  EXPECT_EQ(Grid().TopRow(), 3);
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, ReadingThePlaceOfTheCellBringsItIntoView) {
  Grid().Row(25);
  TakeLog();
  EXPECT_EQ(Grid().CellTop(), 3030);
  EXPECT_EQ(Grid().TopRow(), 16);
  EXPECT_EQ(TakeLog(), Log{"scroll 16"});
  EXPECT_EQ(Grid().CellTop(), 3030);
  EXPECT_EQ(TakeLog(), Log{});

  Grid().Row(4);
  TakeLog();
  EXPECT_EQ(Grid().CellLeft(), 30);
  EXPECT_EQ(Grid().TopRow(), 4);
  EXPECT_EQ(TakeLog(), Log{"scroll 4"});
}

TEST_F(GridTest, ACutRowIsBroughtWhollyIntoView) {
  Grid().Height(GridForm::kHeight + 45);
  Grid().Row(11);
  EXPECT_EQ(Grid().CellTop(), 3030);
  EXPECT_EQ(Grid().TopRow(), 2);
}

TEST_F(GridTest, InsideScrollThePlaceIsOnlyTold) {
  Grid().Row(5);
  std::vector<double> tops;
  Grid().OnScroll = [&] { tops.push_back(Grid().CellTop()); };
  Grid().TopRow(11);
  EXPECT_EQ(Grid().TopRow(), 11);
  EXPECT_EQ(tops, (std::vector<double>{330 - 6 * 300.0}));
  EXPECT_EQ(Grid().CellTop(), 330) << "outside it the cell is brought back";
  EXPECT_EQ(Grid().TopRow(), 5);
}

TEST_F(GridTest, AnErrorInsideScrollDoesNotStopLaterReadingsFromScrolling) {
  Grid().OnScroll = [] { throw RuntimeError(5); };
  EXPECT_THROW(Grid().TopRow(11), RuntimeError);
  Grid().OnScroll = nullptr;
  Grid().Row(2);
  EXPECT_EQ(Grid().CellTop(), 330);
}

TEST_F(GridTest, AHiddenColumnHasNoWidthAndDoesNotScroll) {
  Grid().Col(2);
  EXPECT_EQ(Grid().CellWidth(), 0);
  EXPECT_EQ(Grid().CellLeft(), 4530);
  Grid().ColWidth(1, 6000);
  EXPECT_EQ(Grid().CellLeft(), 7530) << "beyond the edge, and nothing to bring into view";
  EXPECT_EQ(Grid().LeftCol(), 0);
  Grid().ColWidth(1, 3000);
  Grid().Col(1);
  EXPECT_EQ(Grid().CellWidth(), 3000);
  EXPECT_EQ(Grid().CellHeight(), 300);
}

TEST_F(GridTest, AColumnBeyondTheEdgeIsBroughtIntoView) {
  Grid().ColWidth(1, 6000);
  Grid().Col(3);
  TakeLog();
  EXPECT_EQ(Grid().CellLeft(), 30);
  EXPECT_EQ(Grid().LeftCol(), 2);
  EXPECT_EQ(TakeLog(), Log{"scroll 1"});
  Grid().Col(0);
  EXPECT_EQ(Grid().CellLeft(), 30);
  EXPECT_EQ(Grid().LeftCol(), 0);
  Grid().LeftCol(9);
  EXPECT_EQ(Grid().LeftCol(), 2);
  Grid().ColWidth(1, 3000);
  EXPECT_EQ(Grid().LeftCol(), 0) << "once all fits there is nothing to scroll";
}

TEST_F(GridTest, TheWheelScrollsThreeRowsANotchAndLeavesTheCursor) {
  form->MouseWheel(MiddleOf(5, 1), 3);
  EXPECT_EQ(TakeLog(), Log{"scroll 4"});
  form->MouseWheel(MiddleOf(5, 1), -6);
  EXPECT_EQ(TakeLog(), Log{"scroll 1"});
  EXPECT_EQ(Cursor(), "1,0");
  for (int turn = 0; turn < 4; ++turn) form->MouseWheel(MiddleOf(5, 1), 0.25);
  EXPECT_EQ(TakeLog(), Log{"scroll 2"}) << "small turns add up";
}

TEST_F(GridTest, TwelveQuarterLinesOfATouchpadAreOneNotch) {
  for (int turn = 0; turn < 12; ++turn) form->MouseWheel(MiddleOf(5, 1), 0.25);
  EXPECT_EQ(TakeLog(), (Log{"scroll 2", "scroll 3", "scroll 4"}));
  for (int turn = 0; turn < 3; ++turn) form->MouseWheel(MiddleOf(5, 1), 0.25);
  form->MouseWheel(MiddleOf(5, 1), -1);
  EXPECT_EQ(TakeLog(), Log{"scroll 3"}) << "a turn back begins anew";
}

TEST_F(GridTest, TheArrowsOfTheBarScrollByOneRowAndTouchNoCell) {
  const Rect bar = BarAtRight();
  int clicks = 0;
  Grid().OnClick = [&] { ++clicks; };
  Grid().OnDblClick = [&] { ++clicks; };
  const Point down = OnForm(bar.left + 120, bar.Bottom() - 100);
  Click(down);
  EXPECT_EQ(TakeLog(), Log{"scroll 2"});
  Press(down, true);
  Release(down);
  EXPECT_EQ(TakeLog(), Log{"scroll 3"}) << "quick presses are as many steps";
  Click(OnForm(bar.left + 120, bar.top + 100));
  EXPECT_EQ(TakeLog(), Log{"scroll 2"});
  EXPECT_EQ(Cursor(), "1,0");
  EXPECT_EQ(clicks, 0);
}

TEST_F(GridTest, ThePressOnABarLeavesTheFocusWhereItIs) {
  form->other.SetFocus();
  const Rect bar = BarAtRight();
  Click(OnForm(bar.left + 120, bar.Bottom() - 100));
  EXPECT_TRUE(form->other.HasFocus());
}

TEST_F(GridTest, TheTrackOfTheBarScrollsByAPage) {
  const Rect bar = BarAtRight();
  Click(OnForm(bar.left + 120, bar.Bottom() - 300));
  EXPECT_EQ(TakeLog(), Log{"scroll 11"});
  Click(OnForm(bar.left + 120, bar.top + 260));
  EXPECT_EQ(TakeLog(), Log{"scroll 1"});
}

TEST_F(GridTest, TheThumbIsDraggedToAnyRowAndBack) {
  const Rect bar = BarAtRight();
  const double x = bar.left + 120;
  Press(OnForm(x, bar.top + 300));
  Drag(OnForm(x, bar.top + 300 + 940));
  EXPECT_EQ(TakeLog(), Log{"scroll 11"}) << "half of the way is half of the lines";
  Drag(OnForm(x, 20000));
  EXPECT_EQ(TakeLog(), Log{"scroll 21"});
  Drag(OnForm(x, -500));
  EXPECT_EQ(TakeLog(), Log{"scroll 1"});
  Release(OnForm(x, -500));
  Drag(OnForm(x, 2000));
  EXPECT_EQ(TakeLog(), Log{}) << "released";
}

TEST_F(GridTest, TheBarBelowScrollsColumns) {
  Grid().ColWidth(1, 6000);
  const double y = GridForm::kHeight - 150;
  Click(OnForm(GridForm::kWidth - 300, y));
  EXPECT_EQ(Grid().LeftCol(), 1);
  Click(OnForm(100, y));
  EXPECT_EQ(Grid().LeftCol(), 0);
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(GridTest, RowsAreHighEnoughForTheirFont) {
  Grid().RowHeightMin(0);
  EXPECT_EQ(Grid().RowHeight(1), 240);
  Grid().Font().Size(20);
  EXPECT_GE(Grid().RowHeight(1), host.LineHeight(Grid().Font().Spec()));
  Grid().RowHeightMin(900);
  EXPECT_EQ(Grid().RowHeight(0), 900);
  EXPECT_EQ(Grid().RowHeightMin(), 900);
}

TEST_F(GridTest, APlaceTellsItsCell) {
  int row = -1;
  int column = -1;
  EXPECT_TRUE(Grid().CellAt({1600, 640}, row, column));
  EXPECT_EQ(row, 2);
  EXPECT_EQ(column, 1);
  EXPECT_TRUE(Grid().CellAt({4600, 100}, row, column));
  EXPECT_EQ(row, 0);
  EXPECT_EQ(column, 3) << "a hidden column takes no room";
  Grid().TopRow(9);
  EXPECT_TRUE(Grid().CellAt({1600, 640}, row, column));
  EXPECT_EQ(row, 10);
  EXPECT_FALSE(Grid().CellAt({10, 640}, row, column)) << "border";
  EXPECT_FALSE(Grid().CellAt({BarAtRight().left + 1, 640}, row, column)) << "bar";
  Grid().Rows(4);
  EXPECT_FALSE(Grid().CellAt({1600, 1500}, row, column)) << "empty area";
}

}  // namespace
}  // namespace orvendal
