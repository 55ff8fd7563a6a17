#include "tests/adapters/com/invoke_client.h"
#include "tests/host/windows/store/store_client.h"

namespace orvendal::store_client {
namespace {

/// Late-bound, by names, as script engines and Office macros call.
class ScriptBinding : public StoreTest {
 protected:
  void SetUp() override { Native("INSERT INTO Sucursales VALUES ('01','Norte'),('02','Sur')"); }
  static std::string Got(InvokeClient& client, const wchar_t* member) {
    const HRESULT result = client.Get(member);
    return SUCCEEDED(result) ? Shown(client.result) : client.Description();
  }
  static std::string Got(InvokeClient& client, const wchar_t* member, const Arg& argument) {
    const HRESULT result = client.Get(member, {argument});
    return SUCCEEDED(result) ? Shown(client.result) : client.Description();
  }
  /// object(argument), with no member's name.
  static HRESULT Default(IDispatch* object, WORD flags, std::vector<VARIANT> reversed, VARIANT* result,
                         EXCEPINFO* exception = nullptr) {
    DISPID put = DISPID_PROPERTYPUT;
    const bool puts = (flags & DISPATCH_PROPERTYPUT) != 0;
    DISPPARAMS parameters{reversed.data(), puts ? &put : nullptr, static_cast<UINT>(reversed.size()),
                          puts ? 1U : 0U};
    return object->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, exception,
                          nullptr);
  }
  static constexpr WORD kGet = DISPATCH_PROPERTYGET | DISPATCH_METHOD;
};

TEST_P(ScriptBinding, AConnectionIsOpenedAskedAndClosedByNames) {
  const ComPtr<::_Connection> connection = NewConnection();
  InvokeClient client(connection.Get());
  const Arg text(ConnectionString());
  ASSERT_EQ(client.Get(L"open", {text}), S_OK) << client.Description();
  EXPECT_EQ(Got(client, L"State"), "Long 1");
  EXPECT_EQ(Got(client, L"PROVIDER"), Provider());
  const Arg command("SELECT Nombre FROM Sucursales ORDER BY Sucursal");
  ASSERT_EQ(client.Get(L"Execute", {command}), S_OK) << client.Description();
  ASSERT_EQ(V_VT(&client.result), VT_DISPATCH);
  InvokeClient rows(V_DISPATCH(&client.result));
  EXPECT_EQ(Got(rows, L"State"), "Long 1");
  ASSERT_EQ(client.Get(L"Close"), S_OK);
  EXPECT_EQ(Got(rows, L"State"), "Long 0");
}

TEST_P(ScriptBinding, ACommandWritesTheNumberOfRowsToTheScriptsVariable) {
  const ComPtr<::_Connection> connection = Connected();
  InvokeClient client(connection.Get());
  Variant affected;
  VARIANT reference;
  V_VT(&reference) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&reference) = affected.Address();
  const Arg command("UPDATE Sucursales SET Nombre = 'Este'");
  ASSERT_EQ(client.Get(L"Execute", {command, reference}), S_OK) << client.Description();
  EXPECT_EQ(Shown(affected.Get()), "Long 2");
}

TEST_P(ScriptBinding, ARecordsetIsOpenedWithTheArgumentsThatAreGiven) {
  const ComPtr<::_Connection> connection = Connected();
  const ComPtr<::_Recordset> recordset = NewRecordset();
  InvokeClient client(recordset.Get());
  const Arg statement("SELECT * FROM Sucursales ORDER BY Sucursal");
  const Arg active(connection.Get());
  ASSERT_EQ(client.Get(L"Open", {statement, active, Arg(3)}), S_OK) << client.Description();
  EXPECT_EQ(Got(client, L"RecordCount"), "Long 2");
  EXPECT_EQ(Got(client, L"LockType"), "Long 1");
  EXPECT_EQ(client.Put(L"AbsolutePosition", Arg(2)), S_OK);
  EXPECT_EQ(Got(client, L"Collect", "Nombre"), "Sur");
  EXPECT_EQ(client.Get(L"MoveFirst"), S_OK);
  const Arg criteria("Nombre like 'Sur'");
  EXPECT_EQ(client.Get(L"Find", {criteria}), S_OK) << client.Description();
  EXPECT_EQ(Got(client, L"AbsolutePosition"), "Long 2");
  EXPECT_EQ(client.Get(L"MoveNext"), S_OK);
  EXPECT_EQ(client.Get(L"EOF"), S_OK);
  EXPECT_EQ(V_VT(&client.result), VT_BOOL);
  EXPECT_EQ(V_BOOL(&client.result), VARIANT_TRUE);
}

TEST_P(ScriptBinding, ARecordsetCalledWithANameGivesTheField) {
  const auto recordset =
      Opened(Connected(), "SELECT * FROM Sucursales ORDER BY Sucursal", kStatic, kReadOnly);
  Variant field;
  const Arg name("Nombre");
  ASSERT_EQ(Default(recordset.Get(), kGet, {name}, field.Address()), S_OK);
  ASSERT_EQ(V_VT(&field.Get()), VT_DISPATCH);
  Variant value;
  ASSERT_EQ(Default(V_DISPATCH(&field.Get()), kGet, {}, value.Address()), S_OK);
  EXPECT_EQ(Shown(value.Get()), "Norte");
  InvokeClient client(V_DISPATCH(&field.Get()));
  EXPECT_EQ(Got(client, L"Name"), "Nombre");
  EXPECT_EQ(Got(client, L"Value"), "Norte");
  EXPECT_EQ(Got(client, L"DefinedSize"), "Long 60");
}

TEST_P(ScriptBinding, FieldsAreCountedCalledAndWalkedThrough) {
  const auto recordset =
      Opened(Connected(), "SELECT * FROM Sucursales ORDER BY Sucursal", kStatic, kReadOnly);
  InvokeClient client(recordset.Get());
  ASSERT_EQ(client.Get(L"Fields"), S_OK);
  const ComPtr<IDispatch> fields(V_DISPATCH(&client.result));
  InvokeClient fields_client(fields.Get());
  EXPECT_EQ(Got(fields_client, L"Count"), "Long 2");
  ASSERT_EQ(fields_client.Get(L"Item", {Arg(1)}), S_OK);
  InvokeClient item(V_DISPATCH(&fields_client.result));
  EXPECT_EQ(Got(item, L"Value"), "Norte");

  Variant enumerator;
  DISPPARAMS none{};
  ASSERT_EQ(fields->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT, kGet, &none, enumerator.Address(),
                           nullptr, nullptr),
            S_OK);
  const auto walk = ComPtr<IUnknown>(V_UNKNOWN(&enumerator.Get())).Query<IEnumVARIANT>(IID_IEnumVARIANT);
  ASSERT_TRUE(walk);
  Texts names;
  for (;;) {
    Variant field;
    ULONG fetched = 9;
    if (walk->Next(1, field.Address(), &fetched) != S_OK) {
      EXPECT_EQ(fetched, 0U);
      break;
    }
    InvokeClient named(V_DISPATCH(&field.Get()));
    names.push_back(Got(named, L"Name"));
  }
  EXPECT_EQ(names, (Texts{"Sucursal", "Nombre"}));
  EXPECT_EQ(walk->Reset(), S_OK);
  EXPECT_EQ(walk->Skip(2), S_OK);
  EXPECT_EQ(walk->Skip(1), S_FALSE);
}

TEST_P(ScriptBinding, ARowIsWrittenByAssignmentsToTheRecordsetAndItsFields) {
  const auto recordset = Opened(Connected(), "SELECT * FROM Sucursales", kStatic, kOptimistic);
  InvokeClient client(recordset.Get());
  ASSERT_EQ(client.Get(L"AddNew"), S_OK) << client.Description();
  EXPECT_EQ(Got(client, L"EditMode"), "Long 2");
  const Arg branch("Sucursal");
  const Arg name("Nombre");
  const Arg code("03");
  const Arg text("Oeste");
  EXPECT_EQ(Default(recordset.Get(), DISPATCH_PROPERTYPUT, {code, branch}, nullptr), S_OK);
  ASSERT_EQ(client.Get(L"Fields"), S_OK);
  EXPECT_EQ(Default(V_DISPATCH(&client.result), DISPATCH_PROPERTYPUT, {text, name}, nullptr), S_OK);
  ASSERT_EQ(client.Get(L"Update"), S_OK) << client.Description();
  EXPECT_EQ(NativeValue("SELECT Nombre FROM Sucursales WHERE Sucursal = '03'"), "Oeste");
}

