#include "form/columns.h"
#include "form/flag_scope.h"
#include "form/frm_orvendalciales.h"

namespace orvendal {

// "Izq" and "Der" work, though no key sends them.
void FrmOrvendalciales::MoverCelda(const std::string& Direccion) {
  MSFlexGrid& grid = MSFProductos;
  if (Direccion == "Izq") {
    if (grid.Col() > column::kCode) {
      const FlagScope moving(variables.MoviendoColumna);
      // The previous quantity is jumped over.
      grid.Col(grid.Col() == column::kQuantity ? column::kDescription : grid.Col() - 1);
    }
  } else if (Direccion == "Der") {
    const int next = grid.Col() + 1;
    const bool has_code = !grid.TextMatrix(grid.Row(), column::kCode).empty();
    const bool allowed = (has_code && next > column::kDescription) || next < column::kPreviousQuantity;
    if (grid.Col() < variables.UltimaColumna && allowed) {
      const FlagScope moving(variables.MoviendoColumna);
      grid.Col(next);
    }
  } else if (Direccion == "Arr") {
    if (grid.Row() > 1) grid.Row(grid.Row() - 1);
  } else if (Direccion == "Aba") {
    const bool has_code = !grid.TextMatrix(grid.Row(), column::kCode).empty();
    if (has_code && grid.Row() + 1 <= grid.Rows() - 1) {
      grid.Row(grid.Row() + 1);
      const bool is_free = grid.TextMatrix(grid.Row(), column::kCode).empty();
      if (is_free && grid.Col() > column::kDescription) grid.Col(column::kCode);
    }
  }
  if (TxtMSF.Visible()) SelectEditorText();
}

}  // namespace orvendal
