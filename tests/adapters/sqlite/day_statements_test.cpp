#include "tests/adapters/sqlite/store_fixture.h"

namespace orvendal::store_testing {
namespace {

class DayStatements : public StoreTest {
 protected:
  void SetUp() override {
    StoreTest::SetUp();
    store->Execute(
        "INSERT INTO Productos VALUES ('P1','Champú'),('P2','Laca'),('Ñ3','Peine'),('P4','Toalla');"
        "INSERT INTO Empleados (Codigo, Nombre) VALUES ('E1','Ana')");
  }
  void Add(const std::string& branch, const std::string& date, const std::string& product,
           const std::string& employee = "E1") {
    store->Execute(
        "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual, "
        "IdEmpleado) VALUES ('" +
        branch + "','" + date + "','" + product + "',1,2.5,'" + employee + "')");
  }
  Texts Load(const std::string& branch, const std::string& iso_day) {
    return Column(DayStatement(branch, LoadCondition(GetParam(), iso_day)), "IdProducto");
  }
  void Delete(const std::string& branch, const std::string& condition) {
    const RecordsetRef recordset = Write(DeleteStatement(branch, condition));
    EXPECT_EQ(recordset->State(), kStateClosed);
  }
};

TEST_P(DayStatements, ALoadFindsTheDayOfTheBranchInTheOrderOfEntry) {
  Add("01", "2026-11-16 00:00:00", "P2");
  Add("01", "2026-11-16 00:00:00", "P1");
  Add("02", "2026-11-16 00:00:00", "P4");
  Add("01", "2026-11-15 00:00:00", "P4");
  Add("01", "2026-11-17 00:00:00", "P4");
  EXPECT_EQ(Load("01", "2026-11-16"), (Texts{"P2", "P1"}));
}

TEST_P(DayStatements, TheOrderStaysWhateverTheEngineKnowsOfTheTables) {
  store->Execute(
      "DELETE FROM Productos; INSERT INTO Productos VALUES ('P1','Champú'),('P2','Laca');"
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) "
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto) "
      "SELECT '01', '2026-11-16 00:00:00', CASE i % 2 WHEN 1 THEN 'P2' ELSE 'P1' END FROM n; ANALYZE");
  const Texts codes = Load("01", "2026-11-16");
  ASSERT_EQ(codes.size(), 2000U);
  EXPECT_EQ(codes[0], "P2");
  EXPECT_EQ(codes[1], "P1");
  EXPECT_EQ(codes[2], "P2");
}

TEST_P(DayStatements, ALoadBringsEveryFieldInItsKind) {
  Add("01", "2026-11-16 09:05:00", "P1");
  const RecordsetRef row = Read(DayStatement("01", LoadCondition(GetParam(), "2026-11-16")));
  ASSERT_EQ(row->RecordCount(), 1);
  EXPECT_EQ(row->Fields("IdSucursal").Value(), Value("01"));
  EXPECT_EQ(row->Fields("Fecha").Value(), Value(Date(2026, 11, 16, 9, 5, 0)));
  EXPECT_EQ(row->Fields("Descripcion").Value(), Value("Champú"));
  EXPECT_EQ(row->Fields("stockAnterior").Value(), Value(1.0));
  EXPECT_EQ(row->Fields("StockActual").Value(), Value(2.5));
  EXPECT_EQ(row->Fields("IdEmpleado").Value(), Value("E1"));
  EXPECT_EQ(row->Fields("Nombre").Value(), Value("Ana"));
}

TEST_P(DayStatements, AnUnknownEmployeeLoadsWithANullName) {
  Add("01", "2026-11-16 00:00:00", "P1", "E9");
  EXPECT_EQ(Column(DayStatement("01", LoadCondition(GetParam(), "2026-11-16")), "Nombre"), Texts{"Null"});
}

TEST_P(DayStatements, AnUnknownProductDoesNotLoadButIsDeleted) {
  Add("01", "2026-11-16 00:00:00", "P9");
  EXPECT_EQ(Load("01", "2026-11-16"), Texts{});
  Delete("01", SaveCondition(GetParam(), "2026-11-16"));
  EXPECT_EQ(Native("SELECT COUNT(*) FROM HistOrvendalcial"), "0");
}

