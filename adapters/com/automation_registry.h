#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "adapters/automation/com_headers.h"
#include "platform/base/object.h"
#include "platform/forms/form.h"

namespace orvendal {

/// The interface by which an automation object of ours is recognised when a client passes it back in, and
/// unmarshalled to what it stands for.
struct IOrvendalObject : IUnknown {
  /// Empty if it is gone.
  virtual ObjectRef Target() = 0;
};

}  // namespace orvendal

__CRT_UUID_DECL(orvendal::IOrvendalObject, 0xE0EE27BB, 0xF559, 0x4877, 0x87, 0x17, 0x13, 0x7A, 0x2F, 0xA9,
                0x4D, 0x8D)

namespace orvendal {

class AutomationObject;

/// The automation objects that clients hold: one for each form and control, so that identities can be
/// compared. Lives as long as the last of them.
class AutomationRegistry {
 public:
  using NativeWindow = std::intptr_t (*)(WindowHost& windows, const Form& form);
  AutomationRegistry(WindowHost& windows, NativeWindow native_window)
      : windows_(windows), native_window_(native_window) {}

  /// The object that stands for `target`; nullptr if there is none.
  AutomationObject* Find(const void* target) const;
  void Enter(const void* target, AutomationObject* object) { objects_[target] = object; }
  void Leave(const void* target, const AutomationObject* object);
  bool Holds(IOrvendalObject* object) const;

  /// Only while a form of that host lives.
  std::intptr_t WindowOf(const Form& form) const {
    return native_window_ ? native_window_(windows_, form) : 0;
  }

 private:
  WindowHost& windows_;
  NativeWindow native_window_;
  std::map<const void*, AutomationObject*> objects_;
};

}  // namespace orvendal
