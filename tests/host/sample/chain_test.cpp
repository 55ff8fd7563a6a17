#include "host/sample/chain.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "host/sample/products.h"
#include "host/store/schema.h"
#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

const Date kToday(2026, 11, 16);

std::shared_ptr<SqliteConnection> MakeStore(Date today, std::uint64_t seed = kSampleSeed) {
  auto store = SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
  MakeSampleStore(*store, today, seed);
  return store;
}

class SampleChain : public testing::Test {
 protected:
  static void SetUpTestSuite() { store = MakeStore(kToday); }
  static void TearDownTestSuite() { store.reset(); }

  static std::string Read(const std::string& sql, SqliteConnection& from = *store) {
    SqliteStatement statement(from, sql);
    return statement.Step() ? statement.TextAt(0) : "-";
  }
  static int Number(const std::string& sql) { return std::atoi(Read(sql).c_str()); }

  // All rows of a table in one text.
  static std::string Dump(SqliteConnection& from, const std::string& table) {
    SqliteStatement rows(from, "SELECT * FROM " + table + " ORDER BY rowid");
    std::string text;
    while (rows.Step()) {
      for (int column = 0; column < rows.ColumnCount(); ++column) text += rows.TextAt(column) + "|";
      text += "\n";
    }
    return text;
  }

  static inline std::shared_ptr<SqliteConnection> store;
};

TEST_F(SampleChain, HasItsBranchesEmployeesAndProducts) {
  EXPECT_EQ(Number("SELECT COUNT(*) FROM Sucursales"), 12);
  EXPECT_EQ(Read("SELECT MIN(Sucursal) || MAX(Sucursal) FROM Sucursales"), "0112");
  EXPECT_EQ(Number("SELECT COUNT(*) FROM Empleados"), 80);
  EXPECT_EQ(Number("SELECT COUNT(DISTINCT Nombre) FROM Empleados"), 80);
  EXPECT_EQ(Number("SELECT COUNT(*) FROM Productos"), 2500);
  EXPECT_EQ(Number("SELECT COUNT(DISTINCT Descripcion) FROM Productos"), 2500);
}

TEST_F(SampleChain, EveryEmployeeBelongsToABranchAndEveryBranchHasSome) {
  EXPECT_EQ(
      Number("SELECT COUNT(*) FROM Empleados WHERE IdSucursal NOT IN (SELECT Sucursal FROM Sucursales)"), 0);
  EXPECT_EQ(Number("SELECT COUNT(DISTINCT IdSucursal) FROM Empleados"), 12);
}

TEST_F(SampleChain, NamesAreSpanishWithTheirAccentsAndNeverBreakAStatement) {
  EXPECT_GT(Number("SELECT COUNT(*) FROM Productos WHERE Descripcion LIKE 'Champú%'"), 50);
  EXPECT_GT(Number("SELECT COUNT(*) FROM Productos WHERE Descripcion GLOB '*[áéíóúñ]*'"), 500);
  EXPECT_EQ(Number("SELECT COUNT(*) FROM Productos WHERE Descripcion || Codigo LIKE '%''%'"), 0);
  EXPECT_LE(Number("SELECT MAX(LENGTH(Descripcion)) FROM Productos"), 80);
}

TEST_F(SampleChain, CodesAreShortAndPlain) {
  EXPECT_EQ(Number("SELECT COUNT(*) FROM Productos WHERE Codigo NOT GLOB '[A-Z][A-Z][A-Z][0-9][0-9][0-9]'"),
            0);
}

TEST_F(SampleChain, EveryReferenceIsAValidBarCodeOfAProduct) {
  SqliteStatement references(*store, "SELECT Referencia FROM Referencias");
  std::set<std::string> seen;
  while (references.Step()) {
    const std::string code = references.TextAt(0);
    ASSERT_EQ(code.size(), 13U);
    int sum = 0;
    for (std::size_t i = 0; i < 13; ++i) sum += (code[i] - '0') * (i % 2 == 0 ? 1 : 3);
    EXPECT_EQ(sum % 10, 0) << code;
    EXPECT_TRUE(seen.insert(code).second) << code;
  }
  EXPECT_EQ(Number("SELECT COUNT(*) FROM Referencias WHERE IdProducto NOT IN (SELECT Codigo FROM Productos)"),
            0);
}

TEST_F(SampleChain, SomeProductsHaveTwoReferencesAndSomeNone) {
  EXPECT_GT(
      Number("SELECT COUNT(*) FROM (SELECT 1 FROM Referencias GROUP BY IdProducto HAVING COUNT(*) = 2)"),
      100);
  EXPECT_EQ(
      Number("SELECT COUNT(*) FROM (SELECT 1 FROM Referencias GROUP BY IdProducto HAVING COUNT(*) > 2)"), 0);
  EXPECT_GT(Number("SELECT COUNT(*) FROM Productos WHERE Codigo NOT IN (SELECT IdProducto FROM Referencias)"),
            100);
}

TEST(BarCode, CheckDigitsAreThoseOfPrintedOnes) {
  EXPECT_EQ(Ean13CheckDigit("400638133393"), '1');
  EXPECT_EQ(Ean13CheckDigit("590123412345"), '7');
  EXPECT_EQ(Ean13CheckDigit("000000000000"), '0');
}