TEST_P(DayStatements, JoinsPayNoRegardToCaseOrBlanksAtTheEnd) {
  Add("01", "2026-11-16 00:00:00", "ñ3");
  Add("01", "2026-11-16 00:00:00", "p1  ", "e1");
  EXPECT_EQ(Column(DayStatement("01", LoadCondition(GetParam(), "2026-11-16")), "Descripcion"),
            (Texts{"Peine", "Champú"}));
  EXPECT_EQ(Column(DayStatement("01", LoadCondition(GetParam(), "2026-11-16")), "Nombre"),
            (Texts{"Ana", "Ana"}));
}

TEST_P(DayStatements, TheLastSecondOfTheDayIsCaughtAndAFractionOfItIsNot) {
  Add("01", "2026-11-16 23:59:59", "P1");
  Add("01", "2026-11-16 23:59:59.500", "P2");
  Add("01", "2026-11-17 00:00:00", "P4");
  EXPECT_EQ(Load("01", "2026-11-16"), Texts{"P1"});
}

TEST_P(DayStatements, DatesThatOtherToolsWroteAreFound) {
  Add("01", "2026-11-16", "P1");
  Add("01", "2026-11-16T08:30:00", "P2");
  Add("01", "2026-11-16 08:30", "P4");
  Add("01", "2026-11-16 23:59:59.000", "Ñ3");
  EXPECT_EQ(Load("01", "2026-11-16").size(), 4U);
}

TEST_P(DayStatements, ASaveDeletesItsDayAndNothingElse) {
  Add("01", "2026-11-16", "P1");
  Add("01", "2026-11-16 00:00:00", "P2");
  Add("01", "2026-11-16 23:59:59", "P2");
  Add("02", "2026-11-16 00:00:00", "P2");
  Add("01", "2026-11-15 23:59:59", "P2");
  Add("01", "2026-11-17 00:00:00", "P2");
  Add("01", "2026-12-16 00:00:00", "P2");
  Delete("01", SaveCondition(GetParam(), "2026-11-16"));
  EXPECT_EQ(Native("SELECT group_concat(row, '|') FROM (SELECT IdSucursal || ' ' || Fecha AS row FROM "
                   "HistOrvendalcial ORDER BY rowid)"),
            "02 2026-11-16 00:00:00|01 2026-11-15 23:59:59|01 2026-11-17 00:00:00|01 2026-12-16 00:00:00");
}

TEST_P(DayStatements, ADayWithADayAndMonthOfOneFigureIsTheRightOne) {
  Add("01", "2026-02-03 00:00:00", "P1");
  Add("01", "2026-03-02 00:00:00", "P2");
  EXPECT_EQ(Load("01", "2026-02-03"), Texts{"P1"});
  Delete("01", SaveCondition(GetParam(), "2026-03-02"));
  EXPECT_EQ(Load("01", "2026-02-03"), Texts{"P1"});
  EXPECT_EQ(Load("01", "2026-03-02"), Texts{});
}

TEST_P(DayStatements, ABranchKeyWithWildcardsDeletesWhatItMatches) {
  Add("01", "2026-11-16 00:00:00", "P1");
  Add("02", "2026-11-16 00:00:00", "P1");
  Add("12", "2026-11-16 00:00:00", "P1");
  Delete("0%", SaveCondition(GetParam(), "2026-11-16"));
  EXPECT_EQ(Native("SELECT group_concat(IdSucursal) FROM HistOrvendalcial"), "12");
}

