#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

constexpr ColorWord kCurrentBack = 14794931;  // red 179, green 192, blue 225
constexpr ColorWord kCurrentFore = 16777215;
constexpr ColorWord kLeftBack = 13887721;  // red 233, green 232, blue 211
constexpr int kColumns = 9;

class LineColoursTest : public testing::Test {
 protected:
  LineColoursTest() {
    screen.AddCounts(3);
    screen.OpenWithStylist();
  }
  MSFlexGrid& grid() { return screen.form().MSFProductos; }

  void ExpectCurrent(int row) {
    for (int column = 0; column < kColumns - 1; ++column) {
      EXPECT_EQ(grid().CellBackColorAt(row, column), kCurrentBack) << row << "," << column;
      EXPECT_EQ(grid().CellForeColorAt(row, column), kCurrentFore) << row << "," << column;
    }
  }
  /// Black is the grid's own colour of letters, which the word 0 stands for.
  void ExpectLeft(int row) {
    for (int column = 0; column < kColumns; ++column) {
      EXPECT_EQ(grid().CellBackColorAt(row, column), kLeftBack) << row << "," << column;
      EXPECT_EQ(grid().CellForeColorAt(row, column), 0U) << row << "," << column;
    }
  }
  bool IsCurrentColour(int row, int column) { return grid().CellBackColorAt(row, column) == kCurrentBack; }

  FormDriver screen;
};

TEST_F(LineColoursTest, TheLineUnderTheCursorIsLavenderWithWhiteLetters) {
  screen.ClickCell(2, kDescription);
  ExpectCurrent(2);
}

TEST_F(LineColoursTest, TheLineThatTheCursorLeavesIsSandAgain) {
  screen.ClickCell(2, kCode);
  screen.ClickCell(3, kCode);
  ExpectLeft(2);
  ExpectCurrent(3);
}

TEST_F(LineColoursTest, TheLastColumnIsColouredOnlyWhenTheCursorLeaves) {
  screen.ClickCell(2, kCode);
  screen.ClickCell(1, kCode);
  screen.ClickCell(2, kCode);
  EXPECT_EQ(grid().CellBackColorAt(2, 8), kLeftBack);
  EXPECT_EQ(grid().CellForeColorAt(2, 8), 0U);
  EXPECT_EQ(grid().CellBackColorAt(2, 7), kCurrentBack);
}

TEST_F(LineColoursTest, AMoveInsideTheLineKeepsItColoured) {
  screen.ClickCell(2, kCode);
  screen.ClickCell(2, kDescription);
  ExpectCurrent(2);
}

TEST_F(LineColoursTest, ColouringPutsTheColumnBack) {
  screen.ClickCell(1, kCode);
  screen.ClickCell(2, kDescription);
  EXPECT_EQ(Cursor(screen), "2,1");
  EXPECT_FALSE(screen.form().variables.PintandoFila);
}

TEST_F(LineColoursTest, FollowTheEditorByEnterAndArrows) {
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("5\n");
  ExpectLeft(1);
  ExpectCurrent(2);
  screen.Key(key::kDown);
  ExpectLeft(2);
  ExpectCurrent(3);
}

TEST_F(LineColoursTest, ComeAfterTheEditorWasPlaced) {
  screen.DoubleClickCell(1, kQuantity);
  std::string shown;
  bool coloured = true;
  screen.form().TxtMSF.OnChange = [&] {
    shown = EditorText(screen);
    coloured = IsCurrentColour(2, kCode);
  };
  screen.Key(key::kDown);
  screen.form().TxtMSF.OnChange = nullptr;
  EXPECT_EQ(shown, "2");
  EXPECT_FALSE(coloured);
  ExpectCurrent(2);
}

TEST_F(LineColoursTest, FollowTheGridsOwnKeys) {
  screen.ClickCell(1, kCode);
  screen.Key(key::kDown);
  ExpectLeft(1);
  ExpectCurrent(2);
}

TEST_F(LineColoursTest, AClickFarBelowColoursOnlyTheFirstFreeRow) {
  screen.ClickCell(1, kCode);
  screen.ClickCell(9, kCode);
  ExpectCurrent(4);
  ExpectLeft(9);
  ExpectLeft(1);
}

TEST_F(LineColoursTest, ALoadLeavesOnlyTheLastLineCurrent) {
  screen.Click("LblCancelar");
  ExpectLeft(1);
  ExpectLeft(2);
  ExpectCurrent(3);
}

TEST_F(LineColoursTest, ADeletedLineTakesItsColourWithIt) {
  screen.ClickCell(2, kCode);
  screen.Click("LblBorrar");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P12"}));
  EXPECT_FALSE(IsCurrentColour(2, kCode));  // the cursor did not move, so nothing was coloured anew
  screen.ClickCell(1, kCode);
  screen.ClickCell(2, kCode);
  ExpectCurrent(2);
}

TEST_F(LineColoursTest, AMoveOfTheColumnOnlyIsNotColoured) {
  screen.ClickCell(2, kCode);
  grid().CellBackColor(0x123456);
  screen.form().MoverCelda("Der");
  EXPECT_EQ(Cursor(screen), "2,1");
  EXPECT_EQ(grid().CellBackColorAt(2, kCode), 0x123456U);
  EXPECT_FALSE(screen.form().variables.MoviendoColumna);
}

TEST_F(LineColoursTest, AnErrorWhileColouringPutsTheFlagBack) {
  screen.ClickCell(2, kCode);
  // A user of the grid whose handler fails in the middle of the colouring.
  const std::function<void()> leave = grid().OnLeaveCell;
  int calls = 0;
  grid().OnLeaveCell = [&] {
    if (screen.form().variables.PintandoFila && ++calls == 4) throw RuntimeError(1001, "pincel roto");
    leave();
  };
  screen.ClickCell(3, kCode);
  EXPECT_EQ(TakeErrors(screen), Texts{"1001: pincel roto"});
  EXPECT_FALSE(screen.form().variables.PintandoFila);
  grid().OnLeaveCell = leave;
  screen.ClickCell(1, kCode);
  ExpectCurrent(1);
}

}  // namespace
}  // namespace orvendal
