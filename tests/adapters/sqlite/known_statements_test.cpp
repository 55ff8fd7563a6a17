// A statement that differs from an earlier one only in its values is not taken apart again. Nobody may see
// that.

#include "tests/adapters/sqlite/store_fixture.h"
#include "tests/support/temporary_folder.h"

namespace orvendal::store_testing {
namespace {

class KnownStatements : public StoreTest {
 protected:
  void SetUp() override {
    StoreTest::SetUp();
    store->Execute(
        "INSERT INTO Productos VALUES ('P1','Champú'),('p2 "
        "','Crema'),('Ñ1','Laca'),('A_1','Cera'),('AX1','Gel'),"
        "('d''or','Perfume')");
  }
  Texts Codes(const std::string& statement) { return Column(statement, "Codigo"); }
};

TEST_P(KnownStatements, ACodeThatIsWrittenDifferentlyIsFoundAfterPlainOnes) {
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(Codes(CodeExistsStatement("P1")), Texts{"P1"});
    EXPECT_EQ(Codes(CodeExistsStatement("P2")), Texts{"p2 "});
    EXPECT_EQ(Codes(CodeExistsStatement("p1  ")), Texts{"P1"});
    EXPECT_EQ(Codes(CodeExistsStatement("ñ1")), Texts{"Ñ1"});
    EXPECT_EQ(Codes(CodeExistsStatement("A_1")), Texts{"A_1"});
    EXPECT_EQ(Codes(CodeExistsStatement("d''or")), Texts{"d'or"});
    EXPECT_EQ(Codes(CodeExistsStatement("")), Texts{});
    EXPECT_EQ(Codes(CodeExistsStatement(std::string("P1\0", 3))), Texts{});
    EXPECT_EQ(ErrorOf([&] { Read(CodeExistsStatement("d'or")); }), ado_error::kSyntax);
  }
}

TEST_P(KnownStatements, APatternIsOneAfterAPlainCode) {
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(Codes(CodeLikeStatement("p1")), Texts{"P1"});
    EXPECT_EQ(Codes(CodeLikeStatement("P1 ")), Texts{});
    EXPECT_EQ(Codes(CodeLikeStatement("A_1")).size(), 2U);
    EXPECT_EQ(Codes(CodeLikeStatement("a[_]1")), Texts{"A_1"});
    EXPECT_EQ(Codes(CodeLikeStatement("A%")).size(), 2U);
    EXPECT_EQ(Codes(CodeLikeStatement("ñ1")), Texts{"Ñ1"});
  }
}

TEST_P(KnownStatements, TwoValuesKeepTheirPlaces) {
  store->Execute("INSERT INTO ProdSucStock VALUES ('01','P1',7),('02','P1',8),('01','P2',9)");
  EXPECT_EQ(Column(StockStatement("01", "P1"), "Stock"), Texts{"7"});
  EXPECT_EQ(Column(StockStatement("02", "P1"), "Stock"), Texts{"8"});
  EXPECT_EQ(Column(StockStatement("01", "P2"), "Stock"), Texts{"9"});
  EXPECT_EQ(Column(StockStatement("P1", "01"), "Stock"), Texts{});
}

// A text that is no condition stands in the statement itself.
TEST_P(KnownStatements, AValueThatIsSelectedIsThatOfItsOwnStatement) {
  const auto selected = [this](const std::string& value) {
    return Read("SELECT '" + value + "' AS Valor FROM Productos WHERE Codigo ='P1'")->Fields("Valor").Value();
  };
  EXPECT_EQ(selected("a"), Value("a"));
  EXPECT_EQ(selected("b"), Value("b"));
}

TEST_P(KnownStatements, ATableThatTheHostMakesAnewIsReadAsItIsNow) {
  EXPECT_EQ(Read(CodeExistsStatement("7"))->RecordCount(), 0);
  store->Execute(
      "DROP TABLE Productos; CREATE TABLE Productos (Codigo INTEGER); INSERT INTO Productos VALUES (7)");
  EXPECT_EQ(Read(CodeExistsStatement("7"))->Fields("Codigo").Value(), Value(7));
}

TEST_P(KnownStatements, ATableThatAnotherProgramMakesAnewIsReadAsItIsNow) {
  const TemporaryFolder folder;
  const auto open = [&] {
    return SqliteConnection::Open(folder / "chain.db", GetParam(), Region::Spanish(), OpenMode::kCreate);
  };
  const ConnectionRef ours = open();
  const auto theirs = open();
  CreateSchema(*theirs);
  const auto read = [&](const std::string& statement) {
    const RecordsetRef rows = SqliteRecordsetFactory().NewRecordset();
    rows->Open(statement, ours, CursorType::kStatic, LockType::kReadOnly, kCommandUnspecified);
    return rows;
  };
  const std::string stock = StockStatement("01", "7");
  read(CodeExistsStatement("7"));
  read(CodeExistsStatement("8"));
  EXPECT_EQ(read(stock)->FieldCount(), 3U);
  theirs->Execute(
      "DROP TABLE Productos; CREATE TABLE Productos (Codigo INTEGER, Descripcion); INSERT INTO Productos "
      "VALUES (7, '');"
      "ALTER TABLE ProdSucStock ADD COLUMN Nota TEXT; INSERT INTO ProdSucStock VALUES ('01', '7', 1, 'x')");
  EXPECT_EQ(read(CodeExistsStatement("7"))->Fields("Codigo").Value(), Value(7));
  EXPECT_EQ(read(stock)->FieldCount(), 4U);
  EXPECT_EQ(read(stock)->Fields("Nota").Value(), Value("x"));
  EXPECT_EQ(read(CodeExistsStatement("7"))->Fields("Codigo").Value(), Value(7));
}

INSTANTIATE_TEST_SUITE_P(BothDialects, KnownStatements, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal::store_testing
