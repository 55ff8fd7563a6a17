#pragma once

#include <string>
#include <string_view>

#include "platform/base/value.h"

namespace orvendal::sqlite {

/// The criteria of Recordset::Find: one field, one operator (= <> < > <= >= like), one value: a text in
/// single quotes, a date in number signs (month first), a number, or Null. "like" takes "*" or "%" at the end
/// or at both ends; without them it means equality. Case is ignored.
class FindCriteria {
 public:
  /// Raises 3001 for a criteria that cannot be read.
  explicit FindCriteria(std::string_view criteria);

  const std::string& FieldName() const { return field_; }
  bool Matches(const Value& value) const;

 private:
  enum class Operator { kEqual, kDifferent, kLess, kLessOrEqual, kGreater, kGreaterOrEqual };

  void ReadPattern();
  bool MatchesText(std::string_view text) const;

  std::string field_;
  Operator operator_ = Operator::kEqual;
  Value value_;
  bool open_start_ = false;  // the text may stand anywhere in the field, not only at its start
  bool open_end_ = false;    // more may follow it
};

}  // namespace orvendal::sqlite
