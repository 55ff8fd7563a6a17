#include "platform/base/text.h"

#include <algorithm>

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80U) return 1;
  if (lead >= 0xC2U && lead < 0xE0U) return 2;
  if (lead >= 0xE0U && lead < 0xF0U) return 3;
  if (lead >= 0xF0U && lead < 0xF5U) return 4;
  return 1;
}

// Whether a sequence of three or four bytes is the one way to write its character, and that is one of
// Unicode.
bool IsShortest(char lead, char second) {
  const auto byte = static_cast<unsigned char>(second);
  switch (static_cast<unsigned char>(lead)) {
    case 0xE0U:
      return byte >= 0xA0U;
    case 0xEDU:
      return byte < 0xA0U;
    case 0xF0U:
      return byte >= 0x90U;
    case 0xF4U:
      return byte < 0x90U;
    default:
      return true;
  }
}

// Bytes of the character at `offset`; 1 for a byte that begins no well-formed sequence.
std::size_t CharacterBytes(std::string_view text, std::size_t offset) {
  const std::size_t length = SequenceLength(static_cast<unsigned char>(text[offset]));
  if (offset + length > text.size()) return 1;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(text[offset + i])) return 1;
  }
  return length > 2 && !IsShortest(text[offset], text[offset + 1]) ? 1 : length;
}

char32_t WithoutAccent(char32_t c) {
  switch (c) {
    case U'à':
    case U'á':
    case U'â':
    case U'ã':
    case U'ä':
    case U'å':
      return U'a';
    case U'è':
    case U'é':
    case U'ê':
    case U'ë':
      return U'e';
    case U'ì':
    case U'í':
    case U'î':
    case U'ï':
      return U'i';
    case U'ò':
    case U'ó':
    case U'ô':
    case U'õ':
    case U'ö':
      return U'o';
    case U'ù':
    case U'ú':
    case U'û':
    case U'ü':
      return U'u';
    case U'ñ':
      return U'n';
    case U'ç':
      return U'c';
    case U'ý':
    case U'ÿ':
      return U'y';
    default:
      return c;
  }
}

}  // namespace

std::size_t Len(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < text.size(); offset += CharacterBytes(text, offset)) ++count;
  return count;
}

std::size_t ByteOffset(std::string_view text, std::size_t position) {
  std::size_t offset = 0;
  while (position > 0 && offset < text.size()) {
    offset += CharacterBytes(text, offset);
    --position;
  }
  return offset;
}

std::string Mid(std::string_view text, std::size_t start, std::size_t length) {
  if (start == 0) throw RuntimeError(error_number::kInvalidProcedureCall);
  const std::string_view rest = text.substr(ByteOffset(text, start - 1));
  return std::string(rest.substr(0, ByteOffset(rest, length)));
}

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

char32_t NextCharacter(std::string_view text, std::size_t& offset) {
  const std::size_t length = CharacterBytes(text, offset);
  const auto lead = static_cast<unsigned char>(text[offset]);
  char32_t character = length == 1 && lead >= 0x80U ? kStrayByte + lead : lead;
  if (length > 1) {
    character = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
      character = (character << 6) | (static_cast<unsigned char>(text[offset + i]) & 0x3FU);
    }
  }
  offset += length;
  return character;
}

void AppendCharacter(std::string& text, char32_t c) {
  const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (c >= kStrayByte) {
    put(c - kStrayByte);
  } else if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

std::string FromCharacter(char32_t character) {
  std::string text;
  AppendCharacter(text, character);
  return text;
}

char32_t ToLower(char32_t c) {
  if (c >= U'A' && c <= U'Z') return c + 32;
  if (c < 0xC0) return c;
  if (c <= 0xDE && c != 0xD7) return c + 32;  // Latin-1
  if (c == 0x178) return 0xFF;                // Ÿ
  if ((c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177))
    return c | 1U;  // Latin Extended-A, even upper
  if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) return c % 2 == 1 ? c + 1 : c;
  if (c >= 0x391 && c <= 0x3A9) return c + 32;  // Greek
  if (c >= 0x410 && c <= 0x42F) return c + 32;  // Cyrillic
  if (c >= 0x400 && c <= 0x40F) return c + 80;
  return c;
}

std::string ToLower(std::string_view text) {
  std::string lower;
  lower.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();)
    AppendCharacter(lower, ToLower(NextCharacter(text, offset)));
  return lower;
}

std::string FoldForSearch(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    AppendCharacter(folded, WithoutAccent(ToLower(NextCharacter(text, offset))));
  }
  return folded;
}

std::string Showable(std::string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string shown;
  shown.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    const char32_t character = NextCharacter(text, offset);
    AppendCharacter(shown, character < kStrayByte ? character : kReplacement);
  }
  return shown;
}

// Both cases of a letter take the same number of bytes.
bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  if (left.size() != right.size()) return false;
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  const auto is_ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80U; };
  std::size_t i = 0;
  for (; i < left.size() && is_ascii(left[i]) && is_ascii(right[i]); ++i) {
    if (left[i] != right[i] && lower(left[i]) != lower(right[i])) return false;
  }
  std::size_t j = i;
  while (i < left.size() && j < right.size()) {
    if (ToLower(NextCharacter(left, i)) != ToLower(NextCharacter(right, j))) return false;
  }
  return i == left.size() && j == right.size();
}

}  // namespace orvendal
