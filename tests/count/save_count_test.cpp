#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class SaveCountTest : public testing::TestWithParam<Dialect> {
 protected:
  std::string Stored(const std::string& product, const std::string& field) {
    return screen.Sql("SELECT " + field + " FROM HistOrvendalcial WHERE IdProducto = '" + product + "'");
  }
  std::string StoredRows() { return screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"); }
  static std::string Recalculation(const std::string& code, const std::string& branch = "01") {
    return "RecalculoGlobal.RecalcularProducto(Conexion, \"" + branch + "\", \"" + code + "\", \"\")";
  }
  FormDriver screen{GetParam()};
};

TEST_P(SaveCountTest, OfAnEmptyGridDeletesTheDayAndRecalculatesWhatItHeld) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.ClickCell(1, kCode);
  screen.Click("LblBorrar");
  screen.Click("LblBorrar");
  ASSERT_TRUE(screen.Codes().empty());
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredRows(), "0");
  EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal"), (Texts{Recalculation("P10"), Recalculation("P11")}));
  EXPECT_TRUE(screen.Codes().empty());
  EXPECT_FALSE(screen.form().HayCambios());
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_P(SaveCountTest, ALineDeletedFromTheGridGoesAndIsRecalculated) {
  screen.AddCounts(3);
  screen.OpenWithStylist();
  screen.ClickCell(2, kCode);
  screen.Click("LblBorrar");
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(Stored("P11", "COUNT(*)"), "0");
  EXPECT_EQ(StoredRows(), "2");
  EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal"),
            (Texts{Recalculation("P10"), Recalculation("P12"), Recalculation("P11")}));
}

TEST_P(SaveCountTest, ACodeOfGridAndSnapshotIsRecalculatedOnce) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal"),
            (Texts{Recalculation("P10"), Recalculation("P11"), Recalculation("P1")}));
  EXPECT_EQ(screen.form().CodigosaRecalcular.ListCount(), 3);
  EXPECT_EQ(screen.form().CodigosaRecalcular.List(2), "P1");
}

TEST_P(SaveCountTest, TheListOfCodesIsEmptiedByTheNextSave) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.Click("LblGuardar");
  ASSERT_EQ(screen.form().CodigosaRecalcular.ListCount(), 1);
  screen.Execute("DELETE FROM HistOrvendalcial");
  screen.Click("LblCancelar");
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, kCode);
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.form().CodigosaRecalcular.ListCount(), 0);
  EXPECT_TRUE(TakeCalls(screen, "RecalculoGlobal").empty());
}

TEST_P(SaveCountTest, CodesThatDifferInCaseAreRecalculatedBoth) {
  screen.AddCount("p1", 1, 2);  // the store joins it with P1
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal"), (Texts{Recalculation("p1"), Recalculation("P1")}));
}

TEST_P(SaveCountTest, WithNoStylistTellsAndTouchesNothing) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("77");
  screen.form().TxtEmpleado.Enabled(true);
  screen.form().TxtEmpleado.Text("");
  Forget(screen);
  screen.library.QueueEmployee({false, "", ""});
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist});
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_EQ(Stored("P11", "StockActual"), "2");
  EXPECT_EQ(screen.Cell(2, kQuantity), "77");
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "");
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_TRUE(TakeCalls(screen, "RecalculoGlobal").empty());
}

TEST_P(SaveCountTest, ARefusedSaveGoesThroughOnceAStylistIsChosen) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.form().TxtEmpleado.Enabled(true);
  screen.form().TxtEmpleado.Text("");
  screen.library.QueueEmployee({true, "E2", "Berta"});  // the focus on the box brings the picker
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Berta");
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredRows(), "2");
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_P(SaveCountTest, AnEmptyQuantityIsStoredAsZero) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.ClickCell(1, kQuantity);
  screen.Key(key::kDelete);
  screen.ClickCell(2, kCode);
  ASSERT_EQ(screen.Cell(1, kQuantity), "");
  screen.Click("LblGuardar");
  EXPECT_EQ(Stored("P1", "StockActual"), "0");
}

TEST_P(SaveCountTest, EmptyCellsAreFilledFromTheHeaderAndTheScreen) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  for (const int column : {kPreviousQuantity, kQuantity, kEmployeeCode, kDate})
    screen.form().MSFProductos.TextMatrix(1, column, "");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT StockAnterior || ' ' || StockActual || ' ' || IdEmpleado || ' ' || Fecha "
                       "FROM HistOrvendalcial"),
            "0 0 E1 2026-11-16 00:00:00");
}

