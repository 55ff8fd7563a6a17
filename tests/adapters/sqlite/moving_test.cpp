#include "adapters/sqlite/sqlite_recordset.h"
#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

using sqlite::SqliteRecordset;

/// What hosts and scripts do with a recordset beyond what the screen needs of one.
class Moving : public StoreTest {
 protected:
  void SetUp() override {
    StoreTest::SetUp();
    store->Execute("INSERT INTO Sucursales VALUES ('01','Norte'),('02','Sur'),('03',NULL)");
  }
  std::shared_ptr<SqliteRecordset> Open(const std::string& statement, CursorType cursor) {
    auto recordset = std::make_shared<SqliteRecordset>();
    recordset->Open(statement, store, cursor, LockType::kOptimistic, kCommandUnspecified);
    return recordset;
  }
  static std::string Branch(const SqliteRecordset& recordset) { return recordset.FieldValue(0).Text(); }

  const std::string rows = "SELECT Sucursales.Sucursal, Sucursales.Nombre FROM Sucursales";
};

TEST_P(Moving, RowsAreWalkedBackToBeforeTheFirst) {
  const auto recordset = Open(rows, CursorType::kStatic);
  EXPECT_FALSE(recordset->AtStart());
  recordset->MoveLast();
  EXPECT_EQ(Branch(*recordset), "03");
  recordset->MovePrevious();
  recordset->MovePrevious();
  EXPECT_EQ(Branch(*recordset), "01");
  EXPECT_FALSE(recordset->AtStart());
  recordset->MovePrevious();
  EXPECT_TRUE(recordset->AtStart());
  EXPECT_FALSE(recordset->AtEnd());
  EXPECT_EQ(ErrorOf([&] { recordset->MovePrevious(); }), ado_error::kEitherBofOrEof);
  EXPECT_EQ(ErrorOf([&] { recordset->FieldValue(0); }), ado_error::kEitherBofOrEof);
  recordset->MoveNext();
  EXPECT_EQ(Branch(*recordset), "01");
}

TEST_P(Moving, FromPastTheLastRowItGoesBackToTheLast) {
  const auto recordset = Open(rows, CursorType::kDynamic);
  while (!recordset->AtEnd()) recordset->MoveNext();
  recordset->MovePrevious();
  EXPECT_EQ(Branch(*recordset), "03");
  recordset->MoveFirst();
  EXPECT_EQ(Branch(*recordset), "01");
}

TEST_P(Moving, WithoutRowsItIsAtItsStartAndItsEndAndCannotMove) {
  const auto recordset = Open(rows + " WHERE Sucursal = '99'", CursorType::kStatic);
  EXPECT_TRUE(recordset->AtStart());
  EXPECT_TRUE(recordset->AtEnd());
  EXPECT_EQ(ErrorOf([&] { recordset->MoveFirst(); }), ado_error::kEitherBofOrEof);
  EXPECT_EQ(ErrorOf([&] { recordset->MoveLast(); }), ado_error::kEitherBofOrEof);
  EXPECT_EQ(ErrorOf([&] { recordset->MovePrevious(); }), ado_error::kEitherBofOrEof);
}

TEST_P(Moving, APositionSaysWhereTheRowStandsOrWhyThereIsNone) {
  const auto recordset = Open(rows, CursorType::kStatic);
  EXPECT_EQ(recordset->Position(), 1);
  recordset->MoveLast();
  EXPECT_EQ(recordset->Position(), 3);
  recordset->MoveNext();
  EXPECT_EQ(recordset->Position(), -3);
  recordset->MoveFirst();
  recordset->MovePrevious();
  EXPECT_EQ(recordset->Position(), -2);
  recordset->AddNew();
  EXPECT_EQ(recordset->Position(), -1);
}

TEST_P(Moving, ADynamicCursorKnowsPositionsInJetAlone) {
  const auto recordset = Open(rows, CursorType::kDynamic);
  EXPECT_EQ(recordset->Position(), SqlServer() ? -1 : 1);
}

TEST_P(Moving, MovingPostsTheNewRow) {
  const auto recordset = Open(rows, CursorType::kStatic);
  recordset->AddNew();
  recordset->Assign(0, "04");
  recordset->MoveFirst();
  EXPECT_EQ(recordset->EditMode(), 0);
  EXPECT_EQ(Native("SELECT COUNT(*) FROM Sucursales"), "4");
}

TEST_P(Moving, BeforeARowJustAddedStandsTheLastOfTheOthers) {
  const auto recordset = Open(rows, CursorType::kDynamic);
  recordset->AddNew();
  recordset->Assign(0, "04");
  recordset->Update();
  EXPECT_EQ(Branch(*recordset), "04");
  recordset->MovePrevious();
  EXPECT_EQ(Branch(*recordset), "03");
}

TEST_P(Moving, FieldsHaveTheTypesOfTheirColumns) {
  const auto table = Open(TableStatement(), CursorType::kDynamic);
  EXPECT_EQ(table->FieldType(table->FieldIndex("Fecha")).kind, sqlite::ColumnKind::kDate);
  EXPECT_EQ(table->FieldType(table->FieldIndex("IdProducto")).length, 20U);
  EXPECT_EQ(ErrorOf([&] { table->FieldType(99); }), ado_error::kItemNotFound);
}

TEST_P(Moving, EverythingIsRefusedWhileClosed) {
  SqliteRecordset closed;
  EXPECT_EQ(ErrorOf([&] { closed.AtStart(); }), ado_error::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { closed.MoveFirst(); }), ado_error::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { closed.MovePrevious(); }), ado_error::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { closed.MoveLast(); }), ado_error::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { closed.Position(); }), ado_error::kObjectClosed);
}

INSTANTIATE_TEST_SUITE_P(Dialects, Moving, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal::store_testing
