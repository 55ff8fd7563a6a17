#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class GridCursorTest : public testing::Test {
 protected:
  GridCursorTest() {
    screen.AddCounts(3);
    screen.OpenWithStylist();
    Forget(screen);
  }
  FormDriver screen;
};

TEST_F(GridCursorTest, AClickOnTheCodeStaysThere) {
  screen.ClickCell(2, kCode);
  EXPECT_EQ(Cursor(screen), "2,0");
}

TEST_F(GridCursorTest, AClickOnTheDescriptionStaysThere) {
  screen.ClickCell(2, kDescription);
  EXPECT_EQ(Cursor(screen), "2,1");
}

TEST_F(GridCursorTest, AClickOnThePreviousQuantityLandsOnTheNewOne) {
  screen.ClickCell(2, kPreviousQuantity);
  EXPECT_EQ(Cursor(screen), "2,3");
}

TEST_F(GridCursorTest, AClickOnTheStylistLandsOnTheNewQuantity) {
  screen.ClickCell(3, kStylist);
  EXPECT_EQ(Cursor(screen), "3,3");
}

TEST_F(GridCursorTest, AClickOnAFreeRowFarBelowLandsOnTheFirstFreeOne) {
  screen.ClickCell(10, kCode);
  EXPECT_EQ(Cursor(screen), "4,0");
}

TEST_F(GridCursorTest, AClickOnTheFirstFreeRowStaysThere) {
  screen.ClickCell(4, kDescription);
  EXPECT_EQ(Cursor(screen), "4,1");
}

TEST_F(GridCursorTest, ADoubleClickOnAFreeRowFarBelowOpensTheEditorOnTheFirstFreeOne) {
  screen.DoubleClickCell(9, kDescription);
  EXPECT_EQ(Cursor(screen), "4,1");
  EXPECT_TRUE(EditorIsOpen(screen));
  const Rect cell = screen.form().MSFProductos.CellRectangle(4, kDescription);
  EXPECT_EQ(screen.form().TxtMSF.Top(), 2400 + cell.top - 10);
}

TEST_F(GridCursorTest, AClickFarBelowMovesAnOpenEditorToTheFirstFreeRow) {
  screen.DoubleClickCell(1, kCode);
  screen.ClickCell(8, kCode);
  EXPECT_EQ(Cursor(screen), "4,0");
  EXPECT_EQ(EditorText(screen), "");
  const Rect cell = screen.form().MSFProductos.CellRectangle(4, kCode);
  EXPECT_EQ(screen.form().TxtMSF.Top(), 2400 + cell.top - 10);
}

TEST_F(GridCursorTest, WithAllLinesFreeAClickLandsOnTheFirst) {
  screen.Execute("DELETE FROM HistOrvendalcial");
  screen.Click("LblCancelar");
  screen.ClickCell(12, kQuantity);
  EXPECT_EQ(Cursor(screen), "1,3");
}

TEST_F(GridCursorTest, KeysOfTheGridMoveItsCursorWhileTheEditorIsClosed) {
  screen.ClickCell(1, kCode);
  screen.Key(key::kDown);
  EXPECT_EQ(Cursor(screen), "2,0");
  screen.Key(key::kRight);
  EXPECT_EQ(Cursor(screen), "2,1");
  screen.Key(key::kUp);
  EXPECT_EQ(Cursor(screen), "1,1");
  screen.Key(key::kLeft);
  EXPECT_EQ(Cursor(screen), "1,0");
  EXPECT_FALSE(EditorIsOpen(screen));
}

TEST_F(GridCursorTest, KeysOfTheGridLandOnTheFirstFreeRowToo) {
  screen.ClickCell(4, kCode);
  screen.Key(key::kDown);
  EXPECT_EQ(Cursor(screen), "4,0");
  screen.Key(key::kPageDown);
  EXPECT_EQ(Cursor(screen), "4,0");
}

TEST_F(GridCursorTest, KeysOfTheGridChangeNothingInTheLines) {
  screen.ClickCell(2, kQuantity);
  const Texts first = screen.Line(1);
  const Texts second = screen.Line(2);
  for (const int code : {key::kDelete, key::kBack, key::kSpace, key::kInsert, key::kReturn, key::kEscape})
    screen.Key(code);
  screen.Type("123abc");
  EXPECT_EQ(screen.Line(1), first);
  EXPECT_EQ(screen.Line(2), second);
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(GridCursorTest, APressOnTheEmptyAreaMovesNothing) {
  screen.ClickCell(2, kCode);
  const Rect bounds = screen.form().MSFProductos.Bounds();
  const Rect last = screen.form().MSFProductos.CellRectangle(1, kStylist);
  screen.robot().ClickAt({bounds.left + last.left + last.width + 60, bounds.top + last.top + 200});
  EXPECT_EQ(Cursor(screen), "2,0");
}

TEST_F(GridCursorTest, LinesHaveNoGapsAfterADeleteInTheMiddle) {
  screen.ClickCell(2, kCode);
  screen.Click("LblBorrar");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P12"}));
  screen.ClickCell(9, kCode);
  EXPECT_EQ(Cursor(screen), "3,0");
}

}  // namespace
}  // namespace orvendal