TEST_P(SaveCountTest, MoreThanTwelveLinesAreSavedToTheLast) {
  screen.OpenWithStylist();
  for (int number = 10; number < 30; ++number) screen.EnterLine("P" + std::to_string(number), "3");
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredRows(), "20");
  EXPECT_EQ(Stored("P29", "StockActual"), "3");
}

TEST_P(SaveCountTest, TheLastGridRowIsSavedWithItsQuantityStillOpen) {
  screen.OpenWithStylist();
  for (int number = 10; number <= 20; ++number) screen.EnterLine("P" + std::to_string(number), "3");
  screen.Type("P21\n9");
  ASSERT_EQ(Cursor(screen), "12,3");
  ASSERT_EQ(screen.form().MSFProductos.Rows(), 13);
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredRows(), "12");
  EXPECT_EQ(Stored("P21", "StockActual"), "9");
}

TEST_P(SaveCountTest, ABranchCodeOfFourCharactersIsCutForDeleteRowsAndRecalculation) {
  screen.AddCount("P10", 1, 2);
  screen.AddCount("P10", 1, 2, "E1", "2026-11-16", "02");
  screen.OpenWithStylist("0145");
  screen.EnterLine("P1", "5");
  Forget(screen);
  screen.Click("LblGuardar");
  const Texts statements = TakeStatements(screen);
  ASSERT_FALSE(statements.empty());
  EXPECT_TRUE(statements[0].starts_with(
      "DELETE FROM HistOrvendalcial WHERE (HistOrvendalcial.idSucursal Like '01') AND "))
      << statements[0];
  EXPECT_EQ(screen.Sql("SELECT GROUP_CONCAT(IdSucursal || ' ' || IdProducto || ' ' || ModificadoPor, ', ') "
                       "FROM HistOrvendalcial"),
            "02 P10 02, 01 P10 01, 01 P1 01");
  EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal"), (Texts{Recalculation("P10"), Recalculation("P1")}));
  EXPECT_EQ(screen.state.session.CodSucursal, "0145");
}

TEST_P(SaveCountTest, ALineIsSavedOnItsOwnDayAndOneWithoutADayOnThatOfTheHiddenBox) {
  screen.Open();
  EnterSupervisorMode(screen);
  PickDay(screen, Date(2026, 11, 13));
  screen.EnterLine("P1", "5");
  screen.EnterLine("P4", "6");
  screen.EnterLine("P3", "7");
  screen.form().MSFProductos.TextMatrix(1, kDate, "12/11/2026");
  screen.form().MSFProductos.TextMatrix(2, kDate, "");
  ASSERT_EQ(screen.form().MkFecha.Text(), "13/11/2026");
  screen.Click("LblGuardar");
  EXPECT_EQ(Stored("P1", "Fecha"), "2026-11-12 00:00:00");
  EXPECT_EQ(Stored("P4", "Fecha"), "2026-11-16 00:00:00");
  EXPECT_EQ(Stored("P3", "Fecha"), "2026-11-13 00:00:00");
}

TEST_P(SaveCountTest, InNormalModeTheNextCountNeedsItsStylist) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "");
  EXPECT_EQ(screen.form().TxtCodigo.Text(), "");
  EXPECT_TRUE(screen.form().TxtEmpleado.Enabled());
  EXPECT_EQ(AvailableButtons(screen), kBotonesEnReposo);
}

TEST_P(SaveCountTest, InSupervisorModeTheHeaderKeepsItsName) {
  screen.Open();
  EnterSupervisorMode(screen);
  screen.EnterLine("P1", "5");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Berta");
  EXPECT_EQ(screen.form().TxtCodigo.Text(), "E2");
  EXPECT_FALSE(screen.form().TxtEmpleado.Enabled());
  EXPECT_TRUE(screen.form().LblSupervisor.Visible());
  EXPECT_EQ(Stored("P1", "IdEmpleado"), "E2");
}

TEST_P(SaveCountTest, AnUnchangedDayIsWrittenAnewWithTheMomentOfTheSave) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.clock.Set(Date(2026, 11, 16, 18, 45, 7));
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredRows(), "2");
  EXPECT_EQ(Stored("P10", "Actualizado"), "2026-11-16 18:45:07");
  EXPECT_EQ(Stored("P11", "Actualizado"), "2026-11-16 18:45:07");
}

