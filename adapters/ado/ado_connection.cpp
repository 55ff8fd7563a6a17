#include "adapters/ado/ado_connection.h"

#include "adapters/ado/ado_call.h"
#include "adapters/ado/ado_identity.h"
#include "adapters/automation/bstr.h"
#include "adapters/automation/variant.h"
#include "platform/data/ado_error.h"

namespace orvendal {

ComPtr<Connection15> AdoConnection::InterfaceOf(IUnknown* object) {
  return ado::QueryAny<Connection15>(
      object, {ado::kConnection, ado::kNewerConnection, ado::kConnection15, ado::kNewerConnection15});
}

std::string AdoConnection::Provider() const {
  BstrCell name;
  Ask([&] { return object_->get_Provider(name.InOut()); });
  return name.Text();
}

// ADO converts by the user's region, as automation does, and takes what that takes: "1.234,5" too.
void AdoConnection::CheckNumber(const std::string& text) const {
  Variant value;
  WriteText(*value.Address(), text);
  double number = 0.0;
  if (FAILED(ReadNumber(value.Get(), LOCALE_USER_DEFAULT, number))) {
    throw AdoError(ado_error::kDataConversion);
  }
}

void AdoConnection::Close() {
  Ask([&] { return object_->Close(); });
}

}  // namespace orvendal
