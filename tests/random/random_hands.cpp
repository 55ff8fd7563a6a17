#include "tests/random/random_hands.h"

#include <cmath>

#include "form/columns.h"
#include "platform/base/text.h"
#include "tests/support/script_writer.h"

namespace orvendal {
namespace {

constexpr int kSlowestReader = 25;  // milliseconds from key to key

std::string Place(Point place) {
  return "Form " + std::to_string(std::lround(place.x)) + " " + std::to_string(std::lround(place.y));
}

std::string ButtonWord(int button) {
  if (button == mouse_button::kRight) return " derecho";
  if (button == mouse_button::kMiddle) return " central";
  return button == 0 ? " ninguno" : "";
}

std::string ShiftNames(int shift) {
  std::string names;
  if ((shift & shift_mask::kShift) != 0) names += "Mayus+";
  if ((shift & shift_mask::kControl) != 0) names += "Ctrl+";
  if ((shift & shift_mask::kAlt) != 0) names += "Alt+";
  return names;
}

std::string ShiftWord(int shift) {
  std::string names = ShiftNames(shift);
  if (names.empty()) return names;
  names.pop_back();
  return " " + names;
}

Point Middle(const Control& control) {
  const Rect bounds = control.Bounds();
  return {std::round(bounds.left + bounds.width / 2), std::round(bounds.top + bounds.height / 2)};
}

int CodeOf(char32_t letter) {
  constexpr int kOther = 231;
  if (letter == U' ') return key::kSpace;
  if (letter >= U'0' && letter <= U'9') return static_cast<int>(letter);
  if (letter >= U'A' && letter <= U'Z') return static_cast<int>(letter);
  if (letter >= U'a' && letter <= U'z') return static_cast<int>(letter - U'a' + U'A');
  return kOther;
}

// The character that a key stands for besides its code.
char32_t CharacterOf(int code, int shift) {
  if (code == key::kReturn || code == key::kEscape || code == key::kBack) return static_cast<char32_t>(code);
  if ((shift & shift_mask::kControl) != 0 && code >= 'A' && code <= 'Z') {
    return static_cast<char32_t>(code - 'A' + 1);
  }
  return 0;
}

}  // namespace

RandomHands::RandomHands(UserWorld& world, InputScript& script, ScreenWatch& watch, SampleRandom& random)
    : world_(world),
      script_(script),
      watch_(watch),
      random_(random),
      products_(world.Column("SELECT Codigo FROM Productos ORDER BY Codigo")),
      references_(world.Column("SELECT Referencia FROM Referencias ORDER BY Referencia")),
      descriptions_(world.Column("SELECT Descripcion FROM Productos ORDER BY Codigo")),
      branches_(world.Column("SELECT Sucursal FROM Sucursales ORDER BY Sucursal")) {
  world_.on_dialog = [this](Form& dialog) { UseDialog(dialog); };
  world_.on_message = [this](std::int32_t style) { return Answer(style); };
}

void RandomHands::Work(int events) {
  while (events_ < events) {
    const std::shared_ptr<FrmOrvendalciales> screen = Screen();
    if (!screen) {
      Choose({{10, "call", &RandomHands::Call},
              {4, "display", &RandomHands::ChangeDisplay},
              {3, "clock", &RandomHands::ChangeClock}});
    } else if (screen->WindowState() == WindowState::kMinimized) {
      Choose({{10, "call", &RandomHands::Call}, {1, "clock", &RandomHands::ChangeClock}});
    } else {
      const int in_mode = screen->LblSupervisor.Visible() ? 1 : 0;
      Choose({{14, "count line", &RandomHands::CountLine},
              {12, "scan", &RandomHands::Scan},
              {8, "type", &RandomHands::TypeAnything},
              {14, "keys", &RandomHands::PressKeys},
              {8, "press anywhere", &RandomHands::PressAnywhere},
              {8, "press control", &RandomHands::PressControl},
              {8, "press cell", &RandomHands::PressCell},
              {6, "drag", &RandomHands::Drag},
              {6, "wheel", &RandomHands::TurnWheel},
              {4, "hover", &RandomHands::HoverAround},
              {5, "search", &RandomHands::Search},
              {5, "delete", &RandomHands::Delete},
              {4, "save", &RandomHands::Save},
              {1, "cancel", &RandomHands::Cancel},
              {3, "stylist", &RandomHands::ChangeStylist},
              {2, "supervisor", &RandomHands::Supervisor},
              {8 * in_mode, "day", &RandomHands::ChangeDay},
              {1, "close", &RandomHands::Close},
              {1, "minimise", &RandomHands::Minimise},
              {2, "function key", &RandomHands::FunctionKey},
              {3, "paste", &RandomHands::Paste},
              {1, "call", &RandomHands::Call},
              {1, "clock", &RandomHands::ChangeClock}});
    }
  }
}

void RandomHands::Choose(const std::vector<Choice>& choices) {
  int all = 0;
  for (const Choice& choice : choices) all += choice.weight;
  int place = random_.Between(1, all);
  for (const Choice& choice : choices) {
    place -= choice.weight;
    if (place > 0) continue;
    ++done_[choice.name];
    (this->*choice.act)();
    return;
  }
}

bool RandomHands::Event(const std::string& line, const std::function<void(FrmOrvendalciales& screen)>& send,
                        bool moves_only) {
  const std::shared_ptr<FrmOrvendalciales> screen = Screen();
  if (!screen) return false;
  script_.Begin(line);
  ++events_;
  send(*screen);
  watch_.Look(moves_only);
  return Screen() != nullptr;
}

// What hands are made of.

bool RandomHands::Press(Point place, int button, int shift, bool is_double) {
  return Event(
      (is_double ? "raton doble " : "raton pulsa ") + Place(place) + ButtonWord(button) + ShiftWord(shift),
      [&](FrmOrvendalciales& screen) { screen.MousePress(place, button, shift, is_double); });
}

bool RandomHands::Move(Point place, int buttons) {
  return Event(
      "raton mueve " + Place(place) + ButtonWord(buttons),
      [&](FrmOrvendalciales& screen) { screen.MouseMove(place, buttons, 0); }, buttons == 0);
}

bool RandomHands::Release(Point place, int button, int shift) {
  return Event("raton suelta " + Place(place) + ButtonWord(button) + ShiftWord(shift),
               [&](FrmOrvendalciales& screen) { screen.MouseRelease(place, button, shift); });
}

bool RandomHands::Turn(Point place, double lines) {
  std::ostringstream line;
  line << "rueda " << Place(place) << ' ' << lines;
  return Event(line.str(), [&](FrmOrvendalciales& screen) { screen.MouseWheel(place, lines); });
}

bool RandomHands::Key(const KeyName& key, int shift, int milliseconds) {
  const std::string line = "tecla " + ShiftNames(shift) + key.name + " " + std::to_string(milliseconds);
  return Event(line, [&](FrmOrvendalciales& screen) {
    world_.host.InputTime(world_.host.InputTime() + static_cast<std::uint64_t>(milliseconds));
    DirectInput().Key(screen, key.code, shift, CharacterOf(key.code, shift));
  });
}

bool RandomHands::Letter(char32_t letter, int milliseconds) {
  const std::string line = "teclas " + Quoted(FromCharacter(letter)) + " " + std::to_string(milliseconds);
  return Event(line, [&](FrmOrvendalciales& screen) {
    world_.host.InputTime(world_.host.InputTime() + static_cast<std::uint64_t>(milliseconds));
    DirectInput().Key(screen, CodeOf(letter), 0, letter);
  });
}

bool RandomHands::Type(const std::string& text, bool by_reader) {
  const int between = random_.Between(0, kSlowestReader);
  bool is_first = true;
  for (std::size_t offset = 0; offset < text.size();) {
    const char32_t letter = NextCharacter(text, offset);
    const int milliseconds = is_first || !by_reader ? Pause() : between;
    is_first = false;
    if (letter == U'\n' ? !Key({"Enter", key::kReturn}, 0, milliseconds) : !Letter(letter, milliseconds)) {
      return false;
    }
  }
  return true;
}

bool RandomHands::ClickAt(Point place, bool is_double) {
  if (!Press(place, mouse_button::kLeft, 0, false) || !Release(place, mouse_button::kLeft, 0)) return false;
  if (!is_double) return true;
  return Press(place, mouse_button::kLeft, 0, true) && Release(place, mouse_button::kLeft, 0);
}

bool RandomHands::ClickOn(const Control& control) {
  return ClickAt(Middle(control));
}

bool RandomHands::ClickCell(int row, int column, bool is_double) {
  const std::shared_ptr<FrmOrvendalciales> screen = Screen();
  if (!screen) return false;
  const MSFlexGrid& grid = screen->MSFProductos;
  const Rect bounds = grid.Bounds();
  for (int turns = 0; turns < 40 && row < grid.Rows() && grid.CellRectangle(row, column).IsEmpty(); ++turns) {
    const int top = grid.TopRow();
    if (!Turn({std::round(bounds.left + 60), std::round(bounds.top + 60)}, row < top ? -1 : 1)) return false;
    if (grid.TopRow() == top) break;
  }
  const Rect cell = row < grid.Rows() ? grid.CellRectangle(row, column) : Rect{};
  if (cell.IsEmpty()) return true;
  return ClickAt({std::round(bounds.left + cell.left + cell.width / 2),
                  std::round(bounds.top + cell.top + cell.height / 2)},
                 is_double);
}

Point RandomHands::Anywhere(const Control& control) {
  const Rect bounds = control.Bounds();
  const auto within = [this](double from, double length) {
    return std::round(from) + random_.Between(-15, std::max(0, static_cast<int>(length)) + 15);
  };
  return {within(bounds.left, bounds.width), within(bounds.top, bounds.height)};
}

Point RandomHands::AnywhereOnForm() {
  const std::shared_ptr<FrmOrvendalciales> screen = Screen();
  return {static_cast<double>(random_.Between(-300, static_cast<int>(screen->Width()) + 300)),
          static_cast<double>(random_.Between(-300, static_cast<int>(screen->Height()) + 300))};
}

const RandomHands::KeyName& RandomHands::AnyKey() {
  static constexpr KeyName kKeys[] = {
      {"Enter", key::kReturn},   {"Esc", key::kEscape},    {"Tab", key::kTab},
      {"Retroceso", key::kBack}, {"Supr", key::kDelete},   {"Insertar", key::kInsert},
      {"Izquierda", key::kLeft}, {"Derecha", key::kRight}, {"Arriba", key::kUp},
      {"Abajo", key::kDown},     {"Arriba", key::kUp},     {"Abajo", key::kDown},
      {"Inicio", key::kHome},    {"Fin", key::kEnd},       {"RePag", key::kPageUp},
      {"AvPag", key::kPageDown}, {"F5", key::kF1 + 4},     {"Enter", key::kReturn},
      {"Tab", key::kTab}};
  return kKeys[random_.Below(std::size(kKeys))];
}

int RandomHands::AnyShift() {
  return random_.Chance(80) ? 0 : random_.Between(1, 7);
}

int RandomHands::Lines() const {
  const std::shared_ptr<FrmOrvendalciales> screen = Screen();
  if (!screen) return 0;
  int row = 1;
  while (row < screen->MSFProductos.Rows() && !screen->MSFProductos.TextMatrix(row, column::kCode).empty()) {
    ++row;
  }
  return row - 1;
}

std::string RandomHands::SomeProduct() {
  static constexpr const char* kOdd[] = {"",    "NADA", "O'Neill", "L%",  "_",
                                         "lac", "Laca", "[A-Z]*",  "ñÇ€", "a b"};
  const int kind = random_.Between(1, 100);
  if (kind <= 50) return products_[random_.Below(products_.size())];
  if (kind <= 70) return references_[random_.Below(references_.size())];
  if (kind <= 78) return descriptions_[random_.Below(descriptions_.size())];
  if (kind <= 84) return descriptions_[random_.Below(descriptions_.size())].substr(0, 4);
  if (kind <= 92 && Lines() > 0) {
    return Screen()->MSFProductos.TextMatrix(random_.Between(1, Lines()), column::kCode);
  }
  return OneOf(kOdd);
}

std::string RandomHands::SomeQuantity() {
  static constexpr const char* kOdd[] = {"",   "-3",  "1,5", "1.5",         "0,0",   "12345678", "abc",
                                         ",5", "--4", "7-",  "9999999,999", "1,2,3", "5,"};
  return random_.Chance(75) ? std::to_string(random_.Between(0, 60)) : OneOf(kOdd);
}

// What they do.

void RandomHands::CountLine() {
  if (!ClickCell(Lines() + 1, random_.Chance(85) ? column::kCode : column::kDescription, true)) return;
  if (!Type(SomeProduct() + "\n", random_.Chance(50))) return;
  Type(SomeQuantity() + (random_.Chance(85) ? "\n" : ""), false);
}

void RandomHands::Scan() {
  for (int scans = random_.Between(1, 4); scans > 0; --scans) {
    const std::string text =
        random_.Chance(80) ? references_[random_.Below(references_.size())] : SomeProduct();
    if (!Type(text + "\n", true)) return;
    if (random_.Chance(60) && !Type(SomeQuantity() + "\n", random_.Chance(30))) return;
  }
}

void RandomHands::TypeAnything() {
  Type(random_.Chance(50) ? SomeProduct() : SomeQuantity(), random_.Chance(30));
  if (random_.Chance(60)) Enter();
}

void RandomHands::PressKeys() {
  for (int keys = random_.Between(1, 6); keys > 0; --keys) {
    if (!Key(AnyKey(), AnyShift(), random_.Chance(20) ? random_.Between(0, 40) : Pause())) return;
  }
}

void RandomHands::PressAnywhere() {
  const Point place = AnywhereOnForm();
  static constexpr int kButtons[] = {mouse_button::kLeft, mouse_button::kLeft, mouse_button::kLeft,
                                     mouse_button::kRight, mouse_button::kMiddle};
  const int button = kButtons[random_.Below(std::size(kButtons))];
  const int shift = AnyShift();
  if (!Press(place, button, shift, random_.Chance(15))) return;
  if (random_.Chance(90)) Release(place, button, shift);  // else the release is lost
}

void RandomHands::PressControl() {
  const std::vector<Control*>& controls = Screen()->Controls();
  const Control& control = *controls[random_.Below(controls.size())];
  ClickAt(random_.Chance(50) ? Middle(control) : Anywhere(control), random_.Chance(25));
}

void RandomHands::PressCell() {
  ClickCell(random_.Between(0, Lines() + 3), random_.Between(0, 5), random_.Chance(40));
}

void RandomHands::Drag() {
  const std::shared_ptr<FrmOrvendalciales> screen = Screen();
  const std::vector<Control*>& controls = screen->Controls();
  const Control& control = random_.Chance(60) ? static_cast<const Control&>(screen->MSFProductos)
                                              : *controls[random_.Below(controls.size())];
  const Point from = Anywhere(control);
  if (!Press(from, mouse_button::kLeft, AnyShift(), false)) return;
  Point at = from;
  for (int moves = random_.Between(1, 5); moves > 0; --moves) {
    at = random_.Chance(70) ? Anywhere(control) : AnywhereOnForm();
    if (!Move(at, mouse_button::kLeft)) return;
  }
  if (random_.Chance(10) && !Key(AnyKey(), 0, Pause())) return;
  Release(at, mouse_button::kLeft, 0);
}

void RandomHands::TurnWheel() {
  static constexpr double kLines[] = {3, -3, 1, -1, 0.5, -0.25, 30, -30};
  const Point place = random_.Chance(70) ? Anywhere(Screen()->MSFProductos) : AnywhereOnForm();
  for (int turns = random_.Between(1, 3); turns > 0; --turns) {
    if (!Turn(place, kLines[random_.Below(std::size(kLines))])) return;
  }
}

void RandomHands::HoverAround() {
  for (int moves = random_.Between(1, 4); moves > 0; --moves) {
    if (!Move(AnywhereOnForm(), 0)) return;
  }
}

void RandomHands::Search() {
  if (random_.Chance(50) && !ClickCell(random_.Between(1, Lines() + 1), random_.Between(0, 3), true)) return;
  if (Screen()) ClickOn(Screen()->LblBuscar_1);
}

void RandomHands::Delete() {
  if (random_.Chance(60) &&
      !ClickCell(random_.Between(1, Lines() + 1), random_.Between(0, 3), random_.Chance(30))) {
    return;
  }
  if (Screen()) ClickOn(Screen()->LblBorrar_1);
}

void RandomHands::Save() {
  ClickOn(Screen()->LblGuardar_1);
}

void RandomHands::Cancel() {
  ClickOn(Screen()->LblCancelar_1);
}

void RandomHands::ChangeStylist() {
  if (random_.Chance(50)) {
    ClickOn(Screen()->CmdEmpl);
  } else {
    ClickOn(Screen()->TxtEmpleado);
  }
}

void RandomHands::Supervisor() {
  if (Screen()->LblSupervisor.Visible()) {
    ClickOn(Screen()->BtnAnuloSuper);
  } else {
    ClickOn(Screen()->LblNuevo_1);
  }
}

void RandomHands::ChangeDay() {
  if (!Screen()->PicCalendario.Visible() && !ClickOn(Screen()->MkFecha)) return;
  const std::shared_ptr<FrmOrvendalciales> screen = Screen();
  const MonthView& calendar = screen->Calendario;
  if (!calendar.IsShown()) return;
  const Rect bounds = calendar.Bounds();
  const Date day(2026, random_.Chance(90) ? 11 : 10, random_.Between(1, 30));
  const std::optional<Rect> place = calendar.DayRectangle(day);
  if (!place) {
    const Rect button = calendar.PreviousButton();
    ClickAt({std::round(bounds.left + button.left + button.width / 2),
             std::round(bounds.top + button.top + button.height / 2)});
    return;
  }
  if (!ClickAt({std::round(bounds.left + place->left + place->width / 2),
                std::round(bounds.top + place->top + place->height / 2)},
               random_.Chance(20))) {
    return;
  }
  if (random_.Chance(50)) Key({"Esc", key::kEscape}, 0, Pause());
}

void RandomHands::Close() {
  if (random_.Chance(30)) {
    Event("cerrar", [](FrmOrvendalciales& screen) { screen.CloseRequest(); });
    return;
  }
  const Rect bounds = Screen()->Barra1.Bounds();
  const Rect button = Screen()->Barra1.CloseButton();
  ClickAt({std::round(bounds.left + button.left + button.width / 2),
           std::round(bounds.top + button.top + button.height / 2)});
}

void RandomHands::Minimise() {
  const Rect bounds = Screen()->Barra1.Bounds();
  const Rect button = Screen()->Barra1.MinimizeButton();
  ClickAt({std::round(bounds.left + button.left + button.width / 2),
           std::round(bounds.top + button.top + button.height / 2)});
}

void RandomHands::FunctionKey() {
  Key(random_.Chance(50) ? KeyName{"F1", key::kF1} : KeyName{"F2", key::kF2}, 0, Pause());
}

void RandomHands::Paste() {
  const std::string text = random_.Chance(50) ? SomeProduct() : SomeQuantity();
  script_.Begin("portapapeles " + Quoted(text));
  world_.host.ClipboardText(text);
  static constexpr KeyName kLetters[] = {{"V", 'V'}, {"V", 'V'}, {"C", 'C'},
                                         {"X", 'X'}, {"Z", 'Z'}, {"A", 'A'}};
  for (int keys = random_.Between(1, 3); keys > 0; --keys) {
    if (!Key(kLetters[random_.Below(std::size(kLetters))], shift_mask::kControl, Pause())) return;
  }
}

void RandomHands::Call() {
  const std::string branch = random_.Chance(60) ? "01" : branches_[random_.Below(branches_.size())];
  script_.Begin("orvendal " + Quoted(branch) + " caja1 turno1");
  ++events_;
  world_.Call(branch, "caja1", "turno1");
  watch_.Look(false);
}

void RandomHands::ChangeDisplay() {
  static constexpr int kSizes[][2] = {{1024, 768},  {800, 600},  {1280, 1024},
                                      {1920, 1080}, {1366, 768}, {640, 480}};
  const auto& size = kSizes[random_.Below(std::size(kSizes))];
  script_.Begin("pantalla " + std::to_string(size[0]) + " " + std::to_string(size[1]));
  world_.host.SetScreen(size[0], size[1]);
}

void RandomHands::ChangeClock() {
  const int day = random_.Between(16, 18);
  const int hour = random_.Between(8, 20);
  script_.Begin("reloj 2026-11-" + std::to_string(day) + " " + (hour < 10 ? "0" : "") + std::to_string(hour) +
                ":15:00");
  world_.clock.Set(Date(2026, 11, day, hour, 15, 0));
}

// In dialogs.

void RandomHands::UseDialog(Form& dialog) {
  if (++dialogs_up_ < 3) {
    for (int events = random_.Between(1, 12); events > 0 && dialog.Visible(); --events) UseDialogOnce(dialog);
  }
  --dialogs_up_;
}

void RandomHands::UseDialogOnce(Form& dialog) {
  const ObjectRef alive = dialog.shared_from_this();
  const auto anywhere = [&] {
    return Point{static_cast<double>(random_.Between(-100, static_cast<int>(dialog.Width()) + 100)),
                 static_cast<double>(random_.Between(-100, static_cast<int>(dialog.Height()) + 100))};
  };
  const std::vector<Control*>& controls = dialog.Controls();
  const auto on_control = [&] { return Anywhere(*controls[random_.Below(controls.size())]); };
  const auto wait = [&](int milliseconds) {
    world_.host.InputTime(world_.host.InputTime() + static_cast<std::uint64_t>(milliseconds));
  };
  const int kind = random_.Between(1, 100);
  if (kind <= 35) {
    const KeyName& key = AnyKey();
    const int shift = AnyShift();
    wait(Pause());
    DirectInput().Key(dialog, key.code, shift, CharacterOf(key.code, shift));
  } else if (kind <= 55) {
    const bool by_reader = random_.Chance(50);
    const std::string text = SomeProduct();
    for (std::size_t offset = 0; offset < text.size() && dialog.Visible();) {
      const char32_t letter = NextCharacter(text, offset);
      wait(by_reader ? random_.Between(0, kSlowestReader) : Pause());
      DirectInput().Key(dialog, CodeOf(letter), 0, letter);
    }
    if (by_reader && dialog.Visible()) DirectInput().Key(dialog, key::kReturn, 0, U'\r');
  } else if (kind <= 85) {
    const Point place = random_.Chance(70) ? on_control() : anywhere();
    const bool twice = random_.Chance(30);
    for (int presses = twice ? 2 : 1; presses > 0 && dialog.Visible(); --presses) {
      dialog.MousePress(place, mouse_button::kLeft, 0, twice && presses == 1);
      if (dialog.Visible()) dialog.MouseRelease(place, mouse_button::kLeft, 0);
    }
  } else if (kind <= 92) {
    dialog.MouseWheel(on_control(), random_.Chance(50) ? 3 : -3);
  } else if (kind <= 96) {
    world_.host.PassTime(100);
  } else if (const std::shared_ptr<FrmOrvendalciales> screen = Screen()) {
    // The screen behind it takes nothing meanwhile.
    screen->MousePress(AnywhereOnForm(), mouse_button::kLeft, 0, false);
    DirectInput().Key(*screen, key::kReturn, 0, U'\r');
  }
  ++events_;
  if (dialog.Visible()) watch_.LookAtDialog(dialog);
}

std::int32_t RandomHands::Answer(std::int32_t style) {
  constexpr std::int32_t kButtons = 0xF;
  constexpr std::int32_t kYesNoCancel = 3;
  if ((style & kButtons) != kYesNoCancel) return message::kOk;
  static constexpr std::int32_t kAnswers[] = {message::kYes, message::kNo, message::kCancel};
  return kAnswers[random_.Below(std::size(kAnswers))];
}

}  // namespace orvendal
