#include "form/columns.h"
#include "form/flag_scope.h"
#include "form/frm_orvendalciales.h"
#include "screen/palette.h"

namespace orvendal {

void FrmOrvendalciales::MSFProductos_GotFocus() {
  if (!TxtEmpleado.Text().empty()) return;
  Mostrar("Debe seleccionar un Estilista", message::kInformation, "");
  TxtEmpleado.Enabled(true);
  TxtEmpleado.SetFocus();
}

void FrmOrvendalciales::MSFProductos_Click() {
  if (MSFProductos.Col() == column::kPreviousQuantity || MSFProductos.Col() > column::kQuantity) {
    MSFProductos.Col(column::kQuantity);
  }
  if (!TxtMSF.Visible()) return;
  try {
    TxtMSF.SetFocus();
  } catch (const RuntimeError&) {
    // An editor that cannot have the focus now is no fault of the click.
  }
}

void FrmOrvendalciales::MSFProductos_DblClick() {
  int blank = ' ';
  EntrarCelda(blank);
}

// Typing and pressing on the grid itself never open the editor.
void FrmOrvendalciales::MSFProductos_KeyPress(int& /*KeyAscii*/) {}
void FrmOrvendalciales::MSFProductos_MouseDown(int /*Button*/, int /*Shift*/, double /*X*/, double /*Y*/) {}

// Colours the current line from column 0 on, cell by cell; each step raises the cell events again, which
// PintandoFila silences.
void FrmOrvendalciales::PaintLine(ColorWord back_color, ColorWord fore_color, int last_column) {
  const FlagScope painting(variables.PintandoFila);
  const int column = MSFProductos.Col();
  for (int i = 0; i <= last_column; ++i) {
    MSFProductos.Col(i);
    MSFProductos.CellBackColor(back_color);
    MSFProductos.CellForeColor(fore_color);
  }
  MSFProductos.Col(column);
}

void FrmOrvendalciales::MSFProductos_LeaveCell() {
  if (variables.PintandoFila) return;
  if (!variables.MoviendoColumna) PaintLine(palette::kSand, palette::kBlack, MSFProductos.Cols() - 1);
  // While a load runs, the editor's text belongs to a line that the load replaces.
  if (IsEditingQuantity() && !variables.CargandoLineas) CommitQuantity();
}

void FrmOrvendalciales::MSFProductos_RowColChange() {
  if (variables.PintandoFila) return;
  MSFlexGrid& grid = MSFProductos;
  if (grid.TextMatrix(grid.Row(), column::kCode).empty()) {
    const int free_row = grid.FindRow(column::kCode, "", 1);
    if (free_row >= 0) grid.Row(free_row);
  }
  PlaceEditorAnew();
  // The last column, which is hidden, is coloured only when the cursor leaves the line.
  if (!variables.MoviendoColumna) PaintLine(palette::kButtonFace, palette::kWhite, grid.Cols() - 2);
}

// The editor follows its cell up and down, seen or not; never sideways.
void FrmOrvendalciales::MSFProductos_Scroll() {
  TxtMSF.Top(MSFProductos.Top() + MSFProductos.CellTop() - 10);
}

void FrmOrvendalciales::ScrollProductos_Change() {
  RsCodigosEnUso()->AbsolutePosition(ScrollProductos.Value());
}

}  // namespace orvendal
