#include "component/class_orvendal.h"

#include "form/frm_orvendalciales.h"

namespace orvendal {

bool ClassOrvendal::Orvendal(const DatosClaseRef& datos_clase, const std::string& suc,
                             const std::string& puest, const std::string& turn) {
  const bool result = false;  // nothing assigns it again: callers learn nothing from it
  DatosComunes& session = state_.session;
  session.CodSucursal = suc;
  session.CodPuesto = puest;
  session.CodTurno = turn;
  session.DatosSesion = datos_clase;
  session.IniciarDatosComunes(state_.environment.recordsets);
  if (!state_.form) state_.form = std::make_shared<FrmOrvendalciales>(state_);
  const std::shared_ptr<FrmOrvendalciales> form = state_.form;
  form->Show();
  if (form->WindowState() == WindowState::kMinimized) form->WindowState(WindowState::kMaximized);
  return result;
}

}  // namespace orvendal
