#include "adapters/automation/bstr.h"

#include <new>

#include "platform/base/text.h"

namespace orvendal {
namespace {

// A byte that is not UTF-8 is marshalled as a lone low surrogate, which no well-formed text has: 0xDC00 plus
// the byte. It comes back as the same byte, so that a row of a store in another encoding is still found and
// saved by its own code.
constexpr wchar_t kStrayHalf = 0xDC00;
constexpr char32_t kNoText = 0xFFFD;
constexpr char32_t kBeyondOneUnit = 0x10000;

bool IsFirstHalf(wchar_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsSecondHalf(wchar_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}
bool IsStrayByte(wchar_t unit) {
  return unit >= kStrayHalf + 0x80 && unit <= kStrayHalf + 0xFF;
}

/// The character that begins at `offset`, which is moved past it.
char32_t NextOfWide(std::wstring_view wide, std::size_t& offset) {
  const wchar_t unit = wide[offset++];
  if (IsStrayByte(unit)) return kStrayByte + (unit - kStrayHalf);
  if (IsSecondHalf(unit)) return kNoText;
  if (!IsFirstHalf(unit)) return unit;
  if (offset == wide.size() || !IsSecondHalf(wide[offset])) return kNoText;
  const auto high = static_cast<char32_t>(unit - 0xD800);
  const auto low = static_cast<char32_t>(wide[offset++] - 0xDC00);
  return kBeyondOneUnit + (high << 10) + low;
}

void AppendToWide(std::wstring& wide, char32_t character) {
  if (character >= kStrayByte) {
    wide.push_back(static_cast<wchar_t>(kStrayHalf + (character - kStrayByte)));
  } else if (character < kBeyondOneUnit) {
    wide.push_back(static_cast<wchar_t>(character));
  } else {
    wide.push_back(static_cast<wchar_t>(0xD800 + ((character - kBeyondOneUnit) >> 10)));
    wide.push_back(static_cast<wchar_t>(0xDC00 + ((character - kBeyondOneUnit) & 0x3FF)));
  }
}

}  // namespace

std::wstring WideText(std::string_view utf8) {
  std::wstring wide;
  wide.reserve(utf8.size());
  for (std::size_t offset = 0; offset < utf8.size();) AppendToWide(wide, NextCharacter(utf8, offset));
  return wide;
}

std::string Utf8Text(std::wstring_view wide) {
  std::string utf8;
  utf8.reserve(wide.size());
  for (std::size_t offset = 0; offset < wide.size();) AppendCharacter(utf8, NextOfWide(wide, offset));
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
