// What a day costs the screen, beside the same reads and writes done straight on SQLite: loading through
// CargarExistencias and saving through LblGuardar_Click; and typing it in, line by line. Everything lies in
// memory, so that no disk hides the work of the program.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

std::string ProductCode(int number) {
  const std::string digits = std::to_string(number);
  return "B" + std::string(6 - digits.size(), '0') + digits;
}

/// A branch whose day of today has `lines` lines, in a store that holds `history` rows of other days.
class Day {
 public:
  Day(Dialect dialect, int lines, int history) : driver_(dialect) {
    SqliteConnection& store = *driver_.connection;
    store.Execute("BEGIN");
    SqliteStatement product(store, "INSERT INTO Productos (Codigo, Descripcion) VALUES (?, ?)");
    SqliteStatement count(
        store,
        "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual, "
        "IdEmpleado, Actualizado, ModificadoPor) VALUES ('01', ?, ?, ?, ?, 'E1', '2026-11-16 09:00:00', "
        "'01')");
    for (int line = 0; line < lines; ++line) {
      const std::string code = ProductCode(line);
      product.Bind(1, code).Bind(2, "Producto número " + std::to_string(line)).Run();
      count.Bind(1, std::string("2026-11-16 00:00:00")).Bind(2, code).Bind(3, line).Bind(4, line + 1).Run();
    }
    for (int row = 0; row < history; ++row) {
      const std::string day = std::to_string(10 + row % 18);
      count.Bind(1, "2025-01-" + day + " 00:00:00").Bind(2, ProductCode(row % lines));
      count.Bind(3, 1).Bind(4, 2).Run();
    }
    store.Execute("COMMIT");
  }

  /// Opens the screen on the day.
  FrmOrvendalciales& Open() {
    ClassOrvendal(state_).Orvendal(driver_.session, "01", "P1", "T1");
    return *state_.form;
  }
  SqliteConnection& Store() { return *driver_.connection; }

 private:
  FormDriver driver_;
  SqliteRecordsetFactory recordsets_;
  ComponentState state_{Environment{driver_.host, recordsets_, driver_.plain_library}};
};

Day DayOf(const benchmark::State& state) {
  return {static_cast<Dialect>(state.range(1)), static_cast<int>(state.range(0)),
          static_cast<int>(state.range(2))};
}

using Line = std::vector<std::string>;

std::vector<Line> ReadDay(SqliteConnection& store) {
  SqliteStatement day(store,
                      "SELECT h.IdProducto, p.Descripcion, h.StockAnterior, h.StockActual, h.IdEmpleado, "
                      "e.Nombre, h.Fecha FROM HistOrvendalcial h INNER JOIN Productos p ON h.IdProducto = "
                      "p.Codigo LEFT JOIN Empleados e ON h.IdEmpleado = e.Codigo WHERE h.IdSucursal = '01' "
                      "AND h.Fecha BETWEEN '2026-11-16 00:00:00' AND '2026-11-16 23:59:59'");
  std::vector<Line> lines;
  while (day.Step()) {
    Line& line = lines.emplace_back();
    for (int column = 0; column < 7; ++column) line.push_back(day.TextAt(column));
  }
  return lines;
}

