#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/forms/window_host.h"
#include "platform/library/library.h"

namespace orvendal {

/// The least that the maker's library can be: dates in the region's short form, digits and one decimal mark
/// for a quantity, the form let go of, nothing recalculated. It has no dialogs; a scripted library stands
/// before it.
class PlainLibrary final : public Library {
 public:
  explicit PlainLibrary(WindowHost& host) : host_(host) {}

  /// The form of dates, such as "yyyy-mm-dd"; empty for the region's short one.
  std::string date_mask;
  /// What every date is written as instead, if anything.
  std::optional<std::string> date_text;

  std::unique_ptr<Herramientas> NewHerramientas() override;
  std::unique_ptr<Mensajes> NewMensajes() override { return nullptr; }
  std::unique_ptr<CambioSesion> NewCambioSesion() override { return nullptr; }
  std::unique_ptr<Recalculo> NewRecalculo() override;
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override { return nullptr; }
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override { return nullptr; }

 private:
  WindowHost& host_;
};

}  // namespace orvendal
