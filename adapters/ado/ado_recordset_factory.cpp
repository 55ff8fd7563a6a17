#include "adapters/ado/ado_recordset_factory.h"

#include "adapters/ado/ado_identity.h"
#include "adapters/ado/ado_recordset.h"
#include "adapters/automation/create_object.h"

namespace orvendal {

RecordsetRef AdoRecordsetFactory::NewRecordset() {
  const ComPtr<IUnknown> made = CreateObject(ado::kRecordsetClass, CLSCTX_INPROC_SERVER);
  ComPtr<Recordset15> recordset = AdoRecordset::InterfaceOf(made.Get());
  if (!recordset) RaiseNoSuchInterface();
  return std::make_shared<AdoRecordset>(std::move(recordset));
}

}  // namespace orvendal
