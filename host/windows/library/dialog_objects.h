#pragma once

#include <memory>

#include "DllTrevano.h"
#include "adapters/automation/dual_object.h"
#include "platform/library/library.h"

namespace orvendal {

// The library's classes that are dialogs.

class SessionChangeObject final : public ClassObject<_CambioSesion, ::CambioSesion> {
 public:
  HRESULT STDMETHODCALLTYPE AbrirCambio(IDispatch** conexion, double* dato_pantalla, BSTR* cod_sucursal,
                                        BSTR* cod_puesto, BSTR* cod_turno, LONG* ancho_base, LONG* alto_base,
                                        LONG* resultado) noexcept override;
};

class ProductSearchObject final : public ClassObject<_BuscadorProductos, ::BuscadorProductos> {
 public:
  HRESULT STDMETHODCALLTYPE Buscar(_DatosClase** datos_sesion, IDispatch** formulario, BSTR* llamador,
                                   BSTR* campo, BSTR* texto, BSTR* modo, VARIANT_BOOL* indicador,
                                   BSTR* codigo) noexcept override;
};

class EmployeePickerObject final : public ClassObject<_SelectorEmpleado, ::SelectorEmpleado> {
 public:
  HRESULT STDMETHODCALLTYPE get_ParaNuevo(VARIANT_BOOL* valor) noexcept override;
  HRESULT STDMETHODCALLTYPE put_ParaNuevo(VARIANT_BOOL valor) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Aceptado(VARIANT_BOOL* valor) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Aceptado(VARIANT_BOOL valor) noexcept override;
  HRESULT STDMETHODCALLTYPE get_OpcionFija(VARIANT_BOOL* valor) noexcept override;
  HRESULT STDMETHODCALLTYPE put_OpcionFija(VARIANT_BOOL valor) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Codigo(BSTR* valor) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Codigo(BSTR valor) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Nombre(BSTR* valor) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Nombre(BSTR valor) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Reservada6(VARIANT* valor) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Reservada6(VARIANT) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Elegir(IDispatch** conexion, BSTR* cod_sucursal) noexcept override;

 private:
  bool for_new_ = false;
  bool accepted_ = false;
  bool fixed_option_ = false;
  std::string code_;
  std::string name_;
};

}  // namespace orvendal
