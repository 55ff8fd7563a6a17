// Stores that another program filled in another encoding, and texts with bytes that end texts elsewhere.

#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

class ForeignBytes : public StoreTest {
 protected:
  void AddProduct(const std::string& code, const std::string& description = "Gel") {
    SqliteStatement(*store, "INSERT INTO Productos VALUES (?1, ?2)").Bind(1, code).Bind(2, description).Run();
  }
  void AddCount(const std::string& code) {
    SqliteStatement(
        *store,
        "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto) VALUES ('01', '2026-11-16', ?1)")
        .Bind(1, code)
        .Run();
  }
  Texts Codes(const std::string& statement) { return Column(statement, "Codigo"); }
};

// Ñ and ñ of Latin-1, which make no UTF-8.
const std::string kCapital =
    "PE\xD1"
    "A";
const std::string kSmall =
    "PE\xF1"
    "A";

// Seen: bytes that are no UTF-8 did not load, or were taken for others.
TEST_P(ForeignBytes, ACodeInAnotherEncodingFindsItsProductAndNoOther) {
  AddProduct(kCapital);
  AddProduct(kSmall);
  AddProduct("PEÑA");
  EXPECT_EQ(Codes(CodeExistsStatement(kCapital)), Texts{kCapital});
  EXPECT_EQ(Codes(CodeExistsStatement(kSmall)), Texts{kSmall});
  EXPECT_EQ(Codes(CodeExistsStatement("peña")), Texts{"PEÑA"});
  EXPECT_EQ(Codes(CodeExistsStatement("pe\xD1"
                                      "a ")),
            Texts{kCapital});  // A to Z and blanks as ever
  EXPECT_EQ(Codes(CodeLikeStatement(kSmall)), Texts{kSmall});
  EXPECT_EQ(Codes(CodeLikeStatement("PE\xD1%")), Texts{kCapital});
  EXPECT_EQ(Codes(CodeLikeStatement("PE_A")).size(), 3U);
}

TEST_P(ForeignBytes, ADayWithSuchACodeLoads) {
  for (const std::string& code :
       {kCapital, std::string("\xFF\xFF"), std::string("Z\xF5\x80"), std::string("\x80")}) {
    AddProduct(code);
    AddCount(code);
  }
  EXPECT_EQ(Column(DayStatement("01", LoadCondition(GetParam(), "2026-11-16")), "IdProducto").size(), 4U);
}

TEST_P(ForeignBytes, ASavedRowKeepsSuchACodeByteForByte) {
  const RecordsetRef history = Write(TableStatement());
  history->AddNew();
  history->Collect("IdSucursal", "01");
  history->Collect("Fecha", "16/11/2026");
  history->Collect("IdProducto", kCapital);
  history->Update();
  EXPECT_EQ(Native("SELECT hex(IdProducto) FROM HistOrvendalcial"), "5045D141");
}

TEST_P(ForeignBytes, BoundsLieAboveEveryByte) {
  AddProduct("P\xFF\xFE");
  AddProduct("P\xF4\x90\x80\x80");
  AddProduct("Z\xFF");
  AddProduct("@\xFF");
  AddProduct("\xFF\xFF\xFF");
  EXPECT_EQ(Codes(CodeLikeStatement("p%")).size(), 2U);
  EXPECT_EQ(Codes(CodeLikeStatement("Z%")).size(), 1U);
  EXPECT_EQ(Codes(CodeLikeStatement("@%")).size(), 1U);
  EXPECT_EQ(Codes(CodeLikeStatement("\xFF%")).size(), 1U);
  EXPECT_EQ(Codes(CodeLikeStatement("P\xFF%")).size(), 1U);
  EXPECT_EQ(Codes(CodeLikeStatement("Q%")).size(), 0U);
}

const std::string kNul(1, '\0');

TEST_P(ForeignBytes, ANulInACodeIsOneOfItsCharacters) {
  AddProduct("a" + kNul + "b");
  AddProduct("a");
  EXPECT_EQ(Codes(CodeExistsStatement("a" + kNul + "b")), Texts{"a" + kNul + "b"});
  EXPECT_EQ(Codes(CodeExistsStatement("A" + kNul + "B")), Texts{"a" + kNul + "b"});
  EXPECT_EQ(Codes(CodeExistsStatement("a" + kNul + "c")), Texts{});
  EXPECT_EQ(Codes(CodeExistsStatement("a")), Texts{"a"});
  EXPECT_EQ(Codes(CodeExistsStatement("a" + kNul)), Texts{});
}

TEST_P(ForeignBytes, ANulDoesNotCutAStatement) {
  Write("INSERT INTO Productos VALUES ('P1', 'ab" + kNul + "cd')");
  Write("INSERT INTO Productos VALUES ('P2', 'x')");
  EXPECT_EQ(Column("SELECT Descripcion FROM Productos WHERE Codigo = 'P1'", "Descripcion"),
            Texts{"ab" + kNul + "cd"});
  // What stands after it counts: without it both rows would go.
  Write("DELETE FROM Productos WHERE 'ab" + kNul + "' <> Descripcion AND Codigo = 'P2'");
  EXPECT_EQ(Codes("SELECT Codigo FROM Productos"), Texts{"P1"});
  EXPECT_EQ(ErrorOf([&] { Read("SELECT [Codigo" + kNul + "x] FROM Productos"); }), ado_error::kSyntax);
  EXPECT_EQ(ErrorOf([&] { SqliteStatement(*store, "SELECT 1 " + kNul + " FROM Nada"); }), ado_error::kSyntax);
}

TEST_P(ForeignBytes, ASetOfOneCharacterWrittenAsARangeIsThatCharacter) {
  AddProduct("A1B");
  AddProduct("A2B");
  EXPECT_EQ(Codes(CodeLikeStatement("A[1-1]B")), Texts{"A1B"});
  EXPECT_EQ(Codes(CodeLikeStatement("A[1-1]%")), Texts{"A1B"});
  EXPECT_EQ(Codes(CodeLikeStatement("A[1]B")), Texts{"A1B"});
}

// Blanks at the end count for nothing, other characters below them do.
TEST_P(ForeignBytes, ATabAtTheEndOfACodeIsPartOfIt) {
  AddProduct("P1\t");
  AddProduct("P1");
  EXPECT_EQ(Codes(CodeExistsStatement("P1")), Texts{"P1"});
  EXPECT_EQ(Codes(CodeExistsStatement("P1\t")), Texts{"P1\t"});
  EXPECT_EQ(Codes(CodeLikeStatement("P1")), Texts{"P1"});
}

INSTANTIATE_TEST_SUITE_P(BothDialects, ForeignBytes, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal::store_testing
