#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/stored_counts.h"

namespace orvendal {
namespace {

using namespace testing_support;

const Date kToday(2026, 11, 16);
const Date kOther(2026, 11, 20);

struct Setting {
  Dialect dialect = Dialect::kSqlServer;
  const Region* region = nullptr;
};

/// Supervisor mode with a line on today and one on the 20th.
class DateSelectionTest : public testing::TestWithParam<Setting> {
 protected:
  DateSelectionTest() {
    screen.AddCount("P10", 1, 2);
    screen.AddCount("P20", 3, 4, "E3", "2026-11-20");
    screen.Open();
    EnterSupervisorMode(screen);
    Forget(screen);
  }
  FrmOrvendalciales& form() { return screen.form(); }
  std::string Text(Date day) { return GetParam().region->ToText(day); }
  std::string StoredOn(const std::string& day) { return StoredCodesOn(screen, day); }
  void TypeLine() {
    screen.EnterLine("P1", "5");
    screen.Key(key::kEscape);
    Forget(screen);
  }
  FormDriver screen{GetParam().dialect, *GetParam().region};
};

TEST_P(DateSelectionTest, WithNothingUnsavedShowsTheDayWithoutAQuestion) {
  PickDay(screen, kOther);
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(form().Calendario.Value(), kOther);
  EXPECT_EQ(form().MkFecha.Text(), Text(kOther));
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
  EXPECT_EQ(screen.Cell(1, kDate), Text(kOther));
  EXPECT_FALSE(form().HayCambios());
}

TEST_P(DateSelectionTest, DoesNotTouchTheOtherDateBox) {
  PickDay(screen, kOther);
  EXPECT_EQ(form().TxtFechaHora.Text(), Text(kToday));
}

TEST_P(DateSelectionTest, YesSavesTheOldDayThenShowsTheNewOne) {
  TypeLine();
  screen.library.QueueAnswer(message::kYes);
  PickDay(screen, kOther);
  EXPECT_EQ(TakeMessages(screen), Texts{GuardQuestion(6)});
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1");
  EXPECT_EQ(StoredOn("2026-11-20"), "P20");
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
  EXPECT_EQ(form().MkFecha.Text(), Text(kOther));
  EXPECT_EQ(form().TxtEmpleado.Text(), "Berta");
  EXPECT_EQ(form().TxtCodigo.Text(), "E2");
  EXPECT_FALSE(form().variables.FlagFechaCambio);
}

TEST_P(DateSelectionTest, TheSaveOfAYesRunsWithTheCalendarAheadOfTheDateBox) {
  TypeLine();
  screen.library.QueueAnswer(message::kYes);
  Texts seen;
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    if (!statement.text.starts_with("DELETE")) return;
    seen = {form().MkFecha.Text(), Text(form().Calendario.Value()),
            form().variables.FlagFechaCambio ? "changing" : "not changing"};
  });
  PickDay(screen, kOther);
  screen.recordsets.OnOpen({});
  EXPECT_EQ(seen, (Texts{Text(kToday), Text(kOther), "changing"}));
}

TEST_P(DateSelectionTest, TheSaveOfAYesKeepsTheHeaderWhateverTheMode) {
  form().LblSupervisor.Visible(false);  // as if a day could be picked in normal mode
  TypeLine();
  screen.library.QueueAnswer(message::kYes);
  PickDay(screen, kOther);
  EXPECT_EQ(StoredOn("2026-11-16"), "P10 P1");
  EXPECT_EQ(form().TxtEmpleado.Text(), "Berta");
  EXPECT_EQ(form().TxtCodigo.Text(), "E2");
}

TEST_P(DateSelectionTest, TheDayIsLoadedByTheSaveAndASecondTime) {
  TypeLine();
  screen.library.QueueAnswer(message::kYes);
  PickDay(screen, kOther);
  int loads = 0;
  for (const std::string& statement : TakeStatements(screen))
    loads += statement.starts_with("SELECT HistOrvendalcial.IdSucursal") ? 1 : 0;
  EXPECT_EQ(loads, 2);
}

TEST_P(DateSelectionTest, TheDateBoxShowsTheNewDayOnceItsLinesAreAskedFor) {
  std::string shown;
  screen.recordsets.OnOpen([&](const OpenedStatement&) { shown = form().MkFecha.Text(); });
  PickDay(screen, kOther);
  screen.recordsets.OnOpen({});
  EXPECT_EQ(shown, Text(kOther));
}

