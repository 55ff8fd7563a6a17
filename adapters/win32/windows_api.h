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

/// Full path of a file in the system's own folder; its name has less than 32 characters.
class SystemFile {
 public:
  explicit SystemFile(const wchar_t* name) noexcept;
  const wchar_t* Path() const { return path_; }

 private:
  wchar_t path_[MAX_PATH + 32];
};
/// A library of the system that not every program has loaded, from the system's own folder, whatever lies
/// beside the program. It stays loaded, since the system has objects of it. nullptr without it.
HMODULE SystemLibrary(const wchar_t* name) noexcept;
template <typename Function>
Function SystemFunction(const wchar_t* library, const char* name) noexcept {
  const HMODULE module = SystemLibrary(library);
  return module == nullptr
             ? nullptr
             : reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

/// Pixels to an inch of the primary display, as this thread counts pixels.
int SystemDpi();
/// The same of the display that the window is on.
int DpiOf(HWND window);

}  // namespace orvendal
