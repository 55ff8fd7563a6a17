#include "tests/platform/forms/ms_flex_grid_fixture.h"

namespace orvendal {
namespace {

class GridKeysTest : public GridTest {
 protected:
  GridKeysTest() {
    Grid().SetFocus();
    TakeLog();
  }
  std::string Selection() { return std::to_string(Grid().RowSel()) + "," + std::to_string(Grid().ColSel()); }
};

TEST_F(GridKeysTest, AnArrowMovesOneCellWithOnePairOfEvents) {
  Key(key::kDown);
  EXPECT_EQ(TakeLog(), (Log{"leave 1,0", "enter 2,0", "change 2,0"}));
  Key(key::kRight);
  EXPECT_EQ(TakeLog(), (Log{"leave 2,0", "enter 2,1", "change 2,1"}));
  Key(key::kUp);
  EXPECT_EQ(TakeLog(), (Log{"leave 2,1", "enter 1,1", "change 1,1"}));
  Key(key::kLeft);
  EXPECT_EQ(TakeLog(), (Log{"leave 1,1", "enter 1,0", "change 1,0"}));
}

TEST_F(GridKeysTest, AnArrowAtTheEdgeDoesNothing) {
  Key(key::kUp);
  Key(key::kLeft);
  EXPECT_EQ(TakeLog(), Log{}) << "the title is no place for the user";
  Grid().Row(30);
  Grid().Col(3);
  TakeLog();
  Key(key::kDown);
  Key(key::kRight);
  EXPECT_EQ(Cursor(), "30,3");
}

TEST_F(GridKeysTest, ArrowsPassOverHiddenColumns) {
  Grid().Col(1);
  Key(key::kRight);
  EXPECT_EQ(Cursor(), "1,3");
  Key(key::kLeft);
  EXPECT_EQ(Cursor(), "1,1");
}

TEST_F(GridKeysTest, ArrowsStayOnTheLastVisibleColumn) {
  Grid().ColWidth(3, 0);
  Grid().Col(1);
  Key(key::kRight);
  EXPECT_EQ(Cursor(), "1,1");
}

TEST_F(GridKeysTest, TheViewFollowsTheCursorAfterItsEvents) {
  Grid().Row(10);
  TakeLog();
  Key(key::kDown);
  EXPECT_EQ(TakeLog(), (Log{"leave 10,0", "enter 11,0", "change 11,0", "scroll 2"}));
}

TEST_F(GridKeysTest, PageKeysMoveByWhatShows) {
  Key(key::kPageDown);
  EXPECT_EQ(Cursor(), "11,0");
  EXPECT_EQ(Grid().TopRow(), 2);
  Key(key::kPageDown);
  Key(key::kPageDown);
  EXPECT_EQ(Cursor(), "30,0");
  EXPECT_EQ(Grid().TopRow(), 21);
  Key(key::kPageUp);
  EXPECT_EQ(Cursor(), "20,0");
  EXPECT_EQ(Grid().TopRow(), 20);
  Key(key::kPageUp);
  Key(key::kPageUp);
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(GridKeysTest, HomeAndEndGoToTheEndsOfTheRow) {
  Grid().Row(5);
  TakeLog();
  Key(key::kEnd);
  EXPECT_EQ(TakeLog(), (Log{"leave 5,0", "enter 5,3", "change 5,3"}));
  Key(key::kHome);
  EXPECT_EQ(TakeLog(), (Log{"leave 5,3", "enter 5,0", "change 5,0"}));
}

TEST_F(GridKeysTest, WithControlTheyGoToTheCornersInOneMove) {
  Key(key::kEnd, shift_mask::kControl);
  EXPECT_EQ(TakeLog(), (Log{"leave 1,0", "enter 30,3", "change 30,3", "scroll 21"}));
  Key(key::kHome, shift_mask::kControl);
  EXPECT_EQ(TakeLog(), (Log{"leave 30,3", "enter 1,0", "change 1,0", "scroll 1"}));
}

TEST_F(GridKeysTest, ShiftExtendsTheRangeWithoutCellEvents) {
  Grid().Row(3);
  TakeLog();
  Key(key::kDown, shift_mask::kShift);
  Key(key::kDown, shift_mask::kShift);
  Key(key::kRight, shift_mask::kShift);
  EXPECT_EQ(Cursor(), "3,0");
  EXPECT_EQ(Selection(), "5,1");
  EXPECT_EQ(TakeLog(), Log{});
  Key(key::kPageDown, shift_mask::kShift);
  EXPECT_EQ(Selection(), "15,1");
  EXPECT_EQ(TakeLog(), Log{"scroll 6"}) << "the far end is seen";
  Key(key::kUp);
  EXPECT_EQ(Cursor(), "2,0");
  EXPECT_EQ(Selection(), "2,0");
}

TEST_F(GridKeysTest, FromATitleCodeChoseTheArrowGoesToTheLines) {
  Grid().Row(0);
  Key(key::kUp);
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(GridKeysTest, EnterAndCharactersDoNothing) {
  Grid().TextMatrix(1, 0, "kept");
  std::vector<int> characters;
  Grid().OnKeyPress = [&](int& ascii) { characters.push_back(ascii); };
  Key(key::kReturn);
  form->Character(U'\r');
  Key('A');
  form->Character(U'a');
  EXPECT_EQ(characters, (std::vector<int>{13, 'a'}));
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(Grid().Text(), "kept");
}

TEST_F(GridKeysTest, AKeyThatAHandlerTookDoesNotMove) {
  Grid().OnKeyDown = [](int& code, int) { code = 0; };
  Key(key::kDown);
  EXPECT_EQ(Cursor(), "1,0");
}

TEST_F(GridKeysTest, AFormClosedWhileLeavingEndsTheKey) {
  Grid().OnLeaveCell = [&] {
    log.push_back("leave");
    form->Unload();
  };
  Grid().TopRow(15);
  TakeLog();
  Key(key::kEnd, shift_mask::kControl);
  EXPECT_EQ(TakeLog(), Log{"leave"}) << "no scrolling after it";
  EXPECT_FALSE(form->IsLoaded());
}

}  // namespace
}  // namespace orvendal