TEST_P(DateSelectionTest, NoDropsTheLinesAndShowsTheNewDay) {
  TypeLine();
  screen.library.QueueAnswer(message::kNo);
  PickDay(screen, kOther);
  EXPECT_EQ(TakeMessages(screen), Texts{GuardQuestion(7)});
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
  EXPECT_EQ(form().MkFecha.Text(), Text(kOther));
}

TEST_P(DateSelectionTest, CancelChangesNothingAndTheCalendarReverts) {
  TypeLine();
  screen.library.QueueAnswer(message::kCancel);
  PickDay(screen, kOther);
  EXPECT_EQ(TakeMessages(screen), Texts{GuardQuestion(2)});
  EXPECT_EQ(form().Calendario.Value(), kToday);
  EXPECT_EQ(form().MkFecha.Text(), Text(kToday));
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_FALSE(form().variables.FlagSupervisor);
}

TEST_P(DateSelectionTest, AfterACancelTheSameDayCanBePickedAgain) {
  TypeLine();
  screen.library.QueueAnswer(message::kCancel);
  PickDay(screen, kOther);
  screen.library.QueueAnswer(message::kNo);
  PickDay(screen, kOther);
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
}

TEST_P(DateSelectionTest, ATypedQuantityInTheOpenEditorDoesNotRaiseTheQuestion) {
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("77");
  PickDay(screen, kOther);
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
  EXPECT_EQ(screen.Cell(1, kQuantity), "4");
}

TEST_P(DateSelectionTest, AChangeWithThePanelClosedIsIgnored) {
  bool cancel = false;
  TypeLine();
  form().Calendario_SelChange(kOther, kOther, cancel);
  EXPECT_FALSE(cancel);
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_EQ(form().MkFecha.Text(), Text(kToday));
}

TEST_P(DateSelectionTest, TheDateComesFromTheCalendarAndNotFromTheArguments) {
  screen.Click("MkFecha");
  form().Calendario.Value(kOther);
  bool cancel = false;
  form().Calendario_SelChange(Date(2020, 1, 1), Date(2020, 1, 2), cancel);
  EXPECT_EQ(form().MkFecha.Text(), Text(kOther));
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
}

TEST_P(DateSelectionTest, TheArrowKeysOfTheCalendarChangeTheDayToo) {
  screen.Click("MkFecha");
  for (int day = 17; day <= 20; ++day) screen.Key(key::kRight);
  EXPECT_EQ(form().MkFecha.Text(), Text(kOther));
  EXPECT_EQ(screen.Codes(), Texts{"P20"});
}

TEST_P(DateSelectionTest, AskingTheLibraryForTheTextOfTheDay) {
  screen.Click("MkFecha");
  Forget(screen);
  screen.robot().ClickDay(form().Calendario, kOther);
  EXPECT_EQ(TakeCalls(screen), Texts{"HerramientasGlobal.FormatoFecha(\"" + Text(kOther) +
                                     "\", 1, \"D\", \"D\") = \"" + Text(kOther) + "\""});
}

TEST_P(DateSelectionTest, LinesEnteredThereAreSavedThere) {
  PickDay(screen, kOther);
  screen.EnterLine("P4", "6");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(StoredOn("2026-11-20"), "P20 P4");
  EXPECT_EQ(StoredOn("2026-11-16"), "P10");
}

TEST_P(DateSelectionTest, ADayOfTheNextYearIsReachedByTheMonths) {
  PickDay(screen, Date(2027, 2, 3));
  EXPECT_EQ(form().MkFecha.Text(), Text(Date(2027, 2, 3)));
  EXPECT_TRUE(screen.Codes().empty());
  screen.EnterLine("P4", "6");
  screen.Click("LblGuardar");
  EXPECT_EQ(StoredOn("2027-02-03"), "P4");
  PickDay(screen, kToday);
  EXPECT_EQ(screen.Codes(), Texts{"P10"});
}

INSTANTIATE_TEST_SUITE_P(DialectsAndRegions, DateSelectionTest,
                         testing::Values(Setting{Dialect::kSqlServer, &Region::Spanish()},
                                         Setting{Dialect::kJet, &Region::Spanish()},
                                         Setting{Dialect::kSqlServer, &Region::English()},
                                         Setting{Dialect::kJet, &Region::English()}),
                         [](const testing::TestParamInfo<Setting>& instance) {
                           const bool jet = instance.param.dialect == Dialect::kJet;
                           return std::string(jet ? "Jet" : "SqlServer") +
                                  instance.param.region->Name().substr(0, 2);
                         });

}  // namespace
}  // namespace orvendal
