#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// A day of `lines` lines with a stylist chosen.
class EnterInEditorTest : public testing::Test {
 protected:
  void Open(int lines) {
    screen.AddCounts(lines);
    screen.OpenWithStylist();
    Forget(screen);
  }
  FormDriver screen;
};

TEST_F(EnterInEditorTest, OnAnEmptyCodeGoesToTheDescription) {
  Open(0);
  screen.DoubleClickCell(1, kCode);
  screen.Enter();
  EXPECT_EQ(Cursor(screen), "1,1");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(screen.Focused(), "TxtMSF");
}

TEST_F(EnterInEditorTest, OnAnEmptyDescriptionDoesNothing) {
  Open(0);
  screen.DoubleClickCell(1, kCode);
  screen.Enter();
  screen.Enter();
  EXPECT_EQ(Cursor(screen), "1,1");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(EnterInEditorTest, OnTheCodeThatWasEmptiedGoesToTheDescriptionOfTheLine) {
  Open(2);
  screen.DoubleClickCell(1, kCode);
  screen.Key(key::kDelete);
  screen.Enter();
  EXPECT_EQ(CellAndEditor(screen), "1,1 [Producto 10]");
  EXPECT_EQ(screen.Cell(1, kCode), "P10");
}

TEST_F(EnterInEditorTest, OnAProductGoesToItsQuantityWithTheStockSelected) {
  Open(0);
  screen.DoubleClickCell(1, kCode);
  screen.Type("P1");
  screen.Enter();
  EXPECT_EQ(CellAndEditor(screen), "1,3 [7]");
  screen.Type("1");  // the first digit replaces the stock
  EXPECT_EQ(EditorText(screen), "1");
}

TEST_F(EnterInEditorTest, OnAProductByItsDescriptionGoesToItsQuantity) {
  Open(0);
  screen.DoubleClickCell(1, kDescription);
  screen.Type("Laca");
  screen.Enter();
  EXPECT_EQ(CellAndEditor(screen), "1,3 [0]");
}

TEST_F(EnterInEditorTest, OnAnUnknownCodeLeavesTheEditorWithItsText) {
  Open(0);
  screen.DoubleClickCell(1, kCode);
  screen.Type("nada");
  screen.library.QueueProduct("");
  screen.Enter();
  EXPECT_EQ(Cursor(screen), "1,0");
  EXPECT_EQ(EditorText(screen), "nada");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(screen.Focused(), "TxtMSF");
  EXPECT_EQ(screen.Line(1), Texts(9, ""));
}

TEST_F(EnterInEditorTest, OnAnEmptyQuantityDoesNothing) {
  Open(2);
  screen.DoubleClickCell(1, kQuantity);
  screen.Key(key::kDelete);
  screen.Enter();
  EXPECT_EQ(Cursor(screen), "1,3");
  EXPECT_EQ(screen.Cell(1, kQuantity), "1");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "");
}

TEST_F(EnterInEditorTest, OnAQuantityWritesItAndGoesToTheCodeOfTheNextLine) {
  Open(3);
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("25");
  screen.Enter();
  EXPECT_EQ(screen.Cell(1, kQuantity), "25");
  EXPECT_EQ(CellAndEditor(screen), "2,0 [P11]");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(screen.Cell(2, kQuantity), "2");
}

TEST_F(EnterInEditorTest, OnTheQuantityOfTheLastLineGoesToTheCodeOfTheFreeOne) {
  Open(3);
  screen.DoubleClickCell(3, kQuantity);
  screen.Type("25");
  screen.Enter();
  EXPECT_EQ(Cursor(screen), "4,0");
  EXPECT_EQ(EditorText(screen), "");
  EXPECT_EQ(screen.form().MSFProductos.Rows(), 13);
  EXPECT_EQ(screen.Line(4), Texts(9, ""));
}

TEST_F(EnterInEditorTest, OnTheLastGridRowAppendsARow) {
  Open(11);
  screen.DoubleClickCell(12, kCode);
  screen.Type("P1");
  screen.Enter();
  ASSERT_EQ(Cursor(screen), "12,3");
  ASSERT_EQ(screen.form().MSFProductos.Rows(), 13);
  screen.Type("5");
  screen.Enter();
  EXPECT_EQ(screen.form().MSFProductos.Rows(), 14);
  EXPECT_EQ(Cursor(screen), "13,0");
  EXPECT_EQ(screen.Cell(12, kQuantity), "5");
  EXPECT_EQ(screen.Line(13), Texts(9, ""));
  EXPECT_TRUE(EditorIsOpen(screen));
}

