#pragma once

#include <memory>

#include "host/script/script_windows.h"

namespace orvendal {

/// Windows of Qt, which get what a script's hands do as events of mouse and keyboard. Display and letters are
/// those of the host without a display, so that everything stands where a script's output says. A
/// QApplication lives around them.
std::unique_ptr<ScriptWindows> MakeQtScriptWindows(const Region& region, Clock& clock);

}  // namespace orvendal
