#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/error_of.h"
#include "tests/support/form_driver.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using testing_support::ClickClose;
using testing_support::ClickMinimize;
using testing_support::ErrorOf;

class OrvendalCallTest : public testing::Test {
 protected:
  FormDriver screen;
};

TEST_F(OrvendalCallTest, ReturnsFalseAsSoonAsTheFormIsShown) {
  EXPECT_FALSE(screen.Open());
  ASSERT_TRUE(screen.HasForm());
  EXPECT_TRUE(screen.form().Visible());
  EXPECT_TRUE(screen.host.WindowOf(screen.form())->IsShown());
}

TEST_F(OrvendalCallTest, ReturnsFalseOnEveryLaterCallToo) {
  screen.Open();
  EXPECT_FALSE(screen.Open());
  ClickClose(screen);
  EXPECT_FALSE(screen.Open());
}

TEST_F(OrvendalCallTest, ShowsTheFormModeless) {
  screen.Open();
  EXPECT_EQ(screen.host.ModalSerial(), 0U);
  EXPECT_TRUE(screen.host.TakesInput(screen.form()));
}

TEST_F(OrvendalCallTest, TheFirstActivationIsOverWhenTheCallReturns) {
  screen.Open();
  EXPECT_FALSE(screen.form().variables.PrimeraActivacion);
  EXPECT_EQ(screen.Focused(), "PicServicios");
}

TEST_F(OrvendalCallTest, ASecondCallShowsTheSameFormWithoutLoadingIt) {
  screen.Open();
  const FrmOrvendalciales* first = &screen.form();
  screen.AddCount("P1", 1, 2);
  screen.recordsets.TakeStatements();
  screen.library.TakeCalls();

  screen.Open();
  EXPECT_EQ(&screen.form(), first);
  EXPECT_EQ(screen.session->times_asked, 2);
  EXPECT_TRUE(screen.recordsets.TakeStatements().empty());
  EXPECT_TRUE(screen.library.TakeCalls().empty());
  EXPECT_TRUE(screen.Codes().empty());
  EXPECT_EQ(screen.host.WindowOf(screen.form())->TimesRaised(), 1);
}

TEST_F(OrvendalCallTest, ASecondCallFillsTheSessionAgainAndLeavesTheScreenAsItIs) {
  screen.Open("01", "P1", "T1");
  const std::string branch_shown = screen.form().LblSucursal.Caption();
  screen.Open("02", "P2", "T2");
  EXPECT_EQ(screen.state.session.CodSucursal, "02");
  EXPECT_EQ(screen.state.session.CodPuesto, "P2");
  EXPECT_EQ(screen.state.session.CodTurno, "T2");
  EXPECT_EQ(screen.form().LblSucursal.Caption(), branch_shown);
  EXPECT_EQ(screen.form().LblSucursal.Tag(), "01");
}

TEST_F(OrvendalCallTest, ASecondCallForAnotherBranchKeepsTheUnsavedLinesAndTheSaveGoesToTheNewBranch) {
  screen.OpenWithStylist("01");
  screen.EnterLine("P1", "12");
  screen.AddCount("P5", 4, 5, "E1", "2026-11-16", "02");
  screen.AddCount("P2", 4, 5, "E1", "2026-11-16", "01");
  screen.Open("02");
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P1"});
  screen.Click("LblGuardar");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(screen.Sql("SELECT group_concat(line, ' ') FROM (SELECT IdSucursal || '=' || IdProducto AS line "
                       "FROM HistOrvendalcial ORDER BY 1)"),
            "01=P2 02=P1");
}

TEST_F(OrvendalCallTest, AMinimisedFormComesBackMaximised) {
  screen.Open();
  ClickMinimize(screen);
  ASSERT_EQ(screen.form().WindowState(), WindowState::kMinimized);
  screen.Open();
  EXPECT_EQ(screen.form().WindowState(), WindowState::kMaximized);
  EXPECT_TRUE(screen.form().Visible());
}

TEST_F(OrvendalCallTest, ANormalFormStaysNormal) {
  screen.Open();
  screen.Open();
  EXPECT_EQ(screen.form().WindowState(), WindowState::kNormal);
}

TEST_F(OrvendalCallTest, AMaximisedFormStaysMaximised) {
  screen.Open();
  ClickMinimize(screen);
  screen.Open();
  int resized = 0;
  screen.form().OnResize = [&] { ++resized; };
  screen.Open();
  EXPECT_EQ(screen.form().WindowState(), WindowState::kMaximized);
  EXPECT_EQ(resized, 0);
}

TEST_F(OrvendalCallTest, MinimisedAndBackKeepsWhatWasEntered) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "12");
  ClickMinimize(screen);
  screen.Open();
  EXPECT_EQ(screen.Cell(1, column::kCode), "P1");
  EXPECT_EQ(screen.Cell(1, column::kQuantity), "12");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
}

