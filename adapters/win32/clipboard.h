#pragma once

#include <string>

#include "adapters/win32/windows_api.h"

namespace orvendal {

/// The text on the clipboard; empty if there is none or another program keeps hold of it. `window` opens the
/// clipboard and may be nullptr.
std::string ReadClipboard(HWND window);
/// Puts the text there; leaves things as they are if another program keeps hold of the clipboard.
void WriteClipboard(HWND window, const std::string& text);

}  // namespace orvendal
