#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/stored_counts.h"

namespace orvendal {
namespace {

using namespace testing_support;

const Date kToday(2026, 11, 16);
const Date kTomorrow(2026, 11, 17);

/// The date changes between two readings of the clock, or under the open screen.
class MidnightTest : public testing::TestWithParam<Dialect> {
 protected:
  MidnightTest() {
    screen.AddCount("P10", 1, 2);
    screen.AddCount("P20", 3, 4, "E3", "2026-11-17");
    screen.clock.Set(Date(2026, 11, 16, 23, 59, 59));
  }
  void Strike() { screen.clock.Set(Date(2026, 11, 17, 0, 0, 1)); }
  std::string StoredOn(const std::string& day) { return StoredCodesOn(screen, day); }
  FormDriver screen{GetParam()};
};

TEST_P(MidnightTest, DuringTheStartShowsTheOldDayInTheBoxAndLoadsTheNewOne) {
  screen.state.form = std::make_shared<FrmOrvendalciales>(screen.state);
  screen.form().MkFecha.OnChange = [this] {
    if (!screen.form().MkFecha.Text().empty()) Strike();
  };
  screen.Open();
  screen.form().MkFecha.OnChange = nullptr;
  EXPECT_EQ(screen.form().MkFecha.Text(), "16/11/2026");
  EXPECT_EQ(screen.form().Calendario.Value(), kTomorrow);
  EXPECT_EQ(screen.form().TxtFechaHora.Text(), "17/11/2026");
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
}

TEST_P(MidnightTest, UnderTheOpenScreenLeavesTheCountOnItsDay) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  Strike();
  screen.EnterLine("P4", "6");
  EXPECT_EQ(screen.Cell(3, kDate), "16/11/2026");
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1 P4");
  EXPECT_EQ(StoredOn("2026-11-17"), "P20");
  EXPECT_EQ(screen.Sql("SELECT Actualizado FROM HistOrvendalcial WHERE IdProducto = 'P1'"),
            "2026-11-17 00:00:01");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1", "P4"}));
}

TEST_P(MidnightTest, BetweenTwoRowsOfASaveChangesTheMomentOnly) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  int products = 0;
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    if (statement.text.starts_with("SELECT Productos.Codigo FROM") && ++products == 2) Strike();
  });
  screen.Click("LblGuardar");
  screen.recordsets.OnOpen({});
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1");
  EXPECT_EQ(screen.Sql("SELECT Actualizado FROM HistOrvendalcial WHERE IdProducto = 'P10'"),
            "2026-11-16 23:59:59");
  EXPECT_EQ(screen.Sql("SELECT Actualizado FROM HistOrvendalcial WHERE IdProducto = 'P1'"),
            "2026-11-17 00:00:01");
}

TEST_P(MidnightTest, BeforeSupervisorModeIsLeftGoesToTheNewDay) {
  screen.Open();
  EnterSupervisorMode(screen);
  Strike();
  screen.Click("BtnAnuloSuper");
  EXPECT_EQ(screen.form().Calendario.Value(), kTomorrow);
  EXPECT_EQ(screen.form().TxtFechaHora.Text(), "17/11/2026");
  EXPECT_EQ(screen.form().MkFecha.Text(), "17/11/2026");
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
}

TEST_P(MidnightTest, WhileTheQuestionIsUpLoadsTheOldDayAndShowsTheNewDate) {
  screen.Open();
  EnterSupervisorMode(screen);
  screen.EnterLine("P1", "5");
  screen.Key(key::kEscape);
  screen.library.DuringNextDialog([this] { Strike(); });
  screen.library.QueueAnswer(message::kNo);
  screen.Click("BtnAnuloSuper");
  // The calendar was set before the question, the boxes after it.
  EXPECT_EQ(screen.form().Calendario.Value(), kToday);
  EXPECT_EQ(screen.Codes(), Texts{"P10"});
  EXPECT_EQ(screen.form().TxtFechaHora.Text(), "17/11/2026");
  EXPECT_EQ(screen.form().MkFecha.Text(), "17/11/2026");
}

TEST_P(MidnightTest, WhileTheQuestionIsUpAndItIsCancelledKeepsTheDay) {
  screen.Open();
  EnterSupervisorMode(screen);
  screen.EnterLine("P1", "5");
  screen.Key(key::kEscape);
  screen.library.DuringNextDialog([this] { Strike(); });
  screen.library.QueueAnswer(message::kCancel);
  screen.Click("BtnAnuloSuper");
  EXPECT_EQ(screen.form().Calendario.Value(), kToday);
  EXPECT_EQ(screen.form().MkFecha.Text(), "16/11/2026");
  EXPECT_EQ(screen.form().TxtFechaHora.Text(), "16/11/2026");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
}

INSTANTIATE_TEST_SUITE_P(BothDialects, MidnightTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal
