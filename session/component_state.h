#pragma once

#include <memory>
#include <vector>

#include "platform/data/recordset.h"
#include "platform/forms/window_host.h"
#include "platform/library/library.h"
#include "session/datos_comunes.h"

namespace orvendal {

// Declared only: the state holds the form, whose class belongs to a floor above, and calls nothing of it.
class FrmOrvendalciales;

/// The environment of the component, given by whoever loads it; all of it outlives the component.
struct Environment {
  WindowHost& host;
  RecordsetFactory& recordsets;
  Library& library;
};

/// The library's global objects, each made on first use and kept for as long as the component is loaded.
class LibraryGlobals {
 public:
  explicit LibraryGlobals(Library& library) : library_(library) {}

  Herramientas& HerramientasGlobal() { return Made(herramientas_, &Library::NewHerramientas); }
  Mensajes& MensajesGlobal() { return Made(mensajes_, &Library::NewMensajes); }
  CambioSesion& CambioSesionGlobal() { return Made(cambio_sesion_, &Library::NewCambioSesion); }
  Recalculo& RecalculoGlobal() { return Made(recalculo_, &Library::NewRecalculo); }

 private:
  template <typename Type>
  Type& Made(std::unique_ptr<Type>& object, std::unique_ptr<Type> (Library::*make)()) {
    if (!object) object = (library_.*make)();
    return *object;
  }

  Library& library_;
  std::unique_ptr<Herramientas> herramientas_;
  std::unique_ptr<Mensajes> mensajes_;
  std::unique_ptr<CambioSesion> cambio_sesion_;
  std::unique_ptr<Recalculo> recalculo_;
};

/// Everything that the component keeps between two calls: the session, the library's objects, the one form.
struct ComponentState {
  explicit ComponentState(const Environment& given) : environment(given), globals(given.library) {}

  Environment environment;
  DatosComunes session;
  LibraryGlobals globals;
  /// The global instance of the form; empty before the first call and after the library has cleared it.
  std::shared_ptr<FrmOrvendalciales> form;
  /// Forms that are still loaded after the library has put something else into `form`. They stay alive, with
  /// their windows, until they are unloaded.
  std::vector<std::shared_ptr<FrmOrvendalciales>> unnamed_forms;
};

}  // namespace orvendal
