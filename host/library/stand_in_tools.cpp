#include "host/library/stand_in_tools.h"

#include "host/library/journal.h"
#include "host/library/workstation_form.h"
#include "platform/base/text.h"

namespace orvendal {

int StandInTools::FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) {
  const QuantityKey filtered = quantity_filter_.Filter({caja.Text(), caja.SelStart(), caja.SelLength()},
                                                       key_ascii, context_.window_host, opcion);
  if (filtered.instead) caja.SelText(*filtered.instead);
  if (filtered.shown) caja.Text(*filtered.shown);
  if (filtered.select_all) {
    caja.SelStart(0);
    caja.SelLength(static_cast<int>(Len(caja.Text())));
  }
  return filtered.key;
}

void StandInTools::AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) {
  const auto panel = std::make_shared<WorkstationForm>(context_, conexion, cod_puesto);
  panel->Show(ShowMode::kModal);
  panel->Unload();
  conexion = panel->Store();
}

void StandInTools::LiberarForm(ObjectRef& formulario) {
  formulario.reset();
}

std::string StandInTools::FormatoFecha(std::string& fecha, std::uint8_t, std::string&, std::string&) {
  const Region& region = context_.window_host.UserRegion();
  const std::optional<Date> date = region.ParseDate(fecha);
  return date ? region.ToText(date->DayOnly()) : fecha;
}

void StandInTools::RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                                      std::string& sentencia) {
  WriteJournal(context_.recordsets, conexion, context_.window_host.SystemClock().Now(), cadena_sesion,
               sentencia);
}

std::string StandInTools::FechaHoraTexto(Date& momento) {
  const Region& region = context_.window_host.UserRegion();
  return region.ToText(momento.DayOnly()) + region.Format(momento, " hh:nn:ss");
}

}  // namespace orvendal
