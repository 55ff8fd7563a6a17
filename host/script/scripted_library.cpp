#include "host/script/scripted_library.h"

#include <algorithm>

#include "host/text/printed_text.h"
#include "platform/base/region.h"
#include "platform/forms/form.h"

namespace orvendal {
namespace {

std::string FlagText(bool flag) {
  return flag ? "True" : "False";
}
std::string MomentText(Date moment) {
  return Region::Spanish().Format(moment, "yyyy-mm-dd hh:nn:ss");
}

// The codes of the buttons that a message of this style has.
std::vector<std::int32_t> ButtonsOf(std::int32_t style) {
  constexpr std::int32_t kButtonsMask = 0xF;
  constexpr std::int32_t kAbort = 3;
  constexpr std::int32_t kRetry = 4;
  constexpr std::int32_t kIgnore = 5;
  switch (style & kButtonsMask) {
    case 0:
      return {message::kOk};
    case 1:
      return {message::kOk, message::kCancel};
    case 2:
      return {kAbort, kRetry, kIgnore};
    case 3:
      return {message::kYes, message::kNo, message::kCancel};
    case 4:
      return {message::kYes, message::kNo};
    default:
      return {kRetry, message::kCancel};
  }
}

std::string ObjectText(const ObjectRef& object) {
  if (const auto form = std::dynamic_pointer_cast<Form>(object)) return form->Name();
  return object ? "Objeto" : "Nothing";
}

}  // namespace

void ScriptedLibrary::ReplaceConnection(const std::string& operation, ConnectionRef connection) {
  replacements_[operation] = std::move(connection);
}

void ScriptedLibrary::FailIfAsked(const std::string& operation) {
  ++calls_that_can_fail_;
  if (call_failure_ && --calls_to_failure_ == 0) throw *std::exchange(call_failure_, {});
  const auto found = failures_.find(operation);
  if (found == failures_.end()) return;
  const RuntimeError error = found->second;
  failures_.erase(found);
  throw error;
}

void ScriptedLibrary::ReplaceIfAsked(const std::string& operation, ConnectionRef& connection) {
  const auto found = replacements_.find(operation);
  if (found == replacements_.end()) return;
  connection = found->second;
  replacements_.erase(found);
}

void ScriptedLibrary::RunDuringDialog() {
  if (during_dialog_.empty()) return;
  const std::function<void()> action = std::move(during_dialog_.front());
  during_dialog_.pop_front();
  action();
}

std::int32_t ScriptedLibrary::AnswerTo(const std::string& text, std::int32_t style) {
  const std::vector<std::int32_t> buttons = ButtonsOf(style);
  const bool asks = buttons.size() > 1;
  const bool fits =
      !answers_.empty() && std::find(buttons.begin(), buttons.end(), answers_.front()) != buttons.end();
  if (!fits) {
    if (!asks) return buttons.front();
    throw UnansweredQuestion((answers_.empty() ? "no hay respuesta preparada para el mensaje "
                                               : "la respuesta preparada no es un botón del mensaje ") +
                             QuotedText(text));
  }
  const std::int32_t answer = answers_.front();
  answers_.pop_front();
  return answer;
}

std::int32_t ScriptedLibrary::Present(const std::string& text, std::int32_t style, const std::string& title) {
  const std::int32_t answer = AnswerTo(text, style);
  messages_.push_back({style, title, text, answer});
  return answer;
}

std::vector<std::string> ScriptedLibrary::TakeCalls() {
  std::vector<std::string> taken;
  taken.swap(calls_);
  return taken;
}

std::vector<ScriptedLibrary::ShownMessage> ScriptedLibrary::TakeMessages() {
  std::vector<ShownMessage> taken;
  taken.swap(messages_);
  return taken;
}

class ScriptedHerramientas final : public Herramientas {
 public:
  ScriptedHerramientas(ScriptedLibrary& script, std::unique_ptr<Herramientas> inner)
      : script_(script), inner_(std::move(inner)) {}

  int FiltrarTecla(TextBox& caja, int key_ascii, bool opcion) override {
    script_.FailIfAsked("FiltrarTecla");
    const int result = inner_->FiltrarTecla(caja, key_ascii, opcion);
    script_.Record("HerramientasGlobal.FiltrarTecla(" + caja.FullName() + ", " + std::to_string(key_ascii) +
                   ", " + FlagText(opcion) + ") = " + std::to_string(result));
    return result;
  }

  void AccionPuesto(ConnectionRef& conexion, std::string& cod_puesto) override {
    script_.Record("HerramientasGlobal.AccionPuesto(Conexion, " + QuotedText(cod_puesto) + ")");
    script_.FailIfAsked("AccionPuesto");
    const ModalScope dialog(script_.host_);
    script_.RunDuringDialog();
    if (script_.OnAccionPuesto) script_.OnAccionPuesto(cod_puesto);
    if (script_.prepare_dialog_) {
      script_.prepare_dialog_("AccionPuesto");
      inner_->AccionPuesto(conexion, cod_puesto);
    }
    script_.ReplaceIfAsked("AccionPuesto", conexion);
  }

