// A store that the screen cannot work on is told before the first call, and nothing is written to it.

#include "host/store/store_fit.h"
#include "host/sample/made_store.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>

#include "host/store/host_store.h"
#include "host/store/schema.h"
#include "tests/host/temporary_folder.h"

namespace orvendal {
namespace {

class StoreFit : public testing::Test {
 protected:
  // A file that another tool has filled: the sample schema, then `sql`.
  void Make(const std::string& sql, bool with_schema = true) {
    std::filesystem::remove(file);
    if (with_schema) {
      const auto store =
          SqliteConnection::Open(file, Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
      CreateSchema(*store);
      store->Execute("INSERT INTO Sucursales VALUES ('01', 'Centro')");
      store->Execute("PRAGMA journal_mode = DELETE");
    }
    sqlite3* tool = nullptr;
    sqlite3_open(file.c_str(), &tool);
    char* error = nullptr;
    EXPECT_EQ(sqlite3_exec(tool, sql.c_str(), nullptr, nullptr, &error), SQLITE_OK) << error;
    sqlite3_close(tool);
  }
  StoreSettings Settings() const { return {file, Dialect::kSqlServer, Region::Spanish(), SpanishWords()}; }
  std::string Bytes() const {
    std::ifstream stream(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {});
  }
  // Why it is refused, at the start and after F1; nothing is written either way. Empty if it is not.
  std::string Refusal() {
    const std::string before = Bytes();
    const auto why = [](const std::function<void()>& open) {
      try {
        open();
      } catch (const StoreUnavailable& error) {
        return error.Description();
      }
      return std::string();
    };
    const std::string at_start = why([&] { OpenOrMakeStore(Settings(), Date(2026, 11, 16)); });
    EXPECT_EQ(Bytes() == before, !at_start.empty());
    const std::string reconnecting = why([&] { OpenExistingStore(Settings()); });
    EXPECT_EQ(at_start, reconnecting);
    return at_start;
  }
  static bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }

  TemporaryFolder folder;
  std::string file = folder / "cadena.db";
};

TEST_F(StoreFit, AStoreOfThisProgramFits) {
  Make("");
  EXPECT_EQ(Refusal(), "");
  Make(JournalDefinition());
  EXPECT_EQ(Refusal(), "");
}

TEST_F(StoreFit, EveryFieldOfTheScreenIsNeeded) {
  const std::vector<std::pair<std::string, std::vector<std::string>>> needed = {
      {"Sucursales", {"Sucursal", "Nombre"}},
      {"Empleados", {"Codigo", "Nombre"}},
      {"Productos", {"Codigo", "Descripcion"}},
      {"Referencias", {"Referencia", "IdProducto"}},
      {"ProdSucStock", {"IdSucursal", "IdProducto", "Stock"}},
      {"HistOrvendalcial",
       {"IdSucursal", "Fecha", "IdProducto", "StockAnterior", "StockActual", "IdEmpleado", "Actualizado",
        "ModificadoPor"}}};
  for (const auto& [table, fields] : needed) {
    for (const std::string& field : fields) {
      Make("ALTER TABLE " + table + " RENAME COLUMN " + field + " TO Viejo");
      const std::string told = Refusal();
      EXPECT_TRUE(Has(told, "A la base de datos " + file + " le falta " + table + "." + field + ".")) << told;
      EXPECT_TRUE(Has(told, "ALTER TABLE " + table + " ADD COLUMN " + field + " ")) << told;
    }
  }
}

TEST_F(StoreFit, AMissingTableIsTold) {
  Make("DROP TABLE Referencias");
  const std::string told = Refusal();
  EXPECT_TRUE(Has(told, "le falta Referencias.")) << told;
  EXPECT_TRUE(Has(told, "CREATE TABLE Referencias ( Referencia VARCHAR(30)")) << told;
}

TEST_F(StoreFit, MoreFieldsAndTablesAreNoMatter) {
  Make(
      "ALTER TABLE HistOrvendalcial ADD COLUMN Nota VARCHAR(50); ALTER TABLE ProdSucStock ADD COLUMN Minimo "
      "NUMERIC NOT NULL DEFAULT 0; CREATE TABLE Clientes (a); CREATE VIEW Resumen AS SELECT 1; ALTER TABLE "
      "Productos ADD COLUMN Precio NUMERIC; ALTER TABLE Empleados DROP COLUMN IdSucursal");
  EXPECT_EQ(Refusal(), "");
}

TEST_F(StoreFit, AFieldThatDemandsAValueIsTold) {
  Make(
      "DROP TABLE HistOrvendalcial; CREATE TABLE HistOrvendalcial (Id INTEGER PRIMARY KEY NOT NULL, "
      "IdSucursal, "
      "Fecha DATETIME, IdProducto, StockAnterior, StockActual, IdEmpleado, Actualizado DATETIME, "
      "ModificadoPor, Turno VARCHAR(2) NOT NULL)");
  EXPECT_TRUE(Has(Refusal(), "el campo HistOrvendalcial.Turno exige un valor")) << Refusal();
}

TEST_F(StoreFit, DatesHaveToBeDeclaredAsDates) {
  Make(
      "DROP TABLE HistOrvendalcial; CREATE TABLE HistOrvendalcial (IdSucursal, Fecha TEXT, IdProducto, "
      "StockAnterior, StockActual, IdEmpleado, Actualizado DATETIME, ModificadoPor)");
  EXPECT_TRUE(Has(Refusal(), "el campo HistOrvendalcial.Fecha no está declarado como fecha")) << Refusal();
}

TEST_F(StoreFit, ANewerVersionIsRefused) {
  Make("PRAGMA user_version = 2");
  EXPECT_EQ(Refusal(),
            "La base de datos " + file +
                " es de una versión más nueva (2) que la que conoce este programa (1). Actualice el "
                "programa; no se ha cambiado nada.");
}

TEST_F(StoreFit, ANewerVersionWithoutTablesIsNotFilled) {
  Make("PRAGMA user_version = 2", false);
  EXPECT_TRUE(Has(Refusal(), "versión más nueva")) << Refusal();
}

TEST_F(StoreFit, AnOlderVersionThatLacksNothingFits) {
  Make("PRAGMA user_version = 0");
  EXPECT_EQ(Refusal(), "");
}

TEST_F(StoreFit, AnOlderVersionIsToldHowItIsBroughtUpAndFitsThen) {
  Make(
      "PRAGMA user_version = 0; ALTER TABLE HistOrvendalcial DROP COLUMN Actualizado; ALTER TABLE "
      "HistOrvendalcial DROP COLUMN ModificadoPor; DROP TABLE Referencias");
  const std::string told = Refusal();
  const std::string before = "ejecute en ella: ";
  EXPECT_TRUE(Has(told,
                  "es de una versión anterior (0; este programa necesita la 1): le falta Referencias, "
                  "HistOrvendalcial.Actualizado, HistOrvendalcial.ModificadoPor."))
      << told;
  ASSERT_TRUE(Has(told, before)) << told;
  sqlite3* tool = nullptr;
  sqlite3_open(file.c_str(), &tool);
  EXPECT_EQ(
      sqlite3_exec(tool, told.substr(told.find(before) + before.size()).c_str(), nullptr, nullptr, nullptr),
      SQLITE_OK)
      << sqlite3_errmsg(tool);
  sqlite3_close(tool);
  EXPECT_EQ(Refusal(), "");
  const auto store = OpenExistingStore(Settings());
  SqliteStatement version(*store, "PRAGMA user_version");
  version.Step();
  EXPECT_EQ(version.TextAt(0), "1");
}

TEST_F(StoreFit, AnEndlessViewInPlaceOfATableIsRefusedAtOnce) {
  for (const std::string table : {"Sucursales", "HistOrvendalcial", "Diario"}) {
    Make("DROP TABLE IF EXISTS " + table + "; CREATE VIEW " + table +
         " AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i AS Sucursal, i AS "
         "Nombre "
         "FROM n ORDER BY i");
    EXPECT_TRUE(Has(Refusal(), "En la base de datos " + file + ", " + table + " no es una tabla."))
        << Refusal();
  }
}

TEST_F(StoreFit, ATableThatTheEngineOnlyMakesBelieveIsRefused) {
  Make("DROP TABLE Productos; CREATE VIRTUAL TABLE Productos USING fts4(Codigo, Descripcion)");
  EXPECT_TRUE(Has(Refusal(), "Productos no es una tabla.")) << Refusal();
}

}  // namespace
}  // namespace orvendal
