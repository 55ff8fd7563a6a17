#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvendal::sqlite {

/// The file's indexes fold the letters A to Z at most (NOCASE), the providers fold every letter and pay no
/// regard to blanks at the end. These give the candidates to look for in an index, and the exact comparison.

/// Equal to the providers: without regard to case and to blanks at the end. Accents count.
bool TextEquals(std::string_view left, std::string_view right);

std::string WithoutTrailingBlanks(std::string_view text);

/// The character that stands next to the blank.
inline constexpr char kAfterBlank = ' ' + 1;

/// Above every text that begins with `text`, whatever bytes follow, as an index without case compares; empty
/// if there is no such text. And for the blanks alone: above `text` with any number of blanks after it.
std::string AboveTextsBeginningWith(std::string_view text);
std::string AboveTrailingBlanks(std::string_view text);

/// A stretch of a NOCASE index: from `low` on, below `high`, or to the end of the index where that is empty.
struct IndexRange {
  std::string low;
  std::string high;
};
/// Holds every text that equals `text` to the providers, and few others.
IndexRange RangeOfEqualTexts(std::string_view text);
/// Holds every text that begins with `prefix` to the providers, and few others.
IndexRange RangeOfPrefix(std::string_view prefix);

/// The spellings of `text` in both cases of its letters outside A to Z, itself first; none if they are more
/// than four.
std::vector<std::string> CaseVariants(std::string_view text);

/// By which texts sort as in Spanish: case and accents ignored, the letter ñ after n.
std::string SortKey(std::string_view text);

}  // namespace orvendal::sqlite
