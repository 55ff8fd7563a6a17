#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

struct Setting {
  Dialect dialect = Dialect::kSqlServer;
  const Region* region = nullptr;
  Date day;  // one whose day and month could be taken for one another
};

/// A count from the keyboard to the store and back, where numbers and dates are written in other ways.
class RegionalCountTest : public testing::TestWithParam<Setting> {
 protected:
  RegionalCountTest() { screen.clock.Set(GetParam().day); }
  Date DaysLater(int days) { return Date::FromDayNumber(GetParam().day.DayNumber() + days); }
  std::string Text(Date day) { return GetParam().region->ToText(day); }
  std::string Iso(Date day) { return Region::Spanish().Format(day, "yyyy-mm-dd"); }
  std::string Quantity(const std::string& whole, const std::string& decimals) {
    return whole + GetParam().region->DecimalMark() + decimals;
  }
  FormDriver screen{GetParam().dialect, *GetParam().region};
};

TEST_P(RegionalCountTest, GoesToTheStoreAndComesBackTheSame) {
  const Date day = GetParam().day;
  screen.OpenWithStylist();
  EXPECT_EQ(screen.form().TxtFechaHora.Text(), Text(day));
  screen.EnterLine("P1", Quantity("12", "5"));
  screen.EnterLine("P4", "3");
  ASSERT_EQ(screen.Cell(1, kQuantity), Quantity("12", "5"));
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(screen.Sql("SELECT StockActual || ' ' || Fecha FROM HistOrvendalcial WHERE IdProducto = 'P1'"),
            "12.5 " + Iso(day) + " 00:00:00");
  EXPECT_EQ(screen.Line(1), (Texts{"P1", "Champú suave", "7", Quantity("12", "5"), "E1", "Ana", Text(day),
                                   "P1", Quantity("12", "5")}));
  EXPECT_FALSE(screen.form().HayCambios());
}

TEST_P(RegionalCountTest, SavedTwiceIsStillOneDay) {
  screen.AddCount("P2", 2.5, 3.5, "E1", Iso(GetParam().day));
  screen.AddCount("P3", 1, 2, "E1", Iso(DaysLater(1)));
  screen.OpenWithStylist();
  EXPECT_EQ(screen.Cell(1, kPreviousQuantity), Quantity("2", "5"));
  for (int times = 0; times < 2; ++times) {
    screen.form().TxtEmpleado.Text("Ana");
    screen.form().LblGuardar_Click(0);
  }
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(screen.Sql("SELECT GROUP_CONCAT(IdProducto || ' ' || StockAnterior || ' ' || StockActual || ' ' "
                       "|| SUBSTR(Fecha, 1, 10), ', ') FROM (SELECT * FROM HistOrvendalcial ORDER BY Fecha)"),
            "P2 2.5 3.5 " + Iso(GetParam().day) + ", P3 1 2 " + Iso(DaysLater(1)));
}

TEST_P(RegionalCountTest, AnotherDayIsChosenAndSavedAsItself) {
  const Date other = DaysLater(2);
  screen.Open();
  EnterSupervisorMode(screen);
  PickDay(screen, other);
  EXPECT_EQ(screen.form().MkFecha.Text(), Text(other));
  screen.EnterLine("P1", "4");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT Fecha FROM HistOrvendalcial"), Iso(other) + " 00:00:00");
  EXPECT_EQ(screen.Codes(), Texts{"P1"});
}

INSTANTIATE_TEST_SUITE_P(DialectsAndRegions, RegionalCountTest,
                         testing::Values(Setting{Dialect::kSqlServer, &Region::Spanish(), Date(2026, 11, 5)},
                                         Setting{Dialect::kJet, &Region::Spanish(), Date(2026, 11, 5)},
                                         Setting{Dialect::kSqlServer, &Region::English(), Date(2026, 11, 5)},
                                         Setting{Dialect::kJet, &Region::English(), Date(2026, 11, 5)},
                                         Setting{Dialect::kSqlServer, &Region::English(), Date(2026, 1, 12)},
                                         Setting{Dialect::kJet, &Region::English(), Date(2026, 1, 12)},
                                         Setting{Dialect::kJet, &Region::Catalan(), Date(2026, 2, 1)}),
                         [](const testing::TestParamInfo<Setting>& instance) {
                           const bool jet = instance.param.dialect == Dialect::kJet;
                           return std::string(jet ? "Jet" : "SqlServer") +
                                  instance.param.region->Name().substr(0, 2) +
                                  Region::Spanish().Format(instance.param.day, "mmdd");
                         });

}  // namespace
}  // namespace orvendal
