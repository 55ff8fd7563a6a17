#include "adapters/com/object_bridge.h"

#include "adapters/com/control_automation.h"
#include "adapters/com/form_automation.h"

namespace orvendal {
namespace {

bool Answers(IDispatch* object, const wchar_t* name) {
  auto* text = const_cast<LPOLESTR>(name);
  DISPID id = DISPID_UNKNOWN;
  return SUCCEEDED(object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id));
}

/// The forms of hosts have no interface in common but these names.
bool AnswersAsForm(IDispatch* object) {
  return Answers(object, L"Caption") && Answers(object, L"Show") && Answers(object, L"Hide");
}

}  // namespace

ObjectBridge::ObjectBridge(WindowHost& windows, NativeWindow native_window)
    : windows_(windows), registry_(std::make_shared<AutomationRegistry>(windows, native_window)) {}

ComPtr<IDispatch> ObjectBridge::ToCom(const ObjectRef& object) {
  if (!object) return {};
  if (const auto* host = dynamic_cast<const HostObject*>(object.get())) return ComPtr<IDispatch>(host->Get());
  if (const auto* host = dynamic_cast<const HostForm*>(object.get())) return ComPtr<IDispatch>(host->Get());
  if (const auto form = std::dynamic_pointer_cast<Form>(object)) return FormAutomation::Of(registry_, *form);
  return {};
}

ComPtr<IDispatch> ObjectBridge::ToCom(Control& control) {
  return ControlAutomation::Of(registry_, control);
}

ObjectRef ObjectBridge::FromCom(IDispatch* object, ObjectRole role) {
  if (!object) return nullptr;
  const ComPtr<IDispatch> given(object);
  if (const auto own = given.Query<IOrvendalObject>(__uuidof(IOrvendalObject))) {
    // Another module's object of the same kind, or one of an earlier life, is not in the registry.
    if (registry_->Holds(own.Get())) return own->Target();
  }
  if (role == ObjectRole::kForm && AnswersAsForm(object)) return std::make_shared<HostForm>(windows_, given);
  return std::make_shared<HostObject>(given);
}

}  // namespace orvendal
