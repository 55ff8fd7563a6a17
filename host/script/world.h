#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "adapters/headless/headless_host.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "host/library/stand_in_library.h"
#include "host/sample/session.h"
#include "host/script/observed_recordsets.h"
#include "host/script/script_clock.h"
#include "host/script/script_windows.h"
#include "host/script/scripted_library.h"
#include "host/store/host_store.h"

namespace orvendal {

/// Something around the library of a script, on the script's host and clock.
using WrapScriptLibrary =
    std::function<std::unique_ptr<Library>(Library& library, WindowHost& host, Clock& clock)>;

/// Everything around the component that a script drives: windows, a clock that stands, the store, and the
/// stand-in library with its dialogs answered beforehand.
///
/// The clock stands at 2026-11-16 10:30:00 at first. The store is opened when it is first needed: the one of
/// `options`, else a sample chain in memory whose counts end at the clock's day.
class ScriptWorld {
 public:
  /// `options` outlives the object.
  /// `wrap_library`, if there is one, gives what the component uses in place of the library that it is
  /// handed; both outlive the world's component.
  ScriptWorld(const Options& options, const MakeScriptWindows& make_windows,
              const WrapScriptLibrary& wrap_library = {});
  ~ScriptWorld();
  ScriptWorld(const ScriptWorld&) = delete;
  ScriptWorld& operator=(const ScriptWorld&) = delete;

  /// Raises StoreUnavailable.
  SqliteConnection& Store();
  /// The host calls the component. Raises what the call raises.
  bool Call(const std::string& sucursal, const std::string& puesto, const std::string& turno);
  /// The screen, if it is loaded.
  std::shared_ptr<FrmOrvendalciales> Screen() const;

  /// Prepared answer to the next panel of F1: opens the store anew, or closes it at once.
  void QueueWorkstationPanel(bool reconnect) { panel_answers_.push_back(reconnect); }
  /// Prepared answer to the next change of session of F2; nothing to cancel it.
  struct SessionChoice {
    std::string sucursal;
    std::string puesto;
    std::string turno;
  };
  void QueueSessionChange(std::optional<SessionChoice> choice) {
    session_answers_.push_back(std::move(choice));
  }

  DatosComunes& Session() { return state_.session; }
  ComponentState& State() { return state_; }
  HostContext& Context() { return context_; }
  ScriptedLibrary& Dialogs() { return library_; }

  ScriptClock clock{Date(2026, 11, 16, 10, 30, 0)};
  const std::unique_ptr<ScriptWindows> windows;
  ObservedRecordsetFactory recordsets{std::make_shared<SqliteRecordsetFactory>()};

 private:
  // What the host has to say by itself is kept with the messages of the screen.
  class Messages;

  void AnswerDialog(const std::string& operation);

  const Options& options_;
  std::unique_ptr<Messages> messages_;
  // Faults are for the screen's statements, not for the library's own.
  SqliteRecordsetFactory library_recordsets_;
  HostContext context_;
  const Dictionaries dictionaries_;
  StandInLibrary stand_in_{context_};
  ScriptedLibrary library_{stand_in_, windows->Host()};
  std::unique_ptr<Library> wrapped_library_;
  ComponentState state_;
  std::deque<bool> panel_answers_;
  std::deque<std::optional<SessionChoice>> session_answers_;
};

}  // namespace orvendal
