#include "adapters/sqlite/packed_values.h"

namespace orvendal::sqlite {

void PackedValues::AppendNumber(double number) {
  Cell& cell = cells_.emplace_back();
  cell.kind = Kind::kNumber;
  cell.number = number;
}

void PackedValues::AppendDate(Date date) {
  Cell& cell = cells_.emplace_back();
  cell.kind = Kind::kDate;
  cell.date = {date.DayNumber(), date.SecondOfDay()};
}

void PackedValues::AppendText(std::string_view text) {
  Cell& cell = cells_.emplace_back();
  cell.kind = Kind::kText;
  cell.size = static_cast<std::uint32_t>(text.size());
  cell.offset = texts_.size();
  texts_.append(text);
}

void PackedValues::Append(const Value& value) {
  if (value.IsNull()) {
    AppendNull();
  } else if (value.IsNumber()) {
    AppendNumber(value.Number());
  } else if (value.IsDate()) {
    AppendDate(value.AsDate());
  } else {
    AppendText(value.Text());
  }
}

Value PackedValues::operator[](std::size_t index) const {
  const Cell& cell = cells_[index];
  switch (cell.kind) {
    case Kind::kNull:
      break;
    case Kind::kNumber:
      return cell.number;
    case Kind::kDate:
      return Date::FromDayNumber(cell.date.day_number, cell.date.second_of_day);
    case Kind::kText:
      return std::string(texts_, cell.offset, cell.size);
  }
  return {};
}

}  // namespace orvendal::sqlite
