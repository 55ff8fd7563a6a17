#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/dialect.h"

namespace orvendal::sqlite {

enum class TokenKind {
  kWord,    // keyword or plain name
  kName,    // name in brackets or, where the dialect has it so, in double quotes
  kText,    // text literal
  kDate,    // #...#, in the dialect that has it
  kNumber,  // number literal
  kSymbol   // operator or punctuation mark
};

struct Token {
  TokenKind kind = TokenKind::kSymbol;
  std::string text;  // without the quotes, brackets or marks around it; doubled quotes inside made single

  bool IsSymbol(std::string_view symbol) const { return kind == TokenKind::kSymbol && text == symbol; }
  /// Case is ignored.
  bool IsWord(std::string_view word) const;
  bool IsName() const { return kind == TokenKind::kWord || kind == TokenKind::kName; }
};

/// A text or a name as it stands in a statement, the quotes inside it doubled. A text may hold a NUL, which
/// the engine would take for the end of the statement.
std::string QuotedText(std::string_view text);
std::string QuotedName(std::string_view name);

/// Takes a statement of the dialect apart. Raises -2147217900 for a text, name or date that is not closed,
/// for a name with a NUL in it and for a character that no statement has.
std::vector<Token> Tokenize(std::string_view statement, Dialect dialect);

}  // namespace orvendal::sqlite
