#include "platform/forms/ms_flex_grid.h"

#include <new>
#include <utility>

#include "platform/base/runtime_error.h"
#include "platform/forms/control_looks.h"
#include "platform/forms/form.h"

namespace orvendal {
namespace {

constexpr double kNewColumnWidth = 960;
constexpr int kGeneralAlignment = 9;
constexpr int kNewRows = 2;
constexpr int kNewColumns = 2;

void CheckAlignment(int alignment) {
  if (alignment < 0 || alignment > kGeneralAlignment) throw RuntimeError(error_number::kInvalidPropertyValue);
}

}  // namespace

MSFlexGrid::MSFlexGrid(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties MSFlexGrid::DefaultProperties() const {
  return PropertiesOfBox();
}

void MSFlexGrid::RestoreDefaults() {
  Control::RestoreDefaults();
  ++life_;
  texts_ = {};
  index_.reset();
  texts_.Rows(kNewRows);
  colors_ = {};
  columns_.assign(kNewColumns, NewColumn());
  MeasureColumns();
  fixed_rows_ = fixed_columns_ = 1;
  row_ = row_selection_ = 1;
  column_ = column_selection_ = 1;
  cursor_was_moved_ = false;
  left_place_.reset();
  top_row_ = left_column_ = 1;
  row_height_min_ = 0;
  back_color_fixed_ = system_color::kButtonFace;
  fore_color_fixed_ = system_color::kButtonText;
  back_color_selected_ = system_color::kHighlight;
  fore_color_selected_ = system_color::kHighlightText;
  back_color_background_ = system_color::kApplicationWorkspace;
  highlight_ = true;
  allow_big_selection_ = true;
  drag_ = Drag::kNothing;
  MeasureRows();
}

MSFlexGrid::Column MSFlexGrid::NewColumn() const {
  return {kNewColumnWidth, kGeneralAlignment, kGeneralAlignment};
}

// Size and titles.

void MSFlexGrid::Rows(int rows) {
  if (rows < fixed_rows_) throw RuntimeError(error_number::kSubscriptOutOfRange);
  if (rows == Rows()) return;
  index_.reset();
  texts_.Rows(rows);
  colors_.CutRows(rows);
  StructureChanged();
}

void MSFlexGrid::Cols(int columns) {
  if (columns < fixed_columns_) throw RuntimeError(error_number::kSubscriptOutOfRange);
  if (columns == Cols()) return;
  if (columns < Cols()) {
    index_.reset();
    texts_.Cut(columns);
    colors_.CutColumns(columns);
  }
  columns_.resize(static_cast<std::size_t>(columns), NewColumn());
  MeasureColumns();
  StructureChanged();
}

void MSFlexGrid::FixedRows(int rows) {
  if (rows < 0 || rows > Rows()) throw RuntimeError(error_number::kInvalidPropertyValue);
  fixed_rows_ = rows;
  StructureChanged();
}

void MSFlexGrid::FixedCols(int columns) {
  if (columns < 0 || columns > Cols()) throw RuntimeError(error_number::kInvalidPropertyValue);
  fixed_columns_ = columns;
  StructureChanged();
}

// Puts cursor, selection and view back inside the grid, raising nothing.
void MSFlexGrid::StructureChanged() {
  left_place_.reset();
  if (!cursor_was_moved_) {
    row_ = row_selection_ = fixed_rows_;
    column_ = column_selection_ = fixed_columns_;
  }
  const auto held = [](int index, int fixed, int count) {
    return index < count ? index : std::max(fixed, count - 1);
  };
  row_ = held(row_, fixed_rows_, Rows());
  column_ = held(column_, fixed_columns_, Cols());
  row_selection_ = held(row_selection_, fixed_rows_, Rows());
  column_selection_ = held(column_selection_, fixed_columns_, Cols());
  HoldView();
  Invalidate();
}

// Cursor.

void MSFlexGrid::Row(int row) {
  if (row < 0 || row >= Rows()) throw RuntimeError(error_number::kInvalidRow);
  ChangeCursor(row, std::nullopt);
}

void MSFlexGrid::Col(int column) {
  if (column < 0 || column >= Cols()) throw RuntimeError(error_number::kInvalidColumn);
  ChangeCursor(std::nullopt, column);
}

MSFlexGrid::Moment MSFlexGrid::Now() const {
  return {Parent().IsLoaded(), life_};
}

bool MSFlexGrid::IsStill(const Moment& moment) const {
  return life_ == moment.life && Parent().IsLoaded() == moment.loaded;
}

// One group of events for a move to another cell, none for the same one, even if row and column change both.
// What is not given stays as it is at the moment of the move, which a handler of OnLeaveCell may have
// changed.
void MSFlexGrid::ChangeCursor(std::optional<int> row, std::optional<int> column) {
  cursor_was_moved_ = true;
  const bool changes = row.value_or(row_) != row_ || column.value_or(column_) != column_;
  if (!changes) {
    SelectTo(row_, column_);
    return;
  }
  left_place_.reset();
  const Moment before = Now();
  if (OnLeaveCell) OnLeaveCell();
  if (!IsStill(before)) return;

  InvalidateSelection();
  // The handler may have taken the row or the column away.
  if (row && *row < Rows()) row_ = *row;
  if (column && *column < Cols()) column_ = *column;
  row_selection_ = row_;
  column_selection_ = column_;
  InvalidateSelection();

  if (OnEnterCell) OnEnterCell();
  if (IsStill(before) && OnRowColChange) OnRowColChange();
}

void MSFlexGrid::SelectTo(int row, int column) {
  if (row == row_selection_ && column == column_selection_) return;
  InvalidateSelection();
  row_selection_ = row;
  column_selection_ = column;
  InvalidateSelection();
}

bool MSFlexGrid::IsSelected(int row, int column) const {
  const auto [top, bottom] = std::minmax(row_, row_selection_);
  const auto [left, right] = std::minmax(column_, column_selection_);
  return row >= top && row <= bottom && column >= left && column <= right;
}

// Cells.

void MSFlexGrid::CheckColumn(int column) const {
  if (column < 0 || column >= Cols()) throw RuntimeError(error_number::kSubscriptOutOfRange);
}

void MSFlexGrid::CheckCell(int row, int column) const {
  if (row < 0 || row >= Rows()) throw RuntimeError(error_number::kSubscriptOutOfRange);
  CheckColumn(column);
}

std::string_view MSFlexGrid::TextView(int row, int column) const {
  CheckCell(row, column);
  return texts_.Text(row, column);
}

void MSFlexGrid::TextMatrix(int row, int column, const std::string& text) {
  if (TextView(row, column) == text) return;
  texts_.Text(row, column, text);
  if (index_ && index_->Column() == column) index_->Change(row, text);
  InvalidateCell(row, column);
}

int MSFlexGrid::FindRow(int column, std::string_view text, int from) const {
  CheckColumn(column);
  if (!index_ || index_->Column() != column) {
    TextIndex index(column);
    for (int row = 0; row < Rows(); ++row) index.Append(texts_.Text(row, column));
    index_ = std::move(index);
  }
  return index_->Find(text, from, [&](int row) { return texts_.Text(row, column); });
}

void MSFlexGrid::Text(const std::string& text) {
  TextMatrix(row_, column_, text);
}

ColorWord MSFlexGrid::CellBackColorAt(int row, int column) const {
  CheckCell(row, column);
  return colors_.At(row, column).back;
}
ColorWord MSFlexGrid::CellForeColorAt(int row, int column) const {
  CheckCell(row, column);
  return colors_.At(row, column).fore;
}
ColorWord MSFlexGrid::CellBackColor() const {
  return CellBackColorAt(row_, column_);
}
ColorWord MSFlexGrid::CellForeColor() const {
  return CellForeColorAt(row_, column_);
}

void MSFlexGrid::CellBackColor(ColorWord color) {
  if (color == CellBackColor()) return;
  colors_.Back(row_, column_, color);
  InvalidateCell(row_, column_);
}

void MSFlexGrid::CellForeColor(ColorWord color) {
  if (color == CellForeColor()) return;
  colors_.Fore(row_, column_, color);
  InvalidateCell(row_, column_);
}

// Rows.

void MSFlexGrid::AddItem(const std::string& text) {
  AddItem(text, Rows());
}

void MSFlexGrid::AddItem(const std::string& text, int row) {
  if (row < fixed_rows_ || row > Rows()) throw RuntimeError(error_number::kSubscriptOutOfRange);
  const bool showed_bar = Measure().has_vertical_bar;
  const std::optional<Place> left_place = std::exchange(left_place_, std::nullopt);
  colors_.Insert(row);
  try {
    texts_.Insert(row, text, Cols());
  } catch (...) {
    colors_.Remove(row);
    throw;
  }
  FollowNewRow(row);
  const View view = Measure();
  if (left_place && row + 1 == Rows()) {
    row_ = row_selection_ = left_place->row;
    top_row_ = left_place->top_row;
    StructureChanged();
    return;
  }
  if (row + 1 < Rows() || Rows() == fixed_rows_ + 1 || showed_bar != view.has_vertical_bar) {
    StructureChanged();
    return;
  }
  // Nothing but the new row and the bar looks different.
  if (WaitsWhole()) return;
  for (int column = 0; column < Cols(); ++column) InvalidateCell(row, column);
  if (const std::optional<Bar> bar = VerticalBar(view)) Invalidate(bar->track.Whole());
}

// An index for which there is no room is made again when somebody asks.
void MSFlexGrid::FollowNewRow(int row) {
  if (!index_) return;
  try {
    if (row + 1 < Rows()) return index_.reset();
    index_->Append(texts_.Text(row, index_->Column()));
  } catch (const std::bad_alloc&) {
    index_.reset();
  }
}

void MSFlexGrid::RemoveItem(int row) {
  if (row < fixed_rows_ || row >= Rows()) throw RuntimeError(error_number::kSubscriptOutOfRange);
  if (Rows() - fixed_rows_ == 1) throw RuntimeError(error_number::kCannotRemoveLastRow);
  const Place before{row_, top_row_};
  index_.reset();
  texts_.Remove(row);
  colors_.Remove(row);
  StructureChanged();
  if (row_ != before.row || top_row_ != before.top_row) left_place_ = before;
}

// Columns and look.

double MSFlexGrid::ColWidth(int column) const {
  CheckColumn(column);
  return columns_[static_cast<std::size_t>(column)].width;
}

void MSFlexGrid::ColWidth(int column, double twips) {
  CheckColumn(column);
  columns_[static_cast<std::size_t>(column)].width = twips < 0 ? kNewColumnWidth : twips;
  MeasureColumns();
  HoldView();
  Invalidate();
}

int MSFlexGrid::ColAlignment(int column) const {
  CheckColumn(column);
  return columns_[static_cast<std::size_t>(column)].alignment;
}

void MSFlexGrid::ColAlignment(int column, int alignment) {
  CheckColumn(column);
  CheckAlignment(alignment);
  columns_[static_cast<std::size_t>(column)].alignment = alignment;
  Invalidate();
}

int MSFlexGrid::FixedAlignment(int column) const {
  CheckColumn(column);
  return columns_[static_cast<std::size_t>(column)].fixed_alignment;
}

void MSFlexGrid::FixedAlignment(int column, int alignment) {
  CheckColumn(column);
  CheckAlignment(alignment);
  columns_[static_cast<std::size_t>(column)].fixed_alignment = alignment;
  Invalidate();
}

void MSFlexGrid::RowHeightMin(double twips) {
  if (twips < 0) throw RuntimeError(error_number::kInvalidPropertyValue);
  row_height_min_ = twips;
  MeasureRows();
}

double MSFlexGrid::RowHeight(int row) const {
  if (row < 0 || row >= Rows()) throw RuntimeError(error_number::kSubscriptOutOfRange);
  return RowHeightOfAll();
}

void MSFlexGrid::BackColorFixed(ColorWord color) {
  back_color_fixed_ = color;
  Invalidate();
}
void MSFlexGrid::ForeColorFixed(ColorWord color) {
  fore_color_fixed_ = color;
  Invalidate();
}
void MSFlexGrid::BackColorSel(ColorWord color) {
  back_color_selected_ = color;
  Invalidate();
}
void MSFlexGrid::ForeColorSel(ColorWord color) {
  fore_color_selected_ = color;
  Invalidate();
}
void MSFlexGrid::BackColorBkg(ColorWord color) {
  back_color_background_ = color;
  Invalidate();
}
void MSFlexGrid::HighLight(bool shown) {
  highlight_ = shown;
  Invalidate();
}

void MSFlexGrid::FontChanged() {
  MeasureRows();
}

void MSFlexGrid::SizeChanged() {
  HoldView();
}

}  // namespace orvendal
