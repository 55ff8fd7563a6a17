#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

constexpr std::int32_t kStoreGone = -2147467259;

/// A store that fails while a product is looked up: nobody traps it, the host reports it, the screen goes on.
class ProductStoreErrorsTest : public testing::TestWithParam<Dialect> {
 protected:
  ProductStoreErrorsTest() {
    screen.AddCounts(1);
    screen.OpenWithStylist();
    screen.DoubleClickCell(2, kCode);
    Forget(screen);
  }
  void ExpectReportedWithText(const std::string& text) {
    EXPECT_EQ(TakeErrors(screen), Texts{std::to_string(kStoreGone) + ": no responde"});
    EXPECT_EQ(EditorText(screen), text);
    EXPECT_TRUE(EditorIsOpen(screen));
    EXPECT_EQ(screen.Focused(), "TxtMSF");
    EXPECT_EQ(Cursor(screen), "2,0");
    EXPECT_TRUE(TakeMessages(screen).empty());
  }
  FormDriver screen{GetParam()};
};

TEST_P(ProductStoreErrorsTest, AQuoteInACodeBreaksTheStatementAndIsReported) {
  screen.Type("O'Neill\n");
  const Texts errors = TakeErrors(screen);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_TRUE(errors[0].starts_with("-2147217900: ")) << errors[0];
  EXPECT_EQ(EditorText(screen), "O'Neill");
  EXPECT_EQ(Cursor(screen), "2,0");
  EXPECT_EQ(screen.Line(2), Texts(9, ""));
}

TEST_P(ProductStoreErrorsTest, AQuoteInADescriptionIsReportedToo) {
  screen.Enter();  // to the description
  screen.Type("L'eau\n");
  EXPECT_EQ(TakeErrors(screen).size(), 1U);
  EXPECT_EQ(EditorText(screen), "L'eau");
  EXPECT_EQ(Cursor(screen), "2,1");
}

TEST_P(ProductStoreErrorsTest, AFailedLookUpOfTheCodeLeavesTheTextToBeTriedAgain) {
  screen.recordsets.FailOpen(1, kStoreGone, "no responde");
  screen.Type("P1\n");
  ExpectReportedWithText("P1");
  EXPECT_EQ(screen.Line(2), Texts(9, ""));
  screen.Enter();
  EXPECT_EQ(screen.Cell(2, kCode), "P1");
  EXPECT_EQ(Cursor(screen), "2,3");
}

TEST_P(ProductStoreErrorsTest, AFailedLookUpOfTheReferenceOpensNoDialog) {
  screen.recordsets.FailOpen(2, kStoreGone, "no responde");
  screen.Type("8400000000017\n");
  ExpectReportedWithText("8400000000017");
  EXPECT_TRUE(TakeCalls(screen, "BuscadorProductos").empty());
}

TEST_P(ProductStoreErrorsTest, AFailedReadOfTheDescriptionWritesNothing) {
  screen.recordsets.FailOpen(2, kStoreGone, "no responde");
  screen.Type("P1\n");
  ExpectReportedWithText("P1");
  EXPECT_EQ(screen.Line(2), Texts(9, ""));
}

TEST_P(ProductStoreErrorsTest, AFailedReadOfTheStockLeavesTheGridAsItStoodAtThatMoment) {
  screen.recordsets.FailOpen(3, kStoreGone, "no responde");
  screen.Type("P1\n");
  ExpectReportedWithText("P1");
  EXPECT_EQ(screen.Line(2), (Texts{"P1", "Champú suave", "", "", "", "", "", "", ""}));
  // The line was not finished, so its code can be entered again.
  screen.Enter();
  EXPECT_EQ(screen.Line(2), (Texts{"P1", "Champú suave", "7", "7", "E1", "Ana", "16/11/2026", "P1", ""}));
}

TEST_P(ProductStoreErrorsTest, ANullStockIsAnErrorAndTheLineStaysUnfinished) {
  screen.Execute("UPDATE ProdSucStock SET Stock = NULL WHERE IdProducto = 'P1'");
  screen.Type("P1\n");
  EXPECT_EQ(TakeErrors(screen), Texts{"94: Invalid use of Null"});
  EXPECT_EQ(screen.Cell(2, kCode), "P1");
  EXPECT_EQ(screen.Cell(2, kQuantity), "");
}

