#include "platform/data/recordset.h"

#include <cmath>

#include "platform/data/ado_error.h"

namespace orvendal {

void Connection::CheckNumber(const std::string& /*text*/) const {}

void Connection::Close() {}

Value Field::Value() const {
  orvendal::Value value = recordset_->FieldValue(index_);
  if (value.IsNumber() && !std::isfinite(value.Number())) {
    throw RuntimeError(error_number::kOverflow, "Overflow: the field '" + recordset_->FieldName(index_) +
                                                    "' holds a number beyond all bounds.");
  }
  return value;
}

RuntimeError AdoError(std::int32_t number) {
  const char* text = "Unknown error.";
  switch (number) {
    case ado_error::kInvalidArgument:
      text =
          "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one "
          "another.";
      break;
    case ado_error::kEitherBofOrEof:
      text =
          "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
          "current record.";
      break;
    case ado_error::kIllegalOperation:
      text = "Operation is not allowed in this context.";
      break;
    case ado_error::kFeatureNotAvailable:
      text =
          "Current Recordset does not support updating. This may be a limitation of the provider, or of the "
          "selected locktype.";
      break;
    case ado_error::kItemNotFound:
      text = "Item cannot be found in the collection corresponding to the requested name or ordinal.";
      break;
    case ado_error::kDataConversion:
      text = "Application uses a value of the wrong type for the current operation.";
      break;
    case ado_error::kObjectClosed:
      text = "Operation is not allowed when the object is closed.";
      break;
    case ado_error::kObjectOpen:
      text = "Operation is not allowed when the object is open.";
      break;
    case ado_error::kInvalidConnection:
      text =
          "The connection cannot be used to perform this operation. It is either closed or invalid in this "
          "context.";
      break;
    default:
      break;
  }
  return RuntimeError(number, text);
}

}  // namespace orvendal
