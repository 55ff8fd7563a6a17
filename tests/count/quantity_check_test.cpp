#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/stored_counts.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using namespace testing_support;

const std::string kWrongType = "3421: Application uses a value of the wrong type for the current operation.";

/// A day of three lines, the stored ones, and a fourth that was typed; one of them has a quantity that no
/// number field takes.
class QuantityCheckTest : public testing::TestWithParam<Dialect> {
 protected:
  QuantityCheckTest() {
    screen.AddCounts(3);
    screen.OpenWithStylist();
    screen.EnterLine("P1", "5");
    screen.Key(key::kEscape);
    Forget(screen);
  }
  void PutQuantity(int row, const std::string& text) {
    screen.form().MSFProductos.TextMatrix(row, kQuantity, text);
  }
  std::string StoredCodes() { return testing_support::StoredCodes(screen); }
  void ExpectRefusedOnLine(int row, const std::string& shown) {
    EXPECT_EQ(TakeErrors(screen), Texts{kWrongType});
    EXPECT_TRUE(TakeMessages(screen).empty());
    EXPECT_TRUE(TakeStatements(screen).empty());
    EXPECT_EQ(StoredCodes(), "P10 P11 P12");
    EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12", "P1"}));
    EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
    EXPECT_TRUE(TakeCalls(screen, "RecalculoGlobal").empty());
    ExpectEditorOver(row, shown);
  }
  void ExpectEditorOver(int row, const std::string& shown) {
    EXPECT_EQ(Cursor(screen), std::to_string(row) + ",3");
    EXPECT_TRUE(EditorIsOpen(screen));
    EXPECT_EQ(EditorText(screen), shown);
    EXPECT_TRUE(EditorTextIsSelected(screen));
    EXPECT_EQ(screen.Focused(), "TxtMSF");
    EXPECT_EQ(AvailableButtons(screen), kBotonesEnCelda);
    const MSFlexGrid& grid = screen.form().MSFProductos;
    EXPECT_EQ(screen.form().TxtMSF.Top(), grid.Top() + grid.CellRectangle(row, kQuantity).top - 10);
  }
  FormDriver screen{GetParam()};
};

TEST_P(QuantityCheckTest, ALoneSignOrMarkEndsTheSaveBeforeTheDeleteWithTheEditorOverIt) {
  for (const char* text : {",", "-", "muchos", "1.5", "4,5,", " "}) {
    SCOPED_TRACE(text);
    screen.Key(key::kEscape);  // from the editor of the round before
    PutQuantity(2, text);
    screen.Click("LblGuardar");
    ExpectRefusedOnLine(2, text);
  }
}

TEST_P(QuantityCheckTest, ItIsTheErrorThatTheAssignmentRaises) {
  const RecordsetRef rows = screen.recordsets.NewRecordset();
  rows->Open("SELECT HistOrvendalcial.* FROM HistOrvendalcial", screen.connection, CursorType::kDynamic,
             LockType::kOptimistic, kCommandUnspecified);
  rows->AddNew();
  std::string of_the_assignment;
  try {
    rows->Collect("StockActual", ",");
  } catch (const RuntimeError& error) {
    of_the_assignment = std::to_string(error.Number()) + ": " + error.Description();
  }
  rows->Close();
  PutQuantity(4, ",");
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeErrors(screen), Texts{of_the_assignment});
}

TEST_P(QuantityCheckTest, WhatWasLeftOfATypedQuantityIsFoundWhileItsEditorIsStillOpen) {
  screen.DoubleClickCell(3, kQuantity);
  screen.Type("4,");
  screen.Key(key::kHome);
  screen.Key(key::kDelete);
  ASSERT_EQ(EditorText(screen), ",");
  screen.Click("LblGuardar");
  ExpectRefusedOnLine(3, ",");
  EXPECT_EQ(screen.Cell(3, kQuantity), ",");
}

TEST_P(QuantityCheckTest, PutRightThereTheCountIsSavedWhole) {
  PutQuantity(2, "-");
  screen.Click("LblGuardar");
  screen.Type("8");
  TakeErrors(screen);
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(StoredCodes(), "P10 P11 P12 P1");
  EXPECT_EQ(screen.Sql("SELECT StockActual FROM HistOrvendalcial WHERE IdProducto = 'P11'"), "8");
  EXPECT_FALSE(EditorIsOpen(screen));
}

