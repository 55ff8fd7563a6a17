#include "host/script/commands.h"

#include <algorithm>
#include <map>

#include "host/script/day_lines.h"
#include "host/script/parser.h"
#include "host/script/picture_place.h"
#include "host/script/screen_state.h"
#include "host/script/script_values.h"
#include "host/script/show.h"
#include "host/text/printed_text.h"

namespace orvendal {
namespace {

constexpr int kMostPixels = 16384;

std::string JoinedRow(SqliteStatement& statement) {
  std::string row;
  for (int column = 0; column < statement.ColumnCount(); ++column) {
    if (column > 0) row += '\t';
    row += PrintedText(statement.TextAt(column));
  }
  return row;
}

}  // namespace

const std::vector<ScriptCommands::Command>& ScriptCommands::Commands() {
  static const std::vector<Command> commands = {
      {"reloj", "reloj 2026-11-16 10:30:00 [tras LECTURAS]", 1, 4, &ScriptCommands::SetClock},
      {"pantalla", "pantalla ANCHO ALTO", 2, 2, &ScriptCommands::SetDisplay},
      {"base", "base ANCHO ALTO", 2, 2, &ScriptCommands::SetBase},
      {"sql", "sql \"...\"", 1, 1, &ScriptCommands::RunSql},
      {"orvendal", "orvendal SUC PUESTO TURNO", 3, 3, &ScriptCommands::Call},
      {"empleado", "empleado CODIGO [\"Nombre\"] o empleado cancelar", 1, 2, &ScriptCommands::QueueEmployee},
      {"buscador", "buscador CODIGO o buscador cancelar", 1, 1, &ScriptCommands::QueueProduct},
      {"respuesta", "respuesta aceptar|si|no|cancelar", 1, 1, &ScriptCommands::QueueAnswer},
      {"puesto", "puesto reconectar|cerrar", 1, 1, &ScriptCommands::QueuePanel},
      {"sesion", "sesion SUC PUESTO TURNO o sesion cancelar", 1, 3, &ScriptCommands::QueueSession},
      {"fallo", "fallo update|open N NUMERO \"texto\"", 4, 4, &ScriptCommands::Fail},
      {"mostrar", "mostrar lineas|foto|foco|mensajes|sentencias|biblioteca|CONTROL.PROPIEDAD", 1, 1,
       &ScriptCommands::Show},
      {"espera", "espera CONTROL.PROPIEDAD \"valor\"", 2, 2, &ScriptCommands::Expect},
      {"captura", "captura FICHERO.png", 1, 1, &ScriptCommands::TakePicture},
  };
  return commands;
}

ScriptCommands::ScriptCommands(const Options& options, std::ostream& output, SavePicture save_picture,
                               std::filesystem::path folder, const MakeScriptWindows& make_windows,
                               const WrapScriptLibrary& wrap_library)
    : output_(output),
      save_picture_(std::move(save_picture)),
      folder_(std::move(folder)),
      world_(options, make_windows, wrap_library) {
  world_.windows->Host().Replay(&desktop_);
  world_.windows->OnReport([this](const RuntimeError& error) { PrintError(error); });
}

void ScriptCommands::Execute(const std::vector<std::string>& words) {
  if (words.empty() || actions_.Execute(words)) return;
  const std::shared_ptr<FrmOrvendalciales> open_screen = world_.Screen();
  if (open_screen && PutScreenState(*open_screen, world_.Session(), words)) return;
  for (const Command& command : Commands()) {
    if (command.name != words.front()) continue;
    const Words arguments(words.begin() + 1, words.end());
    CheckWords(arguments, command.least, command.most, command.usage);
    (this->*command.run)(arguments);
    return;
  }
  throw ScriptStop("no existe la orden " + words.front());
}

void ScriptCommands::SetClock(const Words& words) {
  Words moment = words;
  int readings = 0;
  if (moment.size() > 2) {
    if (moment[moment.size() - 2] != "tras") throw ScriptStop("se escribe: reloj 2026-11-16 10:30:00 tras 3");
    readings = PositiveNumber(moment.back());
    moment.resize(moment.size() - 2);
  }
  world_.clock.SetAfter(readings, MomentOf(moment.size() == 2 ? moment[0] + " " + moment[1] : moment[0]));
}

void ScriptCommands::CheckNoScreen(const char* command) const {
  if (world_.Screen()) throw ScriptStop(std::string(command) + " va antes de orvendal");
}

void ScriptCommands::SetDisplay(const Words& words) {
  CheckNoScreen("pantalla");
  const int width = PositiveNumber(words[0]);
  const int height = PositiveNumber(words[1]);
  // A larger one only eats the memory, at the latest when it is painted.
  if (std::max(width, height) > kMostPixels) {
    throw ScriptStop("una pantalla tiene como mucho " + std::to_string(kMostPixels) + " píxeles por lado");
  }
  world_.windows->SetScreen(width, height);
}

void ScriptCommands::SetBase(const Words& words) {
  CheckNoScreen("base");
  world_.Context().ancho_base = PositiveNumber(words[0]);
  world_.Context().alto_base = PositiveNumber(words[1]);
}

void ScriptCommands::RunSql(const Words& words) {
  try {
    std::string rest = words[0];
    if (rest.find('\0') != std::string::npos) throw ScriptStop("la sentencia tiene un carácter nulo");
    while (!rest.empty()) {
      SqliteStatement statement(world_.Store(), rest);
      // A row that nobody sees any more is the last one.
      while (statement.HasStatement() && output_ && statement.Step()) Print(JoinedRow(statement));
      rest = statement.Rest();
    }
  } catch (const StoreUnavailable&) {
    throw;
  } catch (const RuntimeError& error) {
    throw ScriptStop("la base de datos no admite la sentencia: " + error.Description());
  }
}

void ScriptCommands::Call(const Words& words) {
  world_.Store();
  try {
    const bool result = world_.Call(words[0], words[1], words[2]);
    Print(std::string("orvendal -> ") + (result ? "True" : "False"));
  } catch (const RuntimeError& error) {
    PrintError(error);
  }
}

void ScriptCommands::QueueEmployee(const Words& words) {
  if (words.size() == 2) {
    world_.Dialogs().QueueEmployee({true, words[0], words[1]});
    return;
  }
  if (words[0] == "cancelar") {
    world_.Dialogs().QueueEmployee({});
    return;
  }
  try {
    SqliteStatement look(world_.Store(), "SELECT Codigo, Nombre FROM Empleados WHERE Codigo = ?1");
    if (!look.Bind(1, words[0]).Step()) throw ScriptStop("no existe el empleado " + words[0]);
    world_.Dialogs().QueueEmployee({true, look.TextAt(0), look.TextAt(1)});
  } catch (const StoreUnavailable&) {
    throw;
  } catch (const RuntimeError& error) {
    throw ScriptStop("no se puede leer el empleado " + words[0] + ": " + error.Description());
  }
}

void ScriptCommands::QueueProduct(const Words& words) {
  world_.Dialogs().QueueProduct(words[0] == "cancelar" ? std::string() : words[0]);
}

void ScriptCommands::QueueAnswer(const Words& words) {
  static const std::map<std::string, std::int32_t> answers = {{"aceptar", message::kOk},
                                                              {"si", message::kYes},
                                                              {"sí", message::kYes},
                                                              {"no", message::kNo},
                                                              {"cancelar", message::kCancel}};
  const auto found = answers.find(words[0]);
  if (found == answers.end()) throw ScriptStop("no existe la respuesta " + words[0]);
  world_.Dialogs().QueueAnswer(found->second);
}

void ScriptCommands::QueuePanel(const Words& words) {
  const bool reconnect = words[0] == "reconectar";
  if (!reconnect && words[0] != "cerrar") throw ScriptStop("se escribe: puesto reconectar|cerrar");
  world_.QueueWorkstationPanel(reconnect);
}

void ScriptCommands::QueueSession(const Words& words) {
  if (words.size() == 3) {
    world_.QueueSessionChange(ScriptWorld::SessionChoice{words[0], words[1], words[2]});
  } else if (words.size() == 1 && words[0] == "cancelar") {
    world_.QueueSessionChange(std::nullopt);
  } else {
    throw ScriptStop("se escribe: sesion SUC PUESTO TURNO o sesion cancelar");
  }
}

void ScriptCommands::Fail(const Words& words) {
  const int number = WholeNumber(words[2]);
  if (words[0] == "biblioteca") {
    world_.Dialogs().FailNext(words[1], RuntimeError(number, words[3]));
    return;
  }
  const int nth = PositiveNumber(words[1]);
  if (words[0] == "update") {
    world_.recordsets.FailUpdate(nth, number, words[3]);
  } else if (words[0] == "open") {
    world_.recordsets.FailOpen(nth, number, words[3]);
  } else {
    throw ScriptStop("se escribe: fallo update|open N NUMERO \"texto\"");
  }
}

void ScriptCommands::Show(const Words& words) {
  const std::string& what = words[0];
  if (what == "lineas") {
    output_ << LinesOf(*Screen(), "MSFProductos");
  } else if (what == "foto") {
    output_ << LinesOf(*Screen(), "MSFProductos1");
  } else if (what == "foco") {
    const Control* focused = Screen()->ActiveControl();
    Print(focused == nullptr ? "ninguno" : focused->FullName());
  } else if (what == "mensajes") {
    PrintMessages();
  } else if (what == "sentencias") {
    PrintStatements();
  } else if (what == "biblioteca") {
    for (const std::string& call : world_.Dialogs().TakeCalls()) Print(PrintedText(call));
  } else {
    Print(what + " = " + PrintedText(PropertyText(*Screen(), world_.Session(), what)));
  }
}

void ScriptCommands::Expect(const Words& words) {
  const std::string value = PropertyText(*Screen(), world_.Session(), words[0]);
  // A text with line breaks may be given as it prints, too.
  if (value == words[1] || PrintedText(value) == words[1]) return;
  throw ScriptStop("se esperaba " + words[0] + " = " + QuotedText(words[1]) + " y es " + QuotedText(value),
                   ScriptStop::kDiffers);
}

void ScriptCommands::TakePicture(const Words& words) {
  const std::shared_ptr<FrmOrvendalciales> screen = Screen();
  const ScriptStop not_written("no se puede escribir la imagen " + words[0]);
  if (!save_picture_) throw not_written;
  try {
    PicturePlace place(words[0], folder_);
    if (!save_picture_(*screen, place.Path())) throw not_written;
    place.Keep();
  } catch (const NoPlaceForPicture& reason) {
    throw ScriptStop(reason.what());
  }
}

std::shared_ptr<FrmOrvendalciales> ScriptCommands::Screen() const {
  std::shared_ptr<FrmOrvendalciales> screen = world_.Screen();
  if (!screen) throw ScriptStop("la pantalla no está abierta");
  return screen;
}

void ScriptCommands::PrintError(const RuntimeError& error) {
  Print("error " + std::to_string(error.Number()) + ": " + PrintedText(error.Description()));
}

void ScriptCommands::PrintMessages() {
  for (const ScriptedLibrary::ShownMessage& shown : world_.Dialogs().TakeMessages()) {
    Print("[" + std::to_string(shown.style) + "] " + QuotedText(shown.title) + " " + QuotedText(shown.text) +
          " -> " + std::to_string(shown.answer));
  }
}

void ScriptCommands::PrintStatements() {
  for (const OpenedStatement& statement : world_.recordsets.TakeStatements()) {
    Print(std::string(statement.IsWriting() ? "escritura " : "lectura ") + PrintedText(statement.text));
  }
}

}  // namespace orvendal
