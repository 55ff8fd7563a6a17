#pragma once

// The system's headers as this folder uses them: wide texts only, and no macros in the way of std.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#undef DrawText

#include <memory>
#include <string>
#include <string_view>

namespace orvendal {

/// Between the texts of the core and those of the system. What is no text in one becomes U+FFFD in the other.
std::wstring Wide(std::string_view utf8);
std::string Utf8(std::wstring_view wide);
/// One line, as the controls of the engine show it: control characters and separators become blanks.
std::wstring SingleLine(std::string_view utf8);

/// The module that this code is linked into: the DLL, or the program.
HINSTANCE ThisModule();

/// Pixels to an inch of the display, as the system tells this process, whatever the process has said about
/// its awareness of it.
int SystemDpi();
/// The same of the display that the window is on.
int DpiOf(HWND window);

}  // namespace orvendal
