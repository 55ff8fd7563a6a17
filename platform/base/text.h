#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvendal {

/// Texts are UTF-8; positions and lengths count characters (code points), never bytes. Bytes that are not
/// UTF-8 count as one character each, so that no input breaks a loop: a character of its own for each such
/// byte, which has no case, is equal to itself alone, and becomes the same byte again.

/// Number of characters.
std::size_t Len(std::string_view text);
/// `length` characters from the character `start`, counted from 1; what there is if the text ends earlier.
/// Raises error 5 for a `start` of 0.
std::string Mid(std::string_view text, std::size_t start, std::size_t length = std::string_view::npos);
/// Without the blanks at both ends; other white space stays.
std::string Trim(std::string_view text);

/// Byte offset of the character with index `position`, counted from 0; the size of the text past its end.
std::size_t ByteOffset(std::string_view text, std::size_t position);
/// From here on, beyond all of Unicode, stand the bytes that are not UTF-8: this plus the byte.
inline constexpr char32_t kStrayByte = 0x110000;

/// Code point that begins at the byte `offset`, which is moved past it.
char32_t NextCharacter(std::string_view text, std::size_t& offset);
/// Appends one character.
void AppendCharacter(std::string& text, char32_t character);
std::string FromCharacter(char32_t character);

/// Lower case of the letters that the system's languages use: Latin with its accents, Greek, Cyrillic.
char32_t ToLower(char32_t character);
std::string ToLower(std::string_view text);
/// Lower case with accents taken off, for searches as people type: "Champú" becomes "champu".
std::string FoldForSearch(std::string_view text);
/// The text as it can be shown: U+FFFD in place of each byte that is not UTF-8.
std::string Showable(std::string_view text);
bool EqualsIgnoringCase(std::string_view left, std::string_view right);

}  // namespace orvendal
