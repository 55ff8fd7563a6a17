#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class LoadDayTest : public testing::TestWithParam<Dialect> {
 protected:
  /// Opens on a day of `lines` lines.
  void Open(int lines) {
    screen.AddCounts(lines);
    screen.Open();
  }
  MSFlexGrid& grid() { return screen.form().MSFProductos; }
  MSFlexGrid& snapshot() { return screen.form().MSFProductos1; }

  FormDriver screen{GetParam()};
};

TEST_P(LoadDayTest, ADayWithNoRowsShowsTwelveBlankLines) {
  Open(0);
  EXPECT_EQ(grid().Rows(), 13);
  for (int row = 1; row <= 12; ++row) EXPECT_EQ(screen.Line(row), Texts(9, "")) << row;
  EXPECT_EQ(grid().Row(), 1);
  EXPECT_EQ(snapshot().Rows(), 1);
  EXPECT_EQ(snapshot().TextMatrix(0, column::kCode), "Código");
  EXPECT_FALSE(screen.form().HayCambios());
}

TEST_P(LoadDayTest, ARowLandsInBothGridsInTheSameOrder) {
  screen.AddCount("P2", 2.5, 4, "E3");
  screen.Open();
  const Texts line = {"P2", "Crema de manos", "2,5", "4", "E3", "Carmen", "16/11/2026", "P2", "4"};
  EXPECT_EQ(screen.Line(1), line);
  EXPECT_EQ(SnapshotLine(screen, 1), line);
  EXPECT_EQ(snapshot().Rows(), 2);
}

TEST_P(LoadDayTest, ElevenRowsLeaveTheTwelfthLineBlank) {
  Open(11);
  EXPECT_EQ(grid().Rows(), 13);
  EXPECT_EQ(screen.Cell(11, kCode), "P20");
  EXPECT_EQ(screen.Line(12), Texts(9, ""));
  EXPECT_EQ(grid().Row(), 11);
  EXPECT_EQ(snapshot().Rows(), 12);
}

TEST_P(LoadDayTest, TwelveRowsAddOneFreeRow) {
  Open(12);
  EXPECT_EQ(grid().Rows(), 14);
  EXPECT_EQ(screen.Cell(12, kCode), "P21");
  EXPECT_EQ(screen.Line(13), Texts(9, ""));
  EXPECT_EQ(grid().Row(), 12);
  EXPECT_EQ(snapshot().Rows(), 13);
}

TEST_P(LoadDayTest, ThirteenRowsMakeFifteen) {
  Open(13);
  EXPECT_EQ(grid().Rows(), 15);
  EXPECT_EQ(screen.Cell(13, kCode), "P22");
  EXPECT_EQ(screen.Line(14), Texts(9, ""));
  EXPECT_EQ(grid().Row(), 13);
  EXPECT_EQ(snapshot().Rows(), 14);
}

TEST_P(LoadDayTest, AnEmployeeWhomTheStoreDoesNotKnowShowsCodeOnly) {
  screen.AddCount("P1", 1, 2, "E99");
  screen.Open();
  EXPECT_EQ(screen.Cell(1, kEmployeeCode), "E99");
  EXPECT_EQ(screen.Cell(1, kStylist), "");
  EXPECT_EQ(SnapshotLine(screen, 1)[kStylist], "");
}

TEST_P(LoadDayTest, ALoadAfterThirtyLinesCutsTheGridBackFirst) {
  Open(30);
  ASSERT_EQ(grid().Rows(), 32);
  screen.Execute("DELETE FROM HistOrvendalcial WHERE IdProducto <> 'P10'");
  int rows_at_the_query = 0;
  screen.recordsets.OnOpen([&](const OpenedStatement&) { rows_at_the_query = grid().Rows(); });
  screen.Click("LblCancelar");
  screen.recordsets.OnOpen({});
  EXPECT_EQ(rows_at_the_query, 13);
  EXPECT_EQ(grid().Rows(), 13);
  EXPECT_EQ(screen.Codes(), Texts{"P10"});
  for (int row = 2; row <= 12; ++row) EXPECT_EQ(screen.Line(row), Texts(9, "")) << row;
  EXPECT_EQ(grid().Row(), 1);
  EXPECT_EQ(snapshot().Rows(), 2);
}

TEST_P(LoadDayTest, TheSnapshotIsEmptiedBeforeTheStoreIsAsked) {
  Open(5);
  int rows_at_the_query = 0;
  screen.recordsets.OnOpen([&](const OpenedStatement&) { rows_at_the_query = snapshot().Rows(); });
  screen.Click("LblCancelar");
  screen.recordsets.OnOpen({});
  EXPECT_EQ(rows_at_the_query, 1);
  EXPECT_EQ(snapshot().Rows(), 6);
}

