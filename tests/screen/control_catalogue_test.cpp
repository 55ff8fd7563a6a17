#include "screen/control_catalogue.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/design_form.h"

namespace orvendal {
namespace {

using testing_support::DesignForm;
using Kind = ControlKind;

struct Expected {
  const char* name;
  Kind kind;
  const char* container;
  double left, top, width, height;
  int tab_index;
};

// The design, typed from its description: creation order, place in twips, tab order.
const Expected kExpected[] = {
    {"Barra1", Kind::kBarra, "", 0, 0, 15360, 555, -1},
    {"PicServicios", Kind::kPictureBox, "", 0, 555, 15360, 10970, 0},
    {"PicDatos", Kind::kPictureBox, "PicServicios", 0, 1320, 15360, 9600, 1},
    {"CodigosaRecalcular", Kind::kComboBox, "PicDatos", 240, 1680, 1215, 315, 30},
    {"CmdEmpl", Kind::kCommandButton, "PicDatos", 6580, 1080, 495, 360, 29},
    {"TimerCBarra", Kind::kTimer, "PicDatos", 120, 600, 0, 0, -1},
    {"TxtEmpleado", Kind::kTextBox, "PicDatos", 7060, 1080, 3615, 360, 27},
    {"PicCalendario", Kind::kPictureBox, "PicDatos", 2160, 1440, 3540, 3420, 4},
    {"Calendario", Kind::kMonthView, "PicCalendario", -10, 0, 3540, 3420, 5},
    {"TxtCodigo", Kind::kTextBox, "PicDatos", 7920, 720, 735, 285, 9},
    {"ScrollProductos", Kind::kHScrollBar, "PicDatos", 0, 0, 15360, 375, 8},
    {"TxtMSF", Kind::kTextBox, "PicDatos", 3600, 3960, 1815, 500, 7},
    {"MkFecha", Kind::kTextBox, "PicDatos", 2160, 1080, 2655, 360, 3},
    {"TxtFechaHora", Kind::kTextBox, "PicDatos", 2160, 1080, 2655, 360, 2},
    {"MSFProductos1", Kind::kMSFlexGrid, "PicDatos", 1200, 6960, 13095, 1125, 6},
    {"MSFProductos", Kind::kMSFlexGrid, "PicDatos", 1200, 2400, 13095, 6285, 10},
    {"BtnAnuloSuper", Kind::kBoton, "PicDatos", 11400, 960, 2775, 495, 28},
    {"LblEntrada", Kind::kLabel, "PicDatos", 1320, 1890, 2835, 285, 11},
    {"LblSucursal", Kind::kLabel, "PicDatos", 11280, 450, 2805, 285, 12},
    {"LblDatos", Kind::kLabel, "PicDatos", 1320, 450, 2280, 285, 13},
    {"Shape1", Kind::kShape, "PicDatos", 720, 2040, 14055, 7095, -1},
    {"LblFecha", Kind::kLabel, "PicDatos", 1200, 1080, 1065, 360, 15},
    {"LblEmpleado", Kind::kLabel, "PicDatos", 5280, 1080, 1300, 360, 14},
    {"DivCliente", Kind::kShape, "PicDatos", 720, 600, 14055, 1095, -1},
    {"LblGuardar(1)", Kind::kLabel, "PicServicios", 12600, 120, 2085, 735, 19},
    {"LblBorrar(1)", Kind::kLabel, "PicServicios", 9600, 120, 2085, 735, 20},
    {"LblNuevo(1)", Kind::kLabel, "PicServicios", 720, 120, 1965, 735, 21},
    {"LblSupervisor", Kind::kLabel, "PicServicios", 6960, 1005, 1380, 285, 16},
    {"LblCancelar(0)", Kind::kLabel, "PicServicios", 6960, 300, 1275, 330, 26},
    {"LblGuardar(0)", Kind::kLabel, "PicServicios", 13065, 300, 1185, 330, 25},
    {"LblBorrar(0)", Kind::kLabel, "PicServicios", 9720, 300, 1845, 330, 24},
    {"LblBuscar(0)", Kind::kLabel, "PicServicios", 4065, 300, 1005, 330, 23},
    {"LblNuevo(0)", Kind::kLabel, "PicServicios", 960, 300, 1560, 330, 22},
    {"DivOrden", Kind::kShape, "PicServicios", 240, 960, 14890, 495, -1},
    {"LblCancelar(1)", Kind::kLabel, "PicServicios", 6600, 120, 1965, 735, 18},
    {"LblBuscar(1)", Kind::kLabel, "PicServicios", 3600, 120, 1965, 735, 17},
    {"DivNuevo(1)", Kind::kShape, "PicServicios", 810, 210, 1785, 570, -1},
    {"DivNuevo(0)", Kind::kShape, "PicServicios", 720, 120, 1965, 735, -1},
    {"DivBuscar(1)", Kind::kShape, "PicServicios", 3690, 210, 1785, 570, -1},
    {"DivBuscar(0)", Kind::kShape, "PicServicios", 3600, 120, 1965, 735, -1},
    {"DivCancelar(1)", Kind::kShape, "PicServicios", 6690, 210, 1785, 570, -1},
    {"DivCancelar(0)", Kind::kShape, "PicServicios", 6600, 120, 1965, 735, -1},
    {"DivBorrar(1)", Kind::kShape, "PicServicios", 9690, 210, 1905, 570, -1},
    {"DivBorrar(0)", Kind::kShape, "PicServicios", 9600, 120, 2085, 735, -1},
    {"DivGuardar(1)", Kind::kShape, "PicServicios", 12750, 210, 1785, 570, -1},
    {"DivGuardar(0)", Kind::kShape, "PicServicios", 12660, 120, 1965, 735, -1},
};

class ControlCatalogueTest : public testing::Test {
 protected:
  DesignForm design;
};

TEST_F(ControlCatalogueTest, ThereAre46Controls) {
  EXPECT_EQ(design.form().Controls().size(), 46U);
  EXPECT_EQ(ControlCatalogue().size(), 46U);
  EXPECT_EQ(std::size(kExpected), 46U);
}

TEST_F(ControlCatalogueTest, TheyWereMadeInTheirOrder) {
  const std::vector<Control*>& controls = design.form().Controls();
  for (std::size_t i = 0; i < std::size(kExpected); ++i) {
    EXPECT_EQ(controls[i]->FullName(), kExpected[i].name);
    EXPECT_EQ(ControlCatalogue()[i].FullName(), kExpected[i].name);
  }
}

TEST_F(ControlCatalogueTest, EachStandsWhereItWasDesigned) {
  for (const Expected& expected : kExpected) {
    SCOPED_TRACE(expected.name);
    const Control& control = design.Find(expected.name);
    EXPECT_EQ(control.Kind(), expected.kind);
    const std::string container = control.Container() == nullptr ? "" : control.Container()->FullName();
    EXPECT_EQ(container, expected.container);
    EXPECT_EQ(control.Left(), expected.left);
    EXPECT_EQ(control.Top(), expected.top);
    EXPECT_EQ(control.Width(), expected.width);
    EXPECT_EQ(control.Height(), expected.height);
    EXPECT_EQ(control.TabIndex(), expected.tab_index);
  }
}

TEST_F(ControlCatalogueTest, TheTabOrderRunsFrom0To30WithoutAGap) {
  std::set<int> indexes;
  for (const Control* control : design.form().Controls()) {
    if (control->TabIndex() >= 0) {
      EXPECT_TRUE(indexes.insert(control->TabIndex()).second) << control->FullName();
    }
  }
  EXPECT_EQ(indexes.size(), 31U);
  EXPECT_EQ(*indexes.begin(), 0);
  EXPECT_EQ(*indexes.rbegin(), 30);
}

TEST_F(ControlCatalogueTest, MembersOfArraysKnowTheirPlainNameAndIndex) {
  const Control& control = design.Find("LblNuevo(1)");
  EXPECT_EQ(control.Name(), "LblNuevo");
  EXPECT_EQ(control.Index(), 1);
  EXPECT_EQ(design.Find("Barra1").Index(), -1);
}

TEST_F(ControlCatalogueTest, TheForm) {
  const FrmOrvendalciales& form = design.form();
  EXPECT_EQ(form.Name(), "FrmOrvendalciales");
  EXPECT_EQ(form.Caption(), "Orvendal");
  EXPECT_EQ(form.BorderStyle(), 0);
  EXPECT_TRUE(form.KeyPreview());
  EXPECT_EQ(form.Left(), 0);
  EXPECT_EQ(form.Top(), 0);
  EXPECT_EQ(form.Width(), 15360);
  EXPECT_EQ(form.Height(), 11520);
  EXPECT_EQ(form.StartUpPosition(), 3);
}

TEST_F(ControlCatalogueTest, OnlyTheseAreHiddenOrDisabledByDesign) {
  const std::set<std::string> hidden = {"CodigosaRecalcular", "PicCalendario", "TxtCodigo",    "MkFecha",
                                        "MSFProductos1",      "BtnAnuloSuper", "LblSupervisor"};
  for (const Control* control : design.form().Controls()) {
    SCOPED_TRACE(control->FullName());
    EXPECT_EQ(control->Visible(), hidden.count(control->FullName()) == 0);
    EXPECT_EQ(control->Enabled(), control->FullName() != "TimerCBarra");
  }
}

TEST_F(ControlCatalogueTest, TheGridsAreNoTabStops) {
  EXPECT_FALSE(design.form().MSFProductos.TabStop());
  EXPECT_FALSE(design.form().MSFProductos1.TabStop());
  for (const char* stop : {"PicServicios", "PicDatos", "TxtMSF", "TxtEmpleado", "CmdEmpl", "TxtFechaHora"}) {
    EXPECT_TRUE(design.Find(stop).TabStop()) << stop;
  }
}

TEST_F(ControlCatalogueTest, OnlyBarAndPanelAreAligned) {
  for (const Control* control : design.form().Controls()) {
    const bool aligned = control->FullName() == "Barra1" || control->FullName() == "PicServicios";
    EXPECT_EQ(control->Align(), aligned ? AlignMode::kTop : AlignMode::kNone) << control->FullName();
  }
}

}  // namespace
}  // namespace orvendal
