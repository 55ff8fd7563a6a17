#include "tests/host/windows/store/store_client.h"

// After the system's own header, which it stands on.
#include <winver.h>

namespace orvendal::store_client {
namespace {

/// What COM sees of the DLL and of its objects.
class IdentityOfStore : public StoreTest {
 protected:
  /// Which of these the object answers to; each answer is the same object.
  static void ExpectAnswers(IUnknown* object, const std::vector<GUID>& identifiers) {
    ComPtr<IUnknown> identity;
    EXPECT_EQ(object->QueryInterface(IID_IUnknown, identity.ReceiveVoid()), S_OK);
    for (const GUID& identifier : identifiers) {
      ComPtr<IUnknown> answer;
      ComPtr<IUnknown> same;
      ASSERT_EQ(object->QueryInterface(identifier, answer.ReceiveVoid()), S_OK)
          << std::hex << identifier.Data1;
      EXPECT_EQ(answer->QueryInterface(IID_IUnknown, same.ReceiveVoid()), S_OK);
      EXPECT_EQ(same.Get(), identity.Get()) << std::hex << identifier.Data1;
    }
  }
  static void ExpectNoAnswer(IUnknown* object, REFIID identifier) {
    void* answer = object;
    EXPECT_EQ(object->QueryInterface(identifier, &answer), E_NOINTERFACE);
    EXPECT_EQ(answer, nullptr);
  }
  static ULONG References(IUnknown* object) {
    object->AddRef();
    return object->Release();
  }
};

TEST_P(IdentityOfStore, ItExportsTheClassObjectsAndNoRegistration) {
  EXPECT_NE(GetProcAddress(dll, "DllGetClassObject"), nullptr);
  EXPECT_NE(GetProcAddress(dll, "DllCanUnloadNow"), nullptr);
  EXPECT_EQ(GetProcAddress(dll, "DllRegisterServer"), nullptr);
  EXPECT_EQ(GetProcAddress(dll, "DllUnregisterServer"), nullptr);
}

TEST_P(IdentityOfStore, AConnectionAnswersToOlderNewerAndBaseIdentifiers) {
  const ComPtr<::_Connection> connection = NewConnection();
  ExpectAnswers(connection.Get(),
                {IID_IUnknown, IID_IDispatch, IID_ISupportErrorInfo, ado::kAdo, ado::kNewerAdo,
                 ado::kConnection15, ado::kNewerConnection15, ado::kConnection, ado::kNewerConnection});
  ExpectNoAnswer(connection.Get(), ado::kRecordset);
}

TEST_P(IdentityOfStore, ARecordsetAnswersToOlderNewerAndBaseIdentifiers) {
  const ComPtr<::_Recordset> recordset = NewRecordset();
  ExpectAnswers(recordset.Get(),
                {IID_IUnknown, IID_IDispatch, IID_ISupportErrorInfo, ado::kAdo, ado::kNewerAdo,
                 ado::kRecordset15, ado::kNewerRecordset15, ado::kRecordset20, ado::kNewerRecordset20,
                 ado::kRecordset21, ado::kNewerRecordset21, ado::kRecordset, ado::kNewerRecordset});
  ExpectNoAnswer(recordset.Get(), ado::kConnection);
}

TEST_P(IdentityOfStore, FieldsAnswerToOlderNewerAndBaseIdentifiers) {
  const auto recordset = Opened(Connected(), "SELECT * FROM Sucursales", kStatic, kReadOnly);
  ComPtr<::Fields> fields;
  ComPtr<::Field> field;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  EXPECT_EQ(fields->get_Item(Arg(0), field.Receive()), S_OK);
  ExpectAnswers(fields.Get(),
                {IID_IDispatch, ado::kCollection, ado::kNewerCollection, ado::kFields15, ado::kNewerFields15,
                 ado::kFields20, ado::kNewerFields20, ado::kFields, ado::kNewerFields});
  ExpectNoAnswer(fields.Get(), ado::kAdo);
  ExpectAnswers(field.Get(), {IID_IDispatch, ado::kAdo, ado::kNewerAdo, ado::kField20, ado::kNewerField20,
                              ado::kField, ado::kNewerField});
}

TEST_P(IdentityOfStore, EachObjectIsBornWithOneReferenceAndKeepsWhatItNeeds) {
  const ComPtr<::_Connection> connection = Connected();
  EXPECT_EQ(References(connection.Get()), 1U);
  ComPtr<::_Recordset> recordset = Opened(connection, "SELECT * FROM Sucursales", kStatic, kReadOnly);
  EXPECT_EQ(References(recordset.Get()), 1U);
  EXPECT_EQ(References(connection.Get()), 2U);
  ComPtr<::Fields> fields;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  EXPECT_EQ(References(fields.Get()), 1U);
  EXPECT_EQ(References(recordset.Get()), 2U);
  recordset.Reset();
  LONG count = 0;
  EXPECT_EQ(fields->get_Count(&count), S_OK);
  EXPECT_EQ(count, 2);
  fields.Reset();
  EXPECT_EQ(References(connection.Get()), 1U);
}

TEST_P(IdentityOfStore, TheDllStaysWhileAnObjectLives) {
  EXPECT_EQ(CanUnload(), S_OK);
  {
    ComPtr<::_Connection> connection = Connected();
    EXPECT_EQ(CanUnload(), S_FALSE);
    const auto recordset = Opened(connection, "SELECT * FROM Sucursales", kStatic, kReadOnly);
    connection.Reset();
    ComPtr<::Fields> fields;
    ComPtr<IUnknown> fields_in_turn;
    EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
    EXPECT_EQ(fields->_NewEnum(fields_in_turn.Receive()), S_OK);
    EXPECT_EQ(CanUnload(), S_FALSE);
  }
  EXPECT_EQ(CanUnload(), S_OK);
}

TEST_P(IdentityOfStore, ItIsUnloadedAndLoadedAgain) {
  for (int round = 0; round < 3; ++round) {
    {
      const auto recordset = Opened(Connected(), "SELECT * FROM Sucursales", kStatic, kReadOnly);
      DISPID id = 0;
      auto* name = const_cast<LPOLESTR>(L"recordcount");
      EXPECT_EQ(recordset->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    }
    ASSERT_EQ(CanUnload(), S_OK);
    FreeLibrary(dll);
    EXPECT_EQ(GetModuleHandleW(L"OrvendalStore.dll"), nullptr);
    SetUpTestSuite();
    ASSERT_NE(dll, nullptr);
  }
}

TEST_P(IdentityOfStore, NoOtherClassIsThereAndNothingIsAggregated) {
  auto* const get = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
      reinterpret_cast<void*>(GetProcAddress(dll, "DllGetClassObject")));
  ComPtr<IClassFactory> factory;
  EXPECT_EQ(get(ado::Identity(0x507), IID_IClassFactory, factory.ReceiveVoid()), CLASS_E_CLASSNOTAVAILABLE);
  ASSERT_EQ(get(ado::kRecordsetClass, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
  const ComPtr<::_Connection> outer = NewConnection();
  ComPtr<IUnknown> inner;
  EXPECT_EQ(factory->CreateInstance(outer.Get(), IID_IUnknown, inner.ReceiveVoid()), CLASS_E_NOAGGREGATION);
}

TEST_P(IdentityOfStore, ErrorsComeWithDescriptionsOnEachOfItsInterfaces) {
  const auto support = NewConnection().Query<ISupportErrorInfo>(IID_ISupportErrorInfo);
  ASSERT_TRUE(support);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(ado::kConnection), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(ado::kNewerConnection15), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(ado::kRecordset), S_FALSE);
}

TEST_P(IdentityOfStore, ItSaysItsVersion) {
  const std::wstring file = FileOfBuild(L"ORVENDAL_STORE_DLL");
  DWORD none = 0;
  const DWORD size = GetFileVersionInfoSizeW(file.c_str(), &none);
  ASSERT_GT(size, 0U);
  std::vector<char> block(size);
  ASSERT_TRUE(GetFileVersionInfoW(file.c_str(), 0, size, block.data()));
  VS_FIXEDFILEINFO* fixed = nullptr;
  UINT length = 0;
  ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
  EXPECT_EQ(fixed->dwFileVersionMS, 0x00010000U);
  EXPECT_EQ(fixed->dwFileVersionLS, 67U);
}

INSTANTIATE_TEST_SUITE_P(Dialects, IdentityOfStore, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOf);

}  // namespace
}  // namespace orvendal::store_client
