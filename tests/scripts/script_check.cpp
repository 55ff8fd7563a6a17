// Scripts on a screen without a display; see check_scripts.h.

#include "tests/scripts/check_scripts.h"

int main(int argument_count, char** arguments) {
  return orvendal::CheckScripts({arguments + 1, arguments + argument_count}, orvendal::MakeHeadlessWindows);
}
