#pragma once

#include <string>

#include "adapters/automation/com_headers.h"
#include "adapters/automation/com_ptr.h"

namespace orvendal {

/// The four arguments of Orvendal as a client of Invoke gives them: in reverse order, by name or both, by
/// value or by reference. The function writes back to none of them, so they are copies.
struct OrvendalArguments {
  ComPtr<IUnknown> datos_clase;  // answers to the host's interface; empty for Nothing
  std::string suc;
  std::string puest;
  std::string turn;
};

inline constexpr unsigned kOrvendalArgumentCount = 4;

/// The place, from 0, of the argument of that name, without regard to case; -1 if there is none.
DISPID OrvendalArgumentByName(const wchar_t* name);

/// DISP_E_BADPARAMCOUNT, DISP_E_PARAMNOTOPTIONAL for one left out, DISP_E_PARAMNOTFOUND for a name that the
/// function does not have, DISP_E_TYPEMISMATCH; for the last three `wrong`, if given, takes the index in
/// rgvarg.
[[nodiscard]] HRESULT ReadOrvendalArguments(const DISPPARAMS& given, LCID lcid, OrvendalArguments& arguments,
                                            UINT* wrong);

}  // namespace orvendal
