#include "store/statements.h"

#include <gtest/gtest.h>

#include "tests/support/event_log.h"
#include "tests/support/form_driver.h"
#include "tests/support/recording_recordsets.h"

namespace orvendal {
namespace {

TEST(StatementsTest, TheBranches) {
  EXPECT_EQ(statements::Branches(),
            "SELECT Sucursales.Sucursal, Sucursales.Nombre FROM Sucursales ORDER BY Sucursales.Nombre");
  EXPECT_EQ(statements::BranchCriterion("01"), "Sucursal like '01'");
}

TEST(StatementsTest, TheLinesOfADay) {
  EXPECT_EQ(statements::LinesOfDay("01", "BETWEEN #11/16/2026 00:00:00# AND #11/16/2026 23:59:59#"),
            "SELECT HistOrvendalcial.IdSucursal, HistOrvendalcial.Fecha, HistOrvendalcial.IdProducto, "
            "Productos.Descripcion, HistOrvendalcial.StockAnterior, HistOrvendalcial.StockActual, "
            "HistOrvendalcial.IdEmpleado, Empleados.Nombre FROM (HistOrvendalcial INNER JOIN Productos ON "
            "HistOrvendalcial.IdProducto = Productos.Codigo)  LEFT JOIN Empleados ON "
            "HistOrvendalcial.IdEmpleado = Empleados.Codigo WHERE (HistOrvendalcial.idSucursal = '01') AND "
            "(HistOrvendalcial.Fecha BETWEEN #11/16/2026 00:00:00# AND #11/16/2026 23:59:59#)");
}

TEST(StatementsTest, TheDeleteOfADayComparesTheBranchWithLike) {
  EXPECT_EQ(statements::DeleteDay("01", "LIKE '16/11/2026%'"),
            "DELETE FROM HistOrvendalcial WHERE (HistOrvendalcial.idSucursal Like '01') AND "
            "(HistOrvendalcial.Fecha LIKE '16/11/2026%')");
}

TEST(StatementsTest, TheWholeHistory) {
  EXPECT_EQ(statements::WholeHistory(), "SELECT HistOrvendalcial.* FROM HistOrvendalcial");
}

TEST(StatementsTest, TheProductsAndReferences) {
  EXPECT_EQ(statements::ProductByCode("P1"),
            "SELECT Productos.Codigo FROM Productos WHERE Productos.Codigo ='P1'");
  EXPECT_EQ(statements::Reference("84"),
            "SELECT Referencias.IdProducto FROM Referencias WHERE Referencias.Referencia ='84'");
  EXPECT_EQ(statements::ProductsLikeCode("P1"),
            "SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Codigo Like 'P1'");
  EXPECT_EQ(statements::ProductsByDescription("Cre"),
            "SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Descripcion Like "
            "'Cre%'");
  EXPECT_EQ(statements::DescriptionOf("P1"),
            "SELECT Productos.Descripcion FROM Productos WHERE Productos.Codigo ='P1'");
  EXPECT_EQ(statements::StockOf("01", "P1"),
            "SELECT * FROM ProdSucStock WHERE IdSucursal ='01' AND IdProducto ='P1'");
}

TEST(StatementsTest, QuotesArePastedAsTheyAre) {
  EXPECT_EQ(statements::ProductByCode("O'Neill"),
            "SELECT Productos.Codigo FROM Productos WHERE Productos.Codigo ='O'Neill'");
}

TEST(StatementsTest, TheTwoOpenModes) {
  FormDriver screen;
  testing_support::EventLog log;
  SqliteRecordsetFactory inner;
  testing_support::RecordingRecordsets recordsets(inner, log);
  const RecordsetRef reading = recordsets.NewRecordset();
  statements::OpenForReading(*reading, statements::Branches(), screen.connection);
  const RecordsetRef writing = recordsets.NewRecordset();
  statements::OpenForWriting(*writing, statements::WholeHistory(), screen.connection);
  EXPECT_EQ(log.Take(),
            (std::vector<std::string>{"1 new", "1 Open " + statements::Branches() + " (3, 1, -1)", "2 new",
                                      "2 Open SELECT HistOrvendalcial.* FROM HistOrvendalcial (2, 3, -1)"}));
}

}  // namespace
}  // namespace orvendal