TEST_P(SaveCountTest, TheMomentIsTakenAnewForEachRow) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  int rows = 0;
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    if (statement.text.starts_with("SELECT Productos.Codigo FROM"))
      screen.clock.Set(Date(2026, 11, 16, 11, 0, ++rows));
  });
  screen.Click("LblGuardar");
  screen.recordsets.OnOpen({});
  EXPECT_EQ(Stored("P10", "Actualizado"), "2026-11-16 11:00:01");
  EXPECT_EQ(Stored("P11", "Actualizado"), "2026-11-16 11:00:02");
}

TEST_P(SaveCountTest, AReloadedLineKeepsWhoCountedItAndItsQuantityBefore) {
  screen.AddCount("P1", 3, 4, "E1");
  screen.Open();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.ClickCell(1, kCode);
  screen.EnterLine("P4", "6");
  screen.Click("LblGuardar");
  EXPECT_EQ(Stored("P1", "IdEmpleado"), "E1");
  EXPECT_EQ(Stored("P1", "StockAnterior"), "3");
  EXPECT_EQ(Stored("P4", "IdEmpleado"), "E2");
}

TEST_P(SaveCountTest, DoesNotReadTheStockAgain) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.Execute("UPDATE ProdSucStock SET Stock = 99 WHERE IdProducto = 'P1'");
  screen.Click("LblGuardar");
  EXPECT_EQ(Stored("P1", "StockAnterior"), "7");
}

TEST_P(SaveCountTest, ALineWithATimeOfDayIsWrittenBackOnItsDay) {
  screen.AddCount("P1", 3, 4);
  screen.Execute("UPDATE HistOrvendalcial SET Fecha = '2026-11-16 12:00:00'");
  screen.OpenWithStylist();
  screen.Click("LblGuardar");
  EXPECT_EQ(Stored("P1", "Fecha"), "2026-11-16 00:00:00");
  EXPECT_EQ(StoredRows(), "1");
}

TEST_P(SaveCountTest, AProductThatIsGoneIsSkippedWithNoMessageAndDropsOut) {
  screen.AddCounts(3);
  screen.OpenWithStylist();
  screen.Execute("DELETE FROM Productos WHERE Codigo = 'P11'");
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredRows(), "2");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P12"}));
  // The snapshot still names it.
  EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal"),
            (Texts{Recalculation("P10"), Recalculation("P12"), Recalculation("P11")}));
}

TEST_P(SaveCountTest, TheFirstEmptyCodeEndsTheLines) {
  screen.AddCounts(3);
  screen.OpenWithStylist();
  screen.form().MSFProductos.TextMatrix(2, kCode, "");
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredRows(), "1");
  EXPECT_EQ(Stored("P10", "COUNT(*)"), "1");
}

TEST_P(SaveCountTest, ACodeOfBlanksEndsTheSnapshot) {
  screen.AddCounts(3);
  screen.OpenWithStylist();
  screen.form().MSFProductos1.TextMatrix(2, kCode, "  ");
  screen.form().MSFProductos1.TextMatrix(3, kCode, "P40");
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal"),
            (Texts{Recalculation("P10"), Recalculation("P11"), Recalculation("P12")}));
}

TEST_P(SaveCountTest, OtherDaysAndBranchesStay) {
  screen.AddCount("P1", 1, 2, "E1", "2026-11-15");
  screen.AddCount("P1", 1, 2, "E1", "2026-11-16", "02");
  screen.OpenWithStylist();
  screen.EnterLine("P4", "6");
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredRows(), "3");
}

TEST_P(SaveCountTest, CanBeRepeatedAsOftenAsWanted) {
  screen.Open();
  EnterSupervisorMode(screen);
  screen.EnterLine("P1", "5");
  for (int times = 0; times < 3; ++times) {
    screen.form().LblGuardar_Click(0);
    EXPECT_EQ(StoredRows(), "1");
    EXPECT_EQ(screen.Codes(), Texts{"P1"});
  }
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_P(SaveCountTest, EitherMemberOfTheButtonSaves) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.Click("LblGuardar(0)");
  EXPECT_EQ(StoredRows(), "1");
}

TEST_P(SaveCountTest, PaintsTheFormBeforeTheDayIsLoadedAgain) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  HeadlessWindow* window = screen.host.WindowOf(screen.form());
  const int before = window->TimesPainted();
  int at_the_load = 0;
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    if (statement.text.starts_with("SELECT HistOrvendalcial.IdSucursal"))
      at_the_load = window->TimesPainted();
  });
  screen.Click("LblGuardar");
  screen.recordsets.OnOpen({});
  EXPECT_EQ(at_the_load, before + 1);
}

INSTANTIATE_TEST_SUITE_P(BothDialects, SaveCountTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal
