#include "tests/platform/forms/ms_flex_grid_fixture.h"
#include "tests/support/error_of.h"

namespace orvendal {
namespace {

using testing_support::ErrorOf;

TEST_F(GridTest, AnAddedLineIsSplitAtItsTabs) {
  Grid().AddItem("100\tLaca\t\t3");
  const int row = GridForm::kRows;
  EXPECT_EQ(Grid().Rows(), row + 1);
  EXPECT_EQ(Grid().TextMatrix(row, 0), "100");
  EXPECT_EQ(Grid().TextMatrix(row, 1), "Laca");
  EXPECT_EQ(Grid().TextMatrix(row, 2), "");
  EXPECT_EQ(Grid().TextMatrix(row, 3), "3");
}

TEST_F(GridTest, MorePartsThanColumnsAreDropped) {
  Grid().AddItem("a\tb\tc\td\te\tf");
  EXPECT_EQ(Grid().TextMatrix(GridForm::kRows, 3), "d");
}

TEST_F(GridTest, AddingALineRaisesNothingAndKeepsTheCursor) {
  Grid().Row(30);
  TakeLog();
  Grid().AddItem("");
  EXPECT_EQ(Cursor(), "30,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, ALineCanBeInsertedBeforeAnother) {
  Grid().TextMatrix(1, 0, "one");
  Grid().TextMatrix(2, 0, "two");
  Grid().AddItem("new", 2);
  EXPECT_EQ(Grid().TextMatrix(1, 0), "one");
  EXPECT_EQ(Grid().TextMatrix(2, 0), "new");
  EXPECT_EQ(Grid().TextMatrix(3, 0), "two");
  EXPECT_EQ(ErrorOf([&] { Grid().AddItem("x", 0); }), 381);
  EXPECT_EQ(ErrorOf([&] { Grid().AddItem("x", Grid().Rows() + 1); }), 381);
}

TEST_F(GridTest, RemovingALineMovesTheOthersUpWithTheirColours) {
  for (int row : {1, 2, 3}) {
    Grid().Row(row);
    Grid().Text(std::to_string(row));
    Grid().CellBackColor(static_cast<ColorWord>(row * 16));
  }
  Grid().Row(1);
  TakeLog();
  Grid().RemoveItem(1);
  EXPECT_EQ(Grid().Rows(), GridForm::kRows - 1);
  EXPECT_EQ(Grid().TextMatrix(1, 0), "2");
  EXPECT_EQ(Grid().CellBackColorAt(1, 0), 32U);
  EXPECT_EQ(Grid().TextMatrix(2, 0), "3");
  EXPECT_EQ(Grid().CellBackColorAt(2, 0), 48U);
  EXPECT_EQ(Cursor(), "1,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, RemovingAboveTheCursorKeepsItsRowNumber) {
  Grid().Row(5);
  Grid().RemoveItem(2);
  EXPECT_EQ(Cursor(), "5,0");
}

TEST_F(GridTest, RemovingTheLastLineAndAddingOneLeavesTheCursorOnTheSameNumber) {
  Grid().Rows(13);
  Grid().Row(11);
  Grid().RemoveItem(11);
  Grid().AddItem("");
  EXPECT_EQ(Cursor(), "11,0");
}

TEST_F(GridTest, RemovingTheVeryLastRowSendsTheCursorUpSilently) {
  Grid().Row(30);
  TakeLog();
  Grid().RemoveItem(30);
  EXPECT_EQ(Cursor(), "29,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, ARowAppendedRightAfterTheVeryLastOneWasRemovedGivesTheCursorItsPlaceBack) {
  Grid().Row(30);
  TakeLog();
  Grid().RemoveItem(30);
  Grid().AddItem("");
  EXPECT_EQ(Cursor(), "30,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, ARowAppendedRightAfterARemovalGivesTheViewItsPlaceBack) {
  Grid().TopRow(GridForm::kRows);
  const int top = Grid().TopRow();
  TakeLog();
  Grid().RemoveItem(20);
  EXPECT_EQ(Grid().TopRow(), top - 1);
  Grid().AddItem("");
  EXPECT_EQ(Grid().TopRow(), top);
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, ARowAppendedAfterTheCursorMovedOnLeavesItThere) {
  Grid().Row(30);
  Grid().RemoveItem(30);
  Grid().Row(4);
  Grid().AddItem("");
  EXPECT_EQ(Cursor(), "4,0");
}

TEST_F(GridTest, ARowInsertedAfterARemovalGivesNothingBack) {
  Grid().Row(30);
  Grid().RemoveItem(30);
  Grid().AddItem("", 3);
  EXPECT_EQ(Cursor(), "29,0");
}

TEST_F(GridTest, TitlesAndTheOnlyLineCannotBeRemoved) {
  EXPECT_EQ(ErrorOf([&] { Grid().RemoveItem(0); }), 381);
  EXPECT_EQ(ErrorOf([&] { Grid().RemoveItem(GridForm::kRows); }), 381);
  Grid().Rows(2);
  EXPECT_EQ(ErrorOf([&] { Grid().RemoveItem(1); }), 30015);
  EXPECT_EQ(Grid().Rows(), 2);
}

TEST_F(GridTest, RowsThatGrowAreEmptyAndRowsThatGoAreForgotten) {
  Grid().TextMatrix(20, 1, "old");
  Grid().Row(20);
  Grid().CellBackColor(7);
  Grid().Rows(13);
  Grid().Rows(25);
  EXPECT_EQ(Grid().TextMatrix(20, 1), "");
  EXPECT_EQ(Grid().CellBackColorAt(20, 0), 0U);
}

TEST_F(GridTest, TitlesCannotOutnumberTheRows) {
  EXPECT_EQ(ErrorOf([&] { Grid().FixedRows(GridForm::kRows + 1); }), 380);
  EXPECT_EQ(ErrorOf([&] { Grid().FixedRows(-1); }), 380);
  EXPECT_EQ(ErrorOf([&] { Grid().FixedCols(5); }), 380);
  Grid().FixedCols(2);
  EXPECT_EQ(ErrorOf([&] { Grid().Cols(1); }), 381);
}

TEST_F(GridTest, TenThousandLinesHoldWhatTheyWereGiven) {
  constexpr int kLines = 10000;
  Grid().Cols(9);
  Grid().Rows(1);
  for (int line = 1; line <= kLines; ++line) {
    Grid().AddItem(std::to_string(line) + "\tLaca\t1\t2\t3\t4\t5\t6\t" + std::to_string(line));
    Grid().Row(line);
  }
  EXPECT_EQ(Grid().Rows(), kLines + 1);
  EXPECT_EQ(Grid().TextMatrix(1, 0), "1");
  EXPECT_EQ(Grid().TextMatrix(kLines, 8), "10000");
  EXPECT_EQ(log.size(), 3U * (kLines - 1)) << "one group of events for each move";
}

TEST_F(GridTest, AReloadForgetsCellsCursorAndColours) {
  Grid().TextMatrix(3, 1, "old");
  Grid().Row(3);
  Grid().CellBackColor(5);
  Grid().TopRow(8);
  form->Unload();
  form->Show();
  EXPECT_EQ(Grid().TextMatrix(3, 1), "");
  EXPECT_EQ(Grid().CellBackColorAt(3, 0), 0U);
  EXPECT_EQ(Cursor(), "1,0");
  EXPECT_EQ(Grid().TopRow(), 1);
}

}  // namespace
}  // namespace orvendal
