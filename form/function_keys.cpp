#include "form/frm_orvendalciales.h"

namespace orvendal {

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

}  // namespace orvendal
