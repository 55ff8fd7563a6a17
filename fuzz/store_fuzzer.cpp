#include "adapters/sqlite/sqlite_store.h"
#include "fuzz/fuzzed_input.h"
#include "host/store/schema.h"
#include "platform/data/ado_error.h"

using namespace orvendal;

namespace {

constexpr int kMostRows = 50;
constexpr int kLongestStatement = 500;  // milliseconds

bool IsProvidersOwn(std::int32_t number) {
  return number < 0 || (number >= 3000 && number < 4000);
}

// What a store may answer is a number of its provider; anything else would be a surprise to the screen.
template <typename Action>
bool Answers(const Action& action) {
  try {
    action();
    return true;
  } catch (const RuntimeError& error) {
    if (!IsProvidersOwn(error.Number())) {
      std::fprintf(stderr, "error %d: %s\n", error.Number(), error.what());
      Require(false, "the store reports as its provider");
    }
    return false;
  }
}

std::shared_ptr<SqliteConnection> SmallStore(Dialect dialect, const Region& region) {
  auto store = SqliteConnection::Open(":memory:", dialect, region, OpenMode::kCreate);
  store->CommandTimeout(kLongestStatement);
  CreateSchema(*store);
  store->Execute(R"(
    INSERT INTO Sucursales VALUES ('01', 'Centro'), ('02', NULL);
    INSERT INTO Productos VALUES ('CHA01', 'Champú'), ('CHA02', 'Champú ñ'), ('', NULL);
    INSERT INTO HistOrvendalcial VALUES ('01', '2026-11-16 10:00:00', 'CHA01', 1, 2.5, 'E1', NULL, NULL),
      ('01', '2026-11-16 10:00:00', 'CHA02', NULL, NULL, NULL, NULL, NULL);
  )");
  return store;
}

void WalkAndWrite(FuzzedInput& input, Recordset& rows) {
  for (int row = 0; row < kMostRows && !rows.AtEnd(); ++row) {
    for (std::size_t field = 0; field < rows.FieldCount(); ++field) {
      const std::string name = rows.FieldName(field);
      Answers([&] { rows.Fields(name).Value(); });
    }
    if (!Answers([&] { rows.MoveNext(); })) break;
  }
  if (!Answers([&] { rows.AddNew(); })) return;
  for (std::size_t field = 0; field < rows.FieldCount(); ++field) {
    const std::string name = rows.FieldName(field);
    const std::string text = input.Line();
    Answers([&] { rows.Collect(name, text); });
  }
  if (!Answers([&] { rows.Update(); })) rows.CancelUpdate();
  Require(rows.EditMode() == 0, "no row stays pending");
}

}  // namespace

// A statement from anywhere, a criteria and values, on a real store.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedInput input(bytes, size);
  const Dialect dialect = input.Bool() ? Dialect::kJet : Dialect::kSqlServer;
  const auto store = SmallStore(dialect, input.AnyRegion());
  const std::string statement = input.Line();
  const std::string criteria = input.Line();

  SqliteRecordsetFactory factory;
  const RecordsetRef rows = factory.NewRecordset();
  const bool opened = Answers(
      [&] { rows->Open(statement, store, CursorType::kStatic, LockType::kOptimistic, kCommandUnspecified); });
  Require(rows->State() == kStateOpen || rows->FieldCount() == 0, "a closed one has no fields");
  if (opened && rows->State() == kStateOpen) {
    Require(rows->RecordCount() >= 0, "a static cursor counts");
    Answers([&] { rows->Find(criteria, 0, SearchDirection::kForward); });
    Answers([&] { rows->AbsolutePosition(1); });
    WalkAndWrite(input, *rows);
    rows->Close();
  }
  // Whatever it was, the store goes on answering.
  rows->Open("SELECT Sucursales.Sucursal, Sucursales.Nombre FROM Sucursales ORDER BY Sucursales.Nombre",
             store, CursorType::kStatic, LockType::kReadOnly, kCommandUnspecified);
  Require(rows->State() == kStateOpen, "the branches can be read");
  return 0;
}
