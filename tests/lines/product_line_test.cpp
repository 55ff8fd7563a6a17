#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// What a product makes of its line.
class ProductLineTest : public testing::Test {
 protected:
  void Open(const std::string& branch = "01") {
    screen.OpenWithStylist(branch);
    Forget(screen);
  }
  void Enter(int row, const std::string& code) {
    if (EditorIsOpen(screen)) {
      screen.ClickCell(row, kCode);
    } else {
      screen.DoubleClickCell(row, kCode);
    }
    screen.Type(code);
    screen.Enter();
  }
  FormDriver screen;
};

TEST_F(ProductLineTest, WithoutAStockRowShowsZeroTwice) {
  Open();
  Enter(1, "P4");
  EXPECT_EQ(screen.Cell(1, kPreviousQuantity), "0");
  EXPECT_EQ(screen.Cell(1, kQuantity), "0");
  EXPECT_EQ(EditorText(screen), "0");
}

TEST_F(ProductLineTest, RoundsAFractionalStockToTheEvenNumber) {
  Open();
  Enter(1, "P2");  // 2.5
  Enter(2, "P3");  // 3.5
  EXPECT_EQ(screen.Cell(1, kPreviousQuantity), "2");
  EXPECT_EQ(screen.Cell(1, kQuantity), "2");
  EXPECT_EQ(screen.Cell(2, kPreviousQuantity), "4");
  EXPECT_EQ(screen.Cell(2, kQuantity), "4");
}

TEST_F(ProductLineTest, ShowsANegativeStock) {
  screen.Execute("UPDATE ProdSucStock SET Stock = -3.5 WHERE IdProducto = 'P1'");
  Open();
  Enter(1, "P1");
  EXPECT_EQ(screen.Cell(1, kPreviousQuantity), "-4");
}

TEST_F(ProductLineTest, TakesTheStockOfItsBranchOnly) {
  Open("02");
  Enter(1, "P5");
  Enter(2, "P1");
  EXPECT_EQ(screen.Cell(1, kPreviousQuantity), "4");
  EXPECT_EQ(screen.Cell(2, kPreviousQuantity), "0");
}

TEST_F(ProductLineTest, CutsALongBranchCodeToItsFirstTwoCharacters) {
  Open("02-NORTE");
  Enter(1, "P5");
  EXPECT_EQ(screen.Cell(1, kPreviousQuantity), "4");
  const Texts statements = TakeStatements(screen);
  ASSERT_FALSE(statements.empty());
  EXPECT_EQ(statements.back(), "SELECT * FROM ProdSucStock WHERE IdSucursal ='02' AND IdProducto ='P5'");
}

TEST_F(ProductLineTest, DoesNotTouchTheStoredQuantityColumn) {
  screen.AddCounts(1);
  Open();
  ASSERT_EQ(screen.Cell(1, kStoredQuantity), "1");
  Enter(1, "P1");
  EXPECT_EQ(screen.Line(1), (Texts{"P1", "Champú suave", "7", "7", "E1", "Ana", "16/11/2026", "P1", "1"}));
}

TEST_F(ProductLineTest, AnotherCodeOverALineReplacesAllOfIt) {
  Open();
  Enter(1, "P1");
  screen.Type("55\n");
  Enter(1, "P4");
  EXPECT_EQ(screen.Line(1), (Texts{"P4", "Laca fuerte", "0", "0", "E1", "Ana", "16/11/2026", "P4", ""}));
  EXPECT_EQ(screen.Codes(), Texts{"P4"});
}

TEST_F(ProductLineTest, TakesTheDayOfTheCalendar) {
  Open();
  EnterSupervisorMode(screen);
  PickDay(screen, Date(2026, 11, 20));
  Enter(1, "P1");
  EXPECT_EQ(screen.Cell(1, kDate), "20/11/2026");
  EXPECT_EQ(screen.Cell(1, kStylist), "Berta");
}

TEST_F(ProductLineTest, TakesTheDayOfTheCalendarInTheSystemsFormWhateverFormTheLibraryShows) {
  screen.plain_library.date_mask = "yyyy-mm-dd";
  Open();
  ASSERT_EQ(screen.form().MkFecha.Text(), "2026-11-16");
  Enter(1, "P1");
  EXPECT_EQ(screen.Cell(1, kDate), "16/11/2026");
}

TEST_F(ProductLineTest, TakesWhoeverStandsInTheHeader) {
  Open();
  Enter(1, "P1");
  screen.ChooseStylist("E2", "Berta");
  Enter(2, "P4");
  EXPECT_EQ(screen.Cell(1, kEmployeeCode), "E1");
  EXPECT_EQ(screen.Cell(1, kStylist), "Ana");
  EXPECT_EQ(screen.Cell(2, kEmployeeCode), "E2");
  EXPECT_EQ(screen.Cell(2, kStylist), "Berta");
}

TEST_F(ProductLineTest, ASecondLineOfAProductIsRefusedAndTheTextStays) {
  Open();
  Enter(1, "P1");
  screen.Type("5\n");
  Forget(screen);
  screen.Type("P1\n");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesRepeatedProduct});
  EXPECT_EQ(EditorText(screen), "P1");
  EXPECT_EQ(Cursor(screen), "2,0");
  EXPECT_EQ(screen.Line(2), Texts(9, ""));
  EXPECT_TRUE(EditorIsOpen(screen));
}

