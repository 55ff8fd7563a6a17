#pragma once

#include <cstdint>

#include "platform/base/runtime_error.h"

namespace orvendal {

/// Numbers under which data providers report, those that this system can meet.
namespace ado_error {
inline constexpr std::int32_t kEitherBofOrEof = 3021;
inline constexpr std::int32_t kItemNotFound = 3265;
inline constexpr std::int32_t kFeatureNotAvailable = 3251;
inline constexpr std::int32_t kIllegalOperation = 3219;
inline constexpr std::int32_t kDataConversion = 3421;
inline constexpr std::int32_t kInvalidArgument = 3001;
inline constexpr std::int32_t kObjectClosed = 3704;
inline constexpr std::int32_t kObjectOpen = 3705;
inline constexpr std::int32_t kInvalidConnection = 3709;

inline constexpr std::int32_t kMultipleStep = -2147217887;        // 80040E21: too long, Null refused
inline constexpr std::int32_t kIntegrityViolation = -2147217873;  // 80040E2F
inline constexpr std::int32_t kSyntax = -2147217900;              // 80040E14
inline constexpr std::int32_t kNoTable = -2147217865;             // 80040E37
inline constexpr std::int32_t kConversionFailed = -2147217913;    // 80040E07
inline constexpr std::int32_t kNoValueGiven =
    -2147217904;  // 80040E10: Jet takes an unknown name for a parameter
inline constexpr std::int32_t kPermissionDenied = -2147217911;  // 80040E09
inline constexpr std::int32_t kTimeout = -2147217871;           // 80040E31
inline constexpr std::int32_t kUnspecified = -2147467259;       // 80004005
}  // namespace ado_error

/// The provider's own description of one of the numbers 3001 to 3709 above, as an error to throw.
RuntimeError AdoError(std::int32_t number);

}  // namespace orvendal
