#include "form/columns.h"
#include "form/frm_orvendalciales.h"

namespace orvendal {

// Only code and quantity count, text against text.
bool FrmOrvendalciales::HayCambios() {
  for (int row = 1; row <= MSFProductos.Rows() - 1; ++row) {
    if (row > MSFProductos1.Rows() - 1) return !MSFProductos.TextMatrix(row, column::kCode).empty();
    for (const int compared : {column::kQuantity, column::kCode}) {
      if (MSFProductos.TextMatrix(row, compared) != MSFProductos1.TextMatrix(row, compared)) return true;
    }
  }
  return false;
}

std::int32_t FrmOrvendalciales::AskToSave() {
  return Mostrar("Se ha encontrado Modificaciones sin Guardar,\r\n¿Guardar Modificaciones?",
                 message::kQuestionYesNoCancel, "");
}

}  // namespace orvendal
