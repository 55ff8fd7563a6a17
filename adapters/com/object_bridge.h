#pragma once

#include <cstdint>

#include "adapters/automation/com_ptr.h"
#include "adapters/com/automation_registry.h"
#include "platform/base/object.h"
#include "platform/forms/form.h"

namespace orvendal {

/// An object of the host or of its library, kept by reference and never looked into.
class HostObject final : public Object {
 public:
  explicit HostObject(ComPtr<IDispatch> object) : object_(std::move(object)) {}
  IDispatch* Get() const { return object_.Get(); }

 private:
  ComPtr<IDispatch> object_;
};

/// A form of the host, kept by reference. It is never shown here.
class HostForm final : public Form {
 public:
  HostForm(WindowHost& windows, ComPtr<IDispatch> object)
      : Form(windows, "HostForm"), object_(std::move(object)) {}
  IDispatch* Get() const { return object_.Get(); }

 private:
  ComPtr<IDispatch> object_;
};

/// What an object is expected to be when it comes in.
enum class ObjectRole { kAny, kForm };

/// Marshalling of objects: ours go out as automation objects, the host's own as they came in.
class ObjectBridge {
 public:
  using NativeWindow = std::intptr_t (*)(WindowHost& windows, const Form& form);
  /// `windows` outlives the bridge.
  ObjectBridge(WindowHost& windows, NativeWindow native_window);

  /// The object to hand out; empty for none.
  ComPtr<IDispatch> ToCom(const ObjectRef& object);
  ComPtr<IDispatch> ToCom(Control& control);
  /// What came in. A form of ours becomes itself again, empty if it is gone. In the role of a form, an object
  /// of the host that answers as a form does is a HostForm.
  ObjectRef FromCom(IDispatch* object, ObjectRole role);

 private:
  WindowHost& windows_;
  std::shared_ptr<AutomationRegistry> registry_;
};

}  // namespace orvendal