  void LiberarForm(ObjectRef& formulario) override {
    script_.Record("HerramientasGlobal.LiberarForm(" + ObjectText(formulario) + ")");
    script_.FailIfAsked("LiberarForm");
    if (!script_.keep_form_) inner_->LiberarForm(formulario);
  }

  std::string FormatoFecha(std::string& fecha, std::uint8_t opcion, std::string& modo1,
                           std::string& modo2) override {
    script_.FailIfAsked("FormatoFecha");
    const std::string given = QuotedText(fecha);
    const std::string result = inner_->FormatoFecha(fecha, opcion, modo1, modo2);
    script_.Record("HerramientasGlobal.FormatoFecha(" + given + ", " + std::to_string(opcion) + ", " +
                   QuotedText(modo1) + ", " + QuotedText(modo2) + ") = " + QuotedText(result));
    return result;
  }

  void RegistrarSentencia(std::string& cadena_sesion, ConnectionRef& conexion,
                          std::string& sentencia) override {
    script_.Record("HerramientasGlobal.RegistrarSentencia(" + QuotedText(cadena_sesion) + ", Conexion, " +
                   QuotedText(sentencia) + ")");
    script_.FailIfAsked("RegistrarSentencia");
    inner_->RegistrarSentencia(cadena_sesion, conexion, sentencia);
    script_.ReplaceIfAsked("RegistrarSentencia", conexion);
  }

  std::string FechaHoraTexto(Date& momento) override {
    script_.FailIfAsked("FechaHoraTexto");
    const std::string given = MomentText(momento);
    const std::string result = inner_->FechaHoraTexto(momento);
    script_.Record("HerramientasGlobal.FechaHoraTexto(" + given + ") = " + QuotedText(result));
    return result;
  }

 private:
  ScriptedLibrary& script_;
  std::unique_ptr<Herramientas> inner_;
};

class ScriptedMensajes final : public Mensajes {
 public:
  explicit ScriptedMensajes(ScriptedLibrary& script) : script_(script) {}

  void Mostrar(std::string& texto, std::int32_t& estilo, std::string& titulo,
               std::int32_t& respuesta) override {
    script_.FailIfAsked("Mostrar");
    const ModalScope dialog(script_.host_);
    script_.RunDuringDialog();
    respuesta = script_.Present(texto, estilo, titulo);
    script_.Record("MensajesGlobal.Mostrar(" + QuotedText(texto) + ", " + std::to_string(estilo) + ", " +
                   QuotedText(titulo) + ") = " + std::to_string(respuesta));
  }

 private:
  ScriptedLibrary& script_;
};

class ScriptedCambioSesion final : public CambioSesion {
 public:
  ScriptedCambioSesion(ScriptedLibrary& script, std::unique_ptr<CambioSesion> inner)
      : script_(script), inner_(std::move(inner)) {}

  void AbrirCambio(ConnectionRef& conexion, Value& dato_pantalla, std::string& cod_sucursal,
                   std::string& cod_puesto, std::string& cod_turno, std::int32_t& ancho_base,
                   std::int32_t& alto_base, std::int32_t& resultado) override {
    const Region& region = script_.host_.UserRegion();
    script_.Record("CambioSesion.AbrirCambio(Conexion, " + region.ToText(dato_pantalla) + ", " +
                   QuotedText(cod_sucursal) + ", " + QuotedText(cod_puesto) + ", " + QuotedText(cod_turno) +
                   ", " + std::to_string(ancho_base) + ", " + std::to_string(alto_base) + ", " +
                   std::to_string(resultado) + ")");
    script_.FailIfAsked("AbrirCambio");
    const ModalScope dialog(script_.host_);
    script_.RunDuringDialog();
    if (script_.OnAbrirCambio) script_.OnAbrirCambio(cod_sucursal, cod_puesto, cod_turno);
    if (script_.prepare_dialog_) {
      script_.prepare_dialog_("AbrirCambio");
      inner_->AbrirCambio(conexion, dato_pantalla, cod_sucursal, cod_puesto, cod_turno, ancho_base, alto_base,
                          resultado);
    }
    script_.ReplaceIfAsked("AbrirCambio", conexion);
  }

 private:
  ScriptedLibrary& script_;
  std::unique_ptr<CambioSesion> inner_;
};

class ScriptedRecalculo final : public Recalculo {
 public:
  ScriptedRecalculo(ScriptedLibrary& script, std::unique_ptr<Recalculo> inner)
      : script_(script), inner_(std::move(inner)) {}

