#include "form/frm_orvendalciales.h"

namespace orvendal {

void FrmOrvendalciales::Form_Activate() {
  GlobalForm()->SetFocus();
  if (variables.ModoNuevo) {
    Refresh();
    PonerBotones(BotonesBloqueados);
    TxtEmpleado.Enabled(false);
    MSFProductos.Enabled(false);
    TxtFechaHora.Enabled(false);
    return;
  }
  if (variables.PrimeraActivacion) {
    Refresh();
    variables.PrimeraActivacion = false;
  }
}

void FrmOrvendalciales::TimerCBarra_Timer() {
  variables.BufferTeclas = "";
  TimerCBarra.Enabled(false);
}

}  // namespace orvendal
