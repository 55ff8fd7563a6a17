#include "host/words.h"

namespace orvendal {

const Words& WordsOf(Language language) {
  switch (language) {
    case Language::kCatalan:
      return CatalanWords();
    case Language::kEnglish:
      return EnglishWords();
    case Language::kSpanish:
      break;
  }
  return SpanishWords();
}

std::string Fill(std::string_view pattern, std::initializer_list<std::string_view> values) {
  std::string filled;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const bool is_mark = pattern[at] == '%' && at + 1 < pattern.size() && pattern[at + 1] >= '1';
    const std::size_t place = is_mark ? static_cast<std::size_t>(pattern[at + 1] - '1') : values.size();
    if (place < values.size()) {
      filled += values.begin()[place];
      ++at;
    } else {
      filled += pattern[at];
    }
  }
  return filled;
}

}  // namespace orvendal
