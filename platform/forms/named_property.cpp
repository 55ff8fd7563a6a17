#include "platform/forms/named_property.h"

#include <map>
#include <type_traits>

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"
#include "platform/forms/barra.h"
#include "platform/forms/boton.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/h_scroll_bar.h"
#include "platform/forms/label.h"
#include "platform/forms/line.h"
#include "platform/forms/month_view.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/option_button.h"
#include "platform/forms/shape.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"

namespace orvendal {
namespace {

using Place = NamedProperty::Place;
using Table = std::vector<NamedProperty>;

// Between the members' own types and values of any type.

template <typename Type>
constexpr PropertyType TypeOf() {
  using Plain = std::remove_cvref_t<Type>;
  if constexpr (std::is_same_v<Plain, std::string>) return PropertyType::kText;
  if constexpr (std::is_same_v<Plain, bool>) return PropertyType::kFlag;
  if constexpr (std::is_same_v<Plain, ColorWord>) return PropertyType::kColor;
  if constexpr (std::is_same_v<Plain, Date>) return PropertyType::kDate;
  if constexpr (std::is_same_v<Plain, double>) return PropertyType::kNumber;
  return PropertyType::kWhole;
}

template <typename Type>
Value ToValue(const Type& read) {
  if constexpr (std::is_arithmetic_v<Type> || std::is_enum_v<Type>) {
    return static_cast<double>(read);
  } else {
    return read;
  }
}

template <typename Type>
std::remove_cvref_t<Type> FromValue(const Value& value) {
  using Plain = std::remove_cvref_t<Type>;
  if constexpr (std::is_same_v<Plain, std::string>) {
    return value.Text();
  } else if constexpr (std::is_same_v<Plain, Date>) {
    return value.AsDate();
  } else if constexpr (std::is_same_v<Plain, bool>) {
    return value.Number() != 0;
  } else {
    return static_cast<Plain>(value.Number());
  }
}

// A property out of the members that read and write it.

template <typename Kind, typename Read>
NamedProperty Of(std::string_view name, Read (Kind::*get)() const) {
  return {name,
          TypeOf<Read>(),
          0,
          [get](Control& control, const Place&) { return ToValue((static_cast<Kind&>(control).*get)()); },
          {}};
}

template <typename Kind, typename Read>
NamedProperty Of(std::string_view name, Read (Kind::*get)()) {
  return {name,
          TypeOf<Read>(),
          0,
          [get](Control& control, const Place&) { return ToValue((static_cast<Kind&>(control).*get)()); },
          {}};
}

template <typename Kind, typename Read, typename Written>
NamedProperty Of(std::string_view name, Read (Kind::*get)() const, void (Kind::*put)(Written)) {
  NamedProperty property = Of(name, get);
  property.put = [put](Control& control, const Place&, const Value& value) {
    (static_cast<Kind&>(control).*put)(FromValue<Written>(value));
  };
  return property;
}

template <typename Kind, typename Read>
NamedProperty OfOne(std::string_view name, Read (Kind::*get)(int) const) {
  return {name,
          TypeOf<Read>(),
          1,
          [get](Control& control, const Place& place) {
            return ToValue((static_cast<Kind&>(control).*get)(place[0]));
          },
          {}};
}

template <typename Kind, typename Read, typename Written>
NamedProperty OfOne(std::string_view name, Read (Kind::*get)(int) const, void (Kind::*put)(int, Written)) {
  NamedProperty property = OfOne(name, get);
  property.put = [put](Control& control, const Place& place, const Value& value) {
    (static_cast<Kind&>(control).*put)(place[0], FromValue<Written>(value));
  };
  return property;
}

template <typename Kind, typename Read>
NamedProperty OfTwo(std::string_view name, Read (Kind::*get)(int, int) const) {
  return {name,
          TypeOf<Read>(),
          2,
          [get](Control& control, const Place& place) {
            return ToValue((static_cast<Kind&>(control).*get)(place[0], place[1]));
          },
          {}};
}

// What no member of the same name says.
template <typename Kind, typename Read>
NamedProperty Said(std::string_view name, Read read) {
  return {name,
          TypeOf<std::invoke_result_t<Read, Kind&>>(),
          0,
          [read](Control& control, const Place&) { return ToValue(read(static_cast<Kind&>(control))); },
          {}};
}

// The platform's numbers of a background: 0 lets through what lies behind, 1 is opaque.
template <typename Kind>
NamedProperty BackStyle() {
  return Said<Kind>("BackStyle", [](Kind& control) { return control.Opaque() ? 1 : 0; });
}

template <typename Read>
NamedProperty OfFont(std::string_view name, Read (ControlFont::*get)() const) {
  return Said<Control>(name, [get](Control& control) -> Read { return (control.Font().*get)(); });
}

Table OfEveryControl() {
  constexpr int kBoldFrom = 401;
  return {
      Of("Name", &Control::Name),
      Of("Index", &Control::Index),
      Of("Left", &Control::Left, &Control::Left),
      Of("Top", &Control::Top, &Control::Top),
      Of("Width", &Control::Width, &Control::Width),
      Of("Height", &Control::Height, &Control::Height),
      Of("Visible", &Control::Visible, &Control::Visible),
      Of("Enabled", &Control::Enabled, &Control::Enabled),
      Of("TabIndex", &Control::TabIndex, &Control::TabIndex),
      Of("TabStop", &Control::TabStop, &Control::TabStop),
      Of("BackColor", &Control::BackColor, &Control::BackColor),
      Of("ForeColor", &Control::ForeColor, &Control::ForeColor),
      Of("Appearance", &Control::Appearance),
      Of("BorderStyle", &Control::BorderStyle, &Control::BorderStyle),
      Of("Align", &Control::Align),
      Of("Tag", &Control::Tag, &Control::Tag),
      OfFont("Font.Name", &ControlFont::Name),
      OfFont("Font.Size", &ControlFont::Size),
      OfFont("Font.Weight", &ControlFont::Weight),
      Said<Control>("Font.Bold", [](Control& control) { return control.Font().Weight() >= kBoldFrom; }),
      OfFont("Font.Italic", &ControlFont::Italic),
  };
}

Table OfLabel() {
  return {
      Of("Caption", &Label::Caption, &Label::Caption),
      Of("AutoSize", &Label::AutoSize, &Label::AutoSize),
      Of("Alignment", &Label::Alignment),
      BackStyle<Label>(),
  };
}

Table OfTextBox() {
  return {
      Of("Text", &TextBox::Text, &TextBox::Text),
      Of("SelStart", &TextBox::SelStart, &TextBox::SelStart),
      Of("SelLength", &TextBox::SelLength, &TextBox::SelLength),
      Of("SelText", &TextBox::SelText, &TextBox::SelText),
      Of("Locked", &TextBox::Locked, &TextBox::Locked),
      Of("Alignment", &TextBox::Alignment),
      Of("MaxLength", &TextBox::MaxLength, &TextBox::MaxLength),
  };
}

Table OfComboBox() {
  return {
      Of("Text", &ComboBox::Text, &ComboBox::Text),
      Of("ListCount", &ComboBox::ListCount),
      Of("ListIndex", &ComboBox::ListIndex, &ComboBox::ListIndex),
      OfOne("List", &ComboBox::List),
  };
}

Table OfGrid() {
  using Grid = MSFlexGrid;
  return {
      Of("Row", &Grid::Row, &Grid::Row),
      Of("Col", &Grid::Col, &Grid::Col),
      Of("RowSel", &Grid::RowSel),
      Of("ColSel", &Grid::ColSel),
      Of("Rows", &Grid::Rows, &Grid::Rows),
      Of("Cols", &Grid::Cols, &Grid::Cols),
      Of("FixedRows", &Grid::FixedRows, &Grid::FixedRows),
      Of("FixedCols", &Grid::FixedCols, &Grid::FixedCols),
      Of("Text", &Grid::Text, &Grid::Text),
      Of("TopRow", &Grid::TopRow, &Grid::TopRow),
      Of("LeftCol", &Grid::LeftCol, &Grid::LeftCol),
      Of("RowHeightMin", &Grid::RowHeightMin, &Grid::RowHeightMin),
      Of("CellLeft", &Grid::CellLeft),
      Of("CellTop", &Grid::CellTop),
      Of("CellWidth", &Grid::CellWidth),
      Of("CellHeight", &Grid::CellHeight),
      Of("BackColorFixed", &Grid::BackColorFixed, &Grid::BackColorFixed),
      Of("ForeColorFixed", &Grid::ForeColorFixed, &Grid::ForeColorFixed),
      Of("BackColorSel", &Grid::BackColorSel, &Grid::BackColorSel),
      Of("ForeColorSel", &Grid::ForeColorSel, &Grid::ForeColorSel),
      Of("BackColorBkg", &Grid::BackColorBkg, &Grid::BackColorBkg),
      OfOne("ColWidth", &Grid::ColWidth, &Grid::ColWidth),
      OfOne("RowHeight", &Grid::RowHeight),
      OfOne("ColAlignment", &Grid::ColAlignment, &Grid::ColAlignment),
      OfOne("FixedAlignment", &Grid::FixedAlignment, &Grid::FixedAlignment),
      OfOne("RowIsVisible", &Grid::RowIsVisible),
      Of("CellBackColor", &Grid::CellBackColor, &Grid::CellBackColor),
      Of("CellForeColor", &Grid::CellForeColor, &Grid::CellForeColor),
      OfTwo("CellBackColor", &Grid::CellBackColorAt),
      OfTwo("CellForeColor", &Grid::CellForeColorAt),
      OfTwo("TextMatrix", &Grid::TextMatrix),
  };
}

Table OfCalendar() {
  return {
      Of("Value", &MonthView::Value, &MonthView::Value),
      Of("MinDate", &MonthView::MinDate, &MonthView::MinDate),
      Of("MaxDate", &MonthView::MaxDate, &MonthView::MaxDate),
      Of("MonthBackColor", &MonthView::MonthBackColor, &MonthView::MonthBackColor),
      Said<MonthView>("Year", [](MonthView& control) { return control.Value().Year(); }),
      Said<MonthView>("Month", [](MonthView& control) { return control.Value().Month(); }),
      Said<MonthView>("Day", [](MonthView& control) { return control.Value().Day(); }),
  };
}

Table OfScrollBar() {
  return {
      Of("Min", &HScrollBar::Min, &HScrollBar::Min),
      Of("Max", &HScrollBar::Max, &HScrollBar::Max),
      Of("Value", &HScrollBar::Value, &HScrollBar::Value),
      Of("SmallChange", &HScrollBar::SmallChange, &HScrollBar::SmallChange),
      Of("LargeChange", &HScrollBar::LargeChange, &HScrollBar::LargeChange),
  };
}

Table OfShape() {
  return {
      Of("Shape", &Shape::FormOfShape),
      Of("BorderColor", &Shape::BorderColor, &Shape::BorderColor),
      Of("BorderWidth", &Shape::BorderWidth, &Shape::BorderWidth),
      BackStyle<Shape>(),
  };
}

const Table& OwnProperties(ControlKind kind) {
  static const std::map<ControlKind, Table> tables = {
      {ControlKind::kLabel, OfLabel()},
      {ControlKind::kTextBox, OfTextBox()},
      {ControlKind::kComboBox, OfComboBox()},
      {ControlKind::kCommandButton,
       {Of("Caption", &CommandButton::Caption, &CommandButton::Caption),
        Of("Style", &CommandButton::Style, &CommandButton::Style)}},
      {ControlKind::kOptionButton,
       {Of("Caption", &OptionButton::Caption, &OptionButton::Caption),
        Of("Value", &OptionButton::Value, &OptionButton::Value)}},
      {ControlKind::kMSFlexGrid, OfGrid()},
      {ControlKind::kMonthView, OfCalendar()},
      {ControlKind::kHScrollBar, OfScrollBar()},
      {ControlKind::kShape, OfShape()},
      {ControlKind::kLine,
       {Of("X1", &Line::X1, &Line::X1), Of("Y1", &Line::Y1, &Line::Y1), Of("X2", &Line::X2, &Line::X2),
        Of("Y2", &Line::Y2, &Line::Y2), Of("BorderColor", &Line::BorderColor, &Line::BorderColor)}},
      {ControlKind::kTimer,
       {Of("Enabled", &Timer::Enabled, &Timer::Enabled), Of("Interval", &Timer::Interval, &Timer::Interval)}},
      {ControlKind::kBarra, {Of("Caption", &Barra::Caption)}},
      {ControlKind::kBoton, {Of<PushButton>("Caption", &PushButton::Caption)}},
  };
  static const Table none;
  const auto found = tables.find(kind);
  return found == tables.end() ? none : found->second;
}

void PutWindowState(Form& form, const Value& value) {
  const double state = value.Number();
  if (state < 0 || state > static_cast<double>(WindowState::kMaximized)) {
    throw RuntimeError(error_number::kInvalidPropertyValue);
  }
  form.WindowState(static_cast<WindowState>(state));
}

void PutVisible(Form& form, const Value& value) {
  if (value.Number() != 0) {
    form.Show();
  } else {
    form.Hide();
  }
}

constexpr FormProperty kFormProperties[] = {
    {"Name", PropertyType::kText, [](Form& form) { return ToValue(form.Name()); }, nullptr},
    {"Caption", PropertyType::kText, [](Form& form) { return ToValue(form.Caption()); },
     [](Form& form, const Value& value) { form.Caption(value.Text()); }},
    {"Left", PropertyType::kNumber, [](Form& form) { return ToValue(form.Left()); },
     [](Form& form, const Value& value) { form.Move(value.Number(), form.Top()); }},
    {"Top", PropertyType::kNumber, [](Form& form) { return ToValue(form.Top()); },
     [](Form& form, const Value& value) { form.Move(form.Left(), value.Number()); }},
    {"Width", PropertyType::kNumber, [](Form& form) { return ToValue(form.Width()); },
     [](Form& form, const Value& value) { form.Width(value.Number()); }},
    {"Height", PropertyType::kNumber, [](Form& form) { return ToValue(form.Height()); },
     [](Form& form, const Value& value) { form.Height(value.Number()); }},
    {"Visible", PropertyType::kFlag, [](Form& form) { return ToValue(form.Visible()); }, PutVisible},
    {"WindowState", PropertyType::kWhole, [](Form& form) { return ToValue(form.WindowState()); },
     PutWindowState},
    {"BackColor", PropertyType::kColor, [](Form& form) { return ToValue(form.BackColor()); },
     [](Form& form, const Value& value) { form.BackColor(FromValue<ColorWord>(value)); }},
    {"BorderStyle", PropertyType::kWhole, [](Form& form) { return ToValue(form.BorderStyle()); }, nullptr},
    {"StartUpPosition", PropertyType::kWhole, [](Form& form) { return ToValue(form.StartUpPosition()); },
     nullptr},
    {"KeyPreview", PropertyType::kFlag, [](Form& form) { return ToValue(form.KeyPreview()); },
     [](Form& form, const Value& value) { form.KeyPreview(value.Number() != 0); }},
};

const Table& CommonProperties() {
  static const Table table = OfEveryControl();
  return table;
}

}  // namespace

const NamedProperty* FindProperty(ControlKind kind, std::string_view name, std::size_t arguments) {
  for (const Table* table : {&OwnProperties(kind), &CommonProperties()}) {
    for (const NamedProperty& property : *table) {
      if (property.arguments == arguments && EqualsIgnoringCase(property.name, name)) return &property;
    }
  }
  return nullptr;
}

const FormProperty* FindFormProperty(std::string_view name) {
  for (const FormProperty& property : kFormProperties) {
    if (EqualsIgnoringCase(property.name, name)) return &property;
  }
  return nullptr;
}

}  // namespace orvendal
