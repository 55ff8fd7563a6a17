#include "bench/plain_store.h"

#include <sqlite3.h>

#include <stdexcept>

namespace orvendal::bench {
namespace {

constexpr const char* kFirstMoment = "2026-11-16 00:00:00";
constexpr const char* kLastMoment = "2026-11-16 23:59:59";

void BindText(sqlite3_stmt* statement, int index, const std::string& text) {
  sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

void Take(std::string& text, sqlite3_stmt* statement, int column) {
  const auto* characters = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  if (characters != nullptr) {
    text.assign(characters, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
  }
}

}  // namespace

PlainStore::PlainStore(const std::string& path) {
  if (sqlite3_open(path.c_str(), &database_) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(database_));
  sqlite3_exec(database_, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL", nullptr, nullptr,
               nullptr);
  day_ = Prepare(
      "SELECT HistOrvendalcial.IdSucursal, HistOrvendalcial.Fecha, HistOrvendalcial.IdProducto, "
      "Productos.Descripcion, HistOrvendalcial.StockAnterior, HistOrvendalcial.StockActual, "
      "HistOrvendalcial.IdEmpleado, Empleados.Nombre FROM (HistOrvendalcial INNER JOIN Productos ON "
      "HistOrvendalcial.IdProducto = Productos.Codigo) LEFT JOIN Empleados ON HistOrvendalcial.IdEmpleado = "
      "Empleados.Codigo WHERE (HistOrvendalcial.IdSucursal = ?1) AND (HistOrvendalcial.Fecha BETWEEN ?2 AND "
      "?3)");
  delete_day_ = Prepare("DELETE FROM HistOrvendalcial WHERE (IdSucursal = ?1) AND (Fecha BETWEEN ?2 AND ?3)");
  product_ = Prepare("SELECT Productos.Codigo FROM Productos WHERE Productos.Codigo = ?1");
  insert_ = Prepare(
      "INSERT INTO HistOrvendalcial (IdSucursal, IdProducto, StockAnterior, StockActual, IdEmpleado, Fecha, "
      "Actualizado, ModificadoPor) VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
  products_of_code_ =
      Prepare("SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Codigo = ?1");
  description_ = Prepare("SELECT Productos.Descripcion FROM Productos WHERE Productos.Codigo = ?1");
  stock_ = Prepare("SELECT * FROM ProdSucStock WHERE IdSucursal = ?1 AND IdProducto = ?2");
}

PlainStore::~PlainStore() {
  for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
  sqlite3_close(database_);
}

sqlite3_stmt* PlainStore::Prepare(const char* sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(database_));
  statements_.push_back(statement);
  return statement;
}

std::vector<PlainStore::Line> PlainStore::ReadDay(const std::string& branch) {
  std::vector<Line> lines;
  BindText(day_, 1, branch);
  sqlite3_bind_text(day_, 2, kFirstMoment, -1, SQLITE_STATIC);
  sqlite3_bind_text(day_, 3, kLastMoment, -1, SQLITE_STATIC);
  while (sqlite3_step(day_) == SQLITE_ROW) {
    Line& line = lines.emplace_back();
    constexpr std::array kColumns = {2, 3, 4, 5, 6, 7, 1, 2, 5};
    for (std::size_t i = 0; i < kColumns.size(); ++i) Take(line[i], day_, kColumns[i]);
  }
  sqlite3_reset(day_);
  return lines;
}

void PlainStore::RunToItsEnd(sqlite3_stmt* statement) {
  if (sqlite3_step(statement) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(database_));
  sqlite3_reset(statement);
}

std::string PlainStore::One(sqlite3_stmt* statement, int column) {
  std::string text;
  if (sqlite3_step(statement) == SQLITE_ROW) Take(text, statement, column);
  sqlite3_reset(statement);
  return text;
}

void PlainStore::WriteDay(const std::string& branch, const std::vector<Line>& lines) {
  const std::string now = "2026-11-16 10:30:00";
  BindText(delete_day_, 1, branch);
  sqlite3_bind_text(delete_day_, 2, kFirstMoment, -1, SQLITE_STATIC);
  sqlite3_bind_text(delete_day_, 3, kLastMoment, -1, SQLITE_STATIC);
  RunToItsEnd(delete_day_);
  for (const Line& line : lines) {
    BindText(product_, 1, line[0]);
    if (One(product_, 0).empty()) continue;
    BindText(insert_, 1, branch);
    BindText(insert_, 2, line[0]);
    BindText(insert_, 3, line[2]);
    BindText(insert_, 4, line[3]);
    BindText(insert_, 5, line[4]);
    BindText(insert_, 6, line[6]);
    BindText(insert_, 7, now);
    BindText(insert_, 8, branch);
    RunToItsEnd(insert_);
  }
}

std::size_t PlainStore::LookUpLine(const std::string& branch, const std::string& code) {
  BindText(products_of_code_, 1, code);
  BindText(description_, 1, code);
  BindText(stock_, 1, branch);
  BindText(stock_, 2, code);
  return One(products_of_code_, 0).size() + One(description_, 0).size() + One(stock_, 2).size();
}

}  // namespace orvendal::bench
