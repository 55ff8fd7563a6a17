#pragma once

#include <initializer_list>
#include <type_traits>
#include <utility>

#include "adapters/automation/com_ptr.h"
#include "adapters/automation/counted.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/type_information.h"

namespace orvendal {

// What does not depend on the interface.

/// The numbers of names by the description of an interface in the module's type library.
[[nodiscard]] HRESULT NumbersByDescription(REFIID iid, LPOLESTR* names, UINT count, DISPID* ids) noexcept;
/// Calls a member at its place, with arguments counted and converted as the description says.
[[nodiscard]] HRESULT CallByDescription(REFIID iid, void* object, const DispatchCall& call) noexcept;
[[nodiscard]] HRESULT CallByDescription(ITypeInfo& description, void* object,
                                        const DispatchCall& call) noexcept;
/// Fills `info` with the description, for whoever asks for it by `index`.
[[nodiscard]] HRESULT GiveDescription(REFIID iid, UINT index, ITypeInfo** info) noexcept;

/// An object that is called both by its vtable and by names, as every class is that a module hands out:
/// counting, identities, description, IDispatch with all of its arguments checked, errors with number and
/// text. Nothing thrown leaves a method, and a client that lets go of the object in the middle of a call does
/// it no harm.
///
/// The module's type library describes `Interface`. An object whose only interface is IDispatch itself has no
/// description: it says what its names are and what calling them does.
template <typename Interface, typename... Others>
class DualObject : public Counted<Interface, ISupportErrorInfo, Others...> {
  static constexpr bool kIsDescribed = !std::is_same_v<Interface, IDispatch>;

 public:
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (!count) return E_POINTER;
    *count = kIsDescribed ? 1 : 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID /*lcid*/, ITypeInfo** info) noexcept override {
    if (!info) return E_POINTER;
    *info = nullptr;
    return kIsDescribed ? GiveDescription(__uuidof(Interface), index, info) : DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID /*lcid*/,
                                          DISPID* ids) noexcept override {
    const HRESULT whole = CheckNames(reserved, names, count, ids);
    if (whole != S_OK) return whole == S_FALSE ? S_OK : whole;
    try {
      return NumbersOf(names, count, ids);
    } catch (...) {
      return Report();
    }
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID reserved, LCID lcid, WORD flags,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrong) noexcept override {
    if (const HRESULT whole = CheckCall(reserved, arguments, result, wrong); FAILED(whole)) return whole;
    const ComPtr<IUnknown> self(static_cast<Interface*>(this));
    ForgetErrorInformation();
    try {
      return Call({member, lcid, flags, *arguments, result, exception, wrong});
    } catch (const ArgumentError& error) {
      if (wrong) *wrong = error.index;
      return error.result;
    } catch (...) {
      return FillExceptionInfo(exception, SourceOfCurrentError());
    }
  }
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override {
    return !IsMissing(iid) && IsOwn(iid) ? S_OK : S_FALSE;
  }

 protected:
  /// Further identifiers of the object's own interface: older ones, or those that it is derived from.
  virtual bool AnswersTo(REFIID /*iid*/) const noexcept { return false; }
  /// What the error that is being handled names as its source.
  virtual const wchar_t* SourceOfCurrentError() const noexcept { return ErrorSource(); }
  /// The names are all there, and their numbers unknown. May throw.
  virtual HRESULT NumbersOf(LPOLESTR* names, UINT count, DISPID* ids) {
    return kIsDescribed ? NumbersByDescription(__uuidof(Interface), names, count, ids) : DISP_E_UNKNOWNNAME;
  }
  /// May throw ArgumentError, and what becomes DISP_E_EXCEPTION.
  virtual HRESULT Call(const DispatchCall& call) {
    if (!kIsDescribed) return DISP_E_MEMBERNOTFOUND;
    return CallByDescription(__uuidof(Interface), static_cast<Interface*>(this), call);
  }

  void* Find(REFIID iid) noexcept override {
    if (iid == IID_IDispatch || AnswersTo(iid)) return static_cast<Interface*>(this);
    return Counted<Interface, ISupportErrorInfo, Others...>::Find(iid);
  }

  /// The body of a method: what it throws becomes the method's result and error information.
  template <typename Body>
  HRESULT Do(Body&& body) noexcept {
    const ComPtr<IUnknown> self(static_cast<Interface*>(this));
    try {
      std::forward<Body>(body)();
      return S_OK;
    } catch (...) {
      return Report();
    }
  }
  /// The same for a method with arguments by reference: E_POINTER, and nothing done, if one of them is
  /// missing.
  template <typename Body>
  HRESULT Do(std::initializer_list<const void*> references, Body&& body) noexcept {
    for (const void* const reference : references) {
      if (!reference) return Refuse(E_POINTER);
    }
    return Do(std::forward<Body>(body));
  }
  /// For a method whose only argument by reference is its result: sets it to what `body` returns, empty if
  /// that fails.
  template <typename Result, typename Body>
  HRESULT Give(Result* result, Body&& body) noexcept {
    return Do({result}, [&] {
      *result = {};
      *result = std::forward<Body>(body)();
    });
  }

 private:
  bool IsOwn(REFIID iid) const noexcept { return iid == __uuidof(Interface) || AnswersTo(iid); }
  HRESULT Report() const noexcept {
    return ReportCurrentException(__uuidof(Interface), SourceOfCurrentError());
  }
  /// Forgets the error information of an earlier call, which the thread still holds.
  static HRESULT Refuse(HRESULT result) noexcept {
    ForgetErrorInformation();
    return result;
  }

  TypeDescriptionsHold descriptions_;
};

/// One that clients make by its class: it describes its class too.
template <typename Interface, typename Class, typename... Others>
class ClassObject : public DualObject<Interface, IProvideClassInfo, Others...> {
 public:
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override {
    if (!info) return E_POINTER;
    *info = nullptr;
    return GiveDescription(__uuidof(Class), 0, info);
  }
};

}  // namespace orvendal
