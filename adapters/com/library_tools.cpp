#include "adapters/com/library_tools.h"

#include "adapters/automation/variant.h"
#include "adapters/com/com_library.h"

namespace orvendal {

ComTools::ComTools(Boundary& boundary)
    : boundary_(boundary),
      object_(CreateLibraryObject<_Herramientas>(__uuidof(::Herramientas), __uuidof(_Herramientas))) {}

int ComTools::FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) {
  InterfaceCell box(boundary_.objects.ToCom(caja));
  auto key = static_cast<SHORT>(key_ascii);
  VARIANT_BOOL option = FlagOf(opcion);
  SHORT filtered = 0;
  Ask([&] { return object_->FiltrarTecla(box.InOut(), &key, &option, &filtered); });
  return filtered;
}

void ComTools::AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) {
  const ModalScope dialog(boundary_.windows);
  ConnectionCell connection(boundary_, conexion);
  TextCell workstation(cod_puesto);
  CallOut()
      .Make([&] { return object_->AccionPuesto(connection.InOut(), workstation.InOut()); })
      .Take([&] { connection.TakeOver(conexion); })
      .Take([&] { workstation.TakeOver(cod_puesto); })
      .Finish();
}

void ComTools::LiberarForm(ObjectRef& formulario) {
  ObjectCell form(boundary_, formulario);
  CallOut()
      .Make([&] { return object_->LiberarForm(form.InOut()); })
      .Take([&] { form.TakeOver(formulario); })
      .Finish();
}

std::string ComTools::FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                                   std::string& modo2) {
  TextCell date(fecha);
  unsigned char option = opcion;
  TextCell mode1(modo1);
  TextCell mode2(modo2);
  BstrCell text;
  CallOut()
      .Make([&] {
        return object_->FormatoFecha(date.InOut(), &option, mode1.InOut(), mode2.InOut(), text.InOut());
      })
      .Take([&] { date.TakeOver(fecha); })
      .Take([&] { mode1.TakeOver(modo1); })
      .Take([&] { mode2.TakeOver(modo2); })
      .Finish();
  return text.Text();
}

void ComTools::RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                                  std::string& sentencia) {
  TextCell chain(cadena_sesion);
  ConnectionCell connection(boundary_, conexion);
  TextCell statement(sentencia);
  CallOut()
      .Make([&] { return object_->RegistrarSentencia(chain.InOut(), connection.InOut(), statement.InOut()); })
      .Take([&] { connection.TakeOver(conexion); })
      .Take([&] { chain.TakeOver(cadena_sesion); })
      .Take([&] { statement.TakeOver(sentencia); })
      .Finish();
}

std::string ComTools::FechaHoraTexto(Date& momento) {
  DATE moment = momento.Serial();
  BstrCell text;
  CallOut()
      .Make([&] { return object_->FechaHoraTexto(&moment, text.InOut()); })
      .Take([&] { momento = Date::FromSerial(moment); })
      .Finish();
  return text.Text();
}

ComRecalculation::ComRecalculation(Boundary& boundary)
    : boundary_(boundary),
      object_(CreateLibraryObject<_Recalculo>(__uuidof(::Recalculo), __uuidof(_Recalculo))) {}

void ComRecalculation::RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal,
                                          std::string& codigo, std::string& texto) {
  ConnectionCell connection(boundary_, conexion);
  TextCell branch(clave_sucursal);
  TextCell code(codigo);
  TextCell text(texto);
  CallOut()
      .Make([&] {
        return object_->RecalcularProducto(connection.InOut(), branch.InOut(), code.InOut(), text.InOut());
      })
      .Take([&] { connection.TakeOver(conexion); })
      .Take([&] { branch.TakeOver(clave_sucursal); })
      .Take([&] { code.TakeOver(codigo); })
      .Take([&] { text.TakeOver(texto); })
      .Finish();
}

}  // namespace orvendal
