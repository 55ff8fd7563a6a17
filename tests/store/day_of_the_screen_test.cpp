#include <gtest/gtest.h>

#include <tuple>

#include "form/columns.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

// What the conditions catch of a real store, through the screen.
class DayOfTheScreenTest : public testing::TestWithParam<std::tuple<Dialect, const Region*>> {
 protected:
  bool jet() const { return std::get<0>(GetParam()) == Dialect::kJet; }
  void AddRow(const std::string& product, const std::string& moment) {
    screen.Execute(
        "INSERT INTO HistOrvendalcial (IdSucursal, Fecha, IdProducto, StockAnterior, StockActual, "
        "IdEmpleado, Actualizado, ModificadoPor) VALUES ('01', '" +
        moment + "', '" + product + "', 1, 2, 'E1', '2026-11-16 09:00:00', '01')");
  }
  std::string Stored() {
    return screen.Sql(
        "SELECT group_concat(IdProducto, ' ') FROM (SELECT IdProducto FROM HistOrvendalcial ORDER BY 1)");
  }
  /// The text of the statement that deletes or selects from the history.
  std::vector<std::string> HistoryConditions() {
    std::vector<std::string> conditions;
    for (const OpenedStatement& statement : screen.recordsets.TakeStatements()) {
      const std::size_t at = statement.text.find("(HistOrvendalcial.Fecha ");
      if (at != std::string::npos) conditions.push_back(statement.text.substr(at + 24));
    }
    return conditions;
  }

  FormDriver screen{std::get<0>(GetParam()), *std::get<1>(GetParam())};
};

TEST_P(DayOfTheScreenTest, TheLastSecondOfTheDayIsCaught) {
  AddRow("P1", "2026-11-16 00:00:00");
  AddRow("P2", "2026-11-16 23:59:59");
  AddRow("P3", "2026-11-15 23:59:59");
  AddRow("P4", "2026-11-17 00:00:00");
  screen.Open();
  EXPECT_EQ(screen.Codes(), (std::vector<std::string>{"P1", "P2"}));
}

TEST_P(DayOfTheScreenTest, ALaterFractionOfThatSecondIsNotCaughtByALoad) {
  AddRow("P2", "2026-11-16 23:59:59");
  AddRow("P3", "2026-11-16 23:59:59.500");
  screen.Open();
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P2"});
}

TEST_P(DayOfTheScreenTest, ASaveUsesItsOwnCondition) {
  screen.OpenWithStylist();
  screen.recordsets.TakeStatements();
  screen.Click("LblGuardar");
  const std::vector<std::string> conditions = HistoryConditions();
  ASSERT_EQ(conditions.size(), 2U);  // the delete, and the load that follows the save
  const bool spanish = std::get<1>(GetParam()) == &Region::Spanish();
  const std::string day = spanish ? "16/11/2026" : "11/16/2026";
  if (jet()) {
    EXPECT_EQ(conditions[0], "LIKE '" + day + "%')");
    EXPECT_EQ(conditions[1], "BETWEEN #11/16/2026 00:00:00# AND #11/16/2026 23:59:59#)");
  } else {
    EXPECT_EQ(conditions[0],
              "BETWEEN CONVERT(DATETIME, '2026-11-16 00:00:00', 102) AND CONVERT(DATETIME, '2026-11-16 "
              "23:59:59', 102))");
    EXPECT_EQ(conditions[1], conditions[0]);
  }
}

TEST_P(DayOfTheScreenTest, ASaveReplacesTheDayAndNoOther) {
  AddRow("P1", "2026-11-16 08:00:00");
  AddRow("P2", "2026-11-15 23:59:59");
  AddRow("P3", "2026-11-17 00:00:00");
  AddRow("P4", "2026-11-16 23:59:59");
  screen.OpenWithStylist();
  screen.ClickCell(1, column::kCode);
  screen.Click("LblBorrar");
  screen.Click("LblGuardar");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(Stored(), "P2 P3 P4");
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P4"});
}

TEST_P(DayOfTheScreenTest, ALaterFractionOfTheLastSecondSurvivesASaveOfTwoConversionsOnly) {
  AddRow("P3", "2026-11-16 23:59:59.500");
  screen.OpenWithStylist();
  screen.Click("LblGuardar");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(Stored(), jet() ? "" : "P3");
}

TEST_P(DayOfTheScreenTest, ASaveWithNoDayShownTakesEveryDayOfTheBranchWhereItComparesTexts) {
  AddRow("P1", "2026-11-16 08:00:00");
  AddRow("P2", "2026-11-15 08:00:00");
  AddRow("P3", "2020-01-01 00:00:00");
  screen.AddCount("P5", 1, 2, "E1", "2026-11-16", "02");
  screen.OpenWithStylist();
  screen.form().MkFecha.Text("");
  screen.recordsets.TakeStatements();
  screen.Click("LblGuardar");
  if (jet()) {
    EXPECT_EQ(HistoryConditions().at(0), "LIKE '%')");
    EXPECT_EQ(Stored(), "P1 P5");
  } else {
    EXPECT_EQ(HistoryConditions().at(0),
              "BETWEEN CONVERT(DATETIME, ' 00:00:00', 102) AND CONVERT(DATETIME, ' 23:59:59', 102))");
    EXPECT_NE(Stored().find("P2 P3 P5"), std::string::npos);
  }
}

TEST_P(DayOfTheScreenTest, ADayOfOneDigitIsLoadedAndSavedAlike) {
  screen.clock.Set(Date(2026, 3, 5, 8, 0, 0));
  AddRow("P1", "2026-03-05 10:00:00");
  AddRow("P2", "2026-05-03 10:00:00");
  screen.OpenWithStylist();
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P1"});
  screen.Click("LblGuardar");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(Stored(), "P1 P2");
}

TEST_P(DayOfTheScreenTest, AnotherBranchIsNeitherLoadedNorDeleted) {
  screen.AddCount("P5", 1, 2, "E1", "2026-11-16", "02");
  screen.OpenWithStylist();
  EXPECT_TRUE(screen.Codes().empty());
  screen.Click("LblGuardar");
  EXPECT_EQ(Stored(), "P5");
}

INSTANTIATE_TEST_SUITE_P(DialectsAndRegions, DayOfTheScreenTest,
                         testing::Combine(testing::Values(Dialect::kSqlServer, Dialect::kJet),
                                          testing::Values(&Region::Spanish(), &Region::English())),
                         [](const auto& instance) {
                           const bool jet = std::get<0>(instance.param) == Dialect::kJet;
                           const bool spanish = std::get<1>(instance.param) == &Region::Spanish();
                           return std::string(jet ? "Jet" : "SqlServer") + (spanish ? "Spanish" : "English");
                         });

}  // namespace
}  // namespace orvendal
