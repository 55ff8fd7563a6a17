#pragma once

#include "DllTrevano.h"
#include "adapters/automation/dual_object.h"

namespace orvendal {

/// A session object for hosts that have none of their own, scripts above all: DatosClase. All of them stand
/// for the one session of the library, whose connection goes with the last of them.
class SessionObject final : public ClassObject<_SampleSession, ::DatosClase> {
 public:
  SessionObject() noexcept;

  HRESULT STDMETHODCALLTYPE Reservada1() noexcept override { return E_NOTIMPL; }
  /// Fills in everything but the objects and forms. Without a connection it opens the user's sample store.
  HRESULT STDMETHODCALLTYPE RellenarSesion(IDispatch** conexion, IDispatch** objeto1, IDispatch** objeto2,
                                           IDispatch** objeto3, IDispatch** objeto4, IDispatch** form1,
                                           IDispatch** form2, LONG* ancho_base, LONG* alto_base,
                                           double* dato_pantalla, IDispatch** general, IDispatch** acciones,
                                           IDispatch** pantallas, BSTR* cadena_sesion,
                                           BSTR* cod_sucursal) noexcept override;

  HRESULT STDMETHODCALLTYPE get_Dialect(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Dialect(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE OpenStore(BSTR file) noexcept override;
  HRESULT STDMETHODCALLTYPE OpenConnection(BSTR connection_string) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Connection(IDispatch** value) noexcept override;
  HRESULT STDMETHODCALLTYPE putref_Connection(IDispatch* value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_StoreName(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Language(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Language(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_BaseWidth(LONG* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_BaseWidth(LONG value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_BaseHeight(LONG* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_BaseHeight(LONG value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Branch(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Branch(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Workstation(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Workstation(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Shift(BSTR* value) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Shift(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE Pump(LONG milliseconds) noexcept override;
  HRESULT STDMETHODCALLTYPE get_ScreenIsOpen(VARIANT_BOOL* value) noexcept override;

 protected:
  bool AnswersTo(REFIID iid) const noexcept override { return iid == __uuidof(_DatosClase); }

 private:
  ~SessionObject() override;

  std::string dialect_ = "sqlserver";
  std::string branch_;
};

}  // namespace orvendal
