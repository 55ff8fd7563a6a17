#include "host/windows/library/dialog_objects.h"

#include <array>

#include "adapters/ado/ado_wrappers.h"
#include "adapters/automation/call_out.h"
#include "adapters/automation/variant.h"
#include "host/windows/library/connection_in_out.h"
#include "host/windows/library/library_state.h"

namespace orvendal {
namespace {

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
    Ask([&] {
      return host_->RellenarSesion(objects[0].InOut(), objects[1].InOut(), objects[2].InOut(),
                                   objects[3].InOut(), objects[4].InOut(), objects[5].InOut(),
                                   objects[6].InOut(), &width, &height, &on_screen, objects[7].InOut(),
                                   objects[8].InOut(), objects[9].InOut(), text.InOut(), branch.InOut());
    });
    session.Conexion = WrapConnection(objects[0].Get());
  }

 private:
  ComPtr<_DatosClase> host_;
};

}  // namespace

HRESULT SessionChangeObject::AbrirCambio(IDispatch** conexion, double* dato_pantalla, BSTR* cod_sucursal,
                                         BSTR* cod_puesto, BSTR* cod_turno, LONG* ancho_base, LONG* alto_base,
                                         LONG* resultado) noexcept {
  const std::initializer_list<const void*> references = {conexion,  dato_pantalla, cod_sucursal, cod_puesto,
                                                         cod_turno, ancho_base,    alto_base,    resultado};
  return Do(references, [&] {
    ConnectionInOut connection(conexion);
    TextInOut branch(cod_sucursal);
    TextInOut workstation(cod_puesto);
    TextInOut shift(cod_turno);
    Value on_screen(*dato_pantalla);
    std::int32_t width = *ancho_base;
    std::int32_t height = *alto_base;
    std::int32_t outcome = *resultado;
    LibraryState::Of().Library().NewCambioSesion()->AbrirCambio(
        connection.value, on_screen, branch.value, workstation.value, shift.value, width, height, outcome);
    connection.Give();
    branch.Give();
    workstation.Give();
    shift.Give();
    *ancho_base = width;
    *alto_base = height;
    *resultado = outcome;
  });
}

HRESULT ProductSearchObject::Buscar(_DatosClase** datos_sesion, IDispatch** formulario, BSTR* llamador,
                                    BSTR* campo, BSTR* texto, BSTR* modo, VARIANT_BOOL* indicador,
                                    BSTR* codigo) noexcept {
  const std::initializer_list<const void*> references = {datos_sesion, formulario, llamador,  campo,
                                                         texto,        modo,       indicador, codigo};
  return Do(references, [&] {
    DatosClaseRef session;
    if (*datos_sesion) session = std::make_shared<HostSession>(*datos_sesion);
    const TextInOut caller(llamador);
    const TextInOut field(campo);
    const TextInOut text(texto);
    const TextInOut mode(modo);
    ObjectRef form;
    bool flag = *indicador != VARIANT_FALSE;
    *codigo = MakeBstr(LibraryState::Of().Library().NewBuscadorProductos()->Buscar(
        session, form, caller.value, field.value, text.value, mode.value, flag));
  });
}

HRESULT EmployeePickerObject::get_ParaNuevo(VARIANT_BOOL* valor) noexcept {
  return Give(valor, [&] { return FlagOf(for_new_); });
}
HRESULT EmployeePickerObject::put_ParaNuevo(VARIANT_BOOL valor) noexcept {
  for_new_ = valor != VARIANT_FALSE;
  return S_OK;
}
HRESULT EmployeePickerObject::get_Aceptado(VARIANT_BOOL* valor) noexcept {
  return Give(valor, [&] { return FlagOf(accepted_); });
}
HRESULT EmployeePickerObject::put_Aceptado(VARIANT_BOOL valor) noexcept {
  accepted_ = valor != VARIANT_FALSE;
  return S_OK;
}
HRESULT EmployeePickerObject::get_OpcionFija(VARIANT_BOOL* valor) noexcept {
  return Give(valor, [&] { return FlagOf(fixed_option_); });
}
HRESULT EmployeePickerObject::put_OpcionFija(VARIANT_BOOL valor) noexcept {
  fixed_option_ = valor != VARIANT_FALSE;
  return S_OK;
}
HRESULT EmployeePickerObject::get_Codigo(BSTR* valor) noexcept {
  return Give(valor, [&] { return MakeBstr(code_); });
}
HRESULT EmployeePickerObject::put_Codigo(BSTR valor) noexcept {
  return Do([&] { code_ = TextOfBstr(valor); });
}
HRESULT EmployeePickerObject::get_Nombre(BSTR* valor) noexcept {
  return Give(valor, [&] { return MakeBstr(name_); });
}
HRESULT EmployeePickerObject::put_Nombre(BSTR valor) noexcept {
  return Do([&] { name_ = TextOfBstr(valor); });
}

HRESULT EmployeePickerObject::get_Reservada6(VARIANT* valor) noexcept {
  const HRESULT whole = Do({valor}, [] {});
  return FAILED(whole) ? whole : E_NOTIMPL;
}

HRESULT EmployeePickerObject::Elegir(IDispatch** conexion, BSTR* cod_sucursal) noexcept {
  return Do({conexion, cod_sucursal}, [&] {
    ConnectionInOut connection(conexion);
    TextInOut branch(cod_sucursal);
    const auto picker = LibraryState::Of().Library().NewSelectorEmpleado();
    picker->ParaNuevo(for_new_);
    picker->OpcionFija(fixed_option_);
    picker->Elegir(connection.value, branch.value);
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
