#include "adapters/com/module_parts.h"

#include "adapters/ado/ado_recordset_factory.h"
#include "adapters/ado/ado_wrappers.h"
#include "adapters/win32/module_use.h"
#include "adapters/win32/win32_window_host.h"

namespace orvendal {
namespace {

// ADO's _Connection and _Recordset, each by its older and its newer identifier.
constexpr GUID kConnection[] = {
    {0x00000550, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}},
    {0x00001550, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}}};
constexpr GUID kRecordset[] = {
    {0x00000556, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}},
    {0x00001556, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}}};

/// ADO's own objects outside, their wrappers inside.
class AdoBridge final : public StoreBridge {
 public:
  ConnectionRef ConnectionOf(IDispatch* object) override { return object ? WrapConnection(object) : nullptr; }
  RecordsetRef RecordsetOf(IDispatch* object) override { return object ? WrapRecordset(object) : nullptr; }
  ComPtr<IDispatch> ObjectOf(const ConnectionRef& connection) override {
    return Outside(Unwrap(connection), kConnection);
  }
  ComPtr<IDispatch> ObjectOf(const RecordsetRef& recordset) override {
    return Outside(Unwrap(recordset), kRecordset);
  }

 private:
  /// The pointer that callers early-bind to; the bare IDispatch of an object that answers to neither.
  static ComPtr<IDispatch> Outside(IUnknown* object, const GUID (&iids)[2]) {
    const ComPtr<IUnknown> given(object);
    for (const GUID& iid : iids) {
      if (auto early_bound = given.Query<IDispatch>(iid)) return early_bound;
    }
    return given.Query<IDispatch>(IID_IDispatch);
  }
};

std::intptr_t WindowOf(WindowHost& windows, const Form& form) {
  return reinterpret_cast<std::intptr_t>(static_cast<Win32WindowHost&>(windows).HandleOf(form));
}

}  // namespace

ModuleParts MakeModuleParts() {
  ModuleParts parts;
  parts.windows = std::make_unique<Win32WindowHost>(Win32HostOptions{});
  parts.recordsets = std::make_unique<AdoRecordsetFactory>();
  parts.store = std::make_unique<AdoBridge>();
  parts.native_window = WindowOf;
  parts.windows_in_use = ModuleIsInUse;
  return parts;
}

}  // namespace orvendal
