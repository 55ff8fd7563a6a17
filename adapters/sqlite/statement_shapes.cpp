#include "adapters/sqlite/statement_shapes.h"

#include <algorithm>
#include <utility>

#include "adapters/sqlite/text_folding.h"

namespace orvendal::sqlite {
namespace {

constexpr std::size_t kMostShapes = 64;
constexpr std::size_t kLongestShape = 2000;  // bytes; the screen's own are a third of it

struct PlainText {
  std::string_view text;
  bool may_be_pattern = false;
};

// A statement without its texts, and the texts.
struct Parts {
  std::string key;
  std::vector<PlainText> texts;
};

bool IsAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80U;
}
bool IsPlain(char c) {
  return IsAscii(c) && c != '\0';
}
bool IsWildcard(char c) {
  return c == '%' || c == '_' || c == '[';
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool BelongsToWord(char c) {
  return IsDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || !IsAscii(c);
}

// False for a statement that has more in it than names, words and plain texts in single quotes, of which only
// the tokenizer knows where they end, and for one with a number: its values stand in the statement itself,
// which nobody will need again.
bool TakeApart(std::string_view source, Parts& parts) {
  parts.key.reserve(source.size());
  for (std::size_t at = 0; at < source.size(); ++at) {
    const char c = source[at];
    parts.key.push_back(c);
    switch (c) {
      case '"':
      case '[':
      case '#':
      case '\0':
        return false;
      case '-':
      case '/':
        if (at + 1 < source.size() && (source[at + 1] == '-' || source[at + 1] == '*')) return false;
        break;
      case '\'': {
        const std::size_t end = source.find('\'', at + 1);
        if (end == std::string_view::npos || (end + 1 < source.size() && source[end + 1] == '\''))
          return false;
        const std::string_view text = source.substr(at + 1, end - at - 1);
        if (!std::all_of(text.begin(), text.end(), IsPlain)) return false;
        parts.texts.push_back({text, std::any_of(text.begin(), text.end(), IsWildcard)});
        at = end;
        break;
      }
      default:
        if (IsDigit(c) && (at == 0 || !BelongsToWord(source[at - 1]))) return false;
        break;
    }
  }
  return parts.key.size() <= kLongestShape;
}

std::string Derived(std::string_view text, ParameterSource::Form form) {
  switch (form) {
    case ParameterSource::Form::kAsItIs:
      return std::string(text);
    case ParameterSource::Form::kWithoutTrailingBlanks:
      return WithoutTrailingBlanks(text);
    case ParameterSource::Form::kAboveIt:
      return AboveTrailingBlanks(text);
    case ParameterSource::Form::kAboveItWithoutTrailingBlanks:
      break;
  }
  return AboveTrailingBlanks(WithoutTrailingBlanks(text));
}

// False if one of the texts is a pattern, which is written in another way.
bool Derive(const StatementShape& shape, const Parts& parts, std::vector<Parameter>& parameters) {
  parameters.reserve(shape.sources.size());
  for (const ParameterSource& source : shape.sources) {
    const PlainText& text = parts.texts[source.text];
    if (source.is_pattern && text.may_be_pattern) return false;
    parameters.emplace_back(Derived(text.text, source.form));
  }
  return true;
}

}  // namespace

ShapedStatement StatementShapes::Rewrite(std::string_view source, Dialect dialect, const Region& region,
                                         const ColumnLookup& find_column, std::uint64_t generation) {
  if (std::exchange(generation_, generation) != generation) shapes_.clear();
  Parts parts;
  const bool is_plain = TakeApart(source, parts);
  if (is_plain) {
    if (const auto known = shapes_.find(parts.key); known != shapes_.end()) {
      ShapedStatement statement{known->second, {}};
      if (Derive(*statement.shape, parts, statement.parameters)) return statement;
    }
  }
  RewrittenStatement rewritten = sqlite::Rewrite(source, dialect, region, find_column);
  auto shape = std::make_shared<StatementShape>(StatementShape{
      std::move(rewritten.sql), std::move(rewritten.tables), std::move(rewritten.sources), nullptr});
  if (is_plain && rewritten.depends_on_values_alone) {
    if (shapes_.size() == kMostShapes) shapes_.clear();
    shapes_.insert_or_assign(std::move(parts.key), shape);
  }
  return {std::move(shape), std::move(rewritten.parameters)};
}

}  // namespace orvendal::sqlite
