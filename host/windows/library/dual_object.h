#pragma once

#include <utility>

#include "adapters/automation/counted.h"
#include "adapters/automation/dispatch_rules.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/type_information.h"

namespace orvendal {

/// Calls a member of a dual interface through its description; what the member fails with is in `exception`.
[[nodiscard]] HRESULT InvokeDual(void* object, ITypeInfo& description, DISPID member, WORD flags,
                                 DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception, UINT* wrong);

/// What all objects of the library have in common: counting, identities, Invoke by the type library, errors
/// with their descriptions. Nothing thrown leaves a method.
template <typename Interface>
class DualObject : public Counted<Interface, ISupportErrorInfo, IProvideClassInfo> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (iid == IID_ISupportErrorInfo) {
      *object = static_cast<ISupportErrorInfo*>(this);
    } else if (iid == IID_IProvideClassInfo) {
      *object = static_cast<IProvideClassInfo*>(this);
    } else if (iid == IID_IUnknown || iid == IID_IDispatch || Answers(iid)) {
      *object = static_cast<Interface*>(this);
    } else {
      return E_NOINTERFACE;
    }
    this->AddRef();
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID /*lcid*/, ITypeInfo** info) noexcept override {
    if (!info) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return Describe(interface_, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*lcid*/,
                                          DISPID* ids) noexcept override {
    if (!IsReserved(iid)) return DISP_E_UNKNOWNINTERFACE;
    if (count == 0) return S_OK;
    if (!names || !ids) return E_POINTER;
    const HRESULT described = Load();
    return FAILED(described) ? described : description_->GetIDsOfNames(names, count, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID /*lcid*/, WORD flags,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrong) noexcept override {
    if (!IsReserved(iid)) return DISP_E_UNKNOWNINTERFACE;
    if (const HRESULT whole = CheckArguments(arguments); FAILED(whole)) return whole;
    if (const HRESULT described = Load(); FAILED(described)) return described;
    const ComPtr<IUnknown> self(static_cast<Interface*>(this));
    return InvokeDual(static_cast<Interface*>(this), *description_.Get(), member, flags, arguments, result,
                      exception, wrong);
  }

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override {
    return Answers(iid) ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override {
    if (!info) return E_POINTER;
    *info = nullptr;
    return Describe(class_, info);
  }

 protected:
  DualObject(const GUID& interface_id, const GUID& class_id) noexcept
      : interface_(interface_id), class_(class_id) {}

  /// Further interfaces that the object's own one is derived from.
  virtual bool AnswersBase(REFIID /*iid*/) const noexcept { return false; }

  template <typename Body>
  HRESULT Do(Body&& body) noexcept {
    // The caller may let go of the object while a dialog of it is up.
    const ComPtr<IUnknown> self(static_cast<Interface*>(this));
    return Guarded(interface_, std::forward<Body>(body));
  }

 private:
  bool Answers(REFIID iid) const noexcept { return iid == interface_ || AnswersBase(iid); }
  HRESULT Load() noexcept { return description_ ? S_OK : OwnTypeInfo(interface_, description_); }
  static HRESULT Describe(const GUID& guid, ITypeInfo** info) noexcept {
    ComPtr<ITypeInfo> own;
    const HRESULT result = OwnTypeInfo(guid, own);
    *info = own.Detach();
    return result;
  }

  const GUID interface_;
  const GUID class_;
  ComPtr<ITypeInfo> description_;
};

}  // namespace orvendal
