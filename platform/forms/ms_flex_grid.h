#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/forms/control.h"

namespace orvendal {

/// A grid of text cells with fixed title rows and one current cell.
///
/// Rows and columns count from 0, fixed ones included. Invariants: FixedRows <= Rows; 0 <= Row < Rows and
/// 0 <= Col < Cols (Row is FixedRows in a grid of titles only); fixed cells take the current cell from code
/// only.
///
/// Cursor. Assigning Row or Col a different value raises OnLeaveCell with the cursor still at the old cell,
/// moves, then raises OnEnterCell and OnRowColChange, all inside the assignment. The value that it has raises
/// nothing. The view does not scroll by it; but reading CellTop or CellLeft brings the current cell into
/// view, except inside OnScroll. A move by the user, who may change both at once, raises one pair.
///
/// Cost: assignments and AddItem take constant time; RemoveItem is linear in the rows; painting is linear in
/// the visible cells.
class MSFlexGrid final : public Control {
 public:
  MSFlexGrid(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kMSFlexGrid; }

  int Rows() const { return static_cast<int>(rows_.size()); }
  /// Drops rows at the end or adds empty ones. A cursor below goes to the last row, with no event. Raises 381
  /// below FixedRows.
  void Rows(int rows);
  int Cols() const { return static_cast<int>(columns_.size()); }
  void Cols(int columns);
  int FixedRows() const { return fixed_rows_; }
  void FixedRows(int rows);
  int FixedCols() const { return fixed_columns_; }
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

  /// The current cell.
  const std::string& Text() const;
  void Text(const std::string& text);
  /// Any cell, with no event. Raises 381 outside the grid.
  const std::string& TextMatrix(int row, int column) const;
  void TextMatrix(int row, int column, const std::string& text);

  /// Twips; 0 hides the column. Not rescaled when the grid changes size. Raises 381 outside the grid.
  double ColWidth(int column) const;
  void ColWidth(int column, double twips);
  double RowHeightMin() const { return row_height_min_; }
  /// Raises every lower row to it, fixed ones too.
  void RowHeightMin(double twips);
  double RowHeight(int row) const;
  /// 1 left, 4 centre, 7 right; centred vertically.
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
  /// Whether any part of the row shows.
  bool RowIsVisible(int row) const;

  /// Place of the current cell, twips from the grid's corner. Width 0 for a hidden column.
  double CellLeft() const;
  double CellTop() const;
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
  /// Inserts it before row `row`.
  void AddItem(const std::string& text, int row);
  /// The rows below move up with their colours; the cursor keeps its row number, or goes to the last row,
  /// with no event. Raises 30015 for the last row below the titles, 381 for any row that is none or is fixed.
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

  std::function<void()> OnLeaveCell;
  std::function<void()> OnEnterCell;
  std::function<void()> OnRowColChange;
  std::function<void()> OnScroll;

  /// Place of a cell relative to the grid, empty if it does not show.
  Rect CellRectangle(int row, int column) const;
  /// Row and column under a place; false on borders, bars and the empty area.
  bool CellAt(Point local, int& row, int& column) const;

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  void MousePressing(int button, int shift, Point local) override;
  void MouseMoved(int buttons, int shift, Point local) override;
  void MouseReleased(int button, int shift, Point local) override;
  bool MouseWheel(double lines) override;
  bool RaisesClick(Point local) const override;
  bool KeyDownDefault(int key_code, int shift) override;
  void FocusChanged(bool has_focus) override;

 protected:
  ControlProperties DefaultProperties() const override;
  void FontChanged() override;
  void SizeChanged() override;

 private:
  struct Cell {
    std::string text;
    ColorWord back_color = 0;
    ColorWord fore_color = 0;
  };
  struct Row_ {
    std::vector<Cell> cells;
  };
  struct Column_ {
    double width = 960;
    int alignment = 9;  // general: text left, numbers right
    int fixed_alignment = 9;
  };

  std::vector<Row_> rows_;
  std::vector<Column_> columns_;
  int fixed_rows_ = 1;
  int fixed_columns_ = 1;
  int row_ = 1;
  int column_ = 1;
  int row_selection_ = 1;
  int column_selection_ = 1;
  int top_row_ = 1;
  int left_column_ = 1;
  double row_height_min_ = 0;
  ColorWord back_color_fixed_ = system_color::kButtonFace;
  ColorWord fore_color_fixed_ = system_color::kButtonText;
  ColorWord back_color_selected_ = system_color::kHighlight;
  ColorWord fore_color_selected_ = system_color::kHighlightText;
  ColorWord back_color_background_ = system_color::kApplicationWorkspace;
  mutable bool in_scroll_ = false;
};

}  // namespace orvendal