TEST_F(EnterInEditorTest, GoesOnFarBeyondTheFirstThirteenRows) {
  Open(0);
  screen.DoubleClickCell(1, kCode);
  for (int number = 10; number <= 40; ++number) {
    screen.Type("P" + std::to_string(number) + "\n1\n");
  }
  EXPECT_EQ(screen.Codes().size(), 31U);
  EXPECT_EQ(screen.form().MSFProductos.Rows(), 33);
  EXPECT_EQ(Cursor(screen), "32,0");
  EXPECT_EQ(screen.Cell(31, kCode), "P40");
  EXPECT_EQ(screen.Cell(31, kQuantity), "1");
}

TEST_F(EnterInEditorTest, KeepsTheQuantityToTheLetter) {
  Open(1);
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("007,50");
  screen.Enter();
  EXPECT_EQ(screen.Cell(1, kQuantity), "007,50");
}

TEST_F(EnterInEditorTest, OnColumnTwoGoesToColumnThreeIfItEverStandsThere) {
  Open(2);
  screen.DoubleClickCell(1, kQuantity);
  screen.form().variables.PintandoFila = true;  // no event carries the cursor past the previous quantity
  screen.form().MSFProductos.Col(kPreviousQuantity);
  screen.form().variables.PintandoFila = false;
  screen.form().TxtMSF.Text("");
  screen.Enter();
  EXPECT_EQ(Cursor(screen), "1,2");
  screen.form().TxtMSF.Text("8");
  screen.Enter();
  EXPECT_EQ(Cursor(screen), "1,3");
  EXPECT_EQ(screen.Cell(1, kPreviousQuantity), "0");
  EXPECT_EQ(screen.Cell(1, kQuantity), "1");
}

TEST_F(EnterInEditorTest, PastTheQuantityGoesToTheNextLineIfItEverStandsThere) {
  Open(2);
  screen.DoubleClickCell(1, kQuantity);
  screen.form().variables.PintandoFila = true;
  screen.form().MSFProductos.Col(kStylist);
  screen.form().variables.PintandoFila = false;
  screen.form().TxtMSF.Text("8");
  screen.Enter();
  EXPECT_EQ(Cursor(screen), "2,0");
  EXPECT_EQ(screen.Cell(1, kQuantity), "1");
  EXPECT_EQ(screen.Cell(1, kStylist), "Ana");
}

TEST_F(EnterInEditorTest, AScannerTypesCodeAfterCodeAndQuantityAfterQuantity) {
  Open(0);
  screen.DoubleClickCell(1, kCode);
  screen.Type("8400000000017\n4\n8400000000024\n6\nP4\n9\n");
  EXPECT_EQ(screen.Codes(), (Texts{"P1", "P2", "P4"}));
  EXPECT_EQ(screen.Cell(1, kQuantity), "4");
  EXPECT_EQ(screen.Cell(2, kQuantity), "6");
  EXPECT_EQ(screen.Cell(3, kQuantity), "9");
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_F(EnterInEditorTest, OnTheHundredthLineTheEditorStillFloatsOverItsCell) {
  Open(0);
  for (int number = 100; number < 200; ++number)
    screen.Execute("INSERT INTO Productos (Codigo, Descripcion) VALUES ('X" + std::to_string(number) +
                   "', 'Más')");
  screen.DoubleClickCell(1, kCode);
  for (int number = 100; number < 200; ++number) {
    screen.Type("X" + std::to_string(number) + "\n");
    MSFlexGrid& grid = screen.form().MSFProductos;
    const Rect cell = grid.CellRectangle(grid.Row(), grid.Col());
    ASSERT_EQ(cell.height, 500) << grid.Row();
    ASSERT_EQ(screen.form().TxtMSF.Top(), 2400 + cell.top - 10) << grid.Row();
    screen.Type("1\n");
  }
  EXPECT_EQ(Cursor(screen), "101,0");
  EXPECT_TRUE(screen.form().MSFProductos.RowIsVisible(101));
  const Rect grid = screen.form().MSFProductos.Bounds();
  const Rect editor = screen.form().TxtMSF.Bounds();
  EXPECT_GE(editor.top, grid.top);
  EXPECT_LE(editor.top + editor.height, grid.top + grid.height + 10);
}

}  // namespace
}  // namespace orvendal
