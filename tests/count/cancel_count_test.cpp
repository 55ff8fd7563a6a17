#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class CancelCountTest : public testing::Test {
 protected:
  FormDriver screen;
};

TEST_F(CancelCountTest, DropsLinesAndEditorWithNoQuestion) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.EnterLine("P4", "6");
  screen.Type("P3");
  Forget(screen);
  screen.Click("LblCancelar");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11"}));
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_FALSE(screen.form().HayCambios());
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
}

TEST_F(CancelCountTest, HidesTheEditorAndSetsTheBarBeforeTheDayIsLoaded) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, kCode);
  bool open = true;
  std::string buttons;
  screen.recordsets.OnOpen([&](const OpenedStatement&) {
    open = EditorIsOpen(screen);
    buttons = AvailableButtons(screen);
  });
  screen.Click("LblCancelar");
  screen.recordsets.OnOpen({});
  EXPECT_FALSE(open);
  EXPECT_EQ(buttons, kBotonesConLineas);
}

TEST_F(CancelCountTest, KeepsTheTextOfTheHiddenEditor) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("77");
  screen.Click("LblCancelar");
  EXPECT_EQ(EditorText(screen), "77");
  EXPECT_EQ(screen.Cell(1, kQuantity), "1");
  screen.ClickCell(1, kCode);
  EXPECT_EQ(screen.Cell(1, kQuantity), "1");
}

TEST_F(CancelCountTest, WithNoStylistLoadsAndLeavesTheBarAsItWas) {
  screen.AddCounts(1);
  screen.Open();
  const std::string buttons = AvailableButtons(screen);
  screen.AddCount("P1", 1, 2);
  Forget(screen);
  screen.Click("LblCancelar");
  EXPECT_EQ(AvailableButtons(screen), buttons);
  EXPECT_EQ(buttons, kBotonesEnReposo);
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P1"}));
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(CancelCountTest, KeepsTheStylist) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
  EXPECT_EQ(screen.form().TxtCodigo.Text(), "E1");
  EXPECT_FALSE(screen.form().TxtEmpleado.Enabled());
}

TEST_F(CancelCountTest, BringsADeletedLineBack) {
  screen.AddCounts(3);
  screen.OpenWithStylist();
  screen.ClickCell(2, kCode);
  screen.Click("LblBorrar");
  ASSERT_EQ(screen.Codes(), (Texts{"P10", "P12"}));
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12"}));
}

TEST_F(CancelCountTest, LoadsTheDayOfTheCalendarAndStaysInSupervisorMode) {
  screen.AddCount("P1", 1, 2, "E1", "2026-11-20");
  screen.Open();
  EnterSupervisorMode(screen);
  PickDay(screen, Date(2026, 11, 20));
  screen.EnterLine("P4", "6");
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Codes(), Texts{"P1"});
  EXPECT_TRUE(screen.form().LblSupervisor.Visible());
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Berta");
  EXPECT_EQ(screen.form().MkFecha.Text(), "20/11/2026");
}

TEST_F(CancelCountTest, WritesNothingToTheStore) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.ClickCell(1, kCode);
  screen.Click("LblBorrar");
  Forget(screen);
  screen.Click("LblCancelar");
  for (const OpenedStatement& statement : screen.recordsets.TakeStatements())
    EXPECT_FALSE(statement.IsWriting()) << statement.text;
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "2");
}

TEST_F(CancelCountTest, EitherMemberOfTheButtonCancels) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  screen.Click("LblCancelar(0)");
  EXPECT_TRUE(screen.Codes().empty());
}

}  // namespace
}  // namespace orvendal
