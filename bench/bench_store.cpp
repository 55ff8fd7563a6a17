#include "bench/bench_store.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <stdexcept>

#include "adapters/sqlite/sqlite_store.h"
#include "host/store/schema.h"

namespace orvendal::bench {
namespace {

constexpr int kLongHistory = 1'000'000;
constexpr int kShortHistory = 1'000;
constexpr int kStride = 7919;  // has no divisor in common with the products
constexpr std::array kDays = {kLoad3000, kLoad10000, kLoad100000, kSave3000, kSave30000,
                              kSave100,  kEmpty,     kScan100,    kScan30000};

// The statements that make them again.
std::string DropIndexes(SqliteConnection& store, const std::string& table) {
  std::string make;
  std::string drop;
  {
    SqliteStatement indexes(store,
                            "SELECT name, sql FROM sqlite_master WHERE type = 'index' AND tbl_name = ?1");
    indexes.Bind(1, table);
    while (indexes.Step()) {
      drop += "DROP INDEX " + indexes.TextAt(0) + ";";
      make += indexes.TextAt(1) + ";";
    }
  }
  store.Execute(drop);
  return make;
}

}  // namespace

std::string CodeOf(int place) {
  char code[16];
  std::snprintf(code, sizeof code, "P%06d", static_cast<int>(std::int64_t{place} * kStride % kProducts));
  return code;
}

BenchStore::BenchStore(int rows_of_history) {
  std::string name = (std::filesystem::temp_directory_path() / "orvendal-bench-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for the store can be made");
  folder_ = name;
  Fill(rows_of_history);
}

BenchStore::~BenchStore() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void BenchStore::Fill(int rows_of_history) const {
  const auto store =
      SqliteConnection::Open(Path(), Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
  CreateSchema(*store);
  // It is gone with the program, whatever happens to it.
  store->Execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA cache_size = -400000");
  const std::string indexes = DropIndexes(*store, "HistOrvendalcial");
  const std::string numbers = "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < ";
  store->Execute(
      "BEGIN;"
      "INSERT INTO Sucursales (Sucursal, Nombre) " +
      numbers + "11) SELECT printf('%02d', i + 1), 'Sucursal ' || (i + 1) FROM n;" +
      "INSERT INTO Empleados (Codigo, Nombre) " + numbers +
      "29) SELECT 'E' || (i + 1), 'Estilista número ' || (i + 1) FROM n;" +
      "INSERT INTO Productos (Codigo, Descripcion) " + numbers + std::to_string(kProducts - 1) +
      ") SELECT printf('P%06d', i), 'Champú reparador de ' || i || ' ml' FROM n;" +
      "INSERT INTO Referencias (Referencia, IdProducto) "
      "SELECT printf('84%011d', rowid), Codigo FROM Productos;");
  for (const Day& day : {kEmpty, kScan100, kScan30000}) {
    store->Execute("INSERT INTO ProdSucStock (IdSucursal, IdProducto, Stock) SELECT '" +
                   std::string(day.branch) + "', Codigo, rowid % 40 FROM Productos");
  }
  const std::string count =
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual, IdEmpleado, "
      "Actualizado, ModificadoPor) ";
  // The days of the last years, one after the other, each with a few counts of every branch.
  store->Execute(count + numbers + std::to_string(rows_of_history - 1) +
                 ") SELECT printf('%02d', 1 + i / 40 % 12), datetime('2026-11-15', '-' || ((" +
                 std::to_string(rows_of_history) + " - i) / 480) || ' days'), printf('P%06d', i * " +
                 std::to_string(kStride) + " % " + std::to_string(kProducts) +
                 "), i % 30, i % 25, 'E' || (1 + i % 30), '2026-01-01 09:00:00', printf('%02d', 1 + i / 40 "
                 "% 12) FROM n");
  for (const Day& day : kDays) {
    if (day.lines == 0) continue;
    const std::string branch = std::string("'") + day.branch + "'";
    store->Execute(count + numbers + std::to_string(day.lines - 1) + ") SELECT " + branch + ", '" + kDay +
                   " 00:00:00', printf('P%06d', i * " + std::to_string(kStride) + " % " +
                   std::to_string(kProducts) + "), i % 30, i % 25, 'E' || (1 + i % 30), '" + kDay +
                   " 09:00:00', " + branch + " FROM n");
  }
  store->Execute("COMMIT");
  store->Execute(indexes);
}

const BenchStore& BenchStore::WithLongHistory() {
  static const BenchStore store(kLongHistory);
  return store;
}

const BenchStore& BenchStore::WithShortHistory() {
  static const BenchStore store(kShortHistory);
  return store;
}

}  // namespace orvendal::bench
