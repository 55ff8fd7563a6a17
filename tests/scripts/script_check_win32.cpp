// Scripts in real windows of the system, which get the messages of mouse and keyboard; see check_scripts.h.

#include "tests/scripts/check_scripts.h"
#include "tests/scripts/win32_script_windows.h"

int main(int argument_count, char** arguments) {
  return orvendal::CheckScripts({arguments + 1, arguments + argument_count},
                                orvendal::MakeWin32ScriptWindows);
}
