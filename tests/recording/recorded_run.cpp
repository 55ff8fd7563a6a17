#include "tests/recording/recorded_run.h"

#include <set>

#include "adapters/headless/headless_host.h"
#include "adapters/sqlite/sqlite_store.h"
#include "host/script/parser.h"
#include "host/script/screen_state.h"
#include "host/text/printed_text.h"

namespace orvendal::testing_support {
namespace {

std::string FirstWord(const std::string& line) {
  return line.substr(0, line.find(' '));
}

// Not done by the user at the screen, and said in the record as it is said in the script.
bool IsOfTheWorld(const std::string& command) {
  static const std::set<std::string> commands = {"sql", "fallo", "pantalla", "base"};
  return commands.contains(command);
}

bool OnlyLooks(const std::string& command) {
  static const std::set<std::string> commands = {"mostrar", "espera", "captura", "#", ""};
  return commands.contains(command);
}

}  // namespace

RecordedRun::RecordedRun(Options options, const std::string& store, ScriptSink* kept)
    : options_(std::move(options)) {
  options_.store = store;
  const MakeScriptWindows make_windows = [this](const Region& region, Clock& clock) {
    clock_ = std::make_unique<RecordedClock>(clock);
    return MakeHeadlessWindows(region, *clock_);
  };
  const WrapScriptLibrary wrap_library = [&](Library& inner, WindowHost& host, Clock&) {
    auto wrapped = std::make_unique<RecordedLibrary>(inner, host);
    library_ = wrapped.get();
    return wrapped;
  };
  commands_ = std::make_unique<ScriptCommands>(options_, output_, nullptr, "", make_windows, wrap_library);
  ScriptWorld& world = commands_->World();
  recorder_ = std::make_unique<Recorder>(world.windows->Host(), *clock_);
  recorder_->WriteTo(record_, {});
  if (kept != nullptr) {
    Recorder::Use use;
    use.begin_anew = [this](FrmOrvendalciales& screen) {
      DatosComunes& session = commands_->World().Session();
      if (fresh_.empty()) fresh_ = ValuesOf(screen, session);
      return ScreenStateLines(screen, session, fresh_);
    };
    recorder_->WriteTo(*kept, use);
  }
  recorder_->FindScreenBy([&world] { return world.Screen(); });
  library_->Record(recorder_.get());
  world.Store();
  auto reopened = std::make_shared<int>(0);
  world.Context().reopen_store = [reopen = world.Context().reopen_store, reopened] {
    ++*reopened;
    return reopen();
  };
  library_->times_reopened = [reopened] { return *reopened; };
}

RecordedRun::~RecordedRun() {
  recorder_.reset();  // it looks on at what goes next
}

bool RecordedRun::Do(const std::string& line) {
  const std::string command = FirstWord(line);
  if (OnlyLooks(command)) return true;
  try {
    const std::vector<std::string> words = ParseScriptLine(line);
    if (command == "foco" && !CanHaveFocus(words[1])) return false;
    if (command == "foco" || command == "orvendal") {
      recorder_->RecordCall(line, [&] { commands_->Execute(words); });
      return true;
    }
    if (IsOfTheWorld(command)) {
      commands_->Execute(words);
      recorder_->Note(line);
      return true;
    }
    commands_->Execute(words);
    return true;
  } catch (const ScriptStop&) {
    return false;
  } catch (const std::invalid_argument&) {
    return false;  // a hand on its way found none further
  }
}

bool RecordedRun::CanHaveFocus(const std::string& name) {
  const std::shared_ptr<FrmOrvendalciales> screen = Screen();
  if (!screen || screen->WindowState() == WindowState::kMinimized) return false;
  for (const char* ending : {"", "(1)"}) {
    if (const Control* control = screen->FindControl(name + ending)) return control->IsFocusable();
  }
  return false;
}

WorkReplay::Result RecordedRun::BringBack(const std::string& script) {
  ScriptWorld& world = commands_->World();
  return WorkReplay{world.Context(), world.State(), *library_, world.Dialogs(), {}}.Run(script);
}

std::string RecordedRun::Seen() {
  return output_.str() + SeenOn(*commands_);
}

std::string SeenOn(ScriptCommands& commands) {
  ScriptWorld& world = commands.World();
  std::string seen;
  for (const ScriptedLibrary::ShownMessage& shown : world.Dialogs().TakeMessages()) {
    seen += "message " + std::to_string(shown.style) + " " + QuotedText(shown.text) + " " +
            std::to_string(shown.answer) + "\n";
  }
  const std::shared_ptr<FrmOrvendalciales> screen = world.Screen();
  if (!screen) return seen + "closed\n";
  for (const MSFlexGrid* grid : {&screen->MSFProductos, &screen->MSFProductos1}) {
    seen += grid->Name() + " " + std::to_string(grid->Rows()) + "\n";
    for (int row = 0; row < grid->Rows(); ++row) {
      for (int column = 0; column < grid->Cols(); ++column) {
        seen += PrintedText(grid->TextMatrix(row, column)) + "|";
      }
      seen += "\n";
    }
  }
  seen += "cursor " + std::to_string(screen->MSFProductos.Row()) + " " +
          std::to_string(screen->MSFProductos.Col()) + " top " +
          std::to_string(screen->MSFProductos.TopRow()) + "\n";
  for (const auto& [name, value] : ValuesOf(*screen, world.Session())) seen += name + " " + value + "\n";
  return seen;
}

Replayed Replay(const std::string& script, const Options& options, const std::string& store) {
  Options replay_options = options;
  replay_options.store = store;
  std::ostringstream output;
  Replayed replayed;
  ScriptCommands commands(replay_options, output, nullptr, "");
  std::istringstream lines(script);
  std::string line;
  int number = 0;
  try {
    while (std::getline(lines, line)) {
      ++number;
      commands.Execute(ParseScriptLine(line));
    }
  } catch (const std::exception& error) {
    replayed.exit_code = 2;
    replayed.errors = "line " + std::to_string(number) + " \"" + line + "\": " + error.what();
  }
  replayed.seen = output.str() + SeenOn(commands);
  return replayed;
}

std::string StoredIn(const std::string& store) {
  const auto connection =
      SqliteConnection::Open(store, Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting);
  std::string stored;
  for (const char* statement :
       {"SELECT IdSucursal, Fecha, count(*), total(StockAnterior * rowid), total(StockActual * rowid), "
        "group_concat(CASE WHEN Actualizado >= '2026-11-16' THEN rowid || IdProducto || IdEmpleado || "
        "Actualizado || ModificadoPor END) FROM HistOrvendalcial GROUP BY IdSucursal, Fecha",
        "SELECT IdSucursal, count(*), total(Stock * rowid) FROM ProdSucStock GROUP BY IdSucursal",
        "SELECT rowid, * FROM Diario ORDER BY rowid"}) {
    try {
      SqliteStatement rows(*connection, statement);
      while (rows.Step()) {
        for (int column = 0; column < rows.ColumnCount(); ++column) stored += rows.TextAt(column) + "|";
        stored += "\n";
      }
    } catch (const RuntimeError& error) {
      stored += error.Description() + "\n";  // a script may have taken the table away
    }
  }
  return stored;
}

}  // namespace orvendal::testing_support
