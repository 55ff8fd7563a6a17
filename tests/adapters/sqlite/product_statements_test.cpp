#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

class ProductStatements : public StoreTest {
 protected:
  void SetUp() override {
    StoreTest::SetUp();
    store->Execute(
        "INSERT INTO Productos VALUES "
        "('CH01','Champú de romero'),('ch02 ','CHAMPÚ anticaspa'),('ÑU-1','Ñandú de peluche'),"
        "('A_1','Acondicionador'),('AX1','Aceite de argán'),('50%','Descuento'),('T[1]','Tinte'),"
        "('ÁGÜÍ','Águila'),('tijera','champán')");
  }
  Texts Codes(const std::string& statement) { return Column(statement, "Codigo"); }
  Texts CodesSorted(const std::string& statement) {
    Texts codes = Codes(statement);
    std::sort(codes.begin(), codes.end());
    return codes;
  }
};

TEST_P(ProductStatements, ACodeIsFoundWithoutRegardToCaseOrBlanksAtTheEnd) {
  EXPECT_EQ(Codes(CodeExistsStatement("CH01")), Texts{"CH01"});
  EXPECT_EQ(Codes(CodeExistsStatement("ch01")), Texts{"CH01"});
  EXPECT_EQ(Codes(CodeExistsStatement("CH01   ")), Texts{"CH01"});
  EXPECT_EQ(Codes(CodeExistsStatement("CH02")), Texts{"ch02 "});
  EXPECT_EQ(Codes(CodeExistsStatement("ñu-1")), Texts{"ÑU-1"});
  EXPECT_EQ(Codes(CodeExistsStatement("Ñu-1 ")), Texts{"ÑU-1"});
  EXPECT_EQ(Codes(CodeExistsStatement("CH0")), Texts{});
  EXPECT_EQ(Codes(CodeExistsStatement(" CH01")), Texts{});
  EXPECT_EQ(Codes(CodeExistsStatement("")), Texts{});
  EXPECT_EQ(Codes(CodeExistsStatement("CH01%")), Texts{});
}

TEST_P(ProductStatements, LettersWithAccentsFoldTheirCaseAndKeepTheirAccent) {
  EXPECT_EQ(Codes(CodeExistsStatement("águi")), Texts{});
  EXPECT_EQ(Codes(CodeExistsStatement("ágüí")), Texts{"ÁGÜÍ"});
  EXPECT_EQ(Codes(CodeExistsStatement("agui")), Texts{});
  EXPECT_EQ(Codes(CodeExistsStatement("NU-1")), Texts{});
}

TEST_P(ProductStatements, ACodeWithoutWildcardsIsComparedWhole) {
  EXPECT_EQ(Codes(CodeLikeStatement("ch01")), Texts{"CH01"});
  EXPECT_EQ(Codes(CodeLikeStatement("ch0")), Texts{});
  EXPECT_EQ(Codes(CodeLikeStatement("ñU-1")), Texts{"ÑU-1"});
  EXPECT_EQ(Codes(CodeLikeStatement("CH02")), Texts{"ch02 "});
  EXPECT_EQ(Codes(CodeLikeStatement("CH01 ")), Texts{}) << "blanks of the pattern count";
}

TEST_P(ProductStatements, WildcardsOfACodeWork) {
  EXPECT_EQ(CodesSorted(CodeLikeStatement("ch0%")), (Texts{"CH01", "ch02 "}));
  EXPECT_EQ(CodesSorted(CodeLikeStatement("A_1")), (Texts{"AX1", "A_1"}));
  EXPECT_EQ(CodesSorted(CodeLikeStatement("a[_]1")), Texts{"A_1"});
  EXPECT_EQ(CodesSorted(CodeLikeStatement("ch0[2-9]")), Texts{"ch02 "});
  EXPECT_EQ(CodesSorted(CodeLikeStatement("ch0[^2-9]")), Texts{"CH01"});
  EXPECT_EQ(CodesSorted(CodeLikeStatement("50[%]")), Texts{"50%"});
  EXPECT_EQ(CodesSorted(CodeLikeStatement("t[[]1]")), Texts{"T[1]"});
  EXPECT_EQ(CodesSorted(CodeLikeStatement("%1")), (Texts{"AX1", "A_1", "CH01", "ÑU-1"}));
  EXPECT_EQ(Codes(CodeLikeStatement("%")).size(), 9U);
  EXPECT_EQ(Codes(CodeLikeStatement("CH*")), Texts{}) << "the star is no wildcard";
  EXPECT_EQ(Codes(CodeLikeStatement("CH0?")), Texts{}) << "nor is the question mark";
}

