#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/forms/cell_colors.h"
#include "platform/forms/cell_texts.h"
#include "platform/forms/control.h"
#include "platform/forms/scroll_track.h"
#include "platform/forms/text_index.h"

namespace orvendal {

/// A grid of text cells with fixed title rows and one current cell.
///
/// Rows and columns count from 0, fixed ones included. Invariants: FixedRows <= Rows and FixedCols <= Cols;
/// 0 <= Row < Rows and 0 <= Col < Cols, but Row is FixedRows in a grid of titles only, until it gets a row
/// there, and Col likewise; FixedRows <= TopRow and FixedCols <= LeftCol; the user never moves the current
/// cell onto a fixed one. All rows are equally high.
///
/// Cursor. Assigning Row or Col a different value raises OnLeaveCell with the cursor still at the old cell,
/// moves, then raises OnEnterCell and OnRowColChange, all inside the assignment. A handler may move the
/// cursor in turn: that move runs to its end first. The value that it has raises nothing. The view does not
/// scroll by it; but reading CellTop or CellLeft brings the current cell into view, except inside OnScroll. A
/// move by the user, who may change both at once, raises one pair. As long as nobody has moved the cursor, it
/// stands on the first cell that is not fixed.
///
/// Selection. The range from the cursor to RowSel and ColSel is shown selected; every assignment of Row or
/// Col shrinks it to the current cell. Only the user makes it larger, and no event tells.
///
/// Cost: assignments and AddItem take constant time in the rows; RemoveItem is linear in the rows; painting
/// is linear in the visible cells. Empty rows take no room for cells; a row that is written takes the bytes
/// of its texts and a few more (CellTexts, CellColors).
class MSFlexGrid final : public Control {
 public:
  MSFlexGrid(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kMSFlexGrid; }

  int Rows() const { return texts_.Rows(); }
  /// Drops rows at the end or adds empty ones. A cursor below goes to the last row, with no event. Raises 381
  /// below FixedRows.
  void Rows(int rows);
  int Cols() const { return static_cast<int>(columns_.size()); }
  /// Like Rows; raises 381 below FixedCols.
  void Cols(int columns);
  int FixedRows() const { return fixed_rows_; }
  /// Raises 380 outside 0..Rows.
  void FixedRows(int rows);
  int FixedCols() const { return fixed_columns_; }
  /// Raises 380 outside 0..Cols.
  void FixedCols(int columns);

  int Row() const { return row_; }
  /// Raises 30009 outside the grid.
  void Row(int row);
  int Col() const { return column_; }
  /// Raises 30010 outside the grid.
  void Col(int column);
  /// The other corner of the selected range.
  int RowSel() const { return row_selection_; }
  int ColSel() const { return column_selection_; }

  /// The current cell. Raises 381 in a grid of titles only, as all that reads or writes the current cell.
  std::string Text() const { return TextMatrix(row_, column_); }
  void Text(const std::string& text);
  /// Any cell, with no event. Raises 381 outside the grid.
  std::string TextMatrix(int row, int column) const { return std::string(TextView(row, column)); }
  void TextMatrix(int row, int column, const std::string& text);
  /// The same text for those who walk over many cells: valid until anything writes to the grid.
  std::string_view TextView(int row, int column) const;

  /// The first row from `from` on whose cell of that column holds the text, to the letter; -1 if none does.
  /// Takes no longer with many rows, unless many have the text or rows have come and gone elsewhere than at
  /// the end since the last time. Raises 381 for a column outside the grid.
  int FindRow(int column, std::string_view text, int from) const;

  /// Twips; 0 hides the column, a negative width is that of a new column. Not rescaled when the grid changes
  /// size. Raises 381 outside the grid.
  double ColWidth(int column) const;
  void ColWidth(int column, double twips);
  double RowHeightMin() const { return row_height_min_; }
  /// Raises every lower row to it, fixed ones too.
  void RowHeightMin(double twips);
  /// Raises 381 outside the grid.
  double RowHeight(int row) const;
  /// 0, 1, 2 left, 3, 4, 5 centre, 6, 7, 8 right, each at the top, centred, at the bottom; 9 is 1 for texts
  /// and 7 for numbers. Raises 380 for any other, 381 outside the grid.
  int ColAlignment(int column) const;
  void ColAlignment(int column, int alignment);
  int FixedAlignment(int column) const;
  void FixedAlignment(int column, int alignment);

