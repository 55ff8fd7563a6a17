#pragma once

#include <activscp.h>

#include <map>
#include <string>
#include <vector>

#include "tests/adapters/com/fake_object.h"

namespace orvendal {

/// What a script says with `nota.Di text`.
class ScriptNotes final : public FakeObject<IDispatch> {
 public:
  std::vector<std::string> lines;

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* exception, UINT* wrong) override;
};

/// The system's VBScript engine with objects of the test under names of their own.
class ScriptEngine {
 public:
  /// The objects stay the caller's and outlive the engine.
  explicit ScriptEngine(std::map<std::wstring, IDispatch*> objects);
  ~ScriptEngine();
  ScriptEngine(const ScriptEngine&) = delete;
  ScriptEngine& operator=(const ScriptEngine&) = delete;

  /// Runs the text; the description of an error that the script did not handle, or an empty text.
  std::string Run(const std::wstring& text);

 private:
  class Site;
  ComPtr<Site> site_;
  ComPtr<IActiveScript> engine_;
};

}  // namespace orvendal
