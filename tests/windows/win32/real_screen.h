#pragma once

#include <memory>
#include <string>

#include "adapters/sqlite/sqlite_store.h"
#include "adapters/win32/win32_window_host.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "host/script/scripted_library.h"
#include "tests/support/plain_library.h"
#include "tests/windows/win32/win32_fixture.h"

namespace orvendal {

/// The screen itself in a window, over a store in memory with two branches, three employees and forty
/// products "P1" to "P40", "Producto 1" and so on, with stock 1 to 40 in branch 01; on a clock that stands at
/// 2026-11-16 10:30:00. Dialogs are answered by the scripted library.
class RealScreen {
 public:
  RealScreen();
  ~RealScreen();

  void Open();
  FrmOrvendalciales& Screen() { return *state.form; }
  HWND Window() const { return host.HandleOf(*state.form); }
  /// First column of the first row.
  std::string Sql(const std::string& statement);
  /// A click, or a double click, in the middle of a control or of a cell, by messages of the system.
  void ClickAt(Point place, bool twice = false);
  void Click(const Control& control);
  void ClickCell(int row, int column, bool twice = false);
  void Type(const std::wstring& text);

  StillClock clock;
  std::vector<RuntimeError> errors;
  Win32WindowHost host;
  std::shared_ptr<SqliteConnection> store;
  SqliteRecordsetFactory recordsets;
  PlainLibrary plain_library{host};
  ScriptedLibrary library{plain_library, host};
  ComponentState state{Environment{host, recordsets, library}};

 private:
  Win32HostOptions Options();
};

}  // namespace orvendal
