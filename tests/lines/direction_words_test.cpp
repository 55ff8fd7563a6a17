#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// `MoverCelda` word by word, the two included that no key sends.
class DirectionWordsTest : public testing::Test {
 protected:
  DirectionWordsTest() {
    screen.AddCounts(2);
    screen.OpenWithStylist();
  }
  std::string After(const std::string& word) {
    screen.form().MoverCelda(word);
    return Cursor(screen);
  }
  FormDriver screen;
};

TEST_F(DirectionWordsTest, LeftJumpsOverThePreviousQuantity) {
  screen.DoubleClickCell(1, kQuantity);
  EXPECT_EQ(After("Izq"), "1,1");
  EXPECT_EQ(EditorText(screen), "Producto 10");
  EXPECT_EQ(After("Izq"), "1,0");
  EXPECT_EQ(EditorText(screen), "P10");
  EXPECT_EQ(After("Izq"), "1,0");
  EXPECT_TRUE(EditorTextIsSelected(screen));
}

TEST_F(DirectionWordsTest, LeftSavesTheQuantityThatItLeaves) {
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("66");
  EXPECT_EQ(After("Izq"), "1,1");
  EXPECT_EQ(screen.Cell(1, kQuantity), "66");
}

TEST_F(DirectionWordsTest, RightWithTheEditorOpenPassesOverThePreviousQuantity) {
  screen.DoubleClickCell(1, kCode);
  EXPECT_EQ(After("Der"), "1,1");
  EXPECT_EQ(After("Der"), "1,3");
  EXPECT_EQ(EditorText(screen), "1");
  EXPECT_TRUE(EditorTextIsSelected(screen));
  EXPECT_EQ(After("Der"), "1,3");
}

TEST_F(DirectionWordsTest, RightWithTheEditorClosedStopsOnThePreviousQuantity) {
  screen.ClickCell(1, kDescription);
  EXPECT_EQ(After("Der"), "1,2");
  EXPECT_EQ(After("Der"), "1,3");
  EXPECT_EQ(After("Izq"), "1,1");
}

TEST_F(DirectionWordsTest, RightOnALineWithoutACodeOnlyReachesTheDescription) {
  screen.DoubleClickCell(3, kCode);
  EXPECT_EQ(After("Der"), "3,1");
  EXPECT_EQ(After("Der"), "3,1");
}

TEST_F(DirectionWordsTest, UpAndDownKeepTheColumn) {
  screen.ClickCell(1, kDescription);
  EXPECT_EQ(After("Aba"), "2,1");
  EXPECT_EQ(After("Arr"), "1,1");
  EXPECT_EQ(After("Arr"), "1,1");
}

TEST_F(DirectionWordsTest, AnyOtherWordMovesNothingAndSelectsTheText) {
  screen.DoubleClickCell(2, kCode);
  for (const char* word : {"izq", "DER", "Arriba", "", " Aba"}) {
    screen.Key(key::kEnd);
    EXPECT_EQ(After(word), "2,0") << word;
    EXPECT_TRUE(EditorTextIsSelected(screen)) << word;
  }
}

TEST_F(DirectionWordsTest, WithTheEditorClosedNothingIsSelected) {
  screen.ClickCell(2, kCode);
  screen.form().TxtMSF.Text("P11");
  screen.form().TxtMSF.SelLength(0);
  After("Arr");
  EXPECT_EQ(screen.form().TxtMSF.SelLength(), 0);
}

TEST_F(DirectionWordsTest, UpAndDownColourTheLineAndSidewaysDoesNot) {
  constexpr ColorWord kCurrent = 0xE1C0B3;
  screen.ClickCell(1, kCode);
  After("Aba");
  EXPECT_EQ(screen.form().MSFProductos.CellBackColorAt(2, 3), kCurrent);
  EXPECT_NE(screen.form().MSFProductos.CellBackColorAt(1, 3), kCurrent);
  screen.form().MSFProductos.CellBackColor(0x010203);
  After("Der");
  After("Izq");
  EXPECT_EQ(screen.form().MSFProductos.CellBackColorAt(2, 0), 0x010203U);
}

TEST_F(DirectionWordsTest, AFailureOnTheWaySidewaysPutsTheFlagBack) {
  screen.ClickCell(1, kCode);
  MSFlexGrid& grid = screen.form().MSFProductos;
  const std::function<void()> leave = grid.OnLeaveCell;
  grid.OnLeaveCell = [] { throw RuntimeError(1001, "atascado"); };
  EXPECT_THROW(screen.form().MoverCelda("Der"), RuntimeError);
  EXPECT_FALSE(screen.form().variables.MoviendoColumna);
  grid.OnLeaveCell = leave;
}

}  // namespace
}  // namespace orvendal
