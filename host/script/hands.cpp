#include "host/script/hands.h"

#include "host/script/key_names.h"
#include "host/script/parser.h"
#include "host/script/show.h"
#include "platform/base/text.h"
#include "screen/action_bar.h"

namespace orvendal {
namespace {

// Milliseconds between two keys of a hand, and of a bar-code reader.
constexpr int kPause = 500;
constexpr int kReader = 10;

Point MiddleOf(const Control& control, const Rect& part) {
  const Rect bounds = control.Bounds();
  return {bounds.left + part.left + part.width / 2, bounds.top + part.top + part.height / 2};
}

}  // namespace

void ScriptHands::Click(const std::string& name, Clicks clicks) {
  const Control& control = Usable(name);
  const Point middle = robot_.MiddleOf(control);
  CheckReach(control, middle);
  if (clicks == Clicks::kOne) {
    robot_.ClickAt(middle);
  } else {
    robot_.DoubleClickAt(middle);
  }
}

void ScriptHands::ClickCell(const std::string& name, int row, int column, Clicks clicks) {
  MSFlexGrid& grid = UsableGrid(name);
  const std::string cell = std::to_string(row) + " " + std::to_string(column);
  if (row < 0 || row >= grid.Rows() || column < 0 || column >= grid.Cols()) {
    throw ScriptStop(name + " no tiene la celda " + cell);
  }
  if (grid.ColWidth(column) == 0) {
    throw ScriptStop("la columna " + std::to_string(column) + " de " + name + " está oculta");
  }
  Point position;
  try {
    position = robot_.CellPosition(grid, row, column);
  } catch (const std::invalid_argument&) {
    throw ScriptStop("la celda " + cell + " de " + name + " no se puede ver");
  }
  CheckReach(grid, position);
  if (clicks == Clicks::kOne) {
    robot_.ClickAt(position);
  } else {
    robot_.DoubleClickAt(position);
  }
}

void ScriptHands::ClickButtonOf(const std::string& name, const std::string& button) {
  const Control& control = Usable(name);
  const auto* bar = dynamic_cast<const Barra*>(&control);
  const bool closes = button == "cerrar";
  if (bar == nullptr || (!closes && button != "minimizar")) {
    throw ScriptStop(control.FullName() + " no tiene el botón " + button);
  }
  const Point middle = MiddleOf(*bar, closes ? bar->CloseButton() : bar->MinimizeButton());
  CheckReach(*bar, middle);
  robot_.ClickAt(middle);
}

void ScriptHands::ClickDay(Date day) {
  CheckWindow();
  MonthView& calendar = form_.Calendario;
  if (!calendar.IsShown()) throw ScriptStop("el calendario no está abierto");
  if (day < calendar.MinDate() || day > calendar.MaxDate())
    throw ScriptStop("el calendario no llega a ese día");
  CheckReach(calendar, robot_.MiddleOf(calendar));
  robot_.ClickDay(calendar, day);
}

void ScriptHands::ClickLetter(const std::string& name, int position, Clicks clicks) {
  const Control& control = Usable(name);
  const auto* box = dynamic_cast<const TextBox*>(&control);
  if (box == nullptr) throw ScriptStop(control.FullName() + " no tiene letras");
  const Rect bounds = box->Bounds();
  const Point local = box->PlaceOf(position);
  const Point place{bounds.left + local.x, bounds.top + local.y};
  CheckReach(control, place);
  if (clicks == Clicks::kOne) {
    robot_.ClickAt(place);
  } else {
    robot_.DoubleClickAt(place);
  }
}

void ScriptHands::Type(const std::string& text, std::optional<int> milliseconds) {
  CheckWindow();
  CheckFocus();
  robot_.TypeAfter(milliseconds.value_or(kPause), kReader, text);
}

void ScriptHands::Write(const std::string& text) {
  CheckWindow();
  CheckFocus();
  robot_.TypeAfter(kPause, kPause, text);
}

void ScriptHands::Key(const std::string& name, std::optional<int> milliseconds,
                      std::optional<char32_t> character) {
  const std::optional<NamedKey> key = KeyNamed(name);
  if (!key) throw ScriptStop("no existe la tecla " + name);
  CheckWindow();
  CheckFocus();
  robot_.KeyAfter(milliseconds.value_or(kPause), key->code, key->shift, character);
}

void ScriptHands::Focus(const std::string& name) {
  CheckWindow();
  Control& control = ControlNamed(form_, name);
  if (!control.IsFocusable()) throw ScriptStop(control.FullName() + " no puede tener el foco");
  try {
    control.SetFocus();
  } catch (const RuntimeError& error) {
    form_.Host().ReportError(error);
  }
}

Control& ScriptHands::Usable(const std::string& name) const {
  CheckWindow();
  Control& control = ControlNamed(form_, name);
  if (!control.IsShown()) throw ScriptStop(control.FullName() + " está oculto");
  if (!control.IsOperable()) throw ScriptStop(control.FullName() + " está deshabilitado");
  return control;
}

MSFlexGrid& ScriptHands::UsableGrid(const std::string& name) const {
  Control& control = Usable(name);
  auto* grid = dynamic_cast<MSFlexGrid*>(&control);
  if (grid == nullptr) throw ScriptStop(control.FullName() + " no tiene celdas");
  return *grid;
}

void ScriptHands::CheckReach(const Control& control, Point position) const {
  const Robot::Reach reach = robot_.ReachOf(control, position);
  switch (reach.obstacle) {
    case Robot::Obstacle::kNone:
      return;
    case Robot::Obstacle::kHidden:
      throw ScriptStop(control.FullName() + " está oculto");
    case Robot::Obstacle::kDisabled:
      throw ScriptStop(control.FullName() + " está deshabilitado");
    case Robot::Obstacle::kOutside:
      throw ScriptStop(control.FullName() + " queda fuera de la pantalla");
    case Robot::Obstacle::kCovered:
      if (reach.by != nullptr && BelongToOneButton(control, *reach.by)) return;
      throw ScriptStop(control.FullName() + " está tapado" +
                       (reach.by == nullptr ? std::string() : " por " + reach.by->FullName()));
  }
}

void ScriptHands::CheckWindow() const {
  if (form_.WindowState() == WindowState::kMinimized) throw ScriptStop("la pantalla está minimizada");
}

void ScriptHands::CheckFocus() const {
  if (form_.ActiveControl() == nullptr) throw ScriptStop("ningún control tiene el foco");
}

}  // namespace orvendal
