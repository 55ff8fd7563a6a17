#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class NewCountTest : public testing::Test {
 protected:
  FrmOrvendalciales& form() { return screen.form(); }
  void New(const ScriptedLibrary::EmployeeAnswer& answer) {
    screen.library.QueueEmployee(answer);
    screen.Click("LblNuevo");
  }
  void ExpectSupervisorMode() {
    EXPECT_FALSE(form().TxtFechaHora.Visible());
    EXPECT_TRUE(form().MkFecha.Visible());
    EXPECT_TRUE(form().BtnAnuloSuper.Visible());
    EXPECT_TRUE(form().LblSupervisor.Visible());
    EXPECT_FALSE(form().CmdEmpl.Enabled());
  }
  void ExpectNormalMode() {
    EXPECT_TRUE(form().TxtFechaHora.Visible());
    EXPECT_FALSE(form().MkFecha.Visible());
    EXPECT_FALSE(form().BtnAnuloSuper.Visible());
    EXPECT_FALSE(form().LblSupervisor.Visible());
    EXPECT_TRUE(form().CmdEmpl.Enabled());
  }
  FormDriver screen;
};

TEST_F(NewCountTest, AnEmployeeChosenEntersSupervisorMode) {
  screen.Open();
  ExpectNormalMode();
  New({true, "E2", "Berta"});
  ExpectSupervisorMode();
  EXPECT_EQ(form().TxtEmpleado.Text(), "Berta");
  EXPECT_EQ(form().TxtCodigo.Text(), "E2");
  EXPECT_FALSE(form().TxtEmpleado.Enabled());
  EXPECT_EQ(screen.Focused(), "MSFProductos");
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
}

TEST_F(NewCountTest, TheCaptionOfTheModeIsTheDictionarys) {
  screen.Open();
  New({true, "E2", "Berta"});
  EXPECT_EQ(form().LblSupervisor.Caption(), "Supervisor");
}

TEST_F(NewCountTest, AsksThePickerForANewCount) {
  screen.Open();
  Forget(screen);
  New({true, "E2", "Berta"});
  EXPECT_EQ(TakeCalls(screen),
            (Texts{"SelectorEmpleado.ParaNuevo(True)", "SelectorEmpleado.Aceptado(False)",
                   "SelectorEmpleado.OpcionFija(True)", "SelectorEmpleado.Nombre(\"\")",
                   "SelectorEmpleado.Elegir(Conexion, \"01\")", "SelectorEmpleado.Aceptado() = True",
                   "SelectorEmpleado.Nombre() = \"Berta\"", "SelectorEmpleado.Codigo() = \"E2\"",
                   "SelectorEmpleado.Nombre() = \"Berta\""}));
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(NewCountTest, LoadsNothingAndKeepsTheLinesAndTheDay) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.EnterLine("P1", "5");
  Forget(screen);
  New({true, "E2", "Berta"});
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P1"}));
  EXPECT_EQ(form().MkFecha.Text(), "16/11/2026");
  EXPECT_EQ(form().Calendario.Value(), Date(2026, 11, 16));
  EXPECT_TRUE(form().HayCambios());
}

TEST_F(NewCountTest, ClosesTheEditorAndDropsItsText) {
  screen.AddCounts(2);
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("77");
  New({true, "E2", "Berta"});
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "");
  EXPECT_EQ(screen.Cell(1, kQuantity), "1");
}

TEST_F(NewCountTest, TheBoxIsEnabledWhileThePickerIsUp) {
  screen.OpenWithStylist();
  ASSERT_FALSE(form().TxtEmpleado.Enabled());
  bool enabled = false;
  screen.library.DuringNextDialog([&] { enabled = form().TxtEmpleado.Enabled(); });
  New({true, "E2", "Berta"});
  EXPECT_TRUE(enabled);
  EXPECT_FALSE(form().TxtEmpleado.Enabled());
}

TEST_F(NewCountTest, APickerCancelledWithAStylistLeavesTheBoxFilledAndEnabled) {
  screen.OpenWithStylist();
  const std::string buttons = AvailableButtons(screen);
  New({false, "E2", "Berta"});
  ExpectNormalMode();
  EXPECT_EQ(form().TxtEmpleado.Text(), "Ana");
  EXPECT_EQ(form().TxtCodigo.Text(), "E1");
  EXPECT_TRUE(form().TxtEmpleado.Enabled());
  EXPECT_EQ(AvailableButtons(screen), buttons);
  Forget(screen);
  screen.Click("TxtEmpleado");
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_TRUE(TakeCalls(screen).empty());
}

TEST_F(NewCountTest, APickerCancelledLeavesAnOpenEditorAlone) {
  screen.AddCounts(1);
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("77");
  New({false, "", ""});
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "77");
}

