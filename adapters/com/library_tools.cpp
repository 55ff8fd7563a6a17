#include "adapters/com/library_tools.h"

#include "adapters/com/com_library.h"

namespace orvendal {

ComTools::ComTools(Boundary& boundary)
    : boundary_(boundary),
      object_(CreateLibraryObject<_Herramientas>(__uuidof(::Herramientas), __uuidof(_Herramientas))) {}

int ComTools::FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) {
  InterfaceCell box(boundary_.objects.ToCom(caja));
  auto key = static_cast<SHORT>(key_ascii);
  VARIANT_BOOL option = opcion ? VARIANT_TRUE : VARIANT_FALSE;
  SHORT filtered = 0;
  CallOut call;
  call.Answered(object_->FiltrarTecla(box.InOut(), &key, &option, &filtered));
  call.Finish();
  return filtered;
}

void ComTools::AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) {
  const ModalScope dialog(boundary_.windows);
  ConnectionCell connection(boundary_, conexion);
  BstrCell workstation(cod_puesto);
  CallOut call;
  call.Answered(object_->AccionPuesto(connection.InOut(), workstation.InOut()));
  call.Take([&] { connection.TakeOver(conexion); }).Take([&] { cod_puesto = workstation.Text(); }).Finish();
}

void ComTools::LiberarForm(ObjectRef& formulario) {
  ObjectCell form(boundary_, formulario);
  CallOut call;
  call.Answered(object_->LiberarForm(form.InOut()));
  call.Take([&] { form.TakeOver(formulario); }).Finish();
}

std::string ComTools::FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                                   std::string& modo2) {
  BstrCell date(fecha);
  unsigned char option = opcion;
  BstrCell mode1(modo1);
  BstrCell mode2(modo2);
  BstrCell text;
  CallOut call;
  call.Answered(object_->FormatoFecha(date.InOut(), &option, mode1.InOut(), mode2.InOut(), text.InOut()));
  call.Take([&] {
    fecha = date.Text();
    modo1 = mode1.Text();
    modo2 = mode2.Text();
  });
  call.Finish();
  return text.Text();
}

void ComTools::RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                                  std::string& sentencia) {
  BstrCell chain(cadena_sesion);
  ConnectionCell connection(boundary_, conexion);
  BstrCell statement(sentencia);
  CallOut call;
  call.Answered(object_->RegistrarSentencia(chain.InOut(), connection.InOut(), statement.InOut()));
  call.Take([&] { connection.TakeOver(conexion); })
      .Take([&] {
        cadena_sesion = chain.Text();
        sentencia = statement.Text();
      })
      .Finish();
}

std::string ComTools::FechaHoraTexto(Date& momento) {
  DATE moment = momento.Serial();
  BstrCell text;
  CallOut call;
  call.Answered(object_->FechaHoraTexto(&moment, text.InOut()));
  call.Take([&] { momento = Date::FromSerial(moment); }).Finish();
  return text.Text();
}

ComRecalculation::ComRecalculation(Boundary& boundary)
    : boundary_(boundary),
      object_(CreateLibraryObject<_Recalculo>(__uuidof(::Recalculo), __uuidof(_Recalculo))) {}

void ComRecalculation::RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal,
                                          std::string& codigo, std::string& texto) {
  ConnectionCell connection(boundary_, conexion);
  BstrCell branch(clave_sucursal);
  BstrCell code(codigo);
  BstrCell text(texto);
  CallOut call;
  call.Answered(object_->RecalcularProducto(connection.InOut(), branch.InOut(), code.InOut(), text.InOut()));
  call.Take([&] { connection.TakeOver(conexion); })
      .Take([&] {
        clave_sucursal = branch.Text();
        codigo = code.Text();
        texto = text.Text();
      })
      .Finish();
}

}  // namespace orvendal
