#include "host/library/row_choice.h"

#include <algorithm>

namespace orvendal {
namespace {

constexpr int kRowsToPage = 10;
constexpr double kInside = 4 * kTwipsPerPixel;  // beyond the border, in the first column

}  // namespace

RowChoice::RowChoice(MSFlexGrid& grid) : grid_(grid) {
  grid_.OnRowColChange = [this] { FollowCursor(); };
  grid_.OnMouseDown = [this](int button, int, double x, double y) {
    int row = 0;
    int column = 0;
    pressed_on_row_ =
        button == mouse_button::kLeft && grid_.CellAt({x, y}, row, column) && row >= grid_.FixedRows();
  };
  grid_.OnMouseMove = [this](int buttons, int, double x, double y) {
    if (pressed_on_row_ && (buttons & mouse_button::kLeft) != 0) Drag({x, y});
  };
  grid_.OnDblClick = [this] {
    if (pressed_on_row_ && OnAccept) OnAccept();
  };
}

void RowChoice::PaintRow(int row, ColorWord back, ColorWord fore) {
  grid_.Row(row);
  for (int column = 0; column < grid_.Cols(); ++column) {
    grid_.Col(column);
    grid_.CellBackColor(back);
    grid_.CellForeColor(fore);
  }
  grid_.Col(0);
}

void RowChoice::TakeOff() {
  if (row_ > 0 && row_ < grid_.Rows() && !painting_) {
    painting_ = true;
    const int cursor = grid_.Row();
    PaintRow(row_, 0, 0);
    grid_.Row(cursor);
    painting_ = false;
  }
  row_ = 0;
}

void RowChoice::FollowCursor() {
  if (painting_ || grid_.Rows() <= grid_.FixedRows()) return;
  const int cursor = grid_.Row();
  if (cursor != row_) {
    TakeOff();
    painting_ = true;
    PaintRow(cursor, system_color::kHighlight, system_color::kHighlightText);
    painting_ = false;
    row_ = cursor;
  }
  grid_.CellTop();  // brings the cell into view
}

void RowChoice::Move(int row) {
  if (grid_.Rows() > grid_.FixedRows()) grid_.Row(std::clamp(row, grid_.FixedRows(), grid_.Rows() - 1));
}

bool RowChoice::TakeKey(int key_code) {
  switch (key_code) {
    case key::kUp:
      Move(grid_.Row() - 1);
      return true;
    case key::kDown:
      Move(grid_.Row() + 1);
      return true;
    case key::kPageUp:
      Move(grid_.Row() - kRowsToPage);
      return true;
    case key::kPageDown:
      Move(grid_.Row() + kRowsToPage);
      return true;
    case key::kHome:
      Move(grid_.FixedRows());
      return true;
    case key::kEnd:
      Move(grid_.Rows() - 1);
      return true;
    default:
      return false;
  }
}

// The choice goes with the pointer; beyond an edge it goes on by one row with each movement.
void RowChoice::Drag(Point local) {
  int row = 0;
  int column = 0;
  if (grid_.CellAt({kInside, local.y}, row, column) && row >= grid_.FixedRows()) {
    Move(row);
  } else {
    Move(grid_.Row() + (local.y < grid_.Height() / 2 ? -1 : 1));
  }
}

}  // namespace orvendal
