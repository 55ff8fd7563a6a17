#include "store/statements.h"

namespace orvendal::statements {

std::string Branches() {
  return "SELECT Sucursales.Sucursal, Sucursales.Nombre FROM Sucursales ORDER BY Sucursales.Nombre";
}

std::string BranchCriterion(const std::string& branch_key) {
  return "Sucursal like '" + branch_key + "'";
}

std::string LinesOfDay(const std::string& branch_key, const std::string& date_condition) {
  return "SELECT HistOrvendalcial.IdSucursal, HistOrvendalcial.Fecha, HistOrvendalcial.IdProducto, "
         "Productos.Descripcion, HistOrvendalcial.StockAnterior, HistOrvendalcial.StockActual, "
         "HistOrvendalcial.IdEmpleado, Empleados.Nombre FROM (HistOrvendalcial INNER JOIN Productos ON "
         "HistOrvendalcial.IdProducto = Productos.Codigo)  LEFT JOIN Empleados ON "
         "HistOrvendalcial.IdEmpleado = "
         "Empleados.Codigo WHERE (HistOrvendalcial.idSucursal = '" +
         branch_key + "') AND (HistOrvendalcial.Fecha " + date_condition + ")";
}

// A load compares the branch with "=", the delete with "Like": so it stands.
std::string DeleteDay(const std::string& branch_key, const std::string& date_condition) {
  return "DELETE FROM HistOrvendalcial WHERE (HistOrvendalcial.idSucursal Like '" + branch_key +
         "') AND (HistOrvendalcial.Fecha " + date_condition + ")";
}

std::string WholeHistory() {
  return "SELECT HistOrvendalcial.* FROM HistOrvendalcial";
}

std::string ProductByCode(const std::string& code) {
  return "SELECT Productos.Codigo FROM Productos WHERE Productos.Codigo ='" + code + "'";
}

std::string Reference(const std::string& reference) {
  return "SELECT Referencias.IdProducto FROM Referencias WHERE Referencias.Referencia ='" + reference + "'";
}

std::string ProductsLikeCode(const std::string& pattern) {
  return "SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Codigo Like '" +
         pattern + "'";
}

std::string ProductsByDescription(const std::string& beginning) {
  return "SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Descripcion Like '" +
         beginning + "%'";
}

std::string DescriptionOf(const std::string& code) {
  return "SELECT Productos.Descripcion FROM Productos WHERE Productos.Codigo ='" + code + "'";
}

std::string StockOf(const std::string& branch_key, const std::string& code) {
  return "SELECT * FROM ProdSucStock WHERE IdSucursal ='" + branch_key + "' AND IdProducto ='" + code + "'";
}

void OpenForReading(Recordset& recordset, const std::string& statement, const ConnectionRef& connection) {
  recordset.Open(statement, connection, CursorType::kStatic, LockType::kReadOnly, kCommandUnspecified);
}

void OpenForWriting(Recordset& recordset, const std::string& statement, const ConnectionRef& connection) {
  recordset.Open(statement, connection, CursorType::kDynamic, LockType::kOptimistic, kCommandUnspecified);
}

}  // namespace orvendal::statements
