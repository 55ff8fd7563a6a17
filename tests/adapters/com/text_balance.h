#pragma once

#include <cstddef>

namespace orvendal {

// Texts of Automation that code of this program made and nobody freed yet. The linker leads the program's
// calls of SysAllocString, SysAllocStringLen, SysFreeString and VariantClear through here; what the system
// itself makes or frees is not seen.

std::size_t LiveTexts();
/// For tests that hand texts to the system for good.
void ForgetLiveTexts();

}  // namespace orvendal