TEST_F(SampleChain, StockIsFractionalForSomeAndMissingForOthers) {
  EXPECT_GT(Number("SELECT COUNT(*) FROM ProdSucStock WHERE Stock <> CAST(Stock AS INTEGER)"), 20);
  EXPECT_EQ(Number("SELECT COUNT(*) FROM ProdSucStock WHERE Stock < 0"), 0);
  const int rows = Number("SELECT COUNT(*) FROM ProdSucStock WHERE IdSucursal = '01'");
  EXPECT_GT(rows, 1900);
  EXPECT_LT(rows, 2400);
}

TEST_F(SampleChain, HasNinetyDaysOfCountsThatEndToday) {
  EXPECT_EQ(Read("SELECT MIN(Fecha) FROM HistOrvendalcial"), "2026-08-19 00:00:00");
  EXPECT_EQ(Read("SELECT MAX(Fecha) FROM HistOrvendalcial"), "2026-11-16 00:00:00");
  EXPECT_GT(Number("SELECT COUNT(*) FROM HistOrvendalcial"), 10000);
}

TEST_F(SampleChain, TheFirstBranchHasCountedTodayAndTheSecondHasNot) {
  const std::string today = " FROM HistOrvendalcial WHERE Fecha = '2026-11-16 00:00:00' AND IdSucursal = ";
  EXPECT_GE(Number("SELECT COUNT(*)" + today + "'01'"), 6);
  EXPECT_EQ(Number("SELECT COUNT(*)" + today + "'02'"), 0);
}

TEST_F(SampleChain, CountsStandOnProductsAndEmployeesThatThereAreOncePerDay) {
  EXPECT_EQ(
      Number("SELECT COUNT(*) FROM HistOrvendalcial WHERE IdProducto NOT IN (SELECT Codigo FROM Productos)"),
      0);
  EXPECT_EQ(
      Number("SELECT COUNT(*) FROM HistOrvendalcial h WHERE NOT EXISTS (SELECT 1 FROM Empleados e WHERE "
             "e.Codigo = h.IdEmpleado AND e.IdSucursal = h.IdSucursal)"),
      0);
  EXPECT_EQ(
      Number("SELECT COUNT(*) FROM (SELECT 1 FROM HistOrvendalcial GROUP BY IdSucursal, Fecha, IdProducto "
             "HAVING COUNT(*) > 1)"),
      0);
  EXPECT_EQ(Number("SELECT COUNT(*) FROM HistOrvendalcial WHERE ModificadoPor <> IdSucursal"), 0);
}

TEST_F(SampleChain, TheStockIsThatOfTheNewestCount) {
  EXPECT_EQ(
      Number("SELECT COUNT(*) FROM ProdSucStock s JOIN HistOrvendalcial h ON h.IdSucursal = s.IdSucursal AND "
             "h.IdProducto = s.IdProducto WHERE h.Fecha = (SELECT MAX(Fecha) FROM HistOrvendalcial n WHERE "
             "n.IdSucursal = s.IdSucursal AND n.IdProducto = s.IdProducto) AND h.StockActual <> s.Stock"),
      0);
}

TEST_F(SampleChain, IsTheSameForTheSameSeedAndDay) {
  const auto again = MakeStore(kToday);
  for (const char* table :
       {"Sucursales", "Empleados", "Productos", "Referencias", "ProdSucStock", "HistOrvendalcial"}) {
    EXPECT_TRUE(Dump(*store, table) == Dump(*again, table)) << table;
  }
}

TEST_F(SampleChain, IsAnotherOneForAnotherSeed) {
  const auto other = MakeStore(kToday, 7);
  EXPECT_FALSE(Dump(*store, "HistOrvendalcial") == Dump(*other, "HistOrvendalcial"));
  EXPECT_EQ(Read("SELECT COUNT(*) FROM Productos", *other), "2500");
}

TEST_F(SampleChain, HasCountsOfTodayAlsoOnASunday) {
  const auto sunday = MakeStore(Date(2026, 11, 15));
  EXPECT_NE(
      Read("SELECT COUNT(*) FROM HistOrvendalcial WHERE Fecha = '2026-11-15 00:00:00' AND IdSucursal = '01'",
           *sunday),
      "0");
}

TEST_F(SampleChain, APlainInsertOfTheFieldsOfTheScreenWorks) {
  const auto own =
      SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
  CreateSchema(*own);
  own->Execute(
      "INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('01', 'Una');"
      "INSERT INTO Empleados (Codigo, Nombre) VALUES ('1', 'Alguien');"
      "INSERT INTO Productos (Codigo, Descripcion) VALUES ('A', 'Algo');"
      "INSERT INTO Referencias (Referencia, IdProducto) VALUES ('1', 'A');"
      "INSERT INTO ProdSucStock (IdSucursal, IdProducto, Stock) VALUES ('01', 'A', 1);");
  EXPECT_EQ(Read("SELECT COUNT(*) FROM Empleados", *own), "1");
}

TEST_F(SampleChain, AFullDiskInTheMiddleIsToldAndLeavesNothingBehind) {
  const auto own =
      SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
  own->Execute("PRAGMA max_page_count = 200");
  try {
    MakeSampleStore(*own, kToday);
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Description(), "The disk of the store is full.");
  }
  EXPECT_EQ(Read("SELECT COUNT(*) FROM sqlite_master", *own), "0");
}

TEST_F(SampleChain, AFailureLeavesNothingBehind) {
  const auto own =
      SqliteConnection::Open(":memory:", Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
  own->Execute("CREATE TABLE ProdSucStock (Otro)");
  EXPECT_THROW(MakeSampleStore(*own, kToday), RuntimeError);
  EXPECT_EQ(Read("SELECT COUNT(*) FROM sqlite_master", *own), "1");
}

}  // namespace
}  // namespace orvendal
