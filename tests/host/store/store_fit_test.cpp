// A store that the screen cannot work on is told before the first call, and nothing is written to it.

#include "host/store/store_fit.h"
#include "host/sample/made_store.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>

#include "host/store/host_store.h"
#include "host/store/schema.h"
#include "tests/support/temporary_folder.h"

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
  // HistOrvendalcial with `field` declared as `type`, and `more` behind the fields.
  static std::string History(const std::string& field, const std::string& type,
                             const std::string& more = {}) {
    std::string sql = "DROP TABLE HistOrvendalcial; CREATE TABLE HistOrvendalcial (";
    for (const auto& [name, usual] :
         std::vector<std::pair<std::string, std::string>>{{"IdSucursal", "VARCHAR(2)"},
                                                          {"Fecha", "DATETIME"},
                                                          {"IdProducto", "VARCHAR(20)"},
                                                          {"StockAnterior", "NUMERIC"},
                                                          {"StockActual", "NUMERIC"},
                                                          {"IdEmpleado", "VARCHAR(10)"},
                                                          {"Actualizado", "DATETIME"},
                                                          {"ModificadoPor", "VARCHAR(2)"}}) {
      sql += (sql.back() == '(' ? "" : ", ") + name + " " + (name == field ? type : usual);
    }
    return sql + more + ")";
  }
  static std::string Stock(const std::string& fields) {
    return "DROP TABLE ProdSucStock; CREATE TABLE ProdSucStock (" + fields + ")";
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
      "Fecha DATETIME, IdProducto, StockAnterior REAL, StockActual REAL, IdEmpleado, Actualizado DATETIME, "
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

TEST_F(StoreFit, ACodeIsNotWrittenIntoANumber) {
  for (const char* type : {"INTEGER", "NUMERIC", "DATETIME", "BLOB", "MEMO", "STRING(10)", "CODIGO"}) {
    Make(History("IdEmpleado", type));
    EXPECT_TRUE(Has(Refusal(), "el campo HistOrvendalcial.IdEmpleado no está declarado como texto")) << type;
  }
  Make("DROP TABLE Productos; CREATE TABLE Productos (Codigo INTEGER PRIMARY KEY, Descripcion TEXT)");
  EXPECT_TRUE(Has(Refusal(), "el campo Productos.Codigo no está declarado como texto")) << Refusal();
  Make("CREATE TABLE Diario (Momento DATETIME, Sesion NUMERIC, Sentencia TEXT)");
  EXPECT_TRUE(Has(Refusal(), "el campo Diario.Sesion no está declarado como texto")) << Refusal();
}

TEST_F(StoreFit, AQuantityWithDecimalsIsNotWrittenIntoATextNorIntoAWholeNumber) {
  for (const char* type : {"VARCHAR(10)", "INTEGER", "DATETIME", ""}) {
    Make(History("StockActual", type));
    EXPECT_TRUE(Has(Refusal(), "el campo HistOrvendalcial.StockActual no está declarado como número"))
        << type;
    Make(Stock(std::string("IdSucursal TEXT, IdProducto TEXT, Stock ") + type));
    EXPECT_TRUE(Has(Refusal(), "el campo ProdSucStock.Stock no está declarado como número")) << type;
  }
  for (const char* type : {"REAL", "DOUBLE", "DECIMAL(9,3)", "MONEY"}) {
    Make(History("StockActual", type));
    EXPECT_EQ(Refusal(), "") << type;
  }
}

TEST_F(StoreFit, AFieldThatIsWrittenIsAsWideAsTheCodes) {
  Make(History("IdEmpleado", "VARCHAR(3)"));
  EXPECT_TRUE(Has(Refusal(),
                  "el campo HistOrvendalcial.IdEmpleado admite menos caracteres (3) de los que se "
                  "guardan en él (10)"))
      << Refusal();
  Make(Stock("IdSucursal CHAR(2), IdProducto VARCHAR(4), Stock NUMERIC"));
  EXPECT_TRUE(Has(Refusal(), "el campo ProdSucStock.IdProducto admite menos caracteres (4)")) << Refusal();
  Make("CREATE TABLE Diario (Momento DATETIME, Sesion TEXT, Sentencia VARCHAR(50))");
  EXPECT_TRUE(Has(Refusal(), "el campo Diario.Sentencia admite menos caracteres (50)")) << Refusal();
  // Codes that are declared wider than where they are written to.
  const std::string wide =
      "DROP TABLE Productos; CREATE TABLE Productos (Codigo VARCHAR(30), Descripcion TEXT)";
  Make(wide);
  EXPECT_TRUE(Has(Refusal(),
                  "el campo ProdSucStock.IdProducto admite menos caracteres (20) de los que se "
                  "guardan en él (30)"))
      << Refusal();
  Make(wide + ";" + Stock("IdSucursal TEXT, IdProducto TEXT, Stock REAL") + ";" +
       History("IdProducto", "NVARCHAR(40)"));
  EXPECT_EQ(Refusal(), "");
}

TEST_F(StoreFit, TablesThatAreOnlyReadMayBeNarrowerUndeclaredAndCalculated) {
  Make(
      "DROP TABLE Empleados; CREATE TABLE Empleados (Codigo, Nombre TEXT AS ('N' || Codigo)); DROP TABLE "
      "Sucursales; CREATE TABLE Sucursales (Sucursal CHAR(2) PRIMARY KEY CHECK (length(Sucursal) = 2), "
      "Nombre "
      "VARCHAR(10)); CREATE TRIGGER t AFTER INSERT ON Sucursales BEGIN DELETE FROM Referencias; END");
  EXPECT_EQ(Refusal(), "");
  Make(History("IdEmpleado", ""));
  EXPECT_EQ(Refusal(), "");  // undeclared, a text stays a text
}

TEST_F(StoreFit, ATriggerOnATableThatIsWrittenIsTold) {
  Make("CREATE TRIGGER No BEFORE INSERT ON HistOrvendalcial BEGIN SELECT RAISE(ABORT, 'no'); END");
  EXPECT_TRUE(Has(Refusal(),
                  "la tabla HistOrvendalcial tiene una regla propia que puede detener un guardado "
                  "cuando el día ya está borrado: TRIGGER No."))
      << Refusal();
  Make(
      "CREATE TRIGGER Sinfin AFTER UPDATE ON prodsucstock BEGIN INSERT INTO Sucursales WITH RECURSIVE c(x) "
      "AS "
      "(SELECT 1 UNION ALL SELECT x + 1 FROM c) SELECT x, x FROM c WHERE x < 0; END");
  EXPECT_TRUE(Has(Refusal(), "TRIGGER Sinfin.")) << Refusal();
  Make(JournalDefinition() + "; CREATE TRIGGER t AFTER INSERT ON Diario BEGIN DELETE FROM Diario; END");
  EXPECT_TRUE(Has(Refusal(), "la tabla Diario ")) << Refusal();
}

TEST_F(StoreFit, ACheckOnATableThatIsWrittenIsTold) {
  Make(History("StockActual", "NUMERIC check(StockActual > 0)"));
  EXPECT_TRUE(Has(Refusal(), "borrado: CHECK.")) << Refusal();
  Make(Stock("IdSucursal TEXT, IdProducto TEXT, Stock REAL, CONSTRAINT c CHECK (Stock > 0)"));
  EXPECT_TRUE(Has(Refusal(), "borrado: CHECK.")) << Refusal();
  Make(History("", "", ", \"check\" TEXT DEFAULT 'it''s a check' /* CHECK ( */, [CHECK (] TEXT -- CHECK\n"));
  EXPECT_EQ(Refusal(), "");
}

TEST_F(StoreFit, AKeyThatTwoLinesOfADayCouldShareIsTold) {
  Make("CREATE UNIQUE INDEX u ON HistOrvendalcial (IdProducto)");
  EXPECT_TRUE(Has(Refusal(), "borrado: UNIQUE (IdProducto).")) << Refusal();
  Make(History("", "", ", PRIMARY KEY (IdSucursal, Fecha)"));
  EXPECT_TRUE(Has(Refusal(), "borrado: UNIQUE (IdSucursal, Fecha).")) << Refusal();
  Make(History("", "", ", Nota TEXT UNIQUE DEFAULT 'x'"));
  EXPECT_TRUE(Has(Refusal(), "borrado: UNIQUE (Nota).")) << Refusal();
  Make(Stock("IdSucursal TEXT, IdProducto TEXT PRIMARY KEY, Stock REAL"));
  EXPECT_TRUE(Has(Refusal(), "borrado: UNIQUE (IdProducto).")) << Refusal();
  for (const char* more : {", PRIMARY KEY (IdSucursal, Fecha, IdProducto)",
                           ", Turno TEXT, UNIQUE (fecha, Turno, idproducto, IdSucursal)",
                           ", Id INTEGER PRIMARY KEY AUTOINCREMENT", ", Nota TEXT UNIQUE"}) {
    Make(History("", "", more));
    EXPECT_EQ(Refusal(), "") << more;
  }
}

TEST_F(StoreFit, WhatCalculatesWhileALineIsSavedIsTold) {
  Make("CREATE INDEX Calc ON HistOrvendalcial (abs(StockActual))");
  EXPECT_TRUE(Has(Refusal(), "borrado: INDEX Calc.")) << Refusal();
  Make("CREATE INDEX Parte ON HistOrvendalcial (IdEmpleado) WHERE abs(StockActual) > 0");
  EXPECT_TRUE(Has(Refusal(), "borrado: INDEX Parte.")) << Refusal();
  Make(History("", "", ", Nota TEXT DEFAULT (abs(-9223372036854775807 - 1))"));
  EXPECT_TRUE(Has(Refusal(), "borrado: Nota DEFAULT abs(-9223372036854775807 - 1).")) << Refusal();
  Make(History("", "", ", Nota TEXT NOT NULL DEFAULT NULL"));
  EXPECT_TRUE(Has(Refusal(), "HistOrvendalcial.Nota exige un valor")) << Refusal();
  Make(History("", "", ", Id INTEGER, PRIMARY KEY (Id)) WITHOUT ROWID; CREATE TABLE x (y"));
  EXPECT_TRUE(Has(Refusal(), "HistOrvendalcial.Id exige un valor")) << Refusal();
  Make(History("", "",
               ", Guid TEXT NOT NULL DEFAULT (lower(hex(randomblob(16)))), Dia TEXT DEFAULT "
               "CURRENT_DATE, n REAL DEFAULT -1.5"));
  EXPECT_EQ(Refusal(), "");
}

TEST_F(StoreFit, AFieldThatIsCalculatedIsNotToldAsMissing) {
  Make(History("ModificadoPor", "VARCHAR(2) AS ('x') STORED"));
  EXPECT_TRUE(Has(Refusal(), "el campo HistOrvendalcial.ModificadoPor es calculado (GENERATED)"))
      << Refusal();
  EXPECT_FALSE(Has(Refusal(), "ALTER")) << Refusal();
  Make(History("", "", ", Resumen TEXT AS (abs(StockActual)) STORED"));
  EXPECT_TRUE(Has(Refusal(), "el campo HistOrvendalcial.Resumen es calculado")) << Refusal();
}

TEST_F(StoreFit, AVersionBelowNoneIsRefused) {
  Make("PRAGMA user_version = -3");
  EXPECT_TRUE(Has(Refusal(), "dice ser de la versión -3, que no existe")) << Refusal();
}

TEST_F(StoreFit, TheMarkOfTheSampleChainIsATable) {
  Make(
      "CREATE VIEW CadenaDeMuestra AS WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM c) SELECT "
      "* FROM c WHERE x < 0");
  EXPECT_TRUE(Has(Refusal(), "CadenaDeMuestra no es una tabla.")) << Refusal();
  Make("CREATE INDEX Diario ON Productos (Descripcion)");
  EXPECT_TRUE(Has(Refusal(), "Diario no es una tabla.")) << Refusal();
}

TEST_F(StoreFit, AForeignKeyDoesNotStopASave) {
  Make(History("IdEmpleado", "VARCHAR(10) REFERENCES Empleados (Codigo)"));
  EXPECT_EQ(Refusal(), "");
  const auto store = OpenExistingStore(Settings());
  store->Execute("INSERT INTO HistOrvendalcial (IdEmpleado) VALUES ('E999')");
  SqliteStatement enforced(*store, "PRAGMA foreign_keys");
  enforced.Step();
  EXPECT_EQ(enforced.TextAt(0), "0");
}

TEST_F(StoreFit, ACollationThatTheEngineDoesNotHaveIsTold) {
  Make(
      "CREATE TABLE Otra (a); PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = replace(sql, "
      "'Stock "
      "NUMERIC', 'Stock NUMERIC COLLATE LATIN UNIQUE') WHERE name = 'ProdSucStock'");
  EXPECT_NE(Refusal(), "");
}

TEST_F(StoreFit, EveryRefusalIsSaidInThreeLanguages) {
  for (const Words& words : {SpanishWords(), CatalanWords(), EnglishWords()}) {
    const std::vector<std::pair<std::string, std::string>> refused = {
        {History("IdEmpleado", "INTEGER"), Fill(words.store_no_text, {file, "HistOrvendalcial.IdEmpleado"})},
        {History("StockActual", "TEXT"), Fill(words.store_no_number, {file, "HistOrvendalcial.StockActual"})},
        {History("IdEmpleado", "VARCHAR(3)"),
         Fill(words.store_narrow_field, {file, "HistOrvendalcial.IdEmpleado", "3", "10"})},
        {History("IdEmpleado", "TEXT AS ('x')"),
         Fill(words.store_generated_field, {file, "HistOrvendalcial.IdEmpleado"})},
        {History("", "", ", CHECK (1)"), Fill(words.store_own_rule, {file, "HistOrvendalcial", "CHECK"})},
        {"PRAGMA user_version = -1", Fill(words.store_version_unknown, {file, "-1", "1"})}};
    for (const auto& [sql, told] : refused) {
      Make(sql);
      std::string why;
      try {
        OpenExistingStore({file, Dialect::kSqlServer, Region::Spanish(), words});
      } catch (const StoreDoesNotFit& error) {
        why = error.Description();
      }
      EXPECT_EQ(why, told);
    }
  }
}

}  // namespace
}  // namespace orvendal