TEST_P(QuantityCheckTest, APreviousQuantityThatTheStoreHeldAsAWordLeadsToItsLine) {
  screen.Execute("UPDATE HistOrvendalcial SET StockAnterior = 'pocos' WHERE IdProducto = 'P12'");
  screen.Click("LblCancelar");
  ASSERT_EQ(screen.Cell(3, kPreviousQuantity), "pocos");
  screen.EnterLine("P1", "5");
  Forget(screen);
  screen.Click("LblGuardar");
  ExpectRefusedOnLine(3, "3");
  // Nobody can type there; the line without it goes through.
  screen.Click("LblBorrar");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(StoredCodes(), "P10 P11 P1");
}

TEST_P(QuantityCheckTest, TheFirstSuchLineIsShown) {
  PutQuantity(4, "-");
  PutQuantity(2, ",");
  screen.Click("LblGuardar");
  ExpectRefusedOnLine(2, ",");
}

TEST_P(QuantityCheckTest, ALineFarBelowIsBroughtIntoView) {
  screen.Key(key::kEscape);
  for (int number = 13; number <= 40; ++number) screen.EnterLine("P" + std::to_string(number), "3");
  screen.Key(key::kEscape);
  screen.form().MSFProductos.TopRow(1);
  PutQuantity(32, "-");
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeErrors(screen), Texts{kWrongType});
  EXPECT_TRUE(screen.form().MSFProductos.RowIsVisible(32));
  ExpectEditorOver(32, "-");
}

TEST_P(QuantityCheckTest, AnEmptyQuantityIsZeroAsEver) {
  PutQuantity(2, "");
  screen.form().MSFProductos.TextMatrix(2, kPreviousQuantity, "");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(screen.Sql("SELECT StockAnterior || ' ' || StockActual FROM HistOrvendalcial WHERE IdProducto = "
                       "'P11'"),
            "0 0");
}

TEST_P(QuantityCheckTest, BehindTheLastLineNobodyLooks) {
  PutQuantity(6, "-");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(StoredCodes(), "P10 P11 P12 P1");
}

TEST_P(QuantityCheckTest, TheStylistIsAskedForFirst) {
  PutQuantity(2, "-");
  screen.form().TxtEmpleado.Enabled(true);
  screen.form().TxtEmpleado.Text("");
  screen.library.QueueEmployee({false, "", ""});
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist});
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_FALSE(EditorIsOpen(screen));
}

TEST_P(QuantityCheckTest, ASaveOnTheWayOutKeepsTheScreenOpenOnThatLine) {
  PutQuantity(2, "-");
  screen.library.QueueAnswer(message::kYes);
  ClickClose(screen);
  EXPECT_EQ(TakeMessages(screen), Texts{GuardQuestion(message::kYes)});
  ASSERT_TRUE(screen.HasForm());
  ExpectRefusedOnLine(2, "-");
}

TEST_P(QuantityCheckTest, ASaveOnTheWayToAnotherDayStaysOnTheDayAndOnThatLine) {
  EnterSupervisorMode(screen);
  PutQuantity(2, "-");
  Forget(screen);
  screen.library.QueueAnswer(message::kYes);
  PickDay(screen, Date(2026, 11, 13));
  EXPECT_EQ(TakeMessages(screen), Texts{GuardQuestion(message::kYes)});
  EXPECT_EQ(TakeErrors(screen), Texts{kWrongType});
  EXPECT_EQ(screen.form().MkFecha.Text(), "16/11/2026");
  EXPECT_EQ(screen.form().Calendario.Value(), Date(2026, 11, 16));
  EXPECT_FALSE(screen.form().variables.FlagFechaCambio);
  EXPECT_FALSE(screen.form().PicCalendario.Visible());
  EXPECT_EQ(StoredCodes(), "P10 P11 P12");
  ExpectEditorOver(2, "-");
}

TEST_P(QuantityCheckTest, ASaveOnTheWayOutOfSupervisorModeStaysInIt) {
  EnterSupervisorMode(screen);
  PutQuantity(2, "-");
  Forget(screen);
  screen.library.QueueAnswer(message::kYes);
  screen.Click("BtnAnuloSuper");
  EXPECT_EQ(TakeErrors(screen), Texts{kWrongType});
  EXPECT_TRUE(screen.form().LblSupervisor.Visible());
  EXPECT_FALSE(screen.form().variables.FlagSupervisor);
  EXPECT_EQ(StoredCodes(), "P10 P11 P12");
  ExpectEditorOver(2, "-");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, QuantityCheckTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

TEST(QuantityCheckInEnglishTest, TheMarkIsThatOfTheUsersRegion) {
  FormDriver screen{Dialect::kSqlServer, Region::English()};
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.form().MSFProductos.TextMatrix(1, kQuantity, "4,5");
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeErrors(screen), Texts{kWrongType});
  screen.form().TxtMSF.Text("4.5");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(screen.Sql("SELECT StockActual FROM HistOrvendalcial"), "4.5");
}

}  // namespace
}  // namespace orvendal
