#pragma once

#include "host/command_line.h"

namespace orvendal {

/// Plays the host application: opens the store, calls the component and stays until its screen is gone; or,
/// asked for a picture, paints the screen without a window, writes the day's lines to standard output and
/// ends. Gives the exit code; what went wrong stands on standard error.
int RunProgram(const Options& options, const char* program_name);

}  // namespace orvendal
