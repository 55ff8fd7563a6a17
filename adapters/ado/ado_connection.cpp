#include "adapters/ado/ado_connection.h"

#include "adapters/ado/ado_call.h"
#include "adapters/ado/ado_identity.h"
#include "adapters/automation/bstr.h"

namespace orvendal {

ComPtr<Connection15> AdoConnection::InterfaceOf(IUnknown* object) {
  return ado::QueryAny<Connection15>(
      object, {ado::kConnection, ado::kNewerConnection, ado::kConnection15, ado::kNewerConnection15});
}

std::string AdoConnection::Provider() const {
  BstrCell name;
  ado::Ask([&] { return object_->get_Provider(name.InOut()); });
  return name.Text();
}

}  // namespace orvendal
