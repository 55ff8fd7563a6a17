// Saving a day through LblGuardar_Click, the load at its end included.

#include "bench/bench_screen.h"
#include "bench/comparison.h"
#include "bench/plain_store.h"

namespace orvendal::bench {
namespace {

Work SaveByTheScreen(const BenchStore& store, Dialect dialect, const Day& day) {
  auto screen = std::make_shared<BenchScreen>(store, dialect, day);
  return {[screen, lines = day.lines] {
            screen->Form().LblGuardar_Click(0);
            screen->CheckLines(lines);
          },
          [screen] { screen->ChooseStylist(); }};
}

Work WriteTheDay(const Day& day) {
  auto store = std::make_shared<PlainStore>(BenchStore::WithLongHistory().Path());
  auto lines = std::make_shared<std::vector<PlainStore::Line>>(store->ReadDay(day.branch));
  return {[store, lines, branch = std::string(day.branch)] {
    store->WriteDay(branch, *lines);
    *lines = store->ReadDay(branch);
  }};
}

}  // namespace

void AddSaves(Comparison& comparison) {
  for (const Day& day : {kSave3000, kSave30000}) {
    const std::string lines = std::to_string(day.lines);
    comparison.Measure("rows/" + lines, [day] { return WriteTheDay(day); });
    for (const Dialect dialect : {Dialect::kSqlServer, Dialect::kJet}) {
      const std::string name = dialect == Dialect::kJet ? "Jet" : "SQL Server";
      const std::string ours = "save/" + lines + "/" + name;
      comparison.Measure(
          ours, [dialect, day] { return SaveByTheScreen(BenchStore::WithLongHistory(), dialect, day); });
      comparison.RatioRow("save of " + lines + " lines, " + name, ours, "rows/" + lines, 1.3);
    }
  }
  for (const char* name : {"SQL Server", "Jet"}) {
    comparison.RatioRow(std::string("growth of a save, 3000 to 30000 lines, ") + name,
                        std::string("save/30000/") + name, std::string("save/3000/") + name, 11);
  }
  for (const bool is_long : {true, false}) {
    comparison.Measure(is_long ? "save/100/long" : "save/100/short", [is_long] {
      return SaveByTheScreen(is_long ? BenchStore::WithLongHistory() : BenchStore::WithShortHistory(),
                             Dialect::kSqlServer, kSave100);
    });
  }
  comparison.RatioRow("save of 100 lines, 1000000 to 1000 rows of history", "save/100/long", "save/100/short",
                      1.2);
}

}  // namespace orvendal::bench
