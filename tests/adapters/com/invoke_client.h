#pragma once

#include <string>
#include <vector>

#include "adapters/automation/bstr.h"
#include "adapters/automation/com_headers.h"
#include "adapters/automation/com_ptr.h"

namespace orvendal {

/// A late-bound client: calls members by name with arguments in their natural order, and keeps what came
/// back.
class InvokeClient {
 public:
  explicit InvokeClient(IDispatch* object) : object_(object) { VariantInit(&result); }
  InvokeClient(const InvokeClient&) = delete;
  InvokeClient& operator=(const InvokeClient&) = delete;
  ~InvokeClient() {
    VariantClear(&result);
    ForgetException();
  }

  DISPID IdOf(const wchar_t* name) const {
    auto* text = const_cast<LPOLESTR>(name);
    DISPID id = DISPID_UNKNOWN;
    return SUCCEEDED(object_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id)) ? id
                                                                                           : DISPID_UNKNOWN;
  }
  /// The arguments stay the caller's. The last `names.size()` of them are named by these DISPIDs.
  HRESULT Call(const wchar_t* member, WORD flags, std::vector<VARIANT> arguments,
               std::vector<DISPID> names = {}) {
    VariantClear(&result);
    ForgetException();
    wrong = 99;
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    std::vector<DISPID> reversed_names(names.rbegin(), names.rend());
    DISPPARAMS parameters = {reversed.data(), reversed_names.data(), static_cast<UINT>(reversed.size()),
                             static_cast<UINT>(reversed_names.size())};
    return object_->Invoke(IdOf(member), IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &result,
                           &exception, &wrong);
  }
  IDispatch* Same() const { return object_.Get(); }
  HRESULT Get(const wchar_t* member, std::vector<VARIANT> arguments = {}) {
    return Call(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, std::move(arguments));
  }
  HRESULT Put(const wchar_t* member, VARIANT value) {
    return Call(member, DISPATCH_PROPERTYPUT, {value}, {DISPID_PROPERTYPUT});
  }
  std::string Description() const { return TextOfBstr(exception.bstrDescription); }
  std::string Source() const { return TextOfBstr(exception.bstrSource); }
  std::string ResultText() const {
    return V_VT(&result) == VT_BSTR ? TextOfBstr(V_BSTR(&result)) : "(no text)";
  }

  VARIANT result;
  EXCEPINFO exception = {};
  UINT wrong = 99;

 private:
  void ForgetException() {
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    exception = {};
  }

  ComPtr<IDispatch> object_;
};

// Arguments. Texts are freed by whoever made them.
inline VARIANT Argument(BSTR text) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = text;
  return value;
}
inline VARIANT Argument(LONG number) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_I4;
  V_I4(&value) = number;
  return value;
}
inline VARIANT Argument(IDispatch* object) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_DISPATCH;
  V_DISPATCH(&value) = object;
  return value;
}
inline VARIANT Reference(BSTR* text) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_BYREF | VT_BSTR;
  V_BSTRREF(&value) = text;
  return value;
}
inline VARIANT Reference(IDispatch** object) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_BYREF | VT_DISPATCH;
  V_DISPATCHREF(&value) = object;
  return value;
}
inline VARIANT Reference(VARIANT* other) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&value) = other;
  return value;
}
inline VARIANT OfType(VARTYPE type) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = type;
  return value;
}
inline VARIANT Omitted() {
  VARIANT value = OfType(VT_ERROR);
  V_ERROR(&value) = DISP_E_PARAMNOTFOUND;
  return value;
}

}  // namespace orvendal
