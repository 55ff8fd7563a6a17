#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/stored_counts.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// The host calls again, with another branch, while lines are unsaved.
class SecondCallTest : public testing::TestWithParam<Dialect> {
 protected:
  SecondCallTest() {
    screen.AddCount("P10", 1, 2);
    screen.AddCount("P5", 4, 4, "E1", "2026-11-16", "02");
    screen.OpenWithStylist("01");
    screen.EnterLine("P1", "5");
    Forget(screen);
  }
  std::string StoredIn(const std::string& branch) { return StoredCodesIn(screen, branch); }
  FormDriver screen{GetParam()};
};

TEST_P(SecondCallTest, LoadsNothingAndAsksNothing) {
  EXPECT_FALSE(screen.Open("02"));
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
  EXPECT_TRUE(screen.form().HayCambios());
  EXPECT_EQ(screen.form().LblSucursal.Caption(), "  Sucursal 01 Centro  ");
}

TEST_P(SecondCallTest, LeavesTheEditorWithWhatWasTyped) {
  screen.Type("P4");
  screen.Open("02");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "P4");
  EXPECT_EQ(screen.Focused(), "TxtMSF");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
}

TEST_P(SecondCallTest, LinesEnteredAfterItTakeTheStockOfTheNewBranch) {
  screen.Open("02");
  screen.Type("P5\n");
  EXPECT_EQ(screen.Cell(3, kPreviousQuantity), "4");
}

TEST_P(SecondCallTest, ASaveAfterItWritesAllLinesUnderTheNewBranch) {
  screen.Open("02");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(StoredIn("01"), "P10");
  EXPECT_EQ(StoredIn("02"), "P10 P1");  // its own day was replaced
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
}

TEST_P(SecondCallTest, ACancelAfterItLoadsTheNewBranch) {
  screen.Open("02");
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Codes(), Texts{"P5"});
  EXPECT_FALSE(screen.form().HayCambios());
}

TEST_P(SecondCallTest, BringsAMinimisedScreenBackMaximisedWithItsLines) {
  ClickMinimize(screen);
  ASSERT_EQ(screen.form().WindowState(), WindowState::kMinimized);
  screen.Open("02");
  EXPECT_EQ(screen.form().WindowState(), WindowState::kMaximized);
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
}

TEST_P(SecondCallTest, DuringTheQuestionOfTheGuardDecidesWhereTheYesIsSaved) {
  screen.Key(key::kEscape);
  screen.library.DuringNextDialog([this] { screen.Open("02"); });
  screen.library.QueueAnswer(message::kYes);
  ClickClose(screen);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(StoredIn("01"), "P10");
  EXPECT_EQ(StoredIn("02"), "P10 P1");
}

TEST_P(SecondCallTest, AHostThatFailsLeavesTheScreenAsItIs) {
  screen.session->meddle = [](const SessionArguments&) { throw RuntimeError(1001, "sin sesión"); };
  EXPECT_THROW(screen.Open("02"), RuntimeError);
  screen.session->meddle = nullptr;
  ASSERT_TRUE(screen.HasForm());
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, SecondCallTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal
