#pragma once

#include "DllTrevano.h"
#include "adapters/automation/dual_object.h"
#include "host/library/quantity_filter.h"
#include "platform/library/library.h"

namespace orvendal {

// The library's classes that work without a dialog of their own but for F1, and its messages. What each does
// is the stand-in library's affair; here arguments cross, by the rules of the contract.

class ToolsObject final : public ClassObject<_Herramientas, ::Herramientas> {
 public:
  HRESULT STDMETHODCALLTYPE Reservada1() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE FiltrarTecla(IDispatch** caja, SHORT* key_ascii, VARIANT_BOOL* opcion,
                                         SHORT* tecla) noexcept override;
  HRESULT STDMETHODCALLTYPE AccionPuesto(IDispatch** conexion, BSTR* cod_puesto) noexcept override;
  HRESULT STDMETHODCALLTYPE Reservada4() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE LiberarForm(IDispatch** formulario) noexcept override;
  HRESULT STDMETHODCALLTYPE Reservada6() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE FormatoFecha(BSTR* fecha, unsigned char* opcion, BSTR* modo1, BSTR* modo2,
                                         BSTR* texto) noexcept override;
  HRESULT STDMETHODCALLTYPE Reservada8() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada9() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada10() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada11() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada12() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada13() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada14() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada15() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RegistrarSentencia(BSTR* cadena_sesion, IDispatch** conexion,
                                               BSTR* sentencia) noexcept override;
  HRESULT STDMETHODCALLTYPE FechaHoraTexto(DATE* momento, BSTR* texto) noexcept override;

 private:
  QuantityFilter quantity_filter_;
};

class RecalculationObject final : public ClassObject<_Recalculo, ::Recalculo> {
 public:
  HRESULT STDMETHODCALLTYPE Reservada1() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada2() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada3() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada4() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada5() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada6() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada7() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada8() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada9() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada10() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada11() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada12() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada13() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reservada14() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE RecalcularProducto(IDispatch** conexion, BSTR* clave_sucursal, BSTR* codigo,
                                               BSTR* texto) noexcept override;
};

class MessagesObject final : public ClassObject<_Mensajes, ::Mensajes> {
 public:
  HRESULT STDMETHODCALLTYPE Mostrar(BSTR* texto, LONG* estilo, BSTR* titulo,
                                    LONG* respuesta) noexcept override;
};

}  // namespace orvendal