TEST_F(OrvendalCallTest, TheArgumentsKeepTheCallersValues) {
  screen.session->replaced_branch = "02";
  const std::string suc = "0123";
  const std::string puest = "Caja 1";
  const std::string turn = "Mañana";
  ClassOrvendal component(screen.state);
  component.Orvendal(screen.session, suc, puest, turn);
  EXPECT_EQ(suc, "0123");
  EXPECT_EQ(puest, "Caja 1");
  EXPECT_EQ(turn, "Mañana");
  EXPECT_EQ(screen.state.session.CodSucursal, "02");
}

TEST_F(OrvendalCallTest, TheArgumentsStandInTheSessionBeforeTheHostIsAsked) {
  std::string seen;
  screen.session->meddle = [&](const SessionArguments& arguments) {
    const DatosComunes& session = screen.state.session;
    seen = arguments.CodSucursal + "/" + session.CodPuesto + "/" + session.CodTurno;
    EXPECT_EQ(session.DatosSesion, screen.session);
    EXPECT_EQ(screen.state.form, nullptr);
  };
  screen.Open("0107", "P4", "T3");
  EXPECT_EQ(seen, "0107/P4/T3");
}

TEST_F(OrvendalCallTest, AHostThatFailsEndsTheCallWithItsError) {
  screen.session->meddle = [](const SessionArguments&) { throw RuntimeError(1234, "sesión caducada"); };
  try {
    screen.Open("02", "P9", "T9");
    FAIL() << "the call went on";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 1234);
    EXPECT_EQ(error.Description(), "sesión caducada");
  }
  EXPECT_EQ(screen.state.form, nullptr);
}

TEST_F(OrvendalCallTest, WhatWasFilledBeforeAFailureStays) {
  screen.session->meddle = [](const SessionArguments&) { throw RuntimeError(1234, "sesión caducada"); };
  EXPECT_EQ(ErrorOf([&] { screen.Open("02", "P9", "T9"); }), 1234);
  EXPECT_EQ(screen.state.session.CodSucursal, "02");
  EXPECT_EQ(screen.state.session.CodPuesto, "P9");
  EXPECT_EQ(screen.state.session.CodTurno, "T9");
  EXPECT_EQ(screen.state.session.Conexion, screen.connection);
}

TEST_F(OrvendalCallTest, AHostThatFailsAtASecondCallLeavesTheScreenUsable) {
  screen.Open();
  screen.session->meddle = [](const SessionArguments&) { throw RuntimeError(1234, "sesión caducada"); };
  EXPECT_EQ(ErrorOf([&] { screen.Open("02"); }), 1234);
  ASSERT_TRUE(screen.HasForm());
  EXPECT_EQ(screen.host.WindowOf(screen.form())->TimesRaised(), 0);
  screen.session->meddle = nullptr;
  EXPECT_FALSE(screen.Open());
}

TEST_F(OrvendalCallTest, AnEmptySessionObjectIsError91AfterTheArgumentsWereTaken) {
  ClassOrvendal component(screen.state);
  EXPECT_EQ(ErrorOf([&] { component.Orvendal(nullptr, "02", "P9", "T9"); }), 91);
  EXPECT_EQ(screen.state.session.CodSucursal, "02");
  EXPECT_EQ(screen.state.form, nullptr);
}

TEST_F(OrvendalCallTest, AnErrorOfTheLoadReachesTheCaller) {
  screen.session->general->Remove("Buscar");
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), 3265);
  EXPECT_FALSE(screen.HasForm());
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(screen.state.session.CodSucursal, "01");
}

TEST_F(OrvendalCallTest, TheClassHoldsNoStateOfItsOwn) {
  screen.Open();
  const FrmOrvendalciales* first = &screen.form();
  ClassOrvendal another(screen.state);
  another.Orvendal(screen.session, "01", "P1", "T1");
  EXPECT_EQ(&screen.form(), first);
}

TEST_F(OrvendalCallTest, ReturningFromAnotherFormOfTheHostActivatesAgainAndKeepsTheFocus) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, column::kCode);
  ASSERT_EQ(screen.Focused(), "TxtMSF");
  auto other = std::make_shared<Form>(screen.host, "FrmHost");
  other->Show();
  int focus_events = 0;
  screen.form().TxtMSF.OnGotFocus = [&] { ++focus_events; };
  int activations = 0;
  screen.form().OnActivate = [&] {
    ++activations;
    screen.form().Form_Activate();
  };
  screen.Open();
  EXPECT_EQ(activations, 1);
  EXPECT_EQ(screen.Focused(), "TxtMSF");
  EXPECT_EQ(focus_events, 0);
  screen.Open();
  EXPECT_EQ(activations, 1);
}

}  // namespace
}  // namespace orvendal
