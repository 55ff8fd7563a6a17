#include <functional>
#include <limits>

#include "tests/host/windows/store/store_client.h"

namespace orvendal::store_client {
namespace {

/// Reading: by the vtable, as an early-bound client.
class RecordsetOfStore : public StoreTest {
 protected:
  void SetUp() override { Native("INSERT INTO Sucursales VALUES ('01','Norte'),('02','Sur'),('03',NULL)"); }
  static LONG StateOf(::_Recordset* recordset) {
    LONG state = -1;
    EXPECT_EQ(recordset->get_State(&state), S_OK);
    return state;
  }
  static bool AtStart(::_Recordset* recordset) {
    VARIANT_BOOL start = VARIANT_FALSE;
    EXPECT_EQ(recordset->get_BOF(&start), S_OK);
    return start != VARIANT_FALSE;
  }
  static ADO_LONGPTR CountOf(::_Recordset* recordset) {
    ADO_LONGPTR count = -99;
    EXPECT_EQ(recordset->get_RecordCount(&count), S_OK);
    return count;
  }
  static ADO_LONGPTR PositionOf(::_Recordset* recordset) {
    ADO_LONGPTR position = -99;
    EXPECT_EQ(recordset->get_AbsolutePosition(&position), S_OK);
    return position;
  }
  static LONG CursorOf(::_Recordset* recordset) {
    LONG cursor = -1;
    EXPECT_EQ(recordset->get_CursorType(&cursor), S_OK);
    return cursor;
  }

