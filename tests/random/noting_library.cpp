#include "tests/random/noting_library.h"

#include "tests/support/script_writer.h"

namespace orvendal {

class NotingTools final : public Herramientas {
 public:
  NotingTools(NotingLibrary& library, std::unique_ptr<Herramientas> inner)
      : library_(library), inner_(std::move(inner)) {}

  int FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) override {
    return inner_->FiltrarTecla(caja, key_ascii, opcion);
  }
  void AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) override {
    const int before = library_.times_reopened;
    inner_->AccionPuesto(conexion, cod_puesto);
    library_.answered_(library_.times_reopened > before ? "puesto reconectar" : "puesto cerrar");
  }
  void LiberarForm(ObjectRef& formulario) override { inner_->LiberarForm(formulario); }
  std::string FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                           std::string& modo2) override {
    return inner_->FormatoFecha(fecha, opcion, modo1, modo2);
  }
  void RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                          std::string& sentencia) override {
    inner_->RegistrarSentencia(cadena_sesion, conexion, sentencia);
  }
  std::string FechaHoraTexto(Date& momento) override { return inner_->FechaHoraTexto(momento); }

 private:
  NotingLibrary& library_;
  std::unique_ptr<Herramientas> inner_;
};

class NotingMessages final : public Mensajes {
 public:
  NotingMessages(NotingLibrary& library, std::unique_ptr<Mensajes> inner)
      : library_(library), inner_(std::move(inner)) {}

  void Mostrar(std::string& texto, std::int32_t& estilo, std::string& titulo,
               std::int32_t& respuesta) override {
    inner_->Mostrar(texto, estilo, titulo, respuesta);
    if (respuesta == message::kYes) library_.answered_("respuesta si");
    if (respuesta == message::kNo) library_.answered_("respuesta no");
    if (respuesta == message::kCancel) library_.answered_("respuesta cancelar");
  }

 private:
  NotingLibrary& library_;
  std::unique_ptr<Mensajes> inner_;
};

class NotingSessionChange final : public CambioSesion {
 public:
  NotingSessionChange(NotingLibrary& library, std::unique_ptr<CambioSesion> inner)
      : library_(library), inner_(std::move(inner)) {}

  void AbrirCambio(ConnectionRef& conexion, Value& dato_pantalla, std::string& cod_sucursal,
                   std::string& cod_puesto, std::string& cod_turno, std::int32_t& ancho_base,
                   std::int32_t& alto_base, std::int32_t& resultado) override {
    inner_->AbrirCambio(conexion, dato_pantalla, cod_sucursal, cod_puesto, cod_turno, ancho_base, alto_base,
                        resultado);
    library_.answered_(resultado == 0 ? "sesion cancelar"
                                      : "sesion " + Quoted(cod_sucursal) + " " + Quoted(cod_puesto) + " " +
                                            Quoted(cod_turno));
  }

 private:
  NotingLibrary& library_;
  std::unique_ptr<CambioSesion> inner_;
};

class NotingSearch final : public BuscadorProductos {
 public:
  NotingSearch(NotingLibrary& library, std::unique_ptr<BuscadorProductos> inner)
      : library_(library), inner_(std::move(inner)) {}

  std::string Buscar(DatosClaseRef& datos_sesion, ObjectRef& formulario, const std::string& llamador,
                     const std::string& campo, const std::string& texto, const std::string& modo,
                     bool& indicador) override {
    const std::string code =
        inner_->Buscar(datos_sesion, formulario, llamador, campo, texto, modo, indicador);
    library_.answered_("buscador " + (code.empty() ? "cancelar" : Quoted(code)));
    return code;
  }

 private:
  NotingLibrary& library_;
  std::unique_ptr<BuscadorProductos> inner_;
};

class NotingPicker final : public SelectorEmpleado {
 public:
  NotingPicker(NotingLibrary& library, std::unique_ptr<SelectorEmpleado> inner)
      : library_(library), inner_(std::move(inner)) {}

  void ParaNuevo(bool value) override { inner_->ParaNuevo(value); }
  bool Aceptado() override { return inner_->Aceptado(); }
  void Aceptado(bool value) override { inner_->Aceptado(value); }
  void OpcionFija(bool value) override { inner_->OpcionFija(value); }
  std::string Codigo() override { return inner_->Codigo(); }
  std::string Nombre() override { return inner_->Nombre(); }
  void Nombre(const std::string& value) override { inner_->Nombre(value); }
  void Elegir(ConnectionRef& conexion, std::string& cod_sucursal) override {
    inner_->Elegir(conexion, cod_sucursal);
    library_.answered_(inner_->Aceptado()
                           ? "empleado " + Quoted(inner_->Codigo()) + " " + Quoted(inner_->Nombre())
                           : "empleado cancelar");
  }

 private:
  NotingLibrary& library_;
  std::unique_ptr<SelectorEmpleado> inner_;
};

std::unique_ptr<Herramientas> NotingLibrary::NewHerramientas() {
  return std::make_unique<NotingTools>(*this, inner_.NewHerramientas());
}
std::unique_ptr<Mensajes> NotingLibrary::NewMensajes() {
  return std::make_unique<NotingMessages>(*this, inner_.NewMensajes());
}
std::unique_ptr<CambioSesion> NotingLibrary::NewCambioSesion() {
  return std::make_unique<NotingSessionChange>(*this, inner_.NewCambioSesion());
}
std::unique_ptr<Recalculo> NotingLibrary::NewRecalculo() {
  return inner_.NewRecalculo();
}
std::unique_ptr<BuscadorProductos> NotingLibrary::NewBuscadorProductos() {
  return std::make_unique<NotingSearch>(*this, inner_.NewBuscadorProductos());
}
std::unique_ptr<SelectorEmpleado> NotingLibrary::NewSelectorEmpleado() {
  return std::make_unique<NotingPicker>(*this, inner_.NewSelectorEmpleado());
}

}  // namespace orvendal
