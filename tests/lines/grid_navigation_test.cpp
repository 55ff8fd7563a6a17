#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class GridNavigationTest : public testing::Test {
 protected:
  void Open(int lines) {
    screen.AddCounts(lines);
    screen.OpenWithStylist();
    Forget(screen);
  }
  FormDriver screen;
};

TEST_F(GridNavigationTest, TheUpArrowGoesToTheLineAbove) {
  Open(3);
  screen.DoubleClickCell(2, kDescription);
  screen.Key(key::kUp);
  EXPECT_EQ(CellAndEditor(screen), "1,1 [Producto 10]");
}

TEST_F(GridNavigationTest, TheUpArrowOnTheFirstLineSelectsTheTextAnew) {
  Open(3);
  screen.DoubleClickCell(1, kCode);
  screen.Type("abc");
  ASSERT_EQ(screen.form().TxtMSF.SelLength(), 0);
  screen.Key(key::kUp);
  EXPECT_EQ(Cursor(screen), "1,0");
  EXPECT_EQ(EditorText(screen), "abc");
  EXPECT_EQ(screen.form().TxtMSF.SelStart(), 0);
  EXPECT_EQ(screen.form().TxtMSF.SelLength(), 3);
}

TEST_F(GridNavigationTest, TheDownArrowGoesToTheLineBelow) {
  Open(3);
  screen.DoubleClickCell(1, kQuantity);
  screen.Key(key::kDown);
  EXPECT_EQ(CellAndEditor(screen), "2,3 [2]");
}

TEST_F(GridNavigationTest, TheDownArrowStaysOnALineWithoutACode) {
  Open(1);
  screen.DoubleClickCell(2, kCode);
  screen.Type("P1");
  screen.Key(key::kDown);
  EXPECT_EQ(CellAndEditor(screen), "2,0 [P1]");
}

TEST_F(GridNavigationTest, TheDownArrowOnTheLastGridRowAddsNothing) {
  Open(11);
  screen.DoubleClickCell(12, kCode);
  screen.Type("P1\n");
  ASSERT_EQ(Cursor(screen), "12,3");
  screen.Type("5");
  screen.Key(key::kDown);
  EXPECT_EQ(screen.form().MSFProductos.Rows(), 13);
  EXPECT_EQ(CellAndEditor(screen), "12,3 [5]");
}

TEST_F(GridNavigationTest, TheDownArrowFromTheLastQuantityLandsOnTheCodeOfTheFreeRow) {
  Open(2);
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("88");
  screen.Key(key::kDown);
  EXPECT_EQ(Cursor(screen), "3,0");
  EXPECT_EQ(screen.Cell(2, kQuantity), "88");
  EXPECT_EQ(EditorText(screen), "");
  EXPECT_EQ(screen.Line(3), Texts(9, ""));
}

TEST_F(GridNavigationTest, OnTheWayToTheFreeRowTheCursorPassesItsQuantity) {
  Open(2);
  screen.DoubleClickCell(2, kQuantity);
  Texts visited;
  MSFlexGrid& grid = screen.form().MSFProductos;
  const std::function<void()> leave = grid.OnLeaveCell;
  grid.OnLeaveCell = [&] {
    if (!screen.form().variables.PintandoFila) visited.push_back(Cursor(screen));
    leave();
  };
  screen.Key(key::kDown);
  EXPECT_EQ(visited, (Texts{"2,3", "3,3"}));
}

TEST_F(GridNavigationTest, TheDownArrowFromCodeOrDescriptionKeepsTheColumnOnTheFreeRow) {
  Open(2);
  screen.DoubleClickCell(2, kCode);
  screen.Key(key::kDown);
  EXPECT_EQ(Cursor(screen), "3,0");
  screen.DoubleClickCell(2, kDescription);
  screen.Key(key::kDown);
  EXPECT_EQ(Cursor(screen), "3,1");
}

TEST_F(GridNavigationTest, TheUpArrowFromTheQuantityOfAFreeLineShowsTheQuantityAbove) {
  Open(2);
  screen.DoubleClickCell(3, kQuantity);
  ASSERT_EQ(Cursor(screen), "3,3");
  screen.Key(key::kUp);
  EXPECT_EQ(CellAndEditor(screen), "2,3 [2]");
}

TEST_F(GridNavigationTest, ShiftAndCtrlWithAnArrowActAsTheArrowAlone) {
  Open(3);
  screen.DoubleClickCell(1, kCode);
  screen.Key(key::kDown, shift_mask::kShift);
  EXPECT_EQ(Cursor(screen), "2,0");
  screen.Key(key::kDown, shift_mask::kControl);
  EXPECT_EQ(Cursor(screen), "3,0");
  screen.Key(key::kUp, shift_mask::kShift | shift_mask::kControl);
  EXPECT_EQ(Cursor(screen), "2,0");
}

TEST_F(GridNavigationTest, LeftAndRightMoveTheCaretInsideTheText) {
  Open(2);
  screen.DoubleClickCell(1, kDescription);
  screen.Key(key::kRight);
  EXPECT_EQ(Cursor(screen), "1,1");
  EXPECT_EQ(screen.form().TxtMSF.SelStart(), 11);
  EXPECT_EQ(screen.form().TxtMSF.SelLength(), 0);
  screen.Key(key::kLeft);
  EXPECT_EQ(Cursor(screen), "1,1");
  EXPECT_EQ(screen.form().TxtMSF.SelStart(), 10);
}

TEST_F(GridNavigationTest, OtherKeysMoveNoLine) {
  Open(3);
  screen.DoubleClickCell(2, kCode);
  for (const int code : {key::kHome, key::kEnd, key::kPageUp, key::kPageDown, key::kInsert, key::kF12})
    screen.Key(code);
  EXPECT_EQ(Cursor(screen), "2,0");
}

TEST_F(GridNavigationTest, TheArrowsTakeTheirKeyFromTheEditor) {
  Open(3);
  screen.DoubleClickCell(2, kCode);
  for (const int code : {key::kUp, key::kDown}) {
    int key_code = code;
    screen.form().TxtMSF_KeyDown(key_code, 0);
    EXPECT_EQ(key_code, 0);
  }
  int key_code = key::kLeft;
  screen.form().TxtMSF_KeyDown(key_code, 0);
  EXPECT_EQ(key_code, key::kLeft);
}

TEST_F(GridNavigationTest, WithTheEditorClosedTheGridsOwnArrowsWork) {
  Open(3);
  screen.ClickCell(1, kQuantity);
  screen.Key(key::kDown);
  EXPECT_EQ(Cursor(screen), "2,3");
  screen.Key(key::kLeft);  // the grid itself does not pass over the previous quantity
  EXPECT_EQ(Cursor(screen), "2,2");
  screen.Key(key::kUp);
  EXPECT_EQ(Cursor(screen), "1,2");
  EXPECT_FALSE(EditorIsOpen(screen));
}

TEST_F(GridNavigationTest, NeitherArrowNorEnterAssignsTheTopRow) {
  Open(3);
  const int top = screen.form().MSFProductos.TopRow();
  screen.DoubleClickCell(1, kQuantity);
  screen.Key(key::kDown);
  screen.Enter();
  screen.Key(key::kUp);
  EXPECT_EQ(screen.form().MSFProductos.TopRow(), top);
}

}  // namespace
}  // namespace orvendal
