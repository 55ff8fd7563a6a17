#include "host/recording/click_words.h"

#include <cmath>

#include "adapters/headless/robot.h"
#include "host/script/values.h"
#include "platform/forms/barra.h"
#include "platform/forms/month_view.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/text_box.h"

namespace orvendal {
namespace {

Point LocalTo(const Control& control, Point position) {
  const Rect bounds = control.Bounds();
  return {position.x - bounds.left, position.y - bounds.top};
}

Point OnForm(const Control& control, Point local) {
  const Rect bounds = control.Bounds();
  return {bounds.left + local.x, bounds.top + local.y};
}

Point MiddleOf(const Rect& part) {
  return {part.left + part.width / 2, part.top + part.height / 2};
}

// As scripts name it: an action button by its click area.
std::string NameOf(const Form& form, const Control& control) {
  const bool is_click_area = control.Index() == 1 && form.FindControl(control.Name()) == nullptr;
  return is_click_area ? control.Name() : control.FullName();
}

NamedClick Named(const std::string& what, Point place) {
  return {"clic " + what, "dobleclic " + what, place, 0};
}

std::optional<NamedClick> OnCell(Form& form, MSFlexGrid& grid, Point position) {
  int row = 0;
  int column = 0;
  const Point local = LocalTo(grid, position);
  if (!grid.RaisesClick(local) || !grid.CellAt(local, row, column)) return std::nullopt;
  if (grid.CellRectangle(row, column).IsEmpty() || grid.ColWidth(column) == 0) return std::nullopt;
  const Point place = Robot(form).CellPosition(grid, row, column);
  int row_there = 0;
  int column_there = 0;
  const Point there = LocalTo(grid, place);
  if (!grid.RaisesClick(there) || !grid.CellAt(there, row_there, column_there)) return std::nullopt;
  if (row_there != row || column_there != column) return std::nullopt;
  return Named(NameOf(form, grid) + " " + std::to_string(row) + " " + std::to_string(column), place);
}

std::optional<NamedClick> OnLetter(Form& form, const TextBox& box, Point position) {
  const int letter = box.PositionOf(LocalTo(box, position));
  const Point there = box.PlaceOf(letter);
  if (box.PositionOf(there) != letter) return std::nullopt;
  const std::string name = NameOf(form, box);
  // Without letters every place is the same, and two clicks select nothing either.
  if (box.Text().empty()) return Named(name, OnForm(box, MiddleOf(box.LocalBounds())));
  return NamedClick{"clic " + name + " " + std::to_string(letter), "", OnForm(box, there), letter};
}

std::optional<NamedClick> OnDay(Form& form, const MonthView& calendar, Point position) {
  const Point local = LocalTo(calendar, position);
  const Date first = calendar.ViewMonth();
  for (int number = 0; number < Date::DaysInMonth(first.Year(), first.Month()); ++number) {
    const Date day = Date::FromDayNumber(first.DayNumber() + number);
    const std::optional<Rect> place = calendar.DayRectangle(day);
    if (!place || !place->Contains(local)) continue;
    const bool reaches =
        Robot(form).ReachOf(calendar, OnForm(calendar, MiddleOf(calendar.LocalBounds()))).obstacle ==
        Robot::Obstacle::kNone;
    const bool is_free = !calendar.TodayLine().Contains(local) &&
                         !calendar.PreviousButton().Contains(local) && !calendar.NextButton().Contains(local);
    if (!reaches || !is_free || day < calendar.MinDate() || day > calendar.MaxDate()) return std::nullopt;
    return NamedClick{"dia " + ValueText(day), "", OnForm(calendar, MiddleOf(*place)), 0};
  }
  return std::nullopt;
}

std::optional<NamedClick> OnTitleBar(Form& form, const Barra& bar, Point position) {
  const Point local = LocalTo(bar, position);
  for (const bool closes : {true, false}) {
    const Rect button = closes ? bar.CloseButton() : bar.MinimizeButton();
    if (!button.Contains(local)) continue;
    const std::string line = "clic " + NameOf(form, bar) + (closes ? " cerrar" : " minimizar");
    return NamedClick{line, "", OnForm(bar, MiddleOf(button)), 0};
  }
  return std::nullopt;
}

std::optional<NamedClick> OnPartOf(Form& form, Control& control, Point position) {
  switch (control.Kind()) {
    case ControlKind::kMSFlexGrid:
      return OnCell(form, static_cast<MSFlexGrid&>(control), position);
    case ControlKind::kTextBox:
      return OnLetter(form, static_cast<TextBox&>(control), position);
    case ControlKind::kMonthView:
      return OnDay(form, static_cast<MonthView&>(control), position);
    case ControlKind::kBarra:
      return OnTitleBar(form, static_cast<Barra&>(control), position);
    case ControlKind::kLabel:
    case ControlKind::kCommandButton:
    case ControlKind::kBoton:
    case ControlKind::kPictureBox:
      return Named(NameOf(form, control), OnForm(control, MiddleOf(control.LocalBounds())));
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<NamedClick> ClickAt(Form& form, Control& control, Point position) {
  if (!control.IsOperable()) return std::nullopt;
  std::optional<NamedClick> click = OnPartOf(form, control, position);
  if (!click || form.ControlAt(click->place) != &control) return std::nullopt;
  return click;
}

bool EndsClick(const NamedClick& click, const Control& control, Point position) {
  const Rect bounds = control.Bounds();
  if (!bounds.Contains(position) || !bounds.Contains(click.place)) return false;
  if (control.Kind() != ControlKind::kBarra) return true;
  const auto& bar = static_cast<const Barra&>(control);
  const Point local = LocalTo(control, position);
  const Point pressed = LocalTo(control, click.place);
  for (const Rect& button : {bar.CloseButton(), bar.MinimizeButton()}) {
    if (button.Contains(pressed)) return button.Contains(local);
  }
  return false;
}

bool IsStillClick(const NamedClick& click, const Control& control, Point pressed, Point position) {
  constexpr double kShaking = 4 * kTwipsPerPixel;
  switch (control.Kind()) {
    case ControlKind::kMSFlexGrid:
      return std::hypot(position.x - pressed.x, position.y - pressed.y) < kShaking;
    case ControlKind::kTextBox:
      return static_cast<const TextBox&>(control).PositionOf(LocalTo(control, position)) == click.letter;
    default:
      return true;
  }
}

}  // namespace orvendal
