#include "adapters/automation/class_factory.h"
#include "host/windows/library/dialog_objects.h"
#include "host/windows/library/library_identity.h"
#include "host/windows/library/library_objects.h"
#include "host/windows/library/library_state.h"
#include "host/windows/library/session_object.h"

// The four entry points of an in-process server.

namespace orvendal {
namespace {

constexpr CreatableClass kClasses[] = {
    {__uuidof(::DatosClase), MakeObject<SessionObject>},
    {__uuidof(::Herramientas), MakeObject<ToolsObject>},
    {__uuidof(::Mensajes), MakeObject<MessagesObject>},
    {__uuidof(::CambioSesion), MakeObject<SessionChangeObject>},
    {__uuidof(::BuscadorProductos), MakeObject<ProductSearchObject>},
    {__uuidof(::SelectorEmpleado), MakeObject<EmployeePickerObject>},
    {__uuidof(::Recalculo), MakeObject<RecalculationObject>},
};

}  // namespace
}  // namespace orvendal

extern "C" {

HRESULT WINAPI DllGetClassObject(REFCLSID class_id, REFIID iid, LPVOID* object) {
  orvendal::NameErrorSource(orvendal::library_identity::kProject);
  return orvendal::GetClassFactory(orvendal::kClasses, class_id, iid, object);
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
