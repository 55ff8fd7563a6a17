#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class DeleteLineTest : public testing::Test {
 protected:
  void Open(int lines) {
    screen.AddCounts(lines);
    screen.OpenWithStylist();
    Forget(screen);
  }
  int Rows() { return screen.form().MSFProductos.Rows(); }
  FormDriver screen;
};

TEST_F(DeleteLineTest, OnAnEmptyRowNothingHappensNotEvenToTheEditor) {
  Open(2);
  screen.DoubleClickCell(3, kCode);
  screen.Type("P1");
  screen.Click("LblBorrar");
  EXPECT_EQ(EditorText(screen), "P1");
  EXPECT_EQ(Cursor(screen), "3,0");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11"}));
  EXPECT_EQ(Rows(), 13);
}

TEST_F(DeleteLineTest, OnTheLastLineOnItsQuantityEmptiesTheEditorAndGoesToTheCode) {
  Open(3);
  screen.DoubleClickCell(3, kQuantity);
  screen.Type("77");
  screen.Click("LblBorrar");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11"}));
  EXPECT_EQ(screen.Line(3), Texts(9, ""));
  EXPECT_EQ(EditorText(screen), "");
  EXPECT_EQ(Cursor(screen), "3,0");
}

TEST_F(DeleteLineTest, OnALineWithOneAfterItShowsTheNextQuantityThenItsCode) {
  Open(3);
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("77");
  Texts shown;
  screen.form().TxtMSF.OnChange = [&] { shown.push_back(EditorText(screen) + " on " + Cursor(screen)); };
  screen.Click("LblBorrar");
  screen.form().TxtMSF.OnChange = nullptr;
  EXPECT_EQ(shown, (Texts{"3 on 2,3", "P12 on 2,0"}));
  EXPECT_EQ(Cursor(screen), "2,0");
  EXPECT_EQ(screen.Line(2)[kCode], "P12");
  EXPECT_EQ(screen.Line(2)[kQuantity], "3");  // what leaving the cell wrote back is its own quantity
}

TEST_F(DeleteLineTest, OnADescriptionShowsTheNextOneAndStays) {
  Open(3);
  screen.DoubleClickCell(2, kDescription);
  screen.Click("LblBorrar");
  EXPECT_EQ(EditorText(screen), "Producto 12");
  EXPECT_EQ(Cursor(screen), "2,1");
  EXPECT_TRUE(EditorIsOpen(screen));
}

TEST_F(DeleteLineTest, OnACodeShowsTheNextOneAndStays) {
  Open(3);
  screen.DoubleClickCell(1, kCode);
  screen.Click("LblBorrar");
  EXPECT_EQ(EditorText(screen), "P11");
  EXPECT_EQ(Cursor(screen), "1,0");
}

TEST_F(DeleteLineTest, WithTheEditorClosedEmptiesItsText) {
  Open(3);
  screen.ClickCell(2, kQuantity);
  screen.form().TxtMSF.Text("resto");
  screen.Click("LblBorrar");
  EXPECT_EQ(EditorText(screen), "");
  EXPECT_EQ(Cursor(screen), "2,0");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P12"}));
}

TEST_F(DeleteLineTest, KeepsTheNumberOfRows) {
  Open(14);
  const int rows = Rows();
  ASSERT_EQ(rows, 16);
  screen.ClickCell(14, kCode);
  for (int i = 0; i < 3; ++i) {
    screen.ClickCell(5, kCode);
    screen.Click("LblBorrar");
    EXPECT_EQ(Rows(), rows);
  }
  EXPECT_EQ(screen.Codes().size(), 11U);
}

TEST_F(DeleteLineTest, OfTheLastRowOfTheGridLeavesAFreeOneThere) {
  Open(11);
  screen.EnterLine("P1", "5");  // the twelfth and last; Enter appended a row
  screen.Key(key::kEscape);
  screen.form().MSFProductos.Rows(13);
  screen.ClickCell(12, kCode);
  screen.Click("LblBorrar");
  EXPECT_EQ(Rows(), 13);
  EXPECT_EQ(Cursor(screen), "12,0");
  EXPECT_EQ(screen.Line(12), Texts(9, ""));
}

TEST_F(DeleteLineTest, OfTheLastRowOnItsQuantityLeavesTheLineAboveAlone) {
  Open(11);
  screen.DoubleClickCell(12, kCode);
  screen.Type("P1\n77");
  ASSERT_EQ(Cursor(screen), "12,3");
  screen.Click("LblBorrar");
  EXPECT_EQ(Cursor(screen), "12,0");
  EXPECT_EQ(EditorText(screen), "");
  EXPECT_EQ(screen.Cell(11, kQuantity), "11");
  EXPECT_FALSE(screen.form().HayCambios());
}

TEST_F(DeleteLineTest, AtTheEndOfAScrolledGridLeavesTheEditorOverItsCell) {
  Open(30);
  screen.DoubleClickCell(30, kCode);
  screen.form().MSFProductos.TopRow(31);
  const double top = screen.form().TxtMSF.Top();
  screen.Click("LblBorrar");
  EXPECT_EQ(Cursor(screen), "30,0");
  EXPECT_EQ(screen.form().TxtMSF.Top(), top);
  const Rect cell = screen.form().MSFProductos.CellRectangle(30, kCode);
  EXPECT_EQ(screen.form().TxtMSF.Top(), 2400 + cell.top - 10);
}

TEST_F(DeleteLineTest, ReachesTheStoreOnlyWithTheSave) {
  Open(3);
  screen.ClickCell(2, kCode);
  screen.Click("LblBorrar");
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "3");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "2");
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial WHERE IdProducto = 'P11'"), "0");
}

TEST_F(DeleteLineTest, IsBroughtBackByCancel) {
  Open(3);
  screen.ClickCell(2, kCode);
  screen.Click("LblBorrar");
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12"}));
}

TEST_F(DeleteLineTest, OfAStoredLineIsAChange) {
  Open(3);
  screen.ClickCell(2, kCode);
  screen.Click("LblBorrar");
  EXPECT_TRUE(screen.form().HayCambios());
}

TEST_F(DeleteLineTest, OfALineTypedSinceTheLoadBringsTheTwoIntoAgreement) {
  Open(3);
  screen.EnterLine("P1", "5");
  ASSERT_TRUE(screen.form().HayCambios());
  screen.Key(key::kEscape);
  screen.ClickCell(4, kCode);
  screen.Click("LblBorrar");
  EXPECT_FALSE(screen.form().HayCambios());
}

TEST_F(DeleteLineTest, EitherMemberOfTheButtonDeletes) {
  Open(3);
  screen.ClickCell(1, kCode);
  screen.Click("LblBorrar(0)");
  EXPECT_EQ(screen.Codes(), (Texts{"P11", "P12"}));
}

}  // namespace
}  // namespace orvendal
