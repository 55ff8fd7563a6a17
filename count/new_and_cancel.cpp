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

void FrmOrvendalciales::LblCancelar_Click(int /*Index*/) {
  TxtMSF.Visible(false);
  if (!TxtEmpleado.Text().empty()) PonerBotones(BotonesConLineas);
  CargarExistencias();
}

// Nobody calls it; it stands ready.
void FrmOrvendalciales::LimpiarCabecera() {
  TxtCodigo.Text("");
  MkFecha.Text("");
  TxtEmpleado.Text("");
}

}  // namespace orvendal
