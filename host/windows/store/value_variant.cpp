#include "host/windows/store/value_variant.h"

#include <cmath>
#include <limits>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/variant.h"
#include "platform/data/ado_error.h"

namespace orvendal {
namespace {

using sqlite::ColumnKind;
using sqlite::ColumnType;

bool FitsLong(double number) {
  return number == std::floor(number) && number >= std::numeric_limits<LONG>::min() &&
         number <= std::numeric_limits<LONG>::max();
}

[[noreturn]] void RaiseConversion() {
  throw AdoError(ado_error::kDataConversion);
}

/// The default property of an object, read once.
Value DefaultOf(IDispatch* object) {
  if (object == nullptr) RaiseConversion();
  const ComPtr<IDispatch> kept(object);
  Variant held;
  DISPPARAMS none{};
  if (FAILED(kept->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                          held.Address(), nullptr, nullptr)) ||
      V_VT(&held.Get()) == VT_DISPATCH) {
    RaiseConversion();
  }
  return ValueOf(held.Get());
}

double NumberOf(const VARIANT& variant) {
  Variant converted;
  if (FAILED(VariantChangeTypeEx(converted.Address(), const_cast<VARIANT*>(&variant), LOCALE_USER_DEFAULT, 0,
                                 VT_R8))) {
    RaiseConversion();
  }
  const double number = V_R8(&converted.Get());
  // The store would keep no value at all in its place.
  if (!std::isfinite(number)) throw RuntimeError(error_number::kOverflow);
  return number;
}

}  // namespace

VARIANT VariantOf(const Value& value, const ColumnType& type) {
  VARIANT variant;
  VariantInit(&variant);
  if (value.IsNull()) {
    V_VT(&variant) = VT_NULL;
  } else if (value.IsDate()) {
    V_VT(&variant) = VT_DATE;
    V_DATE(&variant) = value.AsDate().Serial();
  } else if (value.IsText()) {
    WriteText(variant, value.Text());
  } else if (!std::isfinite(value.Number())) {
    throw RuntimeError(error_number::kOverflow);
  } else if (type.whole_numbers && FitsLong(value.Number())) {
    WriteLong(variant, static_cast<LONG>(value.Number()));
  } else {
    WriteNumber(variant, value.Number());
  }
  return variant;
}

Value ValueOf(const VARIANT& variant) {
  Variant plain;
  if (FAILED(ReadDirect(variant, plain))) RaiseConversion();
  const VARIANT& held = plain.Get();
  switch (V_VT(&held)) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_BSTR:
      return TextOfBstr(V_BSTR(&held));
    case VT_DATE:
      if (!std::isfinite(V_DATE(&held))) throw RuntimeError(error_number::kOverflow);
      try {
        return Date::FromSerial(V_DATE(&held));
      } catch (const RuntimeError&) {
        RaiseConversion();
      }
    case VT_DISPATCH:
      return DefaultOf(V_DISPATCH(&held));
    case VT_BOOL:
    case VT_I1:
    case VT_I2:
    case VT_I4:
    case VT_I8:
    case VT_INT:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_UI8:
    case VT_UINT:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DECIMAL:
      return NumberOf(held);
    default:
      RaiseConversion();
  }
}

LONG DataTypeOf(const ColumnType& type, Dialect dialect) {
  constexpr LONG kInteger = 3;
  constexpr LONG kDouble = 5;
  constexpr LONG kDate = 7;
  constexpr LONG kVariant = 12;
  constexpr LONG kTimeStamp = 135;
  constexpr LONG kVarWChar = 202;
  constexpr LONG kLongVarWChar = 203;
  switch (type.kind) {
    case ColumnKind::kText:
      return type.length != 0 ? kVarWChar : kLongVarWChar;
    case ColumnKind::kNumber:
      return type.whole_numbers ? kInteger : kDouble;
    case ColumnKind::kDate:
      return dialect == Dialect::kSqlServer ? kTimeStamp : kDate;
    case ColumnKind::kUntyped:
      break;
  }
  return kVariant;
}

LONG DefinedSizeOf(const ColumnType& type) {
  constexpr LONG kUnlimited = 1'073'741'823;
  switch (type.kind) {
    case ColumnKind::kText:
      return type.length != 0 ? static_cast<LONG>(type.length) : kUnlimited;
    case ColumnKind::kNumber:
      return type.whole_numbers ? LONG{sizeof(LONG)} : LONG{sizeof(double)};
    case ColumnKind::kDate:
      return sizeof(DATE);
    case ColumnKind::kUntyped:
      break;
  }
  return sizeof(VARIANT);
}

}  // namespace orvendal
