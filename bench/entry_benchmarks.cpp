// Entering lines by scanner.

#include "bench/bench_screen.h"
#include "bench/comparison.h"
#include "bench/plain_store.h"

namespace orvendal::bench {
namespace {

constexpr int kMostAdded = 50;

// The code as a reader types it, with its Enter, and what it made is painted; then the quantity and its
// Enter, and that is painted. After some lines the day is loaded again, so that it keeps its size.
Work ScanALine(const Day& day) {
  struct Scanning {
    explicit Scanning(const Day& scanned)
        : screen(BenchStore::WithLongHistory(), Dialect::kSqlServer, scanned), next(scanned.lines) {
      screen.OpenEditor();
      screen.Paint();
    }
    BenchScreen screen;
    int next;  // line
    int added = 0;
  };
  auto scanning = std::make_shared<Scanning>(day);
  return {[scanning] {
            scanning->screen.Type(CodeOf(scanning->next++) + "\n");
            scanning->screen.Paint();
            scanning->screen.Type("5\n");
            scanning->screen.Paint();
          },
          [scanning, day] {
            if (scanning->added++ < kMostAdded) return;
            if (scanning->screen.Form().MSFProductos.Row() != scanning->next + 1)
              throw std::runtime_error("lines are missing");
            scanning->added = 1;
            scanning->next = day.lines;
            scanning->screen.Form().CargarExistencias();
            scanning->screen.OpenEditor();
            scanning->screen.Paint();
          }};
}

Work LookALineUp(const Day& day) {
  auto store = std::make_shared<PlainStore>(BenchStore::WithLongHistory().Path());
  auto next = std::make_shared<int>(day.lines);
  return {[store, next, day] {
    store->LookUpLine(day.branch, CodeOf((*next)++));
    if (*next == day.lines + kMostAdded) *next = day.lines;
  }};
}

// A whole count on an empty day, and nothing painted: that costs the same for every line.
Work EnterACount(int lines) {
  auto screen = std::make_shared<BenchScreen>(BenchStore::WithLongHistory(), Dialect::kSqlServer, kEmpty);
  return {[screen, lines] {
            for (int line = 0; line < lines; ++line) screen->Type(CodeOf(line) + "\n5\n");
            if (screen->Form().MSFProductos.Row() != lines + 1) throw std::runtime_error("lines are missing");
          },
          [screen] {
            screen->Form().CargarExistencias();
            screen->OpenEditor();
          }};
}

}  // namespace

void AddEntry(Comparison& comparison) {
  for (const Day& day : {kScan100, kScan30000}) {
    const std::string lines = std::to_string(day.lines);
    comparison.Measure("scan/" + lines, [day] { return ScanALine(day); });
    comparison.Measure("look-ups/" + lines, [day] { return LookALineUp(day); });
    comparison.BeyondRow("scanned code, quantity, both Enters, at " + lines + " lines", "scan/" + lines,
                         "look-ups/" + lines, 1.0);
  }
  comparison.RatioRow("the same at 30000 lines to that at 100", "scan/30000", "scan/100", 1.2);
  for (const int lines : {8'000, 16'000}) {
    comparison.Measure("count/" + std::to_string(lines), [lines] { return EnterACount(lines); });
  }
  comparison.RatioRow("16000 lines entered by scan to 8000", "count/16000", "count/8000", 2.2);
}

}  // namespace orvendal::bench
