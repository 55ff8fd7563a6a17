#include "form/flag_scope.h"
#include "form/frm_orvendalciales.h"
#include "screen/palette.h"

namespace orvendal {

void FrmOrvendalciales::MkFecha_GotFocus() {
  MkFecha.BackColor(palette::kDarkSand);
  if (TxtEmpleado.Text().empty()) return;
  if (!PicCalendario.Visible()) {
    PicCalendario.Visible(true);
    Calendario.Visible(true);
    Calendario.SetFocus();
  } else {
    PicCalendario.Visible(false);
  }
}

void FrmOrvendalciales::MkFecha_KeyPress(int& KeyAscii) {
  if (KeyAscii == character::kEnter) FocusEditorOrGrid();
}

void FrmOrvendalciales::FocusEditorOrGrid() {
  if (TxtMSF.Visible()) {
    TxtMSF.SetFocus();
  } else {
    MSFProductos.SetFocus();
  }
}

void FrmOrvendalciales::MkFecha_LostFocus() {
  MkFecha.BackColor(palette::kWhite);
}
void FrmOrvendalciales::TxtFechaHora_GotFocus() {
  TxtFechaHora.BackColor(palette::kDarkSand);
}
void FrmOrvendalciales::TxtFechaHora_LostFocus() {
  TxtFechaHora.BackColor(palette::kWhite);
}
void FrmOrvendalciales::Calendario_DblClick() {
  PicCalendario.Visible(false);
}
void FrmOrvendalciales::Calendario_LostFocus() {
  PicCalendario.Visible(false);
}

void FrmOrvendalciales::Calendario_KeyPress(int& KeyAscii) {
  if (KeyAscii != character::kEnter && KeyAscii != character::kEscape) return;
  PicCalendario.Visible(false);
  FocusEditorOrGrid();
}

// The calendar is on the new day already, while MkFecha still shows the day that the lines belong to: a save
// asked for here writes the old day.
void FrmOrvendalciales::Calendario_SelChange(Date /*StartDate*/, Date /*EndDate*/, bool& Cancel) {
  if (!PicCalendario.Visible() && !variables.FlagSupervisor) return;
  const std::int32_t answer = HayCambios() ? AskToSave() : 0;
  if (answer == message::kCancel) {
    Cancel = true;
    return;
  }
  const Date day_of_lines = variables.day_of_lines;
  if (answer == message::kYes) {
    const FlagScope changing_date(variables.FlagFechaCambio);
    LblGuardar_Click(0);
  }
  const std::string old_day = MkFecha.Text();
  MkFecha.Text(FormatoFecha(TextOf(Calendario.Value())));
  variables.FlagSupervisor = false;
  try {
    CargarExistencias();
  } catch (const RuntimeError&) {
    MkFecha.Text(old_day);  // there is no new day; the calendar goes back too
    // The save before ended with a load of the new day, so the lines are not those of the day that shows
    // again.
    if (variables.day_of_lines != day_of_lines) variables.lines_not_whole = true;
    throw;
  }
}

}  // namespace orvendal
