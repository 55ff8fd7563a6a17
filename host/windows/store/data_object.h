#pragma once

#include <span>
#include <utility>

#include "adapters/ado/ado_identity.h"
#include "adapters/automation/com_ptr.h"
#include "adapters/automation/counted.h"
#include "adapters/automation/dispatch_rules.h"
#include "data_objects.h"

namespace orvendal {

/// What one kind of data object is to its clients.
struct DataObjectKind {
  const wchar_t* source;              // of the errors that are ADO's own
  const GUID& interface_id;           // by which the type library describes it
  std::span<const GUID> identifiers;  // that it answers to, older and newer, its bases among them
};

/// Keeps the descriptions of interfaces that have been loaded for as long as one of these lives.
class TypeDescriptionsHold {
 public:
  TypeDescriptionsHold() noexcept;
  ~TypeDescriptionsHold();
  TypeDescriptionsHold(const TypeDescriptionsHold&) = delete;
  TypeDescriptionsHold& operator=(const TypeDescriptionsHold&) = delete;
};

// What does not depend on the kind of object.

/// An interface's description in the module's type library; loaded once while a TypeDescriptionsHold lives.
[[nodiscard]] HRESULT DescribeInterface(REFIID iid, ComPtr<ITypeInfo>& description) noexcept;
/// Invoke through the type library: converts the arguments and calls the method at its place. Counts that fit
/// come back as VT_I4, which every script engine knows.
[[nodiscard]] HRESULT InvokeDescribed(REFIID iid, void* object, DISPID member, WORD flags,
                                      DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                      UINT* wrong) noexcept;
/// To be called while an exception is handled: leaves it as error information and gives its HRESULT. Errors
/// of ADO name `source`, those of the store (negative numbers) "OrvendalStore".
[[nodiscard]] HRESULT ReportDataError(const wchar_t* source, REFIID iid) noexcept;
/// A failed vtable call as a failed Invoke: takes the error information into `exception`.
[[nodiscard]] HRESULT AsInvokeFailure(HRESULT result, EXCEPINFO* exception) noexcept;
/// Error 3251.
[[noreturn]] void RaiseNotProvided();

constexpr VARIANT_BOOL FlagOf(bool flag) {
  return flag ? VARIANT_TRUE : VARIANT_FALSE;
}

/// What every data object does alike: counting, identities, Invoke, errors. Nothing thrown leaves a method.
template <typename Interface>
class DataObject : public Counted<Interface, ISupportErrorInfo> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (iid == IID_ISupportErrorInfo) {
      *object = static_cast<ISupportErrorInfo*>(this);
    } else if (Answers(iid)) {
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
    ComPtr<ITypeInfo> description;
    const HRESULT result = DescribeInterface(kind_.interface_id, description);
    *info = description.Detach();
    return result;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*lcid*/,
                                          DISPID* ids) noexcept override {
    if (!IsReserved(iid)) return DISP_E_UNKNOWNINTERFACE;
    if (count == 0) return S_OK;
    if (!names || !ids) return E_POINTER;
    ComPtr<ITypeInfo> description;
    const HRESULT result = DescribeInterface(kind_.interface_id, description);
    return FAILED(result) ? result : description->GetIDsOfNames(names, count, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID /*lcid*/, WORD flags,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrong) noexcept override {
    if (!IsReserved(iid)) return DISP_E_UNKNOWNINTERFACE;
    if (const HRESULT whole = CheckArguments(arguments); FAILED(whole)) return whole;
    const ComPtr<IUnknown> self(static_cast<Interface*>(this));
    return InvokeDescribed(kind_.interface_id, static_cast<Interface*>(this), member, flags, arguments,
                           result, exception, wrong);
  }
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override {
    return Answers(iid) ? S_OK : S_FALSE;
  }

 protected:
  explicit DataObject(const DataObjectKind& kind) noexcept : kind_(kind) {}

  template <typename Body>
  HRESULT Do(Body&& body) const noexcept {
    try {
      std::forward<Body>(body)();
      return S_OK;
    } catch (...) {
      return ReportDataError(kind_.source, kind_.interface_id);
    }
  }
  /// Sets `result` to what `body` returns.
  template <typename Result, typename Body>
  HRESULT Give(Result* result, Body&& body) const noexcept {
    if (!result) return E_POINTER;
    *result = {};
    return Do([&] { *result = std::forward<Body>(body)(); });
  }
  /// For the members that keep their places and do nothing.
  HRESULT NotProvided() const noexcept { return Do(RaiseNotProvided); }
  template <typename Result>
  HRESULT Refuse(Result* result) const noexcept {
    if (result) *result = {};
    return NotProvided();
  }

 private:
  bool Answers(REFIID iid) const noexcept {
    if (iid == IID_IUnknown || iid == IID_IDispatch) return true;
    for (const GUID& identifier : kind_.identifiers) {
      if (iid == identifier) return true;
    }
    return false;
  }

  const DataObjectKind& kind_;
  TypeDescriptionsHold descriptions_;
};

}  // namespace orvendal
