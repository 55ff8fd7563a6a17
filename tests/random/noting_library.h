#pragma once

#include <functional>
#include <string>

#include "platform/library/library.h"

namespace orvendal {

/// A library that tells what its dialogs were answered, as the line of a script that prepares the answer.
class NotingLibrary final : public Library {
 public:
  using Answered = std::function<void(const std::string& line)>;

  /// `inner` outlives the object.
  NotingLibrary(Library& inner, Answered answered) : inner_(inner), answered_(std::move(answered)) {}

  /// How often the store was opened anew, to tell what the panel of F1 was used for.
  int times_reopened = 0;

  std::unique_ptr<Herramientas> NewHerramientas() override;
  std::unique_ptr<Mensajes> NewMensajes() override;
  std::unique_ptr<CambioSesion> NewCambioSesion() override;
  std::unique_ptr<Recalculo> NewRecalculo() override;
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override;
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override;

 private:
  friend class NotingTools;
  friend class NotingMessages;
  friend class NotingSessionChange;
  friend class NotingSearch;
  friend class NotingPicker;

  Library& inner_;
  Answered answered_;
};

}  // namespace orvendal