TEST_P(ScriptBinding, AFailureComesWithNumberSourceAndText) {
  const ComPtr<::_Recordset> recordset = NewRecordset();
  InvokeClient client(recordset.Get());
  EXPECT_EQ(client.Get(L"MoveNext"), DISP_E_EXCEPTION);
  EXPECT_EQ(client.exception.scode, AdoFailure(3704));
  EXPECT_EQ(client.Source(), "ADODB.Recordset");
  EXPECT_EQ(client.Description(), "Operation is not allowed when the object is closed.");
  const auto open = Opened(Connected(), "SELECT * FROM Sucursales", kStatic, kReadOnly);
  for (const WORD flags : {kGet, WORD{DISPATCH_PROPERTYPUT}}) {
    Variant result;
    EXCEPINFO exception{};
    const Arg unknown("Ciudad");
    const Arg value("x");
    std::vector<VARIANT> arguments{unknown};
    if (flags == DISPATCH_PROPERTYPUT) arguments.insert(arguments.begin(), value);
    EXPECT_EQ(Default(open.Get(), flags, arguments, result.Address(), &exception), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, AdoFailure(3265));
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
  }
  EXPECT_EQ(client.IdOf(L"Abrir"), DISPID_UNKNOWN);
  EXPECT_EQ(client.Put(L"CursorType", Arg("forward")), DISP_E_TYPEMISMATCH);
}

TEST_P(ScriptBinding, ArgumentsAreNamedAsInADO) {
  const ComPtr<::_Recordset> recordset = NewRecordset();
  std::vector<std::wstring> names = {L"Open",       L"Source",   L"ActiveConnection",
                                     L"CursorType", L"LockType", L"Options"};
  std::vector<LPOLESTR> pointers;
  for (std::wstring& name : names) pointers.push_back(name.data());
  std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
  EXPECT_EQ(recordset->GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(pointers.size()),
                                     LOCALE_USER_DEFAULT, ids.data()),
            S_OK);
  EXPECT_EQ(ids, (std::vector<DISPID>{0x3FE, 0, 1, 2, 3, 4}));
}

// Clients in C leave the identifier that has no meaning out altogether.
TEST_P(ScriptBinding, AReservedIdentifierThatIsLeftOutIsNoHarm) {
  using Names = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, const IID*, LPOLESTR*, UINT, LCID, DISPID*);
  using Call = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, DISPID, const IID*, LCID, WORD, DISPPARAMS*, VARIANT*,
                                           EXCEPINFO*, UINT*);
  const ComPtr<::_Connection> connection = Connected();
  const ComPtr<::_Recordset> recordset = Opened(connection, "SELECT * FROM Sucursales", kStatic, kReadOnly);
  ComPtr<::Fields> fields;
  ComPtr<::Field> field;
  ASSERT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  ASSERT_EQ(fields->get_Item(Arg(1), field.Receive()), S_OK);
  const std::vector<std::pair<IDispatch*, const wchar_t*>> objects = {{connection.Get(), L"State"},
                                                                      {recordset.Get(), L"State"},
                                                                      {fields.Get(), L"Count"},
                                                                      {field.Get(), L"Type"}};
  for (const auto& [object, member] : objects) {
    const void* const* const table = *reinterpret_cast<const void* const* const*>(object);
    auto* name = const_cast<LPOLESTR>(member);
    DISPID id = 0;
    EXPECT_EQ(reinterpret_cast<Names>(const_cast<void*>(table[5]))(object, nullptr, &name, 1, 0, &id), S_OK);
    DISPPARAMS none{};
    Variant result;
    EXPECT_EQ(reinterpret_cast<Call>(const_cast<void*>(table[6]))(object, id, nullptr, 0, kGet, &none,
                                                                  result.Address(), nullptr, nullptr),
              S_OK);
    EXPECT_EQ(V_VT(&result.Get()), VT_I4) << Utf8Text(member);
    EXPECT_EQ(object->GetIDsOfNames(IID_IUnknown, &name, 1, 0, &id), DISP_E_UNKNOWNINTERFACE);
  }
}

TEST_P(ScriptBinding, ArgumentsThatArePromisedAndNotThereAreRefused) {
  const ComPtr<::_Connection> connection = Connected();
  const ComPtr<::_Recordset> recordset = Opened(connection, "SELECT * FROM Sucursales", kStatic, kReadOnly);
  ComPtr<::Fields> fields;
  ASSERT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  DISPID put = DISPID_PROPERTYPUT;
  for (IDispatch* const object :
       {static_cast<IDispatch*>(recordset.Get()), static_cast<IDispatch*>(fields.Get())}) {
    for (const UINT count : {1U, 2U}) {
      DISPPARAMS promised{nullptr, &put, count, 1};
      EXPECT_EQ(object->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_PROPERTYPUT, &promised, nullptr, nullptr,
                               nullptr),
                E_INVALIDARG);
    }
    DISPPARAMS nameless{nullptr, nullptr, 0, 1};
    EXPECT_EQ(object->Invoke(DISPID_VALUE, IID_NULL, 0, kGet, &nameless, nullptr, nullptr, nullptr),
              E_INVALIDARG);
  }
}

INSTANTIATE_TEST_SUITE_P(Dialects, ScriptBinding, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOf);

}  // namespace
}  // namespace orvendal::store_client
