#include "host/script/script_actions.h"

#include <map>

#include "host/script/key_names.h"
#include "host/script/parser.h"
#include "host/script/raw_mouse.h"
#include "host/script/script_values.h"
#include "host/script/show.h"

namespace orvendal {
namespace {

constexpr std::string_view kCharacter = "car";

bool IsNumber(const std::string& word) {
  return !word.empty() && word.find_first_not_of("0123456789") == std::string::npos;
}

NamedKey KeyOf(const std::string& name) {
  const std::optional<NamedKey> key = KeyNamed(name);
  if (!key) throw ScriptStop("no existe la tecla " + name);
  return *key;
}

// What may follow a key: milliseconds since the key before, and "car" with the code of its character.
struct KeyDetails {
  std::optional<int> milliseconds;
  std::optional<char32_t> character;
};

KeyDetails DetailsOf(const std::vector<std::string>& words) {
  KeyDetails details;
  for (std::size_t i = 1; i < words.size(); ++i) {
    if (words[i].starts_with(kCharacter)) {
      constexpr int kHighestCharacter = 0x10FFFF;
      const int code = WholeNumber(words[i].substr(kCharacter.size()));
      if (code < 0 || code > kHighestCharacter) throw ScriptStop("no existe el carácter " + words[i]);
      details.character = static_cast<char32_t>(code);
    } else {
      details.milliseconds = WholeNumber(words[i]);
    }
  }
  return details;
}

template <typename Meaning>
Meaning MeaningOf(const std::map<std::string, Meaning>& meanings, const std::string& word,
                  const char* usage) {
  const auto found = meanings.find(word);
  if (found == meanings.end()) throw ScriptStop(std::string("se escribe: ") + usage);
  return found->second;
}

constexpr const char* kWindowUsage = "ventana normal|minimizada|maximizada";
constexpr const char* kMenuUsage = "menu cortar|copiar|pegar|todo|nada";

}  // namespace

void CheckWords(const std::vector<std::string>& words, std::size_t least, std::size_t most,
                const char* usage) {
  if (words.size() < least || words.size() > most) throw ScriptStop(std::string("se escribe: ") + usage);
}

std::optional<EditCommand> ScriptDesktop::ChoiceFromMenu() {
  if (choices_.empty()) return std::nullopt;
  const std::optional<EditCommand> choice = choices_.front();
  choices_.pop_front();
  return choice;
}

const std::vector<ScriptActions::Action>& ScriptActions::Actions() {
  static const std::vector<Action> actions = {
      {"clic", "clic CONTROL [FILA COL] o clic Barra1 minimizar|cerrar", 1, 3, &ScriptActions::Click},
      {"dobleclic", "dobleclic CONTROL [FILA COL]", 1, 3, &ScriptActions::DoubleClick},
      {"dia", "dia 2026-11-20", 1, 1, &ScriptActions::ClickDay},
      {"teclas", "teclas \"texto\" [MILISEGUNDOS]", 1, 2, &ScriptActions::Type},
      {"escribe", "escribe \"texto\"", 1, 1, &ScriptActions::Write},
      {"tecla", "tecla NOMBRE [MILISEGUNDOS] [carCODIGO]", 1, 3, &ScriptActions::Key},
      {"baja", "baja TECLA [MILISEGUNDOS] [carCODIGO]", 1, 3, &ScriptActions::KeyDown},
      {"sube", "sube TECLA", 1, 1, &ScriptActions::KeyUp},
      {"foco", "foco CONTROL", 1, 1, &ScriptActions::Focus},
      {"raton", kRawMouseUsage, 4, 6, &ScriptActions::UseMouse},
      {"rueda", kWheelUsage, 4, 5, &ScriptActions::TurnWheel},
      {"cerrar", "cerrar", 0, 0, &ScriptActions::Close},
      {"ventana", kWindowUsage, 1, 1, &ScriptActions::ChangeWindow},
      {"portapapeles", "portapapeles \"texto\"", 1, 1, &ScriptActions::PutOnClipboard},
      {"menu", kMenuUsage, 1, 1, &ScriptActions::QueueMenu},
  };
  return actions;
}

bool ScriptActions::Execute(const std::vector<std::string>& words) {
  for (const Action& action : Actions()) {
    if (words.empty() || action.name != words.front()) continue;
    const Words arguments(words.begin() + 1, words.end());
    CheckWords(arguments, action.least, action.most, action.usage);
    (this->*action.run)(arguments);
    return true;
  }
  return false;
}

// The screen may unload itself in the middle of a gesture; it lives to its end.
void ScriptActions::UseHands(const std::function<void(ScriptHands& hands)>& act) {
  const std::shared_ptr<FrmOrvendalciales> screen = screen_();
  ScriptHands hands(*screen, input_);
  act(hands);
}

void ScriptActions::Click(const Words& words) {
  ClickPlace(words, ScriptHands::Clicks::kOne);
}
void ScriptActions::DoubleClick(const Words& words) {
  ClickPlace(words, ScriptHands::Clicks::kTwo);
}

void ScriptActions::ClickPlace(const Words& words, ScriptHands::Clicks clicks) {
  UseHands([&](ScriptHands& hands) {
    if (words.size() == 1) {
      hands.Click(words[0], clicks);
    } else if (words.size() == 3) {
      hands.ClickCell(words[0], WholeNumber(words[1]), WholeNumber(words[2]), clicks);
    } else if (IsNumber(words[1])) {
      hands.ClickLetter(words[0], WholeNumber(words[1]), clicks);
    } else if (clicks == ScriptHands::Clicks::kOne) {
      hands.ClickButtonOf(words[0], words[1]);
    } else {
      throw ScriptStop("se escribe: dobleclic CONTROL [FILA COL]");
    }
  });
}

void ScriptActions::ClickDay(const Words& words) {
  const Date day = MomentOf(words[0]).DayOnly();
  UseHands([day](ScriptHands& hands) { hands.ClickDay(day); });
}

void ScriptActions::Type(const Words& words) {
  std::optional<int> milliseconds;
  if (words.size() == 2) milliseconds = WholeNumber(words[1]);
  UseHands([&](ScriptHands& hands) { hands.Type(words[0], milliseconds); });
}

void ScriptActions::Write(const Words& words) {
  UseHands([&](ScriptHands& hands) { hands.Write(words[0]); });
}

void ScriptActions::Key(const Words& words) {
  const KeyDetails details = DetailsOf(words);
  UseHands([&](ScriptHands& hands) { hands.Key(words[0], details.milliseconds, details.character); });
}

void ScriptActions::Focus(const Words& words) {
  UseHands([&](ScriptHands& hands) { hands.Focus(words[0]); });
}

void ScriptActions::UseMouse(const Words& words) {
  MoveRawMouse(*screen_(), words);
}

void ScriptActions::TurnWheel(const Words& words) {
  TurnRawWheel(*screen_(), words);
}

void ScriptActions::KeyDown(const Words& words) {
  constexpr int kPause = 500;
  const std::shared_ptr<FrmOrvendalciales> screen = screen_();
  const NamedKey key = KeyOf(words[0]);
  const KeyDetails details = DetailsOf(words);
  WindowHost& host = screen->Host();
  host.InputTime(host.InputTime() + static_cast<std::uint64_t>(details.milliseconds.value_or(kPause)));
  const char32_t by_itself = key.code == key::kSpace ? U' ' : Robot::CharacterOf(key.code, key.shift);
  const char32_t character = details.character.value_or(by_itself);
  screen->KeyPress(key.code, key.shift);
  if (character != 0) screen->Character(character);
}

void ScriptActions::KeyUp(const Words& words) {
  const NamedKey key = KeyOf(words[0]);
  screen_()->KeyRelease(key.code, key.shift);
}

void ScriptActions::Close(const Words&) {
  screen_()->CloseRequest();
}

void ScriptActions::ChangeWindow(const Words& words) {
  static const std::map<std::string, WindowState> states = {{"normal", WindowState::kNormal},
                                                            {"minimizada", WindowState::kMinimized},
                                                            {"maximizada", WindowState::kMaximized}};
  screen_()->WindowState(MeaningOf(states, words[0], kWindowUsage));
}

void ScriptActions::PutOnClipboard(const Words& words) {
  desktop_.Clipboard(words[0]);
}

void ScriptActions::QueueMenu(const Words& words) {
  static const std::map<std::string, std::optional<EditCommand>> choices = {{"cortar", EditCommand::kCut},
                                                                            {"copiar", EditCommand::kCopy},
                                                                            {"pegar", EditCommand::kPaste},
                                                                            {"todo", EditCommand::kSelectAll},
                                                                            {"nada", std::nullopt}};
  desktop_.QueueMenu(MeaningOf(choices, words[0], kMenuUsage));
}

}  // namespace orvendal
