#include "form/frm_orvendalciales.h"

namespace orvendal {

void FrmOrvendalciales::LblNuevo_Click(int /*Index*/) {
  TxtEmpleado.Enabled(true);
  const std::unique_ptr<SelectorEmpleado> picker = AbrirSelector(true);
  if (!picker->Aceptado()) return;
  TxtEmpleado.Text(picker->Nombre());
  TxtCodigo.Text(picker->Codigo());
  if (!TxtEmpleado.Text().empty()) TxtEmpleado.Enabled(false);
  CmdEmpl.Enabled(false);
  TxtFechaHora.Visible(false);
  MkFecha.Visible(true);
  TxtMSF.Text("");
  BtnAnuloSuper.Visible(true);
  TxtMSF.Visible(false);
  TxtEmpleado.Text(picker->Nombre());  // a second time, as it stands
  MSFProductos.SetFocus();
  PonerBotones(BotonesEnReposo);
  LblSupervisor.Visible(true);
  PonerBotones(BotonesConLineas);  // this one decides
}

void FrmOrvendalciales::BtnAnuloSuper_Click() {
  variables.FlagSupervisor = true;
  const Date kept_day = Calendario.Value();
  const auto stay = [this, kept_day] {
    variables.FlagSupervisor = false;
    Calendario.Value(kept_day);
    MkFecha.Text(FormatoFecha(TextOf(kept_day)));
    TxtFechaHora.Text(MkFecha.Text());
  };
  Calendario.Value(Host().SystemClock().Today());
  bool cancel = false;
  try {
    const Date today = Host().SystemClock().Today();
    Calendario_SelChange(today, today, cancel);
  } catch (const RuntimeError&) {
    stay();  // an error on the way out leaves the mode as a Cancel does
    throw;
  }
  // The flag falls only when the change of date was carried out.
  if (variables.FlagSupervisor) {
    stay();
    return;
  }
  TxtFechaHora.Text(FormatoFecha(TextOf(Host().SystemClock().Today())));
  MkFecha.Text(TxtFechaHora.Text());
  ShowNormalMode();
  ShowNormalMode();  // a second time, as it stands
  TxtEmpleado.Text("");
  TxtCodigo.Text("");
  TxtMSF.Visible(false);
  TxtMSF.Text("");
  PonerBotones(BotonesSoloCancelar);
  Host().DoEvents();
}

void FrmOrvendalciales::ShowNormalMode() {
  TxtFechaHora.Visible(true);
  LblSupervisor.Visible(false);
  MkFecha.Visible(false);
  Calendario.Visible(false);
  BtnAnuloSuper.Visible(false);
  CmdEmpl.Enabled(true);
}

}  // namespace orvendal
