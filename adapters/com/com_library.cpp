#include "adapters/com/com_library.h"

#include "adapters/automation/create_object.h"
#include "adapters/com/library_dialogs.h"
#include "adapters/com/library_tools.h"

namespace orvendal {
ComPtr<IUnknown> CreateLibraryObject(REFCLSID class_id, REFIID iid) {
  const module_lifetime::Hold hold;
  ComPtr<IUnknown> object =
      CreateObject(class_id, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER).Query<IUnknown>(iid);
  if (!object) RaiseNoSuchInterface();
  return object;
}

std::unique_ptr<Herramientas> ComLibrary::NewHerramientas() {
  return std::make_unique<ComTools>(boundary_);
}

std::unique_ptr<Mensajes> ComLibrary::NewMensajes() {
  return std::make_unique<ComMessages>(boundary_);
}

std::unique_ptr<CambioSesion> ComLibrary::NewCambioSesion() {
  return std::make_unique<ComSessionChange>(boundary_);
}

std::unique_ptr<Recalculo> ComLibrary::NewRecalculo() {
  return std::make_unique<ComRecalculation>(boundary_);
}

std::unique_ptr<BuscadorProductos> ComLibrary::NewBuscadorProductos() {
  return std::make_unique<ComProductSearch>(boundary_);
}

std::unique_ptr<SelectorEmpleado> ComLibrary::NewSelectorEmpleado() {
  return std::make_unique<ComEmployeePicker>(boundary_);
}

}  // namespace orvendal