  const std::string rows = "SELECT Sucursales.Sucursal, Sucursales.Nombre FROM Sucursales ORDER BY Sucursal";
};

TEST_P(RecordsetOfStore, ANewOneIsClosedWithNoFieldsAndADOsDefaults) {
  const ComPtr<::_Recordset> recordset = NewRecordset();
  EXPECT_EQ(StateOf(recordset.Get()), 0);
  ComPtr<::Fields> fields;
  LONG count = -1;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  EXPECT_EQ(fields->get_Count(&count), S_OK);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(CursorOf(recordset.Get()), 0);
  LONG lock = -1;
  EXPECT_EQ(recordset->get_LockType(&lock), S_OK);
  EXPECT_EQ(lock, 1);
  Variant connection;
  EXPECT_EQ(recordset->get_ActiveConnection(connection.Address()), S_OK);
  EXPECT_EQ(V_VT(&connection.Get()), VT_DISPATCH);
  EXPECT_EQ(V_DISPATCH(&connection.Get()), nullptr);
}

TEST_P(RecordsetOfStore, EverythingElseIsRefusedWhileItIsClosed) {
  const ComPtr<::_Recordset> recordset = NewRecordset();
  VARIANT_BOOL flag = VARIANT_FALSE;
  ADO_LONGPTR count = 0;
  LONG number = 0;
  Variant value;
  const std::vector<std::function<HRESULT()>> uses = {
      [&] { return recordset->get_EOF(&flag); },
      [&] { return recordset->get_BOF(&flag); },
      [&] { return recordset->get_RecordCount(&count); },
      [&] { return recordset->get_AbsolutePosition(&count); },
      [&] { return recordset->put_AbsolutePosition(1); },
      [&] { return recordset->get_EditMode(&number); },
      [&] { return recordset->MoveNext(); },
      [&] { return recordset->MoveFirst(); },
      [&] { return recordset->Find(Bstr("Nombre = 'Sur'"), 0, 1, Arg()); },
      [&] { return recordset->AddNew(Arg(), Arg()); },
      [&] { return recordset->Update(Arg(), Arg()); },
      [&] { return recordset->CancelUpdate(); },
      [&] { return recordset->get_Collect(Arg("Nombre"), value.Address()); },
      [&] { return recordset->put_Collect(Arg("Nombre"), Arg("x")); },
      [&] { return recordset->Close(); }};
  for (std::size_t use = 0; use < uses.size(); ++use) {
    const Failure failure = FailureOf(uses[use]());
    EXPECT_EQ(failure.result, AdoFailure(3704)) << use;
    EXPECT_EQ(failure.source, "ADODB.Recordset") << use;
    EXPECT_EQ(failure.description, "Operation is not allowed when the object is closed.") << use;
  }
}

TEST_P(RecordsetOfStore, RowsAreWalkedInBothDirections) {
  const auto recordset = Opened(Connected(), rows, kStatic, kReadOnly);
  EXPECT_EQ(StateOf(recordset.Get()), 1);
  EXPECT_TRUE(!AtStart(recordset.Get()) && !AtEnd(recordset.Get()));
  EXPECT_EQ(Column(recordset.Get(), "Nombre"), (Texts{"Norte", "Sur", "Null"}));
  EXPECT_EQ(PositionOf(recordset.Get()), -3);
  EXPECT_EQ(recordset->MoveNext(), AdoFailure(3021));
  EXPECT_EQ(recordset->MovePrevious(), S_OK);
  EXPECT_EQ(ValueOf(recordset.Get(), "Sucursal"), "03");
  EXPECT_EQ(recordset->MoveFirst(), S_OK);
  EXPECT_EQ(recordset->MovePrevious(), S_OK);
  EXPECT_TRUE(AtStart(recordset.Get()));
  EXPECT_EQ(PositionOf(recordset.Get()), -2);
  EXPECT_EQ(recordset->MoveLast(), S_OK);
  EXPECT_EQ(PositionOf(recordset.Get()), 3);
}

TEST_P(RecordsetOfStore, WithoutRowsItIsOpenAtBothEnds) {
  const auto recordset =
      Opened(Connected(), "SELECT * FROM Sucursales WHERE Sucursal = '99'", kStatic, kReadOnly);
  EXPECT_EQ(StateOf(recordset.Get()), 1);
  EXPECT_TRUE(AtStart(recordset.Get()) && AtEnd(recordset.Get()));
  EXPECT_EQ(CountOf(recordset.Get()), 0);
  EXPECT_EQ(
      ValueOf(recordset.Get(), "Nombre"),
      "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
      "current record.");
}

TEST_P(RecordsetOfStore, CountsAndPositionsHaveTheWidthOfAPointer) {
  const auto recordset = Opened(Connected(), rows, kStatic, kReadOnly);
  // The whole cell is written, no byte more.
  ADO_LONGPTR cells[2] = {-1, -1};
  static_assert(sizeof cells[0] == sizeof(void*));
  EXPECT_EQ(recordset->get_RecordCount(cells), S_OK);
  EXPECT_EQ(cells[0], 3);
  EXPECT_EQ(cells[1], -1);
  cells[0] = std::numeric_limits<ADO_LONGPTR>::max();
  EXPECT_EQ(recordset->get_AbsolutePosition(cells), S_OK);
  EXPECT_EQ(cells[0], 1);
  EXPECT_EQ(recordset->put_AbsolutePosition(2), S_OK);
  EXPECT_EQ(ValueOf(recordset.Get(), 1), "Sur");
  EXPECT_EQ(recordset->put_AbsolutePosition(4), AdoFailure(3001));
  EXPECT_EQ(recordset->put_AbsolutePosition(0), AdoFailure(3001));
  if constexpr (sizeof(ADO_LONGPTR) == 8) {
    EXPECT_EQ(recordset->put_AbsolutePosition(static_cast<ADO_LONGPTR>(0x100000001LL)), AdoFailure(3001));
  }
}

TEST_P(RecordsetOfStore, ADynamicCursorIsOneOfItsProvider) {
  const auto recordset = Opened(Connected(), rows, kDynamic, kOptimistic);
  EXPECT_EQ(CursorOf(recordset.Get()), SqlServer() ? 2 : 1);
  EXPECT_EQ(CountOf(recordset.Get()), SqlServer() ? -1 : 3);
  EXPECT_EQ(PositionOf(recordset.Get()), SqlServer() ? -1 : 1);
  EXPECT_EQ(recordset->put_AbsolutePosition(2), SqlServer() ? AdoFailure(3251) : S_OK);
}

TEST_P(RecordsetOfStore, FieldsAreKnownByNameAndNumber) {
  const auto recordset = Opened(Connected(), rows, kStatic, kReadOnly);
  EXPECT_EQ(ValueOf(recordset.Get(), "NOMBRE"), "Norte");
  EXPECT_EQ(ValueOf(recordset.Get(), 0), "01");
  EXPECT_EQ(ValueOf(recordset.Get(), 1.0), "Norte");
  const std::string unknown =
      "Item cannot be found in the collection corresponding to the requested name or ordinal.";
  EXPECT_EQ(ValueOf(recordset.Get(), "Ciudad"), unknown);
  EXPECT_EQ(ValueOf(recordset.Get(), 2), unknown);
  EXPECT_EQ(ValueOf(recordset.Get(), -1), unknown);
  Variant value;
  EXPECT_EQ(recordset->get_Collect(Arg("nombre"), value.Address()), S_OK);
  EXPECT_EQ(Shown(value.Get()), "Norte");
  const Failure failure = FailureOf(recordset->get_Collect(Arg("Ciudad"), value.Address()));
  EXPECT_EQ(failure.result, AdoFailure(3265));
  EXPECT_EQ(failure.source, "ADODB.Recordset");
}

TEST_P(RecordsetOfStore, OfTwoFieldsWithOneNameEachIsReadByItsNumber) {
  const auto recordset =
      Opened(Connected(),
             "SELECT Sucursales.Nombre, Sucursales.Sucursal AS Nombre FROM Sucursales ORDER BY Sucursal",
             kStatic, kReadOnly);
  EXPECT_EQ(ValueOf(recordset.Get(), 0), "Norte");
  EXPECT_EQ(ValueOf(recordset.Get(), 1), "01");
}

TEST_P(RecordsetOfStore, AFieldThatIsKeptFollowsTheRows) {
  const auto recordset = Opened(Connected(), rows, kStatic, kReadOnly);
  ComPtr<::Fields> fields;
  ComPtr<::Field> field;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  EXPECT_EQ(fields->get_Item(Arg("Nombre"), field.Receive()), S_OK);
  EXPECT_EQ(recordset->MoveNext(), S_OK);
  Variant value;
  EXPECT_EQ(field->get_Value(value.Address()), S_OK);
  EXPECT_EQ(Shown(value.Get()), "Sur");
  BstrCell name;
  EXPECT_EQ(field->get_Name(name.InOut()), S_OK);
  EXPECT_EQ(name.Text(), "Nombre");
}

TEST_P(RecordsetOfStore, AFieldOfAClosedRecordsetIsNoLongerValid) {
  const auto connection = Connected();
  const auto recordset = Opened(connection, rows, kStatic, kReadOnly);
  ComPtr<::Fields> fields;
  ComPtr<::Field> field;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  EXPECT_EQ(fields->get_Item(Arg(0), field.Receive()), S_OK);
  EXPECT_EQ(recordset->Close(), S_OK);
  Variant value;
  const Failure closed = FailureOf(field->get_Value(value.Address()));
  EXPECT_EQ(closed.result, AdoFailure(3420));
  EXPECT_EQ(closed.source, "ADODB.Field");
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(connection.Get()), kStatic, kReadOnly, -1), S_OK);
  EXPECT_EQ(field->get_Value(value.Address()), AdoFailure(3420));
  ComPtr<::Fields> same;
  EXPECT_EQ(recordset->get_Fields(same.Receive()), S_OK);
  EXPECT_EQ(same.Get(), fields.Get());
  LONG count = 0;
  EXPECT_EQ(fields->get_Count(&count), S_OK);
  EXPECT_EQ(count, 2);
}

TEST_P(RecordsetOfStore, ValuesHaveTheTypesOfTheirColumns) {
  Native("INSERT INTO Productos VALUES ('A','Champú')");
  Native(
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual) "
      "VALUES ('01','2026-11-16 12:00:00','A',2.5,7)");
  const auto recordset =
      Opened(Connected(), "SELECT HistOrvendalcial.*, COUNT(*) FROM HistOrvendalcial GROUP BY IdProducto",
             kStatic, kReadOnly);
  EXPECT_EQ(ValueOf(recordset.Get(), "IdSucursal"), "01");
  EXPECT_EQ(ValueOf(recordset.Get(), "Fecha"), "Date 46342.500000");
  EXPECT_EQ(ValueOf(recordset.Get(), "StockAnterior"), "Double 2.500000");
  EXPECT_EQ(ValueOf(recordset.Get(), "StockActual"), "Double 7.000000");
  EXPECT_EQ(ValueOf(recordset.Get(), "IdEmpleado"), "Null");
  EXPECT_EQ(ValueOf(recordset.Get(), 8), "Double 1.000000");
  ComPtr<::Fields> fields;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  const auto type_of = [&](const char* name) {
    ComPtr<::Field> field;
    LONG type = -1;
    EXPECT_EQ(fields->get_Item(Arg(name), field.Receive()), S_OK);
    EXPECT_EQ(field->get_Type(&type), S_OK);
    return type;
  };
  EXPECT_EQ(type_of("IdProducto"), 202);
  EXPECT_EQ(type_of("Fecha"), SqlServer() ? 135 : 7);
  EXPECT_EQ(type_of("StockActual"), 5);
}

