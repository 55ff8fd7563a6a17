#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/ado/ado_identity.h"
#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/variant.h"
#include "adapters/sqlite/dialect.h"
#include "data_objects.h"
#include "tests/adapters/com/tested_dll.h"

namespace orvendal::store_client {

/// An argument of a call, alive until the end of the expression that makes it.
class Arg {
 public:
  /// Left out.
  Arg() {
    V_VT(value_.Address()) = VT_ERROR;
    V_ERROR(value_.Address()) = DISP_E_PARAMNOTFOUND;
  }
  Arg(const std::string& text) { WriteText(*value_.Address(), text); }
  Arg(const char* text) { WriteText(*value_.Address(), text); }
  Arg(int number) { WriteLong(*value_.Address(), number); }
  Arg(double number) { WriteNumber(*value_.Address(), number); }
  Arg(IDispatch* object) { WriteObject(*value_.Address(), ComPtr<IDispatch>(object)); }
  static Arg Null() { return Arg(VT_NULL); }
  static Arg Date(double serial) {
    Arg date(serial);
    V_VT(date.value_.Address()) = VT_DATE;
    return date;
  }
  Arg(const Arg& other) { VariantCopy(value_.Address(), const_cast<VARIANT*>(&other.value_.Get())); }

  operator VARIANT() const { return value_.Get(); }

 private:
  explicit Arg(VARENUM type) { V_VT(value_.Address()) = static_cast<VARTYPE>(type); }

  Variant value_;
};

/// A text as a callee gets it.
class Bstr : public BstrCell {
 public:
  using BstrCell::BstrCell;
  operator BSTR() const { return Get(); }
};

/// What a client learns of a failed call.
struct Failure {
  HRESULT result = S_OK;
  std::string source;
  std::string description;
};
inline Failure FailureOf(HRESULT result) {
  Failure failure{result, {}, {}};
  ComPtr<IErrorInfo> info;
  if (GetErrorInfo(0, info.Receive()) == S_OK) {
    BstrCell source;
    BstrCell description;
    info->GetSource(source.InOut());
    info->GetDescription(description.InOut());
    failure.source = source.Text();
    failure.description = description.Text();
  }
  return failure;
}
/// ADO's error n as clients get it.
constexpr HRESULT AdoFailure(int number) {
  return static_cast<HRESULT>(0x800A0000U + static_cast<unsigned>(number));
}

/// A value as a text that tells its type.
inline std::string Shown(const VARIANT& value) {
  switch (V_VT(&value)) {
    case VT_EMPTY:
      return "Empty";
    case VT_NULL:
      return "Null";
    case VT_BSTR:
      return TextOfBstr(V_BSTR(&value));
    case VT_I4:
      return "Long " + std::to_string(V_I4(&value));
    case VT_R8:
      return "Double " + std::to_string(V_R8(&value));
    case VT_DATE:
      return "Date " + std::to_string(V_DATE(&value));
    default:
      return "type " + std::to_string(V_VT(&value));
  }
}

inline constexpr LONG kStatic = 3;
inline constexpr LONG kDynamic = 2;
inline constexpr LONG kReadOnly = 1;
inline constexpr LONG kOptimistic = 3;

/// The DLL, a file with the sample tables, and clients of both.
class StoreTest : public ::testing::TestWithParam<Dialect> {
 protected:
  StoreTest();
  ~StoreTest() override;

  bool SqlServer() const { return GetParam() == Dialect::kSqlServer; }
  std::string Provider() const { return SqlServer() ? "SQLOLEDB.1" : "Microsoft.Jet.OLEDB.4.0"; }
  std::string ConnectionString() const { return "Provider=" + Provider() + ";Data Source=" + path; }

  ComPtr<IUnknown> Create(REFCLSID class_id);
  ComPtr<::_Connection> NewConnection();
  ComPtr<::_Recordset> NewRecordset();
  /// Open on the file.
  ComPtr<::_Connection> Connected();
  /// Open on `connection`; the test fails if it cannot be.
  ComPtr<::_Recordset> Opened(const ComPtr<::_Connection>& connection, const std::string& statement,
                              LONG cursor, LONG lock);
  /// Runs statements of plain SQLite on the file, or gives the first value of one.
  void Native(const std::string& sql);
  std::string NativeValue(const std::string& sql);

  /// A field's value of the current row.
  static std::string ValueOf(::_Recordset* recordset, const Arg& field);
  static bool AtEnd(::_Recordset* recordset);
  /// A field of every row.
  static std::vector<std::string> Column(::_Recordset* recordset, const Arg& field);

  static void SetUpTestSuite() { dll = LoadLibraryW(FileOfBuild(L"ORVENDAL_STORE_DLL").c_str()); }
  static void TearDownTestSuite() { FreeLibrary(dll); }
  static HRESULT CanUnload();

  static inline HMODULE dll = nullptr;
  std::string folder;  // of its own, with a letter outside the code page of any system
  std::string path;    // of the store in it
};

inline std::string NameOf(const ::testing::TestParamInfo<Dialect>& info) {
  return info.param == Dialect::kSqlServer ? "SqlServer" : "Jet";
}

using Texts = std::vector<std::string>;

}  // namespace orvendal::store_client
