#include "host/windows/library/dialog_objects.h"

#include <array>

#include "adapters/ado/ado_wrappers.h"
#include "host/windows/library/in_out.h"
#include "host/windows/library/library_state.h"

namespace orvendal {
namespace {

constexpr VARIANT_BOOL FlagOf(bool flag) {
  return flag ? VARIANT_TRUE : VARIANT_FALSE;
}

/// A host's session object, as far as the library asks it: for the connection.
class HostSession final : public DatosClase {
 public:
  explicit HostSession(_DatosClase* host) : host_(host) {}

  void RellenarSesion(const SessionArguments& session) override {
    std::array<ComPtr<IDispatch>, 10> objects;
    LONG width = 0;
    LONG height = 0;
    double on_screen = 0;
    BstrCell text;
    BstrCell branch(session.CodSucursal);
    ForgetErrorInformation();
    Check(host_->RellenarSesion(objects[0].InOut(), objects[1].InOut(), objects[2].InOut(),
                                objects[3].InOut(), objects[4].InOut(), objects[5].InOut(),
                                objects[6].InOut(), &width, &height, &on_screen, objects[7].InOut(),
                                objects[8].InOut(), objects[9].InOut(), text.InOut(), branch.InOut()));
    session.Conexion = WrapConnection(objects[0].Get());
  }

 private:
  ComPtr<_DatosClase> host_;
};

HRESULT GiveFlag(VARIANT_BOOL* place, bool flag) {
  if (!place) return E_POINTER;
  *place = FlagOf(flag);
  return S_OK;
}

}  // namespace

SessionChangeObject::SessionChangeObject() noexcept
    : DualObject(__uuidof(_CambioSesion), __uuidof(::CambioSesion)) {}

HRESULT SessionChangeObject::AbrirCambio(IDispatch** conexion, double* dato_pantalla, BSTR* cod_sucursal,
                                         BSTR* cod_puesto, BSTR* cod_turno, LONG* ancho_base, LONG* alto_base,
                                         LONG* resultado) noexcept {
  return Do([&] {
    for (const void* place : {static_cast<void*>(dato_pantalla), static_cast<void*>(ancho_base),
                              static_cast<void*>(alto_base), static_cast<void*>(resultado)}) {
      RequireReference(place);
    }
    ConnectionInOut connection(conexion);
    TextInOut branch(cod_sucursal);
    TextInOut workstation(cod_puesto);
    TextInOut shift(cod_turno);
    Value on_screen(*dato_pantalla);
    std::int32_t width = *ancho_base;
    std::int32_t height = *alto_base;
    std::int32_t outcome = *resultado;
    LibraryState::Of().Library().NewCambioSesion()->AbrirCambio(
        connection.connection, on_screen, branch.text, workstation.text, shift.text, width, height, outcome);
    connection.Give();
    branch.Give();
    workstation.Give();
    shift.Give();
    *ancho_base = width;
    *alto_base = height;
    *resultado = outcome;
  });
}

ProductSearchObject::ProductSearchObject() noexcept
    : DualObject(__uuidof(_BuscadorProductos), __uuidof(::BuscadorProductos)) {}

HRESULT ProductSearchObject::Buscar(_DatosClase** datos_sesion, IDispatch** formulario, BSTR* llamador,
                                    BSTR* campo, BSTR* texto, BSTR* modo, VARIANT_BOOL* indicador,
                                    BSTR* codigo) noexcept {
  return Do([&] {
    for (const void* place : {static_cast<void*>(datos_sesion), static_cast<void*>(formulario),
                              static_cast<void*>(indicador), static_cast<void*>(codigo)}) {
      RequireReference(place);
    }
    DatosClaseRef session;
    if (*datos_sesion) session = std::make_shared<HostSession>(*datos_sesion);
    const TextInOut caller(llamador);
    const TextInOut field(campo);
    const TextInOut text(texto);
    const TextInOut mode(modo);
    ObjectRef form;
    bool flag = *indicador != VARIANT_FALSE;
    GiveText(codigo, LibraryState::Of().Library().NewBuscadorProductos()->Buscar(
                         session, form, caller.text, field.text, text.text, mode.text, flag));
  });
}

EmployeePickerObject::EmployeePickerObject() noexcept
    : DualObject(__uuidof(_SelectorEmpleado), __uuidof(::SelectorEmpleado)) {}

HRESULT EmployeePickerObject::get_ParaNuevo(VARIANT_BOOL* valor) noexcept {
  return GiveFlag(valor, for_new_);
}
HRESULT EmployeePickerObject::put_ParaNuevo(VARIANT_BOOL valor) noexcept {
  for_new_ = valor != VARIANT_FALSE;
  return S_OK;
}
HRESULT EmployeePickerObject::get_Aceptado(VARIANT_BOOL* valor) noexcept {
  return GiveFlag(valor, accepted_);
}
HRESULT EmployeePickerObject::put_Aceptado(VARIANT_BOOL valor) noexcept {
  accepted_ = valor != VARIANT_FALSE;
  return S_OK;
}
HRESULT EmployeePickerObject::get_OpcionFija(VARIANT_BOOL* valor) noexcept {
  return GiveFlag(valor, fixed_option_);
}
HRESULT EmployeePickerObject::put_OpcionFija(VARIANT_BOOL valor) noexcept {
  fixed_option_ = valor != VARIANT_FALSE;
  return S_OK;
}
HRESULT EmployeePickerObject::get_Codigo(BSTR* valor) noexcept {
  return Do([&] { GiveText(valor, code_); });
}
HRESULT EmployeePickerObject::put_Codigo(BSTR valor) noexcept {
  return Do([&] { code_ = TextOfBstr(valor); });
}
HRESULT EmployeePickerObject::get_Nombre(BSTR* valor) noexcept {
  return Do([&] { GiveText(valor, name_); });
}
HRESULT EmployeePickerObject::put_Nombre(BSTR valor) noexcept {
  return Do([&] { name_ = TextOfBstr(valor); });
}

HRESULT EmployeePickerObject::Elegir(IDispatch** conexion, BSTR* cod_sucursal) noexcept {
  return Do([&] {
    ConnectionInOut connection(conexion);
    TextInOut branch(cod_sucursal);
    const auto picker = LibraryState::Of().Library().NewSelectorEmpleado();
    picker->ParaNuevo(for_new_);
    picker->OpcionFija(fixed_option_);
    picker->Elegir(connection.connection, branch.text);
    accepted_ = picker->Aceptado();
    if (accepted_) {
      code_ = picker->Codigo();
      name_ = picker->Nombre();
    }
    connection.Give();
    branch.Give();
  });
}

}  // namespace orvendal
