#pragma once

#include "DllTrevano.h"
#include "adapters/automation/registration.h"

namespace orvendal::library_identity {

/// {C3B44D13-E60F-11D8-9EF6-0000393BB290}
inline constexpr GUID kTypeLibrary = {
    0xC3B44D13, 0xE60F, 0x11D8, {0x9E, 0xF6, 0x00, 0x00, 0x39, 0x3B, 0xB2, 0x90}};

inline constexpr wchar_t kProject[] = L"DllTrevano";

/// The identity of the library, as registered in COM.
const ModuleIdentity& Registered();

}  // namespace orvendal::library_identity
