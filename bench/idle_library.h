#pragma once

#include "platform/library/library.h"

namespace orvendal::bench {

/// A maker's library that does nothing: texts and keys come back as they went, nothing is recalculated. It
/// has no dialogs.
class IdleLibrary final : public Library {
 public:
  std::unique_ptr<Herramientas> NewHerramientas() override;
  std::unique_ptr<Mensajes> NewMensajes() override { return nullptr; }
  std::unique_ptr<CambioSesion> NewCambioSesion() override { return nullptr; }
  std::unique_ptr<Recalculo> NewRecalculo() override;
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override { return nullptr; }
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override { return nullptr; }
};

}  // namespace orvendal::bench
