#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/error_of.h"
#include "tests/support/form_driver.h"
#include "tests/support/fresh_variables.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using testing_support::ClickClose;
using testing_support::ErrorOf;

class FormLifetimeTest : public testing::Test {
 protected:
  void ExpectFreshForm() {
    testing_support::ExpectFreshVariables(screen.form().variables, false);
    EXPECT_EQ(screen.form().TxtEmpleado.Text(), "");
    EXPECT_EQ(screen.form().TxtCodigo.Text(), "");
    EXPECT_TRUE(screen.form().TxtEmpleado.Enabled());
    EXPECT_FALSE(screen.form().LblSupervisor.Visible());
    EXPECT_FALSE(screen.form().TxtMSF.Visible());
    EXPECT_EQ(screen.Focused(), "PicServicios");
  }

  /// Leaves as many traces on the form as a day of work does.
  void Work() {
    screen.OpenWithStylist();
    screen.EnterLine("P1", "12");
    screen.Click("LblGuardar");
    screen.library.QueueEmployee({true, "E2", "Berta"});
    screen.Click("LblNuevo");
    screen.DoubleClickCell(2, column::kCode);
    screen.form().variables.BufferTeclas = "84";
    screen.form().variables.CambiarEstilista = true;
    ASSERT_NE(screen.form().variables.RsCodigos, nullptr);
    ASSERT_TRUE(screen.form().LblSupervisor.Visible());
  }

  FormDriver screen;
};

TEST_F(FormLifetimeTest, ALoadThatFailsLeavesNoLoadedForm) {
  screen.session->screens->Remove("Orvendalciales");
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), 3265);
  EXPECT_FALSE(screen.HasForm());
  ASSERT_NE(screen.state.form, nullptr);
  EXPECT_FALSE(screen.form().Visible());
  EXPECT_EQ(screen.host.WindowOf(screen.form()), nullptr);
}

TEST_F(FormLifetimeTest, TheCallAfterAFailedLoadLoadsAfresh) {
  screen.session->screens->Remove("Orvendalciales");
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), 3265);
  screen.session->screens->Set("Orvendalciales", "Recuento");
  screen.recordsets.TakeStatements();
  EXPECT_FALSE(screen.Open());
  ASSERT_TRUE(screen.HasForm());
  EXPECT_EQ(screen.form().LblEntrada.Caption(), "  Recuento  ");
  EXPECT_EQ(screen.recordsets.TakeStatements().size(), 2U);
  ExpectFreshForm();
}

TEST_F(FormLifetimeTest, AStoreThatFailsAtTheBranchesStopsTheLoad) {
  screen.recordsets.FailOpen(1, -2147467259, "el almacén no responde");
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), -2147467259);
  EXPECT_FALSE(screen.HasForm());
  screen.Open();
  EXPECT_TRUE(screen.HasForm());
  ExpectFreshForm();
}

TEST_F(FormLifetimeTest, AStoreThatFailsAtTheLinesStopsTheLoad) {
  screen.AddCount("P1", 7, 8);
  screen.recordsets.FailOpen(2, -2147467259, "el almacén no responde");
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), -2147467259);
  EXPECT_FALSE(screen.HasForm());
  screen.Open();
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P1"});
  EXPECT_EQ(screen.form().MSFProductos1.Rows(), 2);
  ExpectFreshForm();
}

TEST_F(FormLifetimeTest, ALibraryThatFailsStopsTheLoad) {
  screen.library.FailNext("FormatoFecha", RuntimeError(429, "no se puede crear el objeto"));
  EXPECT_EQ(ErrorOf([&] { screen.Open(); }), 429);
  EXPECT_FALSE(screen.HasForm());
  screen.Open();
  EXPECT_TRUE(screen.HasForm());
}

TEST_F(FormLifetimeTest, FourFailedLoadsInARowLeaveNothingBehind) {
  for (int attempt = 0; attempt < 4; ++attempt) {
    screen.recordsets.FailOpen(1, -2147467259, "el almacén no responde");
    EXPECT_EQ(ErrorOf([&] { screen.Open(); }), -2147467259);
  }
  screen.Open();
  ExpectFreshForm();
  EXPECT_EQ(screen.form().LblSucursal.Caption(), "  Sucursal 01 Centro  ");
}

