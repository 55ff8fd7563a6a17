#include <gtest/gtest.h>

#include <cmath>

#include "form/columns.h"
#include "platform/forms/control_looks.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

std::vector<double> Places(Form& form) {
  std::vector<double> places;
  for (const Control* control : form.Controls()) {
    places.insert(places.end(), {control->Left(), control->Top(), control->Width(), control->Height()});
  }
  return places;
}

const char* const kActions[] = {"Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"};

class FitToDisplayTest : public testing::Test {
 protected:
  void OpenOn(double width, double height) {
    screen.host.SetScreenTwips(width, height);
    screen.Open();
  }
  Control& Find(const std::string& name) { return *screen.form().FindControl(name); }

  FormDriver screen;
  FormDriver as_designed;
};

TEST_F(FitToDisplayTest, TheReferenceHeightLeavesEverythingAsDesigned) {
  as_designed.Open();
  OpenOn(30000, 11520);
  EXPECT_EQ(Places(screen.form()), Places(as_designed.form()));
  EXPECT_EQ(screen.form().Width(), 15360);
  EXPECT_EQ(screen.form().Height(), 11520);
  EXPECT_EQ(screen.form().LblEntrada.Font().Size(), 12);
  EXPECT_EQ(screen.form().TxtEmpleado.Font().Size(), 9.75);
}

TEST_F(FitToDisplayTest, ANarrowDisplayOfTheReferenceHeightToo) {
  OpenOn(9000, 11520);
  EXPECT_EQ(screen.form().Width(), 15360);
  EXPECT_EQ(screen.form().LblEntrada.Font().Size(), 12);
}

TEST_F(FitToDisplayTest, AHeightThatDiffersByOneTwipScalesEverything) {
  OpenOn(15360, 11521);
  EXPECT_EQ(screen.form().LblEntrada.Font().Size(), 10);
  EXPECT_EQ(screen.form().TxtEmpleado.Font().Size(), 8.75);
  EXPECT_EQ(screen.form().TxtEmpleado.Height(), 330);
  EXPECT_EQ(screen.form().Height(), 11521);
}

TEST_F(FitToDisplayTest, TheFormEndsExactlyTheSizeOfTheDisplay) {
  OpenOn(12000, 9000);
  EXPECT_EQ(screen.form().Width(), 12000);
  EXPECT_EQ(screen.form().Height(), 9000);
  EXPECT_EQ(screen.form().PicServicios.Width(), 12000);
  EXPECT_EQ(screen.form().Barra1.Width(), 12000);
}

TEST_F(FitToDisplayTest, AFractionalDisplayIsRoundedForTheScalingAndTheFormStillCoversIt) {
  OpenOn(12000.6, 8999.7);
  EXPECT_EQ(screen.form().ScrollProductos.Width(), 12001);  // 15360 as designed
  EXPECT_EQ(screen.form().MSFProductos.Top(), 1875);        // 2400 * 8999.7 / 11520 would be cut to 1874
  EXPECT_EQ(screen.form().Width(), 12000.6);
  EXPECT_EQ(screen.form().Height(), 8999.7);
}

TEST_F(FitToDisplayTest, TheGridOfASmallDisplay) {
  OpenOn(12000, 9000);
  const MSFlexGrid& grid = screen.form().MSFProductos;
  EXPECT_EQ(grid.Left(), 937);
  EXPECT_EQ(grid.Top(), 1875);
  EXPECT_EQ(grid.Width(), 10230);
  EXPECT_EQ(grid.Height(), 5042);  // of 6455, which the start had set
  EXPECT_EQ(grid.ColWidth(column::kCode), 1200);
  EXPECT_EQ(grid.ColWidth(column::kPreviousQuantity), 1200);
  EXPECT_EQ(grid.ColWidth(column::kQuantity), 1500);
  EXPECT_EQ(grid.ColWidth(column::kStylist), 1500);
  EXPECT_EQ(grid.ColWidth(column::kDescription), 10230 - 1200 - 1200 - 1500 - 1500 - 300);
}

TEST_F(FitToDisplayTest, TheEditorIsFittedAnewWithoutTheTenTwips) {
  OpenOn(12000, 9000);
  const TextBox& editor = screen.form().TxtMSF;
  EXPECT_EQ(editor.Height(), 510);
  EXPECT_EQ(editor.Width(), screen.form().MSFProductos.ColWidth(column::kDescription));
  EXPECT_EQ(editor.Left(), 937 + 1200);
  EXPECT_EQ(editor.Top(), 1875 + 500);
}