void WriteDay(SqliteConnection& store, const std::vector<Line>& lines) {
  store.Execute(
      "DELETE FROM HistOrvendalcial WHERE IdSucursal = '01' AND Fecha BETWEEN '2026-11-16 00:00:00' AND "
      "'2026-11-16 23:59:59'");
  for (const Line& line : lines) {
    SqliteStatement product(store, "SELECT Codigo FROM Productos WHERE Codigo = ?");
    product.Bind(1, line[0]);
    if (!product.Step()) continue;
    SqliteStatement row(
        store,
        "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, "
        "StockActual, IdEmpleado, Actualizado, ModificadoPor) VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    row.Bind(1, std::string("01")).Bind(2, line[6]).Bind(3, line[0]).Bind(4, line[2]).Bind(5, line[3]);
    row.Bind(6, line[4]).Bind(7, std::string("2026-11-16 10:30:00")).Bind(8, std::string("01")).Run();
  }
}

void LoadByTheScreen(benchmark::State& state) {
  Day day = DayOf(state);
  FrmOrvendalciales& form = day.Open();
  for (auto _ : state) form.CargarExistencias();
  if (form.MSFProductos1.Rows() != state.range(0) + 1) state.SkipWithError("lines are missing");
  state.SetComplexityN(state.range(0));
}

void LoadBySqlite(benchmark::State& state) {
  Day day = DayOf(state);
  for (auto _ : state) benchmark::DoNotOptimize(ReadDay(day.Store()));
  state.SetComplexityN(state.range(0));
}

void SaveByTheScreen(benchmark::State& state) {
  Day day = DayOf(state);
  FrmOrvendalciales& form = day.Open();
  for (auto _ : state) {
    form.TxtEmpleado.Text("Ana");
    form.TxtCodigo.Text("E1");
    form.LblGuardar_Click(0);
  }
  if (form.MSFProductos1.Rows() != state.range(0) + 1) state.SkipWithError("lines are missing");
  state.SetComplexityN(state.range(0));
}

// A save ends with a load.
void SaveBySqlite(benchmark::State& state) {
  Day day = DayOf(state);
  std::vector<Line> lines = ReadDay(day.Store());
  for (auto _ : state) {
    WriteDay(day.Store(), lines);
    lines = ReadDay(day.Store());
  }
  if (static_cast<int>(lines.size()) != state.range(0)) state.SkipWithError("lines are missing");
  state.SetComplexityN(state.range(0));
}

// A whole count typed on an empty day. Each new line is compared with those above it, and the first free row
// is looked for from the top: both are rules of the screen, and together they cost the square of the lines.
void EnterByTheScreen(benchmark::State& state) {
  const int lines = static_cast<int>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    Day day = DayOf(state);
    day.Store().Execute("DELETE FROM HistOrvendalcial");
    FrmOrvendalciales& form = day.Open();
    form.TxtEmpleado.Text("Ana");
    form.TxtCodigo.Text("E1");
    Robot hands(form);
    hands.DoubleClickCell(form.MSFProductos, 1, 0);
    state.ResumeTiming();
    for (int line = 0; line < lines; ++line) hands.Type(ProductCode(line) + "\n5\n");
    if (form.MSFProductos.Row() != lines + 1) state.SkipWithError("lines are missing");
  }
  state.SetComplexityN(lines);
}

// Lines of the day, dialect, rows of other days.
void Days(benchmark::internal::Benchmark* run) {
  run->ArgNames({"lines", "jet", "history"})->Unit(benchmark::kMicrosecond);
  for (const int jet : {0, 1}) {
    for (const int lines : {100, 1000, 10000}) run->Args({lines, jet, 0});
  }
}
void DaysInALongHistory(benchmark::internal::Benchmark* run) {
  run->ArgNames({"lines", "jet", "history"})->Unit(benchmark::kMicrosecond);
  for (const int jet : {0, 1}) run->Args({1000, jet, 200000});
}

void Counts(benchmark::internal::Benchmark* run) {
  run->ArgNames({"lines", "jet", "history"})->Unit(benchmark::kMillisecond);
  for (const int lines : {1000, 4000, 16000}) run->Args({lines, 0, 0});
}

BENCHMARK(LoadBySqlite)->Apply(Days)->Complexity();
BENCHMARK(LoadByTheScreen)->Apply(Days)->Complexity();
BENCHMARK(SaveBySqlite)->Apply(Days)->Complexity();
BENCHMARK(SaveByTheScreen)->Apply(Days)->Complexity();
BENCHMARK(EnterByTheScreen)->Apply(Counts)->Complexity();
BENCHMARK(LoadBySqlite)->Name("LoadBySqliteInALongHistory")->Apply(DaysInALongHistory);
BENCHMARK(LoadByTheScreen)->Name("LoadByTheScreenInALongHistory")->Apply(DaysInALongHistory);
BENCHMARK(SaveBySqlite)->Name("SaveBySqliteInALongHistory")->Apply(DaysInALongHistory);
BENCHMARK(SaveByTheScreen)->Name("SaveByTheScreenInALongHistory")->Apply(DaysInALongHistory);

}  // namespace
}  // namespace orvendal
