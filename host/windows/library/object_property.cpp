#include "host/windows/library/object_property.h"

#include "adapters/automation/bstr.h"
#include "adapters/automation/error_boundary.h"
#include "adapters/automation/variant.h"

namespace orvendal {
namespace {

DISPID MemberOf(IDispatch* object, const wchar_t* name) {
  if (object == nullptr) throw RuntimeError(error_number::kObjectNotSet);
  auto* text = const_cast<LPOLESTR>(name);
  DISPID member = DISPID_UNKNOWN;
  if (FAILED(object->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &member))) {
    throw RuntimeError(error_number::kNoSuchMember);
  }
  return member;
}

void Invoke(IDispatch* object, DISPID member, WORD flags, DISPPARAMS& arguments, VARIANT* result) {
  ForgetErrorInformation();
  EXCEPINFO exception{};
  const HRESULT called =
      object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments, result, &exception, nullptr);
  const std::string description = TextOfBstr(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  if (called == DISP_E_EXCEPTION) throw RuntimeError(NumberOfHresult(exception.scode), description);
  if (FAILED(called)) throw RuntimeError(error_number::kNoSuchMember);
}

void Get(IDispatch* object, const wchar_t* name, Variant& value) {
  DISPPARAMS none{};
  Invoke(object, MemberOf(object, name), DISPATCH_PROPERTYGET, none, value.Address());
}

void Put(IDispatch* object, const wchar_t* name, Variant& value) {
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS one{value.Address(), &put, 1, 1};
  Invoke(object, MemberOf(object, name), DISPATCH_PROPERTYPUT, one, nullptr);
}

}  // namespace

std::string TextProperty(IDispatch* object, const wchar_t* name) {
  Variant value;
  Get(object, name, value);
  std::string text;
  if (FAILED(ReadText(value.Get(), LOCALE_USER_DEFAULT, text))) {
    throw RuntimeError(error_number::kTypeMismatch);
  }
  return text;
}

LONG LongProperty(IDispatch* object, const wchar_t* name) {
  Variant value;
  Get(object, name, value);
  LONG number = 0;
  if (FAILED(ReadLong(value.Get(), LOCALE_USER_DEFAULT, number))) {
    throw RuntimeError(error_number::kTypeMismatch);
  }
  return number;
}

void SetTextProperty(IDispatch* object, const wchar_t* name, const std::string& text) {
  Variant value;
  WriteText(*value.Address(), text);
  Put(object, name, value);
}

void SetLongProperty(IDispatch* object, const wchar_t* name, LONG number) {
  Variant value;
  WriteLong(*value.Address(), number);
  Put(object, name, value);
}

}  // namespace orvendal
