#include "adapters/com/automation_call.h"

#include "adapters/automation/variant.h"

namespace orvendal {
namespace {

template <typename Result, typename Reader>
Result Read(const VARIANT& value, LCID lcid, UINT index, Reader reader) {
  Result read{};
  const HRESULT result = reader(value, lcid, read);
  if (FAILED(result)) throw ArgumentError{result, index};
  return read;
}

}  // namespace

bool AutomationCall::Has(UINT place) const {
  return place < Count() && !IsOmitted(given_.rgvarg[IndexOf(place)]);
}

void AutomationCall::Expect(UINT fewest, UINT most) const {
  if (Count() < fewest || Count() > most) throw ArgumentError{DISP_E_BADPARAMCOUNT, 0};
}

const VARIANT& AutomationCall::At(UINT place) const {
  if (place >= Count()) throw ArgumentError{DISP_E_BADPARAMCOUNT, 0};
  if (!Has(place)) throw ArgumentError{DISP_E_PARAMNOTOPTIONAL, IndexOf(place)};
  return given_.rgvarg[IndexOf(place)];
}

std::string AutomationCall::Text(UINT place) const {
  return Read<std::string>(At(place), lcid_, IndexOf(place), ReadText);
}

double AutomationCall::Number(UINT place) const {
  return Read<double>(At(place), lcid_, IndexOf(place), ReadNumber);
}

LONG AutomationCall::Long(UINT place) const {
  return Read<LONG>(At(place), lcid_, IndexOf(place), ReadLong);
}

bool AutomationCall::Flag(UINT place) const {
  return Read<bool>(At(place), lcid_, IndexOf(place), ReadFlag);
}

bool AutomationCall::IsText(UINT place) const {
  const VARIANT* value = &At(place);
  if (V_VT(value) == (VT_BYREF | VT_VARIANT)) value = V_VARIANTREF(value);
  return (V_VT(value) & VT_TYPEMASK) == VT_BSTR;
}

void AutomationCall::Give(const std::string& text) const {
  if (result_) WriteText(*result_, text);
}

void AutomationCall::Give(double number) const {
  if (result_) WriteNumber(*result_, number);
}

void AutomationCall::GiveLong(LONG number) const {
  if (result_) WriteLong(*result_, number);
}

void AutomationCall::GiveFlag(bool flag) const {
  if (result_) WriteFlag(*result_, flag);
}

void AutomationCall::Give(ComPtr<IDispatch> object) const {
  if (result_) WriteObject(*result_, std::move(object));
}

void AutomationCall::Give(ComPtr<IUnknown> object) const {
  if (!result_) return;
  V_VT(result_) = VT_UNKNOWN;
  V_UNKNOWN(result_) = object.Detach();
}

Value AutomationCall::As(PropertyType type) const {
  switch (type) {
    case PropertyType::kText:
      return Text(0);
    case PropertyType::kWhole:
      return static_cast<double>(Long(0));
    case PropertyType::kFlag:
      return Flag(0) ? 1 : 0;
    case PropertyType::kColor:
      return static_cast<double>(static_cast<ColorWord>(Long(0)));
    case PropertyType::kNumber:
    case PropertyType::kDate:
      break;
  }
  return Number(0);
}

void AutomationCall::Give(const Value& value, PropertyType type) const {
  switch (type) {
    case PropertyType::kText:
      return Give(value.Text());
    case PropertyType::kWhole:
      return GiveLong(static_cast<LONG>(value.Number()));
    case PropertyType::kFlag:
      return GiveFlag(value.Number() != 0);
    case PropertyType::kColor:
      return GiveLong(static_cast<LONG>(static_cast<ColorWord>(value.Number())));
    case PropertyType::kNumber:
    case PropertyType::kDate:  // which no property of a member is
      return Give(value.Number());
  }
}

}  // namespace orvendal
