#include "tests/adapters/com/script_engine.h"

#include <gtest/gtest.h>

#include "adapters/automation/bstr.h"
#include "adapters/automation/variant.h"

namespace orvendal {
namespace {

/// {B54F3741-5B07-11CF-A4B0-00AA004A55E8}, the engine of VBScript.
constexpr CLSID kVbScript = {0xB54F3741, 0x5B07, 0x11CF, {0xA4, 0xB0, 0x00, 0xAA, 0x00, 0x4A, 0x55, 0xE8}};
#ifdef _WIN64
using Parser = IActiveScriptParse64;
#else
using Parser = IActiveScriptParse32;
#endif

}  // namespace

HRESULT ScriptNotes::GetIDsOfNames(REFIID /*iid*/, LPOLESTR* names, UINT /*count*/, LCID /*lcid*/,
                                   DISPID* ids) {
  *ids = _wcsicmp(names[0], L"Di") == 0 ? 1 : DISPID_UNKNOWN;
  return *ids == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT ScriptNotes::Invoke(DISPID /*member*/, REFIID /*iid*/, LCID lcid, WORD /*flags*/,
                            DISPPARAMS* arguments, VARIANT* /*result*/, EXCEPINFO* /*exception*/,
                            UINT* /*wrong*/) {
  std::string line;
  const HRESULT read = ReadText(arguments->rgvarg[0], lcid, line);
  lines.push_back(line);
  return read;
}

class ScriptEngine::Site final : public CountedFake<IActiveScriptSite> {
 public:
  std::map<std::wstring, IDispatch*> objects;
  std::string error;

  HRESULT STDMETHODCALLTYPE GetLCID(LCID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item, ITypeInfo**) override {
    const auto entry = objects.find(name);
    if (entry == objects.end() || !(mask & SCRIPTINFO_IUNKNOWN)) return TYPE_E_ELEMENTNOTFOUND;
    entry->second->AddRef();
    *item = entry->second;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* given) override {
    EXCEPINFO info = {};
    given->GetExceptionInfo(&info);
    error = "error " + TextOfBstr(info.bstrDescription);
    SysFreeString(info.bstrSource);
    SysFreeString(info.bstrDescription);
    SysFreeString(info.bstrHelpFile);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

 private:
  void* Find(REFIID iid) override {
    return iid == IID_IActiveScriptSite ? static_cast<IActiveScriptSite*>(this) : nullptr;
  }
};

ScriptEngine::ScriptEngine(std::map<std::wstring, IDispatch*> objects)
    : site_(ComPtr<Site>::Adopt(new Site)) {
  site_->objects = std::move(objects);
  EXPECT_EQ(
      CoCreateInstance(kVbScript, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript, engine_.ReceiveVoid()),
      S_OK);
  engine_->SetScriptSite(site_.Get());
  engine_.Query<Parser>(__uuidof(Parser))->InitNew();
  for (const auto& [name, object] : site_->objects) {
    engine_->AddNamedItem(name.c_str(), SCRIPTITEM_ISVISIBLE);
  }
  engine_->SetScriptState(SCRIPTSTATE_STARTED);
}

ScriptEngine::~ScriptEngine() {
  engine_->Close();
}

std::string ScriptEngine::Run(const std::wstring& text) {
  site_->error.clear();
  const HRESULT result =
      engine_.Query<Parser>(__uuidof(Parser))
          ->ParseScriptText(text.c_str(), nullptr, nullptr, nullptr, 0, 1, 0, nullptr, nullptr);
  if (FAILED(result) && site_->error.empty()) return "the script did not run";
  return site_->error;
}

}  // namespace orvendal