  void RecalcularProducto(ConnectionRef& conexion, std::string& clave_sucursal, std::string& codigo,
                          std::string& texto) override {
    script_.Record("RecalculoGlobal.RecalcularProducto(Conexion, " + QuotedText(clave_sucursal) + ", " +
                   QuotedText(codigo) + ", " + QuotedText(texto) + ")");
    script_.FailIfAsked("RecalcularProducto");
    inner_->RecalcularProducto(conexion, clave_sucursal, codigo, texto);
  }

 private:
  ScriptedLibrary& script_;
  std::unique_ptr<Recalculo> inner_;
};

class ScriptedBuscador final : public BuscadorProductos {
 public:
  explicit ScriptedBuscador(ScriptedLibrary& script) : script_(script) {}

  std::string Buscar(DatosClaseRef& datos_sesion, ObjectRef& formulario, const std::string& llamador,
                     const std::string& campo, const std::string& texto, const std::string& modo,
                     bool& indicador) override {
    const std::string call =
        "BuscadorProductos.Buscar(" + std::string(datos_sesion ? "DatosSesion" : "Nothing") + ", " +
        ObjectText(formulario) + ", " + QuotedText(llamador) + ", " + QuotedText(campo) + ", " +
        QuotedText(texto) + ", " + QuotedText(modo) + ", " + FlagText(indicador) + ")";
    script_.FailIfAsked("Buscar");
    const ModalScope dialog(script_.host_);
    script_.RunDuringDialog();
    if (script_.products_.empty())
      throw UnansweredQuestion("no hay respuesta preparada para el buscador de productos");
    const std::string code = script_.products_.front();
    script_.products_.pop_front();
    script_.Record(call + " = " + QuotedText(code));
    return code;
  }

 private:
  ScriptedLibrary& script_;
};

class ScriptedSelector final : public SelectorEmpleado {
 public:
  explicit ScriptedSelector(ScriptedLibrary& script) : script_(script) {}

  void ParaNuevo(bool value) override { Put("ParaNuevo", FlagText(value)); }
  bool Aceptado() override {
    script_.Record("SelectorEmpleado.Aceptado() = " + FlagText(answer_.accepted));
    return answer_.accepted;
  }
  void Aceptado(bool value) override {
    Put("Aceptado", FlagText(value));
    answer_.accepted = value;
  }
  void OpcionFija(bool value) override { Put("OpcionFija", FlagText(value)); }
  std::string Codigo() override {
    script_.Record("SelectorEmpleado.Codigo() = " + QuotedText(answer_.code));
    return answer_.code;
  }
  std::string Nombre() override {
    script_.Record("SelectorEmpleado.Nombre() = " + QuotedText(answer_.name));
    return answer_.name;
  }
  void Nombre(const std::string& value) override {
    Put("Nombre", QuotedText(value));
    answer_.name = value;
  }
  void Elegir(ConnectionRef& conexion, std::string& cod_sucursal) override {
    script_.Record("SelectorEmpleado.Elegir(Conexion, " + QuotedText(cod_sucursal) + ")");
    script_.FailIfAsked("Elegir");
    const ModalScope dialog(script_.host_);
    script_.RunDuringDialog();
    if (script_.employees_.empty())
      throw UnansweredQuestion("no hay respuesta preparada para el selector de empleado");
    answer_ = script_.employees_.front();
    script_.employees_.pop_front();
    script_.ReplaceIfAsked("Elegir", conexion);
  }

 private:
  void Put(const std::string& property, const std::string& value) {
    script_.Record("SelectorEmpleado." + property + "(" + value + ")");
  }

  ScriptedLibrary& script_;
  ScriptedLibrary::EmployeeAnswer answer_;
};

std::unique_ptr<Herramientas> ScriptedLibrary::NewHerramientas() {
  return std::make_unique<ScriptedHerramientas>(*this, inner_.NewHerramientas());
}
std::unique_ptr<Mensajes> ScriptedLibrary::NewMensajes() {
  return std::make_unique<ScriptedMensajes>(*this);
}
std::unique_ptr<CambioSesion> ScriptedLibrary::NewCambioSesion() {
  return std::make_unique<ScriptedCambioSesion>(*this, inner_.NewCambioSesion());
}
std::unique_ptr<Recalculo> ScriptedLibrary::NewRecalculo() {
  return std::make_unique<ScriptedRecalculo>(*this, inner_.NewRecalculo());
}
std::unique_ptr<BuscadorProductos> ScriptedLibrary::NewBuscadorProductos() {
  return std::make_unique<ScriptedBuscador>(*this);
}
std::unique_ptr<SelectorEmpleado> ScriptedLibrary::NewSelectorEmpleado() {
  return std::make_unique<ScriptedSelector>(*this);
}

}  // namespace orvendal
