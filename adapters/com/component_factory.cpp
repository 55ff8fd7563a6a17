#include "adapters/com/component_factory.h"

#include <new>

#include "adapters/automation/class_factory.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/com/class_orvendal_object.h"
#include "adapters/com/identity.h"

namespace orvendal {
namespace {

IUnknown* MakeClassOrvendal() noexcept {
  return static_cast<_ClassOrvendal*>(new (std::nothrow) ClassOrvendalObject);
}

}  // namespace

HRESULT GetComponentFactory(REFCLSID class_id, REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (class_id != identity::kClass) return CLASS_E_CLASSNOTAVAILABLE;
  NameErrorSource(identity::kProject);
  return GetClassFactory(MakeClassOrvendal, iid, object);
}

}  // namespace orvendal
