#include "host/windows/library/in_out.h"

#include "adapters/ado/ado_wrappers.h"
#include "platform/base/runtime_error.h"

namespace orvendal {

void RequireReference(const void* place) {
  constexpr std::int32_t kInvalidCall = 5;
  if (place == nullptr) throw RuntimeError(kInvalidCall);
}

TextInOut::TextInOut(BSTR* place) : place_(place) {
  RequireReference(place);
  text = was_ = TextOfBstr(*place);
}

void TextInOut::Give() {
  if (text == was_) return;
  BSTR replacement = MakeBstr(text);
  SysFreeString(*place_);
  *place_ = replacement;
}

ConnectionInOut::ConnectionInOut(IDispatch** place) : place_(place) {
  RequireReference(place);
  connection = was_ = WrapConnection(*place);
}

void ConnectionInOut::Give() {
  if (connection != was_) Replace(*place_, ComPtr<IDispatch>(Unwrap(connection)));
}

void Replace(IDispatch*& place, ComPtr<IDispatch> object) {
  const ComPtr<IDispatch> old = ComPtr<IDispatch>::Adopt(place);
  place = object.Detach();
}

void GiveText(BSTR* place, const std::string& text) {
  RequireReference(place);
  *place = MakeBstr(text);
}

}  // namespace orvendal
