#pragma once

#include "host/host_context.h"
#include "platform/library/library.h"

namespace orvendal {

/// Stands in for the maker's library in the sample host, and does real work: dates and quantities by the
/// region of the window host, messages by the context's presenter, the journal and the stock in the embedded
/// store, dialogs made with the form engine. `context` outlives it and the objects it makes.
class StandInLibrary final : public Library {
 public:
  explicit StandInLibrary(HostContext& context) : context_(context) {}

  std::unique_ptr<Herramientas> NewHerramientas() override;
  std::unique_ptr<Mensajes> NewMensajes() override;
  std::unique_ptr<CambioSesion> NewCambioSesion() override;
  std::unique_ptr<Recalculo> NewRecalculo() override;
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override;
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override;

 private:
  HostContext& context_;
};

}  // namespace orvendal