TEST_F(NewCountTest, AnEmptyNameLeavesTheBoxEnabledAndStillEntersTheMode) {
  screen.Open();
  screen.library.QueueEmployee({true, "E7", ""});
  screen.library.QueueEmployee({false, "", ""});  // the grid's focus asks for a stylist
  Forget(screen);
  screen.Click("LblNuevo");
  ExpectSupervisorMode();
  EXPECT_EQ(form().TxtCodigo.Text(), "E7");
  EXPECT_TRUE(form().TxtEmpleado.Enabled());
  EXPECT_EQ(TakeMessages(screen), Texts{kAsksForStylist});
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
}

TEST_F(NewCountTest, AnEmptyNameLeavesTheBoxEnabledAlsoWhereTheGridHasTheFocusAndAsksNothing) {
  screen.OpenWithStylist();
  ASSERT_EQ(screen.Focused(), "MSFProductos");
  screen.library.QueueEmployee({true, "E7", ""});
  Forget(screen);
  screen.Click("LblNuevo");
  ExpectSupervisorMode();
  EXPECT_EQ(form().TxtEmpleado.Text(), "");
  EXPECT_EQ(form().TxtCodigo.Text(), "E7");
  EXPECT_TRUE(form().TxtEmpleado.Enabled());
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

TEST_F(NewCountTest, TheGridHasTheFocusBeforeTheModeIsMarkedAndTheBarSet) {
  screen.OpenWithStylist();
  form().PicDatos.SetFocus();
  std::string buttons;
  bool marked = true;
  bool shows_day_box = false;
  screen.library.QueueEmployee({true, "E7", ""});
  screen.library.QueueEmployee({false, "", ""});
  screen.library.DuringNextDialog([] {});  // the picker of the button
  screen.library.DuringNextDialog([&] {    // the question of the grid
    buttons = AvailableButtons(screen);
    marked = form().LblSupervisor.Visible();
    shows_day_box = form().MkFecha.Visible();
  });
  screen.Click("LblNuevo");
  EXPECT_EQ(buttons, kBotonesConLineas);
  EXPECT_FALSE(marked);
  EXPECT_TRUE(shows_day_box);
  EXPECT_TRUE(form().LblSupervisor.Visible());
}

TEST_F(NewCountTest, InSupervisorModeTakesTheNewEmployeeAndStays) {
  screen.Open();
  New({true, "E2", "Berta"});
  New({true, "E3", "Carmen"});
  ExpectSupervisorMode();
  EXPECT_EQ(form().TxtEmpleado.Text(), "Carmen");
  EXPECT_EQ(form().TxtCodigo.Text(), "E3");
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
}

TEST_F(NewCountTest, InSupervisorModeAPickerCancelledKeepsEmployeeAndMode) {
  screen.Open();
  New({true, "E2", "Berta"});
  New({false, "", ""});
  ExpectSupervisorMode();
  EXPECT_EQ(form().TxtEmpleado.Text(), "Berta");
  EXPECT_TRUE(form().TxtEmpleado.Enabled());
}

TEST_F(NewCountTest, TakesTheConnectionThatThePickerGivesBackEvenWhenCancelled) {
  screen.Open();
  const std::shared_ptr<SqliteConnection> other =
      SqliteConnection::Open(":memory:", Dialect::kJet, Region::Spanish(), OpenMode::kCreate);
  screen.library.ReplaceConnection("Elegir", other);
  New({false, "", ""});
  EXPECT_EQ(screen.state.session.Conexion, other);
}

TEST_F(NewCountTest, APickerThatFailsIsReportedAndNothingElseChanges) {
  screen.OpenWithStylist();
  screen.library.FailNext("Elegir", RuntimeError(429, "sin selector"));
  screen.Click("LblNuevo");
  EXPECT_EQ(TakeErrors(screen), Texts{"429: sin selector"});
  ExpectNormalMode();
  EXPECT_EQ(form().TxtEmpleado.Text(), "Ana");
}

TEST_F(NewCountTest, EitherMemberOfTheButtonStartsIt) {
  screen.Open();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo(0)");
  ExpectSupervisorMode();
}

TEST_F(NewCountTest, ClearingTheHeaderEmptiesThreeBoxesAndNothingElse) {
  screen.OpenWithStylist();
  const std::string shown = form().TxtFechaHora.Text();
  form().LimpiarCabecera();
  EXPECT_EQ(form().TxtCodigo.Text(), "");
  EXPECT_EQ(form().MkFecha.Text(), "");
  EXPECT_EQ(form().TxtEmpleado.Text(), "");
  EXPECT_EQ(form().TxtFechaHora.Text(), shown);
}

}  // namespace
}  // namespace orvendal
