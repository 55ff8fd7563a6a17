#include "form/frm_orvendalciales.h"
#include "screen/palette.h"

namespace orvendal {

void FrmOrvendalciales::WireFrame() {
  OnLoad = [this] { Form_Load(); };
  OnActivate = [this] { Form_Activate(); };
  OnKeyDown = [this](int& code, int shift) { Form_KeyDown(code, shift); };
  OnUnload = [this](int& cancel) { Form_Unload(cancel); };
  OnCloseRequest = [this] { Barra1_Cerrar(); };
  Barra1.OnMinimizar = [this] { Barra1_Minimizar(); };
  Barra1.OnCerrar = [this] { Barra1_Cerrar(); };
  TimerCBarra.OnTimer = [this] { TimerCBarra_Timer(); };
}

void FrmOrvendalciales::WireLines() {
  TxtMSF.OnGotFocus = [this] { TxtMSF_GotFocus(); };
  TxtMSF.OnKeyDown = [this](int& code, int shift) { TxtMSF_KeyDown(code, shift); };
  TxtMSF.OnKeyPress = [this](int& ascii) { TxtMSF_KeyPress(ascii); };
  MSFProductos.OnGotFocus = [this] { MSFProductos_GotFocus(); };
  MSFProductos.OnClick = [this] { MSFProductos_Click(); };
  MSFProductos.OnDblClick = [this] { MSFProductos_DblClick(); };
  MSFProductos.OnKeyPress = [this](int& ascii) { MSFProductos_KeyPress(ascii); };
  MSFProductos.OnMouseDown = [this](int button, int shift, double x, double y) {
    MSFProductos_MouseDown(button, shift, x, y);
  };
  MSFProductos.OnRowColChange = [this] { MSFProductos_RowColChange(); };
  MSFProductos.OnLeaveCell = [this] { MSFProductos_LeaveCell(); };
  MSFProductos.OnScroll = [this] { MSFProductos_Scroll(); };
  ScrollProductos.OnChange = [this] { ScrollProductos_Change(); };
  CmdEmpl.OnClick = [this] { CmdEmpl_Click(); };
  TxtEmpleado.OnGotFocus = [this] { TxtEmpleado_GotFocus(); };
  TxtEmpleado.OnKeyPress = [this](int& ascii) { TxtEmpleado_KeyPress(ascii); };
  TxtEmpleado.OnLostFocus = [this] { TxtEmpleado_LostFocus(); };
}

void FrmOrvendalciales::WireCount() {
  BtnAnuloSuper.OnClick = [this] { BtnAnuloSuper_Click(); };
  MkFecha.OnGotFocus = [this] { MkFecha_GotFocus(); };
  MkFecha.OnKeyPress = [this](int& ascii) { MkFecha_KeyPress(ascii); };
  MkFecha.OnLostFocus = [this] { MkFecha_LostFocus(); };
  TxtFechaHora.OnGotFocus = [this] { TxtFechaHora_GotFocus(); };
  TxtFechaHora.OnLostFocus = [this] { TxtFechaHora_LostFocus(); };
  Calendario.OnDblClick = [this] { Calendario_DblClick(); };
  Calendario.OnLostFocus = [this] { Calendario_LostFocus(); };
  Calendario.OnKeyPress = [this](int& ascii) { Calendario_KeyPress(ascii); };
  Calendario.OnSelChange = [this](Date start, Date end, bool& cancel) {
    Calendario_SelChange(start, end, cancel);
  };
}

void FrmOrvendalciales::WireActionBar() {
  using Handler = void (FrmOrvendalciales::*)(int index);
  const auto wire = [this](Label& caption, Label& click_area, Handler click) {
    for (Label* member : {&caption, &click_area}) {
      member->OnClick = [this, member, click] { (this->*click)(member->Index()); };
      WirePressLook(*member, caption);
    }
  };
  wire(LblNuevo_0, LblNuevo_1, &FrmOrvendalciales::LblNuevo_Click);
  wire(LblBuscar_0, LblBuscar_1, &FrmOrvendalciales::LblBuscar_Click);
  wire(LblBorrar_0, LblBorrar_1, &FrmOrvendalciales::LblBorrar_Click);
  wire(LblGuardar_0, LblGuardar_1, &FrmOrvendalciales::LblGuardar_Click);
  wire(LblCancelar_0, LblCancelar_1, &FrmOrvendalciales::LblCancelar_Click);
}

// MouseDown and MouseUp of the five buttons: the caption turns white while any mouse button holds either
// member.
void FrmOrvendalciales::WirePressLook(Label& member, Label& caption) {
  member.OnMouseDown = [&caption](int, int, double, double) { caption.ForeColor(palette::kWhite); };
  member.OnMouseUp = [&caption](int, int, double, double) { caption.ForeColor(palette::kBlack); };
}

}  // namespace orvendal
