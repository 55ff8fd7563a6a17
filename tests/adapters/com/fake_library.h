#pragma once

#include <functional>
#include <string>
#include <vector>

#include "DllTrevano.h"
#include "tests/adapters/com/fake_object.h"

namespace orvendal {

/// What the objects of the maker's library do in a test; each has a harmless answer at first.
struct LibraryBehaviour {
  std::function<HRESULT(IDispatch** box, SHORT* key, VARIANT_BOOL* option, SHORT* result)> filter_key;
  std::function<HRESULT(IDispatch** connection, BSTR* workstation)> f1;
  std::function<HRESULT(IDispatch** form)> let_go;
  std::function<HRESULT(BSTR* date, BYTE* option, BSTR* mode1, BSTR* mode2, BSTR* result)> format_date;
  std::function<HRESULT(BSTR* chain, IDispatch** connection, BSTR* statement)> record;
  std::function<HRESULT(DATE* moment, BSTR* result)> moment_text;
  std::function<HRESULT(BSTR* text, LONG* style, BSTR* title, LONG* answer)> show;
  std::function<HRESULT(IDispatch** connection, double* screen_datum, BSTR* branch, BSTR* workstation,
                        BSTR* shift, LONG* width, LONG* height, LONG* outcome)>
      f2;
  std::function<HRESULT(_DatosClase** session, IDispatch** form, BSTR* caller, BSTR* field, BSTR* text,
                        BSTR* mode, VARIANT_BOOL* flag, BSTR* code)>
      search;
  std::function<HRESULT(IDispatch** connection, BSTR* branch)> pick;
  std::function<HRESULT(IDispatch** connection, BSTR* branch, BSTR* code, BSTR* text)> recalculate;

  /// What making an object answers, and whether it is an object of another class.
  HRESULT creation = S_OK;
  bool makes_strangers = false;

  bool picker_accepts = true;
  std::wstring picked_code = L"E1";
  std::wstring picked_name = L"Ana";

  /// Every call with its plain arguments, in order.
  std::vector<std::string> calls;
  /// How many objects were made of each class, by its name in the contract.
  std::vector<std::string> made;
};

/// The library's classes served in this process, for the life of the object.
class FakeLibrary {
 public:
  explicit FakeLibrary(LibraryBehaviour& behaviour);
  ~FakeLibrary();
  FakeLibrary(const FakeLibrary&) = delete;
  FakeLibrary& operator=(const FakeLibrary&) = delete;

 private:
  std::vector<DWORD> cookies_;
};

}  // namespace orvendal
