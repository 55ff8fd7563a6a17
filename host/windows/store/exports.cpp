#include "adapters/automation/class_factory.h"
#include "adapters/automation/module_lifetime.h"
#include "host/windows/store/connection_object.h"
#include "host/windows/store/recordset_object.h"

// The entry points of the store: class objects under ADO's own class identifiers, for whoever was pointed
// here by a manifest. It registers nothing.

namespace orvendal {
namespace {

constexpr CreatableClass kClasses[] = {
    {ado::kConnectionClass, MakeObject<ConnectionObject>},
    {ado::kRecordsetClass, MakeObject<RecordsetObject>},
};

}  // namespace
}  // namespace orvendal

extern "C" {

HRESULT WINAPI DllGetClassObject(REFCLSID class_id, REFIID iid, LPVOID* object) {
  return orvendal::GetClassFactory(orvendal::kClasses, class_id, iid, object);
}

HRESULT WINAPI DllCanUnloadNow() {
  return orvendal::module_lifetime::IsFree() ? S_OK : S_FALSE;
}

}  // extern "C"
