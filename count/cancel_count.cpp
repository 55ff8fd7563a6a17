#include "form/frm_orvendalciales.h"

namespace orvendal {

void FrmOrvendalciales::LblCancelar_Click(int /*Index*/) {
  TxtMSF.Visible(false);
  if (!TxtEmpleado.Text().empty()) PonerBotones(BotonesConLineas);
  CargarExistencias();
}

// Part of the form as declared; nothing calls it.
void FrmOrvendalciales::LimpiarCabecera() {
  TxtCodigo.Text("");
  MkFecha.Text("");
  TxtEmpleado.Text("");
}

}  // namespace orvendal
