#include "screen/proportional_layout.h"

#include <gtest/gtest.h>

#include <map>

#include "platform/forms/line.h"
#include "platform/forms/option_button.h"
#include "tests/support/design_form.h"
#include "tests/support/error_of.h"

namespace orvendal {
namespace {

using testing_support::DesignForm;
using testing_support::ErrorOf;

/// The screen scaled from 15360 x 11520 to 12000 x 9000 and nothing else done to it.
class ProportionalLayoutTest : public testing::Test {
 protected:
  ProportionalLayoutTest() { EscalarControles(form, 12000, 9000, 15360, 11520); }

  void ExpectPlace(const char* name, double left, double top, double width, double height) {
    SCOPED_TRACE(name);
    const Control& control = design.Find(name);
    EXPECT_EQ(control.Left(), left);
    EXPECT_EQ(control.Top(), top);
    EXPECT_EQ(control.Width(), width);
    EXPECT_EQ(control.Height(), height);
  }

  DesignForm design;
  FrmOrvendalciales& form = design.form();
};

TEST_F(ProportionalLayoutTest, LengthsAreCutToTheirWholePart) {
  // 0.78125 across and down.
  ExpectPlace("MSFProductos", 937, 1875, 10230, 4910);
  ExpectPlace("MSFProductos1", 937, 5437, 10230, 878);
  ExpectPlace("PicDatos", 0, 1031, 12000, 7500);
  ExpectPlace("CmdEmpl", 5140, 843, 386, 281);
  ExpectPlace("ScrollProductos", 0, 0, 12000, 292);
  ExpectPlace("BtnAnuloSuper", 8906, 750, 2167, 386);
  ExpectPlace("Shape1", 562, 1593, 10980, 5542);
  ExpectPlace("DivOrden", 187, 750, 11632, 386);
  ExpectPlace("DivGuardar(0)", 9890, 93, 1535, 574);
  ExpectPlace("LblGuardar(1)", 9843, 93, 1628, 574);
}

TEST_F(ProportionalLayoutTest, ABoxLoses30TwipsOfItsScaledHeight) {
  ExpectPlace("TxtEmpleado", 5515, 843, 2824, 251);
  ExpectPlace("TxtFechaHora", 1687, 843, 2074, 251);
  ExpectPlace("MkFecha", 1687, 843, 2074, 251);
  ExpectPlace("TxtMSF", 2812, 3093, 1417, 360);
}

TEST_F(ProportionalLayoutTest, AListKeepsTheHeightThatItsFontGivesIt) {
  ExpectPlace("CodigosaRecalcular", 187, 1312, 949, 315);
}

TEST_F(ProportionalLayoutTest, ANegativePlaceIsCutTowardsZero) {
  ExpectPlace("Calendario", -7, 0, 2765, 2671);
}

TEST_F(ProportionalLayoutTest, ThePanelOfTheCalendarTheTitleBarAndTheTimerStay) {
  ExpectPlace("PicCalendario", 2160, 1440, 3540, 3420);
  ExpectPlace("Barra1", 0, 0, 15360, 555);
  ExpectPlace("TimerCBarra", 120, 600, 0, 0);
}

TEST_F(ProportionalLayoutTest, HiddenControlsAreScaledLikeVisibleOnes) {
  ASSERT_FALSE(form.TxtCodigo.Visible());
  ExpectPlace("TxtCodigo", 6187, 562, 574, 192);
  EXPECT_EQ(form.TxtCodigo.Font().Size(), 7.25);
}

TEST_F(ProportionalLayoutTest, TheAlignedPanelTakesOnlyItsHeight) {
  ExpectPlace("PicServicios", 0, 555, 15360, 8570);
}

TEST_F(ProportionalLayoutTest, AnAutoSizeLabelFitsItselfToTheSmallerType) {
  EXPECT_EQ(form.LblDatos.Left(), 1031);
  EXPECT_EQ(form.LblDatos.Top(), 351);
  EXPECT_EQ(form.LblDatos.Width(),
            form.Host().TextWidth({"Bookman Old Style", 10, 600, false}, "  Datos de Interés  "));
}

TEST_F(ProportionalLayoutTest, FontsTakeTheirFixedStepByKind) {
  const std::map<std::string, double> sizes = {
      {"LblEntrada", 10},     {"LblSucursal", 10},   {"LblFecha", 7.75},        {"LblSupervisor", 10},
      {"LblNuevo(0)", 12.25}, {"LblNuevo(1)", 6.25}, {"LblCancelar(1)", 6.25},  {"TxtEmpleado", 8.75},
      {"TxtMSF", 8.75},       {"MkFecha", 8.75},     {"TxtCodigo", 7.25},       {"CodigosaRecalcular", 7.25},
      {"BtnAnuloSuper", 10},  {"CmdEmpl", 9.75},     {"MSFProductos", 9.75},    {"MSFProductos1", 9.75},
      {"Calendario", 12},     {"PicDatos", 8.25},    {"ScrollProductos", 8.25}, {"Barra1", 8.25}};
  for (const auto& [name, size] : sizes) EXPECT_EQ(design.Find(name).Font().Size(), size) << name;
}

TEST_F(ProportionalLayoutTest, EveryMemberOfAnArrayIsHandledOnce) {
  for (const std::string action : {"Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"}) {
    EXPECT_EQ(design.Find("Lbl" + action + "(0)").Font().Size(), 12.25) << action;
    EXPECT_EQ(design.Find("Lbl" + action + "(1)").Font().Size(), 6.25) << action;
    EXPECT_EQ(design.Find("Div" + action + "(0)").Height(), 574) << action;
    EXPECT_EQ(design.Find("Div" + action + "(1)").Height(), 445) << action;
  }
}

TEST(ProportionalLayoutUpwardsTest, ALargerDisplayGetsSmallerTypeToo) {
  DesignForm design;
  EscalarControles(design.form(), 30720, 23040, 15360, 11520);
  EXPECT_EQ(design.form().LblEntrada.Font().Size(), 10);
  EXPECT_EQ(design.form().TxtEmpleado.Font().Size(), 8.75);
  EXPECT_EQ(design.form().TxtEmpleado.Height(), 690);
  EXPECT_EQ(design.form().MSFProductos.Left(), 2400);
  EXPECT_EQ(design.form().Calendario.Left(), -20);
}

TEST(ProportionalLayoutUpwardsTest, AcrossAndDownScaleByTheirOwnRatios) {
  DesignForm design;
  EscalarControles(design.form(), 15360, 5760, 15360, 11520);
  EXPECT_EQ(design.form().MSFProductos.Left(), 1200);
  EXPECT_EQ(design.form().MSFProductos.Width(), 13095);
  EXPECT_EQ(design.form().MSFProductos.Top(), 1200);
  EXPECT_EQ(design.form().MSFProductos.Height(), 3142);
}

TEST(ProportionalLayoutUpwardsTest, ASizeThatAControlRefusesStopsTheScaling) {
  DesignForm design;
  design.form().TxtCodigo.Height(20);
  EXPECT_EQ(ErrorOf([&] { EscalarControles(design.form(), 15360, 11520, 15360, 11520); }), 380);
}

TEST(ProportionalLayoutUpwardsTest, AnOriginOfZeroIsADivisionByZero) {
  DesignForm design;
  EXPECT_EQ(ErrorOf([&] { EscalarControles(design.form(), 12000, 9000, 0, 11520); }), 11);
  EXPECT_EQ(ErrorOf([&] { EscalarControles(design.form(), 12000, 9000, 15360, 0); }), 11);
}

// Kinds that the screen has none of today.
class LineForm final : public Form {
 public:
  explicit LineForm(WindowHost& host) : Form(host, "FrmLine") {}
  Line line{*this, nullptr, "Linea"};
  OptionButton option{*this, nullptr, "Opcion"};
};

TEST(ProportionalLayoutKindsTest, LinesMoveByTheirEndsAndOptionsLikeLabels) {
  FixedClock clock{Date(2026, 11, 16)};
  HeadlessHost host(Region::Spanish(), clock);
  const auto form = std::make_shared<LineForm>(host);
  form->Load();
  form->line.X1(100);
  form->line.X2(1001);
  form->line.Y1(30);
  form->line.Y2(-55);
  form->option.Move(10, 20, 101, 33);
  EscalarControles(*form, 50, 10, 100, 100);
  EXPECT_EQ(form->line.X1(), 50);
  EXPECT_EQ(form->line.X2(), 500);
  EXPECT_EQ(form->line.Y1(), 3);
  EXPECT_EQ(form->line.Y2(), -5);
  EXPECT_EQ(form->option.Left(), 5);
  EXPECT_EQ(form->option.Width(), 50);
  EXPECT_EQ(form->option.Height(), 3);
  EXPECT_EQ(form->option.Font().Size(), 6.25);
}

TEST(ProportionalLayoutKindsTest, TheProductIsMadeBeforeTheQuotient) {
  FixedClock clock{Date(2026, 11, 16)};
  HeadlessHost host(Region::Spanish(), clock);
  const auto form = std::make_shared<LineForm>(host);
  form->Load();
  // 49 times a 49th falls short of 1 where the quotient comes first.
  form->option.Move(49, 49, 49, 49);
  EscalarControles(*form, 1, 1, 49, 49);
  EXPECT_EQ(form->option.Left(), 1);
  EXPECT_EQ(form->option.Top(), 1);
  EXPECT_EQ(form->option.Width(), 1);
  EXPECT_EQ(form->option.Height(), 1);
}

}  // namespace
}  // namespace orvendal
