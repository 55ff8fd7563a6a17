#include "host/windows/library/dual_object.h"

namespace orvendal {

HRESULT InvokeDual(void* object, ITypeInfo& description, DISPID member, WORD flags, DISPPARAMS* arguments,
                   VARIANT* result, EXCEPINFO* exception, UINT* wrong) {
  ForgetErrorInformation();
  return DispInvoke(object, &description, member, flags, arguments, result, exception, wrong);
}

}  // namespace orvendal
