#include "adapters/com/com_library.h"

#include "adapters/com/library_dialogs.h"
#include "adapters/com/library_tools.h"

namespace orvendal {
namespace {

constexpr std::int32_t kCannotCreateObject = 429;
constexpr std::int32_t kNoSuchInterface = 430;

}  // namespace

ComPtr<IUnknown> CreateLibraryObject(REFCLSID class_id, REFIID iid) {
  const module_lifetime::Hold hold;
  ComPtr<IUnknown> made;
  if (FAILED(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IUnknown,
                              made.ReceiveVoid())) ||
      !made) {
    throw RuntimeError(kCannotCreateObject, "ActiveX component can't create object");
  }
  ComPtr<IUnknown> object = made.Query<IUnknown>(iid);
  if (!object) {
    throw RuntimeError(kNoSuchInterface,
                       "Class does not support Automation or does not support expected interface");
  }
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
