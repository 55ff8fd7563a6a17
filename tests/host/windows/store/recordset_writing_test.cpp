#include <limits>

#include "adapters/win32/user_region.h"
#include "tests/host/windows/store/store_client.h"

namespace orvendal::store_client {
namespace {

/// Adding rows, as a save does.
class RecordsetWriting : public StoreTest {
 protected:
  static LONG EditModeOf(::_Recordset* recordset) {
    LONG mode = -1;
    EXPECT_EQ(recordset->get_EditMode(&mode), S_OK);
    return mode;
  }
  ComPtr<::_Recordset> History() {
    return Opened(Connected(), "SELECT HistOrvendalcial.* FROM HistOrvendalcial", kDynamic, kOptimistic);
  }
  static void Collect(::_Recordset* recordset, const char* field, const Arg& value) {
    const HRESULT result = recordset->put_Collect(Arg(field), value);
    EXPECT_EQ(result, S_OK) << field << ": " << FailureOf(result).description;
  }
  static void StartRow(::_Recordset* recordset) {
    EXPECT_EQ(recordset->AddNew(Arg(), Arg()), S_OK);
    Collect(recordset, "IdSucursal", "01");
    Collect(recordset, "Fecha", Arg::Date(46342));
    Collect(recordset, "IdProducto", "A");
  }
  std::string Stored(const std::string& field) {
    return NativeValue("SELECT " + field + " FROM HistOrvendalcial");
  }
};

TEST_P(RecordsetWriting, ANewRowIsTheCurrentOneAndIsPostedByUpdate) {
  const ComPtr<::_Recordset> recordset = History();
  EXPECT_EQ(EditModeOf(recordset.Get()), 0);
  StartRow(recordset.Get());
  EXPECT_EQ(EditModeOf(recordset.Get()), 2);
  EXPECT_EQ(ValueOf(recordset.Get(), "IdProducto"), "A");
  EXPECT_EQ(Stored("COUNT(*)"), "0");
  EXPECT_EQ(recordset->Update(Arg(), Arg()), S_OK);
  EXPECT_EQ(EditModeOf(recordset.Get()), 0);
  EXPECT_EQ(Stored("COUNT(*)"), "1");
  EXPECT_EQ(ValueOf(recordset.Get(), "IdProducto"), "A");
  EXPECT_EQ(recordset->Close(), S_OK);
}

TEST_P(RecordsetWriting, ARowThatIsNotPostedForbidsTheClosing) {
  const ComPtr<::_Recordset> recordset = History();
  StartRow(recordset.Get());
  const Failure failure = FailureOf(recordset->Close());
  EXPECT_EQ(failure.result, AdoFailure(3219));
  EXPECT_EQ(failure.source, "ADODB.Recordset");
  EXPECT_EQ(failure.description, "Operation is not allowed in this context.");
  EXPECT_EQ(EditModeOf(recordset.Get()), 2);
  EXPECT_EQ(recordset->CancelUpdate(), S_OK);
  EXPECT_EQ(EditModeOf(recordset.Get()), 0);
  EXPECT_EQ(recordset->Close(), S_OK);
  EXPECT_EQ(Stored("COUNT(*)"), "0");
}

TEST_P(RecordsetWriting, TheLastReferenceDropsARowThatIsNotPosted) {
  {
    const ComPtr<::_Recordset> recordset = History();
    StartRow(recordset.Get());
  }
  EXPECT_EQ(Stored("COUNT(*)"), "0");
  EXPECT_EQ(CanUnload(), S_OK);
}

TEST_P(RecordsetWriting, TextsAreReadAsTheUserWritesThem) {
  const Region region = UserRegionOfSystem();
  const ComPtr<::_Recordset> recordset = History();
  StartRow(recordset.Get());
  Collect(recordset.Get(), "Fecha", region.ToText(Date(2026, 11, 16)));
  Collect(recordset.Get(), "StockAnterior", region.ToText(2.5));
  Collect(recordset.Get(), "StockActual", "-7");
  Collect(recordset.Get(), "Actualizado", region.ToText(Date(2026, 11, 3, 21, 5, 9)));
  EXPECT_EQ(ValueOf(recordset.Get(), "StockAnterior"), "Double 2.500000");
  EXPECT_EQ(recordset->Update(Arg(), Arg()), S_OK);
  EXPECT_EQ(Stored("Fecha"), "2026-11-16 00:00:00");
  EXPECT_EQ(Stored("StockAnterior"), "2.5");
  EXPECT_EQ(Stored("StockActual"), "-7");
  EXPECT_EQ(Stored("Actualizado"), "2026-11-03 21:05:09");
}

TEST_P(RecordsetWriting, ATextThatIsNoNumberIsRefusedAtTheAssignment) {
  const ComPtr<::_Recordset> recordset = History();
  StartRow(recordset.Get());
  const Failure failure = FailureOf(recordset->put_Collect(Arg("StockActual"), Arg("siete")));
  EXPECT_EQ(failure.result, AdoFailure(3421));
  EXPECT_EQ(failure.description, "Application uses a value of the wrong type for the current operation.");
  EXPECT_EQ(recordset->put_Collect(Arg("Fecha"), Arg("ayer")), AdoFailure(3421));
  EXPECT_EQ(EditModeOf(recordset.Get()), 2);
}

TEST_P(RecordsetWriting, ValuesOfEveryTypeAreTaken) {
  const ComPtr<::_Recordset> recordset = History();
  StartRow(recordset.Get());
  VARIANT value;
  VariantInit(&value);
  const auto taken_as = [&] {
    EXPECT_EQ(recordset->put_Collect(Arg("StockActual"), value), S_OK) << V_VT(&value);
    return ValueOf(recordset.Get(), "StockActual");
  };
  V_VT(&value) = VT_I2;
  V_I2(&value) = -3;
  EXPECT_EQ(taken_as(), "Double -3.000000");
  V_VT(&value) = VT_BOOL;
  V_BOOL(&value) = VARIANT_TRUE;
  EXPECT_EQ(taken_as(), "Double -1.000000");
  V_VT(&value) = VT_CY;
  V_CY(&value).int64 = 12500;
  EXPECT_EQ(taken_as(), "Double 1.250000");
  VARIANT behind = value;
  V_VT(&value) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&value) = &behind;
  V_CY(&behind).int64 = 20000;
  EXPECT_EQ(taken_as(), "Double 2.000000");
  EXPECT_EQ(recordset->put_Collect(Arg("StockActual"), Arg::Null()), S_OK);
  EXPECT_EQ(ValueOf(recordset.Get(), "StockActual"), "Null");
  V_VT(&value) = VT_EMPTY;
  EXPECT_EQ(taken_as(), "Null");
  V_VT(&value) = VT_UNKNOWN;
  V_UNKNOWN(&value) = nullptr;
  EXPECT_EQ(recordset->put_Collect(Arg("StockActual"), value), AdoFailure(3421));
}

TEST_P(RecordsetWriting, AFieldOfAnotherRecordsetStandsForItsValue) {
  Native("INSERT INTO Sucursales VALUES ('01','Norte')");
  const auto branches = Opened(Connected(), "SELECT * FROM Sucursales", kStatic, kReadOnly);
  ComPtr<::Fields> fields;
  ComPtr<::Field> field;
  EXPECT_EQ(branches->get_Fields(fields.Receive()), S_OK);
  EXPECT_EQ(fields->get_Item(Arg("Sucursal"), field.Receive()), S_OK);
  const ComPtr<::_Recordset> recordset = History();
  StartRow(recordset.Get());
  Collect(recordset.Get(), "ModificadoPor", Arg(field.Get()));
  EXPECT_EQ(ValueOf(recordset.Get(), "ModificadoPor"), "01");
}

TEST_P(RecordsetWriting, ANumberThatIsNoneIsAnOverflowInBothDirections) {
  Native("INSERT INTO ProdSucStock VALUES ('01','P1',9e999),('01','P2',-9e999)");
  const auto stored =
      Opened(Connected(), "SELECT * FROM ProdSucStock ORDER BY IdProducto", kStatic, kReadOnly);
  for (int row = 0; row < 2; ++row) {
    EXPECT_EQ(ValueOf(stored.Get(), "IdProducto"), "P" + std::to_string(row + 1));
    EXPECT_EQ(ValueOf(stored.Get(), "Stock"), "Overflow");
    Variant collected;
    EXPECT_EQ(stored->get_Collect(Arg("Stock"), collected.Address()), AdoFailure(6));
    EXPECT_EQ(stored->MoveNext(), S_OK);
  }
  const auto added = Opened(Connected(), "SELECT * FROM ProdSucStock", kDynamic, kOptimistic);
  ASSERT_EQ(added->AddNew(Arg(), Arg()), S_OK);
  for (const double number :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(added->put_Collect(Arg("Stock"), Arg(number)), AdoFailure(6)) << number;
    EXPECT_EQ(added->put_Collect(Arg("Stock"), Arg::Date(number)), AdoFailure(6)) << number;
  }
  EXPECT_EQ(added->CancelUpdate(), S_OK);
}

TEST_P(RecordsetWriting, AReferenceToNothingIsNoValueAndNoField) {
  const auto recordset = Opened(Connected(), "SELECT * FROM Sucursales", kDynamic, kOptimistic);
  ASSERT_EQ(recordset->AddNew(Arg(), Arg()), S_OK);
  for (const VARENUM type : {VT_VARIANT, VT_BSTR, VT_R8}) {
    VARIANT nothing = {};
    V_VT(&nothing) = static_cast<VARTYPE>(VT_BYREF | type);
    V_BYREF(&nothing) = nullptr;
    EXPECT_EQ(recordset->put_Collect(Arg("Nombre"), nothing), AdoFailure(3421)) << type;
    EXPECT_EQ(recordset->put_Collect(nothing, Arg("Norte")), AdoFailure(3001)) << type;
  }
  EXPECT_EQ(recordset->CancelUpdate(), S_OK);
}

TEST_P(RecordsetWriting, ARowThatTheStoreRefusesStaysPending) {
  const ComPtr<::_Recordset> recordset = History();
  StartRow(recordset.Get());
  Collect(recordset.Get(), "IdProducto", std::string(21, 'A'));
  const Failure too_long = FailureOf(recordset->Update(Arg(), Arg()));
  EXPECT_EQ(too_long.result, static_cast<HRESULT>(0x80040E21));
  EXPECT_EQ(too_long.source, "OrvendalStore");
  EXPECT_EQ(EditModeOf(recordset.Get()), 2);
  Collect(recordset.Get(), "IdProducto", "A");
  EXPECT_EQ(recordset->Update(Arg(), Arg()), S_OK);
}

TEST_P(RecordsetWriting, ADuplicateKeyHasTheProvidersNumber) {
  Native("INSERT INTO Sucursales VALUES ('01','Norte')");
  const auto recordset = Opened(Connected(), "SELECT * FROM Sucursales", kDynamic, kOptimistic);
  EXPECT_EQ(recordset->AddNew(Arg(), Arg()), S_OK);
  Collect(recordset.Get(), "Sucursal", "01");
  EXPECT_EQ(recordset->Update(Arg(), Arg()), SqlServer() ? static_cast<HRESULT>(0x80040E2F) : E_FAIL);
  EXPECT_EQ(recordset->CancelUpdate(), S_OK);
}

TEST_P(RecordsetWriting, RowsThatAreThereAndReadOnlyRecordsetsAreNotWritten) {
  Native("INSERT INTO Sucursales VALUES ('01','Norte')");
  const auto connection = Connected();
  const auto writable = Opened(connection, "SELECT * FROM Sucursales", kDynamic, kOptimistic);
  EXPECT_EQ(writable->put_Collect(Arg("Nombre"), Arg("Sur")), AdoFailure(3251));
  const auto readable = Opened(connection, "SELECT * FROM Sucursales", kStatic, kReadOnly);
  EXPECT_EQ(readable->AddNew(Arg(), Arg()), AdoFailure(3251));
  EXPECT_EQ(NativeValue("SELECT Nombre FROM Sucursales"), "Norte");
}

TEST_P(RecordsetWriting, ARowIsAssignedThroughItsFieldsToo) {
  const ComPtr<::_Recordset> recordset = History();
  StartRow(recordset.Get());
  ComPtr<::Fields> fields;
  ComPtr<::Field> field;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  EXPECT_EQ(fields->get_Item(Arg("stockActual"), field.Receive()), S_OK);
  EXPECT_EQ(field->put_Value(Arg(9)), S_OK);
  EXPECT_EQ(recordset->Update(Arg(), Arg()), S_OK);
  EXPECT_EQ(Stored("StockActual"), "9");
}

INSTANTIATE_TEST_SUITE_P(Dialects, RecordsetWriting, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOf);

}  // namespace
}  // namespace orvendal::store_client
