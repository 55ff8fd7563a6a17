#include "adapters/com/component_factory.h"

#include "adapters/automation/class_factory.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/com/class_orvendal_object.h"
#include "adapters/com/identity.h"

namespace orvendal {

HRESULT GetComponentFactory(REFCLSID class_id, REFIID iid, void** object) noexcept {
  constexpr CreatableClass kClasses[] = {{identity::kClass, MakeObject<ClassOrvendalObject>}};
  NameErrorSource(identity::kProject);
  return GetClassFactory(kClasses, class_id, iid, object);
}

}  // namespace orvendal
