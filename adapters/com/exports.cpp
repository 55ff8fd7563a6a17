#include "adapters/automation/registration.h"
#include "adapters/com/component_factory.h"
#include "adapters/com/component_module.h"
#include "adapters/com/identity.h"

// The four entry points of an in-process server.

extern "C" {

HRESULT WINAPI DllGetClassObject(REFCLSID class_id, REFIID iid, LPVOID* object) {
  return orvendal::GetComponentFactory(class_id, iid, object);
}

HRESULT WINAPI DllCanUnloadNow() {
  return orvendal::ComponentModule::Instance().LetGoIfUnused() ? S_OK : S_FALSE;
}

HRESULT WINAPI DllRegisterServer() {
  return orvendal::Register(orvendal::identity::kRegistered);
}

HRESULT WINAPI DllUnregisterServer() {
  return orvendal::Unregister(orvendal::identity::kRegistered);
}

}  // extern "C"
