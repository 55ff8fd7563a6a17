#pragma once

#include <functional>

#include "DllTrevano.h"
#include "tests/adapters/com/fake_object.h"

namespace orvendal {

/// What RellenarSesion was called with, by reference as it came.
struct FillArguments {
  IDispatch** connection;
  IDispatch** objects[4];
  IDispatch** form1;
  IDispatch** form2;
  LONG* width;
  LONG* height;
  double* screen_datum;
  IDispatch** general;
  IDispatch** actions;
  IDispatch** screens;
  BSTR* chain;
  BSTR* branch;
};

/// A host's session object whose behaviour a test sets.
class FakeHost final : public FakeObject<_DatosClase> {
 public:
  std::function<HRESULT(const FillArguments&)> fill;
  int times_asked = 0;

  HRESULT STDMETHODCALLTYPE Reservada1() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RellenarSesion(IDispatch** connection, IDispatch** object1, IDispatch** object2,
                                           IDispatch** object3, IDispatch** object4, IDispatch** form1,
                                           IDispatch** form2, LONG* width, LONG* height, double* screen_datum,
                                           IDispatch** general, IDispatch** actions, IDispatch** screens,
                                           BSTR* chain, BSTR* branch) override {
    ++times_asked;
    const FillArguments arguments = {connection,   {object1, object2, object3, object4},
                                     form1,        form2,
                                     width,        height,
                                     screen_datum, general,
                                     actions,      screens,
                                     chain,        branch};
    return fill ? fill(arguments) : S_OK;
  }
};

}  // namespace orvendal
