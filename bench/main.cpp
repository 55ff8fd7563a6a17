// What the screen costs beside what the store and the desktop cannot do without; scripts/bench builds and
// runs it. Options are those of Google Benchmark, --benchmark_filter=load for one.

#include <QApplication>

#include "bench/comparison.h"

int main(int argument_count, char** arguments) {
  using namespace orvendal::bench;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString&) {});  // of a display that is none
  int no_arguments = 1;
  QApplication application(no_arguments, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);  // a caret that blinks would paint when it likes
  Comparison comparison;
  AddLoads(comparison);
  AddSaves(comparison);
  AddEntry(comparison);
  AddPainting(comparison);
  AddMemory(comparison);
  AddStart(comparison);
  AddRecording(comparison);
  return comparison.Run(argument_count, arguments);
}
