#pragma once

#include <memory>
#include <string>

#include "adapters/headless/headless_host.h"
#include "adapters/headless/robot.h"
#include "adapters/qt/qt_window_host.h"
#include "adapters/sqlite/sqlite_store.h"
#include "bench/bench_store.h"
#include "bench/idle_library.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"

namespace orvendal::bench {

/// The screen on one day of a store, in a window of Qt on a display of 1024 by 768 that nobody sees, as the
/// native program has it, with a stylist chosen.
class BenchScreen {
 public:
  BenchScreen(const BenchStore& store, Dialect dialect, const Day& day);
  ~BenchScreen();
  BenchScreen(const BenchScreen&) = delete;
  BenchScreen& operator=(const BenchScreen&) = delete;

  FrmOrvendalciales& Form() { return *state_.form; }
  QWidget* Widget() { return host_.WidgetOf(Form()); }
  SqliteConnection& Store() { return *connection_; }
  /// A save lets the stylist go.
  void ChooseStylist();
  /// Opens the editor on the first free line.
  void OpenEditor();
  void Type(const std::string& text) { Robot(Form()).Type(text); }
  /// One turn of the event loop, which paints what has changed.
  void Paint();
  /// Raises std::runtime_error if the day does not have that many lines.
  void CheckLines(int lines);

 private:
  class Session;

  FixedClock clock_{Date(2026, 11, 16, 10, 30, 0)};
  QtWindowHost host_;
  SqliteRecordsetFactory recordsets_;
  IdleLibrary library_;
  std::shared_ptr<SqliteConnection> connection_;
  ComponentState state_;
};

}  // namespace orvendal::bench
