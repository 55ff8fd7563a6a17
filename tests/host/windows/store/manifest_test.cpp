#include "tests/host/windows/store/store_client.h"

namespace orvendal::store_client {
namespace {

/// A program with a manifest that names the store: COM gives it the store for ADO's own identifiers, whatever
/// the registry says.
class StoreByManifest : public StoreTest {
 protected:
  StoreByManifest() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~StoreByManifest() override { CoUninitialize(); }

  static std::string ModuleOf(IUnknown* object) {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       *reinterpret_cast<LPCWSTR*>(object), &module);
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(module, path, MAX_PATH);
    const std::string text = Utf8Text(path);
    return text.substr(text.rfind('\\') + 1);
  }
};

TEST_P(StoreByManifest, TheClassesOfADOAreTheStores) {
  ComPtr<::_Connection> connection;
  ASSERT_EQ(CoCreateInstance(ado::kConnectionClass, nullptr, CLSCTX_INPROC_SERVER, ado::kConnection,
                             connection.ReceiveVoid()),
            S_OK);
  EXPECT_EQ(ModuleOf(connection.Get()), "OrvendalStore.dll");
  EXPECT_EQ(connection->Open(Bstr(ConnectionString()), nullptr, nullptr, -1), S_OK);
  ComPtr<::_Recordset> recordset;
  ASSERT_EQ(CoCreateInstance(ado::kRecordsetClass, nullptr, CLSCTX_INPROC_SERVER, ado::kNewerRecordset,
                             recordset.ReceiveVoid()),
            S_OK);
  EXPECT_EQ(recordset->Open(Arg("SELECT * FROM Sucursales"), Arg(connection.Get()), kStatic, kReadOnly, -1),
            S_OK);
}

TEST_P(StoreByManifest, TheirNamesLeadToTheStoreToo) {
  for (const wchar_t* name : {L"ADODB.Connection", L"ADODB.Recordset"}) {
    CLSID class_id{};  // one that the system makes up for the program
    ComPtr<IDispatch> object;
    EXPECT_EQ(CLSIDFromProgID(name, &class_id), S_OK);
    ASSERT_EQ(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.ReceiveVoid()),
              S_OK);
    EXPECT_EQ(ModuleOf(object.Get()), "OrvendalStore.dll");
  }
}

INSTANTIATE_TEST_SUITE_P(Dialects, StoreByManifest, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         NameOf);

}  // namespace
}  // namespace orvendal::store_client
