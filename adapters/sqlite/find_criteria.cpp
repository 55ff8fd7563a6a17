#include "adapters/sqlite/find_criteria.h"

#include <charconv>
#include <compare>
#include <optional>
#include <vector>

#include "adapters/sqlite/sql_tokens.h"
#include "adapters/sqlite/text_folding.h"
#include "platform/base/region.h"
#include "platform/base/text.h"
#include "platform/data/ado_error.h"

namespace orvendal::sqlite {
namespace {

[[noreturn]] void RaiseBadCriteria() {
  throw AdoError(ado_error::kInvalidArgument);
}

std::vector<Token> Parts(std::string_view criteria) {
  try {
    return Tokenize(criteria, Dialect::kJet);
  } catch (const RuntimeError&) {
    RaiseBadCriteria();
  }
}

Value ValueOf(const std::vector<Token>& tokens, std::size_t index) {
  const bool negative = tokens[index].IsSymbol("-") && index + 1 < tokens.size();
  const Token& token = tokens[negative ? index + 1 : index];
  if (tokens.size() != index + (negative ? 2 : 1)) RaiseBadCriteria();
  if (token.kind == TokenKind::kNumber) {
    double number = 0;
    std::from_chars(token.text.data(), token.text.data() + token.text.size(), number);
    return negative ? -number : number;
  }
  if (negative) RaiseBadCriteria();
  if (token.kind == TokenKind::kText) return token.text;
  if (token.kind == TokenKind::kDate) {
    const std::optional<Date> date = Region::English().ParseDate(token.text);
    if (date) return *date;
  }
  if (token.IsWord("NULL")) return {};
  RaiseBadCriteria();
}

std::partial_ordering Compare(const Value& left, const Value& right) {
  if (left.IsDate() && right.IsDate()) return left.AsDate() <=> right.AsDate();
  if (left.IsNumber() && right.IsNumber()) return left.Number() <=> right.Number();
  if (left.IsText() && right.IsText()) {
    const std::string lower_left = ToLower(WithoutTrailingBlanks(left.Text()));
    const std::string lower_right = ToLower(WithoutTrailingBlanks(right.Text()));
    return lower_left <=> lower_right;
  }
  if (left.IsText() && right.IsNumber()) {
    const std::optional<double> number = Region::English().ParseNumber(left.Text());
    if (number) return *number <=> right.Number();
  }
  if (left.IsNumber() && right.IsText()) {
    const std::optional<double> number = Region::English().ParseNumber(right.Text());
    if (number) return left.Number() <=> *number;
  }
  return std::partial_ordering::unordered;
}

}  // namespace

FindCriteria::FindCriteria(std::string_view criteria) {
  const std::vector<Token> tokens = Parts(criteria);
  if (tokens.size() < 3 || !tokens[0].IsName()) RaiseBadCriteria();
  field_ = tokens[0].text;
  const Token& comparison = tokens[1];
  const bool like = comparison.IsWord("LIKE");
  if (like || comparison.IsSymbol("=")) {
    operator_ = Operator::kEqual;
  } else if (comparison.IsSymbol("<>")) {
    operator_ = Operator::kDifferent;
  } else if (comparison.IsSymbol("<")) {
    operator_ = Operator::kLess;
  } else if (comparison.IsSymbol("<=")) {
    operator_ = Operator::kLessOrEqual;
  } else if (comparison.IsSymbol(">")) {
    operator_ = Operator::kGreater;
  } else if (comparison.IsSymbol(">=")) {
    operator_ = Operator::kGreaterOrEqual;
  } else {
    RaiseBadCriteria();
  }
  value_ = ValueOf(tokens, 2);
  if (like) ReadPattern();
}

void FindCriteria::ReadPattern() {
  if (!value_.IsText()) RaiseBadCriteria();
  const auto is_wildcard = [](char c) { return c == '*' || c == '%'; };
  std::string text = value_.Text();
  if (!text.empty() && is_wildcard(text.back())) {
    open_end_ = true;
    text.pop_back();
  }
  if (!text.empty() && is_wildcard(text.front())) {
    open_start_ = true;
    text.erase(text.begin());
  }
  if (open_start_ && !open_end_) RaiseBadCriteria();
  for (const char c : text) {
    if (is_wildcard(c)) RaiseBadCriteria();
  }
  value_ = text;
}

bool FindCriteria::MatchesText(std::string_view text) const {
  const std::string lower = ToLower(text);
  const std::string wanted = ToLower(value_.Text());
  return open_start_ ? lower.find(wanted) != std::string::npos : lower.substr(0, wanted.size()) == wanted;
}

bool FindCriteria::Matches(const Value& value) const {
  if (value_.IsNull() || value.IsNull()) {
    const bool both = value_.IsNull() && value.IsNull();
    if (operator_ == Operator::kEqual) return both;
    return operator_ == Operator::kDifferent && value_.IsNull() && !both;
  }
  if (open_end_) {
    return MatchesText(value.IsText() ? value.Text() : Region::English().ToText(value));
  }
  const std::partial_ordering order = Compare(value, value_);
  switch (operator_) {
    case Operator::kEqual:
      return order == std::partial_ordering::equivalent;
    case Operator::kDifferent:
      return order == std::partial_ordering::less || order == std::partial_ordering::greater;
    case Operator::kLess:
      return order == std::partial_ordering::less;
    case Operator::kLessOrEqual:
      return order == std::partial_ordering::less || order == std::partial_ordering::equivalent;
    case Operator::kGreater:
      return order == std::partial_ordering::greater;
    case Operator::kGreaterOrEqual:
      return order == std::partial_ordering::greater || order == std::partial_ordering::equivalent;
  }
  return false;
}

}  // namespace orvendal::sqlite
