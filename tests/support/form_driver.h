#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/headless/headless_host.h"
#include "adapters/headless/robot.h"
#include "adapters/sqlite/sqlite_store.h"
#include "component/class_orvendal.h"
#include "form/frm_orvendalciales.h"
#include "host/script/observed_recordsets.h"
#include "host/script/scripted_library.h"
#include "platform/data/memory_recordset.h"
#include "tests/support/plain_library.h"

namespace orvendal {

/// The session object of a host, to be set up by a test.
class TestSession final : public DatosClase {
 public:
  void RellenarSesion(const SessionArguments& session) override;

  ConnectionRef connection;
  std::int32_t reference_width = 15360;
  std::int32_t reference_height = 11520;
  std::string replaced_branch;  // takes the place of the branch of the call, unless empty
  std::shared_ptr<MemoryRecordset> general;
  std::shared_ptr<MemoryRecordset> actions;
  std::shared_ptr<MemoryRecordset> screens;
  bool fills_dictionaries = true;
  ObjectRef form1;
  ObjectRef form2;
  int times_asked = 0;
  /// Runs at the end of each call, and may fail.
  std::function<void(const SessionArguments&)> meddle;
};

/// A component on any host, with everything else around it: a fresh in-memory store with a small chain, a
/// library with scripted dialogs, and hands on the screen.
///
/// The chain: branches 01 "Centro" and 02 "Norte"; employees E1 "Ana", E2 "Berta", E3 "Carmen"; products
///   P1 "Champú suave"      stock 7 in 01      reference 8400000000017
///   P2 "Crema de manos"    stock 2.5 in 01    reference 8400000000024
///   P3 "Crema facial"      stock 3.5 in 01
///   P4 "Laca fuerte"       no stock row
///   P5 "Tinte negro"       stock 4 in 02 only
/// and P10 to P40 "Producto 10" to "Producto 40" with stock equal to the number. No counts.
class ScreenDriver {
 public:
  /// `window_host` and `input`, by which the hands reach the screen, outlive the object.
  explicit ScreenDriver(WindowHost& window_host, Dialect dialect = Dialect::kSqlServer,
                        FormInput& input = DirectInput());
  ~ScreenDriver();
  ScreenDriver(const ScreenDriver&) = delete;
  ScreenDriver& operator=(const ScreenDriver&) = delete;

  /// The host calls.
  bool Open(const std::string& branch = "01", const std::string& station = "P1",
            const std::string& shift = "T1");
  FrmOrvendalciales& form() { return *state.form; }
  bool HasForm() const { return state.form != nullptr && state.form->IsLoaded(); }

  /// Opens, and picks employee E1 through the grid's question.
  void OpenWithStylist(const std::string& branch = "01");
  /// Chooses the stylist by the button, which must be enabled.
  void ChooseStylist(const std::string& code, const std::string& name);
  void Click(std::string_view control);
  void DoubleClick(std::string_view control);
  void ClickCell(int row, int column);
  void DoubleClickCell(int row, int column);
  void Type(std::string_view text) { robot().Type(text); }
  void Key(int key_code, int shift = 0) { robot().Key(key_code, shift); }
  void Enter() { Key(key::kReturn); }
  Robot robot() { return Robot(form(), input_); }
  /// Opens the editor on the first free line and enters a product and its quantity, as a person does.
  void EnterLine(const std::string& code, const std::string& quantity);

  /// Texts of one line of the grid, by columns; of all used lines.
  std::vector<std::string> Line(int row);
  std::vector<std::string> Codes();
  std::string Cell(int row, int column) { return form().MSFProductos.TextMatrix(row, column); }
  std::string Focused();
  bool IsAvailable(const std::string& action);

  /// Runs SQL on the store; the first column of the first row as text ("" if none).
  std::string Sql(const std::string& sql);
  void Execute(const std::string& sql);
  /// Adds a stored count of branch 01 for the day ("2026-11-16").
  void AddCount(const std::string& product, double before, double now, const std::string& employee = "E1",
                const std::string& day = "2026-11-16", const std::string& branch = "01");
  /// `lines` counts of branch 01 for today: P10, P11, ...
  void AddCounts(int lines);

  std::shared_ptr<SqliteConnection> connection;
  ObservedRecordsetFactory recordsets{std::make_shared<SqliteRecordsetFactory>()};
  PlainLibrary plain_library;
  ScriptedLibrary library;
  std::shared_ptr<TestSession> session = std::make_shared<TestSession>();
  ComponentState state;

 private:
  FormInput& input_;
};

/// A host without a display. The clock stands at 2026-11-16 10:30:00.
struct HeadlessSurroundings {
  explicit HeadlessSurroundings(const Region& region) : host(region, clock) {}

  FixedClock clock{Date(2026, 11, 16, 10, 30, 0)};
  HeadlessHost host;
};

/// The component on a host without a display.
class FormDriver : public HeadlessSurroundings, public ScreenDriver {
 public:
  explicit FormDriver(Dialect dialect = Dialect::kSqlServer, const Region& region = Region::Spanish())
      : HeadlessSurroundings(region), ScreenDriver(host, dialect) {}
};

}  // namespace orvendal
