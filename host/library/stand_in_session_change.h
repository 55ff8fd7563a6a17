#pragma once

#include "host/host_context.h"
#include "platform/library/library.h"

namespace orvendal {

/// The change of session.
class StandInSessionChange final : public CambioSesion {
 public:
  explicit StandInSessionChange(HostContext& context) : context_(context) {}

  /// A modal dialog for branch, workstation and shift. Accepted, it hands them back, keeps them in the
  /// context too, and sets `resultado` to 1; cancelled, it changes nothing but `resultado`, which is 0.
  void AbrirCambio(ConnectionRef& conexion, Value& dato_pantalla, std::string& cod_sucursal,
                   std::string& cod_puesto, std::string& cod_turno, std::int32_t& ancho_base,
                   std::int32_t& alto_base, std::int32_t& resultado) override;

 private:
  HostContext& context_;
};

}  // namespace orvendal
