#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using namespace testing_support;

class ChangeGuardTest : public testing::Test {
 protected:
  void Open(int lines) {
    screen.AddCounts(lines);
    screen.OpenWithStylist();
    Forget(screen);
  }
  bool HasChanges() { return screen.form().HayCambios(); }
  void Retype(int row, const std::string& quantity) {
    screen.DoubleClickCell(row, kQuantity);
    screen.Type(quantity + "\n");
    screen.Key(key::kEscape);
  }
  FormDriver screen;
};

TEST_F(ChangeGuardTest, SeesNothingRightAfterTheLoadOfAnEmptyDay) {
  Open(0);
  EXPECT_FALSE(HasChanges());
}

TEST_F(ChangeGuardTest, SeesNothingRightAfterTheLoadOfAFullDay) {
  Open(20);
  EXPECT_FALSE(HasChanges());
}

TEST_F(ChangeGuardTest, SeesOneLineTypedOnAnEmptyDay) {
  Open(0);
  screen.EnterLine("P1", "7");
  EXPECT_TRUE(HasChanges());
}

TEST_F(ChangeGuardTest, SeesTheThirdOfThreeLinesDeleted) {
  Open(3);
  screen.ClickCell(3, kCode);
  screen.Click("LblBorrar");
  EXPECT_TRUE(HasChanges());
}

TEST_F(ChangeGuardTest, SeesALineDeletedAndTypedInAgainAtTheEnd) {
  Open(3);
  screen.ClickCell(2, kCode);
  screen.Click("LblBorrar");
  screen.EnterLine("P11", "2");
  ASSERT_EQ(screen.Codes(), (Texts{"P10", "P12", "P11"}));
  EXPECT_TRUE(HasChanges());
}

TEST_F(ChangeGuardTest, DoesNotSeeTheSameDigitsTypedOver) {
  Open(3);
  Retype(2, "2");
  EXPECT_FALSE(HasChanges());
}

TEST_F(ChangeGuardTest, SeesAnotherQuantity) {
  Open(3);
  Retype(2, "3");
  EXPECT_TRUE(HasChanges());
}

TEST_F(ChangeGuardTest, ComparesQuantitiesAsTexts) {
  Open(3);
  Retype(2, "2,0");
  EXPECT_TRUE(HasChanges());
}

TEST_F(ChangeGuardTest, SeesALineAddedToADayWithLines) {
  Open(3);
  screen.EnterLine("P1", "7");
  EXPECT_TRUE(HasChanges());
}

TEST_F(ChangeGuardTest, StopsAtAnEmptyRowPastTheSnapshot) {
  Open(3);
  screen.form().MSFProductos.TextMatrix(6, kCode, "P1");
  EXPECT_FALSE(HasChanges());
}

TEST_F(ChangeGuardTest, DoesNotCompareDescriptionPreviousQuantityStylistOrDate) {
  Open(3);
  for (const int column :
       {kDescription, kPreviousQuantity, kEmployeeCode, kStylist, kDate, kStoredCode, kStoredQuantity})
    screen.form().MSFProductos.TextMatrix(2, column, "otro");
  EXPECT_FALSE(HasChanges());
}

TEST_F(ChangeGuardTest, SeesAnotherCodeInTheSameLetters) {
  Open(3);
  screen.form().MSFProductos.TextMatrix(2, kCode, "p11");
  EXPECT_TRUE(HasChanges());
}

TEST_F(ChangeGuardTest, ReadsTheGridsOnly) {
  Open(3);
  screen.Execute("DELETE FROM HistOrvendalcial");
  EXPECT_FALSE(HasChanges());
  EXPECT_TRUE(TakeStatements(screen).empty());
}

TEST_F(ChangeGuardTest, AsksInItsWordsWhenTheScreenCloses) {
  Open(0);
  screen.EnterLine("P1", "7");
  screen.library.QueueAnswer(message::kCancel);
  ClickClose(screen);
  EXPECT_EQ(TakeMessages(screen), Texts{GuardQuestion(2)});
  ASSERT_TRUE(screen.HasForm());
  EXPECT_EQ(screen.Codes(), Texts{"P1"});
}

TEST_F(ChangeGuardTest, YesSavesAndClosesTheScreen) {
  Open(0);
  screen.EnterLine("P1", "9");
  screen.library.QueueAnswer(message::kYes);
  ClickClose(screen);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(screen.Sql("SELECT StockActual FROM HistOrvendalcial WHERE IdProducto = 'P1'"), "9");
}

TEST_F(ChangeGuardTest, NoClosesTheScreenAndDropsTheLines) {
  Open(0);
  screen.EnterLine("P1", "9");
  screen.library.QueueAnswer(message::kNo);
  ClickClose(screen);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "0");
}

TEST_F(ChangeGuardTest, AsksNothingWithoutChanges) {
  Open(3);
  ClickClose(screen);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(ChangeGuardTest, TheCommittedQuantityCountsAtTheClose) {
  Open(3);
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("99");
  screen.library.QueueAnswer(message::kCancel);
  ClickClose(screen);
  EXPECT_EQ(TakeMessages(screen), Texts{GuardQuestion(2)});
  EXPECT_EQ(screen.Cell(2, kQuantity), "99");
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_TRUE(HasChanges());
}

TEST_F(ChangeGuardTest, ATypedCodeDoesNotCountAtTheClose) {
  Open(3);
  screen.DoubleClickCell(4, kCode);
  screen.Type("P1");
  ClickClose(screen);
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_FALSE(screen.HasForm());
}

TEST_F(ChangeGuardTest, CancelAndNewAreNotGuarded) {
  Open(3);
  screen.EnterLine("P1", "9");
  EnterSupervisorMode(screen);
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Codes().size(), 4U);
  screen.Click("LblCancelar");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Codes().size(), 3U);
}

}  // namespace
}  // namespace orvendal
