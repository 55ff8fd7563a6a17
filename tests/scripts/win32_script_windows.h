#pragma once

#include <memory>

#include "host/script/script_windows.h"

namespace orvendal {

/// Windows of the system, which get what a script's hands do as messages of mouse and keyboard, at the times
/// that the script's own clock has. Display and letters are those of the host without a display, so that
/// everything stands where a script's output says.
std::unique_ptr<ScriptWindows> MakeWin32ScriptWindows(const Region& region, Clock& clock);

}  // namespace orvendal
