#pragma once

#include "host/host_context.h"
#include "platform/library/library.h"

namespace orvendal {

/// The search for a product.
class StandInProductSearch final : public BuscadorProductos {
 public:
  explicit StandInProductSearch(HostContext& context) : context_(context) {}

  /// A modal list of all products, searched by `campo` ("Codigo", which looks for bar codes
  /// too, else by description) from `texto` on. The
  /// store is the connection that `datos_sesion` fills in: error 91 without a session, 3709 without a
  /// connection.
  std::string Buscar(DatosClaseRef& datos_sesion, ObjectRef& formulario, const std::string& llamador,
                     const std::string& campo, const std::string& texto, const std::string& modo,
                     bool& indicador) override;

 private:
  HostContext& context_;
};

}  // namespace orvendal
