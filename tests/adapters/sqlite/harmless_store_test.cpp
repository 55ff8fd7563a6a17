// What a file from elsewhere, a script or a code typed on the screen may not do to the program.

#include <sqlite3.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "adapters/sqlite/store_functions.h"
#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

namespace fs = std::filesystem;

class HarmlessStore : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string test = ::testing::UnitTest::GetInstance()->current_test_info()->name();
    folder = fs::path(::testing::TempDir()) / ("orvendal_harmless_" + test);
    fs::remove_all(folder);
    fs::create_directories(folder);
    path = (folder / "tienda.db").string();
  }
  void TearDown() override {
    store.reset();
    fs::remove_all(folder);
  }
  void OpenSample() {
    store = SqliteConnection::Open(path, Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
    CreateSchema(*store);
  }
  // As a script does.
  std::int32_t ErrorOfScript(const std::string& sql) {
    return ErrorOf([&] {
      SqliteStatement statement(*store, sql);
      while (statement.Step()) {
      }
    });
  }
  std::string Told(const std::string& sql) {
    SqliteStatement statement(*store, sql);
    return statement.Step() ? statement.TextAt(0) : std::string("no row");
  }
  // As the screen does.
  std::int32_t ErrorOfScreen(const std::string& sql) {
    return ErrorOf([&] {
      SqliteRecordsetFactory().NewRecordset()->Open(sql, store, CursorType::kStatic, LockType::kReadOnly,
                                                    kCommandUnspecified);
    });
  }
  Texts Files() const {
    Texts names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  fs::path folder;
  std::string path;
  std::shared_ptr<SqliteConnection> store;
};

TEST_F(HarmlessStore, AScriptCannotHandTheEngineAPointer) {
  OpenSample();
  EXPECT_EQ(ErrorOfScript("SELECT fts3_tokenizer('simple', x'4141414141414141')"),
            ado_error::kPermissionDenied);
  EXPECT_EQ(ErrorOfScript("SELECT FTS3_Tokenizer('simple')"), ado_error::kPermissionDenied);
  EXPECT_EQ(ErrorOfScript("SELECT load_extension('/lib/x.so')"), ado_error::kPermissionDenied);
}

TEST_F(HarmlessStore, ACodeTypedOnTheScreenCannotHandTheEngineAPointer) {
  OpenSample();
  const std::string typed =
      "z' UNION SELECT fts3_tokenizer('simple', CAST('AAAAAAAA' AS BLOB)) FROM Productos WHERE '1' = '1";
  EXPECT_EQ(ErrorOfScreen(CodeExistsStatement(typed)), ado_error::kPermissionDenied);
  EXPECT_EQ(DescriptionOf([&] {
              SqliteRecordsetFactory().NewRecordset()->Open(CodeExistsStatement(typed), store,
                                                            CursorType::kStatic, LockType::kReadOnly, -1);
            }),
            "The store does not allow this statement.");
}

// What guards the engine holds even where nobody is asked for permission.
TEST_F(HarmlessStore, TheEngineItselfTakesNoPointerAndNoExtension) {
  OpenSample();
  for (const int option : {SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION,
                           SQLITE_DBCONFIG_TRUSTED_SCHEMA}) {
    int value = 1;
    sqlite3_db_config(store->Handle(), option, -1, &value);
    EXPECT_EQ(value, 0) << option;
  }
  int defensive = 0;
  sqlite3_db_config(store->Handle(), SQLITE_DBCONFIG_DEFENSIVE, -1, &defensive);
  EXPECT_EQ(defensive, 1);
}

TEST_F(HarmlessStore, NoOtherFileIsReadOrWritten) {
  OpenSample();
  const std::string other = (folder / "otra.db").string();
  for (const std::string& sql :
       {"ATTACH '" + other + "' AS otra", "ATTACH (SELECT '" + other + "') AS otra",
        "VACUUM INTO '" + other + "'", std::string("VACUUM"), std::string("DETACH main")}) {
    EXPECT_EQ(ErrorOfScript(sql), ado_error::kPermissionDenied) << sql;
    EXPECT_EQ(ErrorOfScreen(sql), ado_error::kPermissionDenied) << sql;
  }
  EXPECT_EQ(Files(), (Texts{"tienda.db", "tienda.db-shm", "tienda.db-wal"}));
}

TEST_F(HarmlessStore, APragmaTellsAndChangesNothing) {
  OpenSample();
  for (const char* sql :
       {"PRAGMA user_version = 7", "PRAGMA journal_mode = DELETE", "PRAGMA writable_schema = ON",
        "PRAGMA trusted_schema = ON", "PRAGMA application_id = 1", "PRAGMA wal_checkpoint", "PRAGMA optimize",
        "PRAGMA incremental_vacuum", "PRAGMA temp_store_directory = '/'", "PRAGMA encoding = 'UTF-16'",
        "PRAGMA user_version(7)", "PRAGMA Journal_Mode(OFF)"}) {
    EXPECT_EQ(ErrorOfScript(sql), ado_error::kPermissionDenied) << sql;
  }
  EXPECT_EQ(Told("PRAGMA user_version"), std::to_string(kSchemaVersion));
  EXPECT_EQ(Told("PRAGMA journal_mode"), "wal");
  EXPECT_EQ(Told("PRAGMA table_info(Productos)"), "0");
  EXPECT_EQ(Told("PRAGMA integrity_check"), "ok");
}

// Seen: what a statement sorts stood in a temporary file.
TEST_F(HarmlessStore, WhatAStatementKeepsForItselfGoesIntoNoFile) {
  OpenSample();
  EXPECT_EQ(Told("PRAGMA temp_store"), "2");  // in memory
  EXPECT_EQ(ErrorOfScript("PRAGMA temp_store = FILE"), ado_error::kPermissionDenied);
}

TEST_F(HarmlessStore, NoVirtualTableIsMade) {
  OpenSample();
  EXPECT_EQ(ErrorOfScript("CREATE VIRTUAL TABLE v USING fts4(a)"), ado_error::kPermissionDenied);
  EXPECT_EQ(ErrorOfScript("CREATE VIRTUAL TABLE v USING dbstat(main)"), ado_error::kPermissionDenied);
}

TEST_F(HarmlessStore, ThePagesOfTheFileAreOutOfReach) {
  OpenSample();
  EXPECT_NE(ErrorOfScript("UPDATE sqlite_master SET sql = 'x'"), 0);
  EXPECT_NE(ErrorOfScript("DELETE FROM sqlite_schema"), 0);
}

TEST_F(HarmlessStore, WhatScriptsDoToTablesStaysAllowed) {
  OpenSample();
  for (const char* sql :
       {"INSERT INTO Productos VALUES ('P1', 'Gel')", "UPDATE Productos SET Descripcion = 'Laca'",
        "ALTER TABLE Productos RENAME TO Otra", "ALTER TABLE Otra RENAME TO Productos",
        "ALTER TABLE Productos ADD COLUMN Precio NUMERIC", "CREATE TABLE Nueva (a)",
        "CREATE TRIGGER t AFTER INSERT ON Nueva BEGIN DELETE FROM Nueva; END", "DROP TABLE Nueva",
        "CREATE INDEX i ON Productos (Precio)", "ANALYZE", "BEGIN", "ROLLBACK"}) {
    EXPECT_EQ(ErrorOfScript(sql), 0) << sql;
  }
}

TEST_F(HarmlessStore, ANameThatLooksLikeAnInstructionIsTheNameOfAFile) {
  const fs::path before = fs::current_path();
  fs::current_path(folder);
  for (const char* name : {"file:tienda?mode=memory", "file::memory:"}) {
    store = SqliteConnection::Open(name, Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate);
    CreateSchema(*store);
    EXPECT_TRUE(fs::exists(folder / name)) << name;
    store->Close();
  }
  fs::current_path(before);
  EXPECT_EQ(ErrorOf([&] {
              SqliteConnection::Open("tienda.db" + std::string(1, '\0') + "x", Dialect::kSqlServer,
                                     Region::Spanish(), OpenMode::kCreate);
            }),
            ado_error::kUnspecified);
}

TEST_F(HarmlessStore, AFirstLookThatRefusesLeavesTheFileAsItWas) {
  {
    sqlite3* plain = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &plain), SQLITE_OK);
    sqlite3_exec(plain, "CREATE TABLE a (x)", nullptr, nullptr, nullptr);
    sqlite3_close(plain);
  }
  const auto bytes = [&] {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  const std::string before = bytes();
  EXPECT_EQ(ErrorOf([&] {
              SqliteConnection::Open(path, Dialect::kSqlServer, Region::Spanish(), OpenMode::kCreate,
                                     [](SqliteConnection&) { throw RuntimeError(77, "no"); });
            }),
            77);
  EXPECT_EQ(bytes(), before);
  EXPECT_EQ(Files(), Texts{"tienda.db"});
}

