#pragma once

#include "adapters/automation/com_ptr.h"
#include "tests/adapters/automation/counted_fake.h"

namespace orvendal {

/// How many objects of the tests live, so that a test sees every reference that is not given back.
inline int& FakesAlive() {
  static int alive = 0;
  return alive;
}

/// An object with one dual interface and no names.
template <typename Interface>
class FakeObject : public CountedFake<Interface> {
 public:
  FakeObject() { ++FakesAlive(); }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return DISP_E_MEMBERNOTFOUND;
  }

 protected:
  ~FakeObject() override { --FakesAlive(); }
  void* Find(REFIID iid) override {
    return iid == IID_IDispatch || iid == __uuidof(Interface) ? static_cast<Interface*>(this) : nullptr;
  }
};

/// An object with nothing to it.
class PlainObject final : public FakeObject<IDispatch> {};

/// Makes one, as a counted pointer.
template <typename Type, typename... Arguments>
ComPtr<Type> MakeFake(Arguments&&... arguments) {
  return ComPtr<Type>::Adopt(new Type(std::forward<Arguments>(arguments)...));
}

/// Puts another object, or none, into an in-out argument, as its rules say.
template <typename Interface>
void Replace(Interface** argument, Interface* object) {
  if (object) object->AddRef();
  if (*argument) (*argument)->Release();
  *argument = object;
}

/// The same for a text.
inline void Replace(BSTR* argument, const wchar_t* text) {
  SysFreeString(*argument);
  *argument = text ? SysAllocString(text) : nullptr;
}

}  // namespace orvendal
