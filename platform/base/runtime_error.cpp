#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

const char* StandardDescription(std::int32_t number) {
  switch (number) {
    case error_number::kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case error_number::kOverflow:
      return "Overflow";
    case error_number::kTypeMismatch:
      return "Type mismatch";
    case error_number::kInternal:
      return "Internal error";
    case error_number::kObjectNotSet:
      return "Object variable or With block variable not set";
    case error_number::kInvalidUseOfNull:
      return "Invalid use of Null";
    case error_number::kInvalidPropertyValue:
      return "Invalid property value";
    case error_number::kSubscriptOutOfRange:
      return "Subscript out of range";
    case error_number::kPropertyReadOnly:
      return "'Text' property is read-only";
    case error_number::kCannotSetWhileSized:
      return "A form can't be moved or sized while minimized or maximized";
    case error_number::kNoSuchMember:
      return "Object doesn't support this property or method";
    case error_number::kInvalidRow:
      return "Invalid Row value";
    case error_number::kInvalidColumn:
      return "Invalid Col value";
    case error_number::kCannotRemoveLastRow:
      return "Cannot remove last non-fixed row";
    case error_number::kDateOutOfRange:
      return "A date was specified that does not fall within the MinDate and MaxDate properties.";
    default:
      return "Application-defined or object-defined error";
  }
}

}  // namespace

RuntimeError::RuntimeError(std::int32_t number) : RuntimeError(number, StandardDescription(number)) {}

RuntimeError::RuntimeError(std::int32_t number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

}  // namespace orvendal
