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

/// A function of the system's user interface that older systems lack; asking by name keeps the module
/// loadable there. nullptr without it.
template <typename Function>
Function UserFunction(const char* name) {
  const HMODULE user = GetModuleHandleW(L"user32.dll");
  return user == nullptr ? nullptr
                         : reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(user, name)));
}

/// Pixels to an inch of the primary display, as this thread counts pixels.
int SystemDpi();
/// The same of the display that the window is on.
int DpiOf(HWND window);

}  // namespace orvendal
