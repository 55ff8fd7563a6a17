#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// The roads by which a quantity under the editor reaches its cell, and those by which it does not.
class TypedQuantityTest : public testing::Test {
 protected:
  TypedQuantityTest() {
    screen.AddCounts(3);
    screen.OpenWithStylist();
    screen.DoubleClickCell(2, kQuantity);
    screen.Type("77");
  }
  FormDriver screen;
};

TEST_F(TypedQuantityTest, IsNotInItsCellWhileItIsTyped) {
  EXPECT_EQ(screen.Cell(2, kQuantity), "2");
}

TEST_F(TypedQuantityTest, IsWrittenByEnter) {
  screen.Enter();
  EXPECT_EQ(screen.Cell(2, kQuantity), "77");
}

TEST_F(TypedQuantityTest, IsWrittenWhenAnotherCellIsClicked) {
  screen.ClickCell(1, kCode);
  EXPECT_EQ(screen.Cell(2, kQuantity), "77");
  EXPECT_EQ(EditorText(screen), "P10");
}

TEST_F(TypedQuantityTest, IsWrittenWhenAnotherCellOfItsLineIsClicked) {
  screen.ClickCell(2, kDescription);
  EXPECT_EQ(screen.Cell(2, kQuantity), "77");
  EXPECT_EQ(EditorText(screen), "Producto 11");
}

TEST_F(TypedQuantityTest, IsWrittenByTheArrows) {
  screen.Key(key::kUp);
  EXPECT_EQ(screen.Cell(2, kQuantity), "77");
  EXPECT_EQ(Cursor(screen), "1,3");
  screen.Type("88");
  screen.Key(key::kDown);
  EXPECT_EQ(screen.Cell(1, kQuantity), "88");
  EXPECT_EQ(Cursor(screen), "2,3");
  EXPECT_EQ(EditorText(screen), "77");
}

TEST_F(TypedQuantityTest, EmptiedEmptiesTheCellWhenAnotherOneIsClicked) {
  screen.Key(key::kBack);
  screen.Key(key::kBack);
  screen.Enter();
  ASSERT_EQ(Cursor(screen), "2,3");
  ASSERT_EQ(screen.Cell(2, kQuantity), "2");
  screen.ClickCell(1, kQuantity);
  EXPECT_EQ(screen.Cell(2, kQuantity), "");
  EXPECT_EQ(EditorText(screen), "1");
}

TEST_F(TypedQuantityTest, IsDroppedByEscape) {
  screen.Key(key::kEscape);
  screen.ClickCell(1, kCode);
  EXPECT_EQ(screen.Cell(2, kQuantity), "2");
}

TEST_F(TypedQuantityTest, IsDroppedByCancel) {
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Cell(2, kQuantity), "2");
}

TEST_F(TypedQuantityTest, IsWrittenByTheSave) {
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Cell(2, kQuantity), "77");
  EXPECT_EQ(screen.Sql("SELECT StockActual FROM HistOrvendalcial WHERE IdProducto = 'P11'"), "77");
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "");
}

TEST_F(TypedQuantityTest, IsWrittenByTheTitleBarsClose) {
  screen.library.QueueAnswer(message::kCancel);
  ClickClose(screen);
  EXPECT_EQ(screen.Cell(2, kQuantity), "77");
  EXPECT_FALSE(EditorIsOpen(screen));
}

TEST_F(TypedQuantityTest, StaysInTheEditorWhenTheFocusGoesElsewhere) {
  screen.form().PicDatos.SetFocus();
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "77");
  EXPECT_EQ(screen.Cell(2, kQuantity), "2");
}

TEST_F(TypedQuantityTest, IsNotWrittenIntoAFarFreeRowThatWasClicked) {
  screen.ClickCell(10, kQuantity);
  EXPECT_EQ(screen.Cell(2, kQuantity), "77");
  EXPECT_EQ(Cursor(screen), "4,3");
  EXPECT_EQ(EditorText(screen), "");
  EXPECT_EQ(screen.Line(10), Texts(9, ""));
  EXPECT_EQ(screen.Line(4), Texts(9, ""));
}

class TypedCodeTest : public TypedQuantityTest {
 protected:
  void TypeOn(int column) {
    screen.Key(key::kEscape);
    screen.DoubleClickCell(2, column);
    screen.Type("P1");
  }
};

TEST_F(TypedCodeTest, IsDroppedWhenAnotherCellIsClicked) {
  TypeOn(kCode);
  screen.ClickCell(1, kQuantity);
  EXPECT_EQ(screen.Line(2)[0], "P11");
  EXPECT_EQ(EditorText(screen), "1");
  screen.ClickCell(2, kCode);
  EXPECT_EQ(EditorText(screen), "P11");
}

TEST_F(TypedCodeTest, IsNotWrittenIntoTheQuantityOfAFarFreeRowThatWasClicked) {
  for (const int column : {kCode, kDescription}) {
    TypeOn(column);
    screen.ClickCell(10, kQuantity);
    EXPECT_EQ(Cursor(screen), "4,3");
    EXPECT_EQ(EditorText(screen), "");
    EXPECT_EQ(screen.Line(10), Texts(9, ""));
    EXPECT_EQ(screen.Line(4), Texts(9, ""));
    EXPECT_FALSE(screen.form().HayCambios());
  }
}

TEST_F(TypedCodeTest, IsNotWrittenIntoTheQuantityAfterAnErrorThatLeftTheCursorThere) {
  TypeOn(kCode);
  MSFlexGrid& grid = screen.form().MSFProductos;
  const std::function<void()> leave = grid.OnLeaveCell;
  grid.OnLeaveCell = [&] {  // a user of the grid that fails while the line is coloured, cell by cell
    if (screen.form().variables.PintandoFila && grid.Col() == kQuantity)
      throw RuntimeError(1001, "pincel roto");
    leave();
  };
  screen.ClickCell(1, kCode);
  grid.OnLeaveCell = leave;
  ASSERT_EQ(TakeErrors(screen).size(), 1U);
  ASSERT_EQ(Cursor(screen), "2,3");
  screen.ClickCell(1, kCode);
  EXPECT_EQ(screen.Cell(2, kQuantity), "2");
}

TEST_F(TypedCodeTest, IsDroppedByTheArrows) {
  TypeOn(kCode);
  screen.Key(key::kDown);
  EXPECT_EQ(Cursor(screen), "3,0");
  EXPECT_EQ(EditorText(screen), "P12");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12"}));
}

TEST_F(TypedCodeTest, OfADescriptionIsDroppedToo) {
  TypeOn(kDescription);
  screen.Key(key::kUp);
  EXPECT_EQ(screen.Cell(2, kDescription), "Producto 11");
  EXPECT_EQ(EditorText(screen), "Producto 10");
}

TEST_F(TypedCodeTest, IsDroppedByTheSaveWithTheEditor) {
  TypeOn(kCode);
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12"}));
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "");
}

}  // namespace
}  // namespace orvendal
