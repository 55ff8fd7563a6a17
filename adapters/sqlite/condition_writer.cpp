#include "adapters/sqlite/condition_writer.h"

#include <optional>

#include "adapters/sqlite/store_functions.h"
#include "adapters/sqlite/text_pattern.h"

namespace orvendal::sqlite {
namespace {

std::string Call(const char* name, const std::string& first, const std::string& second) {
  return std::string(name) + "(" + first + ", " + second + ")";
}

// The collation is named so that files whose columns do not have it compare alike.
std::string WithoutCase(const std::string& column) {
  return column + " COLLATE NOCASE";
}

}  // namespace

std::string AnyOf(const Cases& cases) {
  std::string expression;
  for (const std::string& one : cases) expression += (expression.empty() ? "(" : " OR ") + one;
  return expression + ")";
}

Cases Both(const Cases& first, const Cases& second) {
  constexpr std::size_t kMostCases = 16;
  if (first.size() * second.size() > kMostCases) return {AnyOf(first) + " AND " + AnyOf(second)};
  Cases cases;
  for (const std::string& left : first) {
    for (const std::string& right : second) cases.push_back(left + " AND " + right);
  }
  return cases;
}

// Parameters are numbered, since a text may stand in more than one place.
std::string ConditionWriter::Next(Parameter parameter) {
  knows_sources_ = false;
  return Next(std::move(parameter), {});
}

std::string ConditionWriter::Next(Parameter parameter, ParameterSource source) {
  sources_.push_back(source);
  parameters_.push_back(std::move(parameter));
  return std::string("?").append(std::to_string(parameters_.size()));
}

std::string ConditionWriter::Within(const std::string& key, const IndexRange& range) {
  const std::string above = key + " >= " + Next(range.low);
  return range.high.empty() ? above : above + " AND " + key + " < " + Next(range.high);
}

// The column holds `text` in one of its spellings: exactly, which an index on this and further columns
// answers, or with blanks after it, of which there are hardly ever any. Without an exact spelling to look
// for, the texts near it are looked through.
Cases ConditionWriter::TextIs(const std::string& column, const std::string& text, const std::string& filter,
                              ParameterSource source, bool alone) {
  const std::string key = WithoutCase(column);
  const std::vector<std::string> spellings = CaseVariants(text);
  if (spellings.empty()) {
    return {Within(key, RangeOfPrefix(text)) + " AND " + filter};
  }
  // An index without case compares up to a NUL and no further.
  if (spellings.size() > 1) knows_sources_ = false;
  ParameterSource above = source;
  above.form = source.form == ParameterSource::Form::kWithoutTrailingBlanks
                   ? ParameterSource::Form::kAboveItWithoutTrailingBlanks
                   : ParameterSource::Form::kAboveIt;
  const std::string unless_exact = text.find('\0') == std::string::npos ? "" : " AND " + filter;
  if (alone && spellings.size() == 1 && unless_exact.empty()) {
    // Nothing but an index on this column is of use, in which the two stand next to one another.
    const std::string from = Next(spellings[0], source);
    return {key + " >= " + from + " AND " + key + " < " + Next(AboveTrailingBlanks(spellings[0]), above) +
            " AND " + filter};
  }
  Cases exact;
  Cases with_blanks;
  for (const std::string& spelling : spellings) {
    const std::string parameter = Next(spelling, source);
    exact.push_back(key + " = " + parameter + unless_exact);
    with_blanks.push_back(key + " > " + parameter + " AND " + key + " < " +
                          Next(AboveTrailingBlanks(spelling), above) + " AND " + filter);
  }
  exact.insert(exact.end(), with_blanks.begin(), with_blanks.end());
  return exact;
}

Cases ConditionWriter::TextEquals(const std::string& column, const Text& text) {
  const std::string bare = WithoutTrailingBlanks(text.text);
  const ParameterSource source{text.number, ParameterSource::Form::kWithoutTrailingBlanks};
  return TextIs(column, bare, Call(function::kTextEquals, column, Next(bare, source)), source, text.alone);
}

std::string ConditionWriter::TextDiffers(const std::string& column, std::string_view text) {
  return "NOT " + Call(function::kTextEquals, column, Next(std::string(text)));
}

Cases ConditionWriter::TextLike(const std::string& column, const Text& pattern) {
  const TextPattern parsed(pattern.text);
  const ParameterSource source{pattern.number, ParameterSource::Form::kAsItIs, true};
  const std::string filter = Call(function::kTextLike, column, Next(std::string(pattern.text), source));
  // A wildcard in brackets is none; but a pattern without any is what it says.
  if (parsed.LiteralPrefix() != pattern.text) knows_sources_ = false;
  if (!parsed.HasWildcards()) return TextIs(column, parsed.LiteralPrefix(), filter, source, pattern.alone);
  if (parsed.LiteralPrefix().empty()) return {filter};
  return {Within(WithoutCase(column), RangeOfPrefix(parsed.LiteralPrefix())) + " AND " + filter};
}

std::string ConditionWriter::ValueLike(const std::string& column, std::string_view pattern) {
  return Call(function::kTextLike, column, Next(std::string(pattern)));
}

std::string ConditionWriter::ColumnsEqual(const std::string& first, const std::string& second) {
  const std::string key = WithoutCase(second);
  return "(" + key + " >= " + function::kRangeLow + "(" + first + ") AND " + key + " < " +
         function::kRangeHigh + "(" + first + ") AND " + Call(function::kTextEquals, first, second) + ")";
}

std::string ConditionWriter::DateCompares(const std::string& column, const std::string& comparison,
                                          Moment moment) {
  const std::string exact =
      std::string(function::kMoment) + "(" + column + ") " + comparison + " " + Next(moment);
  if (comparison == "<>") return exact;
  std::string condition = "(";
  if (comparison[0] != '<') condition += column + " >= " + Next(FirstTextOfDay(moment)) + " AND ";
  if (comparison[0] != '>') condition += column + " < " + Next(FirstTextAfterDay(moment)) + " AND ";
  return condition + exact + ")";
}

std::string ConditionWriter::DateBetween(const std::string& column, Moment first, Moment last) {
  return "(" + column + " >= " + Next(FirstTextOfDay(first)) + " AND " + column + " < " +
         Next(FirstTextAfterDay(last)) + " AND " + function::kMoment + "(" + column + ") BETWEEN " +
         Next(first) + " AND " + Next(last) + ")";
}

std::string ConditionWriter::DateLike(const std::string& column, std::string_view pattern) {
  if (dialect_ == Dialect::kSqlServer) {
    return Call(function::kServerDateLike, column, Next(std::string(pattern)));
  }
  const std::string exact = Call(function::kRegionDateLike, column, Next(std::string(pattern)));
  const TextPattern parsed(pattern);
  if (!parsed.IsPrefixOnly()) return exact;
  // A whole date at the beginning leaves one day to look through.
  const std::optional<Date> date = region_.ParseDate(parsed.LiteralPrefix());
  if (!date || parsed.LiteralPrefix() != region_.ToText(*date)) return exact;
  const Moment moment = MomentOf(*date);
  return "(" + column + " >= " + Next(FirstTextOfDay(moment)) + " AND " + column + " < " +
         Next(FirstTextAfterDay(moment)) + " AND " + exact + ")";
}

}  // namespace orvendal::sqlite