  int TopRow() const { return top_row_; }
  /// The first row below the titles that shows; held within what can scroll. Raises OnScroll if the view
  /// moves.
  void TopRow(int row);
  int LeftCol() const { return left_column_; }
  void LeftCol(int column);
  /// Whether any part of the row shows; title rows always do. Raises 381 outside the grid.
  bool RowIsVisible(int row) const;

  /// Place of the current cell, twips from the grid's corner. Both bring the cell into view first, wholly if
  /// it fits, raising OnScroll if the view moves; inside OnScroll they only tell, and the place may be
  /// negative or beyond the edge.
  double CellLeft();
  double CellTop();
  /// Width 0 for a hidden column.
  double CellWidth() const;
  double CellHeight() const;
  /// Of the current cell; 0 is the grid's own colour.
  ColorWord CellBackColor() const;
  void CellBackColor(ColorWord color);
  ColorWord CellForeColor() const;
  void CellForeColor(ColorWord color);
  /// The same of any cell, for those who look.
  ColorWord CellBackColorAt(int row, int column) const;
  ColorWord CellForeColorAt(int row, int column) const;

  /// Appends a row; the text's columns are separated by tabs. No event.
  void AddItem(const std::string& text);
  /// Inserts it before row `row`. Raises 381 outside FixedRows..Rows.
  void AddItem(const std::string& text, int row);
  /// The rows below move up with their colours; the cursor keeps its row number, or goes to the last row,
  /// with no event. A row that is appended right afterwards gives cursor and view the places back that they
  /// had to leave, also with no event. Raises 30015 for the last row below the titles, 381 for any row that
  /// is none or is fixed.
  void RemoveItem(int row);

  ColorWord BackColorFixed() const { return back_color_fixed_; }
  void BackColorFixed(ColorWord color);
  ColorWord ForeColorFixed() const { return fore_color_fixed_; }
  void ForeColorFixed(ColorWord color);
  ColorWord BackColorSel() const { return back_color_selected_; }
  void BackColorSel(ColorWord color);
  ColorWord ForeColorSel() const { return fore_color_selected_; }
  void ForeColorSel(ColorWord color);
  ColorWord BackColorBkg() const { return back_color_background_; }
  void BackColorBkg(ColorWord color);

  /// Whether the range from the cursor to RowSel and ColSel is shown selected.
  bool HighLight() const { return highlight_; }
  void HighLight(bool shown);
  /// Whether a press on a title selects its column or row; without it such a press does nothing.
  bool AllowBigSelection() const { return allow_big_selection_; }
  void AllowBigSelection(bool allow) { allow_big_selection_ = allow; }

  std::function<void()> OnLeaveCell;
  std::function<void()> OnEnterCell;
  std::function<void()> OnRowColChange;
  std::function<void()> OnScroll;

  /// What shows of a cell, relative to the grid; empty if nothing does.
  Rect CellRectangle(int row, int column) const;
  /// Row and column under a place; false on borders, bars and the empty area.
  bool CellAt(Point local, int& row, int& column) const;

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  Rect OpaqueArea() const override { return Measure().inside; }
  void MousePressing(int button, int shift, Point local) override;
  void MouseMoved(int buttons, int shift, Point local) override;
  void MouseReleased(int button, int shift, Point local) override;
  bool MouseWheel(WheelTurn turn) override;
  bool RaisesClick(Point local) const override;
  bool TakesFocusOnPress(Point local) const override { return RaisesClick(local); }
  bool KeyDownDefault(int key_code, int shift) override;
  void FocusChanged(bool has_focus) override;

 protected:
  ControlProperties DefaultProperties() const override;
  void FontChanged() override;
  void SizeChanged() override;

 private:
  struct Column {
    double width = 0;
    int alignment = 0;
    int fixed_alignment = 0;
  };
  /// How the inside of the border divides at this moment.
  struct View {
    Rect inside;  // titles and cells, without the bars
    double titles_width = 0;
    double titles_height = 0;
    bool has_vertical_bar = false;
    bool has_horizontal_bar = false;

    Rect Body() const {
      return {inside.left + titles_width, inside.top + titles_height,
              std::max(0.0, inside.width - titles_width), std::max(0.0, inside.height - titles_height)};
    }
  };
  /// One scroll bar; the thumb stands for `position` between `first` and `last`.
  struct Bar {
    int first;
    int last;
    int position;
    ScrollTrack track;

