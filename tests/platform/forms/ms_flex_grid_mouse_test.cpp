#include "tests/platform/forms/ms_flex_grid_fixture.h"

namespace orvendal {
namespace {

class GridMouseTest : public GridTest {
 protected:
  GridMouseTest() {
    Grid().OnMouseDown = [this](int, int, double, double) { log.push_back("down " + Cursor()); };
    Grid().OnMouseUp = [this](int, int, double, double) { log.push_back("up"); };
    Grid().OnClick = [this] { log.push_back("click " + Cursor()); };
    Grid().OnDblClick = [this] { log.push_back("double " + Cursor()); };
    Grid().OnGotFocus = [this] { log.push_back("focus"); };
  }
  std::string Selection() { return std::to_string(Grid().RowSel()) + "," + std::to_string(Grid().ColSel()); }
};

TEST_F(GridMouseTest, APressMovesTheCursorOnceBeforeMouseDown) {
  Click(MiddleOf(4, 3));
  EXPECT_EQ(TakeLog(), (Log{"leave 1,0", "enter 4,3", "change 4,3", "down 4,3", "focus", "up", "click 4,3"}));
}

TEST_F(GridMouseTest, APressOnTheCurrentCellMovesNothing) {
  Click(MiddleOf(1, 0));
  EXPECT_EQ(TakeLog(), (Log{"down 1,0", "focus", "up", "click 1,0"}));
}

TEST_F(GridMouseTest, APressOnTheEmptyAreaSelectsNothing) {
  Grid().Rows(4);
  Click(OnForm(600, 2000));
  EXPECT_EQ(TakeLog(), (Log{"down 1,0", "focus", "up", "click 1,0"}));
}

TEST_F(GridMouseTest, TheRightButtonSelectsNothing) {
  form->MousePress(MiddleOf(4, 3), mouse_button::kRight, 0, false);
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(GridMouseTest, APressOnATitleSelectsItsColumn) {
  Click(MiddleOf(0, 1));
  EXPECT_EQ(TakeLog(), (Log{"leave 1,0", "enter 1,1", "change 1,1", "down 1,1", "focus", "up", "click 1,1"}));
  EXPECT_EQ(Selection(), "30,1");
  Click(MiddleOf(0, 1));
  EXPECT_EQ(TakeLog(), (Log{"down 1,1", "up", "click 1,1"})) << "the same cell again";
  EXPECT_EQ(Selection(), "30,1");
  Grid().Col(1);
  EXPECT_EQ(Selection(), "1,1") << "any assignment ends the selection";
}

TEST_F(GridMouseTest, APressOnATitleWhenScrolledGoesToTheFirstLine) {
  Grid().TopRow(12);
  TakeLog();
  Press(MiddleOf(0, 3));
  EXPECT_EQ(Cursor(), "1,3");
}

TEST_F(GridMouseTest, APressOnATitleColumnSelectsItsRow) {
  Grid().FixedCols(1);
  Press(MiddleOf(3, 0));
  EXPECT_EQ(Cursor(), "3,1");
  EXPECT_EQ(Selection(), "3,3");
}

TEST_F(GridMouseTest, TheSecondPressOfADoubleClickDoesNotSelectAgain) {
  Click(MiddleOf(4, 1));
  // What the first click did moved the rows under the pointer.
  Grid().TopRow(5);
  Grid().Row(8);
  TakeLog();
  Press(OnForm(2000, 1400), true);
  Release(OnForm(2000, 1400));
  EXPECT_EQ(TakeLog(), (Log{"double 8,1", "up"}));
}

TEST_F(GridMouseTest, AHandlerThatSendsTheCursorElsewhereWins) {
  Grid().OnRowColChange = [&] {
    log.push_back("change " + Cursor());
    if (Grid().Row() > 2) Grid().Row(2);
  };
  Click(MiddleOf(9, 1));
  EXPECT_EQ(TakeLog(), (Log{"leave 1,0", "enter 9,1", "change 9,1", "leave 9,1", "enter 2,1", "change 2,1",
                            "down 2,1", "focus", "up", "click 2,1"}));
}

TEST_F(GridMouseTest, AHandlerThatLeavesATitlesColumnEndsItsSelection) {
  Grid().OnRowColChange = [&] { Grid().Row(2); };
  Press(MiddleOf(0, 1));
  EXPECT_EQ(Cursor(), "2,1");
  EXPECT_EQ(Selection(), "2,1");
}

TEST_F(GridMouseTest, MovingDuringTheSecondPressOfADoubleClickSelectsNothing) {
  Click(MiddleOf(2, 0));
  Press(MiddleOf(2, 0), true);
  Drag(MiddleOf(5, 1));
  EXPECT_EQ(Selection(), "2,0");
}

TEST_F(GridMouseTest, DraggingSelectsARangeWithoutCellEvents) {
  Press(MiddleOf(2, 0));
  TakeLog();
  Drag(MiddleOf(5, 1));
  EXPECT_EQ(Cursor(), "2,0");
  EXPECT_EQ(Selection(), "5,1");
  Drag(MiddleOf(2, 0));
  EXPECT_EQ(Selection(), "2,0") << "back on the first cell the range is that cell";
  Drag(MiddleOf(0, 3));
  EXPECT_EQ(Selection(), "1,3") << "titles are never in the range";
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(GridMouseTest, AShakingHandDoesNotSelect) {
  // The handler sends the cursor away from the cell under the pointer.
  Grid().OnRowColChange = [&] {
    if (Grid().Row() > 2) Grid().Row(2);
  };
  const Point place = MiddleOf(9, 1);
  Press(place);
  Drag({place.x + 20, place.y + 20});
  EXPECT_EQ(Selection(), "2,1");
  Drag({place.x + 100, place.y + 100});
  EXPECT_EQ(Selection(), "2,1") << "still the cell that was pressed";
}

TEST_F(GridMouseTest, DraggingBeyondTheEdgeScrolls) {
  Press(MiddleOf(9, 0));
  TakeLog();
  Drag(OnForm(600, GridForm::kHeight + 100));
  Drag(OnForm(600, GridForm::kHeight + 110));
  EXPECT_EQ(TakeLog(), (Log{"scroll 2", "scroll 3"}));
  EXPECT_EQ(Selection(), "12,0");
}

TEST_F(GridMouseTest, ADialogDuringThePressEndsTheDragging) {
  Grid().OnMouseDown = [&](int, int, double, double) { const ModalScope dialog(host); };
  Press(MiddleOf(3, 0));
  Drag(MiddleOf(6, 1));
  EXPECT_EQ(Selection(), "3,0");
}

TEST_F(GridMouseTest, ADisabledGridTakesNoPress) {
  Grid().Enabled(false);
  Click(MiddleOf(4, 1));
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(Cursor(), "1,0");
}

}  // namespace
}  // namespace orvendal
