#include "host/script/properties.h"

#include <map>

#include "host/script/values.h"
#include "platform/forms/barra.h"
#include "platform/forms/boton.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/h_scroll_bar.h"
#include "platform/forms/label.h"
#include "platform/forms/month_view.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/shape.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

using Arguments = std::vector<int>;

// The platform's numbers of a background: 0 lets through what lies behind, 1 is opaque.
int BackStyleOf(bool opaque) {
  return opaque ? 1 : 0;
}

constexpr int kBoldFrom = 401;

template <typename Kind, typename Read>
ScriptProperty Plain(const char* name, Read read) {
  return {name, 0, [read](Control& control, const Arguments&) {
            return ValueText(read(static_cast<Kind&>(control)));
          }};
}

template <typename Kind, typename Read>
ScriptProperty OfOne(const char* name, Read read) {
  return {name, 1, [read](Control& control, const Arguments& arguments) {
            return ValueText(read(static_cast<Kind&>(control), arguments[0]));
          }};
}

template <typename Kind, typename Read>
ScriptProperty OfTwo(const char* name, Read read) {
  return {name, 2, [read](Control& control, const Arguments& arguments) {
            return ValueText(read(static_cast<Kind&>(control), arguments[0], arguments[1]));
          }};
}

ScriptProperties MakeCommon() {
  const auto plain = [](const char* name, auto read) { return Plain<Control>(name, read); };
  return {
      plain("name", [](Control& c) { return c.Name(); }),
      plain("index", [](Control& c) { return c.Index(); }),
      plain("left", [](Control& c) { return c.Left(); }),
      plain("top", [](Control& c) { return c.Top(); }),
      plain("width", [](Control& c) { return c.Width(); }),
      plain("height", [](Control& c) { return c.Height(); }),
      plain("visible", [](Control& c) { return c.Visible(); }),
      plain("enabled", [](Control& c) { return c.Enabled(); }),
      plain("tabindex", [](Control& c) { return c.TabIndex(); }),
      plain("tabstop", [](Control& c) { return c.TabStop(); }),
      plain("backcolor", [](Control& c) { return c.BackColor(); }),
      plain("forecolor", [](Control& c) { return c.ForeColor(); }),
      plain("appearance", [](Control& c) { return static_cast<int>(c.Appearance()); }),
      plain("borderstyle", [](Control& c) { return c.BorderStyle(); }),
      plain("align", [](Control& c) { return static_cast<int>(c.Align()); }),
      plain("tag", [](Control& c) { return c.Tag(); }),
      plain("font.name", [](Control& c) { return c.Font().Name(); }),
      plain("font.size", [](Control& c) { return c.Font().Size(); }),
      plain("font.weight", [](Control& c) { return c.Font().Weight(); }),
      plain("font.bold", [](Control& c) { return c.Font().Weight() >= kBoldFrom; }),
      plain("font.italic", [](Control& c) { return c.Font().Italic(); }),
  };
}

ScriptProperties MakeLabel() {
  const auto plain = [](const char* name, auto read) { return Plain<Label>(name, read); };
  return {
      plain("caption", [](Label& c) { return c.Caption(); }),
      plain("autosize", [](Label& c) { return c.AutoSize(); }),
      plain("alignment", [](Label& c) { return static_cast<int>(c.Alignment()); }),
      plain("backstyle", [](Label& c) { return BackStyleOf(c.Opaque()); }),
  };
}

ScriptProperties MakeTextBox() {
  const auto plain = [](const char* name, auto read) { return Plain<TextBox>(name, read); };
  return {
      plain("text", [](TextBox& c) { return c.Text(); }),
      plain("selstart", [](TextBox& c) { return c.SelStart(); }),
      plain("sellength", [](TextBox& c) { return c.SelLength(); }),
      plain("seltext", [](TextBox& c) { return c.SelText(); }),
      plain("locked", [](TextBox& c) { return c.Locked(); }),
      plain("alignment", [](TextBox& c) { return static_cast<int>(c.Alignment()); }),
      plain("maxlength", [](TextBox& c) { return c.MaxLength(); }),
  };
}

ScriptProperties MakeComboBox() {
  const auto plain = [](const char* name, auto read) { return Plain<ComboBox>(name, read); };
  return {
      plain("text", [](ComboBox& c) { return c.Text(); }),
      plain("listcount", [](ComboBox& c) { return c.ListCount(); }),
      plain("listindex", [](ComboBox& c) { return c.ListIndex(); }),
      OfOne<ComboBox>("list", [](ComboBox& c, int i) { return c.List(i); }),
  };
}

