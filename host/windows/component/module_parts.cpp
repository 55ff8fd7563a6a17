#include "adapters/com/module_parts.h"

#include "adapters/ado/ado_recordset_factory.h"
#include "adapters/ado/ado_wrappers.h"
#include "adapters/win32/module_use.h"
#include "adapters/win32/win32_window_host.h"
#include "host/error_words.h"
#include "host/windows/user_language.h"

namespace orvendal {
namespace {

/// ADO's own objects outside, their wrappers inside.
class AdoBridge final : public StoreBridge {
 public:
  ConnectionRef ConnectionOf(IDispatch* object) override { return WrapConnection(object); }
  RecordsetRef RecordsetOf(IDispatch* object) override { return WrapRecordset(object); }
  ComPtr<IDispatch> ObjectOf(const ConnectionRef& connection) override {
    return ComPtr<IDispatch>(Unwrap(connection));
  }
  ComPtr<IDispatch> ObjectOf(const RecordsetRef& recordset) override {
    return ComPtr<IDispatch>(Unwrap(recordset));
  }
};

std::intptr_t WindowOf(WindowHost& windows, const Form& form) {
  return reinterpret_cast<std::intptr_t>(static_cast<Win32WindowHost&>(windows).HandleOf(form));
}

}  // namespace

ModuleParts MakeModuleParts() {
  ModuleParts parts;
  Win32HostOptions windows;
  windows.describe_error = [&words = WordsOf(LanguageOfUser())](const RuntimeError& error) {
    return DescriptionInWords(words, error.Description(), "");
  };
  parts.windows = std::make_unique<Win32WindowHost>(windows);
  parts.recordsets = std::make_unique<AdoRecordsetFactory>();
  parts.store = std::make_unique<AdoBridge>();
  parts.native_window = WindowOf;
  parts.windows_in_use = ModuleIsInUse;
  return parts;
}

}  // namespace orvendal
