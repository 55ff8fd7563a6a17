#include "adapters/automation/create_object.h"

#include "adapters/automation/module_lifetime.h"
#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

constexpr std::int32_t kCannotCreateObject = 429;
constexpr std::int32_t kNoSuchInterface = 430;

}  // namespace

ComPtr<IUnknown> CreateObject(REFCLSID class_id, DWORD context) {
  const module_lifetime::Hold hold;
  ComPtr<IUnknown> made;
  if (FAILED(CoCreateInstance(class_id, nullptr, context, IID_IUnknown, made.ReceiveVoid())) || !made) {
    throw RuntimeError(kCannotCreateObject, "ActiveX component can't create object");
  }
  return made;
}

void RaiseNoSuchInterface() {
  throw RuntimeError(kNoSuchInterface,
                     "Class does not support Automation or does not support expected interface");
}

}  // namespace orvendal
