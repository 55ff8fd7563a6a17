#include "host/text/printed_text.h"

#include <cstdio>

#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr char32_t kDelete = 0x7F;
constexpr char32_t kFirstBeyondAscii = 0x80;
constexpr char32_t kLastControl = 0x9F;

std::string Hexadecimal(const char* form, unsigned value) {
  char text[16];
  std::snprintf(text, sizeof text, form, value);
  return text;
}

// Separators of lines, marks of direction, and what shows nothing at all.
bool SteersText(char32_t character) {
  return character == 0x00AD || character == 0x061C || (character >= 0x200B && character <= 0x200F) ||
         (character >= 0x2028 && character <= 0x202E) || (character >= 0x2060 && character <= 0x206F) ||
         character == 0xFEFF || (character >= 0xFFF9 && character <= 0xFFFB) ||
         (character >= 0xE0000 && character <= 0xE007F);
}

std::string Written(char32_t character) {
  switch (character) {
    case '\r':
      return "\\r";
    case '\n':
      return "\\n";
    case '\t':
      return "\\t";
    default:
      if (character < ' ' || (character >= kDelete && character <= kLastControl)) {
        return Hexadecimal("\\x%02x", static_cast<unsigned>(character));
      }
      return SteersText(character) ? Hexadecimal("\\u{%x}", static_cast<unsigned>(character)) : std::string();
  }
}

std::string Escaped(std::string_view text, bool quoted) {
  std::string printed;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const char32_t character = NextCharacter(text, at);
    const std::string_view bytes = text.substr(start, at - start);
    if (bytes.size() == 1 && static_cast<unsigned char>(bytes[0]) >= kFirstBeyondAscii) {
      printed += Hexadecimal("\\x%02x", static_cast<unsigned char>(bytes[0]));  // not UTF-8
      continue;
    }
    if (quoted && (character == '"' || character == '\\')) printed += '\\';
    const std::string written = Written(character);
    printed += written.empty() ? bytes : written;
  }
  return printed;
}

}  // namespace

std::string PrintedText(std::string_view text) {
  return Escaped(text, false);
}

std::string QuotedText(std::string_view text) {
  return "\"" + Escaped(text, true) + "\"";
}

}  // namespace orvendal
