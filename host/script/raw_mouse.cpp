#include "host/script/raw_mouse.h"

#include <cmath>
#include <utility>

#include "host/script/key_names.h"
#include "host/script/parser.h"
#include "host/script/script_values.h"
#include "host/script/show.h"

namespace orvendal {
namespace {

constexpr const char* kForm = "Form";
constexpr std::pair<const char*, int> kButtons[] = {{"izquierdo", mouse_button::kLeft},
                                                    {"derecho", mouse_button::kRight},
                                                    {"central", mouse_button::kMiddle}};

std::string NameOfButtons(int buttons) {
  std::string name;
  for (const auto& [button, mask] : kButtons) {
    if ((buttons & mask) != 0) name += (name.empty() ? "" : "+") + std::string(button);
  }
  return name.empty() ? "ninguno" : name;
}

std::optional<int> ButtonsNamed(std::string_view name) {
  if (name == "ninguno") return 0;
  int buttons = 0;
  while (!name.empty()) {
    const std::size_t end = std::min(name.find('+'), name.size());
    bool found = false;
    for (const auto& [button, mask] : kButtons) {
      if (name.substr(0, end) != button) continue;
      buttons |= mask;
      found = true;
    }
    if (!found) return std::nullopt;
    name.remove_prefix(std::min(end + 1, name.size()));
  }
  return buttons;
}

Point PlaceOnForm(const Form& form, const std::vector<std::string>& words) {
  const Point local{DecimalNumber(words[1]), DecimalNumber(words[2])};
  if (words[0] == kForm) return local;
  const Rect bounds = ControlNamed(form, words[0]).Bounds();
  return {bounds.left + local.x, bounds.top + local.y};
}

std::string PlaceWords(Point place, const Control* over) {
  const Rect bounds = over == nullptr ? Rect{} : over->Bounds();
  return (over == nullptr ? std::string(kForm) : over->FullName()) + " " + NumberWord(place.x - bounds.left) +
         " " + NumberWord(place.y - bounds.top);
}

}  // namespace

void MoveRawMouse(Form& form, const std::vector<std::string>& words) {
  const ObjectRef alive = form.shared_from_this();
  const ScriptStop wrong(std::string("se escribe: ") + kRawMouseUsage);
  if (words.size() < 4) throw wrong;
  const std::string& what = words[0];
  const Point place = PlaceOnForm(form, {words.begin() + 1, words.end()});
  int button = mouse_button::kLeft;
  int shift = 0;
  for (std::size_t i = 4; i < words.size(); ++i) {
    if (const std::optional<int> buttons = ButtonsNamed(words[i])) {
      button = *buttons;
    } else if (const std::optional<int> modifiers = ModifiersNamed(words[i])) {
      shift = *modifiers;
    } else {
      throw wrong;
    }
  }
  if (what == "pulsa" || what == "doble") {
    form.MousePress(place, button, shift, what == "doble");
  } else if (what == "mueve") {
    form.MouseMove(place, button, shift);
  } else if (what == "suelta") {
    form.MouseRelease(place, button, shift);
  } else {
    throw wrong;
  }
}

void TurnRawWheel(Form& form, const std::vector<std::string>& words) {
  const ObjectRef alive = form.shared_from_this();
  const Point place = PlaceOnForm(form, words);
  constexpr double kMostLines = 100'000;
  constexpr double kUsualLines = 3;
  const double lines = DecimalNumber(words[3]);
  const double of_a_notch = words.size() == 5 ? DecimalNumber(words[4]) : kUsualLines;
  if (std::abs(lines) > kMostLines || of_a_notch < 1 || of_a_notch > kMostLines) {
    throw ScriptStop(std::string("se escribe: ") + kWheelUsage);
  }
  form.MouseWheel(place, lines, of_a_notch);
}

std::string RawMouseLine(const InputEvent& event, const Control* over) {
  const char* what = event.is_second ? "doble" : "pulsa";
  if (event.kind == InputEvent::Kind::kMove) what = "mueve";
  if (event.kind == InputEvent::Kind::kRelease) what = "suelta";
  std::string line = "raton " + std::string(what) + " " + PlaceWords(event.position, over);
  if (event.button != mouse_button::kLeft) line += " " + NameOfButtons(event.button);
  if (event.shift != 0) line += " " + NameOfModifiers(event.shift);
  return line;
}

std::string RawWheelLine(const InputEvent& event, const Control* over) {
  std::string line = "rueda " + PlaceWords(event.position, over) + " " + NumberWord(event.lines);
  constexpr double kUsualLines = 3;
  if (event.lines_of_a_notch != kUsualLines) line += " " + NumberWord(event.lines_of_a_notch);
  return line;
}

}  // namespace orvendal
