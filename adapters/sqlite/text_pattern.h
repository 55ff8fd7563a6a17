#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvendal::sqlite {

/// A pattern of Like as the data providers read it: "%" any characters, "_" one character, "[abc]" or "[a-c]"
/// one of a set, "[^abc]" one outside it. Case is ignored, accents count. Blanks of the pattern count, those
/// at the end of a value do not. A set that is not closed matches nothing. Immutable.
class TextPattern {
 public:
  explicit TextPattern(std::string_view pattern);

  bool Matches(std::string_view value) const;
  /// The text that values must begin with; all of the pattern if it has no wildcard.
  const std::string& LiteralPrefix() const { return literal_prefix_; }
  bool HasWildcards() const { return has_wildcards_; }
  /// Whether it is a text followed by "%" alone, or such a text with nothing after it.
  bool IsPrefixOnly() const;

 private:
  enum class Kind { kCharacter, kAnyCharacter, kAnyText, kSet, kNothing };
  struct Element {
    Kind kind = Kind::kCharacter;
    char32_t character = 0;  // lower case
    bool negated = false;
    std::vector<std::pair<char32_t, char32_t>> ranges;  // lower case
  };

  static bool MatchesOne(const Element& element, char32_t lower);
  std::size_t ParseSet(std::string_view pattern, std::size_t open);

  std::vector<Element> elements_;
  std::string literal_prefix_;
  bool has_wildcards_ = false;
};

}  // namespace orvendal::sqlite
