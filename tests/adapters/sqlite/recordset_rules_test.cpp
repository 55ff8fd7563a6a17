#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

class RecordsetRules : public StoreTest {
 protected:
  void SetUp() override {
    StoreTest::SetUp();
    store->Execute("INSERT INTO Sucursales VALUES ('01','Norte'),('02','Sur'),('03',NULL)");
  }
  const std::string rows = "SELECT Sucursales.Sucursal, Sucursales.Nombre FROM Sucursales";
  const std::string no_rows = rows + " WHERE Sucursal = '99'";
};

TEST_P(RecordsetRules, ANewOneIsClosedAndHasNoFields) {
  const RecordsetRef recordset = NewRecordset();
  EXPECT_EQ(recordset->State(), kStateClosed);
  EXPECT_EQ(recordset->FieldCount(), 0U);
  EXPECT_EQ(ErrorOf([&] { recordset->Fields("Nombre"); }), ado_error::kItemNotFound);
}

TEST_P(RecordsetRules, EverythingElseIsRefusedWhileClosed) {
  const RecordsetRef recordset = NewRecordset();
  const std::vector<std::function<void()>> uses = {
      [&] { recordset->Close(); },
      [&] { recordset->EditMode(); },
      [&] { recordset->AtEnd(); },
      [&] { recordset->MoveNext(); },
      [&] { recordset->RecordCount(); },
      [&] { recordset->Find("Sucursal = '01'", 0, SearchDirection::kForward); },
      [&] { recordset->AbsolutePosition(1); },
      [&] { recordset->AddNew(); },
      [&] { recordset->Collect("Nombre", "x"); },
      [&] { recordset->Update(); },
      [&] { recordset->CancelUpdate(); }};
  for (std::size_t i = 0; i < uses.size(); ++i) EXPECT_EQ(ErrorOf(uses[i]), ado_error::kObjectClosed) << i;
}

TEST_P(RecordsetRules, OpeningAnOpenOneIsRefused) {
  const RecordsetRef recordset = Read(rows);
  EXPECT_EQ(ErrorOf([&] { recordset->Open(rows, Link(), CursorType::kStatic, LockType::kReadOnly, -1); }),
            ado_error::kObjectOpen);
  EXPECT_EQ(recordset->RecordCount(), 3);
}

TEST_P(RecordsetRules, AMissingOrClosedConnectionIsRefused) {
  const RecordsetRef recordset = NewRecordset();
  EXPECT_EQ(ErrorOf([&] { recordset->Open(rows, nullptr, CursorType::kStatic, LockType::kReadOnly, -1); }),
            ado_error::kInvalidConnection);
  CloseLink();
  EXPECT_EQ(ErrorOf([&] { recordset->Open(rows, Link(), CursorType::kStatic, LockType::kReadOnly, -1); }),
            ado_error::kInvalidConnection);
}

TEST_P(RecordsetRules, ClosingTheConnectionClosesItsRecordsets) {
  const RecordsetRef recordset = Read(rows);
  const RecordsetRef table = Write(TableStatement());
  table->AddNew();
  CloseLink();
  EXPECT_EQ(recordset->State(), kStateClosed);
  EXPECT_EQ(table->State(), kStateClosed);
  EXPECT_EQ(ErrorOf([&] { recordset->AtEnd(); }), ado_error::kObjectClosed);
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), ado_error::kObjectClosed);
}

TEST_P(RecordsetRules, RowsAreWalkedFromTheFirstToTheEnd) {
  const RecordsetRef recordset = Read(rows);
  EXPECT_EQ(recordset->State(), kStateOpen);
  EXPECT_EQ(recordset->EditMode(), 0);
  EXPECT_EQ(recordset->Fields("Sucursal").Value(), Value("01"));
  recordset->MoveNext();
  recordset->MoveNext();
  EXPECT_TRUE(recordset->Fields("Nombre").Value().IsNull());
  EXPECT_FALSE(recordset->AtEnd());
  recordset->MoveNext();
  EXPECT_TRUE(recordset->AtEnd());
  EXPECT_EQ(ErrorOf([&] { recordset->MoveNext(); }), ado_error::kEitherBofOrEof);
  EXPECT_EQ(ErrorOf([&] { recordset->Fields("Nombre").Value(); }), ado_error::kEitherBofOrEof);
}