TEST_P(DayStatements, BranchKeysCompareWithoutCaseAndEndBlanks) {
  Add("Ñ1", "2026-11-16 00:00:00", "P1");
  Add("ab", "2026-11-16 00:00:00", "P2");
  Add("1", "2026-11-16 00:00:00", "P4");
  Add("1 ", "2026-11-16 00:00:00", "Ñ3");
  EXPECT_EQ(Load("ñ1", "2026-11-16"), Texts{"P1"});
  EXPECT_EQ(Load("AB", "2026-11-16"), Texts{"P2"});
  EXPECT_EQ(Load("1", "2026-11-16"), (Texts{"P4", "Ñ3"}));
  Delete("ñ1", SaveCondition(GetParam(), "2026-11-16"));
  Delete("1", SaveCondition(GetParam(), "2026-11-16"));
  EXPECT_EQ(Native("SELECT group_concat(IdSucursal) FROM HistOrvendalcial"), "ab");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, DayStatements, ::testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

class JetDays : public DayStatements {};

TEST_P(JetDays, AnEmptyDateBoxDeletesEveryDayOfTheBranch) {
  Add("01", "2026-11-16 00:00:00", "P1");
  Add("01", "2025-01-01 00:00:00", "P1");
  Add("02", "2026-11-16 00:00:00", "P1");
  Delete("01", "LIKE '%'");
  EXPECT_EQ(Native("SELECT group_concat(IdSucursal) FROM HistOrvendalcial"), "02");
}

TEST_P(JetDays, DateLiteralsHaveTheMonthFirstInEveryRegion) {
  Add("01", "2026-02-03 00:00:00", "P1");
  EXPECT_EQ(Column(DayStatement("01", "BETWEEN #2/3/2026 00:00:00# AND #2/3/2026 23:59:59#"), "IdProducto"),
            Texts{"P1"});
  EXPECT_EQ(Column(DayStatement("01", "BETWEEN #3/2/2026 00:00:00# AND #3/2/2026 23:59:59#"), "IdProducto"),
            Texts{});
}

TEST_P(JetDays, ADatePatternTestsTheTextOfTheRegion) {
  Add("01", "2026-11-16 00:00:00", "P1");
  Add("01", "2026-11-16 09:05:00", "P2");
  Add("01", "2026-10-16 00:00:00", "P4");
  const auto like = [this](const std::string& pattern) {
    return Column(DayStatement("01", "LIKE '" + pattern + "'"), "IdProducto");
  };
  EXPECT_EQ(like("16/11/2026%"), (Texts{"P1", "P2"}));
  EXPECT_EQ(like("16/11/2026"), Texts{"P1"});
  EXPECT_EQ(like("16/11/2026 9:05:00"), Texts{"P2"});
  EXPECT_EQ(like("16/11/2026 9:%"), Texts{"P2"});
  EXPECT_EQ(like("16/1_/2026"), (Texts{"P4", "P1"}));
  EXPECT_EQ(like("%2026"), (Texts{"P4", "P1"}));
  EXPECT_EQ(like("16/%"), (Texts{"P4", "P1", "P2"}));
  EXPECT_EQ(like("11/16/2026%"), Texts{});
  EXPECT_EQ(like("2026-11-16%"), Texts{});
}

TEST_P(JetDays, ADatePatternFollowsTheEnglishRegionToo) {
  Add("01", "2026-11-16 09:05:00", "P2");
  UseEmptyStore(Region::English());
  CreateSchema(*store);
  store->Execute("INSERT INTO Productos VALUES ('P2','Laca'),('P3','Gel')");
  Add("01", "2026-11-16 21:05:00", "P2");
  Add("01", "2026-01-01 00:00:00", "P3");
  EXPECT_EQ(Column(DayStatement("01", "LIKE '11/16/2026%'"), "IdProducto"), Texts{"P2"});
  EXPECT_EQ(Column(DayStatement("01", "LIKE '11/16/2026 9:05:00 PM'"), "IdProducto"), Texts{"P2"});
  EXPECT_EQ(Column(DayStatement("01", "LIKE '1/1/2026%'"), "IdProducto"), Texts{"P3"});
  EXPECT_EQ(Column(DayStatement("01", "LIKE '16/11/2026%'"), "IdProducto"), Texts{});
}

TEST_P(JetDays, ThePartOfADateFindsEveryDayThatBeginsSo) {
  store->Execute(
      "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto) VALUES ('77', '2026-11-16 00:00:00', "
      "'A'), "
      "('77', '2020-11-16 00:00:00', 'B'), ('77', '2026-11-16 09:05:00', 'C'), ('77', '16/11/2026x', 'D')");
  const auto found = [&](const std::string& pattern) {
    return Column("SELECT IdProducto FROM HistOrvendalcial WHERE IdSucursal = '77' AND Fecha LIKE '" +
                      pattern + "' ORDER BY IdProducto",
                  "IdProducto");
  };
  EXPECT_EQ(found("16/11/20%"), (Texts{"A", "B", "C", "D"}));
  EXPECT_EQ(found("16/11/2026%"), (Texts{"A", "C"}));
  EXPECT_EQ(found("16/11/2026"), Texts{"A"});
  EXPECT_EQ(found("16/11/2026 9:05:0%"), Texts{"C"});
  // With more than a date to look for, a text that is no date is looked at as well.
  EXPECT_EQ(found("16/11/2026_"), Texts{"D"});
}

INSTANTIATE_TEST_SUITE_P(Dialect, JetDays, ::testing::Values(Dialect::kJet), DialectName);

class ServerDays : public DayStatements {};

TEST_P(ServerDays, ConvertTakesItsThreeSeparators) {
  Add("01", "2026-11-16 10:00:00", "P1");
  for (const char* day : {"2026.11.16", "2026/11/16", "2026-11-16"}) {
    const std::string range = "BETWEEN CONVERT(DATETIME, '" + std::string(day) +
                              " 00:00:00', 102) AND CONVERT(DATETIME, '" + day + " 23:59:59', 102)";
    EXPECT_EQ(Column(DayStatement("01", range), "IdProducto"), Texts{"P1"}) << day;
  }
}

TEST_P(ServerDays, AnImpossibleDateIsAConversionError) {
  for (const char* day : {"2026-13-01", "2026-02-30", "", "16/11/2026", "mañana"}) {
    const std::string range = "> CONVERT(DATETIME, '" + std::string(day) + "', 102)";
    EXPECT_EQ(ErrorOf([&] { Read(DayStatement("01", range)); }), ado_error::kConversionFailed) << day;
  }
}

TEST_P(ServerDays, ComparisonsOtherThanRangesFindTheirRows) {
  Add("01", "2026-11-15", "P1");
  Add("01", "2026-11-16 10:00:00", "P2");
  Add("01", "2026-11-17 00:00:00", "P4");
  const auto rows = [this](const std::string& condition) {
    return Column(DayStatement("01", condition), "IdProducto");
  };
  EXPECT_EQ(rows("= CONVERT(DATETIME, '2026-11-16 10:00:00', 102)"), Texts{"P2"});
  EXPECT_EQ(rows("= CONVERT(DATETIME, '2026-11-15', 102)"), Texts{"P1"});
  EXPECT_EQ(rows("< CONVERT(DATETIME, '2026-11-16 10:00:00', 102)"), Texts{"P1"});
  EXPECT_EQ(rows("<= CONVERT(DATETIME, '2026-11-16 10:00:00', 102)"), (Texts{"P1", "P2"}));
  EXPECT_EQ(rows("> CONVERT(DATETIME, '2026-11-16 10:00:00', 102)"), Texts{"P4"});
  EXPECT_EQ(rows(">= CONVERT(DATETIME, '2026-11-16 10:00:00', 102)"), (Texts{"P2", "P4"}));
  EXPECT_EQ(rows("<> CONVERT(DATETIME, '2026-11-16 10:00:00', 102)"), (Texts{"P1", "P4"}));
  EXPECT_EQ(rows("= '2026-11-17'"), Texts{"P4"});
  EXPECT_EQ(rows("LIKE 'Nov 16 2026 10:00AM'"), Texts{"P2"});
}

INSTANTIATE_TEST_SUITE_P(Dialect, ServerDays, ::testing::Values(Dialect::kSqlServer), DialectName);

}  // namespace
}  // namespace orvendal::store_testing