TEST_P(RecordsetOfStore, WholeNumbersComeAsLongWhereTheyFit) {
  Native("CREATE TABLE Cifras (Id INTEGER, Valor INTEGER); INSERT INTO Cifras VALUES (1, 2147483648)");
  const auto recordset = Opened(Connected(), "SELECT * FROM Cifras", kStatic, kReadOnly);
  EXPECT_EQ(ValueOf(recordset.Get(), "Id"), "Long 1");
  EXPECT_EQ(ValueOf(recordset.Get(), "Valor"), "Double 2147483648.000000");
}

TEST_P(RecordsetOfStore, ASearchStartsOnTheCurrentRow) {
  const auto recordset = Opened(Connected(), rows, kStatic, kReadOnly);
  EXPECT_EQ(recordset->Find(Bstr("Sucursal like '02'"), 0, 1, Arg()), S_OK);
  EXPECT_EQ(ValueOf(recordset.Get(), "Nombre"), "Sur");
  EXPECT_EQ(recordset->Find(Bstr("Sucursal = '01'"), 0, -1, Arg()), S_OK);
  EXPECT_EQ(ValueOf(recordset.Get(), "Nombre"), "Norte");
  EXPECT_EQ(recordset->Find(Bstr("Sucursal = '01'"), 1, 1, Arg()), S_OK);
  EXPECT_TRUE(AtEnd(recordset.Get()));
  EXPECT_EQ(recordset->Find(Bstr("Sucursal = '01'"), 0, 1, Arg()), AdoFailure(3021));
  EXPECT_EQ(recordset->MoveFirst(), S_OK);
  EXPECT_EQ(recordset->Find(Bstr("Sucursal = '01'"), 0, 2, Arg()), AdoFailure(3001));
  EXPECT_EQ(recordset->Find(Bstr("Sucursal"), 0, 1, Arg()), AdoFailure(3001));
  EXPECT_EQ(recordset->Find(Bstr("Ciudad = 'x'"), 0, 1, Arg()), AdoFailure(3265));
  EXPECT_EQ(recordset->Find(Bstr("Sucursal = '01'"), 0, 1, Arg(1)), AdoFailure(3251));
}

TEST_P(RecordsetOfStore, PropertiesSetBeforeTheOpeningServeAsItsArguments) {
  const auto connection = Connected();
  const ComPtr<::_Recordset> recordset = NewRecordset();
  EXPECT_EQ(recordset->put_Source(Bstr(rows)), S_OK);
  EXPECT_EQ(recordset->putref_ActiveConnection(connection.Get()), S_OK);
  EXPECT_EQ(recordset->put_CursorType(kStatic), S_OK);
  EXPECT_EQ(recordset->put_LockType(2), S_OK);
  EXPECT_EQ(recordset->Open(Arg(), Arg(), -1, -1, -1), S_OK);
  EXPECT_EQ(CountOf(recordset.Get()), 3);
  LONG lock = 0;
  EXPECT_EQ(recordset->get_LockType(&lock), S_OK);
  EXPECT_EQ(lock, 3);
  EXPECT_EQ(recordset->put_Source(Bstr("")), AdoFailure(3705));
  EXPECT_EQ(recordset->put_CursorType(0), AdoFailure(3705));
  EXPECT_EQ(recordset->put_LockType(1), AdoFailure(3705));
  EXPECT_EQ(recordset->putref_ActiveConnection(nullptr), AdoFailure(3705));
  Variant active;
  EXPECT_EQ(recordset->get_ActiveConnection(active.Address()), S_OK);
  EXPECT_EQ(V_DISPATCH(&active.Get()), connection.Get());
  Variant source;
  EXPECT_EQ(recordset->get_Source(source.Address()), S_OK);
  EXPECT_EQ(Shown(source.Get()), rows);
}

TEST_P(RecordsetOfStore, AConnectionStringGivesItAConnectionOfItsOwn) {
  const ComPtr<::_Recordset> recordset = NewRecordset();
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(ConnectionString()), kStatic, kReadOnly, -1), S_OK);
  EXPECT_EQ(CountOf(recordset.Get()), 3);
}

