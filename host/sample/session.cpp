#include "host/sample/session.h"

namespace orvendal {

std::string SessionText(const HostContext& context) {
  return "Sucursal=" + context.sucursal + ";Puesto=" + context.puesto + ";Turno=" + context.turno;
}

void SampleSession::RellenarSesion(const SessionArguments& session) {
  session.Conexion = context_.connection;
  session.AnchoBase = context_.ancho_base;
  session.AltoBase = context_.alto_base;
  session.DatoPantalla = context_.dato_pantalla;
  session.DiccGeneral = context_.dictionaries.general;
  session.DiccAcciones = context_.dictionaries.acciones;
  session.DiccPantallas = context_.dictionaries.pantallas;
  session.CadenaSesion = SessionText(context_);
}

}  // namespace orvendal
