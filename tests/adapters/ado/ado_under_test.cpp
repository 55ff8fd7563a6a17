#include <filesystem>

#include "adapters/ado/ado_identity.h"
#include "adapters/ado/ado_recordset_factory.h"
#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/bstr.h"
#include "adapters/automation/class_factory.h"
#include "adapters/win32/user_region.h"
#include "host/windows/store/recordset_object.h"
#include "tests/adapters/ado/registered_class.h"
#include "tests/adapters/sqlite/store_fixture.h"

// The tests of recordsets run here over the adapter, on the embedded store as ADO's classes.

namespace orvendal {
namespace {

const Region* region_of_test = nullptr;

}  // namespace

// In the place of the user's own: the embedded store asks for it whenever it opens a file.
Region UserRegionOfSystem() {
  return *region_of_test;
}

namespace store_testing {
namespace {

IUnknown* MakeRecordset() noexcept {
  return static_cast<::_Recordset*>(new RecordsetObject);
}

ComPtr<IUnknown> RecordsetFactoryObject() {
  ComPtr<IUnknown> factory;
  constexpr CreatableClass kClasses[] = {{ado::kRecordsetClass, MakeRecordset}};
  EXPECT_EQ(GetClassFactory(kClasses, ado::kRecordsetClass, IID_IUnknown, factory.ReceiveVoid()), S_OK);
  return factory;
}

std::filesystem::path NewFile() {
  static int count = 0;
  return std::filesystem::temp_directory_path() /
         ("orvendal_ado_" + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(GetTickCount64()) +
          "_" + std::to_string(++count) + ".db");
}

class AdoUnderTest final : public StoreUnderTest {
 public:
  AdoUnderTest(Dialect dialect, const Region& region)
      : recordset_class_(ado::kRecordsetClass, RecordsetFactoryObject().Get()),
        file_(NewFile()),
        provider_(dialect == Dialect::kSqlServer ? "SQLOLEDB.1" : "Microsoft.Jet.OLEDB.4.0"),
        tables_(SqliteConnection::Open(Utf8Text(file_.wstring()), dialect, region, OpenMode::kCreate)) {
    EXPECT_EQ(recordset_class_.Result(), S_OK);
    region_of_test = &region;
  }
  ~AdoUnderTest() override {
    link_.reset();
    if (connection_) connection_->Close();
    connection_.Reset();
    tables_->Close();
    std::error_code left;
    EXPECT_TRUE(std::filesystem::remove(file_, left)) << left.message();
  }

  std::shared_ptr<SqliteConnection> Tables() override { return tables_; }
  ConnectionRef Link() override {
    if (!link_) {
      connection_ = ComPtr<::_Connection>::Adopt(new ConnectionObject);
      const BstrCell nothing;
      const BstrCell text("Provider=" + provider_ + ";Data Source=" + Utf8Text(file_.wstring()));
      EXPECT_EQ(connection_->Open(text.Get(), nothing.Get(), nothing.Get(), -1), S_OK);
      link_ = WrapConnection(connection_.Get());
    }
    return link_;
  }
  void CloseLink() override {
    Link();
    EXPECT_EQ(connection_->Close(), S_OK);
  }
  RecordsetRef NewRecordset() override { return AdoRecordsetFactory().NewRecordset(); }

 private:
  ado_testing::ComThread com_;
  ado_testing::RegisteredClass recordset_class_;
  std::filesystem::path file_;
  std::string provider_;
  std::shared_ptr<SqliteConnection> tables_;
  ComPtr<::_Connection> connection_;
  ConnectionRef link_;
};

}  // namespace

std::unique_ptr<StoreUnderTest> MakeStoreUnderTest(Dialect dialect, const Region& region) {
  return std::make_unique<AdoUnderTest>(dialect, region);
}

}  // namespace store_testing
}  // namespace orvendal
