#pragma once

#include "host/host_context.h"
#include "host/library/quantity_filter.h"
#include "platform/library/library.h"

namespace orvendal {

/// Keys, dates, the journal, the workstation's panel.
class StandInTools final : public Herramientas {
 public:
  explicit StandInTools(HostContext& context) : context_(context) {}

  /// A filter for quantities; `opcion` False takes whole ones only. May put the box's text right.
  int FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) override;
  /// A panel that shows the workstation and can open the store anew.
  void AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) override;
  /// Clears the reference, so that the next call of the component makes a new screen.
  void LiberarForm(ObjectRef& formulario) override;
  /// The day alone, in the form in which the store gives its dates: dd/mm/yyyy in Spain. An empty text stays
  /// empty, and a text that is no date stays as it is.
  std::string FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                           std::string& modo2) override;
  /// Writes the statement to the journal of the store.
  void RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                          std::string& sentencia) override;
  /// The day as above and the time as hh:mm:ss.
  std::string FechaHoraTexto(Date& momento) override;

 private:
  HostContext& context_;
  QuantityFilter quantity_filter_;
};

}  // namespace orvendal
