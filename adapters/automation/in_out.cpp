#include "adapters/automation/in_out.h"

namespace orvendal {

void ReplaceText(BSTR& place, const std::string& text) {
  BSTR replacement = MakeBstr(text);
  SysFreeString(place);
  place = replacement;
}

void Replace(IDispatch*& place, ComPtr<IDispatch> object) {
  const ComPtr<IDispatch> old = ComPtr<IDispatch>::Adopt(place);
  place = object.Detach();
}

}  // namespace orvendal
