#include "host/store/schema.h"

#include <string>

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

// Numbers are NUMERIC so that a whole quantity reads as one in every tool. Days hold one row per branch and
// product, which the screen sees to; nothing here refuses a second one.
constexpr const char* kTables = R"sql(
CREATE TABLE Sucursales (
  Sucursal VARCHAR(2) COLLATE NOCASE NOT NULL PRIMARY KEY,
  Nombre VARCHAR(60) COLLATE NOCASE
);
CREATE TABLE Empleados (
  Codigo VARCHAR(10) COLLATE NOCASE NOT NULL PRIMARY KEY,
  Nombre VARCHAR(60) COLLATE NOCASE,
  IdSucursal VARCHAR(2) COLLATE NOCASE NOT NULL DEFAULT ''
);
CREATE TABLE Productos (
  Codigo VARCHAR(20) COLLATE NOCASE NOT NULL PRIMARY KEY,
  Descripcion VARCHAR(80) COLLATE NOCASE
);
CREATE INDEX ProductosPorDescripcion ON Productos (Descripcion);
CREATE TABLE Referencias (
  Referencia VARCHAR(30) COLLATE NOCASE NOT NULL,
  IdProducto VARCHAR(20) COLLATE NOCASE NOT NULL,
  PRIMARY KEY (Referencia, IdProducto)
);
CREATE INDEX ReferenciasPorProducto ON Referencias (IdProducto);
CREATE TABLE ProdSucStock (
  IdSucursal VARCHAR(2) COLLATE NOCASE NOT NULL,
  IdProducto VARCHAR(20) COLLATE NOCASE NOT NULL,
  Stock NUMERIC,
  PRIMARY KEY (IdSucursal, IdProducto)
);
CREATE TABLE HistOrvendalcial (
  IdSucursal VARCHAR(2) COLLATE NOCASE NOT NULL,
  Fecha DATETIME NOT NULL,
  IdProducto VARCHAR(20) COLLATE NOCASE NOT NULL,
  StockAnterior NUMERIC,
  StockActual NUMERIC,
  IdEmpleado VARCHAR(10) COLLATE NOCASE,
  Actualizado DATETIME,
  ModificadoPor VARCHAR(2) COLLATE NOCASE
);
CREATE INDEX HistOrvendalcialPorDia ON HistOrvendalcial (IdSucursal, Fecha);
CREATE INDEX HistOrvendalcialPorProducto ON HistOrvendalcial (IdSucursal, IdProducto, Fecha);
)sql";

}  // namespace

void CreateSchema(SqliteConnection& store) {
  store.Execute("SAVEPOINT create_schema");
  try {
    store.Execute(kTables);
    store.Execute("PRAGMA user_version = " + std::to_string(kSchemaVersion));
    store.Execute("RELEASE create_schema");
  } catch (const RuntimeError&) {
    store.Execute("ROLLBACK TO create_schema; RELEASE create_schema");
    throw;
  }
}

std::string JournalDefinition() {
  return std::string("CREATE TABLE ") + kJournalTable +
         " (Momento DATETIME NOT NULL, Sesion TEXT NOT NULL, Sentencia TEXT NOT NULL)";
}

}  // namespace orvendal
