#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/stored_counts.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using namespace testing_support;

constexpr std::int32_t kMultipleStep = -2147217887;
constexpr std::int32_t kStoreGone = -2147467259;
const Date kToday(2026, 11, 16);
const Date kOther(2026, 11, 20);

/// Yes in the guard when the save is refused or fails: the caller is not told, and goes on.
class YesWithoutASaveTest : public testing::TestWithParam<Dialect> {
 protected:
  YesWithoutASaveTest() {
    screen.AddCount("P10", 1, 2);
    screen.AddCount("P20", 3, 4, "E3", "2026-11-20");
    screen.Open();
    EnterSupervisorMode(screen);
    screen.EnterLine("P1", "5");
    screen.Key(key::kEscape);
    Forget(screen);
    screen.library.QueueAnswer(message::kYes);
  }
  FrmOrvendalciales& form() { return screen.form(); }
  void LoseStylist() {
    form().TxtEmpleado.Enabled(true);
    form().TxtEmpleado.Text("");
    form().TxtCodigo.Text("");
  }
  std::string StoredOn(const std::string& day) { return StoredCodesOn(screen, day); }
  void ExpectNewDay() {
    EXPECT_EQ(screen.Codes(), Texts{"P20"});
    EXPECT_EQ(form().MkFecha.Text(), "20/11/2026");
    EXPECT_EQ(form().Calendario.Value(), kOther);
    EXPECT_FALSE(form().variables.FlagFechaCambio);
    EXPECT_FALSE(form().HayCambios());
  }
  void ExpectOldDay() {
    EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
    EXPECT_EQ(form().MkFecha.Text(), "16/11/2026");
    EXPECT_EQ(form().Calendario.Value(), kToday);
    EXPECT_FALSE(form().variables.FlagFechaCambio);
    EXPECT_FALSE(form().variables.FlagSupervisor);
  }
  FormDriver screen{GetParam()};
};

TEST_P(YesWithoutASaveTest, ClosingWithARefusedSaveShowsItsMessageAndCloses) {
  LoseStylist();
  screen.library.QueueEmployee({false, "", ""});
  ClickClose(screen);
  EXPECT_EQ(TakeMessages(screen), (Texts{GuardQuestion(6), kRefusesBlankStylist}));
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_P(YesWithoutASaveTest, ClosingWithARefusedSaveClosesAlsoWhenAStylistIsPickedThen) {
  LoseStylist();
  screen.library.QueueEmployee({true, "E1", "Ana"});
  ClickClose(screen);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
}

TEST_P(YesWithoutASaveTest, ClosingWithASaveThatFailsInTheStoreShowsItsMessageAndCloses) {
  screen.recordsets.FailUpdate(2, kMultipleStep, "No cabe.");
  ClickClose(screen);
  EXPECT_EQ(TakeMessages(screen),
            (Texts{GuardQuestion(6), "[16] \"Error\" \"Error al grabar \\r\\nNo cabe.\" -> 1"}));
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");  // the row before the one that failed
}

TEST_P(YesWithoutASaveTest, ClosingWithAnErrorThatNobodyTrapsKeepsTheScreenOpen) {
  screen.recordsets.FailOpen(1, kStoreGone, "no responde");
  ClickClose(screen);
  EXPECT_EQ(TakeErrors(screen), Texts{"-2147467259: no responde"});
  ASSERT_TRUE(screen.HasForm());
  ExpectOldDay();
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
  screen.library.QueueAnswer(message::kYes);
  ClickClose(screen);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1");
}

TEST_P(YesWithoutASaveTest, ClosingWithTheBoxDisabledKeepsTheScreenOpen) {
  LoseStylist();
  form().TxtEmpleado.Enabled(false);
  ClickClose(screen);
  EXPECT_EQ(TakeMessages(screen), (Texts{GuardQuestion(6), kRefusesBlankStylist}));
  EXPECT_EQ(TakeErrors(screen), Texts{"5: Invalid procedure call or argument"});
  ASSERT_TRUE(screen.HasForm());
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
}

TEST_P(YesWithoutASaveTest, ChangingTheDayWithARefusedSaveShowsTheNewDay) {
  screen.Click("MkFecha");
  LoseStylist();
  screen.library.QueueEmployee({false, "", ""});
  PickDay(screen, kOther);
  EXPECT_EQ(TakeMessages(screen), (Texts{GuardQuestion(6), kRefusesBlankStylist}));
  ExpectNewDay();
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
  EXPECT_EQ(StoredOn("2026-11-20"), "P20");
}

TEST_P(YesWithoutASaveTest, ChangingTheDayWithASaveThatFailsShowsTheNewDay) {
  screen.recordsets.FailUpdate(1, -2147217873, "Clave duplicada.");
  PickDay(screen, kOther);
  EXPECT_EQ(TakeMessages(screen),
            (Texts{GuardQuestion(6), "[16] \"\" \"Nº Error:-2147217873\\r\\nClave duplicada.\" -> 1"}));
  ExpectNewDay();
  EXPECT_EQ(StoredOn("2026-11-16"), "");
  EXPECT_EQ(form().TxtEmpleado.Text(), "Berta");
}

TEST_P(YesWithoutASaveTest, ChangingTheDayWithAnErrorThatNobodyTrapsStaysOnTheOldDay) {
  screen.recordsets.FailOpen(1, kStoreGone, "no responde");
  PickDay(screen, kOther);
  EXPECT_EQ(TakeErrors(screen), Texts{"-2147467259: no responde"});
  ExpectOldDay();
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
  EXPECT_EQ(form().TxtEmpleado.Text(), "Berta");
  screen.library.QueueAnswer(message::kYes);
  PickDay(screen, kOther);
  ExpectNewDay();
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1");
}

TEST_P(YesWithoutASaveTest, ChangingTheDayWithALoadThatFailsKeepsTheDayOfTheLines) {
  // Delete, table, two products; the load at the end of the save is the first one of the new day.
  screen.recordsets.FailOpen(5, kStoreGone, "no responde");
  PickDay(screen, kOther);
  EXPECT_EQ(TakeErrors(screen), Texts{"-2147467259: no responde"});
  ExpectOldDay();
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1");
}

TEST_P(YesWithoutASaveTest, ChangingTheDayWithASecondLoadThatFailsKeepsBothDatesTogether) {
  screen.recordsets.FailOpen(6, kStoreGone, "no responde");
  PickDay(screen, kOther);
  EXPECT_EQ(TakeErrors(screen), Texts{"-2147467259: no responde"});
  EXPECT_EQ(form().MkFecha.Text(), "16/11/2026");
  EXPECT_EQ(form().Calendario.Value(), kToday);
  EXPECT_EQ(StoredOn("2026-11-20"), "P20");
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
}

TEST_P(YesWithoutASaveTest, ASaveAfterASecondLoadThatFailedPutsNoLinesOfTheNewDayIntoTheOldOne) {
  screen.recordsets.FailOpen(6, kStoreGone, "no responde");
  PickDay(screen, kOther);
  Forget(screen);
  screen.DoubleClickCell(1, kQuantity);
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeErrors(screen), Texts{"5: The lines of the day could not be loaded whole. Nothing was "
                                      "deleted or saved. Press Cancel to load "
                                      "the day again."});
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1");
  EXPECT_EQ(StoredOn("2026-11-20"), "P20");
  screen.Click("LblCancelar");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1");
}

