#include "adapters/com/orvendal_arguments.h"

#include <array>

#include "adapters/automation/variant.h"
#include "adapters/com/identity.h"

namespace orvendal {
namespace {

constexpr std::array<const wchar_t*, kOrvendalArgumentCount> kNames = {L"DatosClase", L"Suc", L"Puest",
                                                                       L"Turn"};

/// For each place of the function the index in rgvarg, or -1.
using Places = std::array<int, kOrvendalArgumentCount>;

HRESULT Arrange(const DISPPARAMS& given, Places& places, UINT& wrong) {
  places.fill(-1);
  if (given.cNamedArgs > given.cArgs || given.cArgs > kOrvendalArgumentCount) return DISP_E_BADPARAMCOUNT;
  const UINT positional = given.cArgs - given.cNamedArgs;
  for (UINT place = 0; place < positional; ++place) places[place] = static_cast<int>(given.cArgs - 1 - place);
  for (UINT index = 0; index < given.cNamedArgs; ++index) {
    const DISPID name = given.rgdispidNamedArgs[index];
    wrong = index;
    if (name < 0 || name >= static_cast<DISPID>(kOrvendalArgumentCount)) return DISP_E_PARAMNOTFOUND;
    int& place = places[static_cast<std::size_t>(name)];
    if (place != -1) return DISP_E_PARAMNOTFOUND;  // given twice
    place = static_cast<int>(index);
  }
  return S_OK;
}

HRESULT ReadHostObject(const VARIANT& value, ComPtr<IUnknown>& object) {
  ComPtr<IUnknown> given;
  const HRESULT result = ReadObject(value, given);
  if (FAILED(result) || !given) return result;
  object = given.Query<IUnknown>(identity::kHostInterface);
  return object ? S_OK : DISP_E_TYPEMISMATCH;
}

}  // namespace

DISPID OrvendalArgumentByName(const wchar_t* name) {
  for (std::size_t place = 0; place < kNames.size(); ++place) {
    if (CompareStringOrdinal(name, -1, kNames[place], -1, TRUE) == CSTR_EQUAL)
      return static_cast<DISPID>(place);
  }
  return DISPID_UNKNOWN;
}

HRESULT ReadOrvendalArguments(const DISPPARAMS& given, LCID lcid, OrvendalArguments& arguments, UINT* wrong) {
  Places places;
  UINT where = 0;
  HRESULT result = Arrange(given, places, where);
  // Too few without any name among them is a wrong count; a gap between names is a missing argument.
  if (SUCCEEDED(result) && given.cArgs < kOrvendalArgumentCount && given.cNamedArgs == 0) {
    return DISP_E_BADPARAMCOUNT;
  }
  const std::array<std::string*, kOrvendalArgumentCount> texts = {nullptr, &arguments.suc, &arguments.puest,
                                                                  &arguments.turn};
  for (std::size_t place = 0; place < kOrvendalArgumentCount && SUCCEEDED(result); ++place) {
    if (places[place] < 0) return DISP_E_PARAMNOTOPTIONAL;
    where = static_cast<UINT>(places[place]);
    const VARIANT& value = given.rgvarg[where];
    if (IsOmitted(value)) {
      result = DISP_E_PARAMNOTOPTIONAL;
    } else if (texts[place]) {
      result = ReadText(value, lcid, *texts[place]);
    } else {
      result = ReadHostObject(value, arguments.datos_clase);
    }
  }
  if (FAILED(result) && wrong && result != DISP_E_BADPARAMCOUNT) *wrong = where;
  return result;
}

}  // namespace orvendal