TEST_F(FitToDisplayTest, ActionButtonsGetTheirTwipsOnTopOfTheScaling) {
  OpenOn(12000, 9000);
  for (const std::string action : kActions) {
    SCOPED_TRACE(action);
    const bool wide = action == "Borrar" || action == "Guardar";
    EXPECT_EQ(Find("Lbl" + action + "(1)").Width(), (wide ? 1628 : 1535) + 40);
    EXPECT_EQ(Find("Div" + action + "(0)").Width(), (action == "Borrar" ? 1628 : 1535) + 120);
    EXPECT_EQ(Find("Div" + action + "(0)").Height(), 574 + 40);
    EXPECT_EQ(Find("Div" + action + "(1)").Width(), (action == "Borrar" ? 1488 : 1394) + 80);
    EXPECT_EQ(Find("Div" + action + "(1)").Height(), 445);
    const Label& caption = dynamic_cast<Label&>(Find("Lbl" + action + "(0)"));
    // The caption had fitted itself to the smaller type when the 40 twips came.
    EXPECT_EQ(caption.Width(),
              RoomOf(screen.host, {"Bookman Old Style", 12.25, 600, false}, caption.Caption()).x + 40);
  }
}

TEST_F(FitToDisplayTest, TheBarIsSpacedByTheWidenedAreas) {
  OpenOn(12000, 9000);
  // 12000 - 3 * 1575 - 2 * 1668 = 3939, a sixth of which is 656.5, to the even 656.
  EXPECT_EQ(Find("LblNuevo(1)").Left(), 656);
  EXPECT_EQ(Find("LblBuscar(1)").Left(), 1575 + 2 * 656);
  EXPECT_EQ(Find("LblBorrar(1)").Left(), 2 * 1575 + 3 * 656);
  EXPECT_EQ(Find("LblGuardar(1)").Left(), 2 * 1575 + 1668 + 4 * 656);
  EXPECT_EQ(Find("LblCancelar(1)").Left(), 2 * 1575 + 2 * 1668 + 5 * 656);
  EXPECT_EQ(Find("DivNuevo(0)").Left(), 656);
  EXPECT_EQ(Find("DivNuevo(1)").Left(), 656 + 90);
}

TEST_F(FitToDisplayTest, FieldLabelsStayAsTallAsTheirBoxes) {
  OpenOn(12000, 9000);
  EXPECT_EQ(screen.form().LblEmpleado.Height(), 251);
  EXPECT_EQ(screen.form().LblFecha.Height(), 251);
}

TEST_F(FitToDisplayTest, TheCalendarsPanelKeepsItsDesignInAllCases) {
  OpenOn(30720, 23040);
  const PictureBox& panel = screen.form().PicCalendario;
  EXPECT_EQ(panel.Left(), 2160);
  EXPECT_EQ(panel.Top(), 1440);
  EXPECT_EQ(panel.Width(), 3540);
  EXPECT_EQ(panel.Height(), 3420);
}

TEST_F(FitToDisplayTest, ScalesFromTheSizeThatTheHostHandsOverNotFromTheDesign) {
  screen.session->reference_width = 12000;
  screen.session->reference_height = 9000;
  OpenOn(24000, 18000);
  EXPECT_EQ(screen.form().MSFProductos.Left(), 2400);
  EXPECT_EQ(screen.form().Width(), 24000);
  EXPECT_EQ(screen.form().Height(), 18000);
}

TEST_F(FitToDisplayTest, AReferenceOfTheDisplaysHeightSetsTheFormsSizeOnly) {
  screen.session->reference_width = 12000;
  screen.session->reference_height = 9000;
  OpenOn(24000, 9000);
  EXPECT_EQ(screen.form().Width(), 12000);
  EXPECT_EQ(screen.form().Height(), 9000);
  EXPECT_EQ(screen.form().MSFProductos.Left(), 1200);
  EXPECT_EQ(screen.form().LblEntrada.Font().Size(), 12);
}

TEST_F(FitToDisplayTest, NothingIsScaledAgainAfterTheLoad) {
  OpenOn(12000, 9000);
  const std::vector<double> places = Places(screen.form());
  screen.host.SetScreenTwips(30720, 23040);
  screen.Open();
  EXPECT_EQ(Places(screen.form()), places);
}

TEST_F(FitToDisplayTest, ANewLoadScalesFromTheDesignAgain) {
  OpenOn(12000, 9000);
  const std::vector<double> places = Places(screen.form());
  screen.library.KeepForm(true);
  screen.form().Unload();
  screen.Open();
  EXPECT_EQ(Places(screen.form()), places);
}

TEST_F(FitToDisplayTest, TheBranchNameStandsBeforeTheScaling) {
  OpenOn(12000, 9000);
  const Label& name = screen.form().LblSucursal;
  const double designed_width =
      screen.host.TextWidth({"Bookman Old Style", 12, 600, false}, "  Sucursal 01 Centro  ");
  EXPECT_EQ(name.Left(), std::trunc((11280 + 2805 - designed_width) * 12000 / 15360));
}

TEST_F(FitToDisplayTest, TheScaledScreenWorks) {
  screen.host.SetScreenTwips(12000, 9000);
  screen.OpenWithStylist();
  screen.EnterLine("P1", "12");
  screen.Click("LblGuardar");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(screen.Sql("SELECT StockActual FROM HistOrvendalcial"), "12");
}

}  // namespace
}  // namespace orvendal
