// Where the cells of a grid stand, and how the view of them moves.

#include <cmath>

#include "platform/base/runtime_error.h"
#include "platform/forms/control_looks.h"
#include "platform/forms/form.h"
#include "platform/forms/ms_flex_grid.h"

namespace orvendal {
namespace {

constexpr double kBarThickness = 240;
constexpr double kRowHeightMinimum = 240;
constexpr double kRowPadding = 45;
// Scaled sizes are no whole twips; less than a pixel is no reason for a scroll bar.
constexpr double kSlack = 1;

struct ScrollGuard {
  explicit ScrollGuard(int& depth) : depth_(depth) { ++depth_; }
  ~ScrollGuard() { --depth_; }
  ScrollGuard(const ScrollGuard&) = delete;
  ScrollGuard& operator=(const ScrollGuard&) = delete;

 private:
  int& depth_;
};

}  // namespace

void MSFlexGrid::MeasureRows() {
  row_height_.reset();
  HoldView();
  Invalidate();
}

// Measured when somebody asks: a grid gets its font after it is made, and loading one that nobody will see
// takes longer than anything else about a grid.
double MSFlexGrid::RowHeightOfAll() const {
  if (!row_height_) {
    const double fitting =
        std::round((Host().LineHeight(Font().Spec()) + kRowPadding) / kTwipsPerPixel) * kTwipsPerPixel;
    row_height_ = std::max({kRowHeightMinimum, fitting, row_height_min_});
  }
  return *row_height_;
}

void MSFlexGrid::MeasureColumns() {
  column_ends_.clear();
  double end = 0;
  for (const Column& column : columns_) column_ends_.push_back(end += column.width);
}

double MSFlexGrid::ColumnsWidth(int first, int end) const {
  if (first >= end) return 0;
  if (first == 0) return column_ends_[static_cast<std::size_t>(end - 1)];
  // The same sum as if the columns before were not there: a difference of two sums may be a little off.
  double width = 0;
  for (int column = first; column < end; ++column) width += columns_[static_cast<std::size_t>(column)].width;
  return width;
}

MSFlexGrid::View MSFlexGrid::Measure() const {
  View view;
  view.inside = LocalBounds().Deflated(BorderInset(BorderStyle(), Appearance()));
  view.titles_height = fixed_rows_ * RowHeightOfAll();
  view.titles_width = ColumnsWidth(0, fixed_columns_);
  const double height = Rows() * RowHeightOfAll();
  const double width = view.titles_width + ColumnsWidth(fixed_columns_, Cols());
  // A bar takes room, which may be what calls for the other one.
  for (int round = 0; round < 2; ++round) {
    if (!view.has_vertical_bar && height > view.inside.height + kSlack) {
      view.has_vertical_bar = true;
      view.inside.width = std::max(0.0, view.inside.width - kBarThickness);
    }
    if (!view.has_horizontal_bar && width > view.inside.width + kSlack) {
      view.has_horizontal_bar = true;
      view.inside.height = std::max(0.0, view.inside.height - kBarThickness);
    }
  }
  return view;
}

// Rows below the titles that show wholly, at least one, so that paging always moves.
int MSFlexGrid::PageRows(const View& view) const {
  return std::max(1, static_cast<int>((view.Body().height + kSlack) / RowHeightOfAll()));
}

int MSFlexGrid::LastTopRow(const View& view) const {
  return std::max(fixed_rows_, Rows() - PageRows(view));
}

int MSFlexGrid::LastLeftColumn(const View& view) const {
  const double room = view.Body().width + kSlack;
  int first = Cols();
  for (double width = 0; first > fixed_columns_; --first) {
    width += columns_[static_cast<std::size_t>(first - 1)].width;
    if (width > room) break;
  }
  return std::max(fixed_columns_, std::min(first, Cols() - 1));
}

int MSFlexGrid::EndOfVisibleRows(const View& view) const {
  const double rows = std::ceil((view.Body().height - kSlack) / RowHeightOfAll());
  return std::min(Rows(), top_row_ + std::max(0, static_cast<int>(rows)));
}

// May lie outside the view, and be empty for a hidden column.
Rect MSFlexGrid::CellPlace(const View& view, int row, int column) const {
  Rect place{view.inside.left, view.inside.top, 0, RowHeightOfAll()};
  place.top +=
      row < fixed_rows_ ? row * RowHeightOfAll() : view.titles_height + (row - top_row_) * RowHeightOfAll();
  if (column < fixed_columns_) {
    place.left += ColumnsWidth(0, column);
  } else {
    place.left += view.titles_width;
    place.left +=
        column >= left_column_ ? ColumnsWidth(left_column_, column) : -ColumnsWidth(column, left_column_);
  }
  if (column < Cols()) place.width = columns_[static_cast<std::size_t>(column)].width;
  return place;
}

Rect MSFlexGrid::CellRectangle(int row, int column) const {
  CheckCell(row, column);
  const View view = Measure();
  const Rect place = CellPlace(view, row, column);
  const Rect body = view.Body();
  Rect clip = view.inside;
  if (row >= fixed_rows_) {
    clip.top = body.top;
    clip.height = body.height;
  }
  if (column >= fixed_columns_) {
    clip.left = body.left;
    clip.width = body.width;
  }
  const bool is_whole = place.left >= clip.left && place.top >= clip.top &&
                        place.Right() <= clip.Right() + kSlack && place.Bottom() <= clip.Bottom() + kSlack;
  if (is_whole) return place.IsEmpty() ? Rect{} : place;
  const Rect shown = place.Intersection(clip);
  return shown.IsEmpty() ? Rect{} : shown;
}

// The row at that height, or -1.
int MSFlexGrid::RowAt(const View& view, double y) const {
  if (y < view.inside.top || y >= view.inside.Bottom()) return -1;
  const int distance = static_cast<int>((y - view.inside.top) / RowHeightOfAll());
  const int row = distance < fixed_rows_ ? distance : distance - fixed_rows_ + top_row_;
  return row < Rows() ? row : -1;
}

int MSFlexGrid::ColumnAt(const View& view, double x) const {
  if (x < view.inside.left || x >= view.inside.Right()) return -1;
  double right = view.inside.left;
  for (int column = 0; column < Cols(); ++column) {
    if (column >= fixed_columns_ && column < left_column_) continue;
    right += columns_[static_cast<std::size_t>(column)].width;
    if (x < right) return column;
  }
  return -1;
}

bool MSFlexGrid::CellAt(Point local, int& row, int& column) const {
  const View view = Measure();
  const int row_there = RowAt(view, local.y);
  const int column_there = ColumnAt(view, local.x);
  if (row_there < 0 || column_there < 0) return false;
  row = row_there;
  column = column_there;
  return true;
}

bool MSFlexGrid::RowIsVisible(int row) const {
  if (row < 0 || row >= Rows()) throw RuntimeError(error_number::kSubscriptOutOfRange);
  return row < fixed_rows_ || (row >= top_row_ && row < EndOfVisibleRows(Measure()));
}

// Scrolling.

// What no longer can be scrolled to is left, raising nothing.
void MSFlexGrid::HoldView() {
  // Where all columns have room beside a bar too, no row has to be measured to know.
  const double room = Width() - 2 * BorderInset(BorderStyle(), Appearance()) - kBarThickness;
  if (ColumnsWidth(0, Cols()) <= room) left_column_ = fixed_columns_;
  if (top_row_ == fixed_rows_ && left_column_ == fixed_columns_) return;
  const View view = Measure();
  top_row_ = std::clamp(top_row_, fixed_rows_, LastTopRow(view));
  left_column_ = std::clamp(left_column_, fixed_columns_, LastLeftColumn(view));
}

void MSFlexGrid::MoveView(int top_row, int left_column) {
  const View view = Measure();
  const int top = std::clamp(top_row, fixed_rows_, LastTopRow(view));
  const int left = std::clamp(left_column, fixed_columns_, LastLeftColumn(view));
  if (top == top_row_ && left == left_column_) return;
  left_place_.reset();
  top_row_ = top;
  left_column_ = left;
  Invalidate();
  const ScrollGuard guard(scroll_depth_);
  if (OnScroll) OnScroll();
}

void MSFlexGrid::TopRow(int row) {
  MoveView(row, left_column_);
}
void MSFlexGrid::LeftCol(int column) {
  MoveView(top_row_, column);
}

void MSFlexGrid::BringIntoView(int row, int column) {
  const View view = Measure();
  int top = top_row_;
  if (row >= fixed_rows_ && row < Rows()) {
    top = std::clamp(top, row - PageRows(view) + 1, row);
  }
  int left = left_column_;
  if (column >= fixed_columns_ && column < Cols() && ColWidth(column) > 0) {
    left = std::min(left, column);
    const double room = view.Body().width + kSlack;
    while (left < column && ColumnsWidth(left, column + 1) > room) ++left;
  }
  MoveView(top, left);
}

double MSFlexGrid::CellTop() {
  if (scroll_depth_ == 0) BringIntoView(row_, column_);
  return CellPlace(Measure(), row_, column_).top;
}

double MSFlexGrid::CellLeft() {
  if (scroll_depth_ == 0) BringIntoView(row_, column_);
  return CellPlace(Measure(), row_, column_).left;
}

double MSFlexGrid::CellWidth() const {
  return column_ < Cols() ? ColWidth(column_) : 0;
}

double MSFlexGrid::CellHeight() const {
  return RowHeightOfAll();
}

// Scroll bars.

MSFlexGrid::Bar MSFlexGrid::Bar::Of(const Rect& whole, ScrollTrack::Direction direction, int first, int last,
                                    int position, double shown) {
  const ScrollTrack::Scale scale{static_cast<double>(position - first), static_cast<double>(last - first),
                                 shown};
  return {first, last, position, ScrollTrack(whole, direction, kBarThickness, scale)};
}

std::optional<MSFlexGrid::Bar> MSFlexGrid::VerticalBar(const View& view) const {
  if (!view.has_vertical_bar) return std::nullopt;
  const Rect whole{view.inside.Right(), view.inside.top, kBarThickness, view.inside.height};
  const double shown = static_cast<double>(PageRows(view)) / std::max(1, Rows() - fixed_rows_);
  return Bar::Of(whole, ScrollTrack::Direction::kVertical, fixed_rows_, LastTopRow(view), top_row_, shown);
}

std::optional<MSFlexGrid::Bar> MSFlexGrid::HorizontalBar(const View& view) const {
  if (!view.has_horizontal_bar) return std::nullopt;
  const Rect whole{view.inside.left, view.inside.Bottom(), view.inside.width, kBarThickness};
  const double shown = view.Body().width / std::max(1.0, ColumnsWidth(fixed_columns_, Cols()));
  return Bar::Of(whole, ScrollTrack::Direction::kHorizontal, fixed_columns_, LastLeftColumn(view),
                 left_column_, shown);
}

// What changed.

void MSFlexGrid::InvalidateCell(int row, int column) {
  if (WaitsWhole() || !Parent().Visible() || row >= Rows() || column >= Cols()) return;
  // Loading writes thousands of rows that do not show.
  const bool is_far = row < top_row_ || (row - top_row_) * RowHeightOfAll() > Height();
  if (row >= fixed_rows_ && is_far) return;
  const Rect shown = CellRectangle(row, column);
  if (!shown.IsEmpty()) Invalidate(shown);
}

void MSFlexGrid::InvalidateSelection() {
  if (WaitsWhole() || !Parent().Visible()) return;
  if (row_ == row_selection_ && column_ == column_selection_) {
    InvalidateCell(row_, column_);
    return;
  }
  const View view = Measure();
  const Rect from = CellPlace(view, row_, column_);
  const Rect to = CellPlace(view, row_selection_, column_selection_);
  Rect range{std::min(from.left, to.left), std::min(from.top, to.top), 0, 0};
  range.width = std::max(from.Right(), to.Right()) - range.left;
  range.height = std::max(from.Bottom(), to.Bottom()) - range.top;
  const Rect shown = range.Intersection(view.inside);
  if (!shown.IsEmpty()) Invalidate(shown);
}

}  // namespace orvendal
