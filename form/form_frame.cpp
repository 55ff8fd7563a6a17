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

void FrmOrvendalciales::Form_KeyDown(int& KeyCode, int /*Shift*/) {
  DatosComunes& session = Session();
  // The library works on a copy, which is taken over only if it did not fail.
  if (KeyCode == key::kF1) {
    ConnectionRef connection = session.Conexion;
    state_.globals.HerramientasGlobal().AccionPuesto(connection, session.CodPuesto);
    session.Conexion = connection;
  } else if (KeyCode == key::kF2) {
    ConnectionRef connection = session.Conexion;
    std::int32_t ignored = 0;
    state_.globals.CambioSesionGlobal().AbrirCambio(connection, session.DatoPantalla, session.CodSucursal,
                                                    session.CodPuesto, session.CodTurno, session.AnchoBase,
                                                    session.AltoBase, ignored);
    session.Conexion = connection;
  }
}

void FrmOrvendalciales::Barra1_Minimizar() {
  GlobalForm()->WindowState(WindowState::kMinimized);
}

void FrmOrvendalciales::Barra1_Cerrar() {
  if (IsEditingQuantity()) {
    CommitQuantity();
    TxtMSF.Visible(false);
    TxtMSF.Text("");
  }
  const std::int32_t answer = HayCambios() ? AskToSave() : 0;
  if (answer == message::kCancel) return;
  // Whatever becomes of the save, the form goes.
  if (answer == message::kYes) LblGuardar_Click(0);
  orvendal::Unload(GlobalForm());
}

void FrmOrvendalciales::Form_Unload(int& /*Cancel*/) {
  ObjectRef form = state_.form;
  state_.globals.HerramientasGlobal().LiberarForm(form);
  TakeGlobalForm(form);
  std::erase(state_.unnamed_forms, shared_from_this());
}

void FrmOrvendalciales::TimerCBarra_Timer() {
  variables.BufferTeclas = "";
  TimerCBarra.Enabled(false);
}

}  // namespace orvendal
