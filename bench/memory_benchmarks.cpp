// What a loaded day takes.

#include <malloc.h>

#include <QTableWidget>

#include "bench/bench_screen.h"
#include "bench/comparison.h"
#include "bench/plain_store.h"

namespace orvendal::bench {
namespace {

double BytesInUse() {
  const auto used = mallinfo2();
  return static_cast<double>(used.uordblks + used.hblkhd);
}

// Of the screen with that day, without the pages of its file that the store keeps for the next statement.
double BytesOfScreen(const Day& day) {
  const double before = BytesInUse();
  BenchScreen screen(BenchStore::WithShortHistory(), Dialect::kSqlServer, day);
  screen.Store().Execute("PRAGMA shrink_memory");
  return BytesInUse() - before;
}

// One table: it is said as it is, though the screen fills two grids.
double BytesOfTable(const Day& day) {
  const std::vector<PlainStore::Line> lines =
      PlainStore(BenchStore::WithShortHistory().Path()).ReadDay(day.branch);
  const double before = BytesInUse();
  QTableWidget widget(static_cast<int>(lines.size()), 9);
  int row = 0;
  for (const PlainStore::Line& line : lines) {
    for (int column = 0; column < 9; ++column) {
      const std::string& text = line[static_cast<std::size_t>(column)];
      widget.setItem(
          row, column,
          new QTableWidgetItem(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))));
    }
    ++row;
  }
  return BytesInUse() - before;
}

}  // namespace

void AddMemory(Comparison& comparison) {
  comparison.FigureRow(
      "memory of a day of 100000 lines, both grids: QTableWidget", "B/line",
      [] {
        BytesOfScreen(kEmpty);  // what is made once for all screens
        const double lines = kLoad100000.lines;
        return Comparison::Figures{(BytesOfScreen(kLoad100000) - BytesOfScreen(kEmpty)) / lines,
                                   BytesOfTable(kLoad100000) / lines};
      },
      400);
}

}  // namespace orvendal::bench
