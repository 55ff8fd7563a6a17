#include "adapters/sqlite/text_folding.h"

#include <algorithm>
#include <initializer_list>

#include "platform/base/text.h"

namespace orvendal::sqlite {
namespace {

constexpr std::size_t kMostVariants = 4;
constexpr char kLastByte = '\xFF';

// The upper case of a lower letter outside A to Z; the letter itself if it has none.
char32_t ToUpperOutsideAscii(char32_t lower) {
  for (const char32_t candidate : std::initializer_list<char32_t>{lower - 32, lower - 1, lower - 80, 0x178}) {
    if (candidate >= 0x80 && candidate != lower && ToLower(candidate) == lower) return candidate;
  }
  return lower;
}

struct CasedLetter {
  std::size_t begin = std::string_view::npos;  // byte offsets
  std::size_t end = 0;
  char32_t lower = 0;
  char32_t upper = 0;
};

// The first letter from the byte `at` on that a NOCASE index keeps apart from its other case.
CasedLetter FindCasedLetter(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    const std::size_t begin = at;
    const char32_t character = NextCharacter(text, at);
    if (character < 0x80) continue;
    const char32_t lower = ToLower(character);
    const char32_t upper = ToUpperOutsideAscii(lower);
    if (lower != upper) return {begin, at, lower, upper};
  }
  return {};
}

IndexRange RangeOf(std::string_view text, std::string high) {
  const CasedLetter letter = FindCasedLetter(text, 0);
  if (letter.begin == std::string_view::npos) return {std::string(text), std::move(high)};
  const std::string head(text.substr(0, letter.begin));
  return {head + FromCharacter(std::min(letter.lower, letter.upper)),
          AboveTextsBeginningWith(head + FromCharacter(std::max(letter.lower, letter.upper)))};
}

}  // namespace

std::string WithoutTrailingBlanks(std::string_view text) {
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

bool TextEquals(std::string_view left, std::string_view right) {
  if (left == right) return true;
  return EqualsIgnoringCase(left.substr(0, left.find_last_not_of(' ') + 1),
                            right.substr(0, right.find_last_not_of(' ') + 1));
}

std::string AboveTextsBeginningWith(std::string_view text) {
  std::string above(text);
  while (!above.empty() && above.back() == kLastByte) above.pop_back();
  if (above.empty()) return above;
  // The index compares capitals as the small letters, which stand above the marks after Z.
  char& last = above.back();
  last = static_cast<char>((last >= 'A' && last <= 'Z' ? last - 'A' + 'a' : last) + 1);
  return above;
}

std::string AboveTrailingBlanks(std::string_view text) {
  return std::string(text) + kAfterBlank;
}

IndexRange RangeOfEqualTexts(std::string_view text) {
  const std::string bare = WithoutTrailingBlanks(text);
  return RangeOf(bare, AboveTrailingBlanks(bare));
}

IndexRange RangeOfPrefix(std::string_view prefix) {
  return RangeOf(prefix, AboveTextsBeginningWith(prefix));
}

std::vector<std::string> CaseVariants(std::string_view text) {
  std::vector<std::string> variants{std::string(text)};
  for (CasedLetter letter = FindCasedLetter(text, 0); letter.begin != std::string_view::npos;
       letter = FindCasedLetter(text, letter.end)) {
    if (variants.size() * 2 > kMostVariants) return {};
    const std::size_t count = variants.size();
    const std::size_t length = letter.end - letter.begin;
    std::size_t at = letter.begin;
    const char32_t present = NextCharacter(text, at);
    const std::string other = FromCharacter(present == letter.lower ? letter.upper : letter.lower);
    // Both cases take the same number of bytes but for one letter (Ÿ); then the spelling is left to the
    // range.
    if (other.size() != length) return {};
    for (std::size_t i = 0; i < count; ++i) {
      variants.push_back(variants[i]);
      variants.back().replace(letter.begin, length, other);
    }
  }
  return variants;
}

std::string SortKey(std::string_view text) {
  std::string key;
  key.reserve(text.size() + 4);
  for (std::size_t at = 0; at < text.size();) {
    const char32_t lower = ToLower(NextCharacter(text, at));
    if (lower == U'ñ') {
      key += "n~";
    } else if (lower < 0x80) {
      key += static_cast<char>(lower);
    } else {
      key += FoldForSearch(FromCharacter(lower));
    }
  }
  return key;
}

}  // namespace orvendal::sqlite
