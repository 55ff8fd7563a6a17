#include "tests/adapters/com/fake_library.h"

#include "adapters/automation/bstr.h"

namespace orvendal {
namespace {

template <typename Interface>
class FakeLibraryObject : public FakeObject<Interface> {
 public:
  FakeLibraryObject(LibraryBehaviour& behaviour, const char* name) : behaviour_(behaviour) {
    behaviour_.made.emplace_back(name);
  }

 protected:
  void Note(const std::string& call) { behaviour_.calls.push_back(call); }
  LibraryBehaviour& Behaviour() { return behaviour_; }

 private:
  LibraryBehaviour& behaviour_;
};

std::string Quoted(const BSTR* text) {
  return "'" + TextOfBstr(*text) + "'";
}

class Tools final : public FakeLibraryObject<_Herramientas> {
 public:
  explicit Tools(LibraryBehaviour& behaviour) : FakeLibraryObject(behaviour, "Herramientas") {}

  HRESULT STDMETHODCALLTYPE Reservada1() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE FiltrarTecla(IDispatch** box, SHORT* key, VARIANT_BOOL* option,
                                         SHORT* result) override {
    Note("FiltrarTecla " + std::to_string(*key) + " " + std::to_string(*option));
    *result = *key;
    return Behaviour().filter_key ? Behaviour().filter_key(box, key, option, result) : S_OK;
  }
  HRESULT STDMETHODCALLTYPE AccionPuesto(IDispatch** connection, BSTR* workstation) override {
    Note("AccionPuesto " + Quoted(workstation));
    return Behaviour().f1 ? Behaviour().f1(connection, workstation) : S_OK;
  }
  HRESULT STDMETHODCALLTYPE Reservada4() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE LiberarForm(IDispatch** form) override {
    Note("LiberarForm");
    if (Behaviour().let_go) return Behaviour().let_go(form);
    Replace<IDispatch>(form, nullptr);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Reservada6() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE FormatoFecha(BSTR* date, BYTE* option, BSTR* mode1, BSTR* mode2,
                                         BSTR* result) override {
    Note("FormatoFecha " + Quoted(date) + " " + std::to_string(*option) + " " + Quoted(mode1) + " " +
         Quoted(mode2));
    if (Behaviour().format_date) return Behaviour().format_date(date, option, mode1, mode2, result);
    *result = SysAllocString(*date);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Reservada8() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada9() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada10() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada11() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada12() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada13() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada14() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada15() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RegistrarSentencia(BSTR* chain, IDispatch** connection,
                                               BSTR* statement) override {
    Note("RegistrarSentencia " + Quoted(chain) + " " + Quoted(statement));
    return Behaviour().record ? Behaviour().record(chain, connection, statement) : S_OK;
  }
  HRESULT STDMETHODCALLTYPE FechaHoraTexto(DATE* moment, BSTR* result) override {
    Note("FechaHoraTexto " + std::to_string(*moment));
    if (Behaviour().moment_text) return Behaviour().moment_text(moment, result);
    *result = SysAllocString(L"16/11/2026 10:30:00");
    return S_OK;
  }
};

class Messages final : public FakeLibraryObject<_Mensajes> {
 public:
  explicit Messages(LibraryBehaviour& behaviour) : FakeLibraryObject(behaviour, "Mensajes") {}

  HRESULT STDMETHODCALLTYPE Mostrar(BSTR* text, LONG* style, BSTR* title, LONG* answer) override {
    Note("Mostrar " + Quoted(text) + " " + std::to_string(*style) + " " + Quoted(title));
    *answer = 1;
    return Behaviour().show ? Behaviour().show(text, style, title, answer) : S_OK;
  }
};

class SessionChange final : public FakeLibraryObject<_CambioSesion> {
 public:
  explicit SessionChange(LibraryBehaviour& behaviour) : FakeLibraryObject(behaviour, "CambioSesion") {}

  HRESULT STDMETHODCALLTYPE AbrirCambio(IDispatch** connection, double* screen_datum, BSTR* branch,
                                        BSTR* workstation, BSTR* shift, LONG* width, LONG* height,
                                        LONG* outcome) override {
    Note("AbrirCambio " + Quoted(branch) + " " + Quoted(workstation) + " " + Quoted(shift) + " " +
         std::to_string(*width) + " " + std::to_string(*height));
    return Behaviour().f2
               ? Behaviour().f2(connection, screen_datum, branch, workstation, shift, width, height, outcome)
               : S_OK;
  }
};

class ProductSearch final : public FakeLibraryObject<_BuscadorProductos> {
 public:
  explicit ProductSearch(LibraryBehaviour& behaviour) : FakeLibraryObject(behaviour, "BuscadorProductos") {}

  HRESULT STDMETHODCALLTYPE Buscar(_DatosClase** session, IDispatch** form, BSTR* caller, BSTR* field,
                                   BSTR* text, BSTR* mode, VARIANT_BOOL* flag, BSTR* code) override {
    Note("Buscar " + Quoted(caller) + " " + Quoted(field) + " " + Quoted(text) + " " + Quoted(mode) + " " +
         std::to_string(*flag));
    return Behaviour().search ? Behaviour().search(session, form, caller, field, text, mode, flag, code)
                              : S_OK;
  }
};

class EmployeePicker final : public FakeLibraryObject<_SelectorEmpleado> {
 public:
  explicit EmployeePicker(LibraryBehaviour& behaviour) : FakeLibraryObject(behaviour, "SelectorEmpleado") {}

  HRESULT STDMETHODCALLTYPE get_ParaNuevo(VARIANT_BOOL*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_ParaNuevo(VARIANT_BOOL value) override { return NotePut("ParaNuevo", value); }
  HRESULT STDMETHODCALLTYPE get_Aceptado(VARIANT_BOOL* value) override {
    *value = accepted_ ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE put_Aceptado(VARIANT_BOOL value) override { return NotePut("Aceptado", value); }
  HRESULT STDMETHODCALLTYPE get_OpcionFija(VARIANT_BOOL*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_OpcionFija(VARIANT_BOOL value) override {
    return NotePut("OpcionFija", value);
  }
  HRESULT STDMETHODCALLTYPE get_Codigo(BSTR* value) override { return Give(value, Behaviour().picked_code); }
  HRESULT STDMETHODCALLTYPE put_Codigo(BSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE get_Nombre(BSTR* value) override { return Give(value, Behaviour().picked_name); }
  HRESULT STDMETHODCALLTYPE put_Nombre(BSTR value) override {
    Note("Nombre=" + Quoted(&value));
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_Reservada6(VARIANT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_Reservada6(VARIANT) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Elegir(IDispatch** connection, BSTR* branch) override {
    Note("Elegir " + Quoted(branch));
    accepted_ = Behaviour().picker_accepts;
    return Behaviour().pick ? Behaviour().pick(connection, branch) : S_OK;
  }

 private:
  HRESULT NotePut(const char* property, VARIANT_BOOL value) {
    Note(std::string(property) + "=" + std::to_string(value));
    return S_OK;
  }
  static HRESULT Give(BSTR* value, const std::wstring& text) {
    *value = SysAllocString(text.c_str());
    return S_OK;
  }
  bool accepted_ = false;
};

class Recalculation final : public FakeLibraryObject<_Recalculo> {
 public:
  explicit Recalculation(LibraryBehaviour& behaviour) : FakeLibraryObject(behaviour, "Recalculo") {}

  HRESULT STDMETHODCALLTYPE Reservada1() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada2() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada3() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada4() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada5() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada6() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada7() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada8() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada9() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada10() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada11() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada12() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada13() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada14() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RecalcularProducto(IDispatch** connection, BSTR* branch, BSTR* code,
                                               BSTR* text) override {
    Note("RecalcularProducto " + Quoted(branch) + " " + Quoted(code) + " " + Quoted(text));
    return Behaviour().recalculate ? Behaviour().recalculate(connection, branch, code, text) : S_OK;
  }
};

template <typename Class>
class Factory final : public CountedFake<IClassFactory> {
 public:
  explicit Factory(LibraryBehaviour& behaviour) : behaviour_(behaviour) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override {
    *object = nullptr;
    if (FAILED(behaviour_.creation)) return behaviour_.creation;
    if (behaviour_.makes_strangers) return MakeFake<PlainObject>()->QueryInterface(iid, object);
    return MakeFake<Class>(behaviour_)->QueryInterface(iid, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  void* Find(REFIID iid) override {
    return iid == IID_IClassFactory ? static_cast<IClassFactory*>(this) : nullptr;
  }

  LibraryBehaviour& behaviour_;
};

template <typename Class>
DWORD Serve(REFCLSID class_id, LibraryBehaviour& behaviour) {
  DWORD cookie = 0;
  auto* const factory = new Factory<Class>(behaviour);
  CoRegisterClassObject(class_id, factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie);
  factory->Release();
  return cookie;
}

}  // namespace

FakeLibrary::FakeLibrary(LibraryBehaviour& behaviour)
    : cookies_{Serve<Tools>(__uuidof(::Herramientas), behaviour),
               Serve<Messages>(__uuidof(::Mensajes), behaviour),
               Serve<SessionChange>(__uuidof(::CambioSesion), behaviour),
               Serve<ProductSearch>(__uuidof(::BuscadorProductos), behaviour),
               Serve<EmployeePicker>(__uuidof(::SelectorEmpleado), behaviour),
               Serve<Recalculation>(__uuidof(::Recalculo), behaviour)} {}

FakeLibrary::~FakeLibrary() {
  for (const DWORD cookie : cookies_) CoRevokeClassObject(cookie);
}

}  // namespace orvendal