TEST_P(YesWithoutASaveTest, LeavingSupervisorModeWithARefusedSaveLeavesAllTheSame) {
  LoseStylist();
  screen.library.QueueEmployee({false, "", ""});
  screen.Click("BtnAnuloSuper");
  EXPECT_EQ(TakeMessages(screen), (Texts{GuardQuestion(6), kRefusesBlankStylist}));
  EXPECT_FALSE(form().LblSupervisor.Visible());
  EXPECT_EQ(screen.Codes(), Texts{"P10"});
  EXPECT_EQ(AvailableButtons(screen), kBotonesSoloCancelar);
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
}

TEST_P(YesWithoutASaveTest, LeavingSupervisorModeWithASaveThatFailsLeavesAllTheSame) {
  screen.recordsets.FailUpdate(2, kMultipleStep, "No cabe.");
  screen.Click("BtnAnuloSuper");
  EXPECT_EQ(TakeMessages(screen),
            (Texts{GuardQuestion(6), "[16] \"Error\" \"Error al grabar \\r\\nNo cabe.\" -> 1"}));
  EXPECT_FALSE(form().LblSupervisor.Visible());
  EXPECT_EQ(form().TxtEmpleado.Text(), "");
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
}

TEST_P(YesWithoutASaveTest, LeavingSupervisorModeWithAnErrorThatNobodyTrapsStaysInIt) {
  screen.recordsets.FailOpen(1, kStoreGone, "no responde");
  screen.Click("BtnAnuloSuper");
  EXPECT_EQ(TakeErrors(screen), Texts{"-2147467259: no responde"});
  EXPECT_TRUE(form().LblSupervisor.Visible());
  EXPECT_EQ(form().TxtEmpleado.Text(), "Berta");
  ExpectOldDay();
}

INSTANTIATE_TEST_SUITE_P(BothDialects, YesWithoutASaveTest,
                         testing::Values(Dialect::kSqlServer, Dialect::kJet), DialectName);

}  // namespace
}  // namespace orvendal