constexpr const char* kEndless = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) ";

TEST_F(HarmlessStore, AnEndlessViewEndsWithTheTimeForACommand) {
  OpenSample();
  store->Execute("DROP TABLE Sucursales; CREATE VIEW Sucursales AS " + std::string(kEndless) +
                 "SELECT i AS Sucursal, i AS Nombre FROM n");
  store->CommandTimeout(50);
  EXPECT_EQ(ErrorOfScreen(BranchesStatement()), ado_error::kTimeout);
  EXPECT_EQ(ErrorOfScript("SELECT COUNT(*) FROM Sucursales"), ado_error::kTimeout);
  EXPECT_EQ(DescriptionOf([&] { Told("SELECT COUNT(*) FROM Sucursales"); }), "Query timeout expired");
  // Row by row, too: each of them comes at once.
  EXPECT_EQ(ErrorOfScript("SELECT * FROM Sucursales"), ado_error::kTimeout);
  // The connection lives on.
  EXPECT_EQ(Told("SELECT COUNT(*) FROM Productos"), "0");
}

TEST_F(HarmlessStore, AWriteThatTakesTooLongLeavesNothingBehind) {
  OpenSample();
  store->CommandTimeout(50);
  EXPECT_EQ(ErrorOfScript("INSERT INTO Productos (Codigo) " + std::string(kEndless) + "SELECT i FROM n"),
            ado_error::kTimeout);
  EXPECT_EQ(Told("SELECT COUNT(*) FROM Productos"), "0");
}

TEST_F(HarmlessStore, TheTimeOfAStatementIsItsOwn) {
  OpenSample();
  store->CommandTimeout(50);
  EXPECT_EQ(ErrorOf([&] {
              SqliteStatement endless(*store, std::string(kEndless) + "SELECT i FROM n");
              // Another statement between two rows starts its own time, not that of the first.
              while (endless.Step()) SqliteStatement(*store, "SELECT 1").Step();
            }),
            ado_error::kTimeout);
}

// One call of a function is not interrupted, so that none may take long.
TEST_F(HarmlessStore, ASingleCallOfAFunctionEndsSoon) {
  OpenSample();
  const std::string long_text = "printf('%.*c', 3000000, 'a')";
  const std::string half = "(printf('%.*c', 1500000, 'a') || 'b')";
  for (const std::string& call :
       {std::string("instr(zeroblob(60000000), zeroblob(30000000))"),
        std::string("instr(zeroblob(3000000), zeroblob(1500000) || x'01')"),
        "instr(" + long_text + ", " + half + ")", "length(replace(" + long_text + ", " + half + ", ''))",
        long_text + " LIKE '%' || printf('%.*c', 40000, 'a') || 'b'",
        long_text + " GLOB '*' || printf('%.*c', 40000, 'a') || 'b'",
        std::string(sqlite::function::kTextLike) + "(" + long_text + ", '%' || " + half + ")",
        std::string("length(json_patch('{}', '{}'))")}) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_NE(ErrorOfScript("SELECT " + call), 0) << call;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << call;
  }
  EXPECT_EQ(Told("SELECT length(trim(" + long_text + ", printf('%.*c', 3000000, 'b') || 'a'))"), "0");
  EXPECT_EQ(Told("SELECT COUNT(*) FROM Productos"), "0");
}

