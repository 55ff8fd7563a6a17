#include "adapters/sqlite/text_pattern.h"

#include <algorithm>

#include "platform/base/text.h"

namespace orvendal::sqlite {

TextPattern::TextPattern(std::string_view pattern) {
  for (std::size_t at = 0; at < pattern.size();) {
    const char c = pattern[at];
    if (c == '%') {
      has_wildcards_ = true;
      if (elements_.empty() || elements_.back().kind != Kind::kAnyText) {
        elements_.push_back({Kind::kAnyText, 0, false, {}});
      }
      ++at;
    } else if (c == '_') {
      has_wildcards_ = true;
      elements_.push_back({Kind::kAnyCharacter, 0, false, {}});
      ++at;
    } else if (c == '[') {
      at = ParseSet(pattern, at);
    } else {
      const std::size_t start = at;
      elements_.push_back({Kind::kCharacter, ToLower(NextCharacter(pattern, at)), false, {}});
      if (!has_wildcards_) literal_prefix_.append(pattern.substr(start, at - start));
    }
  }
}

std::size_t TextPattern::ParseSet(std::string_view pattern, std::size_t open) {
  const std::size_t close = pattern.find(']', open);
  if (close == std::string_view::npos) {
    has_wildcards_ = true;
    elements_.push_back({Kind::kNothing, 0, false, {}});
    return pattern.size();
  }
  const std::string_view set = pattern.substr(open + 1, close - open - 1);
  Element element{Kind::kSet, 0, false, {}};
  std::size_t at = 0;
  if (!set.empty() && set[0] == '^') {
    element.negated = true;
    ++at;
  }
  std::string_view first_written;
  while (at < set.size()) {
    const std::size_t start = at;
    const char32_t first = ToLower(NextCharacter(set, at));
    first_written = set.substr(start, at - start);
    char32_t last = first;
    if (at + 1 < set.size() && set[at] == '-') {
      ++at;
      last = ToLower(NextCharacter(set, at));
    }
    element.ranges.emplace_back(first, last);
  }
  // A set of one character is how a pattern quotes a wildcard: the text before it and after it stays literal.
  const bool single =
      !element.negated && element.ranges.size() == 1 && element.ranges[0].first == element.ranges[0].second;
  if (single) {
    element.kind = Kind::kCharacter;
    element.character = element.ranges[0].first;
    if (!has_wildcards_) literal_prefix_.append(first_written);
  } else {
    has_wildcards_ = true;
  }
  elements_.push_back(std::move(element));
  return close + 1;
}

bool TextPattern::IsPrefixOnly() const {
  const auto first = std::find_if(elements_.begin(), elements_.end(),
                                  [](const Element& e) { return e.kind != Kind::kCharacter; });
  return first == elements_.end() || (first->kind == Kind::kAnyText && first + 1 == elements_.end());
}

bool TextPattern::MatchesOne(const Element& element, char32_t lower) {
  switch (element.kind) {
    case Kind::kCharacter:
      return element.character == lower;
    case Kind::kAnyCharacter:
      return true;
    case Kind::kSet: {
      const bool inside =
          std::any_of(element.ranges.begin(), element.ranges.end(),
                      [lower](const auto& range) { return lower >= range.first && lower <= range.second; });
      return inside != element.negated;
    }
    case Kind::kAnyText:
    case Kind::kNothing:
      return false;
  }
  return false;
}

bool TextPattern::Matches(std::string_view value) const {
  const std::size_t text_end = value.find_last_not_of(' ') + 1;  // the blanks after it match nothing as well
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  std::size_t at = 0;
  std::size_t element = 0;
  std::size_t retry_element = kNone;  // after the last "%" met
  std::size_t retry_at = 0;           // where the text that this "%" swallows ends so far
  while (true) {
    if (element < elements_.size() && elements_[element].kind == Kind::kAnyText) {
      retry_element = ++element;
      retry_at = at;
      continue;
    }
    if (element == elements_.size() && at >= text_end) return true;
    if (element < elements_.size() && at < value.size()) {
      std::size_t next = at;
      if (MatchesOne(elements_[element], ToLower(NextCharacter(value, next)))) {
        at = next;
        ++element;
        continue;
      }
    }
    if (retry_element == kNone || retry_at >= value.size()) return false;
    NextCharacter(value, retry_at);
    at = retry_at;
    element = retry_element;
  }
}

}  // namespace orvendal::sqlite
