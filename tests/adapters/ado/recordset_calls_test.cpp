#include <limits>

#include "tests/adapters/ado/ado_fixture.h"

namespace orvendal::ado_testing {
namespace {

class RecordsetCalls : public AdoTest {};

TEST_F(RecordsetCalls, AStatementIsOpenedWithItsModeOnTheConnection) {
  recordset->Open("SELECT 'ñ'", connection, CursorType::kStatic, LockType::kReadOnly, kCommandUnspecified);
  recordset->Open("DELETE", connection, CursorType::kDynamic, LockType::kOptimistic, kCommandUnspecified);
  EXPECT_EQ(provider.calls,
            (Calls{"Open('SELECT 'ñ'', object, 3, 1, -1)", "Open('DELETE', object, 2, 3, -1)"}));
}

TEST_F(RecordsetCalls, WithoutAConnectionTheProviderIsAskedAllTheSame) {
  provider.failures["Open"] = {static_cast<HRESULT>(0x800A0E7D), L"The connection cannot be used"};
  const Raised raised = RaisedBy([this] {
    recordset->Open("SELECT 1", nullptr, CursorType::kStatic, LockType::kReadOnly, kCommandUnspecified);
  });
  EXPECT_EQ(raised.number, ado_error::kInvalidConnection);
  EXPECT_EQ(raised.description, "The connection cannot be used");
  EXPECT_EQ(provider.calls, Calls{"Open('SELECT 1', nothing, 3, 1, -1)"});
}

TEST_F(RecordsetCalls, TheProviderIsReadFromTheConnectionEachTime) {
  EXPECT_EQ(connection->Provider(), "SQLOLEDB.1");
  provider.provider = L"Microsoft.Jet.OLEDB.4.0";
  EXPECT_EQ(connection->Provider(), "Microsoft.Jet.OLEDB.4.0");
  EXPECT_EQ(provider.calls, (Calls{"Provider", "Provider"}));
}

TEST_F(RecordsetCalls, AConnectionThatNamesNoProviderHasAnEmptyName) {
  provider.null_provider_name = true;
  EXPECT_EQ(connection->Provider(), "");
}

TEST_F(RecordsetCalls, EachOperationIsOneCallOfItsOwn) {
  OpenRows();
  provider.at_end = VARIANT_TRUE;
  EXPECT_TRUE(recordset->AtEnd());
  provider.at_end = 1;
  EXPECT_TRUE(recordset->AtEnd()) << "any value but zero is true";
  provider.at_end = VARIANT_FALSE;
  EXPECT_FALSE(recordset->AtEnd());
  recordset->MoveNext();
  provider.state = 1;
  EXPECT_EQ(recordset->State(), kStateOpen);
  recordset->AddNew();
  recordset->Update();
  recordset->CancelUpdate();
  recordset->Close();
  EXPECT_EQ(provider.calls, (Calls{"EOF", "EOF", "EOF", "MoveNext", "State", "AddNew(missing, missing)",
                                   "Update(missing, missing)", "CancelUpdate", "Close"}));
}

TEST_F(RecordsetCalls, ASearchLeavesItsStartOut) {
  OpenRows();
  recordset->Find("Sucursal like '01'", 0, SearchDirection::kForward);
  recordset->Find("Sucursal like '01'", 2, SearchDirection::kBackward);
  EXPECT_EQ(provider.calls, (Calls{"Find('Sucursal like '01'', 0, 1, missing)",
                                   "Find('Sucursal like '01'', 2, -1, missing)"}));
}

TEST_F(RecordsetCalls, PositionsAreAsWideAsAPointer) {
  OpenRows();
  recordset->AbsolutePosition(7);
  recordset->AbsolutePosition(-3);
  EXPECT_EQ(provider.calls, (Calls{"AbsolutePosition(7)", "AbsolutePosition(-3)"}));
}

TEST_F(RecordsetCalls, CountsAreAsWideAsAPointer) {
  OpenRows();
  provider.record_count = 2'147'483'647;
  EXPECT_EQ(recordset->RecordCount(), 2'147'483'647);
  provider.record_count = -1;
  EXPECT_EQ(recordset->RecordCount(), -1);
  if (sizeof(LONG_PTR) > sizeof(LONG)) {
    const long long beyond = 4'294'967'297;  // 1 in its lower half
    provider.record_count = static_cast<LONG_PTR>(beyond);
    EXPECT_EQ(NumberOf([this] { recordset->RecordCount(); }), error_number::kOverflow);
    provider.record_count = static_cast<LONG_PTR>(-beyond);
    EXPECT_EQ(NumberOf([this] { recordset->RecordCount(); }), error_number::kOverflow);
  }
}

TEST_F(RecordsetCalls, AValueIsAssignedInTheTypeThatItHas) {
  OpenRows();
  recordset->Collect("stockAnterior", "12,5");
  recordset->Collect("Nombre", "Núñez");
  recordset->Collect("StockActual", 12.5);
  recordset->Collect("Fecha", Date(2026, 11, 16, 12));
  recordset->Collect("IdEmpleado", Value());
  EXPECT_EQ(provider.calls, (Calls{"Collect('stockAnterior', '12,5')", "Collect('Nombre', 'Núñez')",
                                   "Collect('StockActual', R8 12.5)", "Collect('Fecha', DATE 46342.5)",
                                   "Collect('IdEmpleado', Null)"}));
}

TEST_F(RecordsetCalls, ANumberThatIsNoneIsAnOverflow) {
  OpenRows();
  for (const double number :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity()}) {
    VARIANT wide = {}, narrow = {}, date = {};
    V_VT(&wide) = VT_R8;
    V_R8(&wide) = number;
    V_VT(&narrow) = VT_R4;
    V_R4(&narrow) = static_cast<float>(number);
    V_VT(&date) = VT_DATE;
    V_DATE(&date) = number;
    provider.values = {{"Stock", wide}, {"Corto", narrow}, {"Fecha", date}};
    for (const char* field : {"Stock", "Corto", "Fecha"}) {
      EXPECT_EQ(NumberOf([&] { Read(field); }), error_number::kOverflow) << field << " " << number;
    }
  }
}

TEST_F(RecordsetCalls, AFieldIsLookedUpOnceForAllRowsOfAStatement) {
  provider.values = {{"Codigo", Long(1)}, {"Nombre", Text(L"Núñez")}};
  OpenRows();
  for (int row = 0; row < 1000; ++row) {
    provider.values["Codigo"] = Long(row);
    ASSERT_EQ(Read("Codigo"), Value(row));
    ASSERT_EQ(Read("Nombre"), Value("Núñez"));
    recordset->MoveNext();
  }
  EXPECT_EQ(provider.Count("Item"), 2U);
  EXPECT_EQ(provider.Count("Fields"), 2U);
  EXPECT_EQ(provider.Count("Value"), 2000U);
  EXPECT_EQ(provider.calls[0], "Fields");
  EXPECT_EQ(provider.calls[1], "Item('Codigo')");
  EXPECT_EQ(provider.calls[2], "Value(Codigo)");
}

TEST_F(RecordsetCalls, AFieldsObjectsAreLetGoWithItsStatement) {
  provider.values = {{"Codigo", Long(1)}};
  OpenRows();
  Read("Codigo");
  EXPECT_EQ(RawObject::alive, 3) << "connection, recordset, field";
  recordset->Close();
  EXPECT_EQ(RawObject::alive, 2);
  OpenRows("SELECT 2");
  provider.values["Codigo"] = Long(2);
  EXPECT_EQ(Read("Codigo"), Value(2));
  EXPECT_EQ(provider.Count("Item"), 1U);
}

TEST_F(RecordsetCalls, AnOpenThatFailsLeavesTheFieldsOfTheOpenStatement) {
  provider.values = {{"Codigo", Long(1)}};
  OpenRows();
  const Field field = recordset->Fields("Codigo");
  provider.failures["Open"] = {static_cast<HRESULT>(0x800A0E79)};
  EXPECT_EQ(NumberOf([this] { OpenRows(); }), ado_error::kObjectOpen);
  EXPECT_EQ(field.Value(), Value(1));
}

// A dictionary's statement is its host's, who may open another at any time.
TEST_F(RecordsetCalls, AFieldOfAStatementOpenedElsewhereIsLookedUpAnew) {
  provider.values = {{"Buscar", Text(L"Buscar")}, {"Fecha", Text(L"Fecha")}};
  EXPECT_EQ(Read("Buscar"), Value("Buscar"));
  EXPECT_EQ(Read("Fecha"), Value("Fecha"));
  provider.values["Buscar"] = Text(L"Search");
  EXPECT_EQ(Read("Buscar"), Value("Search"));
  EXPECT_EQ(provider.Count("Item"), 3U);
  EXPECT_EQ(RawObject::alive, 4) << "connection, recordset, one object for each name";
}

TEST_F(RecordsetCalls, FieldsAreCountedAndNamed) {
  provider.values = {{"Codigo", Long(1)}, {"Nombre", Text(L"x")}};
  ASSERT_EQ(recordset->FieldCount(), 2U);
  EXPECT_EQ(recordset->FieldName(1), "Nombre");
  EXPECT_EQ(NumberOf([this] { recordset->FieldName(2); }), ado_error::kItemNotFound);
}

TEST_F(RecordsetCalls, TheModuleStaysWhileACallIsOut) {
  bool stays = false;
  provider.meanwhile["MoveNext"] = [&stays] { stays = !module_lifetime::IsFree(); };
  recordset->MoveNext();
  EXPECT_TRUE(stays);
}

}  // namespace
}  // namespace orvendal::ado_testing
