#include <new>

#include "adapters/automation/class_factory.h"
#include "adapters/automation/module_lifetime.h"
#include "host/windows/store/connection_object.h"
#include "host/windows/store/recordset_object.h"

// The entry points of the store: class objects under ADO's own class identifiers, for whoever was pointed
// here by a manifest. It registers nothing.

namespace orvendal {
namespace {

template <typename Object, typename Interface>
IUnknown* Make() noexcept {
  return static_cast<Interface*>(new (std::nothrow) Object);
}

}  // namespace
}  // namespace orvendal

extern "C" {

HRESULT WINAPI DllGetClassObject(REFCLSID class_id, REFIID iid, LPVOID* object) {
  using namespace orvendal;
  if (!object) return E_POINTER;
  *object = nullptr;
  if (class_id == ado::kConnectionClass) {
    return GetClassFactory(Make<ConnectionObject, ::_Connection>, iid, object);
  }
  if (class_id == ado::kRecordsetClass) {
    return GetClassFactory(Make<RecordsetObject, ::_Recordset>, iid, object);
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

HRESULT WINAPI DllCanUnloadNow() {
  return orvendal::module_lifetime::IsFree() ? S_OK : S_FALSE;
}

}  // extern "C"
