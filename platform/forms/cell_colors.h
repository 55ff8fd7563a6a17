#pragma once

#include <memory>
#include <vector>

#include "platform/forms/color.h"

namespace orvendal {

/// The colours of a grid's cells; 0 is the grid's own.
///
/// Rows are coloured in few ways, one after the other, so that a row which is not being coloured shares what
/// it looks like with the row that was finished before, if they look the same. The row coloured last is kept
/// open. Rows at the end that were never coloured take no room.
///
/// Invariants: what the open row shares is out of date; a finished row shares nothing or a pattern whose last
/// cell has a colour. Costs as those of CellTexts.
class CellColors {
 public:
  struct Colors {
    ColorWord back = 0;
    ColorWord fore = 0;
    bool operator==(const Colors&) const = default;
  };

  Colors At(int row, int column) const;
  void Back(int row, int column, ColorWord color) { CellForWriting(row, column).back = color; }
  void Fore(int row, int column, ColorWord color) { CellForWriting(row, column).fore = color; }

  /// Forgets all rows from `rows` on.
  void CutRows(int rows);
  /// A row without colours comes before row `row`.
  void Insert(int row);
  void Remove(int row);
  /// Takes the colours of all cells from column `columns` on.
  void CutColumns(int columns);

 private:
  using Pattern = std::vector<Colors>;  // cells at the end without colours may be missing
  using Shared = std::shared_ptr<const Pattern>;
  Colors& CellForWriting(int row, int column);
  void Open(int row);
  void Close();
  static Shared Finished(const Pattern& pattern, const Shared& like);

  std::vector<Shared> rows_;  // rows at the end may be missing
  int open_row_ = -1;         // none
  Pattern open_;
  Shared finished_last_;
};

}  // namespace orvendal
