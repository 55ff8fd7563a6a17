#include "adapters/com/automation_registry.h"

#include <algorithm>

#include "adapters/com/automation_object.h"

namespace orvendal {

AutomationObject* AutomationRegistry::Find(const void* target) const {
  const auto entry = objects_.find(target);
  // Keys are addresses: an object that outlived its form may be registered under that of a new one.
  return entry != objects_.end() && !entry->second->IsGone() ? entry->second : nullptr;
}

void AutomationRegistry::Leave(const void* target, const AutomationObject* object) {
  const auto entry = objects_.find(target);
  if (entry != objects_.end() && entry->second == object) objects_.erase(entry);
}

bool AutomationRegistry::Holds(IOrvendalObject* object) const {
  return std::any_of(objects_.begin(), objects_.end(), [object](const auto& entry) {
    return static_cast<IOrvendalObject*>(entry.second) == object;
  });
}

}  // namespace orvendal
