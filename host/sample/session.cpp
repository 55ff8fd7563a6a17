#include "host/sample/session.h"

namespace orvendal {

HostContext ContextFor(const Options& options, WindowHost& window_host, MessagePresenter& messages,
                       RecordsetFactory& recordsets) {
  HostContext context{window_host, messages, WordsOf(options.language), recordsets};
  context.sucursal = options.sucursal;
  context.puesto = options.puesto;
  context.turno = options.turno;
  context.ancho_base = options.base_width;
  context.alto_base = options.base_height;
  return context;
}

OpenedStore OpenStoreOf(HostContext& context, const ChosenStore& chosen, const Options& options, Date today) {
  const StoreSettings settings{chosen.path, options.dialect, *options.region, context.words};
  OpenedStore opened = OpenChosenStore(chosen, settings, today);
  context.connection = opened.connection;
  context.reopen_store = [&context, settings]() -> ConnectionRef {
    return settings.path == kStoreInMemory ? context.connection : OpenExistingStore(settings);
  };
  return opened;
}

std::string SessionText(const HostContext& context) {
  return "Sucursal=" + context.sucursal + ";Puesto=" + context.puesto + ";Turno=" + context.turno;
}

void SampleSession::RellenarSesion(const SessionArguments& session) {
  session.Conexion = context_.connection;
  session.AnchoBase = context_.ancho_base;
  session.AltoBase = context_.alto_base;
  session.DatoPantalla = context_.dato_pantalla;
  session.DiccGeneral = dictionaries_.general;
  session.DiccAcciones = dictionaries_.acciones;
  session.DiccPantallas = dictionaries_.pantallas;
  session.CadenaSesion = SessionText(context_);
}

}  // namespace orvendal
