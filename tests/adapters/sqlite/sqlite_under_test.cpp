#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

/// The store's own recordsets, over a database in memory.
class SqliteUnderTest final : public StoreUnderTest {
 public:
  SqliteUnderTest(Dialect dialect, const Region& region)
      : store_(SqliteConnection::Open(":memory:", dialect, region, OpenMode::kCreate)) {}
  std::shared_ptr<SqliteConnection> Tables() override { return store_; }
  ConnectionRef Link() override { return store_; }
  void CloseLink() override { store_->Close(); }
  RecordsetRef NewRecordset() override { return SqliteRecordsetFactory().NewRecordset(); }

 private:
  std::shared_ptr<SqliteConnection> store_;
};

}  // namespace

std::unique_ptr<StoreUnderTest> MakeStoreUnderTest(Dialect dialect, const Region& region) {
  return std::make_unique<SqliteUnderTest>(dialect, region);
}

}  // namespace orvendal::store_testing