TEST_P(RecordsetRules, AStatementThatFindsNothingIsOpenAndAtItsEnd) {
  const RecordsetRef recordset = Read(no_rows);
  EXPECT_EQ(recordset->State(), kStateOpen);
  EXPECT_TRUE(recordset->AtEnd());
  EXPECT_EQ(recordset->RecordCount(), 0);
  EXPECT_EQ(ErrorOf([&] { recordset->MoveNext(); }), ado_error::kEitherBofOrEof);
  EXPECT_EQ(ErrorOf([&] { recordset->Fields("Nombre").Value(); }), ado_error::kEitherBofOrEof);
}

TEST_P(RecordsetRules, FieldsAreKnownByNameWithoutRegardToCase) {
  const RecordsetRef recordset = Read(rows);
  ASSERT_EQ(recordset->FieldCount(), 2U);
  EXPECT_EQ(recordset->FieldName(0), "Sucursal");
  EXPECT_EQ(recordset->FieldName(1), "Nombre");
  EXPECT_EQ(recordset->Fields("NOMBRE").Value(), Value("Norte"));
  EXPECT_EQ(ErrorOf([&] { recordset->Fields("Nombres"); }), ado_error::kItemNotFound);
}

TEST_P(RecordsetRules, AFieldFollowsTheCurrentRow) {
  const RecordsetRef recordset = Read(rows);
  const Field field = recordset->Fields("Sucursal");
  recordset->MoveNext();
  EXPECT_EQ(field.Value(), Value("02"));
}

TEST_P(RecordsetRules, AStaticCursorKeepsTheRowsOfTheMomentItWasOpened) {
  const RecordsetRef recordset = Read(rows);
  store->Execute("DELETE FROM Sucursales");
  EXPECT_EQ(recordset->RecordCount(), 3);
  recordset->MoveNext();
  EXPECT_EQ(recordset->Fields("Nombre").Value(), Value("Sur"));
}

TEST_P(RecordsetRules, AStatementWithoutRowsLeavesItClosedAndReadyForTheNext) {
  const RecordsetRef recordset = NewRecordset();
  recordset->Open("DELETE FROM Sucursales WHERE Sucursal Like '02'", Link(), CursorType::kDynamic,
                  LockType::kOptimistic, -1);
  EXPECT_EQ(recordset->State(), kStateClosed);
  recordset->Open(rows, Link(), CursorType::kStatic, LockType::kReadOnly, -1);
  EXPECT_EQ(recordset->RecordCount(), 2);
  recordset->Close();
  EXPECT_EQ(recordset->State(), kStateClosed);
  recordset->Open(rows, Link(), CursorType::kStatic, LockType::kReadOnly, -1);
  EXPECT_EQ(recordset->State(), kStateOpen);
}

TEST_P(RecordsetRules, ATableThatWasAlteredShowsItsNewFields) {
  const std::string all = "SELECT * FROM Sucursales";
  EXPECT_EQ(Read(all)->FieldCount(), 2U);
  EXPECT_EQ(Write(all)->FieldCount(), 2U);
  SqliteStatement(*store, "ALTER TABLE Sucursales ADD COLUMN Ciudad TEXT DEFAULT 'Gijón'").Run();
  EXPECT_EQ(Read(all)->Fields("Ciudad").Value(), Value("Gijón"));
  EXPECT_EQ(Write(all)->Fields("Ciudad").Value(), Value("Gijón"));
}

TEST_P(RecordsetRules, AFailedOpenLeavesItClosedAndUsable) {
  const RecordsetRef recordset = NewRecordset();
  EXPECT_NE(ErrorOf([&] { recordset->Open("SELECT", Link(), CursorType::kStatic, LockType::kReadOnly, -1); }),
            0);
  EXPECT_EQ(recordset->State(), kStateClosed);
  recordset->Open(rows, Link(), CursorType::kStatic, LockType::kReadOnly, -1);
  EXPECT_EQ(recordset->RecordCount(), 3);
}

TEST_P(RecordsetRules, ADynamicCursorCountsOnlyWhereTheProviderCan) {
  const RecordsetRef recordset = Write(rows);
  EXPECT_EQ(recordset->RecordCount(), SqlServer() ? -1 : 3);
}

TEST_P(RecordsetRules, ADynamicCursorWalksItsRows) {
  store->Execute(
      "WITH RECURSIVE n(i) AS (SELECT 10 UNION ALL SELECT i + 1 FROM n WHERE i < 999) "
      "INSERT INTO Sucursales SELECT i, 'N' || i FROM n");
  const RecordsetRef recordset = Write(rows + " ORDER BY Sucursales.Sucursal");
  int count = 0;
  std::string last;
  for (; !recordset->AtEnd(); recordset->MoveNext()) {
    const std::string key = recordset->Fields("Sucursal").Value().Text();
    EXPECT_LT(last, key);
    last = key;
    ++count;
  }
  EXPECT_EQ(count, 993);
  EXPECT_EQ(ErrorOf([&] { recordset->MoveNext(); }), ado_error::kEitherBofOrEof);
}

