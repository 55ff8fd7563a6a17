#include <optional>

#include "adapters/ado/ado_recordset_factory.h"
#include "adapters/ado/ado_wrappers.h"
#include "adapters/win32/user_region.h"
#include "platform/base/runtime_error.h"
#include "platform/data/ado_error.h"
#include "tests/adapters/ado/registered_class.h"
#include "tests/adapters/sqlite/store_fixture.h"
#include "tests/host/windows/store/store_client.h"

namespace orvendal::store_client {
namespace {

using namespace store_testing;  // the screen's statements

/// The adapter on the embedded store as it is handed out: a DLL that gives ADO's classes.
class StoreDll : public StoreTest {
 protected:
  void SetUp() override {
    ComPtr<IClassFactory> classes;
    const auto get = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(GetProcAddress(dll, "DllGetClassObject")));
    ASSERT_EQ(get(ado::kRecordsetClass, IID_IClassFactory, classes.ReceiveVoid()), S_OK);
    recordset_class_.emplace(ado::kRecordsetClass, classes.Get());
    ASSERT_EQ(recordset_class_->Result(), S_OK);
    object = Connected();
    connection = WrapConnection(object.Get());
  }
  void TearDown() override {
    connection.reset();
    object.Reset();
    recordset_class_.reset();
    EXPECT_EQ(CanUnload(), S_OK) << "everything was given back";
  }

  RecordsetRef Open(const std::string& statement, bool for_writing = false) {
    const RecordsetRef rows = factory.NewRecordset();
    rows->Open(statement, connection, for_writing ? CursorType::kDynamic : CursorType::kStatic,
               for_writing ? LockType::kOptimistic : LockType::kReadOnly, kCommandUnspecified);
    return rows;
  }
  RecordsetRef OpenDay() { return Open(DayStatement("01", LoadCondition(GetParam(), "2026-11-16"))); }
  void AddLine(Recordset& history, const std::string& code) const {
    history.AddNew();
    history.Collect("IdSucursal", "01");
    history.Collect("IdProducto", code);
    history.Collect("stockAnterior", region.ToText(12.5));
    history.Collect("StockActual", "7");
    history.Collect("IdEmpleado", "E1");
    history.Collect("Fecha", region.ToText(Date(2026, 11, 16)));
    history.Collect("Actualizado", region.ToText(Date(2026, 11, 16, 10, 30, 5)));
    history.Collect("ModificadoPor", "01");
  }

  const Region region = UserRegionOfSystem();
  AdoRecordsetFactory factory;
  ComPtr<::_Connection> object;
  ConnectionRef connection;

 private:
  ado_testing::ComThread com_;
  std::optional<ado_testing::RegisteredClass> recordset_class_;
};

TEST_P(StoreDll, TheConnectionNamesItsProvider) {
  EXPECT_EQ(connection->Provider(), Provider());
  EXPECT_EQ(Unwrap(connection), static_cast<IDispatch*>(object.Get()));
}

TEST_P(StoreDll, TheRoadOfASaveAndItsLoad) {
  Native("INSERT INTO Productos VALUES ('P1','Champú')");
  Native("INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto) VALUES ('01','2026-11-16','old')");
  const RecordsetRef rows = Open(DeleteStatement("01", LoadCondition(GetParam(), "2026-11-16")), true);
  EXPECT_EQ(rows->State(), kStateClosed);
  rows->Open(TableStatement(), connection, CursorType::kDynamic, LockType::kOptimistic, kCommandUnspecified);
  AddLine(*rows, "P1");
  rows->Update();
  rows->Close();
  EXPECT_EQ(
      NativeValue("SELECT group_concat(IdProducto || ' ' || StockAnterior || ' ' || StockActual || ' ' || "
                  "Fecha || ' ' || Actualizado) FROM HistOrvendalcial"),
      "P1 12.5 7 2026-11-16 00:00:00 2026-11-16 10:30:05");
  const RecordsetRef day = OpenDay();
  ASSERT_EQ(day->RecordCount(), 1);
  EXPECT_EQ(day->Fields("Descripcion").Value(), Value("Champú"));
  EXPECT_EQ(day->Fields("stockAnterior").Value(), Value(12.5));
  EXPECT_EQ(day->Fields("Fecha").Value(), Value(Date(2026, 11, 16)));
  EXPECT_TRUE(day->Fields("Nombre").Value().IsNull());
  day->MoveNext();
  EXPECT_TRUE(day->AtEnd());
}

TEST_P(StoreDll, ARefusedRowIsNamedAndDoesNotKeepTheRecordsetOpen) {
  const RecordsetRef rows = Open(TableStatement(), true);
  AddLine(*rows, std::string(300, 'x'));
  try {
    rows->Update();
    FAIL() << "a code that is too long was taken";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ado_error::kMultipleStep);
    EXPECT_EQ(error.Description().rfind("Multiple-step", 0), 0U) << error.Description();
  }
  EXPECT_EQ(rows->EditMode(), 2);
  rows->Close();
  EXPECT_EQ(rows->State(), kStateClosed);
  EXPECT_EQ(NativeValue("SELECT COUNT(*) FROM HistOrvendalcial"), "0");
}

TEST_P(StoreDll, WhatCannotBeIsAnErrorWithNumberAndText) {
  const std::int32_t no_table = ErrorOf([this] { Open("SELECT * FROM Nada"); });
  EXPECT_EQ(no_table, ado_error::kNoTable);
  EXPECT_FALSE(DescriptionOf([this] { Open("SELECT * FROM Nada"); }).empty());
  EXPECT_EQ(ErrorOf([this] { OpenDay()->Fields("Precio"); }), ado_error::kItemNotFound);
  EXPECT_EQ(ErrorOf([this] { OpenDay()->MoveNext(); }), ado_error::kEitherBofOrEof);
  EXPECT_EQ(ErrorOf([this] { factory.NewRecordset()->Close(); }), ado_error::kObjectClosed);
  connection = nullptr;
  EXPECT_EQ(ErrorOf([this] { OpenDay(); }), ado_error::kInvalidConnection);
}

TEST_P(StoreDll, ALoadOfTenThousandLinesReadsEveryField) {
  Native(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 10000) "
      "INSERT INTO Productos SELECT 'P' || i, 'Producto' FROM n");
  Native(
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual, IdEmpleado) "
      "SELECT '01', '2026-11-16 00:00:00', Codigo, 1, 2, 'E1' FROM Productos");
  const RecordsetRef day = OpenDay();
  int lines = 0;
  double counted = 0;
  for (; !day->AtEnd(); day->MoveNext(), ++lines) {
    for (const char* field :
         {"IdProducto", "Descripcion", "IdEmpleado", "Nombre", "Fecha", "stockAnterior"}) {
      day->Fields(field).Value();
    }
    counted += day->Fields("StockActual").Value().Number();
  }
  EXPECT_EQ(lines, 10000);
  EXPECT_EQ(counted, 20000.0);
}

INSTANTIATE_TEST_SUITE_P(BothDialects, StoreDll, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOf);

}  // namespace
}  // namespace orvendal::store_client
