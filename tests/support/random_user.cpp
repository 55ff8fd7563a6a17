#include "tests/support/random_user.h"

#include <algorithm>
#include <cstdlib>

namespace orvendal {
namespace {

constexpr int kStepsBetweenInspections = 15;
constexpr int kInspectedRows = 14;

}  // namespace

void RandomUser::Work(int steps) {
  SetStage();
  for (int step = 1; step <= steps && !script_.HasEnded(); ++step) {
    LookAround();
    if (!now_.open) {
      Choose({{20, &RandomUser::Call},
              {3, &RandomUser::SetStage},
              {3, &RandomUser::MoveClock},
              {3, &RandomUser::FailStore},
              {4, &RandomUser::ChangeStore},
              {1, &RandomUser::BreakStore}});
    } else if (now_.minimised) {
      Choose({{10, &RandomUser::Call}, {1, &RandomUser::MoveClock}, {1, &RandomUser::ChangeStore}});
    } else {
      const int in_editor = now_.editing ? 1 : 0;
      const int in_grid = 1 - in_editor;
      const int in_mode = now_.supervisor ? 1 : 0;
      const int in_calendar = now_.calendar ? 1 : 0;
      Choose({{14, &RandomUser::CountLine},
              {8 * in_grid, &RandomUser::OpenEditor},
              {14 * in_editor, &RandomUser::TypeInEditor},
              {8 * in_editor, &RandomUser::TypeQuantity},
              {8 * in_editor, &RandomUser::KeyInEditor},
              {4, &RandomUser::RepeatProduct},
              {4, &RandomUser::ClickCell},
              {3, &RandomUser::ClickAnywhere},
              {3, &RandomUser::FocusAnywhere},
              {3, &RandomUser::KeyAnywhere},
              {3 * in_grid, &RandomUser::KeyInGrid},
              {4, &RandomUser::Search},
              {4, &RandomUser::Delete},
              {7, &RandomUser::Save},
              {2, &RandomUser::Cancel},
              {4, &RandomUser::ChangeStylist},
              {4 - 3 * in_mode, &RandomUser::EnterSupervisor},
              {5 * in_mode, &RandomUser::LeaveSupervisor},
              {12 * in_mode, &RandomUser::ChangeDay},
              {6 * in_calendar, &RandomUser::KeyInCalendar},
              {2, &RandomUser::Close},
              {1, &RandomUser::Minimise},
              {1, &RandomUser::Call},
              {2, &RandomUser::FunctionKey},
              {2, &RandomUser::MoveClock},
              {4, &RandomUser::FailStore},
              {3, &RandomUser::ChangeStore},
              {1, &RandomUser::BreakStore}});
    }
    if (step % kStepsBetweenInspections == 0) {
      InspectScreen(script_, kInspectedRows);
      LookAtStore(script_, branch_);
      if (pictures_ && now_.open && script_.Ask("mostrar foco")) {
        script_.Add("captura pantalla" + std::to_string(++picture_count_) + ".png");
      }
    }
  }
  LookAtStore(script_, branch_);
  LookAtWholeStore(script_);
  InspectScreen(script_, kInspectedRows);
  if (random_.Chance(15)) Wrong();
}

void RandomUser::LookAround() {
  now_ = {};
  now_.open = script_.Ask("mostrar foco").has_value();
  if (!now_.open) return;
  const auto is = [this](const char* reference) { return script_.Value(reference) == "True"; };
  const auto number = [this](const char* reference) { return std::atoi(script_.Value(reference).c_str()); };
  now_.minimised = number("Form.WindowState") == 1;
  now_.editing = is("TxtMSF.Visible");
  now_.supervisor = is("LblSupervisor.Visible");
  now_.calendar = is("PicCalendario.Visible");
  now_.row = number("MSFProductos.Row");
  now_.column = number("MSFProductos.Col");
  const std::string lines = script_.Ask("mostrar lineas").value_or("");
  now_.lines = static_cast<int>(std::count(lines.begin(), lines.end(), '\n'));
}

void RandomUser::Choose(const std::vector<Choice>& choices) {
  int all = 0;
  for (const Choice& choice : choices) all += choice.weight;
  int place = random_.Between(1, all);
  for (const Choice& choice : choices) {
    place -= choice.weight;
    if (place > 0) continue;
    (this->*choice.act)();
    return;
  }
}

bool RandomUser::Act(const std::string& line) {
  const int enters = static_cast<int>(std::count(line.begin(), line.end(), '\\'));
  if (!random_.Chance(1)) answers_.TopUp(1 + enters);
  if (!script_.Do(line)) {
    if (!script_.HasEnded()) ++refused_;
    return false;
  }
  ++carried_out_[line.substr(0, line.find(' '))];
  answers_.Count(LookAtScreen(script_));
  return true;
}

}  // namespace orvendal
