#include "host/library/stand_in_library.h"

#include "host/library/stand_in_employee_picker.h"
#include "host/library/stand_in_messages.h"
#include "host/library/stand_in_product_search.h"
#include "host/library/stand_in_recalculation.h"
#include "host/library/stand_in_session_change.h"
#include "host/library/stand_in_tools.h"

namespace orvendal {

std::unique_ptr<Herramientas> StandInLibrary::NewHerramientas() {
  return std::make_unique<StandInTools>(context_);
}

std::unique_ptr<Mensajes> StandInLibrary::NewMensajes() {
  return std::make_unique<StandInMessages>(context_);
}

std::unique_ptr<CambioSesion> StandInLibrary::NewCambioSesion() {
  return std::make_unique<StandInSessionChange>(context_);
}

std::unique_ptr<Recalculo> StandInLibrary::NewRecalculo() {
  return std::make_unique<StandInRecalculation>(context_);
}

std::unique_ptr<BuscadorProductos> StandInLibrary::NewBuscadorProductos() {
  return std::make_unique<StandInProductSearch>(context_);
}

std::unique_ptr<SelectorEmpleado> StandInLibrary::NewSelectorEmpleado() {
  return std::make_unique<StandInEmployeePicker>(context_);
}

}  // namespace orvendal