TEST_P(RecordsetRules, APositionIsTakenByAStaticCursor) {
  const RecordsetRef recordset = Read(rows);
  recordset->AbsolutePosition(3);
  EXPECT_EQ(recordset->Fields("Sucursal").Value(), Value("03"));
  recordset->AbsolutePosition(1);
  EXPECT_EQ(recordset->Fields("Sucursal").Value(), Value("01"));
  EXPECT_EQ(ErrorOf([&] { recordset->AbsolutePosition(0); }), ado_error::kInvalidArgument);
  EXPECT_EQ(ErrorOf([&] { recordset->AbsolutePosition(4); }), ado_error::kInvalidArgument);
  EXPECT_EQ(recordset->Fields("Sucursal").Value(), Value("01"));
  EXPECT_EQ(ErrorOf([&] { Read(no_rows)->AbsolutePosition(1); }), ado_error::kEitherBofOrEof);
}

TEST_P(RecordsetRules, APositionIsTakenByADynamicCursorOnlyWhereItIsAKeyset) {
  const RecordsetRef recordset = Write(rows);
  const std::int32_t error = ErrorOf([&] { recordset->AbsolutePosition(2); });
  EXPECT_EQ(error, SqlServer() ? ado_error::kFeatureNotAvailable : 0);
  EXPECT_EQ(recordset->Fields("Sucursal").Value(), Value(SqlServer() ? "01" : "02"));
}

class Finding : public RecordsetRules {
 protected:
  std::string Found(const std::string& criteria) {
    const RecordsetRef recordset = Read(rows);
    recordset->Find(criteria, 0, SearchDirection::kForward);
    return recordset->AtEnd() ? "end" : recordset->Fields("Sucursal").Value().Text();
  }
};

TEST_P(Finding, TheBranchIsFoundByItsKey) {
  EXPECT_EQ(Found("Sucursal like '02'"), "02");
  EXPECT_EQ(Found("Sucursal like '09'"), "end");
  EXPECT_EQ(Found("Sucursal like ''"), "end");
}

TEST_P(Finding, CaseIsIgnored) {
  EXPECT_EQ(Found("nombre = 'SUR'"), "02");
  store->Execute("UPDATE Sucursales SET Nombre = 'ÑORA' WHERE Sucursal = '03'");
  EXPECT_EQ(Found("Nombre like 'ñora'"), "03");
}

TEST_P(Finding, WildcardsStandAtTheEndOrAtBothEnds) {
  EXPECT_EQ(Found("Nombre like 'su*'"), "02");
  EXPECT_EQ(Found("Nombre like 'su%'"), "02");
  EXPECT_EQ(Found("Nombre like '*ur*'"), "02");
  EXPECT_EQ(Found("Nombre like 'ur*'"), "end");
  EXPECT_EQ(ErrorOf([&] { Found("Nombre like '*ur'"); }), ado_error::kInvalidArgument);
  EXPECT_EQ(ErrorOf([&] { Found("Nombre like 's*r'"); }), ado_error::kInvalidArgument);
}

TEST_P(Finding, OtherComparisonsWork) {
  EXPECT_EQ(Found("Sucursal <> '01'"), "02");
  EXPECT_EQ(Found("Sucursal > '01'"), "02");
  EXPECT_EQ(Found("Sucursal >= '03'"), "03");
  EXPECT_EQ(Found("Sucursal < '01'"), "end");
  EXPECT_EQ(Found("Sucursal <= '01'"), "01");
  EXPECT_EQ(Found("Nombre = Null"), "03");
}

TEST_P(Finding, NumbersAndDatesAreCompared) {
  store->Execute(
      "CREATE TABLE Medidas (Cantidad NUMERIC, Dia DATETIME);"
      "INSERT INTO Medidas VALUES (1, '2026-11-15'), (2.5, '2026-11-16 00:00:00')");
  const RecordsetRef recordset = Read("SELECT * FROM Medidas");
  recordset->Find("Cantidad > 2", 0, SearchDirection::kForward);
  EXPECT_EQ(recordset->Fields("Cantidad").Value(), Value(2.5));
  recordset->AbsolutePosition(1);
  recordset->Find("Dia = #11/16/2026#", 0, SearchDirection::kForward);
  EXPECT_EQ(recordset->Fields("Cantidad").Value(), Value(2.5));
}

