#pragma once

#include <functional>

#include "platform/forms/ms_flex_grid.h"

namespace orvendal {

/// The choice of one row of a grid: by a press, a drag, the keys of a list, whatever the cursor's column.
///
/// Takes the grid's events. Invariant: at most one row has the colours of the choice, and the cursor stands
/// on it.
class RowChoice {
 public:
  explicit RowChoice(MSFlexGrid& grid);

  /// A double click on a row.
  std::function<void()> OnAccept;

  /// The cursor's row becomes the chosen one and is brought into view; to be called after the rows were
  /// filled anew, too.
  void FollowCursor();
  /// Before the rows are filled anew.
  void TakeOff();
  /// Up, Down, the page keys, Home and End move the choice, with Shift as without. False for any other key.
  bool TakeKey(int key_code);

 private:
  void PaintRow(int row, ColorWord back, ColorWord fore);
  void Move(int row);
  void Drag(Point local);

  MSFlexGrid& grid_;
  int row_ = 0;  // 0: none
  bool painting_ = false;
  bool pressed_on_row_ = false;
};

}  // namespace orvendal
