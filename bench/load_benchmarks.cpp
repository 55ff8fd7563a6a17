// Loading a day into both grids.

#include <QTableWidget>

#include "bench/bench_screen.h"
#include "bench/comparison.h"
#include "bench/plain_store.h"

namespace orvendal::bench {
namespace {

Work LoadByTheScreen(Dialect dialect, const Day& day) {
  auto screen = std::make_shared<BenchScreen>(BenchStore::WithLongHistory(), dialect, day);
  return {[screen, lines = day.lines] {
    screen->Form().CargarExistencias();
    screen->CheckLines(lines);
  }};
}

Work StepTheJoin(const Day& day) {
  auto store = std::make_shared<PlainStore>(BenchStore::WithLongHistory().Path());
  return {[store, branch = std::string(day.branch)] { store->ReadDay(branch); }};
}

// Two tables, since the screen fills two grids.
Work FillTables(const Day& day) {
  PlainStore store(BenchStore::WithLongHistory().Path());
  auto lines = std::make_shared<std::vector<PlainStore::Line>>(store.ReadDay(day.branch));
  return {[lines] {
    for (int table = 0; table < 2; ++table) {
      QTableWidget widget(static_cast<int>(lines->size()), 9);
      int row = 0;
      for (const PlainStore::Line& line : *lines) {
        for (int column = 0; column < 9; ++column) {
          const std::string& text = line[static_cast<std::size_t>(column)];
          widget.setItem(row, column, new QTableWidgetItem(QString::fromUtf8(text.data(), text.size())));
        }
        ++row;
      }
    }
  }};
}

}  // namespace

void AddLoads(Comparison& comparison) {
  for (const Day& day : {kLoad3000, kLoad10000, kLoad100000}) {
    const std::string lines = std::to_string(day.lines);
    comparison.Measure("join/" + lines, [day] { return StepTheJoin(day); });
    comparison.Measure("tables/" + lines, [day] { return FillTables(day); });
    for (const Dialect dialect : {Dialect::kSqlServer, Dialect::kJet}) {
      const std::string name = dialect == Dialect::kJet ? "Jet" : "SQL Server";
      const std::string ours = "load/" + lines + "/" + name;
      comparison.Measure(ours, [dialect, day] { return LoadByTheScreen(dialect, day); });
      comparison.RatioRow("load of " + lines + " lines, " + name + ": the join", ours, "join/" + lines, 2.0);
      comparison.RatioRow("load of " + lines + " lines, " + name + ": QTableWidget", ours, "tables/" + lines,
                          1.0);
    }
  }
  for (const char* name : {"SQL Server", "Jet"}) {
    comparison.RatioRow(std::string("growth of a load, 10000 to 100000 lines, ") + name,
                        std::string("load/100000/") + name, std::string("load/10000/") + name, 11);
  }
}

}  // namespace orvendal::bench
