#include "form/frm_orvendalciales.h"
#include "screen/palette.h"

namespace orvendal {

void FrmOrvendalciales::CmdEmpl_Click() {
  TxtEmpleado.Enabled(true);
  variables.CambiarEstilista = true;
  TxtEmpleado.SetFocus();
}

// The picker after its dialog, for its caller to read.
std::unique_ptr<SelectorEmpleado> FrmOrvendalciales::AbrirSelector(bool para_nuevo) {
  std::unique_ptr<SelectorEmpleado> picker = state_.environment.library.NewSelectorEmpleado();
  picker->ParaNuevo(para_nuevo);
  picker->Aceptado(false);
  picker->OpcionFija(true);
  picker->Nombre("");
  ConnectionRef connection = Session().Conexion;
  picker->Elegir(connection, Session().CodSucursal);
  Session().Conexion = connection;
  return picker;
}

void FrmOrvendalciales::TxtEmpleado_GotFocus() {
  TxtEmpleado.BackColor(palette::kDarkSand);
  if (!TxtEmpleado.Text().empty() && !variables.CambiarEstilista) {
    PicDatos.SetFocus();
    return;
  }
  const std::unique_ptr<SelectorEmpleado> picker = AbrirSelector(false);
  // A box that the button opened closes again whether the user chose or not.
  if (variables.CambiarEstilista) TxtEmpleado.Enabled(false);
  variables.CambiarEstilista = false;
  if (!picker->Aceptado()) {
    PicDatos.SetFocus();
    return;
  }
  TxtEmpleado.Text(picker->Nombre());
  TxtCodigo.Text(picker->Codigo());
  if (!TxtEmpleado.Text().empty()) TxtEmpleado.Enabled(false);
  PonerBotones(BotonesConLineas);
  MSFProductos.SetFocus();
}

// The focus on the box opens the picker.
void FrmOrvendalciales::RefuseBlankStylist() {
  Mostrar("El Estilista no puede estar en blanco", message::kStop, "Atención");
  TxtEmpleado.SetFocus();
}

// Nobody types into the box: it only triggers the picker.
void FrmOrvendalciales::TxtEmpleado_KeyPress(int& /*KeyAscii*/) {}
void FrmOrvendalciales::TxtEmpleado_LostFocus() {}

}  // namespace orvendal