TEST_F(ProductLineTest, ASecondLineIsRefusedAlsoByItsBarCodeAndByTheDialog) {
  Open();
  Enter(1, "P1");
  screen.Type("5\n");
  Forget(screen);
  screen.Type("8400000000017\n");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesRepeatedProduct});
  EXPECT_EQ(EditorText(screen), "8400000000017");
  screen.library.QueueProduct("P1");
  screen.Key(key::kUp);
  screen.Key(key::kDown);
  screen.Type("xyz\n");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesRepeatedProduct});
  EXPECT_EQ(EditorText(screen), "xyz");
}

TEST_F(ProductLineTest, ARepetitionAboveAndBelowIsFound) {
  screen.AddCounts(4);
  Open();
  Enter(2, "P13");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesRepeatedProduct});
  screen.Key(key::kEscape);
  Enter(4, "P10");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesRepeatedProduct});
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12", "P13"}));
}

TEST_F(ProductLineTest, ARepetitionBelowTheFirstFreeRowDoesNotCount) {
  Open();
  screen.form().MSFProductos.TextMatrix(6, kCode, "P1");
  Enter(1, "P1");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Codes(), Texts{"P1"});
}

TEST_F(ProductLineTest, ARefusedProductIsNotReadAnyFurther) {
  Open();
  Enter(1, "P1");
  screen.Type("5\n");
  Forget(screen);
  screen.Type("P1\n");
  EXPECT_EQ(TakeStatements(screen).size(), 1U);
}

TEST_F(ProductLineTest, ADialogCancelledOnAFilledLineReadsNothingMore) {
  screen.AddCounts(1);
  Open();
  const Texts before = screen.Line(1);
  screen.library.QueueProduct("");
  Enter(1, "xyz");
  EXPECT_EQ(TakeStatements(screen).size(), 2U);  // the products and the references
  EXPECT_EQ(screen.Line(1), before);
  EXPECT_EQ(EditorText(screen), "xyz");
}

TEST_F(ProductLineTest, CodesThatDifferInCaseAreTwoProducts) {
  screen.Execute("INSERT INTO Referencias (Referencia, IdProducto) VALUES ('55', 'p1')");
  Open();
  Enter(1, "P1");
  screen.Type("5\n");
  Forget(screen);
  screen.Type("55\n");  // the reference writes the code in lower case
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Codes(), (Texts{"P1", "p1"}));
}

TEST_F(ProductLineTest, ItsOwnCodeEnteredAgainChangesNothing) {
  Open();
  Enter(1, "P1");
  screen.Type("55\n");
  const Texts before = screen.Line(1);
  Forget(screen);
  Enter(1, "P1");
  EXPECT_EQ(screen.Line(1), before);
  EXPECT_EQ(screen.Cell(1, kQuantity), "55");
  EXPECT_EQ(Cursor(screen), "1,0");
  EXPECT_EQ(EditorText(screen), "P1");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(TakeStatements(screen).size(), 1U);  // the look-up of the code; the line is not read again
}

TEST_F(ProductLineTest, ItsOwnCodeEnteredAgainOnALineFromTheStoreChangesNothing) {
  screen.AddCounts(2);
  Open();
  const Texts before = screen.Line(1);
  Enter(1, "P10");
  EXPECT_EQ(screen.Line(1), before);
  EXPECT_EQ(Cursor(screen), "1,0");
}

TEST_F(ProductLineTest, AProductThatIsGoneMeanwhileLeavesTheLineAsItWas) {
  screen.Execute("INSERT INTO Referencias (Referencia, IdProducto) VALUES ('77', 'GONE')");
  Open();
  Enter(1, "77");
  EXPECT_EQ(screen.Line(1), Texts(9, ""));
  EXPECT_EQ(EditorText(screen), "77");
  EXPECT_EQ(Cursor(screen), "1,0");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_F(ProductLineTest, IsWrittenInItsOrder) {
  Open();
  screen.DoubleClickCell(1, kCode);
  screen.Type("8400000000017");
  Texts steps;
  screen.form().TxtMSF.OnChange = [&] { steps.push_back("editor " + EditorText(screen)); };
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    const bool stock = statement.text.find("ProdSucStock") != std::string::npos;
    if (!stock) return;
    for (const std::string& cell : screen.Line(1)) steps.push_back(cell);
  });
  screen.Enter();
  screen.recordsets.OnOpen({});
  screen.form().TxtMSF.OnChange = nullptr;
  // Editor, code and description stand before the stock is read; the rest comes after. Then the cursor moves.
  EXPECT_EQ(steps, (Texts{"editor P1", "P1", "Champú suave", "", "", "", "", "", "", "", "editor 7"}));
}

TEST_F(ProductLineTest, WritesItsDayInTheFormOfTheRegion) {
  FormDriver english(Dialect::kSqlServer, Region::English());
  english.OpenWithStylist();
  english.DoubleClickCell(1, kCode);
  english.Type("P2\n");
  EXPECT_EQ(english.Line(1), (Texts{"P2", "Crema de manos", "2", "2", "E1", "Ana", "11/16/2026", "P2", ""}));
}

}  // namespace
}  // namespace orvendal
