#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

class StatementErrors : public StoreTest {
 protected:
  std::int32_t ErrorOfReading(const std::string& statement) {
    return ErrorOf([&] { Read(statement); });
  }
};

TEST_P(StatementErrors, AQuoteInATypedCodeIsASyntaxError) {
  for (const char* code : {"a'b", "'", "a'b'c", "' OR", "x'; DELETE FROM Productos; --"}) {
    EXPECT_EQ(ErrorOfReading(CodeExistsStatement(code)), ado_error::kSyntax) << code;
    EXPECT_EQ(ErrorOfReading(CodeLikeStatement(code)), ado_error::kSyntax) << code;
  }
}

TEST_P(StatementErrors, AnUnknownTableIsTold) {
  EXPECT_EQ(ErrorOfReading("SELECT * FROM Clientes"), ado_error::kNoTable);
  EXPECT_NE(DescriptionOf([&] { Read("SELECT * FROM Clientes"); }).find("Clientes"), std::string::npos);
}

TEST_P(StatementErrors, AnUnknownColumnCarriesTheNumberOfItsProvider) {
  const std::int32_t number = SqlServer() ? ado_error::kSyntax : ado_error::kNoValueGiven;
  EXPECT_EQ(ErrorOfReading("SELECT Productos.Precio FROM Productos"), number);
  EXPECT_EQ(ErrorOfReading("SELECT Codigo FROM Productos WHERE Precio = 'x'"), number);
}

TEST_P(StatementErrors, WhatIsNoStatementIsASyntaxError) {
  for (const char* statement :
       {"", ";", "SELEC * FROM Productos", "SELECT FROM", "SELECT ? FROM Productos",
        "SELECT * FROM Productos; SELECT * FROM Productos", "SELECT [Codigo FROM Productos"}) {
    EXPECT_EQ(ErrorOfReading(statement), ado_error::kSyntax) << statement;
  }
}

TEST_P(StatementErrors, TheDatesOfTheOtherDialectAreRefused) {
  const Dialect other = SqlServer() ? Dialect::kJet : Dialect::kSqlServer;
  EXPECT_EQ(ErrorOfReading(DayStatement("01", LoadCondition(other, "2026-11-16"))), ado_error::kSyntax);
}

TEST_P(StatementErrors, ANameInDoubleQuotesIsNeverTakenForAText) {
  if (SqlServer()) {
    EXPECT_EQ(ErrorOfReading("SELECT Codigo FROM Productos WHERE Codigo = \"P1\""), ado_error::kSyntax);
  } else {
    store->Execute("INSERT INTO Productos VALUES ('P1','Gel')");
    EXPECT_EQ(Column("SELECT Codigo FROM Productos WHERE Codigo = \"p1\"", "Codigo"), Texts{"P1"});
  }
}

INSTANTIATE_TEST_SUITE_P(BothDialects, StatementErrors, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

class StoreFile : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string test = ::testing::UnitTest::GetInstance()->current_test_info()->name();
    folder = std::filesystem::path(::testing::TempDir()) / ("orvendal_store_" + test);
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    path = (folder / "tienda.db").string();
  }
  void TearDown() override { std::filesystem::remove_all(folder); }

  static std::shared_ptr<SqliteConnection> Open(const std::string& file,
                                                OpenMode mode = OpenMode::kExisting) {
    return SqliteConnection::Open(file, Dialect::kSqlServer, Region::Spanish(), mode);
  }
  static std::string WhyNot(const std::string& file, OpenMode mode = OpenMode::kExisting) {
    std::int32_t number = 0;
    std::string description;
    try {
      Open(file, mode);
    } catch (const RuntimeError& error) {
      number = error.Number();
      description = error.Description();
    }
    EXPECT_EQ(number, ado_error::kUnspecified);
    return description;
  }
  static RecordsetRef Table(const std::shared_ptr<SqliteConnection>& store) {
    const RecordsetRef recordset = SqliteRecordsetFactory().NewRecordset();
    recordset->Open(TableStatement(), store, CursorType::kDynamic, LockType::kOptimistic, -1);
    return recordset;
  }

  std::filesystem::path folder;
  std::string path;
};

TEST_F(StoreFile, AMissingFileIsToldAndNotMade) {
  EXPECT_EQ(WhyNot(path), "The store file '" + path + "' does not exist or cannot be opened.");
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_NE(WhyNot("", OpenMode::kCreate), "");
  EXPECT_NE(WhyNot(folder.string()).find("cannot be opened"), std::string::npos);
  EXPECT_NE(WhyNot((folder / "none" / "tienda.db").string(), OpenMode::kCreate).find("cannot be opened"),
            std::string::npos);
}

TEST_F(StoreFile, AFileThatIsNoDatabaseIsTold) {
  std::ofstream(path) << std::string(5000, 'x');
  EXPECT_EQ(WhyNot(path), "The store file '" + path + "' is not a store: it is no database.");
}

TEST_F(StoreFile, ALockedFileIsTold) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path.c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "CREATE TABLE t (a); BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_EQ(WhyNot(path), "The store file '" + path + "' is locked by another program.");
  sqlite3_close(other);
}

TEST_F(StoreFile, AStoreKeepsWhatWasSavedInIt) {
  std::shared_ptr<SqliteConnection> store = Open(path, OpenMode::kCreate);
  EXPECT_EQ(store->Provider(), "SQLOLEDB.1");
  CreateSchema(*store);
  store->Execute("INSERT INTO Productos VALUES ('P1','Gel')");
  store->Close();
  EXPECT_FALSE(store->IsOpen());
  store = SqliteConnection::Open(path, Dialect::kJet, Region::Spanish(), OpenMode::kExisting);
  EXPECT_EQ(store->Provider(), "Microsoft.Jet.OLEDB.4.0");
  SqliteStatement count(*store, "SELECT COUNT(*) FROM Productos");
  ASSERT_TRUE(count.Step());
  EXPECT_EQ(count.ValueAt(0), Value(1));
  SqliteStatement journal(*store, "PRAGMA journal_mode");
  ASSERT_TRUE(journal.Step());
  EXPECT_EQ(journal.TextAt(0), "wal");
}

