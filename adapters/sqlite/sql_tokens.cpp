#include "adapters/sqlite/sql_tokens.h"

#include "adapters/sqlite/store_error.h"
#include "platform/base/text.h"

namespace orvendal::sqlite {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool StartsWord(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}
bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

class Tokenizer {
 public:
  Tokenizer(std::string_view statement, Dialect dialect) : text_(statement), dialect_(dialect) {}

  std::vector<Token> Run() {
    while (SkipBlanks(), at_ < text_.size()) {
      tokens_.push_back(Next());
      const Token& token = tokens_.back();
      if (token.kind == TokenKind::kName && token.text.find('\0') != std::string::npos) {
        throw SyntaxError(dialect_, token.text);
      }
    }
    return std::move(tokens_);
  }

 private:
  bool Jet() const { return dialect_ == Dialect::kJet; }
  bool Ahead(std::string_view wanted) const { return text_.substr(at_, wanted.size()) == wanted; }

  // Blanks and, in the dialect that has them, comments.
  void SkipBlanks() {
    while (at_ < text_.size()) {
      if (IsBlank(text_[at_])) {
        ++at_;
      } else if (!Jet() && Ahead("--")) {
        at_ = std::min(text_.find('\n', at_), text_.size());
      } else if (!Jet() && Ahead("/*")) {
        const std::size_t close = text_.find("*/", at_ + 2);
        if (close == std::string_view::npos) throw SyntaxError(dialect_, text_.substr(at_));
        at_ = close + 2;
      } else {
        return;
      }
    }
  }

  Token Next() {
    const char c = text_[at_];
    if (c == '\'') return {TokenKind::kText, Quoted('\'')};
    if (c == '"') return {Jet() ? TokenKind::kText : TokenKind::kName, Quoted('"')};
    if (c == '[') return {TokenKind::kName, Enclosed(']')};
    if (c == '#' && Jet()) return {TokenKind::kDate, Enclosed('#')};
    if (StartsWord(c)) return {TokenKind::kWord, Run([](char d) { return StartsWord(d) || IsDigit(d); })};
    if (IsDigit(c)) return {TokenKind::kNumber, Number()};
    return {TokenKind::kSymbol, Symbol()};
  }

  template <typename Belongs>
  std::string Run(Belongs belongs) {
    const std::size_t start = at_;
    while (at_ < text_.size() && belongs(text_[at_])) ++at_;
    return std::string(text_.substr(start, at_ - start));
  }

  std::string Quoted(char quote) {
    std::string content;
    const std::size_t start = ++at_;
    for (; at_ < text_.size(); ++at_) {
      if (text_[at_] == quote) {
        if (at_ + 1 == text_.size() || text_[at_ + 1] != quote) {
          ++at_;
          return content;
        }
        ++at_;
      }
      content.push_back(text_[at_]);
    }
    throw UnclosedText(dialect_, text_.substr(start));
  }

  std::string Enclosed(char close) {
    const std::size_t end = text_.find(close, at_ + 1);
    if (end == std::string_view::npos) throw SyntaxError(dialect_, text_.substr(at_));
    std::string content(text_.substr(at_ + 1, end - at_ - 1));
    at_ = end + 1;
    return content;
  }

  std::string Number() {
    std::string number = Run(IsDigit);
    if (at_ < text_.size() && text_[at_] == '.') {
      ++at_;
      number.push_back('.');
      number.append(Run(IsDigit));
    }
    return number;
  }

  std::string Symbol() {
    for (const std::string_view symbol : {"<=", ">=", "<>", "!="}) {
      if (Ahead(symbol)) {
        at_ += symbol.size();
        return std::string(symbol);
      }
    }
    // Parameters ("?", "@name") are not among them: every value stands in the text.
    if (std::string_view("(),.=<>+-*/%&;").find(text_[at_]) == std::string_view::npos) {
      throw SyntaxError(dialect_, text_.substr(at_, 1));
    }
    return std::string(1, text_[at_++]);
  }

  std::string_view text_;
  Dialect dialect_;
  std::size_t at_ = 0;
  std::vector<Token> tokens_;
};

std::string InQuotes(std::string_view text, char quote) {
  std::string quoted(1, quote);
  for (const char c : text) {
    if (c == quote) quoted.push_back(c);
    quoted.push_back(c);
  }
  quoted.push_back(quote);
  return quoted;
}

}  // namespace

std::string QuotedText(std::string_view text) {
  if (text.find('\0') == std::string_view::npos) return InQuotes(text, '\'');
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string bytes;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    bytes += kDigits[byte >> 4U];
    bytes += kDigits[byte & 0xFU];
  }
  return "CAST(x'" + bytes + "' AS TEXT)";
}

std::string QuotedName(std::string_view name) {
  return InQuotes(name, '"');
}

bool Token::IsWord(std::string_view word) const {
  return kind == TokenKind::kWord && EqualsIgnoringCase(text, word);
}

std::vector<Token> Tokenize(std::string_view statement, Dialect dialect) {
  return Tokenizer(statement, dialect).Run();
}

}  // namespace orvendal::sqlite
