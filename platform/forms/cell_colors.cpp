#include "platform/forms/cell_colors.h"

#include <algorithm>
#include <cstddef>

namespace orvendal {
namespace {

CellColors::Colors ColorsIn(const std::vector<CellColors::Colors>& pattern, int column) {
  const auto index = static_cast<std::size_t>(column);
  return index < pattern.size() ? pattern[index] : CellColors::Colors{};
}

}  // namespace

CellColors::Colors CellColors::At(int row, int column) const {
  if (row == open_row_) return ColorsIn(open_, column);
  const auto index = static_cast<std::size_t>(row);
  if (index >= rows_.size() || rows_[index] == nullptr) return {};
  return ColorsIn(*rows_[index], column);
}

CellColors::Colors& CellColors::CellForWriting(int row, int column) {
  const auto index = static_cast<std::size_t>(column);
  Open(row);
  if (index >= open_.size()) open_.resize(index + 1);
  return open_[index];
}

// The pattern, or `like` if that is the same; nothing for a row without colours.
CellColors::Shared CellColors::Finished(const Pattern& pattern, const Shared& like) {
  std::size_t count = pattern.size();
  while (count > 0 && pattern[count - 1] == Colors{}) --count;
  if (count == 0) return nullptr;
  const auto end = pattern.begin() + static_cast<std::ptrdiff_t>(count);
  if (like != nullptr && std::equal(pattern.begin(), end, like->begin(), like->end())) return like;
  return std::make_shared<const Pattern>(pattern.begin(), end);
}

void CellColors::Open(int row) {
  if (row == open_row_) return;
  Close();
  const auto index = static_cast<std::size_t>(row);
  if (index >= rows_.size()) rows_.resize(index + 1);
  if (rows_[index] == nullptr) {
    open_.clear();
  } else {
    open_ = *rows_[index];
  }
  open_row_ = row;
}

void CellColors::Close() {
  if (open_row_ < 0) return;
  Shared& row = rows_[static_cast<std::size_t>(open_row_)];
  row = Finished(open_, finished_last_);
  if (row != nullptr) finished_last_ = row;
  open_row_ = -1;
}

void CellColors::CutRows(int rows) {
  const auto count = static_cast<std::size_t>(rows);
  if (count < rows_.size()) rows_.resize(count);
  if (open_row_ >= rows) open_row_ = -1;
}

void CellColors::Insert(int row) {
  const auto index = static_cast<std::size_t>(row);
  if (index < rows_.size()) rows_.insert(rows_.begin() + row, nullptr);
  if (open_row_ >= row) ++open_row_;
}

void CellColors::Remove(int row) {
  const auto index = static_cast<std::size_t>(row);
  if (index < rows_.size()) rows_.erase(rows_.begin() + row);
  if (open_row_ == row) open_row_ = -1;
  if (open_row_ > row) --open_row_;
}

void CellColors::CutColumns(int columns) {
  const auto count = static_cast<std::size_t>(columns);
  Close();
  Shared whole;
  Shared cut;
  for (Shared& row : rows_) {
    if (row == nullptr || row->size() <= count) continue;
    if (row != whole) {
      whole = row;
      cut = Finished(Pattern(row->begin(), row->begin() + columns), cut);
    }
    row = cut;
  }
  finished_last_ = nullptr;
}

}  // namespace orvendal
