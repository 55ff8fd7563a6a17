#include "adapters/ado/ado_recordset_factory.h"

#include "adapters/ado/ado_identity.h"
#include "adapters/ado/ado_recordset.h"
#include "adapters/automation/module_lifetime.h"
#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

constexpr std::int32_t kCannotCreateObject = 429;
constexpr std::int32_t kNoSuchInterface = 430;

}  // namespace

RecordsetRef AdoRecordsetFactory::NewRecordset() {
  const module_lifetime::Hold hold;
  ComPtr<IUnknown> made;
  if (FAILED(CoCreateInstance(ado::kRecordsetClass, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                              made.ReceiveVoid()))) {
    throw RuntimeError(kCannotCreateObject, "ActiveX component can't create object");
  }
  ComPtr<Recordset15> recordset = AdoRecordset::InterfaceOf(made.Get());
  if (!recordset) {
    throw RuntimeError(kNoSuchInterface,
                       "Class does not support Automation or does not support expected interface");
  }
  return std::make_shared<AdoRecordset>(std::move(recordset));
}

}  // namespace orvendal
