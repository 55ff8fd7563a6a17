// What the mouse and the keys do to a grid.

#include <cmath>

#include "platform/forms/form.h"
#include "platform/forms/ms_flex_grid.h"

namespace orvendal {
namespace {

// A hand that clicks shakes a little; below this the mouse does not drag.
constexpr double kDragDistance = 4 * kTwipsPerPixel;

}  // namespace

// Mouse.

void MSFlexGrid::MousePressing(int button, int /*shift*/, Point local) {
  if (button != mouse_button::kLeft) return;
  drag_ = Drag::kNothing;
  const View view = Measure();
  for (const std::optional<Bar>& bar : {VerticalBar(view), HorizontalBar(view)}) {
    if (bar && bar->track.Whole().Contains(local)) {
      PressBar(*bar, local);
      return;
    }
  }
  int row = 0;
  int column = 0;
  const bool has_cells = Rows() > fixed_rows_ && Cols() > fixed_columns_;
  if (!has_cells || !CellAt(local, row, column)) return;

  const bool is_column_title = row < fixed_rows_;
  const bool is_row_title = column < fixed_columns_;
  if ((is_column_title || is_row_title) && !allow_big_selection_) return;
  const int target_row = std::max(row, fixed_rows_);
  const int target_column = std::max(column, fixed_columns_);
  const Moment before = Now();
  drag_start_ = local;
  pressed_row_ = row;
  pressed_column_ = column;
  drag_has_left_cell_ = false;
  if (!is_column_title && !is_row_title) drag_ = Drag::kCells;
  ChangeCursor(target_row, target_column);
  // A handler that put the cursor elsewhere selected what it wants.
  if (!IsStill(before) || row_ != target_row || column_ != target_column) return;
  SelectTo(is_column_title ? Rows() - 1 : row_, is_row_title ? Cols() - 1 : column_);
}

void MSFlexGrid::MouseMoved(int buttons, int /*shift*/, Point local) {
  if ((buttons & mouse_button::kLeft) == 0) return;
  if (drag_ == Drag::kCells) {
    DragCells(local);
  } else if (drag_ != Drag::kNothing) {
    DragThumb(local);
  }
}

void MSFlexGrid::MouseReleased(int /*button*/, int /*shift*/, Point /*local*/) {
  drag_ = Drag::kNothing;
}

void MSFlexGrid::DragCells(Point local) {
  if (Rows() <= fixed_rows_ || Cols() <= fixed_columns_) return;
  const double distance = std::hypot(local.x - drag_start_.x, local.y - drag_start_.y);
  if (!drag_has_left_cell_ && distance < kDragDistance) return;

  // Beyond an edge the view moves on, one cell for each movement of the mouse.
  const Rect body = Measure().Body();
  const auto step = [](double position, double from, double to) {
    return position < from ? -1 : position >= to ? 1 : 0;
  };
  const Moment before = Now();
  MoveView(top_row_ + step(local.y, body.top, body.Bottom()),
           left_column_ + step(local.x, body.left, body.Right()));
  if (!IsStill(before) || drag_ != Drag::kCells) return;

  const View view = Measure();
  const Rect seen = view.Body();
  if (seen.IsEmpty()) return;
  const double x = std::clamp(local.x, seen.left, seen.Right() - 1);
  const double y = std::clamp(local.y, seen.top, seen.Bottom() - 1);
  const int row = RowAt(view, y);
  const int column = ColumnAt(view, x);
  if (row == pressed_row_ && column == pressed_column_ && !drag_has_left_cell_) return;
  drag_has_left_cell_ = true;
  SelectTo(row < 0 ? Rows() - 1 : row, column < 0 ? VisibleColumnFrom(Cols(), -1) : column);
}

bool MSFlexGrid::RaisesClick(Point local) const {
  const View view = Measure();
  Rect without_bars = LocalBounds();
  if (view.has_vertical_bar) without_bars.width = view.inside.Right();
  if (view.has_horizontal_bar) without_bars.height = view.inside.Bottom();
  return without_bars.Contains(local);
}

bool MSFlexGrid::MouseWheel(WheelTurn turn) {
  MoveView(top_row_ + turn.lines, left_column_);
  return true;
}

// Scroll bars.

void MSFlexGrid::MoveTo(const Bar& bar, int position) {
  if (bar.IsVertical()) {
    MoveView(position, left_column_);
  } else {
    MoveView(top_row_, position);
  }
}

void MSFlexGrid::PressBar(const Bar& bar, Point local) {
  const int page = bar.IsVertical() ? PageRows(Measure()) : 1;
  switch (bar.track.PartAt(local)) {
    case ScrollTrack::Part::kBackArrow:
      MoveTo(bar, bar.position - 1);
      break;
    case ScrollTrack::Part::kForwardArrow:
      MoveTo(bar, bar.position + 1);
      break;
    case ScrollTrack::Part::kThumb:
      drag_ = bar.IsVertical() ? Drag::kVerticalThumb : Drag::kHorizontalThumb;
      grip_ = bar.track.GripAt(local);
      break;
    case ScrollTrack::Part::kBeforeThumb:
      MoveTo(bar, bar.position - page);
      break;
    case ScrollTrack::Part::kBehindThumb:
      MoveTo(bar, bar.position + page);
      break;
  }
}

void MSFlexGrid::DragThumb(Point local) {
  const View view = Measure();
  const std::optional<Bar> bar = drag_ == Drag::kVerticalThumb ? VerticalBar(view) : HorizontalBar(view);
  const std::optional<double> share = bar ? bar->track.DraggedTo(local, grip_) : std::nullopt;
  if (share) MoveTo(*bar, bar->first + static_cast<int>(std::lround(*share * (bar->last - bar->first))));
}

// Keys.

// The next column after `column` in that direction that can be seen; -1 if there is none.
int MSFlexGrid::VisibleColumnFrom(int column, int step) const {
  for (column += step; column >= fixed_columns_ && column < Cols(); column += step) {
    if (ColWidth(column) > 0) return column;
  }
  return -1;
}

// The cell that a key leads to from `from`, by rows and visible columns; nothing for any other key.
std::optional<MSFlexGrid::Spot> MSFlexGrid::SpotForKey(int key_code, bool to_corner, Spot from) const {
  Spot to = from;
  const auto go_to_column = [&to](int column) {
    if (column >= 0) to.column = column;
  };
  switch (key_code) {
    case key::kUp:
      --to.row;
      break;
    case key::kDown:
      ++to.row;
      break;
    case key::kPageUp:
      to.row -= PageRows(Measure());
      break;
    case key::kPageDown:
      to.row += PageRows(Measure());
      break;
    case key::kLeft:
      go_to_column(VisibleColumnFrom(from.column, -1));
      break;
    case key::kRight:
      go_to_column(VisibleColumnFrom(from.column, 1));
      break;
    case key::kHome:
      go_to_column(VisibleColumnFrom(fixed_columns_ - 1, 1));
      if (to_corner) to.row = fixed_rows_;
      break;
    case key::kEnd:
      go_to_column(VisibleColumnFrom(Cols(), -1));
      if (to_corner) to.row = Rows() - 1;
      break;
    default:
      return std::nullopt;
  }
  return Spot{std::clamp(to.row, fixed_rows_, Rows() - 1), std::max(to.column, fixed_columns_)};
}

bool MSFlexGrid::KeyDownDefault(int key_code, int shift) {
  if (Rows() <= fixed_rows_ || (shift & shift_mask::kAlt) != 0) return false;
  const bool extends = (shift & shift_mask::kShift) != 0;
  const bool to_corner = (shift & shift_mask::kControl) != 0;
  const Spot from = extends ? Spot{row_selection_, column_selection_} : Spot{row_, column_};
  const std::optional<Spot> to = SpotForKey(key_code, to_corner, from);
  if (!to) return false;
  if (extends) {
    SelectTo(to->row, to->column);
    BringIntoView(to->row, to->column);
    return false;
  }
  const Moment before = Now();
  ChangeCursor(to->row, to->column);
  if (IsStill(before)) BringIntoView(row_, column_);
  return false;
}

void MSFlexGrid::FocusChanged(bool /*has_focus*/) {
  InvalidateCell(row_, column_);
}

}  // namespace orvendal
