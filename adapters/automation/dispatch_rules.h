#pragma once

#include "adapters/automation/com_headers.h"

namespace orvendal {

// The checks that Automation demands of every call of IDispatch, shared by all objects. Clients in C may pass
// null for any pointer.

/// Whether no identifier was handed over at all.
inline bool IsMissing(REFIID iid) noexcept {
  const IID* const volatile given = &iid;
  return !given;
}

/// One call of Invoke that was found whole.
struct DispatchCall {
  DISPID member;
  LCID lcid;
  WORD flags;
  DISPPARAMS& arguments;
  VARIANT* result;       // nullptr where nobody wants it, else empty
  EXCEPINFO* exception;  // may be nullptr, as `wrong`
  UINT* wrong;

  bool Puts() const { return (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }
};

/// An argument that does not fit, as a client of Invoke is told of it.
struct ArgumentError {
  HRESULT result;
  UINT index;  // in rgvarg
};

/// What GetIDsOfNames was given: S_OK for names to be looked for, whose numbers are unknown from now on;
/// S_FALSE for none; DISP_E_UNKNOWNINTERFACE, E_POINTER, DISP_E_UNKNOWNNAME for a name that is missing.
[[nodiscard]] HRESULT CheckNames(REFIID reserved, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

/// What Invoke was given: DISP_E_UNKNOWNINTERFACE; E_INVALIDARG for arguments or names that are promised and
/// not there, DISP_E_BADPARAMCOUNT for more names than arguments, DISP_E_TYPEMISMATCH for an argument that
/// refers to nothing. Empties `result`.
[[nodiscard]] HRESULT CheckCall(REFIID reserved, const DISPPARAMS* arguments, VARIANT* result,
                                UINT* wrong) noexcept;

}  // namespace orvendal