TEST_P(ProductStatements, ADescriptionIsFoundByItsBeginning) {
  EXPECT_EQ(CodesSorted(DescriptionLikeStatement("champú")), (Texts{"CH01", "ch02 "}));
  EXPECT_EQ(CodesSorted(DescriptionLikeStatement("CHAMPÚ D")), Texts{"CH01"});
  EXPECT_EQ(CodesSorted(DescriptionLikeStatement("champu")), Texts{});
  EXPECT_EQ(CodesSorted(DescriptionLikeStatement("champ")), (Texts{"CH01", "ch02 ", "tijera"}));
  EXPECT_EQ(CodesSorted(DescriptionLikeStatement("ñ")), Texts{"ÑU-1"});
  EXPECT_EQ(CodesSorted(DescriptionLikeStatement("ÑANDÚ")), Texts{"ÑU-1"});
  EXPECT_EQ(CodesSorted(DescriptionLikeStatement("%argán")), Texts{"AX1"});
  EXPECT_EQ(Codes(DescriptionLikeStatement("")).size(), 9U);
}

TEST_P(ProductStatements, AReferenceLeadsToItsProduct) {
  store->Execute("INSERT INTO Referencias VALUES ('8412345678905','CH01'),('REFÑ','AX1')");
  EXPECT_EQ(Column(ReferenceStatement("8412345678905"), "IdProducto"), Texts{"CH01"});
  EXPECT_EQ(Column(ReferenceStatement("refñ"), "IdProducto"), Texts{"AX1"});
  EXPECT_EQ(Column(ReferenceStatement("841234567890"), "IdProducto"), Texts{});
}

TEST_P(ProductStatements, TheStockOfALineIsThatOfItsBranch) {
  store->Execute("INSERT INTO ProdSucStock VALUES ('01','CH01',7.5),('02','CH01',3),('01','AX1',NULL)");
  EXPECT_EQ(Column(StockStatement("01", "ch01"), "Stock"), Texts{"7,5"});
  EXPECT_EQ(Column(StockStatement("02", "CH01"), "stock"), Texts{"3"});
  EXPECT_EQ(Column(StockStatement("01", "AX1"), "Stock"), Texts{"Null"});
  EXPECT_EQ(Column(StockStatement("03", "CH01"), "Stock"), Texts{});
}

TEST_P(ProductStatements, ADescriptionIsReadByCode) {
  EXPECT_EQ(Column(DescriptionStatement("ñu-1"), "Descripcion"), Texts{"Ñandú de peluche"});
}

TEST_P(ProductStatements, BranchesComeByName) {
  store->Execute(
      "INSERT INTO Sucursales VALUES ('01','Zamora'),('02','Ávila'),('03','avilés'),('04','Ñora'),"
      "('05','Nules'),('06','Oviedo')");
  EXPECT_EQ(Column(BranchesStatement(), "Nombre"),
            (Texts{"Ávila", "avilés", "Nules", "Ñora", "Oviedo", "Zamora"}));
}

TEST_P(ProductStatements, ADoubledQuoteIsAQuote) {
  store->Execute("INSERT INTO Productos VALUES ('O''X','Gel')");
  EXPECT_EQ(Codes(CodeExistsStatement("o''x")), Texts{"O'X"});
}

TEST_P(ProductStatements, AStoreThatAnotherToolMadeComparesAlike) {
  store->Execute(
      "DROP TABLE Productos; CREATE TABLE Productos (Codigo TEXT, Descripcion TEXT);"
      "CREATE INDEX plain ON Productos (Codigo);"
      "INSERT INTO Productos VALUES ('Ab1 ','Uno'),('ñ2','Dos')");
  EXPECT_EQ(Codes(CodeExistsStatement("aB1")), Texts{"Ab1 "});
  EXPECT_EQ(Codes(CodeLikeStatement("Ñ_")), Texts{"ñ2"});
  EXPECT_EQ(Codes(DescriptionLikeStatement("dO")), Texts{"ñ2"});
}

TEST_P(ProductStatements, AViewInTheTablesPlaceComparesAlike) {
  store->Execute(
      "ALTER TABLE Productos RENAME TO Articulos; CREATE VIEW Productos AS SELECT * FROM Articulos");
  EXPECT_EQ(Codes(CodeExistsStatement("ñu-1 ")), Texts{"ÑU-1"});
  EXPECT_EQ(Codes(CodeLikeStatement("[c]H01")), Texts{"CH01"});
}

TEST_P(ProductStatements, ANameInBracketsAndConditionsOfOtherShapesWork) {
  EXPECT_EQ(CodesSorted("SELECT [Codigo] FROM [Productos] AS p WHERE NOT (p.[Codigo] Like 'ch%') AND "
                        "p.Codigo <> 'Áxx' AND (Descripcion = 'tinte' OR Descripcion Not Like '%a%')"),
            (Texts{"50%", "T[1]"}));
}

INSTANTIATE_TEST_SUITE_P(BothDialects, ProductStatements,
                         ::testing::Values(Dialect::kSqlServer, Dialect::kJet), DialectName);

}  // namespace
}  // namespace orvendal::store_testing