TEST_P(RecordsetOfStore, OpeningAnOpenOneIsRefused) {
  const auto connection = Connected();
  const auto recordset = Opened(connection, rows, kStatic, kReadOnly);
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(connection.Get()), kStatic, kReadOnly, -1), AdoFailure(3705));
  EXPECT_EQ(CountOf(recordset.Get()), 3);
}

TEST_P(RecordsetOfStore, WithoutAnOpenConnectionItIsRefused) {
  const ComPtr<::_Recordset> recordset = NewRecordset();
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(), kStatic, kReadOnly, -1), AdoFailure(3709));
  const ComPtr<::_Connection> closed = NewConnection();
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(closed.Get()), kStatic, kReadOnly, -1), AdoFailure(3709));
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(static_cast<IDispatch*>(nullptr)), kStatic, kReadOnly, -1),
            AdoFailure(3709));
  EXPECT_EQ(recordset->Open(Arg(rows), Arg::Null(), kStatic, kReadOnly, -1), AdoFailure(3709));
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(recordset.Get()), kStatic, kReadOnly, -1), AdoFailure(3001));
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(Connected().Get()), 9, kReadOnly, -1), AdoFailure(3001));
  EXPECT_EQ(StateOf(recordset.Get()), 0);
}

TEST_P(RecordsetOfStore, ClosingTheConnectionClosesIt) {
  const auto connection = Connected();
  const auto recordset = Opened(connection, rows, kStatic, kReadOnly);
  EXPECT_EQ(connection->Close(), S_OK);
  EXPECT_EQ(StateOf(recordset.Get()), 0);
  VARIANT_BOOL end = VARIANT_FALSE;
  EXPECT_EQ(recordset->get_EOF(&end), AdoFailure(3704));
  ComPtr<::Fields> fields;
  LONG count = -1;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  EXPECT_EQ(fields->get_Count(&count), S_OK);
  EXPECT_EQ(count, 0);
}

TEST_P(RecordsetOfStore, AStatementWithoutRowsLeavesItClosedForTheNext) {
  const auto connection = Connected();
  const auto recordset =
      Opened(connection, "DELETE FROM Sucursales WHERE Sucursal Like '02'", kDynamic, kOptimistic);
  EXPECT_EQ(StateOf(recordset.Get()), 0);
  EXPECT_EQ(recordset->Open(Arg(rows), Arg(connection.Get()), kStatic, kReadOnly, -1), S_OK);
  EXPECT_EQ(CountOf(recordset.Get()), 2);
}

TEST_P(RecordsetOfStore, WhatItDoesNotProvideSaysSo) {
  const auto recordset = Opened(Connected(), rows, kStatic, kOptimistic);
  Variant value;
  ADO_LONGPTR count = 1;
  ComPtr<::_Recordset> other;
  const std::vector<std::function<HRESULT()>> uses = {
      [&] { return recordset->Delete(1); },
      [&] { return recordset->GetRows(-1, Arg(), Arg(), value.Address()); },
      [&] { return recordset->Move(1, Arg()); },
      [&] { return recordset->Requery(-1); },
      [&] { return recordset->put_Filter(Arg("Sucursal = '01'")); },
      [&] { return recordset->put_Sort(Bstr("Nombre")); },
      [&] { return recordset->get_Bookmark(value.Address()); },
      [&] { return recordset->get_PageCount(&count); },
      [&] { return recordset->Clone(-1, other.Receive()); },
      [&] { return recordset->UpdateBatch(3); },
      [&] { return recordset->Save(Arg("x"), 0); },
      [&] { return recordset->AddNew(Arg("Nombre"), Arg("x")); },
      [&] { return recordset->Update(Arg("Nombre"), Arg("x")); }};
  for (std::size_t use = 0; use < uses.size(); ++use) {
    const Failure failure = FailureOf(uses[use]());
    EXPECT_EQ(failure.result, AdoFailure(3251)) << use;
    EXPECT_EQ(failure.description, "Object or provider is not capable of performing requested operation.")
        << use;
  }
  EXPECT_EQ(count, 0);
}

INSTANTIATE_TEST_SUITE_P(Dialects, RecordsetOfStore, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOf);

}  // namespace
}  // namespace orvendal::store_client
