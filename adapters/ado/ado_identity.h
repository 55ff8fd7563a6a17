#pragma once

#include "adapters/automation/com_headers.h"

namespace orvendal::ado {

/// ADO's identifiers differ in their first group alone. Libraries since Windows 7 SP1 answer to newer
/// interface identifiers too, 0x1000 above the older ones; the interfaces behind both are the same.
constexpr GUID Identity(unsigned long number) {
  return {number, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}};
}
constexpr GUID NewerIdentity(unsigned long number) {
  return Identity(number + 0x1000);
}

inline constexpr GUID kConnectionClass = Identity(0x514);
inline constexpr GUID kRecordsetClass = Identity(0x535);

inline constexpr GUID kAdo = Identity(0x534);
inline constexpr GUID kCollection = Identity(0x512);
inline constexpr GUID kConnection15 = Identity(0x515);
inline constexpr GUID kConnection = Identity(0x550);
inline constexpr GUID kRecordset15 = Identity(0x50E);
inline constexpr GUID kRecordset20 = Identity(0x54F);
inline constexpr GUID kRecordset21 = Identity(0x555);
inline constexpr GUID kRecordset = Identity(0x556);
inline constexpr GUID kFields15 = Identity(0x506);
inline constexpr GUID kFields20 = Identity(0x54D);
inline constexpr GUID kFields = Identity(0x564);
inline constexpr GUID kField20 = Identity(0x54C);
inline constexpr GUID kField = Identity(0x569);

inline constexpr GUID kNewerAdo = NewerIdentity(0x534);
inline constexpr GUID kNewerCollection = NewerIdentity(0x512);
inline constexpr GUID kNewerConnection15 = NewerIdentity(0x515);
inline constexpr GUID kNewerConnection = NewerIdentity(0x550);
inline constexpr GUID kNewerRecordset15 = NewerIdentity(0x50E);
inline constexpr GUID kNewerRecordset20 = NewerIdentity(0x54F);
inline constexpr GUID kNewerRecordset21 = NewerIdentity(0x555);
inline constexpr GUID kNewerRecordset = NewerIdentity(0x556);
inline constexpr GUID kNewerFields15 = NewerIdentity(0x506);
inline constexpr GUID kNewerFields20 = NewerIdentity(0x54D);
inline constexpr GUID kNewerFields = NewerIdentity(0x564);
inline constexpr GUID kNewerField20 = NewerIdentity(0x54C);
inline constexpr GUID kNewerField = NewerIdentity(0x569);

}  // namespace orvendal::ado