TEST_P(LoadDayTest, KeepsTheColumnOfTheCursor) {
  screen.AddCounts(4);
  screen.OpenWithStylist();
  screen.ClickCell(1, kQuantity);
  screen.Click("LblCancelar");
  EXPECT_EQ(Cursor(screen), "4,3");
}

TEST_P(LoadDayTest, OfAnEmptyDayKeepsTheColumnToo) {
  screen.OpenWithStylist();
  screen.ClickCell(1, kDescription);
  screen.Click("LblCancelar");
  EXPECT_EQ(Cursor(screen), "1,1");
}

TEST_P(LoadDayTest, ShowsTheEndOfALongDay) {
  Open(30);
  EXPECT_TRUE(grid().RowIsVisible(30));
  // The last row that was not in view when it was written: the fixed twelve above the end of the grid.
  int top = 1;
  const double visible = (grid().Height() - 500) / 500;
  int rows = 13;
  for (int row = 1; row <= 30; ++row) {
    if (row > rows - 1) ++rows;
    if (row >= top + visible) top = rows - 12;
  }
  EXPECT_EQ(grid().TopRow(), top);
}

TEST_P(LoadDayTest, DoesNotScrollWhatIsInView) {
  Open(12);  // the twelfth line shows cut
  EXPECT_EQ(grid().TopRow(), 1);
}

TEST_P(LoadDayTest, ScrollsToTwelveRowsAboveTheEndForTheFirstLineOutOfView) {
  Open(13);  // 14 rows when the thirteenth line was written
  EXPECT_EQ(grid().TopRow(), 2);
}

TEST_P(LoadDayTest, ShowsOnlyItsBranchAndDay) {
  screen.AddCount("P1", 1, 2);
  screen.AddCount("P2", 1, 2, "E1", "2026-11-15");
  screen.AddCount("P3", 1, 2, "E1", "2026-11-17");
  screen.AddCount("P4", 1, 2, "E1", "2026-11-16", "02");
  screen.Open();
  EXPECT_EQ(screen.Codes(), Texts{"P1"});
}

TEST_P(LoadDayTest, ShowsARowWithATimeOfTheDay) {
  screen.AddCount("P1", 1, 2);
  screen.Execute("UPDATE HistOrvendalcial SET Fecha = '2026-11-16 23:59:59'");
  screen.Open();
  EXPECT_EQ(screen.Cell(1, kDate), "16/11/2026 23:59:59");
}

TEST_P(LoadDayTest, TouchesNeitherHeaderNorEditorNorBarNorTheListOfCodes) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.form().CodigosaRecalcular.AddItem("P33");
  screen.form().TxtMSF.Text("a medias");
  const std::string buttons = AvailableButtons(screen);
  screen.form().CargarExistencias();
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
  EXPECT_EQ(screen.form().TxtCodigo.Text(), "E1");
  EXPECT_EQ(screen.form().TxtMSF.Text(), "a medias");
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(screen.form().CodigosaRecalcular.ListCount(), 1);
  EXPECT_EQ(AvailableButtons(screen), buttons);
}

TEST_P(LoadDayTest, AsksTheStoreOnce) {
  screen.Open();
  Forget(screen);
  screen.Click("LblCancelar");
  const std::string condition =
      GetParam() == Dialect::kJet
          ? "BETWEEN #11/16/2026 00:00:00# AND #11/16/2026 23:59:59#"
          : "BETWEEN CONVERT(DATETIME, '2026-11-16 00:00:00', 102) AND CONVERT(DATETIME, '2026-11-16 "
            "23:59:59', 102)";
  EXPECT_EQ(
      TakeStatements(screen),
      Texts{"SELECT HistOrvendalcial.IdSucursal, HistOrvendalcial.Fecha, HistOrvendalcial.IdProducto, "
            "Productos.Descripcion, HistOrvendalcial.StockAnterior, HistOrvendalcial.StockActual, "
            "HistOrvendalcial.IdEmpleado, Empleados.Nombre FROM (HistOrvendalcial INNER JOIN Productos ON "
            "HistOrvendalcial.IdProducto = Productos.Codigo)  LEFT JOIN Empleados ON "
            "HistOrvendalcial.IdEmpleado = Empleados.Codigo WHERE (HistOrvendalcial.idSucursal = '01') "
            "AND (HistOrvendalcial.Fecha " +
            condition + ")"});
}

TEST_P(LoadDayTest, AfterItNothingIsChanged) {
  Open(20);
  EXPECT_FALSE(screen.form().HayCambios());
  screen.Click("LblCancelar");
  EXPECT_FALSE(screen.form().HayCambios());
}

INSTANTIATE_TEST_SUITE_P(BothDialects, LoadDayTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal
