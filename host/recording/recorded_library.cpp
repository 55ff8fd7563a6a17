#include "host/recording/recorded_library.h"

#include "host/script/script_values.h"
#include "platform/base/text.h"

namespace orvendal {
namespace {

constexpr std::int32_t kButtons = 0xF;

const char* AnswerName(std::int32_t answer) {
  switch (answer) {
    case message::kYes:
      return "si";
    case message::kNo:
      return "no";
    case message::kCancel:
      return "cancelar";
    default:
      return "aceptar";
  }
}

// The object of the library inside, and the one that stands in for it.
template <typename Type>
class Followed {
 public:
  using Make = std::unique_ptr<Type> (Library::*)();
  Followed(Library& inner, Library* const& replacement, Make make)
      : inner_(inner), replacement_(replacement), make_(make) {}

  Type& Now() {
    if (replacement_ == nullptr) {
      if (!own_) own_ = (inner_.*make_)();
      return *own_;
    }
    if (made_by_ != replacement_) {
      other_ = (replacement_->*make_)();
      made_by_ = replacement_;
    }
    return *other_;
  }

 private:
  Library& inner_;
  Library* const& replacement_;
  Make make_;
  std::unique_ptr<Type> own_;
  std::unique_ptr<Type> other_;
  Library* made_by_ = nullptr;
};

}  // namespace

void RecordedLibrary::RunDialog(const char* operation, const std::function<void()>& dialog) {
  try {
    dialog();
  } catch (const RuntimeError& error) {
    Answer(std::string("fallo biblioteca ") + operation + " " + std::to_string(error.Number()) + " " +
           TextWord(error.Description()));
    throw;
  }
}

class RecordedHerramientas final : public Herramientas {
 public:
  explicit RecordedHerramientas(RecordedLibrary& library)
      : library_(library), tools_(library.inner_, library.replacement_, &Library::NewHerramientas) {}

  int FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) override {
    return tools_.Now().FiltrarTecla(caja, key_ascii, opcion);
  }
  void AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) override {
    const auto reopened = [this] { return library_.times_reopened ? library_.times_reopened() : 0; };
    const int before = reopened();
    library_.RunDialog("AccionPuesto", [&] { tools_.Now().AccionPuesto(conexion, cod_puesto); });
    library_.Answer(reopened() == before ? "puesto cerrar" : "puesto reconectar");
  }
  void LiberarForm(ObjectRef& formulario) override { tools_.Now().LiberarForm(formulario); }
  std::string FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                           std::string& modo2) override {
    return tools_.Now().FormatoFecha(fecha, opcion, modo1, modo2);
  }
  void RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                          std::string& sentencia) override {
    tools_.Now().RegistrarSentencia(cadena_sesion, conexion, sentencia);
  }
  std::string FechaHoraTexto(Date& momento) override { return tools_.Now().FechaHoraTexto(momento); }

 private:
  RecordedLibrary& library_;
  Followed<Herramientas> tools_;
};

class RecordedMensajes final : public Mensajes {
 public:
  explicit RecordedMensajes(RecordedLibrary& library)
      : library_(library), messages_(library.inner_, library.replacement_, &Library::NewMensajes) {}

  void Mostrar(std::string& texto, std::int32_t& estilo, std::string& titulo,
               std::int32_t& respuesta) override {
    library_.RunDialog("Mostrar", [&] { messages_.Now().Mostrar(texto, estilo, titulo, respuesta); });
    if (library_.recorder_ == nullptr) return;
    library_.recorder_->MessageShown();
    if ((estilo & kButtons) != 0) library_.Answer(std::string("respuesta ") + AnswerName(respuesta));
  }

 private:
  RecordedLibrary& library_;
  Followed<Mensajes> messages_;
};

class RecordedCambioSesion final : public CambioSesion {
 public:
  explicit RecordedCambioSesion(RecordedLibrary& library)
      : library_(library), change_(library.inner_, library.replacement_, &Library::NewCambioSesion) {}

  void AbrirCambio(ConnectionRef& conexion, Value& dato_pantalla, std::string& cod_sucursal,
                   std::string& cod_puesto, std::string& cod_turno, std::int32_t& ancho_base,
                   std::int32_t& alto_base, std::int32_t& resultado) override {
    resultado = 0;
    library_.RunDialog("AbrirCambio", [&] {
      change_.Now().AbrirCambio(conexion, dato_pantalla, cod_sucursal, cod_puesto, cod_turno, ancho_base,
                                alto_base, resultado);
    });
    constexpr int kOfBranch = 2;
    library_.Answer(resultado == 0 ? std::string("sesion cancelar")
                                   : "sesion " + CodeWord(Mid(cod_sucursal, 1, kOfBranch)) + " " +
                                         CodeWord(cod_puesto) + " " + CodeWord(cod_turno));
  }

 private:
  RecordedLibrary& library_;
  Followed<CambioSesion> change_;
};

class RecordedBuscador final : public BuscadorProductos {
 public:
  explicit RecordedBuscador(RecordedLibrary& library)
      : library_(library), search_(library.inner_, library.replacement_, &Library::NewBuscadorProductos) {}

  std::string Buscar(DatosClaseRef& datos_sesion, ObjectRef& formulario, const std::string& llamador,
                     const std::string& campo, const std::string& texto, const std::string& modo,
                     bool& indicador) override {
    std::string code;
    library_.RunDialog("Buscar", [&] {
      code = search_.Now().Buscar(datos_sesion, formulario, llamador, campo, texto, modo, indicador);
    });
    library_.Answer(code.empty() ? std::string("buscador cancelar") : "buscador " + CodeWord(code));
    return code;
  }

 private:
  RecordedLibrary& library_;
  Followed<BuscadorProductos> search_;
};

class RecordedSelector final : public SelectorEmpleado {
 public:
  explicit RecordedSelector(RecordedLibrary& library)
      : library_(library), picker_(library.inner_, library.replacement_, &Library::NewSelectorEmpleado) {}

  void ParaNuevo(bool value) override { picker_.Now().ParaNuevo(value); }
  bool Aceptado() override { return picker_.Now().Aceptado(); }
  void Aceptado(bool value) override { picker_.Now().Aceptado(value); }
  void OpcionFija(bool value) override { picker_.Now().OpcionFija(value); }
  std::string Codigo() override { return picker_.Now().Codigo(); }
  std::string Nombre() override { return picker_.Now().Nombre(); }
  void Nombre(const std::string& value) override { picker_.Now().Nombre(value); }
  void Elegir(ConnectionRef& conexion, std::string& cod_sucursal) override {
    library_.RunDialog("Elegir", [&] { picker_.Now().Elegir(conexion, cod_sucursal); });
    library_.Answer(Aceptado() ? "empleado " + CodeWord(Codigo()) + " " + TextWord(Nombre())
                               : std::string("empleado cancelar"));
  }

 private:
  RecordedLibrary& library_;
  Followed<SelectorEmpleado> picker_;
};

std::unique_ptr<Herramientas> RecordedLibrary::NewHerramientas() {
  return std::make_unique<RecordedHerramientas>(*this);
}
std::unique_ptr<Mensajes> RecordedLibrary::NewMensajes() {
  return std::make_unique<RecordedMensajes>(*this);
}
std::unique_ptr<CambioSesion> RecordedLibrary::NewCambioSesion() {
  return std::make_unique<RecordedCambioSesion>(*this);
}
std::unique_ptr<Recalculo> RecordedLibrary::NewRecalculo() {
  return (replacement_ != nullptr ? *replacement_ : inner_).NewRecalculo();
}
std::unique_ptr<BuscadorProductos> RecordedLibrary::NewBuscadorProductos() {
  return std::make_unique<RecordedBuscador>(*this);
}
std::unique_ptr<SelectorEmpleado> RecordedLibrary::NewSelectorEmpleado() {
  return std::make_unique<RecordedSelector>(*this);
}

}  // namespace orvendal
