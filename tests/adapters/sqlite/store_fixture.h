#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/sqlite/sqlite_store.h"
#include "host/store/schema.h"
#include "platform/base/runtime_error.h"
#include "platform/data/ado_error.h"
#include "tests/support/error_of.h"

namespace orvendal::store_testing {

/// The statements of the screen, word for word.
inline std::string BranchesStatement() {
  return "SELECT Sucursales.Sucursal, Sucursales.Nombre FROM Sucursales ORDER BY Sucursales.Nombre";
}
inline std::string DayStatement(const std::string& branch, const std::string& date_condition) {
  return "SELECT HistOrvendalcial.IdSucursal, HistOrvendalcial.Fecha, HistOrvendalcial.IdProducto, "
         "Productos.Descripcion, HistOrvendalcial.StockAnterior, HistOrvendalcial.StockActual, "
         "HistOrvendalcial.IdEmpleado, Empleados.Nombre FROM (HistOrvendalcial INNER JOIN Productos ON "
         "HistOrvendalcial.IdProducto = Productos.Codigo)  LEFT JOIN Empleados ON "
         "HistOrvendalcial.IdEmpleado = "
         "Empleados.Codigo WHERE (HistOrvendalcial.idSucursal = '" +
         branch + "') AND (HistOrvendalcial.Fecha " + date_condition + ")";
}
inline std::string DeleteStatement(const std::string& branch, const std::string& date_condition) {
  return "DELETE FROM HistOrvendalcial WHERE (HistOrvendalcial.idSucursal Like '" + branch +
         "') AND (HistOrvendalcial.Fecha " + date_condition + ")";
}
inline std::string TableStatement() {
  return "SELECT HistOrvendalcial.* FROM HistOrvendalcial";
}
inline std::string CodeExistsStatement(const std::string& code) {
  return "SELECT Productos.Codigo FROM Productos WHERE Productos.Codigo ='" + code + "'";
}
inline std::string ReferenceStatement(const std::string& reference) {
  return "SELECT Referencias.IdProducto FROM Referencias WHERE Referencias.Referencia ='" + reference + "'";
}
inline std::string CodeLikeStatement(const std::string& text) {
  return "SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Codigo Like '" +
         text + "'";
}
inline std::string DescriptionLikeStatement(const std::string& text) {
  return "SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Descripcion Like '" +
         text + "%'";
}
inline std::string DescriptionStatement(const std::string& code) {
  return "SELECT Productos.Descripcion FROM Productos WHERE Productos.Codigo ='" + code + "'";
}
inline std::string StockStatement(const std::string& branch, const std::string& code) {
  return "SELECT * FROM ProdSucStock WHERE IdSucursal ='" + branch + "' AND IdProducto ='" + code + "'";
}

/// The date condition of a load; `iso_day` is yyyy-mm-dd.
inline std::string LoadCondition(Dialect dialect, const std::string& iso_day) {
  if (dialect == Dialect::kSqlServer) {
    return "BETWEEN CONVERT(DATETIME, '" + iso_day + " 00:00:00', 102) AND CONVERT(DATETIME, '" + iso_day +
           " 23:59:59', 102)";
  }
  const std::string month = std::to_string(std::stoi(iso_day.substr(5, 2)));
  const std::string day = std::to_string(std::stoi(iso_day.substr(8, 2)));
  const std::string us_day = month + "/" + day + "/" + iso_day.substr(0, 4);
  return "BETWEEN #" + us_day + " 00:00:00# AND #" + us_day + " 23:59:59#";
}
/// The date condition of a save under es-ES.
inline std::string SaveCondition(Dialect dialect, const std::string& iso_day) {
  if (dialect == Dialect::kSqlServer) return LoadCondition(dialect, iso_day);
  return "LIKE '" + iso_day.substr(8, 2) + "/" + iso_day.substr(5, 2) + "/" + iso_day.substr(0, 4) + "%'";
}

inline std::string DialectName(const ::testing::TestParamInfo<Dialect>& info) {
  return info.param == Dialect::kSqlServer ? "SqlServer" : "Jet";
}

using testing_support::ErrorOf;

/// The description of what `action` raises; empty if it raises nothing.
inline std::string DescriptionOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.Description();
  }
  return {};
}

/// What tests of recordsets stand on; each program that runs them brings its own.
class StoreUnderTest {
 public:
  virtual ~StoreUnderTest() = default;
  /// The tables themselves, beneath what is tested.
  virtual std::shared_ptr<SqliteConnection> Tables() = 0;
  virtual ConnectionRef Link() = 0;
  virtual void CloseLink() = 0;
  virtual RecordsetRef NewRecordset() = 0;
};
/// One without tables.
std::unique_ptr<StoreUnderTest> MakeStoreUnderTest(Dialect dialect, const Region& region);

/// An empty sample store, in each dialect, read and written under es-ES.
class StoreTest : public ::testing::TestWithParam<Dialect> {
 protected:
  void SetUp() override {
    UseEmptyStore(Region::Spanish());
    CreateSchema(*store);
  }
  /// From here on another one, without tables.
  void UseEmptyStore(const Region& region) {
    store.reset();
    under_test_.reset();
    under_test_ = MakeStoreUnderTest(GetParam(), region);
    store = under_test_->Tables();
  }

  bool SqlServer() const { return GetParam() == Dialect::kSqlServer; }
  ConnectionRef Link() { return under_test_->Link(); }
  void CloseLink() { under_test_->CloseLink(); }
  RecordsetRef NewRecordset() { return under_test_->NewRecordset(); }

  RecordsetRef Read(const std::string& statement) {
    RecordsetRef recordset = NewRecordset();
    recordset->Open(statement, Link(), CursorType::kStatic, LockType::kReadOnly, kCommandUnspecified);
    return recordset;
  }
  RecordsetRef Write(const std::string& statement) {
    RecordsetRef recordset = NewRecordset();
    recordset->Open(statement, Link(), CursorType::kDynamic, LockType::kOptimistic, kCommandUnspecified);
    return recordset;
  }
  /// The texts of a field, row by row.
  std::vector<std::string> Column(const std::string& statement, const std::string& field) {
    std::vector<std::string> texts;
    const RecordsetRef recordset = Read(statement);
    for (; !recordset->AtEnd(); recordset->MoveNext()) {
      const Value value = recordset->Fields(field).Value();
      texts.push_back(value.IsNull() ? "Null" : Region::Spanish().ToText(value));
    }
    return texts;
  }
  std::string Native(const std::string& sql) {
    SqliteStatement statement(*store, sql);
    return statement.Step() ? statement.TextAt(0) : std::string("no row");
  }

  std::shared_ptr<SqliteConnection> store;  // the tables

 private:
  std::unique_ptr<StoreUnderTest> under_test_;
};

using Texts = std::vector<std::string>;

}  // namespace orvendal::store_testing
