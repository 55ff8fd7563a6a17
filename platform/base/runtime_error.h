#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace orvendal {

/// Numbers of the runtime's own errors, those that this system raises or meets.
namespace error_number {
inline constexpr std::int32_t kInvalidProcedureCall = 5;
inline constexpr std::int32_t kOverflow = 6;
inline constexpr std::int32_t kTypeMismatch = 13;
inline constexpr std::int32_t kInternal = 51;
inline constexpr std::int32_t kObjectNotSet = 91;
inline constexpr std::int32_t kInvalidUseOfNull = 94;
inline constexpr std::int32_t kInvalidPropertyValue = 380;
inline constexpr std::int32_t kSubscriptOutOfRange = 381;
inline constexpr std::int32_t kPropertyReadOnly = 383;
inline constexpr std::int32_t kCannotSetWhileSized = 384;
inline constexpr std::int32_t kNoSuchMember = 438;
inline constexpr std::int32_t kInvalidRow = 30009;
inline constexpr std::int32_t kInvalidColumn = 30010;
inline constexpr std::int32_t kCannotRemoveLastRow = 30015;
inline constexpr std::int32_t kDateOutOfRange = 35773;
}  // namespace error_number

/// An error of the runtime: a number that callers compare and a description that users read.
/// It is the only exception that behaviour of this system throws.
class RuntimeError : public std::runtime_error {
 public:
  /// With the runtime's own description of `number`; "Application-defined or object-defined error" for a
  /// number that has none.
  explicit RuntimeError(std::int32_t number);
  RuntimeError(std::int32_t number, const std::string& description);

  std::int32_t Number() const { return number_; }
  std::string Description() const { return what(); }

 private:
  std::int32_t number_;
};

}  // namespace orvendal
