// Scripts in real windows of Qt, which get the events of mouse and keyboard; see check_scripts.h.

#include <QApplication>

#include "tests/scripts/check_scripts.h"
#include "tests/scripts/qt_script_windows.h"

int main(int argument_count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_SCALE_FACTOR");
  QApplication application(argument_count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  return orvendal::CheckScripts({arguments + 1, arguments + argument_count}, orvendal::MakeQtScriptWindows);
}
