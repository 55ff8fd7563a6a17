#include "tests/adapters/sqlite/store_fixture.h"
#include "tests/support/fault_injecting_connection.h"

namespace orvendal::store_testing {
namespace {

class ObservedStore : public StoreTest {
 protected:
  RecordsetRef Open(const std::string& statement, CursorType cursor, LockType lock) {
    RecordsetRef recordset = observed.NewRecordset();
    recordset->Open(statement, store, cursor, lock, kCommandUnspecified);
    return recordset;
  }
  RecordsetRef Table() { return Open(TableStatement(), CursorType::kDynamic, LockType::kOptimistic); }
  static void Fill(Recordset& table, const std::string& product) {
    table.AddNew();
    table.Collect("IdSucursal", "01");
    table.Collect("Fecha", "16/11/2026");
    table.Collect("IdProducto", product);
  }

  testing_support::FaultInjectingStore observed{std::make_shared<SqliteRecordsetFactory>()};
};

TEST_P(ObservedStore, StatementsAreRememberedWithTheirModeUntilTheyAreTaken) {
  Open(BranchesStatement(), CursorType::kStatic, LockType::kReadOnly);
  Table();
  const std::vector<OpenedStatement> statements = observed.TakeStatements();
  ASSERT_EQ(statements.size(), 2U);
  EXPECT_EQ(statements[0].text, BranchesStatement());
  EXPECT_FALSE(statements[0].IsWriting());
  EXPECT_EQ(statements[1].text, TableStatement());
  EXPECT_TRUE(statements[1].IsWriting());
  EXPECT_EQ(statements[1].cursor, CursorType::kDynamic);
  EXPECT_EQ(statements[1].error, 0);
  EXPECT_TRUE(observed.TakeStatements().empty());
}

TEST_P(ObservedStore, AListenerHearsEachStatementWithItsOutcome) {
  std::vector<std::int32_t> outcomes;
  observed.OnOpen([&](const OpenedStatement& statement) { outcomes.push_back(statement.error); });
  Open(BranchesStatement(), CursorType::kStatic, LockType::kReadOnly);
  EXPECT_EQ(ErrorOf([&] { Open("SELECT * FROM Nada", CursorType::kStatic, LockType::kReadOnly); }),
            ado_error::kNoTable);
  EXPECT_EQ(outcomes, (std::vector<std::int32_t>{0, ado_error::kNoTable}));
}

TEST_P(ObservedStore, ThePassageChangesNothing) {
  store->Execute("INSERT INTO Sucursales VALUES ('01','Norte'),('02','Sur')");
  const RecordsetRef rows = Open(BranchesStatement(), CursorType::kStatic, LockType::kReadOnly);
  EXPECT_EQ(rows->State(), kStateOpen);
  EXPECT_EQ(rows->RecordCount(), 2);
  EXPECT_EQ(rows->FieldCount(), 2U);
  EXPECT_EQ(rows->FieldName(1), "Nombre");
  rows->Find("Sucursal like '02'", 0, SearchDirection::kForward);
  EXPECT_EQ(rows->Fields("NOMBRE").Value(), Value("Sur"));
  EXPECT_EQ(ErrorOf([&] { rows->Fields("Otro"); }), ado_error::kItemNotFound);
  rows->AbsolutePosition(1);
  EXPECT_EQ(rows->Fields("Sucursal").Value(), Value("01"));
  rows->MoveNext();
  rows->MoveNext();
  EXPECT_TRUE(rows->AtEnd());
  rows->Close();
  EXPECT_EQ(rows->State(), kStateClosed);
  EXPECT_EQ(ErrorOf([&] { rows->Fields("Nombre"); }), ado_error::kItemNotFound);
  EXPECT_EQ(ErrorOf([&] { rows->RecordCount(); }), ado_error::kObjectClosed);
}

TEST_P(ObservedStore, TheNthUpdateFailsOnceAndItsRowStaysPending) {
  observed.FailUpdate(2, ado_error::kMultipleStep, "no cabe");
  const RecordsetRef table = Table();
  Fill(*table, "P1");
  table->Update();
  Fill(*table, "P2");
  EXPECT_EQ(DescriptionOf([&] { table->Update(); }), "no cabe");
  EXPECT_EQ(table->EditMode(), 2);
  EXPECT_EQ(Native("SELECT COUNT(*) FROM HistOrvendalcial"), "1");
  table->Update();
  EXPECT_EQ(Native("SELECT COUNT(*) FROM HistOrvendalcial"), "2");
}

TEST_P(ObservedStore, FailuresCountOverAllRecordsets) {
  observed.FailUpdate(2, ado_error::kIntegrityViolation, "uno");
  const RecordsetRef first = Table();
  Fill(*first, "P1");
  first->Update();
  const RecordsetRef second = Table();
  Fill(*second, "P2");
  EXPECT_EQ(ErrorOf([&] { second->Update(); }), ado_error::kIntegrityViolation);
  second->CancelUpdate();
  EXPECT_EQ(second->EditMode(), 0);
}

TEST_P(ObservedStore, TheNthOpenFailsOnceAndNothingReachesTheStore) {
  store->Execute("INSERT INTO Sucursales VALUES ('01','Norte')");
  observed.FailOpen(1, ado_error::kUnspecified, "sin red");
  const RecordsetRef recordset = observed.NewRecordset();
  const auto erase = [&] {
    recordset->Open("DELETE FROM Sucursales", store, CursorType::kDynamic, LockType::kOptimistic, -1);
  };
  EXPECT_EQ(DescriptionOf(erase), "sin red");
  EXPECT_EQ(recordset->State(), kStateClosed);
  EXPECT_EQ(Native("SELECT COUNT(*) FROM Sucursales"), "1");
  EXPECT_EQ(observed.TakeStatements().at(0).error_text, "sin red");
  EXPECT_EQ(ErrorOf(erase), 0);
  EXPECT_EQ(Native("SELECT COUNT(*) FROM Sucursales"), "0");
}

TEST_P(ObservedStore, SeveralFailuresComeEachInItsTurn) {
  observed.FailUpdate(1, 1001, "a");
  observed.FailUpdate(3, 1003, "b");
  const RecordsetRef table = Table();
  Fill(*table, "P1");
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), 1001);
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), 0);
  Fill(*table, "P2");
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), 1003);
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), 0);
}

INSTANTIATE_TEST_SUITE_P(BothDialects, ObservedStore, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal::store_testing
