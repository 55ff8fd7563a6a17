// How a grid looks.

#include "platform/forms/control_looks.h"
#include "platform/forms/form.h"
#include "platform/forms/ms_flex_grid.h"

namespace orvendal {
namespace {

constexpr double kPixel = kTwipsPerPixel;
constexpr double kTextMargin = 3 * kPixel;
constexpr Rgb kCellLine{0xC0, 0xC0, 0xC0};

// The left and the upper line of a rectangle, one pixel each, and the other two.
void PaintTopLeft(Canvas& canvas, const Rect& rect, Rgb color) {
  canvas.FillRectangle({rect.left, rect.top, rect.width, kPixel}, color);
  canvas.FillRectangle({rect.left, rect.top, kPixel, rect.height}, color);
}

void PaintBottomRight(Canvas& canvas, const Rect& rect, Rgb color) {
  canvas.FillRectangle({rect.left, rect.Bottom() - kPixel, rect.width, kPixel}, color);
  canvas.FillRectangle({rect.Right() - kPixel, rect.top, kPixel, rect.height}, color);
}

Rgb Between(Rgb one, Rgb other) {
  const auto middle = [](std::uint8_t a, std::uint8_t b) { return static_cast<std::uint8_t>((a + b) / 2); };
  return {middle(one.red, other.red), middle(one.green, other.green), middle(one.blue, other.blue)};
}

}  // namespace

void MSFlexGrid::Paint(Canvas& canvas) {
  const View view = Measure();
  PaintBorder(canvas, Host(), LocalBounds(), BorderStyle(), Appearance());
  // Under the cells the background is not seen; a pixel more of it leaves no gap at any scale.
  const Rect cells{view.inside.left, view.inside.top, view.titles_width + ColumnsWidth(left_column_, Cols()),
                   view.titles_height + (EndOfVisibleRows(view) - top_row_) * RowHeightOfAll()};
  for (const Rect& part : view.inside.Around(cells.Deflated(kPixel))) {
    if (!part.IsEmpty()) canvas.FillRectangle(part, Resolve(back_color_background_));
  }
  PaintCells(canvas, view);
  const std::optional<Bar> vertical = VerticalBar(view);
  const std::optional<Bar> horizontal = HorizontalBar(view);
  const Rgb groove = Between(Resolve(system_color::kButtonFace), Resolve(system_color::kButtonHighlight));
  for (const std::optional<Bar>& bar : {vertical, horizontal}) {
    if (bar) bar->track.Paint(canvas, Host(), groove, Resolve(system_color::kButtonText));
  }
  if (vertical && horizontal) {
    const Rect& beside = vertical->track.Whole();
    const Rect& below = horizontal->track.Whole();
    canvas.FillRectangle({beside.left, below.top, beside.width, below.height},
                         Resolve(system_color::kButtonFace));
  }
}

void MSFlexGrid::PaintCells(Canvas& canvas, const View& view) const {
  const Rect body = view.Body();
  const int end_row = EndOfVisibleRows(view);
  const Rect rows_clip{view.inside.left, body.top, view.inside.width, body.height};
  const Rect columns_clip{body.left, view.inside.top, body.width, view.inside.height};
  PaintBlock(canvas, view, body, top_row_, end_row, left_column_, Cols());
  PaintBlock(canvas, view, columns_clip, 0, fixed_rows_, left_column_, Cols());
  PaintBlock(canvas, view, rows_clip, top_row_, end_row, 0, fixed_columns_);
  PaintBlock(canvas, view, view.inside, 0, fixed_rows_, 0, fixed_columns_);
}

void MSFlexGrid::PaintBlock(Canvas& canvas, const View& view, const Rect& clip, int first_row, int end_row,
                            int first_column, int end_column) const {
  if (clip.IsEmpty() || first_row >= end_row || first_column >= end_column) return;
  canvas.Push({0, 0}, clip);
  for (int row = first_row; row < end_row; ++row) {
    Rect place = CellPlace(view, row, first_column);
    if (!canvas.ShowsAnyOf({clip.left, place.top, clip.width, place.height})) continue;
    for (int column = first_column; column < end_column && place.left < clip.Right(); ++column) {
      place.width = columns_[static_cast<std::size_t>(column)].width;
      if (place.width > 0 && canvas.ShowsAnyOf(place)) PaintCell(canvas, place, row, column);
      place.left += place.width;
    }
  }
  canvas.Pop();
}

void MSFlexGrid::PaintCell(Canvas& canvas, const Rect& place, int row, int column) const {
  const std::string_view text = texts_.Text(row, column);
  const CellColors::Colors colors = colors_.At(row, column);
  const Column& format = columns_[static_cast<std::size_t>(column)];
  const bool is_title = row < fixed_rows_ || column < fixed_columns_;
  const bool is_current = row == row_ && column == column_;

  ColorWord back = is_title ? back_color_fixed_ : BackColor();
  ColorWord fore = is_title ? fore_color_fixed_ : ForeColor();
  if (colors.back != 0) back = colors.back;
  if (colors.fore != 0) fore = colors.fore;
  if (highlight_ && !is_title && !is_current && IsSelected(row, column)) {
    back = back_color_selected_;
    fore = fore_color_selected_;
  }
  canvas.FillRectangle(place, Resolve(back));
  if (is_title) {
    PaintTopLeft(canvas, place, Resolve(system_color::kButtonHighlight));
    PaintBottomRight(canvas, place, Resolve(system_color::kButtonShadow));
  } else {
    PaintBottomRight(canvas, place, kCellLine);
  }

  if (!text.empty()) {
    int alignment = is_title ? format.fixed_alignment : format.alignment;
    if (alignment > 8) alignment = !is_title && Host().UserRegion().ParseNumber(text) ? 7 : 1;
    static constexpr HorizontalAlign kAcross[] = {HorizontalAlign::kLeft, HorizontalAlign::kCenter,
                                                  HorizontalAlign::kRight};
    static constexpr VerticalAlign kDown[] = {VerticalAlign::kTop, VerticalAlign::kCenter,
                                              VerticalAlign::kBottom};
    const Rect box{place.left + kTextMargin, place.top, std::max(0.0, place.width - 2 * kTextMargin),
                   std::max(0.0, place.height - kPixel)};
    canvas.DrawText(box, text, Font().Spec(), Resolve(fore), kAcross[alignment / 3], kDown[alignment % 3]);
  }
  if (is_current && HasFocus()) {
    canvas.FocusRectangle({place.left, place.top, place.width - kPixel, place.height - kPixel});
  }
}

}  // namespace orvendal
