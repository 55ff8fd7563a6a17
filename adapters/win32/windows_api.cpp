#include "adapters/win32/windows_api.h"

#include <iterator>

namespace orvendal {
namespace {

constexpr int kDesignDpi = 96;

// What the user has set since the program began; 0 where the system does not tell.
int DpiOfPrimaryDisplay() {
  const auto monitor_dpi =
      SystemFunction<HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*)>(L"shcore.dll", "GetDpiForMonitor");
  constexpr int kEffective = 0;
  UINT across = 0, down = 0;
  const HMONITOR primary = MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
  if (monitor_dpi == nullptr || FAILED(monitor_dpi(primary, kEffective, &across, &down))) across = 0;
  return static_cast<int>(across);
}

}  // namespace

std::wstring Wide(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int bytes = static_cast<int>(utf8.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), length);
  return wide;
}

std::string Utf8(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int units = static_cast<int>(wide.size());
  const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(), length, nullptr, nullptr);
  return utf8;
}

std::wstring SingleLine(std::string_view utf8) {
  std::wstring line = Wide(utf8);
  for (wchar_t& unit : line) {
    if (unit < 0x20 || unit == 0x2028 || unit == 0x2029) unit = L' ';
  }
  return line;
}

SystemFile::SystemFile(const wchar_t* name) noexcept {
  const UINT length = GetSystemDirectoryW(path_, MAX_PATH);
  wchar_t* const end = path_ + (length < MAX_PATH ? length : 0);
  *end = L'\\';
  lstrcpynW(end + 1, name, static_cast<int>(std::end(path_) - end) - 1);
}

HMODULE SystemLibrary(const wchar_t* name) noexcept {
  const SystemFile file(name);
  if (const HMODULE loaded = GetModuleHandleW(file.Path())) return loaded;
  return LoadLibraryExW(file.Path(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

HINSTANCE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&ThisModule), &module);
  return module;
}

int SystemDpi() {
  if (const int dpi = DpiOfPrimaryDisplay()) return dpi;
  if (const auto system_dpi = UserFunction<UINT(WINAPI*)()>("GetDpiForSystem")) {
    if (const int dpi = static_cast<int>(system_dpi())) return dpi;
  }
  const HDC screen = GetDC(nullptr);
  const int dpi = screen == nullptr ? 0 : GetDeviceCaps(screen, LOGPIXELSX);
  if (screen != nullptr) ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : kDesignDpi;
}

int DpiOf(HWND window) {
  if (const auto window_dpi = UserFunction<UINT(WINAPI*)(HWND)>("GetDpiForWindow")) {
    if (const int dpi = static_cast<int>(window_dpi(window))) return dpi;
  }
  return SystemDpi();
}

}  // namespace orvendal
