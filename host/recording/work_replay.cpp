#include "host/recording/work_replay.h"

#include <deque>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "adapters/headless/form_input.h"
#include "adapters/sqlite/sqlite_store.h"
#include "form/frm_orvendalciales.h"
#include "host/script/parser.h"
#include "host/script/screen_state.h"
#include "host/script/script_actions.h"
#include "host/script/script_values.h"
#include "host/script/scripted_library.h"
#include "host/store/host_store.h"

namespace orvendal {
namespace {

using Words = std::vector<std::string>;

// No statement writes while it lives: nothing is saved but by the user.
class OnlyReading {
 public:
  explicit OnlyReading(HostContext& context) : context_(context) { Set("ON"); }
  ~OnlyReading() { Set("OFF"); }
  OnlyReading(const OnlyReading&) = delete;
  OnlyReading& operator=(const OnlyReading&) = delete;

  void Renew() { Set("ON"); }

 private:
  void Set(const std::string& value) noexcept {
    try {
      EmbeddedStore(context_.connection).Execute("PRAGMA query_only = " + value);
    } catch (const std::exception&) {
      // A store that cannot be asked is not written to either.
    }
  }

  HostContext& context_;
};

class Replayer {
 public:
  Replayer(WorkReplay& work, WindowHost& host)
      : work_(work), host_(host), dialogs_(work.stand_in, host), reading_(work.context) {
    dialogs_.OnAccionPuesto = [this](std::string&) { UsePanel(); };
    dialogs_.OnAbrirCambio = [this](std::string& branch, std::string& station, std::string& shift) {
      ChangeSession(branch, station, shift);
    };
    work_.library.Replace(&dialogs_);
    host_.Replay(&desktop_);
  }
  ~Replayer() {
    host_.Replay(nullptr);
    work_.library.Replace(nullptr);
  }
  Replayer(const Replayer&) = delete;
  Replayer& operator=(const Replayer&) = delete;

  void Do(const std::string& line) {
    const Words words = ParseScriptLine(line);
    static const std::set<std::string> passed_over = {"reloj", "mostrar", "pantalla", "base", "orvendal"};
    if (words.empty() || passed_over.contains(words.front()) || Prepare(words)) return;
    if (PutScreenState(*Screen(), work_.state.session, words)) {
      if (work_.on_state) work_.on_state(line);
      return;
    }
    if (actions_.Execute(words)) return;
    throw ScriptStop("no existe la orden " + words.front());
  }

 private:
  std::shared_ptr<FrmOrvendalciales> Screen() const {
    if (!work_.state.form || !work_.state.form->IsLoaded()) throw ScriptStop("la pantalla no está abierta");
    return work_.state.form;
  }

  // Answers of dialogs to come.
  bool Prepare(const Words& words) {
    static const std::map<std::string, std::int32_t> answers = {{"aceptar", message::kOk},
                                                                {"si", message::kYes},
                                                                {"no", message::kNo},
                                                                {"cancelar", message::kCancel}};
    const std::string& command = words.front();
    const std::string what = words.size() > 1 ? words[1] : std::string();
    if (command == "empleado") {
      const bool cancels = words.size() < 3;
      dialogs_.QueueEmployee(cancels ? ScriptedLibrary::EmployeeAnswer()
                                     : ScriptedLibrary::EmployeeAnswer{true, what, words[2]});
    } else if (command == "buscador") {
      dialogs_.QueueProduct(what == "cancelar" ? std::string() : what);
    } else if (command == "respuesta") {
      const auto found = answers.find(what);
      if (found == answers.end()) throw ScriptStop("no existe la respuesta " + what);
      dialogs_.QueueAnswer(found->second);
    } else if (command == "puesto") {
      panels_.push_back(what == "reconectar");
    } else if (command == "sesion") {
      sessions_.push_back(words.size() == 4 ? std::optional<Words>(words) : std::nullopt);
    } else if (command == "fallo" && words.size() == 5 && what == "biblioteca") {
      dialogs_.FailNext(words[2], RuntimeError(WholeNumber(words[3]), words[4]));
    } else {
      return false;
    }
    return true;
  }

  void UsePanel() {
    const bool reconnects = !panels_.empty() && panels_.front();
    if (!panels_.empty()) panels_.pop_front();
    if (!reconnects || !work_.context.reopen_store) return;
    work_.context.connection = work_.context.reopen_store();
    reading_.Renew();
    dialogs_.ReplaceConnection("AccionPuesto", work_.context.connection);
  }

  void ChangeSession(std::string& branch, std::string& station, std::string& shift) {
    const std::optional<Words> chosen = sessions_.empty() ? std::nullopt : sessions_.front();
    if (!sessions_.empty()) sessions_.pop_front();
    if (!chosen) return;
    work_.context.sucursal = branch = (*chosen)[1];
    work_.context.puesto = station = (*chosen)[2];
    work_.context.turno = shift = (*chosen)[3];
  }

  WorkReplay& work_;
  WindowHost& host_;
  ScriptedLibrary dialogs_;
  ScriptDesktop desktop_;
  OnlyReading reading_;
  std::deque<bool> panels_;
  std::deque<std::optional<Words>> sessions_;
  ScriptActions actions_{[this] { return Screen(); }, DirectInput(), desktop_};
};

}  // namespace

WorkReplay::Result WorkReplay::Run(const std::string& script) {
  Result result;
  try {
    Replayer replayer(*this, context.window_host);
    while (result.done < script.size()) {
      const std::size_t end = std::min(script.find('\n', result.done), script.size());
      replayer.Do(script.substr(result.done, end - result.done));
      result.done = std::min(end + 1, script.size());
    }
  } catch (const RuntimeError& error) {
    result.whole = false;
    result.why = error.Description();
  } catch (const std::exception& error) {
    result.whole = false;
    result.why = error.what();
  }
  return result;
}

}  // namespace orvendal
