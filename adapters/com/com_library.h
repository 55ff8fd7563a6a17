#pragma once

#include "adapters/com/boundary.h"
#include "platform/library/library.h"

namespace orvendal {

/// The maker's library as COM objects: each is created by its class identifier and called through its vtable.
/// A class that cannot be made is error 429, one without its interface error 430.
class ComLibrary final : public Library {
 public:
  /// `boundary` outlives the library and its objects.
  explicit ComLibrary(Boundary& boundary) : boundary_(boundary) {}

  std::unique_ptr<Herramientas> NewHerramientas() override;
  std::unique_ptr<Mensajes> NewMensajes() override;
  std::unique_ptr<CambioSesion> NewCambioSesion() override;
  std::unique_ptr<Recalculo> NewRecalculo() override;
  std::unique_ptr<BuscadorProductos> NewBuscadorProductos() override;
  std::unique_ptr<SelectorEmpleado> NewSelectorEmpleado() override;

 private:
  Boundary& boundary_;
};

/// One object of a library's class, by the interface `iid`. Raises 429, 430.
[[nodiscard]] ComPtr<IUnknown> CreateLibraryObject(REFCLSID class_id, REFIID iid);

template <typename Interface>
ComPtr<Interface> CreateLibraryObject(REFCLSID class_id, REFIID iid) {
  return ComPtr<Interface>::Adopt(reinterpret_cast<Interface*>(CreateLibraryObject(class_id, iid).Detach()));
}

}  // namespace orvendal