TEST_P(Finding, ItStartsOnTheCurrentRow) {
  const RecordsetRef recordset = Read(rows);
  recordset->MoveNext();
  recordset->Find("Sucursal like '02'", 0, SearchDirection::kForward);
  EXPECT_EQ(recordset->Fields("Sucursal").Value(), Value("02"));
  recordset->Find("Sucursal like '02'", 1, SearchDirection::kForward);
  EXPECT_TRUE(recordset->AtEnd());
}

TEST_P(Finding, BackwardsItGoesTowardsTheFirstRow) {
  const RecordsetRef recordset = Read(rows);
  recordset->AbsolutePosition(3);
  recordset->Find("Sucursal = '01'", 0, SearchDirection::kBackward);
  EXPECT_EQ(recordset->Fields("Sucursal").Value(), Value("01"));
  recordset->Find("Sucursal = '03'", 0, SearchDirection::kBackward);
  EXPECT_FALSE(recordset->AtEnd());
  EXPECT_EQ(ErrorOf([&] { recordset->Fields("Sucursal").Value(); }), ado_error::kEitherBofOrEof);
}

TEST_P(Finding, AtTheEndOrWithoutRowsItIsRefused) {
  const RecordsetRef empty = Read(no_rows);
  EXPECT_EQ(ErrorOf([&] { empty->Find("Sucursal like '01'", 0, SearchDirection::kForward); }),
            ado_error::kEitherBofOrEof);
  const RecordsetRef recordset = Read(rows);
  recordset->Find("Sucursal like '09'", 0, SearchDirection::kForward);
  EXPECT_EQ(ErrorOf([&] { recordset->Find("Sucursal like '01'", 0, SearchDirection::kForward); }),
            ado_error::kEitherBofOrEof);
}

TEST_P(Finding, ACriteriaThatCannotBeReadIsRefused) {
  for (const char* criteria : {"", "Sucursal", "Sucursal like", "Sucursal like 'x",
                               "Sucursal = '01' AND Nombre = 'x'", "Sucursal near '01'", "= '01'"}) {
    EXPECT_EQ(ErrorOf([&] { Found(criteria); }), ado_error::kInvalidArgument) << criteria;
  }
  EXPECT_EQ(ErrorOf([&] { Found("Ciudad = 'x'"); }), ado_error::kItemNotFound);
}

TEST_P(RecordsetRules, FindKnowsAKeyWithBlanksAfterIt) {
  store->Execute("INSERT INTO Sucursales VALUES ('4 ', 'Este')");
  const RecordsetRef recordset = Read(rows);
  recordset->Find("Sucursal = '4'", 0, SearchDirection::kForward);
  ASSERT_FALSE(recordset->AtEnd());
  EXPECT_EQ(recordset->Fields("Nombre").Value(), Value("Este"));
  const RecordsetRef other = Read(rows);
  other->Find("Sucursal = '02  '", 0, SearchDirection::kForward);
  ASSERT_FALSE(other->AtEnd());
  EXPECT_EQ(other->Fields("Nombre").Value(), Value("Sur"));
}

TEST_P(RecordsetRules, ANegationEndsBeforeTheNextCondition) {
  store->Execute("INSERT INTO Productos VALUES ('P1', 'Gel'), ('P2', 'Gel'), ('P3', 'Laca')");
  const std::string condition = "NOT Codigo = 'P1' AND Descripcion = 'Gel'";
  EXPECT_EQ(Column("SELECT Codigo FROM Productos WHERE " + condition, "Codigo"), Texts{"P2"});
}

TEST_P(RecordsetRules, ANumberWithoutEndIsAnOverflowAndNotAText) {
  store->Execute(
      "INSERT INTO ProdSucStock VALUES ('01', 'P1', 9e999), ('01', 'P2', -9e999), ('01', 'P3', 3)");
  const RecordsetRef stock = Read("SELECT * FROM ProdSucStock");
  EXPECT_EQ(ErrorOf([&] { stock->Fields("Stock").Value(); }), error_number::kOverflow);
  EXPECT_EQ(stock->Fields("IdProducto").Value(), Value("P1"));
  stock->MoveNext();
  EXPECT_EQ(ErrorOf([&] { stock->Fields("Stock").Value(); }), error_number::kOverflow);
  stock->MoveNext();
  EXPECT_EQ(stock->Fields("Stock").Value(), Value(3));
}

INSTANTIATE_TEST_SUITE_P(BothDialects, RecordsetRules, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);
INSTANTIATE_TEST_SUITE_P(BothDialects, Finding, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal::store_testing
