#include "screen/control_catalogue.h"

#include <stdexcept>

#include "platform/forms/barra.h"
#include "platform/forms/boton.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/h_scroll_bar.h"
#include "platform/forms/label.h"
#include "platform/forms/month_view.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/picture_box.h"
#include "platform/forms/shape.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"
#include "screen/background_bitmap.h"
#include "screen/palette.h"

namespace orvendal {
namespace {

using Kind = ControlKind;

constexpr const char* kServices = "PicServicios";
constexpr const char* kData = "PicDatos";

FontSpec Bookman(double points, bool italic = false) {
  return {"Bookman Old Style", points, 600, italic};
}
FontSpec TextFont() {
  return Bookman(9.75);
}
FontSpec TitleFont() {
  return Bookman(12);
}

template <typename Type>
Type& As(Control& control) {
  return static_cast<Type&>(control);
}

void Hide(Control& control) {
  control.Visible(false);
}

void DesignTitleBar(Control& control) {
  control.Align(AlignMode::kTop);
  As<Barra>(control).StoredProperties(
      {{"_extentx", 27093}, {"_extenty", 979}, {"caption", std::string("Orvendal")}});
}

void DesignPanel(Control& control, ColorWord back_color) {
  control.BackColor(back_color);
  control.ForeColor(system_color::kWindowText);
  control.Appearance(Appearance::kFlat);
}

void DesignServices(Control& control) {
  DesignPanel(control, system_color::kWindowBackground);
  As<PictureBox>(control).Picture(BackgroundBitmap());
  control.Align(AlignMode::kTop);
}

void DesignData(Control& control) {
  DesignPanel(control, palette::kSand);
}

void DesignCalendarPanel(Control& control) {
  DesignPanel(control, system_color::kWindowBackground);
  Hide(control);
}

void DesignEmployeeButton(Control& control) {
  As<CommandButton>(control).Caption("...");
  As<CommandButton>(control).Style(1);
  control.BackColor(palette::kDarkSand);
  control.Font().Spec(TextFont());
}

void DesignTimer(Control& control) {
  As<Timer>(control).Enabled(false);
  As<Timer>(control).Interval(1000);
}

void DesignFlatBox(Control& control) {
  control.Appearance(Appearance::kFlat);
}

void DesignEditor(Control& control) {
  DesignFlatBox(control);
  control.Font().Spec(TextFont());
}

void DesignLockedBox(Control& control) {
  DesignEditor(control);
  As<TextBox>(control).Locked(true);
}

void DesignDateBox(Control& control) {
  DesignLockedBox(control);
  As<TextBox>(control).Alignment(HorizontalAlign::kCenter);
}

void DesignHiddenDateBox(Control& control) {
  DesignDateBox(control);
  Hide(control);
}

void DesignHiddenFlatBox(Control& control) {
  DesignFlatBox(control);
  Hide(control);
}

void DesignCalendar(Control& control) {
  auto& calendar = As<MonthView>(control);
  calendar.MinDate(Date(1753, 1, 1));
  calendar.MaxDate(Date(9999, 12, 31));
  calendar.MonthBackColor(palette::kPeriwinkle);
  calendar.Font().Spec({"MS Sans Serif", 12, 400, false});
  calendar.Value(Date(2003, 7, 4));
}

void DesignScrollBar(Control& control) {
  auto& bar = As<HScrollBar>(control);
  bar.Max(1);
  bar.Min(1);
  bar.Value(1);
}

void DesignGrid(MSFlexGrid& grid, ColorWord title_color, ColorWord selection_color) {
  grid.FixedCols(0);
  grid.Rows(2);
  grid.Cols(3);
  grid.FixedRows(1);
  grid.BackColor(palette::kSand);
  grid.ForeColor(system_color::kWindowText);
  grid.BackColorFixed(title_color);
  grid.ForeColorFixed(system_color::kButtonText);
  grid.BackColorSel(selection_color);
  grid.ForeColorSel(system_color::kHighlightText);
  grid.BackColorBkg(palette::kDarkSand);
  grid.Font().Spec(TextFont());
  grid.RowHeightMin(300);
  grid.TabStop(false);
}

void DesignSnapshotGrid(Control& control) {
  DesignGrid(As<MSFlexGrid>(control), palette::kPeriwinkle, palette::kDarkSand);
  Hide(control);
}

void DesignLineGrid(Control& control) {
  DesignGrid(As<MSFlexGrid>(control), palette::kDarkSand, palette::kPeriwinkle);
}

void DesignLeaveSupervisor(Control& control) {
  As<Boton>(control).StoredProperties({{"_extentx", 4895},
                                       {"_extenty", 873},
                                       {"tamañoborde", std::string("1")},
                                       {"caption", std::string("Anulo Supervisor")},
                                       {"font", TitleFont()}});
  Hide(control);
}

void DesignTitle(Control& control) {
  control.BackColor(palette::kSand);
  control.ForeColor(palette::kMaroon);
  control.Font().Spec(TitleFont());
  As<Label>(control).Design("", true, true);
}

void DesignFieldLabel(Control& control) {
  control.BackColor(palette::kLavender);
  control.ForeColor(system_color::kWindowText);
  control.BorderStyle(1);
  control.Appearance(Appearance::kFlat);
  control.Font().Spec(TextFont());
  As<Label>(control).Design("", false, true);
}

void DesignGroupFrame(Control& control) {
  As<Shape>(control).BorderColor(palette::kMaroon);
  As<Shape>(control).BorderWidth(2);
}

void DesignMark(Control& control) {
  control.ForeColor(palette::kMaroon);
  control.Font().Spec(Bookman(12, true));
  As<Label>(control).Design("", true, false);
  Hide(control);
}

void DesignBar(Control& control) {
  auto& shape = As<Shape>(control);
  shape.FormOfShape(ShapeForm::kRoundedRectangle);
  shape.BackColor(palette::kLavender);
  shape.BorderColor(palette::kBlack);
  shape.Opaque(true);
}

void DesignClickArea(Control& control) {
  As<Label>(control).Design("", false, false);
}

void DesignCaption(Control& control) {
  control.Font().Spec(Bookman(14.25));
  As<Label>(control).Design("", true, false);
}

void DesignRim(Control& control) {
  auto& shape = As<Shape>(control);
  shape.FormOfShape(ShapeForm::kRoundedRectangle);
  shape.BorderColor(palette::kButtonRim);
  shape.BorderWidth(3);
  shape.Opaque(true);
}

void DesignFace(Control& control) {
  auto& shape = As<Shape>(control);
  shape.FormOfShape(ShapeForm::kRoundedRectangle);
  shape.BackColor(palette::kButtonFace);
  shape.BorderColor(palette::kButtonFace);
  shape.Opaque(true);
}

constexpr CatalogueRow kRows[] = {
    {"Barra1", -1, Kind::kBarra, "", {0, 0, 15360, 555}, -1, DesignTitleBar},
    {"PicServicios", -1, Kind::kPictureBox, "", {0, 555, 15360, 10970}, 0, DesignServices},
    {"PicDatos", -1, Kind::kPictureBox, kServices, {0, 1320, 15360, 9600}, 1, DesignData},
    {"CodigosaRecalcular", -1, Kind::kComboBox, kData, {240, 1680, 1215, 315}, 30, Hide},
    {"CmdEmpl", -1, Kind::kCommandButton, kData, {6580, 1080, 495, 360}, 29, DesignEmployeeButton},
    {"TimerCBarra", -1, Kind::kTimer, kData, {120, 600, 0, 0}, -1, DesignTimer},
    {"TxtEmpleado", -1, Kind::kTextBox, kData, {7060, 1080, 3615, 360}, 27, DesignLockedBox},
    {"PicCalendario", -1, Kind::kPictureBox, kData, {2160, 1440, 3540, 3420}, 4, DesignCalendarPanel},
    {"Calendario", -1, Kind::kMonthView, "PicCalendario", {-10, 0, 3540, 3420}, 5, DesignCalendar},
    {"TxtCodigo", -1, Kind::kTextBox, kData, {7920, 720, 735, 285}, 9, DesignHiddenFlatBox},
    {"ScrollProductos", -1, Kind::kHScrollBar, kData, {0, 0, 15360, 375}, 8, DesignScrollBar},
    {"TxtMSF", -1, Kind::kTextBox, kData, {3600, 3960, 1815, 500}, 7, DesignEditor},
    {"MkFecha", -1, Kind::kTextBox, kData, {2160, 1080, 2655, 360}, 3, DesignHiddenDateBox},
    {"TxtFechaHora", -1, Kind::kTextBox, kData, {2160, 1080, 2655, 360}, 2, DesignDateBox},
    {"MSFProductos1", -1, Kind::kMSFlexGrid, kData, {1200, 6960, 13095, 1125}, 6, DesignSnapshotGrid},
    {"MSFProductos", -1, Kind::kMSFlexGrid, kData, {1200, 2400, 13095, 6285}, 10, DesignLineGrid},
    {"BtnAnuloSuper", -1, Kind::kBoton, kData, {11400, 960, 2775, 495}, 28, DesignLeaveSupervisor},
    {"LblEntrada", -1, Kind::kLabel, kData, {1320, 1890, 2835, 285}, 11, DesignTitle, "  Orvendal  "},
    {"LblSucursal", -1, Kind::kLabel, kData, {11280, 450, 2805, 285}, 12, DesignTitle},
    {"LblDatos", -1, Kind::kLabel, kData, {1320, 450, 2280, 285}, 13, DesignTitle, "  Datos de Interés  "},
    {"Shape1", -1, Kind::kShape, kData, {720, 2040, 14055, 7095}, -1, DesignGroupFrame},
    {"LblFecha", -1, Kind::kLabel, kData, {1200, 1080, 1065, 360}, 15, DesignFieldLabel, " Fecha: "},
    {"LblEmpleado", -1, Kind::kLabel, kData, {5280, 1080, 1300, 360}, 14, DesignFieldLabel, " Estilista:"},
    {"DivCliente", -1, Kind::kShape, kData, {720, 600, 14055, 1095}, -1, DesignGroupFrame},
    {"LblGuardar", 1, Kind::kLabel, kServices, {12600, 120, 2085, 735}, 19, DesignClickArea, "Label4"},
    {"LblBorrar", 1, Kind::kLabel, kServices, {9600, 120, 2085, 735}, 20, DesignClickArea, "Label4"},
    {"LblNuevo", 1, Kind::kLabel, kServices, {720, 120, 1965, 735}, 21, DesignClickArea, "Label4"},
    {"LblSupervisor", -1, Kind::kLabel, kServices, {6960, 1005, 1380, 285}, 16, DesignMark, "Supervisor"},
    {"LblCancelar", 0, Kind::kLabel, kServices, {6960, 300, 1275, 330}, 26, DesignCaption, "Cancelar"},
    {"LblGuardar", 0, Kind::kLabel, kServices, {13065, 300, 1185, 330}, 25, DesignCaption, "Guardar"},
    {"LblBorrar", 0, Kind::kLabel, kServices, {9720, 300, 1845, 330}, 24, DesignCaption, "Borrar Línea"},
    {"LblBuscar", 0, Kind::kLabel, kServices, {4065, 300, 1005, 330}, 23, DesignCaption, "Buscar"},
    {"LblNuevo", 0, Kind::kLabel, kServices, {960, 300, 1560, 330}, 22, DesignCaption, "Supervisor"},
    {"DivOrden", -1, Kind::kShape, kServices, {240, 960, 14890, 495}, -1, DesignBar},
    {"LblCancelar", 1, Kind::kLabel, kServices, {6600, 120, 1965, 735}, 18, DesignClickArea, "Label4"},
    {"LblBuscar", 1, Kind::kLabel, kServices, {3600, 120, 1965, 735}, 17, DesignClickArea, "Label4"},
    {"DivNuevo", 1, Kind::kShape, kServices, {810, 210, 1785, 570}, -1, DesignFace},
    {"DivNuevo", 0, Kind::kShape, kServices, {720, 120, 1965, 735}, -1, DesignRim},
    {"DivBuscar", 1, Kind::kShape, kServices, {3690, 210, 1785, 570}, -1, DesignFace},
    {"DivBuscar", 0, Kind::kShape, kServices, {3600, 120, 1965, 735}, -1, DesignRim},
    {"DivCancelar", 1, Kind::kShape, kServices, {6690, 210, 1785, 570}, -1, DesignFace},
    {"DivCancelar", 0, Kind::kShape, kServices, {6600, 120, 1965, 735}, -1, DesignRim},
    {"DivBorrar", 1, Kind::kShape, kServices, {9690, 210, 1905, 570}, -1, DesignFace},
    {"DivBorrar", 0, Kind::kShape, kServices, {9600, 120, 2085, 735}, -1, DesignRim},
    {"DivGuardar", 1, Kind::kShape, kServices, {12750, 210, 1785, 570}, -1, DesignFace},
    {"DivGuardar", 0, Kind::kShape, kServices, {12660, 120, 1965, 735}, -1, DesignRim},
};

}  // namespace

std::string CatalogueRow::FullName() const {
  return index < 0 ? std::string(name) : std::string(name) + "(" + std::to_string(index) + ")";
}

std::span<const CatalogueRow> ControlCatalogue() {
  return kRows;
}

void ApplyCatalogue(Form& form) {
  form.Caption("Orvendal");
  form.BorderStyle(0);
  form.KeyPreview(true);
  form.StartUpPosition(3);
  form.Width(15360);
  form.Height(11520);
  for (const CatalogueRow& row : kRows) {
    Control* control = form.FindControl(row.FullName());
    if (control == nullptr || control->Kind() != row.kind)
      throw std::logic_error("the form lacks " + row.FullName());
    row.design(*control);
    if (row.caption != nullptr) {
      auto& label = As<Label>(*control);
      label.Design(row.caption, label.AutoSize(), label.Opaque());
    }
    control->Move(row.place.left, row.place.top, row.place.width, row.place.height);
    control->TabIndex(row.tab_index);
  }
}

}  // namespace orvendal
