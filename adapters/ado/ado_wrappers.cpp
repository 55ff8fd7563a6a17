#include "adapters/ado/ado_wrappers.h"

#include "adapters/ado/ado_connection.h"
#include "adapters/ado/ado_recordset.h"
#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

template <typename Wrapper>
std::shared_ptr<Wrapper> Wrap(IUnknown* object) {
  if (!object) return nullptr;
  auto own = Wrapper::InterfaceOf(object);
  if (!own) throw RuntimeError(error_number::kTypeMismatch);
  return std::make_shared<Wrapper>(std::move(own));
}

template <typename Wrapper, typename Reference>
IDispatch* ObjectOf(const Reference& reference) {
  if (!reference) return nullptr;
  const auto* const wrapper = dynamic_cast<const Wrapper*>(reference.get());
  if (!wrapper) throw RuntimeError(error_number::kTypeMismatch);
  return wrapper->Object();
}

}  // namespace

ConnectionRef WrapConnection(IUnknown* object) {
  return Wrap<AdoConnection>(object);
}
RecordsetRef WrapRecordset(IUnknown* object) {
  return Wrap<AdoRecordset>(object);
}
IDispatch* Unwrap(const ConnectionRef& reference) {
  return ObjectOf<AdoConnection>(reference);
}
IDispatch* Unwrap(const RecordsetRef& reference) {
  return ObjectOf<AdoRecordset>(reference);
}

}  // namespace orvendal
