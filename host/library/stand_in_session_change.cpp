#include "host/library/stand_in_session_change.h"

#include "host/library/session_change_form.h"

namespace orvendal {

void StandInSessionChange::AbrirCambio(ConnectionRef& conexion, Value&, std::string& cod_sucursal,
                                       std::string& cod_puesto, std::string& cod_turno, std::int32_t&,
                                       std::int32_t&, std::int32_t& resultado) {
  const auto form =
      std::make_shared<SessionChangeForm>(context_, ReadBranches(context_, conexion),
                                          SessionChangeForm::Session{cod_sucursal, cod_puesto, cod_turno});
  form->Show(ShowMode::kModal);
  form->Unload();
  resultado = form->Accepted() ? 1 : 0;
  if (!form->Accepted()) return;
  context_.sucursal = cod_sucursal = form->Chosen().sucursal;
  context_.puesto = cod_puesto = form->Chosen().puesto;
  context_.turno = cod_turno = form->Chosen().turno;
}

}  // namespace orvendal
