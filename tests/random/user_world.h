#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/headless/headless_host.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "host/library/stand_in_library.h"
#include "host/sample/session.h"
#include "host/script/observed_recordsets.h"
#include "tests/random/input_script.h"
#include "tests/random/noting_library.h"

namespace orvendal {

/// Everything around the component that somebody at the screen meets: windows without a display, a clock that
/// stands, the sample chain in an embedded store in memory, and the stand-in library with its own dialogs.
class UserWorld {
 public:
  UserWorld(const Options& options, InputScript& script);
  ~UserWorld();
  UserWorld(const UserWorld&) = delete;
  UserWorld& operator=(const UserWorld&) = delete;

  /// The host calls.
  void Call(const std::string& sucursal, const std::string& puesto, const std::string& turno);
  /// The screen, if it is loaded.
  std::shared_ptr<FrmOrvendalciales> Screen() const;
  const DatosComunes& Session() const { return state_.session; }
  SqliteConnection& Store();
  /// The first column of all rows.
  std::vector<std::string> Column(const std::string& sql);

  /// Uses the dialog that came up; what is left open is closed with Esc.
  std::function<void(Form& dialog)> on_dialog;
  /// Answers a message with buttons of that style.
  std::function<std::int32_t(std::int32_t style)> on_message;

  FixedClock clock{Date(2026, 11, 16, 10, 30, 0)};
  HeadlessHost host;
  ObservedRecordsetFactory recordsets{std::make_shared<SqliteRecordsetFactory>()};
  int loads = 0;     // of a day's lines, begun so far
  int messages = 0;  // shown so far
  int dialogs = 0;   // that came up so far

 private:
  class Messages;
  void ExpectDialog();

  std::unique_ptr<Messages> messages_;
  SqliteRecordsetFactory library_recordsets_;
  HostContext context_;
  const Dictionaries dictionaries_;
  StandInLibrary stand_in_{context_};
  NotingLibrary library_;
  ComponentState state_{Environment{host, recordsets, library_}};
};

}  // namespace orvendal
