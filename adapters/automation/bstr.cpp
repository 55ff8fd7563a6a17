#include "adapters/automation/bstr.h"

#include <new>

namespace orvendal {

std::wstring WideText(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int size = static_cast<int>(utf8.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)),
                    L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Utf8Text(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int size = static_cast<int>(wide.size());
  std::string utf8(static_cast<std::size_t>(
                       WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr)),
                   '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), static_cast<int>(utf8.size()), nullptr,
                      nullptr);
  return utf8;
}

std::string TextOfBstr(BSTR text) {
  return text ? Utf8Text(std::wstring_view(text, SysStringLen(text))) : std::string();
}

BSTR MakeBstr(std::string_view utf8) {
  const std::wstring wide = WideText(utf8);
  BSTR text = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (!text) throw std::bad_alloc();
  return text;
}

}  // namespace orvendal
