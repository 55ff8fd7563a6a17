#include "adapters/com/automation_object.h"

namespace orvendal {

void* AutomationObject::Find(REFIID iid) noexcept {
  if (iid == __uuidof(IOrvendalObject) && !ComesBackAsItself()) return nullptr;
  return DualObject::Find(iid);
}

HRESULT AutomationObject::NumbersOf(LPOLESTR* names, UINT count, DISPID* ids) {
  if (!IsAtHome()) return RPC_E_WRONG_THREAD;
  ids[0] = IdOf(names[0]);
  // No member names its arguments.
  return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT AutomationObject::Call(const DispatchCall& call) {
  if (!IsAtHome()) return RPC_E_WRONG_THREAD;
  if (call.arguments.cNamedArgs > (call.Puts() ? 1U : 0U)) return DISP_E_NONAMEDARGS;
  const AutomationCall arguments(call);
  return (call.Puts() ? Put(call.member, arguments) : Get(call.member, arguments)) ? S_OK
                                                                                   : DISP_E_MEMBERNOTFOUND;
}

bool AutomationObject::SameName(const wchar_t* left, const wchar_t* right) {
  return CompareStringOrdinal(left, -1, right, -1, TRUE) == CSTR_EQUAL;
}

}  // namespace orvendal
