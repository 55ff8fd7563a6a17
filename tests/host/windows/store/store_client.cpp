#include "tests/host/windows/store/store_client.h"

#include <filesystem>

#include "host/store/schema.h"

namespace orvendal::store_client {
namespace {

template <typename Function>
Function* Entry(HMODULE dll, const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(dll, name)));
}

std::filesystem::path PathOf(const std::string& utf8) {
  return WideText(utf8);
}

}  // namespace

StoreTest::StoreTest() {
  static int count = 0;
  wchar_t temporary[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, temporary);
  folder = Utf8Text(temporary) + "orvendal ñ Ω " + std::to_string(GetCurrentProcessId()) + "_" +
           std::to_string(++count);
  path = folder + "\\cadena.db";
  std::filesystem::remove_all(PathOf(folder));  // what a process that died may have left
  std::filesystem::create_directories(PathOf(folder));
  const auto store = SqliteConnection::Open(path, Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
  CreateSchema(*store);
}

StoreTest::~StoreTest() {
  std::error_code left;
  std::filesystem::remove_all(PathOf(folder), left);
}

ComPtr<IUnknown> StoreTest::Create(REFCLSID class_id) {
  ComPtr<IClassFactory> factory;
  auto* const get = Entry<HRESULT WINAPI(REFCLSID, REFIID, void**)>(dll, "DllGetClassObject");
  EXPECT_EQ(get(class_id, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
  ComPtr<IUnknown> object;
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, object.ReceiveVoid()), S_OK);
  return object;
}

HRESULT StoreTest::CanUnload() {
  return Entry<HRESULT WINAPI()>(dll, "DllCanUnloadNow")();
}

ComPtr<::_Connection> StoreTest::NewConnection() {
  return Create(ado::kConnectionClass).Query<::_Connection>(ado::kConnection);
}

ComPtr<::_Recordset> StoreTest::NewRecordset() {
  return Create(ado::kRecordsetClass).Query<::_Recordset>(ado::kRecordset);
}

ComPtr<::_Connection> StoreTest::Connected() {
  ComPtr<::_Connection> connection = NewConnection();
  EXPECT_EQ(connection->Open(Bstr(ConnectionString()), Bstr(""), Bstr(""), -1), S_OK);
  return connection;
}

ComPtr<::_Recordset> StoreTest::Opened(const ComPtr<::_Connection>& connection, const std::string& statement,
                                       LONG cursor, LONG lock) {
  ComPtr<::_Recordset> recordset = NewRecordset();
  const HRESULT result = recordset->Open(Arg(statement), Arg(connection.Get()), cursor, lock, -1);
  EXPECT_EQ(result, S_OK) << statement << ": " << FailureOf(result).description;
  return recordset;
}

void StoreTest::Native(const std::string& sql) {
  SqliteConnection::Open(path, Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting)->Execute(sql);
}

std::string StoreTest::NativeValue(const std::string& sql) {
  const auto store =
      SqliteConnection::Open(path, Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting);
  SqliteStatement statement(*store, sql);
  return statement.Step() ? statement.TextAt(0) : "no row";
}

std::string StoreTest::ValueOf(::_Recordset* recordset, const Arg& field) {
  ComPtr<::Fields> fields;
  ComPtr<::Field> found;
  Variant value;
  EXPECT_EQ(recordset->get_Fields(fields.Receive()), S_OK);
  const HRESULT named = fields->get_Item(field, found.Receive());
  if (FAILED(named)) return FailureOf(named).description;
  const HRESULT read = found->get_Value(value.Address());
  return FAILED(read) ? FailureOf(read).description : Shown(value.Get());
}

bool StoreTest::AtEnd(::_Recordset* recordset) {
  VARIANT_BOOL end = VARIANT_TRUE;
  EXPECT_EQ(recordset->get_EOF(&end), S_OK);
  return end != VARIANT_FALSE;
}

std::vector<std::string> StoreTest::Column(::_Recordset* recordset, const Arg& field) {
  std::vector<std::string> values;
  while (!AtEnd(recordset)) {
    values.push_back(ValueOf(recordset, field));
    EXPECT_EQ(recordset->MoveNext(), S_OK);
  }
  return values;
}

}  // namespace orvendal::store_client