ScriptProperties MakeGrid() {
  const auto plain = [](const char* name, auto read) { return Plain<MSFlexGrid>(name, read); };
  const auto of_one = [](const char* name, auto read) { return OfOne<MSFlexGrid>(name, read); };
  const auto of_two = [](const char* name, auto read) { return OfTwo<MSFlexGrid>(name, read); };
  return {
      plain("row", [](MSFlexGrid& c) { return c.Row(); }),
      plain("col", [](MSFlexGrid& c) { return c.Col(); }),
      plain("rowsel", [](MSFlexGrid& c) { return c.RowSel(); }),
      plain("colsel", [](MSFlexGrid& c) { return c.ColSel(); }),
      plain("rows", [](MSFlexGrid& c) { return c.Rows(); }),
      plain("cols", [](MSFlexGrid& c) { return c.Cols(); }),
      plain("fixedrows", [](MSFlexGrid& c) { return c.FixedRows(); }),
      plain("fixedcols", [](MSFlexGrid& c) { return c.FixedCols(); }),
      plain("text", [](MSFlexGrid& c) { return c.Text(); }),
      plain("toprow", [](MSFlexGrid& c) { return c.TopRow(); }),
      plain("leftcol", [](MSFlexGrid& c) { return c.LeftCol(); }),
      plain("rowheightmin", [](MSFlexGrid& c) { return c.RowHeightMin(); }),
      plain("cellleft", [](MSFlexGrid& c) { return c.CellLeft(); }),
      plain("celltop", [](MSFlexGrid& c) { return c.CellTop(); }),
      plain("cellwidth", [](MSFlexGrid& c) { return c.CellWidth(); }),
      plain("cellheight", [](MSFlexGrid& c) { return c.CellHeight(); }),
      plain("backcolorfixed", [](MSFlexGrid& c) { return c.BackColorFixed(); }),
      plain("forecolorfixed", [](MSFlexGrid& c) { return c.ForeColorFixed(); }),
      plain("backcolorsel", [](MSFlexGrid& c) { return c.BackColorSel(); }),
      plain("forecolorsel", [](MSFlexGrid& c) { return c.ForeColorSel(); }),
      plain("backcolorbkg", [](MSFlexGrid& c) { return c.BackColorBkg(); }),
      of_one("colwidth", [](MSFlexGrid& c, int i) { return c.ColWidth(i); }),
      of_one("rowheight", [](MSFlexGrid& c, int i) { return c.RowHeight(i); }),
      of_one("colalignment", [](MSFlexGrid& c, int i) { return c.ColAlignment(i); }),
      of_one("fixedalignment", [](MSFlexGrid& c, int i) { return c.FixedAlignment(i); }),
      of_one("rowisvisible", [](MSFlexGrid& c, int i) { return c.RowIsVisible(i); }),
      plain("cellbackcolor", [](MSFlexGrid& c) { return c.CellBackColor(); }),
      plain("cellforecolor", [](MSFlexGrid& c) { return c.CellForeColor(); }),
      of_two("cellbackcolor",
             [](MSFlexGrid& c, int row, int column) { return c.CellBackColorAt(row, column); }),
      of_two("cellforecolor",
             [](MSFlexGrid& c, int row, int column) { return c.CellForeColorAt(row, column); }),
      of_two("textmatrix", [](MSFlexGrid& c, int row, int column) { return c.TextMatrix(row, column); }),
  };
}

ScriptProperties MakeCalendar() {
  const auto plain = [](const char* name, auto read) { return Plain<MonthView>(name, read); };
  return {
      plain("value", [](MonthView& c) { return c.Value(); }),
      plain("mindate", [](MonthView& c) { return c.MinDate(); }),
      plain("maxdate", [](MonthView& c) { return c.MaxDate(); }),
      plain("monthbackcolor", [](MonthView& c) { return c.MonthBackColor(); }),
      plain("year", [](MonthView& c) { return c.Value().Year(); }),
      plain("month", [](MonthView& c) { return c.Value().Month(); }),
      plain("day", [](MonthView& c) { return c.Value().Day(); }),
  };
}

ScriptProperties MakeScrollBar() {
  const auto plain = [](const char* name, auto read) { return Plain<HScrollBar>(name, read); };
  return {
      plain("min", [](HScrollBar& c) { return c.Min(); }),
      plain("max", [](HScrollBar& c) { return c.Max(); }),
      plain("value", [](HScrollBar& c) { return c.Value(); }),
      plain("smallchange", [](HScrollBar& c) { return c.SmallChange(); }),
      plain("largechange", [](HScrollBar& c) { return c.LargeChange(); }),
  };
}

ScriptProperties MakeShape() {
  const auto plain = [](const char* name, auto read) { return Plain<Shape>(name, read); };
  return {
      plain("shape", [](Shape& c) { return static_cast<int>(c.FormOfShape()); }),
      plain("bordercolor", [](Shape& c) { return c.BorderColor(); }),
      plain("borderwidth", [](Shape& c) { return c.BorderWidth(); }),
      plain("backstyle", [](Shape& c) { return BackStyleOf(c.Opaque()); }),
  };
}

template <typename Kind>
ScriptProperties WithCaption() {
  return {Plain<Kind>("caption", [](Kind& c) { return c.Caption(); })};
}

ScriptProperties MakeButton() {
  ScriptProperties properties = WithCaption<CommandButton>();
  properties.push_back(Plain<CommandButton>("style", [](CommandButton& c) { return c.Style(); }));
  return properties;
}

ScriptProperties MakeTimer() {
  return {Plain<Timer>("interval", [](Timer& c) { return c.Interval(); })};
}

}  // namespace

const ScriptProperties& CommonProperties() {
  static const ScriptProperties properties = MakeCommon();
  return properties;
}

const ScriptProperties& PropertiesOf(ControlKind kind) {
  static const std::map<ControlKind, ScriptProperties> properties = {
      {ControlKind::kLabel, MakeLabel()},          {ControlKind::kTextBox, MakeTextBox()},
      {ControlKind::kComboBox, MakeComboBox()},    {ControlKind::kCommandButton, MakeButton()},
      {ControlKind::kMSFlexGrid, MakeGrid()},      {ControlKind::kMonthView, MakeCalendar()},
      {ControlKind::kHScrollBar, MakeScrollBar()}, {ControlKind::kShape, MakeShape()},
      {ControlKind::kTimer, MakeTimer()},          {ControlKind::kBarra, WithCaption<Barra>()},
      {ControlKind::kBoton, WithCaption<Boton>()},
  };
  static const ScriptProperties none;
  const auto found = properties.find(kind);
  return found == properties.end() ? none : found->second;
}

}  // namespace orvendal
