#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// What the screen relies on of the tables, and what it leaves in the one that it writes.
class HistoryTableTest : public testing::TestWithParam<Dialect> {
 protected:
  std::string Count(const std::string& where) {
    return screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial WHERE " + where);
  }
  FormDriver screen{GetParam()};
};

TEST_P(HistoryTableTest, ARowOfAnUnknownEmployeeLoadsCompleteWithAnEmptyStylist) {
  screen.AddCount("P1", 7, 9, "E99");
  screen.Open();
  EXPECT_EQ(screen.Line(1), (Texts{"P1", "Champú suave", "7", "9", "E99", "", "16/11/2026", "P1", "9"}));
}

TEST_P(HistoryTableTest, ARowOfAnUnknownEmployeeIsSavedWithItsCode) {
  screen.AddCount("P1", 7, 9, "E99");
  screen.OpenWithStylist();
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT IdEmpleado FROM HistOrvendalcial"), "E99");
}

TEST_P(HistoryTableTest, ARowOfAnUnknownProductDoesNotLoad) {
  screen.AddCount("GONE", 1, 2);
  screen.AddCount("P1", 7, 9);
  screen.Open();
  EXPECT_EQ(screen.Codes(), Texts{"P1"});
  EXPECT_EQ(screen.form().MSFProductos1.Rows(), 2);
}

TEST_P(HistoryTableTest, ARowOfAnUnknownProductIsDeletedForGoodByTheNextSave) {
  screen.AddCount("GONE", 1, 2);
  screen.AddCount("P1", 7, 9);
  screen.OpenWithStylist();
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(Count("IdProducto = 'GONE'"), "0");
  EXPECT_EQ(Count("IdProducto = 'P1'"), "1");
  EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal"),
            Texts{"RecalculoGlobal.RecalcularProducto(Conexion, \"01\", \"P1\", \"\")"});
}

TEST_P(HistoryTableTest, AProductWithoutAStockRowCountsAsZeroAndCanBeSaved) {
  screen.OpenWithStylist();
  screen.EnterLine("P4", "6");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT StockAnterior || ' ' || StockActual FROM HistOrvendalcial"), "0 6");
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM ProdSucStock WHERE IdProducto = 'P4'"), "0");
}

TEST_P(HistoryTableTest, TwoBranchesWithTheSameFirstTwoCharactersShareTheirRows) {
  screen.OpenWithStylist("01A");
  screen.EnterLine("P1", "5");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT IdSucursal || ModificadoPor FROM HistOrvendalcial"), "0101");

  screen.Open("01B");
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Codes(), Texts{"P1"});
}

TEST_P(HistoryTableTest, ARowHoldsTheEightFieldsAndTheStoresDefaultsInAllOthers) {
  screen.Execute("ALTER TABLE HistOrvendalcial ADD COLUMN Observaciones VARCHAR(20) DEFAULT 'sin nota'");
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(screen.Sql("SELECT IdSucursal || '|' || Fecha || '|' || IdProducto || '|' || StockAnterior || "
                       "'|' || StockActual || '|' || IdEmpleado || '|' || Actualizado || '|' || "
                       "ModificadoPor || '|' || Observaciones FROM HistOrvendalcial"),
            "01|2026-11-16 00:00:00|P1|7|5|E1|2026-11-16 10:30:00|01|sin nota");
}

TEST_P(HistoryTableTest, NoOtherTableIsEverWritten) {
  screen.Execute("CREATE TABLE Writes (n INTEGER)");
  for (const char* table : {"Productos", "Referencias", "Empleados", "Sucursales", "ProdSucStock"}) {
    for (const char* event : {"INSERT", "UPDATE", "DELETE"}) {
      screen.Execute(std::string("CREATE TRIGGER t_") + table + event + " AFTER " + event + " ON " + table +
                     " BEGIN INSERT INTO Writes VALUES (1); END");
    }
  }
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.EnterLine("P4", "5");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM Writes"), "0");
  EXPECT_EQ(Count("1 = 1"), "2");
}

TEST_P(HistoryTableTest, FieldNamesAreTakenInAnySpelling) {
  screen.Execute("ALTER TABLE HistOrvendalcial RENAME COLUMN StockAnterior TO STOCKANTERIOR");
  screen.Execute("ALTER TABLE HistOrvendalcial RENAME COLUMN IdSucursal TO IDSUCURSAL");
  screen.AddCount("P1", 7, 9);
  screen.OpenWithStylist();
  EXPECT_EQ(screen.Cell(1, kPreviousQuantity), "7");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(screen.Sql("SELECT StockAnterior FROM HistOrvendalcial"), "7");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, HistoryTableTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal
