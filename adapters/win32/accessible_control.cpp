#include "adapters/win32/accessible_control.h"

#include <oleacc.h>

#include <limits>

#include "platform/base/text.h"
#include "platform/forms/control_looks.h"
#include "platform/forms/form.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/named_property.h"

namespace orvendal {
namespace {

// A label belongs to a control no farther away than this, in twips.
constexpr double kFarthestBeside = 3000;
constexpr double kFarthestAbove = 1500;

// What a property of the control says, as the user's system writes it; nothing if its kind has none of that
// name.
std::optional<std::string> Said(Control& control, std::string_view property) {
  const NamedProperty* found = FindProperty(control.Kind(), property);
  if (found == nullptr) return std::nullopt;
  return control.Parent().Host().UserRegion().ToText(found->get(control, {}));
}

bool Holds(Control& control, std::string_view flag) {
  const NamedProperty* found = FindProperty(control.Kind(), flag);
  return found != nullptr && found->get(control, {}).Number() != 0;
}

// The caption as it is said; empty if it is made of signs alone, such as "...".
std::string SpokenCaption(Control& control) {
  std::string caption = Trim(ReadCaption(Said(control, "Caption").value_or("")).text);
  if (!caption.empty() && caption.back() == ':') caption = Trim(caption.substr(0, caption.size() - 1));
  return caption.find_first_not_of(".:-<>*+ ") == std::string::npos ? std::string() : caption;
}

bool NamesOthers(Control& label, const Control& control) {
  return label.Kind() == ControlKind::kLabel && label.Container() == control.Container() && !label.OnClick &&
         label.Visible() && !SpokenCaption(label).empty();
}

std::string LabelOf(const Control& control) {
  Control* nearest = nullptr;
  double distance = std::numeric_limits<double>::max();
  const double middle = control.Top() + control.Height() / 2;
  const auto offer = [&](Control& label, double gap, double farthest) {
    if (gap > farthest || gap >= distance) return;
    nearest = &label;
    distance = gap;
  };
  for (Control* label : control.Parent().Controls()) {
    if (label == &control || !NamesOthers(*label, control)) continue;
    const double right = label->Left() + label->Width(), bottom = label->Top() + label->Height();
    const bool is_beside = label->Top() <= middle && middle <= bottom && label->Left() < control.Left();
    if (is_beside) offer(*label, std::max(0.0, control.Left() - right), kFarthestBeside);
  }
  if (nearest == nullptr) {
    for (Control* label : control.Parent().Controls()) {
      if (label == &control || !NamesOthers(*label, control)) continue;
      const double bottom = label->Top() + label->Height();
      const bool is_above = bottom <= control.Top() && label->Left() < control.Left() + control.Width() &&
                            control.Left() < label->Left() + label->Width();
      if (is_above) offer(*label, control.Top() - bottom, kFarthestAbove);
    }
  }
  return nearest == nullptr ? std::string() : SpokenCaption(*nearest);
}

std::string TwinCaption(Control& control) {
  if (control.Index() < 0) return {};
  for (Control* twin : control.Parent().Controls()) {
    if (twin->Name() != control.Name() || twin->Kind() != control.Kind()) continue;
    if (std::string caption = SpokenCaption(*twin); !caption.empty()) return caption;
  }
  return {};
}

// An editor that floats over a grid edits the cell that it covers.
std::string CoveredColumn(Control& control) {
  if (control.Kind() != ControlKind::kTextBox || !control.Visible()) return {};
  const Point middle{control.Left() + control.Width() / 2, control.Top() + control.Height() / 2};
  for (const Control* other : control.Parent().Controls()) {
    if (other->Kind() != ControlKind::kMSFlexGrid || other->Container() != control.Container() ||
        !other->Visible())
      continue;
    const auto& grid = static_cast<const MSFlexGrid&>(*other);
    int row = 0, column = 0;
    if (grid.CellAt({middle.x - grid.Left(), middle.y - grid.Top()}, row, column))
      return ColumnTitle(grid, column);
  }
  return {};
}

}  // namespace

std::string ColumnTitle(const MSFlexGrid& grid, int column) {
  std::string title;
  if (grid.FixedRows() > 0) title = Trim(grid.TextMatrix(grid.FixedRows() - 1, column));
  return title.empty() ? std::to_string(column + 1) : title;
}

std::string AccessibleName(Control& control) {
  for (const auto source : {SpokenCaption, TwinCaption, CoveredColumn}) {
    if (std::string name = source(control); !name.empty()) return name;
  }
  if (control.Kind() == ControlKind::kPictureBox) {
    if (std::string name = Trim(control.Parent().Caption()); !name.empty()) return name;
  } else if (control.CanFocus()) {
    if (std::string name = LabelOf(control); !name.empty()) return name;
  }
  return control.FullName();
}

std::optional<std::string> AccessibleValue(Control& control) {
  switch (control.Kind()) {
    case ControlKind::kTextBox:
    case ControlKind::kComboBox:
      return Said(control, "Text");
    case ControlKind::kHScrollBar:
    case ControlKind::kMonthView:
      return Said(control, "Value");
    default:
      return std::nullopt;
  }
}

LONG AccessibleRole(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return control.OnClick ? ROLE_SYSTEM_PUSHBUTTON : ROLE_SYSTEM_STATICTEXT;
    case ControlKind::kTextBox:
      return ROLE_SYSTEM_TEXT;
    case ControlKind::kComboBox:
      return ROLE_SYSTEM_COMBOBOX;
    case ControlKind::kCommandButton:
    case ControlKind::kBoton:
      return ROLE_SYSTEM_PUSHBUTTON;
    case ControlKind::kOptionButton:
      return ROLE_SYSTEM_RADIOBUTTON;
    case ControlKind::kPictureBox:
      return ROLE_SYSTEM_GROUPING;
    case ControlKind::kHScrollBar:
      return ROLE_SYSTEM_SCROLLBAR;
    case ControlKind::kMSFlexGrid:
      return ROLE_SYSTEM_TABLE;
    case ControlKind::kMonthView:
      return ROLE_SYSTEM_DROPLIST;  // what the system's own date fields say they are
    case ControlKind::kBarra:
      return ROLE_SYSTEM_TITLEBAR;
    case ControlKind::kShape:
    case ControlKind::kLine:
      return ROLE_SYSTEM_GRAPHIC;
    case ControlKind::kTimer:
      return ROLE_SYSTEM_CLOCK;
  }
  return ROLE_SYSTEM_CLIENT;
}

LONG AccessibleState(Control& control) {
  LONG state = 0;
  const bool is_seen =
      control.Parent().Visible() && control.IsShown() && control.Kind() != ControlKind::kTimer;
  if (!is_seen) state |= STATE_SYSTEM_INVISIBLE;
  if (!control.IsOperable()) state |= STATE_SYSTEM_UNAVAILABLE;
  if (is_seen && control.IsFocusable()) state |= STATE_SYSTEM_FOCUSABLE;
  if (control.HasFocus()) state |= STATE_SYSTEM_FOCUSED;
  if (Holds(control, "Locked")) state |= STATE_SYSTEM_READONLY;
  if (control.Kind() == ControlKind::kLabel && !control.OnClick) state |= STATE_SYSTEM_READONLY;
  if (control.Kind() == ControlKind::kOptionButton && Holds(control, "Value")) state |= STATE_SYSTEM_CHECKED;
  return state;
}

bool IsPressable(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::kCommandButton:
    case ControlKind::kBoton:
    case ControlKind::kOptionButton:
      return true;
    case ControlKind::kLabel:
      return static_cast<bool>(control.OnClick);
    default:
      return false;
  }
}

Control* AccessibleControlAt(const Form& form, Point place) {
  Control* found = form.ControlAt(place);
  if (found != nullptr && found->Kind() != ControlKind::kPictureBox) return found;
  // A place that takes no mouse may show something all the same: a caption that is switched off, a frame.
  Control* smallest = found;
  for (Control* control : form.Controls()) {
    const Rect bounds = control->Bounds();
    if (!control->IsShown() || control->Kind() == ControlKind::kTimer || !bounds.Contains(place)) continue;
    if (smallest == nullptr || bounds.width * bounds.height < smallest->Width() * smallest->Height()) {
      smallest = control;
    }
  }
  return smallest;
}

}  // namespace orvendal
