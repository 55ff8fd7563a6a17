#include "tests/platform/forms/ms_flex_grid_fixture.h"
#include "tests/support/error_of.h"

namespace orvendal {
namespace {

using testing_support::ErrorOf;

TEST_F(GridTest, ANewGridHasOneTitleRowAndOneTitleColumn) {
  const MSFlexGrid& grid = form->other;
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.Cols(), 2);
  EXPECT_EQ(grid.FixedRows(), 1);
  EXPECT_EQ(grid.FixedCols(), 1);
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(grid.Col(), 1);
}

TEST_F(GridTest, ThePristineCursorFollowsTheTitles) {
  EXPECT_EQ(Cursor(), "1,0");
  EXPECT_EQ(TakeLog(), Log{});
  Grid().FixedRows(2);
  EXPECT_EQ(Cursor(), "2,0");
  Grid().Row(5);
  TakeLog();
  Grid().FixedRows(1);
  EXPECT_EQ(Cursor(), "5,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, AssigningRowLeavesMovesEntersAndTells) {
  Grid().Row(4);
  EXPECT_EQ(TakeLog(), (Log{"leave 1,0", "enter 4,0", "change 4,0"}));
}

TEST_F(GridTest, AssigningColLeavesMovesEntersAndTells) {
  Grid().Col(3);
  EXPECT_EQ(TakeLog(), (Log{"leave 1,0", "enter 1,3", "change 1,3"}));
}

TEST_F(GridTest, AssigningTheSameValueRaisesNothing) {
  Grid().Row(1);
  Grid().Col(0);
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, AssigningDoesNotScroll) {
  Grid().Row(25);
  EXPECT_EQ(Grid().TopRow(), 1);
  EXPECT_FALSE(Grid().RowIsVisible(25));
}

TEST_F(GridTest, CodeMayPutTheCursorOnATitle) {
  Grid().Row(0);
  EXPECT_EQ(Cursor(), "0,0");
}

TEST_F(GridTest, PlacesOutsideTheGridAreErrors) {
  EXPECT_EQ(ErrorOf([&] { Grid().Row(-1); }), 30009);
  EXPECT_EQ(ErrorOf([&] { Grid().Row(GridForm::kRows); }), 30009);
  EXPECT_EQ(ErrorOf([&] { Grid().Col(-1); }), 30010);
  EXPECT_EQ(ErrorOf([&] { Grid().Col(4); }), 30010);
  EXPECT_EQ(ErrorOf([&] { Grid().TextMatrix(GridForm::kRows, 0); }), 381);
  EXPECT_EQ(ErrorOf([&] { Grid().TextMatrix(1, 4, "x"); }), 381);
  EXPECT_EQ(ErrorOf([&] { Grid().TextMatrix(1, -1, "x"); }), 381);
  EXPECT_EQ(ErrorOf([&] { Grid().ColWidth(4); }), 381);
  EXPECT_EQ(ErrorOf([&] { Grid().ColAlignment(0, 10); }), 380);
  EXPECT_EQ(Cursor(), "1,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, AHandlerThatMovesTheCursorRunsToItsEndFirst) {
  bool sent_back = false;
  Grid().OnRowColChange = [&] {
    log.push_back("change " + Cursor());
    if (!sent_back) {
      sent_back = true;
      Grid().Row(2);
    }
    log.push_back("done " + Cursor());
  };
  Grid().Row(9);
  EXPECT_EQ(TakeLog(), (Log{"leave 1,0", "enter 9,0", "change 9,0", "leave 9,0", "enter 2,0", "change 2,0",
                            "done 2,0", "done 2,0"}));
}

TEST_F(GridTest, WalkingTheColumnsWhileLeavingDoesNotDisturbTheMove) {
  bool painting = false;
  Grid().OnEnterCell = nullptr;
  Grid().OnLeaveCell = [&] {
    if (painting) return;
    log.push_back("leave " + Cursor());
    painting = true;
    const int kept = Grid().Col();
    for (int column = 0; column < Grid().Cols(); ++column) {
      Grid().Col(column);
      Grid().CellBackColor(0xD3E8E9);
    }
    Grid().Col(kept);
    painting = false;
  };
  Grid().OnRowColChange = [&] {
    if (!painting) log.push_back("change " + Cursor());
  };
  Grid().Col(1);
  TakeLog();
  Grid().Row(6);
  EXPECT_EQ(TakeLog(), (Log{"leave 1,1", "change 6,1"}));
  for (int column = 0; column < Grid().Cols(); ++column) {
    EXPECT_EQ(Grid().CellBackColorAt(1, column), 0xD3E8E9U);
    EXPECT_EQ(Grid().CellBackColorAt(6, column), 0U);
  }
}

TEST_F(GridTest, AnErrorWhileLeavingKeepsTheCursor) {
  Grid().OnLeaveCell = [] { throw RuntimeError(5); };
  EXPECT_EQ(ErrorOf([&] { Grid().Row(3); }), 5);
  EXPECT_EQ(Cursor(), "1,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, ARowTakenAwayWhileItIsEnteredIsNotEntered) {
  Grid().OnLeaveCell = [&] { Grid().Rows(5); };
  Grid().Row(20);
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(GridTest, ReloadingTheFormWhileLeavingEndsTheMove) {
  const std::shared_ptr<GridForm> kept = form;
  Grid().OnLeaveCell = [&] {
    log.push_back("leave " + Cursor());
    kept->Unload();
    kept->Show();
  };
  Click(MiddleOf(3, 1));
  EXPECT_EQ(TakeLog(), Log{"leave 1,0"});
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(GridTest, UnloadingTheFormWhileLeavingEndsTheMove) {
  Grid().OnLeaveCell = [&] {
    log.push_back("leave " + Cursor());
    form->Unload();
  };
  Click(MiddleOf(3, 1));
  EXPECT_EQ(TakeLog(), Log{"leave 1,0"});
}

TEST_F(GridTest, CuttingRowsBelowTheCursorTakesItToTheLastRowSilently) {
  Grid().Row(20);
  TakeLog();
  Grid().Rows(13);
  EXPECT_EQ(Cursor(), "12,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, CuttingColumnsTakesTheCursorToTheLastColumnSilently) {
  Grid().Col(3);
  Grid().TextMatrix(1, 3, "gone");
  TakeLog();
  Grid().Cols(2);
  EXPECT_EQ(Cursor(), "1,1");
  EXPECT_EQ(TakeLog(), Log{});
  Grid().Cols(4);
  EXPECT_EQ(Grid().TextMatrix(1, 3), "");
}

TEST_F(GridTest, AGridOfTitlesOnlyHasNoCurrentCellAndGrowsToOne) {
  Grid().Row(7);
  TakeLog();
  Grid().Rows(1);
  EXPECT_EQ(Grid().Rows(), 1);
  EXPECT_EQ(Grid().Row(), 1);
  EXPECT_EQ(ErrorOf([&] { Grid().Text(); }), 381);
  EXPECT_EQ(ErrorOf([&] { Grid().CellBackColor(1); }), 381);
  EXPECT_EQ(ErrorOf([&] { Grid().Rows(0); }), 381);
  Key(key::kDown);
  Click(OnForm(600, 450));
  EXPECT_EQ(TakeLog(), Log{});

  Grid().AddItem("first");
  EXPECT_EQ(Cursor(), "1,0");
  EXPECT_EQ(Grid().Text(), "first");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, TextIsThatOfTheCurrentCell) {
  Grid().Row(3);
  Grid().Col(1);
  Grid().Text("Champú");
  EXPECT_EQ(Grid().TextMatrix(3, 1), "Champú");
  EXPECT_EQ(Grid().Text(), "Champú");
}

TEST_F(GridTest, WritingAnyCellRaisesNothingAndKeepsTheCursor) {
  Grid().TextMatrix(9, 3, "5");
  EXPECT_EQ(Cursor(), "1,0");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridTest, ACellCopiedIntoItsOwnRowKeepsItsText) {
  Grid().TextMatrix(1, 0, "a text that is too long to be stored inside the string object itself");
  Grid().Cols(40);
  Grid().TextMatrix(1, 39, Grid().TextMatrix(1, 0));
  EXPECT_EQ(Grid().TextMatrix(1, 39), "a text that is too long to be stored inside the string object itself");
  Grid().AddItem(Grid().TextMatrix(1, 0));
  EXPECT_EQ(Grid().TextMatrix(GridForm::kRows, 0), Grid().TextMatrix(1, 0));
}

TEST_F(GridTest, ColoursBelongToTheCurrentCellAlone) {
  Grid().Row(2);
  Grid().CellBackColor(0xE1C0B3);
  Grid().CellForeColor(0xFFFFFF);
  EXPECT_EQ(Grid().CellBackColor(), 0xE1C0B3U);
  EXPECT_EQ(Grid().CellForeColor(), 0xFFFFFFU);
  EXPECT_EQ(Grid().CellBackColorAt(2, 1), 0U);
  EXPECT_EQ(Grid().CellBackColorAt(1, 0), 0U);
}

}  // namespace
}  // namespace orvendal
