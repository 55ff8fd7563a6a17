#include "form/columns.h"
#include "form/frm_orvendalciales.h"

namespace orvendal {

void FrmOrvendalciales::LblBorrar_Click(int /*Index*/) {
  MSFlexGrid& grid = MSFProductos;
  if (grid.TextMatrix(grid.Row(), column::kCode).empty()) return;
  grid.RemoveItem(grid.Row());
  grid.AddItem("");  // the grid never shrinks by a delete
  const std::string under_cursor = grid.TextMatrix(grid.Row(), grid.Col());
  TxtMSF.Text(TxtMSF.Visible() && !under_cursor.empty() ? under_cursor : "");
  if (grid.Col() > column::kDescription) grid.Col(column::kCode);
}

}  // namespace orvendal
