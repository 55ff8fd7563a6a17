#include "host/library/dialog_design.h"

#include <algorithm>

namespace orvendal {
namespace dialog_design {
namespace {

constexpr double kScrollBar = 300;
constexpr double kRowHeight = 330;
constexpr int kSystemFrame = 3;
constexpr int kCenteredOnOwner = 1;
constexpr int kAlignLeft = 1;

void DesignFont(Control& control) {
  FontSpec font;
  font.size = kFontSize;
  control.Font().Spec(font);
}

}  // namespace

void PlaceDialog(Form& form, std::string_view title, double width, double height) {
  WindowHost& host = form.Host();
  form.Caption(std::string(title));
  form.BorderStyle(kSystemFrame);
  form.StartUpPosition(kCenteredOnOwner);
  const Rect room = host.RoomInFrame();
  form.Width(std::min(width, room.width));
  form.Height(std::min(height, room.height));
  form.Move((host.ScreenWidth() - form.Width()) / 2, (host.ScreenHeight() - form.Height()) / 2);
}

void DesignOption(OptionButton& option, std::string_view caption, const Rect& place, int tab_index) {
  DesignFont(option);
  option.Caption(std::string(caption));
  option.Move(place.left, place.top, place.width, place.height);
  option.TabIndex(tab_index);
}

void DesignLabel(Label& label, std::string_view caption, const Rect& place) {
  DesignFont(label);
  label.Design(std::string(caption), false, false);
  label.Move(place.left, place.top, place.width, place.height);
}

void DesignBox(TextBox& box, const Rect& place, int tab_index) {
  DesignFont(box);
  box.Move(place.left, place.top, place.width, place.height);
  box.TabIndex(tab_index);
}

void DesignButton(CommandButton& button, std::string_view caption, const Rect& place, int tab_index) {
  DesignFont(button);
  button.Caption(std::string(caption));
  button.Move(place.left, place.top, place.width, place.height);
  button.TabIndex(tab_index);
}

void DesignGrid(MSFlexGrid& grid, const std::vector<GridColumn>& columns, const Rect& place, int tab_index) {
  DesignFont(grid);
  grid.Move(place.left, place.top, place.width, place.height);
  grid.TabIndex(tab_index);
  grid.BackColorBkg(system_color::kWindowBackground);
  grid.HighLight(false);
  grid.AllowBigSelection(false);
  grid.FixedCols(0);
  grid.FixedRows(1);
  grid.Cols(static_cast<int>(columns.size()));
  grid.Rows(1);
  grid.RowHeightMin(kRowHeight);
  double shares = 0;
  for (const GridColumn& column : columns) shares += column.share;
  for (int i = 0; i < grid.Cols(); ++i) {
    const GridColumn& column = columns[static_cast<std::size_t>(i)];
    grid.ColWidth(i, (place.width - kScrollBar) * column.share / shares);
    grid.ColAlignment(i, kAlignLeft);
    grid.FixedAlignment(i, kAlignLeft);
    grid.TextMatrix(0, i, std::string(column.title));
  }
}

}  // namespace dialog_design

}  // namespace orvendal
