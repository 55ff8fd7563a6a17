#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/dialect.h"
#include "adapters/sqlite/statement_rewriter.h"
#include "adapters/sqlite/stored_date.h"
#include "adapters/sqlite/text_folding.h"
#include "platform/base/region.h"

namespace orvendal::sqlite {

/// A condition as the cases of which one must hold, each of which an index can answer by itself.
using Cases = std::vector<std::string>;

/// One of the cases holds, as one expression.
std::string AnyOf(const Cases& cases);
/// Both conditions hold. The engine answers each case of the result from one index over all their columns,
/// which it could not do for two conditions side by side.
Cases Both(const Cases& first, const Cases& second);

/// Writes comparisons of a column so that an index on it stays of use, and collects their parameters.
/// Columns are given as they are to stand in the statement.
class ConditionWriter {
 public:
  ConditionWriter(Dialect dialect, const Region& region) : dialect_(dialect), region_(region) {}

  /// A text of the statement: what it says, its number among them, and whether the statement has no other
  /// condition than that which compares it.
  struct Text {
    std::string_view text;
    std::size_t number = 0;
    bool alone = false;
  };
  Cases TextEquals(const std::string& column, const Text& text);
  std::string TextDiffers(const std::string& column, std::string_view text);
  Cases TextLike(const std::string& column, const Text& pattern);
  /// A value of any kind, written as text, against a pattern.
  std::string ValueLike(const std::string& column, std::string_view pattern);
  /// Two text columns; an index on the second one stays of use.
  static std::string ColumnsEqual(const std::string& first, const std::string& second);

  /// `comparison` is one of = <> < <= > >=.
  std::string DateCompares(const std::string& column, const std::string& comparison, Moment moment);
  std::string DateBetween(const std::string& column, Moment first, Moment last);
  /// Against the date as the provider writes it: the region's way, or the server's own.
  std::string DateLike(const std::string& column, std::string_view pattern);

  std::vector<Parameter> TakeParameters() { return std::move(parameters_); }
  /// Whether the source of every parameter is known, and what was written does not depend on it otherwise.
  bool KnowsSources() const { return knows_sources_; }
  std::vector<ParameterSource> TakeSources() { return std::move(sources_); }

 private:
  std::string Next(Parameter parameter);
  std::string Next(Parameter parameter, ParameterSource source);
  std::string Within(const std::string& key, const IndexRange& range);
  Cases TextIs(const std::string& column, const std::string& text, const std::string& filter,
               ParameterSource source, bool alone);

  Dialect dialect_;
  const Region& region_;
  std::vector<Parameter> parameters_;
  std::vector<ParameterSource> sources_;
  bool knows_sources_ = true;
};

}  // namespace orvendal::sqlite
