#pragma once

#include <string>
#include <vector>

#include "host/script/script_windows.h"

namespace orvendal {

/// Runs scripts and compares what each shows, byte for byte, with the file that says what it should show. The
/// exit code: 0, 1 if something differs, 2 if it cannot be told.
///
///   [--write | --once] [--with OPTIONS] FILE.guion FILE.salida ...
///
/// The first line of a script may give options: "# opciones: --dialecto jet"; --with adds others. After what
/// the script shows on its two streams, the expected file has the exit code if it is not 0. The script runs
/// twice, since it has to show the same each time. With --write the file is written instead.
int CheckScripts(std::vector<std::string> words, const MakeScriptWindows& make_windows);

}  // namespace orvendal
