#include "adapters/com/library_dialogs.h"

#include "adapters/automation/variant.h"
#include "adapters/com/com_library.h"
#include "adapters/com/com_session.h"

namespace orvendal {

ComMessages::ComMessages(Boundary& boundary)
    : boundary_(boundary),
      object_(CreateLibraryObject<_Mensajes>(__uuidof(::Mensajes), __uuidof(_Mensajes))) {}

void ComMessages::Mostrar(std::string& texto, std::int32_t& estilo, std::string& titulo,
                          std::int32_t& respuesta) {
  const ModalScope dialog(boundary_.windows);
  TextCell text(texto);
  LongCell style(estilo);
  TextCell title(titulo);
  LongCell answer(respuesta);
  CallOut()
      .Make([&] { return object_->Mostrar(text.InOut(), style.InOut(), title.InOut(), answer.InOut()); })
      .Take([&] { text.TakeOver(texto); })
      .Take([&] { style.TakeOver(estilo); })
      .Take([&] { title.TakeOver(titulo); })
      .Take([&] { answer.TakeOver(respuesta); })
      .Finish();
}

ComSessionChange::ComSessionChange(Boundary& boundary)
    : boundary_(boundary),
      object_(CreateLibraryObject<_CambioSesion>(__uuidof(::CambioSesion), __uuidof(_CambioSesion))) {}

void ComSessionChange::AbrirCambio(ConnectionRef& conexion, Value& dato_pantalla, std::string& cod_sucursal,
                                   std::string& cod_puesto, std::string& cod_turno, std::int32_t& ancho_base,
                                   std::int32_t& alto_base, std::int32_t& resultado) {
  const ModalScope dialog(boundary_.windows);
  ConnectionCell connection(boundary_, conexion);
  ScreenDatumCell screen_datum(dato_pantalla);
  TextCell branch(cod_sucursal);
  TextCell workstation(cod_puesto);
  TextCell shift(cod_turno);
  LongCell width(ancho_base);
  LongCell height(alto_base);
  LongCell outcome(resultado);
  CallOut()
      .Make([&] {
        return object_->AbrirCambio(connection.InOut(), screen_datum.InOut(), branch.InOut(),
                                    workstation.InOut(), shift.InOut(), width.InOut(), height.InOut(),
                                    outcome.InOut());
      })
      .Take([&] { connection.TakeOver(conexion); })
      .Take([&] { screen_datum.TakeOver(dato_pantalla); })
      .Take([&] { branch.TakeOver(cod_sucursal); })
      .Take([&] { workstation.TakeOver(cod_puesto); })
      .Take([&] { shift.TakeOver(cod_turno); })
      .Take([&] { width.TakeOver(ancho_base); })
      .Take([&] { height.TakeOver(alto_base); })
      .Take([&] { outcome.TakeOver(resultado); })
      .Finish();
}

ComProductSearch::ComProductSearch(Boundary& boundary)
    : boundary_(boundary),
      object_(CreateLibraryObject<_BuscadorProductos>(__uuidof(::BuscadorProductos),
                                                      __uuidof(_BuscadorProductos))) {}

std::string ComProductSearch::Buscar(DatosClaseRef& datos_sesion, ObjectRef& formulario,
                                     const std::string& llamador, const std::string& campo,
                                     const std::string& texto, const std::string& modo, bool& indicador) {
  const ModalScope dialog(boundary_.windows);
  const auto sent = std::dynamic_pointer_cast<ComSession>(datos_sesion);
  ComPtr<_DatosClase> session(sent ? sent->Host() : nullptr);
  ObjectCell form(boundary_, formulario);
  BstrCell caller(llamador);
  BstrCell field(campo);
  BstrCell start(texto);
  BstrCell mode(modo);
  VARIANT_BOOL flag = FlagOf(indicador);
  BstrCell code;
  CallOut()
      .Make([&] {
        return object_->Buscar(session.InOut(), form.InOut(), caller.InOut(), field.InOut(), start.InOut(),
                               mode.InOut(), &flag, code.InOut());
      })
      .Take([&] {
        if (session.Get() == (sent ? sent->Host() : nullptr)) return;
        datos_sesion = session ? std::make_shared<ComSession>(boundary_, session.Get()) : nullptr;
      })
      .Take([&] { form.TakeOver(formulario); })
      .Take([&] { indicador = flag != VARIANT_FALSE; })
      .Finish();
  return code.Text();
}

ComEmployeePicker::ComEmployeePicker(Boundary& boundary)
    : boundary_(boundary),
      object_(CreateLibraryObject<_SelectorEmpleado>(__uuidof(::SelectorEmpleado),
                                                     __uuidof(_SelectorEmpleado))) {}

void ComEmployeePicker::ParaNuevo(bool value) {
  Ask([&] { return object_->put_ParaNuevo(FlagOf(value)); });
}

bool ComEmployeePicker::Aceptado() {
  VARIANT_BOOL value = VARIANT_FALSE;
  Ask([&] { return object_->get_Aceptado(&value); });
  return value != VARIANT_FALSE;
}

void ComEmployeePicker::Aceptado(bool value) {
  Ask([&] { return object_->put_Aceptado(FlagOf(value)); });
}

void ComEmployeePicker::OpcionFija(bool value) {
  Ask([&] { return object_->put_OpcionFija(FlagOf(value)); });
}

std::string ComEmployeePicker::Codigo() {
  BstrCell value;
  Ask([&] { return object_->get_Codigo(value.InOut()); });
  return value.Text();
}

std::string ComEmployeePicker::Nombre() {
  BstrCell value;
  Ask([&] { return object_->get_Nombre(value.InOut()); });
  return value.Text();
}

void ComEmployeePicker::Nombre(const std::string& value) {
  const BstrCell text(value);
  Ask([&] { return object_->put_Nombre(text.Get()); });
}

void ComEmployeePicker::Elegir(ConnectionRef& conexion, std::string& cod_sucursal) {
  const ModalScope dialog(boundary_.windows);
  ConnectionCell connection(boundary_, conexion);
  TextCell branch(cod_sucursal);
  CallOut()
      .Make([&] { return object_->Elegir(connection.InOut(), branch.InOut()); })
      .Take([&] { connection.TakeOver(conexion); })
      .Take([&] { branch.TakeOver(cod_sucursal); })
      .Finish();
}

}  // namespace orvendal
