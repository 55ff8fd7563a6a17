#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "tests/support/design_form.h"

namespace orvendal {
namespace {

using testing_support::DesignForm;

const FontSpec kTextFont = {"Bookman Old Style", 9.75, 600, false};
const FontSpec kTitleFont = {"Bookman Old Style", 12, 600, false};
const FontSpec kNoFontOfItsOwn = {"MS Sans Serif", 8.25, 400, false};
const char* const kActions[] = {"Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"};

class ControlLooksTest : public testing::Test {
 protected:
  Label& LabelOf(const std::string& name) { return dynamic_cast<Label&>(design.Find(name)); }
  Shape& ShapeOf(const std::string& name) { return dynamic_cast<Shape&>(design.Find(name)); }

  DesignForm design;
  FrmOrvendalciales& form = design.form();
};

TEST_F(ControlLooksTest, Panels) {
  EXPECT_EQ(form.PicServicios.BackColor(), 0x80000005U);
  EXPECT_EQ(form.PicServicios.ForeColor(), 0x80000008U);
  EXPECT_EQ(form.PicDatos.BackColor(), 0xD3E8E9U);
  EXPECT_EQ(form.PicDatos.ForeColor(), 0x80000008U);
  EXPECT_EQ(form.PicCalendario.BackColor(), 0x80000005U);
  EXPECT_EQ(form.PicCalendario.ForeColor(), 0x80000008U);
  for (const PictureBox* panel : {&form.PicServicios, &form.PicDatos, &form.PicCalendario}) {
    EXPECT_EQ(panel->Appearance(), Appearance::kFlat) << panel->Name();
  }
  EXPECT_EQ(form.PicDatos.Picture(), nullptr);
}

TEST_F(ControlLooksTest, TheBackgroundBitmap) {
  const std::shared_ptr<const Bitmap> picture = form.PicServicios.Picture();
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->width, 1149);
  EXPECT_EQ(picture->height, 770);
  EXPECT_EQ(picture->palette.size(), 85U);
  ASSERT_EQ(picture->pixels.size(), 1149U * 770U);
  std::vector<bool> used(85, false);
  for (const std::uint8_t pixel : picture->pixels) {
    ASSERT_LT(pixel, 85);
    used[pixel] = true;
  }
  EXPECT_EQ(std::count(used.begin(), used.end(), true), 85);
  std::set<std::array<int, 3>> colors;
  for (const Rgb& color : picture->palette) colors.insert({color.red, color.green, color.blue});
  EXPECT_EQ(colors.size(), 85U);
}

// The picture is put together from the sines of columns and rows, since that many sines would take longer
// than all the rest of the start; it shows the waves that it is to show, to the pixel.
TEST_F(ControlLooksTest, TheBackgroundShowsTheWavesOfEachOfItsPixels) {
  const Bitmap& picture = *form.PicServicios.Picture();
  const auto share = [](int from_edge, int fade) {
    const double part = std::min(1.0, static_cast<double>(from_edge) / fade);
    return part * part * (3 - 2 * part);
  };
  int different = 0;
  for (int y = 0; y < 770; y += 3) {
    for (int x = 0; x < 1149; ++x) {
      const double bend = 60.0 * std::sin(x / 210.0) + 18.0 * std::sin(x / 67.0);
      const double strand = std::sin((y + bend) / 23.0) * 0.6 + std::sin((y * 0.7 + bend * 1.6) / 71.0) * 0.4;
      const double shown = share(1148 - x, 380) * share(769 - y, 140);
      const long level = std::lround((strand + 1.0) / 2.0 * 84 * shown);
      if (picture.pixels[static_cast<std::size_t>(y) * 1149 + static_cast<std::size_t>(x)] != level)
        ++different;
    }
  }
  EXPECT_EQ(different, 0);
}

// Seen: on a wide display the background ended with a hard edge.
TEST_F(ControlLooksTest, OnAWideDisplayTheBackgroundFadesIntoTheSurfaceBehindIt) {
  const Bitmap& picture = *form.PicServicios.Picture();
  const Rgb surface = form.Host().Resolve(form.PicServicios.BackColor());
  const auto color_at = [&](int x, int y) {
    return picture.palette[picture.pixels[static_cast<std::size_t>(y) * 1149 + static_cast<std::size_t>(x)]];
  };
  for (int y = 0; y < 770; ++y) EXPECT_EQ(color_at(1148, y), surface) << y;
  for (int x = 0; x < 1149; ++x) EXPECT_EQ(color_at(x, 769), surface) << x;
  // Of the strip that shows above the panel no column differs much from the next one.
  const auto redness = [&](int x) {
    double sum = 0;
    for (int y = 0; y < 88; ++y) sum += color_at(x, y).red;
    return sum / 88;
  };
  int darkest = 255;
  for (int x = 0; x < 1148; ++x) {
    EXPECT_NEAR(redness(x), redness(x + 1), 2.5) << x;
    darkest = std::min(darkest, static_cast<int>(redness(x)));
  }
  EXPECT_LT(darkest, 225);
}

TEST_F(ControlLooksTest, Boxes) {
  for (const TextBox* box :
       {&form.TxtEmpleado, &form.TxtCodigo, &form.TxtMSF, &form.MkFecha, &form.TxtFechaHora}) {
    EXPECT_EQ(box->Appearance(), Appearance::kFlat) << box->Name();
    EXPECT_EQ(box->Text(), "") << box->Name();
  }
  for (const TextBox* box : {&form.TxtEmpleado, &form.TxtMSF, &form.MkFecha, &form.TxtFechaHora}) {
    EXPECT_EQ(box->Font().Spec(), kTextFont) << box->Name();
  }
  EXPECT_EQ(form.TxtCodigo.Font().Spec(), kNoFontOfItsOwn);
  for (const TextBox* box : {&form.TxtEmpleado, &form.MkFecha, &form.TxtFechaHora}) {
    EXPECT_TRUE(box->Locked()) << box->Name();
  }
  EXPECT_FALSE(form.TxtMSF.Locked());
  EXPECT_EQ(form.MkFecha.Alignment(), HorizontalAlign::kCenter);
  EXPECT_EQ(form.TxtFechaHora.Alignment(), HorizontalAlign::kCenter);
  EXPECT_EQ(form.TxtEmpleado.Alignment(), HorizontalAlign::kLeft);
}

TEST_F(ControlLooksTest, TheStylistsButton) {
  EXPECT_EQ(form.CmdEmpl.Caption(), "...");
  EXPECT_EQ(form.CmdEmpl.Style(), 1);
  EXPECT_EQ(form.CmdEmpl.BackColor(), 0xA5CACBU);
  EXPECT_EQ(form.CmdEmpl.Font().Spec(), kTextFont);
}

TEST_F(ControlLooksTest, TimerAndScrollBar) {
  EXPECT_FALSE(form.TimerCBarra.Enabled());
  EXPECT_EQ(form.TimerCBarra.Interval(), 1000);
  EXPECT_EQ(form.ScrollProductos.Min(), 1);
  EXPECT_EQ(form.ScrollProductos.Max(), 1);
  EXPECT_EQ(form.ScrollProductos.Value(), 1);
}

TEST_F(ControlLooksTest, TitleLabels) {
  for (Label* label : {&form.LblEntrada, &form.LblSucursal, &form.LblDatos}) {
    EXPECT_EQ(label->BackColor(), 0xD3E8E9U) << label->Name();
    EXPECT_EQ(label->ForeColor(), 0x000080U) << label->Name();
    EXPECT_TRUE(label->AutoSize()) << label->Name();
    EXPECT_TRUE(label->Opaque()) << label->Name();
    EXPECT_EQ(label->Font().Spec(), kTitleFont) << label->Name();
  }
  EXPECT_EQ(form.LblEntrada.Caption(), "  Orvendal  ");
  EXPECT_EQ(form.LblDatos.Caption(), "  Datos de Interés  ");
  EXPECT_EQ(form.LblSucursal.Caption(), "");
}

TEST_F(ControlLooksTest, FieldLabels) {
  for (Label* label : {&form.LblFecha, &form.LblEmpleado}) {
    EXPECT_EQ(label->BackColor(), 0xF8B7AFU) << label->Name();
    EXPECT_EQ(label->ForeColor(), 0x80000008U) << label->Name();
    EXPECT_EQ(label->BorderStyle(), 1) << label->Name();
    EXPECT_EQ(label->Appearance(), Appearance::kFlat) << label->Name();
    EXPECT_FALSE(label->AutoSize()) << label->Name();
    EXPECT_TRUE(label->Opaque()) << label->Name();
    EXPECT_EQ(label->Font().Spec(), kTextFont) << label->Name();
  }
  EXPECT_EQ(form.LblFecha.Caption(), " Fecha: ");
  EXPECT_EQ(form.LblEmpleado.Caption(), " Estilista:");
}

TEST_F(ControlLooksTest, TheSupervisorMark) {
  EXPECT_EQ(form.LblSupervisor.Caption(), "Supervisor");
  EXPECT_EQ(form.LblSupervisor.ForeColor(), 0x000080U);
  EXPECT_TRUE(form.LblSupervisor.AutoSize());
  EXPECT_FALSE(form.LblSupervisor.Opaque());
  EXPECT_EQ(form.LblSupervisor.Font().Spec(), (FontSpec{"Bookman Old Style", 12, 600, true}));
}

TEST_F(ControlLooksTest, Frames) {
  for (Shape* frame : {&form.Shape1, &form.DivCliente}) {
    EXPECT_EQ(frame->FormOfShape(), ShapeForm::kRectangle) << frame->Name();
    EXPECT_EQ(frame->BorderColor(), 0x000080U) << frame->Name();
    EXPECT_EQ(frame->BorderWidth(), 2) << frame->Name();
    EXPECT_FALSE(frame->Opaque()) << frame->Name();
  }
  EXPECT_EQ(form.DivOrden.FormOfShape(), ShapeForm::kRoundedRectangle);
  EXPECT_EQ(form.DivOrden.BackColor(), 0xF8B7AFU);
  EXPECT_EQ(form.DivOrden.BorderColor(), 0U);
  EXPECT_TRUE(form.DivOrden.Opaque());
}

TEST_F(ControlLooksTest, ActionButtons) {
  for (const std::string action : kActions) {
    SCOPED_TRACE(action);
    const Label& area = LabelOf("Lbl" + action + "(1)");
    EXPECT_EQ(area.Caption(), "Label4");
    EXPECT_FALSE(area.Opaque());
    EXPECT_FALSE(area.AutoSize());
    EXPECT_EQ(area.Font().Spec(), kNoFontOfItsOwn);

    const Label& caption = LabelOf("Lbl" + action + "(0)");
    EXPECT_FALSE(caption.Opaque());
    EXPECT_TRUE(caption.AutoSize());
    EXPECT_EQ(caption.Font().Spec(), (FontSpec{"Bookman Old Style", 14.25, 600, false}));

    const Shape& rim = ShapeOf("Div" + action + "(0)");
    EXPECT_EQ(rim.FormOfShape(), ShapeForm::kRoundedRectangle);
    EXPECT_TRUE(rim.Opaque());
    EXPECT_EQ(rim.BorderColor(), 0x800000U);
    EXPECT_EQ(rim.BorderWidth(), 3);
    EXPECT_EQ(rim.BackColor(), 0x80000005U);

    const Shape& face = ShapeOf("Div" + action + "(1)");
    EXPECT_EQ(face.FormOfShape(), ShapeForm::kRoundedRectangle);
    EXPECT_TRUE(face.Opaque());
    EXPECT_EQ(face.BackColor(), 0xE1C0B3U);
    EXPECT_EQ(face.BorderColor(), 0xE1C0B3U);
    EXPECT_EQ(face.BorderWidth(), 1);
  }
}

TEST_F(ControlLooksTest, CaptionsOfTheActionButtons) {
  EXPECT_EQ(form.LblNuevo_0.Caption(), "Supervisor");
  EXPECT_EQ(form.LblBuscar_0.Caption(), "Buscar");
  EXPECT_EQ(form.LblBorrar_0.Caption(), "Borrar Línea");
  EXPECT_EQ(form.LblGuardar_0.Caption(), "Guardar");
  EXPECT_EQ(form.LblCancelar_0.Caption(), "Cancelar");
}

TEST_F(ControlLooksTest, Grids) {
  for (MSFlexGrid* grid : {&form.MSFProductos, &form.MSFProductos1}) {
    SCOPED_TRACE(grid->Name());
    EXPECT_EQ(grid->Rows(), 2);
    EXPECT_EQ(grid->Cols(), 3);
    EXPECT_EQ(grid->FixedRows(), 1);
    EXPECT_EQ(grid->FixedCols(), 0);
    EXPECT_EQ(grid->BackColor(), 0xD3E8E9U);
    EXPECT_EQ(grid->ForeColor(), 0x80000008U);
    EXPECT_EQ(grid->ForeColorFixed(), 0x80000012U);
    EXPECT_EQ(grid->ForeColorSel(), 0x8000000EU);
    EXPECT_EQ(grid->BackColorBkg(), 0xA5CACBU);
    EXPECT_EQ(grid->Font().Spec(), kTextFont);
    EXPECT_EQ(grid->RowHeightMin(), 300);
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(grid->Col(), 0);
  }
  EXPECT_EQ(form.MSFProductos.BackColorFixed(), 0xA5CACBU);
  EXPECT_EQ(form.MSFProductos.BackColorSel(), 0xFFC0C0U);
  EXPECT_EQ(form.MSFProductos1.BackColorFixed(), 0xFFC0C0U);
  EXPECT_EQ(form.MSFProductos1.BackColorSel(), 0xA5CACBU);
}

TEST_F(ControlLooksTest, TheCalendar) {
  EXPECT_EQ(form.Calendario.MinDate(), Date(1753, 1, 1));
  EXPECT_EQ(form.Calendario.MaxDate(), Date(9999, 12, 31));
  EXPECT_EQ(form.Calendario.MonthBackColor(), 0xFFC0C0U);
  EXPECT_EQ(form.Calendario.Font().Spec(), (FontSpec{"MS Sans Serif", 12, 400, false}));
  EXPECT_EQ(form.Calendario.Value(), Date(2003, 7, 4));
}

template <typename Type>
void ExpectStored(const PropertyList& list, std::size_t place, const std::string& name, const Type& value) {
  ASSERT_LT(place, list.size());
  EXPECT_EQ(list[place].name, name);
  const Type* stored = std::get_if<Type>(&list[place].value);
  ASSERT_NE(stored, nullptr) << name;
  EXPECT_EQ(*stored, value) << name;
}

TEST_F(ControlLooksTest, StoredPropertiesOfTheMakersControls) {
  const PropertyList& bar = form.Barra1.StoredProperties();
  EXPECT_EQ(bar.size(), 3U);
  ExpectStored<std::int32_t>(bar, 0, "_extentx", 27093);
  ExpectStored<std::int32_t>(bar, 1, "_extenty", 979);
  ExpectStored<std::string>(bar, 2, "caption", "Orvendal");
  EXPECT_EQ(form.Barra1.Caption(), "Orvendal");

  const PropertyList& button = form.BtnAnuloSuper.StoredProperties();
  EXPECT_EQ(button.size(), 5U);
  ExpectStored<std::int32_t>(button, 0, "_extentx", 4895);
  ExpectStored<std::int32_t>(button, 1, "_extenty", 873);
  ExpectStored<std::string>(button, 2, "tamañoborde", "1");
  ExpectStored<std::string>(button, 3, "caption", "Anulo Supervisor");
  ExpectStored<FontSpec>(button, 4, "font", kTitleFont);
  EXPECT_EQ(form.BtnAnuloSuper.Caption(), "Anulo Supervisor");
  EXPECT_EQ(form.BtnAnuloSuper.Font().Spec(), kTitleFont);
}

TEST_F(ControlLooksTest, TheListOfCodesStartsEmpty) {
  EXPECT_EQ(form.CodigosaRecalcular.ListCount(), 0);
  EXPECT_EQ(form.CodigosaRecalcular.Text(), "");
}

}  // namespace
}  // namespace orvendal
