#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/value.h"

namespace orvendal::sqlite {

/// Values one after the other, kept in little room: sixteen bytes each and the bytes of the texts.
class PackedValues {
 public:
  std::size_t Size() const { return cells_.size(); }
  void Append(const Value& value);
  void AppendNull() { cells_.push_back({}); }
  void AppendNumber(double number);
  void AppendDate(Date date);
  void AppendText(std::string_view text);

  Value operator[](std::size_t index) const;

 private:
  enum class Kind : std::uint32_t { kNull, kNumber, kDate, kText };
  struct Cell {
    Kind kind = Kind::kNull;
    std::uint32_t size = 0;  // of a text, in bytes: the engine has no longer ones
    union {
      std::size_t offset = 0;  // of a text, among the bytes of all
      double number;
      struct {
        std::int32_t day_number;
        std::int32_t second_of_day;
      } date;
    };
  };

  std::vector<Cell> cells_;
  std::string texts_;
};

}  // namespace orvendal::sqlite