// Seen: a script took all the memory there was.
TEST_F(HarmlessStore, AStatementThatPilesUpValuesEndsBeforeTheMemoryDoes) {
  OpenSample();
  EXPECT_EQ(DescriptionOf([&] {
              Told("SELECT count(DISTINCT zeroblob(4000000) || i) FROM (" + std::string(kEndless) +
                   "SELECT i FROM n LIMIT 200)");
            }),
            "out of memory");
  EXPECT_EQ(Told("SELECT COUNT(*) FROM Productos"), "0");
}

TEST_F(HarmlessStore, FunctionsThatTakeTimeAreInterruptedBetweenTheirCalls) {
  OpenSample();
  store->CommandTimeout(50);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(
      ErrorOfScript(std::string(kEndless) +
                    "SELECT SUM(instr(printf('%.*c', 1000000, 'a') || i, printf('%.*c', 190, 'a') || 'b')) "
                    "FROM n"),
      ado_error::kTimeout);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(HarmlessStore, SearchingReplacingAndTrimmingAnswerAsTheEngineDoes) {
  OpenSample();
  sqlite3* plain = nullptr;
  ASSERT_EQ(sqlite3_open(":memory:", &plain), SQLITE_OK);
  const Texts values = {"NULL",
                        "''",
                        "'a'",
                        "'ña'",
                        "'añb'",
                        "'  a ñ '",
                        "'aañaa'",
                        "'ñ'",
                        "x'c3b161'",
                        "x'b1'",
                        "12",
                        "1.5",
                        "'1'",
                        "' '",
                        "x''",
                        "x'00'",
                        "'a' || char(0) || 'b'"};
  std::vector<std::string> calls;
  for (const std::string& first : values) {
    for (const std::string& second : values) {
      for (const char* name : {"instr", "trim", "ltrim", "rtrim"}) {
        calls.push_back(std::string(name) + "(" + first + ", " + second + ")");
      }
      for (const std::string& third : values) {
        calls.push_back("replace(" + first + ", " + second + ", " + third + ")");
      }
    }
  }
  for (const std::string& call : calls) {
    const std::string sql = "SELECT quote(CAST(" + call + " AS BLOB))";
    sqlite3_stmt* statement = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(plain, sql.c_str(), -1, &statement, nullptr), SQLITE_OK) << sql;
    ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW) << sql;
    EXPECT_EQ(Told(sql), reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))) << call;
    sqlite3_finalize(statement);
  }
  sqlite3_close(plain);
}

TEST_F(HarmlessStore, AMegabytePastedIntoACodeIsACodeThatIsNotThere) {
  OpenSample();
  store->Execute("INSERT INTO Productos VALUES ('P1', 'Gel')");
  const std::string pasted(1 << 20, 'x');
  const std::string products = "SELECT Productos.Codigo FROM Productos WHERE Productos.";
  for (const std::string& sql : {CodeExistsStatement(pasted), products + "Codigo Like '" + pasted + "%'",
                                 products + "Descripcion Like '" + pasted + "%'"}) {
    EXPECT_EQ(ErrorOfScreen(sql), 0);
  }
  EXPECT_EQ(Told("SELECT COUNT(*) FROM Productos"), "1");
}

}  // namespace
}  // namespace orvendal::store_testing
