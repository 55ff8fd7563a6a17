#include "adapters/automation/in_out.h"

namespace orvendal {

TextInOut::TextInOut(BSTR* place) : text(TextOfBstr(*place)), place_(place), was_(text) {}

void TextInOut::Give() {
  if (text == was_) return;
  BSTR replacement = MakeBstr(text);
  SysFreeString(*place_);
  *place_ = replacement;
}

void Replace(IDispatch*& place, ComPtr<IDispatch> object) {
  const ComPtr<IDispatch> old = ComPtr<IDispatch>::Adopt(place);
  place = object.Detach();
}

}  // namespace orvendal