TEST_P(ProductStoreErrorsTest, AStockBeyond32BitsIsAnError) {
  screen.Execute("UPDATE ProdSucStock SET Stock = 3000000000 WHERE IdProducto = 'P1'");
  screen.Type("P1\n");
  EXPECT_EQ(TakeErrors(screen), Texts{"6: Overflow"});
  EXPECT_EQ(EditorText(screen), "P1");
}

TEST_P(ProductStoreErrorsTest, UnderADescriptionTheEditorShowsTheOneThatTheLineHoldsNow) {
  screen.Enter();  // to the description
  screen.recordsets.FailOpen(3, kStoreGone, "no responde");
  screen.Type("Champú\n");
  EXPECT_EQ(TakeErrors(screen).size(), 1U);
  EXPECT_EQ(EditorText(screen), "Champú suave");
  EXPECT_EQ(Cursor(screen), "2,1");
  screen.Enter();
  EXPECT_EQ(screen.Line(2), (Texts{"P1", "Champú suave", "7", "7", "E1", "Ana", "16/11/2026", "P1", ""}));
}

/// The search button brings a product into a line whose quantity is under the editor, and the store fails.
class StoreErrorsOnTheQuantityTest : public testing::TestWithParam<Dialect> {
 protected:
  StoreErrorsOnTheQuantityTest() {
    screen.AddCounts(2);
    screen.OpenWithStylist();
    screen.DoubleClickCell(2, kQuantity);
    screen.library.QueueProduct("P1");
    Forget(screen);
  }
  void ExpectTheQuantityOfTheCell(const std::string& error) {
    EXPECT_EQ(TakeErrors(screen), Texts{error});
    EXPECT_EQ(Cursor(screen), "2,3");
    EXPECT_EQ(screen.Cell(2, kQuantity), "2");
    EXPECT_EQ(EditorText(screen), "2");
    EXPECT_TRUE(EditorTextIsSelected(screen));
    screen.form().TxtMSF.SetFocus();
    screen.Key(key::kUp);
    EXPECT_EQ(screen.Cell(2, kQuantity), "2");
  }
  FormDriver screen{GetParam()};
};

TEST_P(StoreErrorsOnTheQuantityTest, ANullStockLeavesTheQuantityInTheEditorAndNotTheCode) {
  screen.Execute("UPDATE ProdSucStock SET Stock = NULL WHERE IdProducto = 'P1'");
  screen.Click("LblBuscar");
  ExpectTheQuantityOfTheCell("94: Invalid use of Null");
}

TEST_P(StoreErrorsOnTheQuantityTest, ANullDescriptionDoesToo) {
  screen.Execute("UPDATE Productos SET Descripcion = NULL WHERE Codigo = 'P1'");
  screen.Click("LblBuscar");
  ExpectTheQuantityOfTheCell("94: Invalid use of Null");
}

TEST_P(StoreErrorsOnTheQuantityTest, AFailedReadOfTheStockDoesToo) {
  screen.recordsets.FailOpen(2, kStoreGone, "no responde");
  screen.Click("LblBuscar");
  ExpectTheQuantityOfTheCell("-2147467259: no responde");
}

TEST_P(StoreErrorsOnTheQuantityTest, AnErrorBeforeTheLineIsTouchedKeepsWhatIsTyped) {
  screen.Type("42");
  screen.recordsets.FailOpen(1, kStoreGone, "no responde");
  screen.Click("LblBuscar");
  EXPECT_EQ(TakeErrors(screen).size(), 1U);
  EXPECT_EQ(EditorText(screen), "42");
  EXPECT_EQ(screen.Cell(2, kCode), "P11");
  screen.ClickCell(1, kCode);
  EXPECT_EQ(screen.Cell(2, kQuantity), "42");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, StoreErrorsOnTheQuantityTest,
                         testing::Values(Dialect::kSqlServer, Dialect::kJet), DialectName);
INSTANTIATE_TEST_SUITE_P(BothDialects, ProductStoreErrorsTest,
                         testing::Values(Dialect::kSqlServer, Dialect::kJet), DialectName);

}  // namespace
}  // namespace orvendal
