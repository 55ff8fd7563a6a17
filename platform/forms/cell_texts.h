#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orvendal {

/// The texts of a grid's cells.
///
/// A grid holds many rows and writes in one at a time: that one is kept open, a string for each cell, and
/// every other row is one block of memory, no larger than its texts and where each of them ends. A row
/// without texts has no block. Writing in another row closes the open one.
///
/// Invariants: the block of the open row is out of date; a closed row has no block or one whose last text is
/// not empty. Cost, in the rows: writing and reading a cell and adding a row at the end take constant time,
/// inserting and removing move one pointer for each row below. What raises std::bad_alloc changes no text.
class CellTexts {
 public:
  int Rows() const { return static_cast<int>(rows_.size()); }
  /// Drops rows at the end or adds empty ones.
  void Rows(int rows);
  /// Adds a row before row `row`, which may be the end; `texts`, separated by tabs, go to its first
  /// `columns` columns.
  void Insert(int row, std::string_view texts, int columns);
  void Remove(int row);
  /// Empties all cells from column `columns` on.
  void Cut(int columns);

  /// Empty where nothing was written. Valid until the next change of any text.
  std::string_view Text(int row, int column) const;
  /// `text` must not be what Text gave.
  void Text(int row, int column, std::string_view text);

 private:
  using Block = std::unique_ptr<char[]>;
  static Block Pack(const std::vector<std::string_view>& texts);
  static std::size_t CountIn(const Block& block);
  static std::string_view TextIn(const Block& block, std::size_t column);
  void Open(int row);
  void Close();

  std::vector<Block> rows_;
  int open_row_ = -1;              // none
  std::vector<std::string> open_;  // cells at the end may be missing; longer than the row if that had fewer
  std::vector<std::string_view> pieces_;  // of the row that is packed; kept for its room
};

}  // namespace orvendal
