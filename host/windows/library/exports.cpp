#include <new>

#include "adapters/automation/class_factory.h"
#include "host/windows/library/dialog_objects.h"
#include "host/windows/library/library_identity.h"
#include "host/windows/library/library_objects.h"
#include "host/windows/library/library_state.h"
#include "host/windows/library/session_object.h"

// The four entry points of an in-process server.

namespace orvendal {
namespace {

template <typename Object>
IUnknown* Make() noexcept {
  auto* const made = new (std::nothrow) Object;
  return made ? static_cast<IDispatch*>(made) : nullptr;
}

struct LibraryClass {
  GUID identifier;
  ClassFactory::Make make;
};

ClassFactory::Make MakerOf(REFCLSID class_id) noexcept {
  const LibraryClass classes[] = {
      {__uuidof(::DatosClase), Make<SessionObject>},
      {__uuidof(::Herramientas), Make<ToolsObject>},
      {__uuidof(::Mensajes), Make<MessagesObject>},
      {__uuidof(::CambioSesion), Make<SessionChangeObject>},
      {__uuidof(::BuscadorProductos), Make<ProductSearchObject>},
      {__uuidof(::SelectorEmpleado), Make<EmployeePickerObject>},
      {__uuidof(::Recalculo), Make<RecalculationObject>},
  };
  for (const LibraryClass& known : classes) {
    if (known.identifier == class_id) return known.make;
  }
  return nullptr;
}

}  // namespace
}  // namespace orvendal

extern "C" {

HRESULT WINAPI DllGetClassObject(REFCLSID class_id, REFIID iid, LPVOID* object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  const auto make = orvendal::MakerOf(class_id);
  if (!make) return CLASS_E_CLASSNOTAVAILABLE;
  orvendal::NameErrorSource(orvendal::library_identity::kProject);
  return orvendal::GetClassFactory(make, iid, object);
}

HRESULT WINAPI DllCanUnloadNow() {
  return orvendal::LibraryState::LetGoIfUnused() ? S_OK : S_FALSE;
}

HRESULT WINAPI DllRegisterServer() {
  return orvendal::Register(orvendal::library_identity::Registered());
}

HRESULT WINAPI DllUnregisterServer() {
  return orvendal::Unregister(orvendal::library_identity::Registered());
}

}  // extern "C"
