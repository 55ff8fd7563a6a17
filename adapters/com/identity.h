#pragma once

#include "adapters/automation/com_headers.h"
#include "adapters/automation/registration.h"

namespace orvendal {

/// The identity of the component, as registered in COM. Registration, class factory and type library read it
/// here.
namespace identity {

inline constexpr wchar_t kProject[] = L"DllOrvendal";
inline constexpr wchar_t kClassName[] = L"ClassOrvendal";
inline constexpr wchar_t kInterfaceName[] = L"_ClassOrvendal";
inline constexpr wchar_t kVersion[] = L"1.0";

/// {C4DCEC56-6CB1-4812-926A-918528C2913F}
inline constexpr GUID kTypeLibrary = {
    0xC4DCEC56, 0x6CB1, 0x4812, {0x92, 0x6A, 0x91, 0x85, 0x28, 0xC2, 0x91, 0x3F}};
/// {5DFDE722-C9BD-4BF4-B2DA-20EC56001007}
inline constexpr GUID kClass = {0x5DFDE722, 0xC9BD, 0x4BF4, {0xB2, 0xDA, 0x20, 0xEC, 0x56, 0x00, 0x10, 0x07}};
/// {4F7B0BBB-E42D-4070-9098-1944A409461D}
inline constexpr GUID kInterface = {
    0x4F7B0BBB, 0xE42D, 0x4070, {0x90, 0x98, 0x19, 0x44, 0xA4, 0x09, 0x46, 0x1D}};
/// {EC4037CB-4BB4-4E84-A5AC-AEDF7AA80927}, the form's, private to the component.
inline constexpr GUID kFormInterface = {
    0xEC4037CB, 0x4BB4, 0x4E84, {0xA5, 0xAC, 0xAE, 0xDF, 0x7A, 0xA8, 0x09, 0x27}};
/// {E1E51C00-F9A7-4D53-88E1-DB772D140976}, the host object's.
inline constexpr GUID kHostInterface = {
    0xE1E51C00, 0xF9A7, 0x4D53, {0x88, 0xE1, 0xDB, 0x77, 0x2D, 0x14, 0x09, 0x76}};

inline constexpr RegisteredName kClasses[] = {{kClassName, kClass}};
inline constexpr RegisteredName kInterfaces[] = {{kInterfaceName, kInterface}};
inline constexpr ModuleIdentity kRegistered = {kProject, kVersion, kTypeLibrary, kClasses, kInterfaces};

}  // namespace identity
}  // namespace orvendal
