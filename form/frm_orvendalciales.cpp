#include "form/frm_orvendalciales.h"

#include <utility>

#include "screen/control_catalogue.h"

namespace orvendal {

const ButtonSet BotonesEnCelda = {"", "", "", "", ""};
const ButtonSet BotonesConLineas = {"Buscar", "", "", "", ""};
const ButtonSet BotonesEnReposo = {"Buscar", "Borrar", "Guardar", "", ""};
const ButtonSet BotonesSoloCancelar = {"Buscar", "Borrar", "Guardar", "Nuevo", ""};
const ButtonSet BotonesBloqueados = {"Buscar", "Borrar", "Guardar", "Cancelar", "Nuevo"};

FrmOrvendalciales::FrmOrvendalciales(ComponentState& state)
    : Form(state.environment.host, "FrmOrvendalciales"), state_(state) {
  WireFrame();
  WireLines();
  WireCount();
  WireActionBar();
}

void FrmOrvendalciales::ApplyDesign() {
  variables = {};
  ApplyCatalogue(*this);
}

ActionBar FrmOrvendalciales::Buttons() {
  return {{{"Nuevo", LblNuevo_0, LblNuevo_1, DivNuevo_0, DivNuevo_1},
           {"Buscar", LblBuscar_0, LblBuscar_1, DivBuscar_0, DivBuscar_1},
           {"Borrar", LblBorrar_0, LblBorrar_1, DivBorrar_0, DivBorrar_1},
           {"Guardar", LblGuardar_0, LblGuardar_1, DivGuardar_0, DivGuardar_1},
           {"Cancelar", LblCancelar_0, LblCancelar_1, DivCancelar_0, DivCancelar_1}}};
}

void FrmOrvendalciales::PonerBotones(const ButtonSet& off) {
  ArrangeActionBar(Buttons(), GlobalForm()->Width(), off);
}

RecordsetRef FrmOrvendalciales::InUse(RecordsetRef& variable) {
  if (!variable) variable = NewRecordset();
  return variable;
}

std::int32_t FrmOrvendalciales::Mostrar(std::string texto, std::int32_t estilo, std::string titulo) {
  std::int32_t answer = 0;
  state_.globals.MensajesGlobal().Mostrar(texto, estilo, titulo, answer);
  return answer;
}

std::string FrmOrvendalciales::FormatoFecha(std::string fecha) {
  std::string mode1 = "D";
  std::string mode2 = "D";
  return state_.globals.HerramientasGlobal().FormatoFecha(fecha, 1, mode1, mode2);
}

// A library that cleared the reference earlier does not keep the screen from working on itself.
std::shared_ptr<FrmOrvendalciales> FrmOrvendalciales::GlobalForm() {
  if (state_.form) return state_.form;
  return std::static_pointer_cast<FrmOrvendalciales>(shared_from_this());
}

void FrmOrvendalciales::TakeGlobalForm(const ObjectRef& form) {
  std::shared_ptr<FrmOrvendalciales> taken = std::dynamic_pointer_cast<FrmOrvendalciales>(form);
  if (form && !taken) throw RuntimeError(error_number::kTypeMismatch);
  const std::shared_ptr<FrmOrvendalciales> before = std::exchange(state_.form, taken);
  if (before && before != taken && before->IsLoaded()) state_.unnamed_forms.push_back(before);
}

}  // namespace orvendal
