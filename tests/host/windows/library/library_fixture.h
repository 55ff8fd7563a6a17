#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "DllTrevano.h"
#include "adapters/ado/ado_identity.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/sqlite/sqlite_store.h"
#include "host/store/schema.h"
#include "tests/adapters/ado/registered_class.h"
#include "tests/adapters/com/tested_dll.h"

namespace orvendal {

/// Counts the references to itself and answers the properties of a text box.
class CountedBox final : public IDispatch {
 public:
  CountedBox(std::wstring text, LONG start, LONG length)
      : text_(std::move(text)), start_(start), length_(length) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IDispatch) return E_NOINTERFACE;
    AddRef();
    *object = static_cast<IDispatch*>(this);
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return --references; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                          DISPID* ids) noexcept override {
    const wchar_t* const known[] = {L"Text", L"SelStart", L"SelLength"};
    for (int index = 0; index < 3; ++index) {
      if (std::wstring_view(names[0]) == known[index]) return ids[0] = index + 1, S_OK;
    }
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO*, UINT*) noexcept override {
    if ((flags & DISPATCH_PROPERTYPUT) != 0) {
      const VARIANT& value = arguments->rgvarg[0];
      if (member == 1) {
        text_ = V_BSTR(&value);
        start_ = length_ = 0;
      } else {
        (member == 2 ? start_ : length_) = V_I4(&value);
      }
      return S_OK;
    }
    if (member == 1) {
      V_VT(result) = VT_BSTR;
      V_BSTR(result) = SysAllocString(text_.c_str());
    } else {
      V_VT(result) = VT_I4;
      V_I4(result) = member == 2 ? start_ : length_;
    }
    return S_OK;
  }

  const std::wstring& Text() const { return text_; }
  /// What it holds after a key, the caret behind it.
  void Type(const std::wstring& text) {
    text_ = text;
    start_ = static_cast<LONG>(text.size());
    length_ = 0;
  }
  LONG Start() const { return start_; }
  LONG Length() const { return length_; }

  ULONG references = 1;

 private:
  std::wstring text_;
  LONG start_;
  LONG length_;
};

/// The store's DLL as this process's ADO.
class StoreAsAdo {
 public:
  StoreAsAdo()
      : module_(LoadLibraryW(FileOfBuild(L"ORVENDAL_STORE_DLL").c_str())),
        connection_(ado::kConnectionClass, FactoryOf(ado::kConnectionClass).Get()),
        recordset_(ado::kRecordsetClass, FactoryOf(ado::kRecordsetClass).Get()) {}

 private:
  ComPtr<IUnknown> FactoryOf(REFCLSID class_id) const {
    ComPtr<IUnknown> factory;
    const auto get = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(GetProcAddress(module_, "DllGetClassObject")));
    EXPECT_EQ(get(class_id, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    return factory;
  }

  HMODULE module_;
  ado_testing::RegisteredClass connection_;
  ado_testing::RegisteredClass recordset_;
};

/// The library's DLL and a small store with one branch, one product and one count of it.
class LibraryTest : public testing::Test {
 protected:
  LibraryTest() {
    wchar_t folder[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, folder);
    file_ = std::wstring(folder) + L"orvendal_library_test.db";
    DeleteFileW(file_.c_str());
    const auto store =
        SqliteConnection::Open(Utf8Text(file_), Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
    CreateSchema(*store);
    store->Execute(
        "INSERT INTO Sucursales VALUES ('01', 'Centro');"
        "INSERT INTO Productos VALUES ('P1', 'Peine');"
        "INSERT INTO Empleados VALUES ('E9', 'Zoe Puig', '01');"
        "INSERT INTO HistOrvendalcial VALUES ('01', '2026-11-16 00:00:00', 'P1', 0, 7.5, 'E1', "
        "'2026-11-16 10:00:00', '01')");
  }
  ~LibraryTest() override {
    session_.Reset();
    EXPECT_TRUE(DeleteFileW(file_.c_str())) << "something still holds the store";
  }

  template <typename Interface>
  ComPtr<Interface> Make(REFCLSID class_id) {
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(dll.GetClassObject(class_id, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
    ComPtr<Interface> object;
    EXPECT_EQ(factory->CreateInstance(nullptr, __uuidof(Interface), object.ReceiveVoid()), S_OK);
    return object;
  }
  /// The session, with the store open.
  _SampleSession* Session() {
    if (!session_) {
      session_ = Make<_SampleSession>(__uuidof(::DatosClase));
      EXPECT_EQ(session_->OpenConnection(BstrCell(ConnectionString()).Get()), S_OK);
    }
    return session_.Get();
  }
  std::string File() const { return Utf8Text(file_); }
  std::string ConnectionString() const { return "Provider=SQLOLEDB.1;Data Source=" + File(); }
  ComPtr<IDispatch> Connection() {
    ComPtr<IDispatch> connection;
    EXPECT_EQ(Session()->get_Connection(connection.Receive()), S_OK);
    return connection;
  }
  /// The first value that a statement gives, as text.
  std::string Read(const std::string& sql) const {
    const auto store =
        SqliteConnection::Open(Utf8Text(file_), Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting);
    SqliteStatement statement(*store, sql);
    return statement.Step() ? statement.TextAt(0) : "-";
  }
  void Write(const std::string& sql) const {
    SqliteConnection::Open(Utf8Text(file_), Dialect::kSqlServer, Region::Spanish(), OpenMode::kExisting)
        ->Execute(sql);
  }
  static std::string ErrorText() {
    ComPtr<IErrorInfo> info;
    BstrCell source;
    BstrCell description;
    if (GetErrorInfo(0, info.Receive()) != S_OK) return "(none)";
    info->GetSource(source.InOut());
    info->GetDescription(description.InOut());
    return source.Text() + ": " + description.Text();
  }

  const ado_testing::ComThread com;
  const StoreAsAdo ado;
  const LoadedDll dll;

 private:
  std::wstring file_;
  ComPtr<_SampleSession> session_;
};

}  // namespace orvendal