TEST_F(FormLifetimeTest, ACallDuringAMessageOfTheLoadLeavesTheScreenAsOneCallDoes) {
  screen.library.DuringNextDialog([this] { EXPECT_FALSE(screen.Open("01")); });
  screen.Open("99");
  EXPECT_EQ(screen.library.TakeMessages().size(), 1U);
  ASSERT_TRUE(screen.HasForm());
  EXPECT_TRUE(screen.form().Visible());
  EXPECT_EQ(screen.state.session.CodSucursal, "01");
  ExpectFreshForm();
}

TEST_F(FormLifetimeTest, ALibraryThatClearsTheReferenceLeavesTheComponentWithoutAForm) {
  screen.Open();
  const std::weak_ptr<FrmOrvendalciales> form = screen.state.form;
  ClickClose(screen);
  EXPECT_EQ(screen.state.form, nullptr);
  EXPECT_TRUE(form.expired());
}

TEST_F(FormLifetimeTest, TheCallAfterALibraryClearedTheReferenceMakesANewForm) {
  Work();
  const std::shared_ptr<FrmOrvendalciales> old = screen.state.form;
  screen.library.QueueAnswer(message::kNo);
  old->Unload();
  screen.Open();
  EXPECT_NE(screen.state.form, old);
  ExpectFreshForm();
}

TEST_F(FormLifetimeTest, ALibraryThatKeepsTheFormHasItLoadedAfreshAtTheNextCall) {
  Work();
  screen.library.KeepForm(true);
  const std::shared_ptr<FrmOrvendalciales> form = screen.state.form;
  ClickClose(screen);
  ASSERT_EQ(screen.state.form, form);
  EXPECT_FALSE(form->IsLoaded());

  screen.Open();
  EXPECT_EQ(screen.state.form, form);
  EXPECT_TRUE(form->IsLoaded());
  ExpectFreshForm();
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P1"});
}

TEST_F(FormLifetimeTest, TheLibraryIsHandedTheFormAtUnload) {
  screen.Open();
  screen.library.TakeCalls();
  ClickClose(screen);
  EXPECT_EQ(screen.library.TakeCalls(),
            std::vector<std::string>{"HerramientasGlobal.LiberarForm(FrmOrvendalciales)"});
}

TEST_F(FormLifetimeTest, ALibraryThatFailsToLetGoIsReportedAndTheFormStays) {
  screen.Open();
  screen.library.FailNext("LiberarForm", RuntimeError(1001, "ocupado"));
  ClickClose(screen);
  ASSERT_EQ(screen.host.ReportedErrors().size(), 1U);
  EXPECT_EQ(screen.host.ReportedErrors()[0].Number(), 1001);
  ASSERT_TRUE(screen.HasForm());
  EXPECT_TRUE(screen.form().Visible());
  ClickClose(screen);
  EXPECT_FALSE(screen.HasForm());
}

TEST_F(FormLifetimeTest, ACallWhileTheLibraryKeepsNothingStartsFromTheStore) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "12");
  screen.library.QueueAnswer(message::kNo);
  ClickClose(screen);
  screen.Open();
  EXPECT_TRUE(screen.Codes().empty());
}

TEST_F(FormLifetimeTest, TheSizeOfAMaximisedFormIsTheReferenceSizeAgainAtTheNextLoad) {
  screen.Open();
  testing_support::ClickMinimize(screen);
  screen.Open();
  ASSERT_EQ(screen.form().WindowState(), WindowState::kMaximized);
  screen.library.KeepForm(true);
  ClickClose(screen);
  screen.Open();
  EXPECT_EQ(screen.form().WindowState(), WindowState::kNormal);
  EXPECT_EQ(screen.form().Width(), 15360);
  EXPECT_EQ(screen.form().Height(), 11520);
}

}  // namespace
}  // namespace orvendal
