#include "form/frm_orvendalciales.h"

namespace orvendal {

void FrmOrvendalciales::BtnAnuloSuper_Click() {
  variables.FlagSupervisor = true;
  const Date kept_day = Calendario.Value();
  const auto stay = [this, kept_day] {
    Calendario.Value(kept_day);
    MkFecha.Text(FormatoFecha(TextOf(kept_day)));
    TxtFechaHora.Text(MkFecha.Text());
    variables.FlagSupervisor = false;
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
