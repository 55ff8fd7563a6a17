#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

class SampleSchema : public StoreTest {};

TEST_P(SampleSchema, APlainInsertOfTheNamedFieldsWorksInEveryTable) {
  store->Execute(
      "INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('01','Norte');"
      "INSERT INTO Empleados (Codigo, Nombre) VALUES ('E1','Ana');"
      "INSERT INTO Productos (Codigo, Descripcion) VALUES ('P1','Gel');"
      "INSERT INTO Referencias (Referencia, IdProducto) VALUES ('8412345678905','P1');"
      "INSERT INTO ProdSucStock (IdSucursal, IdProducto, Stock) VALUES ('01','P1',2.5);"
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual, IdEmpleado, "
      "Actualizado, ModificadoPor) VALUES ('01','2026-11-16 00:00:00','P1',2.5,3,'E1','2026-11-16 "
      "10:00:00','01')");
  EXPECT_EQ(Read(DayStatement("01", LoadCondition(GetParam(), "2026-11-16")))->RecordCount(), 1);
}

TEST_P(SampleSchema, ADayMayHoldTheSameProductTwice) {
  for (int i = 0; i < 2; ++i) {
    store->Execute(
        "INSERT INTO Productos SELECT 'P1','Gel' WHERE NOT EXISTS (SELECT 1 FROM Productos);"
        "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto) VALUES ('01','2026-11-16','P1')");
  }
  EXPECT_EQ(Read(DayStatement("01", LoadCondition(GetParam(), "2026-11-16")))->RecordCount(), 2);
}

TEST_P(SampleSchema, TheFileSaysWhichVersionItIs) {
  EXPECT_EQ(Native("PRAGMA user_version"), std::to_string(kSchemaVersion));
}

TEST_P(SampleSchema, NothingInItNeedsFunctionsOfOurs) {
  EXPECT_EQ(Native("SELECT COUNT(*) FROM sqlite_schema WHERE sql LIKE '%orvendal\\_%' ESCAPE '\\'"), "0");
}

TEST_P(SampleSchema, WholeQuantitiesAreStoredAsSuch) {
  store->Execute("INSERT INTO ProdSucStock VALUES ('01','P1',3.0)");
  EXPECT_EQ(Native("SELECT Stock FROM ProdSucStock"), "3");
}

TEST_P(SampleSchema, MakingItTwiceFailsAndLeavesTheFirst) {
  store->Execute("INSERT INTO Sucursales VALUES ('01','Norte')");
  EXPECT_NE(ErrorOf([&] { CreateSchema(*store); }), 0);
  EXPECT_EQ(Native("SELECT COUNT(*) FROM Sucursales"), "1");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, SampleSchema, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal::store_testing
