#include "tests/faults/working_day.h"

#include <algorithm>
#include <stdexcept>

#include "form/columns.h"
#include "tests/support/screen_report.h"
#include "tests/support/title_bar.h"

namespace orvendal {

using testing_support::PickDay;

namespace {

constexpr int kAnswersOfADay = 40;
constexpr std::int32_t kYes = 6;
constexpr std::int32_t kNo = 7;

}  // namespace

WorkingDay::WorkingDay(Dialect dialect) : screen(dialect) {
  screen.AddCounts(3);
  screen.AddCount("P20", 20, 19, "E2", "2026-11-13");
  for (int i = 0; i < kAnswersOfADay; ++i) {
    screen.library.QueueAnswer(i % 2 == 0 ? kYes : kNo);
    screen.library.QueueEmployee({true, "E1", "Ana"});
    screen.library.QueueProduct(i % 2 == 0 ? "P3" : "");
  }

  Add(Step::kDrops, "call", [this] { Call(); });
  Add(Step::kTypes, "choose the stylist", [this] { screen.ClickCell(1, column::kCode); });
  Add(Step::kTypes, "enter a line by code", [this] { screen.EnterLine("P1", "12"); });
  Add(Step::kTypes, "scan a bar code", [this] { screen.EnterLine("8400000000024", "3,5"); });
  Add(Step::kTypes, "enter a line by description", [this] { screen.EnterLine("Crema f", "4"); });
  Add(Step::kTypes, "type what nothing is found for", [this] { screen.EnterLine("nada", ""); });
  Add(Step::kTypes, "put a quantity right", [this] {
    screen.Key(key::kEscape);
    screen.DoubleClickCell(2, column::kQuantity);
    screen.Type("8");
    screen.Enter();
  });
  Add(Step::kTypes, "walk with the arrows", [this] {
    screen.Key(key::kEscape);
    for (const int arrow : {key::kUp, key::kUp, key::kRight, key::kDown, key::kLeft}) screen.Key(arrow);
  });
  Add(Step::kMaySave, "save", [this] { screen.Click("LblGuardar"); });
  Add(Step::kTypes, "choose the stylist by the button", [this] { screen.Click("CmdEmpl"); });
  Add(Step::kDeletes, "delete a line", [this] {
    screen.ClickCell(1, column::kCode);
    screen.Click("LblBorrar");
  });
  Add(Step::kTypes, "search by the button", [this] {
    screen.ClickCell(static_cast<int>(screen.Codes().size()) + 1, column::kCode);
    screen.Click("LblBuscar");
  });
  Add(Step::kMaySave, "save again", [this] { screen.Click("LblGuardar"); });
  Add(Step::kMaySave, "enter supervisor mode", [this] { screen.Click("LblNuevo"); });
  Add(Step::kMaySave, "change to Friday", [this] { PickDay(screen, Date(2026, 11, 13)); });
  Add(Step::kTypes, "put Friday right", [this] {
    screen.DoubleClickCell(1, column::kQuantity);
    screen.Type("21");
    screen.Enter();
    screen.Key(key::kEscape);
  });
  Add(Step::kMaySave, "change back and save on the way", [this] { PickDay(screen, Date(2026, 11, 16)); });
  Add(Step::kMaySave, "leave supervisor mode", [this] { screen.Click("BtnAnuloSuper"); });
  Add(Step::kTypes, "choose the stylist once more", [this] { screen.ClickCell(1, column::kCode); });
  Add(Step::kTypes, "enter a line in vain", [this] { screen.EnterLine("P4", "1"); });
  Add(Step::kMaySave, "cancel", [this] { screen.Click("LblCancelar"); });
  Add(Step::kMaySave, "close", [this] { testing_support::ClickClose(screen); });
}

void WorkingDay::Call() {
  try {
    screen.Open();
  } catch (const RuntimeError& error) {
    failed_calls_.push_back(error.Description());
  }
}

void WorkingDay::Do(const Step& step) {
  if (!screen.HasForm() && step.name != "call") return;
  try {
    step.act();
  } catch (const std::invalid_argument&) {
    // No hand can do that now: the screen does not offer it.
  }
}

std::vector<std::string> WorkingDay::TakeTold() {
  std::vector<std::string> told = std::exchange(failed_calls_, {});
  for (const RuntimeError& error : screen.host.ReportedErrors()) told.push_back(error.Description());
  screen.host.ForgetErrors();
  for (const ScriptedLibrary::ShownMessage& message : screen.library.TakeMessages()) {
    told.push_back(message.text);
  }
  return told;
}

bool WorkingDay::WasTold(const std::string& description) {
  const std::vector<std::string> told = TakeTold();
  return std::any_of(told.begin(), told.end(),
                     [&](const std::string& text) { return text.find(description) != std::string::npos; });
}

WorkingDay::Counts WorkingDay::StoredCounts() {
  Counts counts;
  SqliteStatement statement(
      *screen.connection,
      "SELECT substr(Fecha, 1, 10), IdProducto || ' ' || replace(StockActual, '.', ',') "
      "FROM HistOrvendalcial WHERE IdSucursal = '01' ORDER BY rowid");
  while (statement.Step()) counts[statement.TextAt(0)].push_back(statement.TextAt(1));
  return counts;
}

std::vector<std::string> WorkingDay::Lines() {
  std::vector<std::string> lines;
  if (!screen.HasForm()) return lines;
  const std::size_t count = screen.Codes().size();
  for (std::size_t row = 1; row <= count; ++row) {
    lines.push_back(screen.Cell(static_cast<int>(row), column::kCode) + " " +
                    screen.Cell(static_cast<int>(row), column::kQuantity));
  }
  return lines;
}

void WorkingDay::StartAfresh() {
  if (screen.HasForm()) screen.form().Unload();
  Call();
  screen.ClickCell(1, column::kCode);
  screen.EnterLine("P30", "3");
  screen.Key(key::kEscape);
  screen.Click("LblGuardar");
}

}  // namespace orvendal
