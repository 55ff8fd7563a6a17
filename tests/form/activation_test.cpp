#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/error_of.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

class ActivationTest : public testing::Test {
 protected:
  int Painted() { return screen.host.WindowOf(screen.form())->TimesPainted(); }

  FormDriver screen;
};

TEST_F(ActivationTest, TheFirstOneRefreshesTheFormAndNoOther) {
  screen.Open();
  EXPECT_EQ(Painted(), 1);
  EXPECT_FALSE(screen.form().variables.PrimeraActivacion);
  screen.form().Form_Activate();
  EXPECT_EQ(Painted(), 1);
}

TEST_F(ActivationTest, TheFocusIsTakenBeforeTheRefresh) {
  std::vector<std::string> order;
  const auto form = std::make_shared<FrmOrvendalciales>(screen.state);
  screen.state.form = form;
  form->PicServicios.OnGotFocus = [&] { order.push_back("focus, painted " + std::to_string(Painted())); };
  screen.Open();
  EXPECT_EQ(order, std::vector<std::string>{"focus, painted 0"});
}

TEST_F(ActivationTest, ALaterOneLeavesFocusAndEditorAsTheyAre) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, column::kCode);
  screen.Type("P1");
  screen.form().Form_Activate();
  EXPECT_EQ(screen.Focused(), "TxtMSF");
  EXPECT_EQ(screen.form().TxtMSF.Text(), "P1");
}

TEST_F(ActivationTest, InNewModeEverythingIsLockedAndTheFlagsStay) {
  screen.Open();
  screen.form().variables.ModoNuevo = true;
  screen.form().variables.PrimeraActivacion = true;
  screen.form().Form_Activate();
  EXPECT_EQ(Painted(), 2);
  for (const char* action : {"Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"}) {
    EXPECT_FALSE(screen.IsAvailable(action)) << action;
  }
  EXPECT_FALSE(screen.form().TxtEmpleado.Enabled());
  EXPECT_FALSE(screen.form().MSFProductos.Enabled());
  EXPECT_FALSE(screen.form().TxtFechaHora.Enabled());
  EXPECT_TRUE(screen.form().variables.ModoNuevo);
  EXPECT_TRUE(screen.form().variables.PrimeraActivacion);
}

TEST_F(ActivationTest, NewModeEndsWithTheNextLoad) {
  screen.Open();
  screen.form().variables.ModoNuevo = true;
  screen.form().Form_Activate();
  screen.library.KeepForm(true);
  screen.form().Unload();
  screen.Open();
  EXPECT_FALSE(screen.form().variables.ModoNuevo);
  EXPECT_TRUE(screen.form().MSFProductos.Enabled());
  EXPECT_TRUE(screen.form().TxtEmpleado.Enabled());
}

TEST_F(ActivationTest, DialogsRaiseNoActivationOnTheScreen) {
  screen.Open();
  int activations = 0;
  screen.form().OnActivate = [&] { ++activations; };
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, column::kCode);
  screen.Key(key::kF1);
  screen.Key(key::kF2);
  EXPECT_EQ(activations, 0);
}

TEST_F(ActivationTest, TheTimerIsSilent) {
  screen.Open();
  screen.form().variables.BufferTeclas = "84";
  screen.host.PassTime(5000);
  EXPECT_EQ(screen.form().variables.BufferTeclas, "84");
  EXPECT_FALSE(screen.form().TimerCBarra.Enabled());
}

TEST_F(ActivationTest, ATimerThatIsSwitchedOnClearsTheBufferOnceAndSwitchesItselfOff) {
  screen.Open();
  screen.form().variables.BufferTeclas = "84";
  screen.form().TimerCBarra.Enabled(true);
  screen.host.PassTime(999);
  EXPECT_EQ(screen.form().variables.BufferTeclas, "84");
  screen.host.PassTime(1);
  EXPECT_EQ(screen.form().variables.BufferTeclas, "");
  EXPECT_FALSE(screen.form().TimerCBarra.Enabled());
  screen.form().variables.BufferTeclas = "85";
  screen.host.PassTime(3000);
  EXPECT_EQ(screen.form().variables.BufferTeclas, "85");
}

TEST_F(ActivationTest, ATimerLeftOnDoesNotFireAfterTheFormHasGone) {
  screen.Open();
  screen.library.KeepForm(true);
  screen.form().TimerCBarra.Enabled(true);
  screen.form().variables.BufferTeclas = "84";
  screen.form().Unload();
  screen.host.PassTime(3000);
  EXPECT_EQ(screen.form().variables.BufferTeclas, "84");
}

}  // namespace
}  // namespace orvendal