TEST_F(StoreFile, TwoConnectionsSeeEachOthersRows) {
  const std::shared_ptr<SqliteConnection> first = Open(path, OpenMode::kCreate);
  CreateSchema(*first);
  const std::shared_ptr<SqliteConnection> second = Open(path);
  const RecordsetRef table = Table(first);
  EXPECT_TRUE(table->AtEnd());
  second->Execute(
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto) VALUES ('01','2026-11-16','P1')");
  table->AddNew();
  table->Collect("IdSucursal", "01");
  table->Collect("Fecha", Date(2026, 11, 16));
  table->Collect("IdProducto", "P2");
  table->Update();
  SqliteStatement count(*second, "SELECT COUNT(*) FROM HistOrvendalcial");
  ASSERT_TRUE(count.Step());
  EXPECT_EQ(count.TextAt(0), "2");
}

TEST_F(StoreFile, AnUpdateOnALockedStoreIsToldAndSucceedsLater) {
  const std::shared_ptr<SqliteConnection> store = Open(path, OpenMode::kCreate);
  CreateSchema(*store);
  store->BusyTimeout(0);
  const RecordsetRef table = Table(store);
  table->AddNew();
  table->Collect("IdSucursal", "01");
  table->Collect("Fecha", Date(2026, 11, 16));
  table->Collect("IdProducto", "P1");
  const std::shared_ptr<SqliteConnection> other = Open(path);
  other->Execute("BEGIN IMMEDIATE");
  EXPECT_EQ(ErrorOf([&] { table->Update(); }), ado_error::kUnspecified);
  EXPECT_EQ(DescriptionOf([&] { table->Update(); }), "The store is locked by another program.");
  EXPECT_EQ(table->EditMode(), 2);
  const RecordsetRef erased = SqliteRecordsetFactory().NewRecordset();
  EXPECT_EQ(ErrorOf([&] {
              erased->Open(DeleteStatement("01", "BETWEEN '2026-11-16' AND '2026-11-16'"), store,
                           CursorType::kDynamic, LockType::kOptimistic, -1);
            }),
            ado_error::kUnspecified);
  other->Execute("COMMIT");
  table->Update();
  EXPECT_EQ(table->EditMode(), 0);
}

TEST_F(StoreFile, AFileThatVanishedIsTold) {
  const std::shared_ptr<SqliteConnection> store = Open(path, OpenMode::kCreate);
  CreateSchema(*store);
  const RecordsetRef table = Table(store);
  table->AddNew();
  table->Collect("IdSucursal", "01");
  std::filesystem::rename(path, path + ".away");
  EXPECT_EQ(DescriptionOf([&] { table->Update(); }),
            "The store file '" + path + "' is no longer in its place.");
  EXPECT_EQ(table->EditMode(), 2);
  EXPECT_EQ(ErrorOf([&] { Table(store); }), ado_error::kUnspecified);
  EXPECT_EQ(ErrorOf([&] { store->Execute("SELECT 1"); }), ado_error::kUnspecified);
}

TEST_F(StoreFile, SqlOfTheHostFailsWithTheWordsOfTheEngine) {
  const std::shared_ptr<SqliteConnection> store = Open(":memory:", OpenMode::kCreate);
  EXPECT_EQ(DescriptionOf([&] { store->Execute("SELECT * FROM nada"); }), "no such table: nada");
  EXPECT_EQ(ErrorOf([&] { store->Execute("SELECT * FROM nada"); }), ado_error::kNoTable);
  EXPECT_NE(DescriptionOf([&] { SqliteStatement statement(*store, "SELEC 1"); }).find("syntax error"),
            std::string::npos);
}

TEST_F(StoreFile, AStatementOfTheHostBindsStepsAndLeavesTheRest) {
  const std::shared_ptr<SqliteConnection> store = Open(":memory:", OpenMode::kCreate);
  store->Execute("CREATE TABLE t (a DATETIME, b NUMERIC, c TEXT)");
  SqliteStatement insert(*store, "INSERT INTO t VALUES (?, ?, ?)");
  insert.Bind(1, Date(2026, 11, 16)).Bind(2, 2.5).Bind(3, "x").Run();
  insert.Bind(1, Value()).Bind(2, 3).Bind(3, std::string("yes")).Run();
  SqliteStatement read(*store, "SELECT * FROM t ORDER BY b; SELECT 2");
  ASSERT_EQ(read.ColumnCount(), 3);
  EXPECT_EQ(read.ColumnName(2), "c");
  ASSERT_TRUE(read.Step());
  EXPECT_EQ(read.ValueAt(0), Value(Date(2026, 11, 16)));
  EXPECT_EQ(read.TextAt(0), "2026-11-16 00:00:00");
  EXPECT_EQ(read.ValueAt(1), Value(2.5));
  ASSERT_TRUE(read.Step());
  EXPECT_TRUE(read.ValueAt(0).IsNull());
  EXPECT_EQ(read.TextAt(0), "");
  EXPECT_EQ(read.TextAt(1), "3");
  EXPECT_FALSE(read.Step());
  EXPECT_EQ(read.Rest(), " SELECT 2");
  EXPECT_FALSE(SqliteStatement(*store, " -- nothing").HasStatement());
}

}  // namespace
}  // namespace orvendal::store_testing
