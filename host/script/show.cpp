#include "host/script/show.h"

#include <charconv>

#include "host/script/parser.h"
#include "host/script/values.h"
#include "platform/base/text.h"
#include "platform/forms/named_property.h"

namespace orvendal {
namespace {

constexpr std::string_view kForm = "Form";

struct Reference {
  std::string object;
  std::string property;  // in lower case
  std::vector<int> arguments;
};

[[noreturn]] void NoProperty(const std::string& reference) {
  throw ScriptStop("no existe la propiedad " + reference);
}

std::vector<int> ArgumentsOf(std::string_view list, const std::string& reference) {
  std::vector<int> arguments;
  for (;;) {
    int number = 0;
    const auto [end, error] = std::from_chars(list.data(), list.data() + list.size(), number);
    if (error != std::errc()) NoProperty(reference);
    arguments.push_back(number);
    list.remove_prefix(static_cast<std::size_t>(end - list.data()));
    if (list.empty()) return arguments;
    if (list.front() != ',') NoProperty(reference);
    list.remove_prefix(1);
  }
}

Reference ParseReference(const std::string& text) {
  const std::size_t point = text.find('.');
  if (point == std::string::npos || point == 0 || point + 1 == text.size()) {
    throw ScriptStop("falta la propiedad: se escribe CONTROL.PROPIEDAD");
  }
  Reference reference;
  reference.object = text.substr(0, point);
  std::string_view property = std::string_view(text).substr(point + 1);
  const std::size_t open = property.find('(');
  if (open != std::string_view::npos) {
    if (property.back() != ')') NoProperty(text);
    reference.arguments = ArgumentsOf(property.substr(open + 1, property.size() - open - 2), text);
    property = property.substr(0, open);
  }
  reference.property = ToLower(property);
  return reference;
}

using FormVariables = std::vector<std::pair<std::string_view, std::string>>;

// What a form has beyond the properties of all forms: its variables, and those of the session.
FormVariables VariablesOfForm(FrmOrvendalciales& form, const DatosComunes& session) {
  const FrmOrvendalciales::Variables& variables = form.variables;
  const Control* active = form.ActiveControl();
  const bool has_rows = variables.RsCodigos != nullptr;
  const bool is_open = has_rows && variables.RsCodigos->State() == kStateOpen;
  return {
      {"activecontrol", active == nullptr ? std::string() : active->FullName()},
      {"controls.count", ValueText(static_cast<int>(form.Controls().size()))},
      {"rscodigos", has_rows ? "Recordset" : "Nothing"},
      {"rscodigos.state", ValueText(has_rows ? variables.RsCodigos->State() : 0)},
      {"rscodigos.editmode", ValueText(is_open ? variables.RsCodigos->EditMode() : 0)},
      {"primeraactivacion", ValueText(variables.PrimeraActivacion)},
      {"modonuevo", ValueText(variables.ModoNuevo)},
      {"pintandofila", ValueText(variables.PintandoFila)},
      {"moviendocolumna", ValueText(variables.MoviendoColumna)},
      {"codigocelda", variables.CodigoCelda},
      {"cantidadcelda", variables.CantidadCelda},
      {"bufferteclas", variables.BufferTeclas},
      {"cambiarestilista", ValueText(variables.CambiarEstilista)},
      {"flagsupervisor", ValueText(variables.FlagSupervisor)},
      {"flagfechacambio", ValueText(variables.FlagFechaCambio)},
      {"ultimacolumna", ValueText(static_cast<int>(variables.UltimaColumna))},
      {"codsucursal", session.CodSucursal},
      {"codpuesto", session.CodPuesto},
      {"codturno", session.CodTurno},
      {"cadenasesion", session.CadenaSesion},
      {"anchobase", ValueText(static_cast<int>(session.AnchoBase))},
      {"altobase", ValueText(static_cast<int>(session.AltoBase))},
  };
}

}  // namespace

Control& ControlNamed(const Form& form, const std::string& name) {
  if (Control* control = form.FindControl(name)) return *control;
  if (Control* area = form.FindControl(name + "(1)")) return *area;
  throw ScriptStop("no existe el control " + name);
}

std::string PropertyText(FrmOrvendalciales& form, const DatosComunes& session, const std::string& text) {
  const Reference reference = ParseReference(text);
  if (reference.object == kForm) {
    if (!reference.arguments.empty()) NoProperty(text);
    if (const FormProperty* property = FindFormProperty(reference.property)) {
      return ValueText(property->get(form), property->type);
    }
    for (const auto& [name, value] : VariablesOfForm(form, session)) {
      if (name == reference.property) return value;
    }
    NoProperty(text);
  }
  Control& control = ControlNamed(form, reference.object);
  const NamedProperty* property =
      FindProperty(control.Kind(), reference.property, reference.arguments.size());
  if (property == nullptr) NoProperty(text);
  try {
    return ValueText(property->get(control, reference.arguments), property->type);
  } catch (const RuntimeError& error) {
    throw ScriptStop("no se puede leer " + text + ": error " + std::to_string(error.Number()) + ": " +
                     error.Description());
  }
}

}  // namespace orvendal
