#include "adapters/ado/ado_value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <new>

#include "adapters/automation/bstr.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/variant.h"
#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

// Whole numbers below it have 15 digits at most, which a double holds and every conversion to text shows.
constexpr std::uint64_t kBeyondDigits = 1'000'000'000'000'000;
constexpr int kSingleDigits = 7;

std::uint64_t Magnitude(std::int64_t number) {
  return number < 0 ? 0 - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
}

/// A single shows 7 digits: 0.1 is not to become 0.100000001490116.
double NumberOfSingle(float number) {
  std::array<char, 32> digits;
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                     std::chars_format::scientific, kSingleDigits - 1);
  double shown = number;
  std::from_chars(digits.data(), written.ptr, shown);
  return shown;
}

Value NumberOf(const VARIANT& value, LCID lcid) {
  double number = 0.0;
  Check(ReadNumber(value, lcid, number));
  return number;
}

/// `digits` is the number without its decimal mark.
Value NumberOrText(const VARIANT& value, std::uint64_t digits, LCID lcid) {
  if (digits < kBeyondDigits) return NumberOf(value, lcid);
  std::string text;
  Check(ReadText(value, lcid, text));
  return text;
}

Value ValueOfDirect(const VARIANT& value, LCID lcid) {
  switch (V_VT(&value)) {
    case VT_NULL:
      return {};
    case VT_EMPTY:
      return "";
    case VT_BSTR:
      return TextOfBstr(V_BSTR(&value));
    case VT_DATE:
      if (!std::isfinite(V_DATE(&value))) throw RuntimeError(error_number::kOverflow);
      return Date::FromSerial(V_DATE(&value));
    case VT_R8:
      return V_R8(&value);
    case VT_R4:
      return NumberOfSingle(V_R4(&value));
    case VT_I1:
    case VT_I2:
    case VT_I4:
    case VT_INT:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_UINT:
    case VT_BOOL:
      return NumberOf(value, lcid);
    case VT_I8:
      return NumberOrText(value, Magnitude(V_I8(&value)), lcid);
    case VT_UI8:
      return NumberOrText(value, V_UI8(&value), lcid);
    case VT_CY:
      return NumberOrText(value, Magnitude(V_CY(&value).int64), lcid);
    case VT_DECIMAL: {
      const DECIMAL& decimal = V_DECIMAL(&value);
      return NumberOrText(value, decimal.Hi32 == 0 ? decimal.Lo64 : kBeyondDigits, lcid);
    }
    default:
      throw RuntimeError(error_number::kTypeMismatch);
  }
}

}  // namespace

Value ValueOf(const VARIANT& value, LCID lcid) {
  if (!V_ISBYREF(&value)) return ValueOfDirect(value, lcid);
  Variant direct;
  const HRESULT read = ReadDirect(value, direct);
  if (read == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(read)) throw RuntimeError(error_number::kTypeMismatch);
  return ValueOfDirect(direct.Get(), lcid);
}

void WriteValue(VARIANT& variant, const Value& value) {
  if (value.IsNull()) {
    V_VT(&variant) = VT_NULL;
  } else if (value.IsText()) {
    WriteText(variant, value.Text());
  } else if (value.IsDate()) {
    V_VT(&variant) = VT_DATE;
    V_DATE(&variant) = value.AsDate().Serial();
  } else {
    WriteNumber(variant, value.Number());
  }
}

}  // namespace orvendal