    /// `shown` is the part of the whole that shows.
    static Bar Of(const Rect& whole, ScrollTrack::Direction direction, int first, int last, int position,
                  double shown);
    bool IsVertical() const { return track.Runs() == ScrollTrack::Direction::kVertical; }
  };
  enum class Drag { kNothing, kCells, kVerticalThumb, kHorizontalThumb };
  /// Where cursor and view stood before a row was removed from under them.
  struct Place {
    int row = 0;
    int top_row = 0;
  };
  struct Spot {
    int row = 0;
    int column = 0;
  };
  /// Tells, after a handler ran, whether the grid is still the one that it was before.
  struct Moment {
    bool loaded = false;
    std::uint64_t life = 0;
  };

  // Cells and cursor (ms_flex_grid.cpp).
  void CheckCell(int row, int column) const;
  void CheckColumn(int column) const;
  void StructureChanged();
  void FollowNewRow(int row);
  Moment Now() const;
  bool IsStill(const Moment& moment) const;
  void ChangeCursor(std::optional<int> row, std::optional<int> column);
  void SelectTo(int row, int column);
  bool IsSelected(int row, int column) const;
  Column NewColumn() const;

  // View (ms_flex_grid_view.cpp).
  View Measure() const;
  void MeasureColumns();
  double ColumnsWidth(int first, int end) const;
  int PageRows(const View& view) const;
  int LastTopRow(const View& view) const;
  int LastLeftColumn(const View& view) const;
  int EndOfVisibleRows(const View& view) const;
  Rect CellPlace(const View& view, int row, int column) const;
  int RowAt(const View& view, double y) const;
  int ColumnAt(const View& view, double x) const;
  void MeasureRows();
  double RowHeightOfAll() const;
  void HoldView();
  void MoveView(int top_row, int left_column);
  void BringIntoView(int row, int column);
  std::optional<Bar> VerticalBar(const View& view) const;
  std::optional<Bar> HorizontalBar(const View& view) const;
  void InvalidateCell(int row, int column);
  void InvalidateSelection();

  // Input (ms_flex_grid_input.cpp).
  void PressBar(const Bar& bar, Point local);
  void MoveTo(const Bar& bar, int position);
  void DragCells(Point local);
  void DragThumb(Point local);
  int VisibleColumnFrom(int column, int step) const;
  std::optional<Spot> SpotForKey(int key_code, bool to_corner, Spot from) const;

  // Painting (ms_flex_grid_paint.cpp).
  void PaintCells(Canvas& canvas, const View& view) const;
  void PaintBlock(Canvas& canvas, const View& view, const Rect& clip, int first_row, int end_row,
                  int first_column, int end_column) const;
  void PaintCell(Canvas& canvas, const Rect& place, int row, int column) const;

  CellTexts texts_;
  mutable std::optional<TextIndex> index_;  // of the column asked for last; true as long as it is there
  CellColors colors_;
  std::vector<Column> columns_;
  std::vector<double> column_ends_;  // of column 0 on, as MeasureColumns added them up
  int fixed_rows_ = 1;
  int fixed_columns_ = 1;
  int row_ = 1;
  int column_ = 1;
  int row_selection_ = 1;
  int column_selection_ = 1;
  bool cursor_was_moved_ = false;
  std::optional<Place> left_place_;
  int top_row_ = 1;
  int left_column_ = 1;
  double row_height_min_ = 0;
  mutable std::optional<double> row_height_;  // empty until somebody asks, see RowHeightOfAll
  ColorWord back_color_fixed_ = 0;
  ColorWord fore_color_fixed_ = 0;
  ColorWord back_color_selected_ = 0;
  ColorWord fore_color_selected_ = 0;
  ColorWord back_color_background_ = 0;
  bool highlight_ = true;
  bool allow_big_selection_ = true;
  std::uint64_t life_ = 0;  // counts the designs, so that the end of a handler can tell another one
  int scroll_depth_ = 0;    // handlers of OnScroll that are running

  Drag drag_ = Drag::kNothing;
  Point drag_start_;
  double grip_ = 0;  // where a thumb is held
  bool drag_has_left_cell_ = false;
  int pressed_row_ = 0;
  int pressed_column_ = 0;
};

}  // namespace orvendal
