#pragma once

#include <string>

#include "host/command_line.h"

namespace orvendal {

/// The sample host: makes the session of the library beside it, calls the component as any host does, and
/// runs until its screen has closed. Tells errors in a message box. The exit code.
int RunSampleProgram(const Options& options);

/// A message box of the program.
void ShowText(const std::string& text, unsigned icon);

}  // namespace orvendal
