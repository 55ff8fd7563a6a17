#include "form/columns.h"
#include "form/frm_orvendalciales.h"
#include "platform/base/text.h"

namespace orvendal {

void FrmOrvendalciales::ColocarEditor() {
  if (MSFProductos.Col() == column::kPreviousQuantity) MSFProductos.Col(column::kQuantity);
  variables.editor_row = MSFProductos.Row();
  variables.editor_column = MSFProductos.Col();
  TxtMSF.Text(MSFProductos.Text());
  TxtMSF.Top(MSFProductos.Top() + MSFProductos.CellTop() - 10);
  TxtMSF.Left(MSFProductos.Left() + MSFProductos.CellLeft() - 10);
  TxtMSF.Width(MSFProductos.CellWidth() + 30);
  variables.CodigoCelda = MSFProductos.TextMatrix(MSFProductos.Row(), column::kCode);
  variables.CantidadCelda = MSFProductos.TextMatrix(MSFProductos.Row(), column::kPreviousQuantity);
}

void FrmOrvendalciales::EntrarCelda(int& /*KeyAscii*/) {
  ColocarEditor();
  TxtMSF.Visible(true);
  PonerBotones(BotonesEnCelda);
  TxtMSF.SetFocus();
}

void FrmOrvendalciales::TxtMSF_GotFocus() {
  SelectEditorText();
}

void FrmOrvendalciales::SelectEditorText() {
  TxtMSF.SelStart(0);
  TxtMSF.SelLength(static_cast<int>(Len(TxtMSF.Text())));
}

void FrmOrvendalciales::PlaceEditorAnew() {
  if (!TxtMSF.Visible()) return;
  ColocarEditor();
  SelectEditorText();
}

bool FrmOrvendalciales::IsEditingQuantity() {
  return MSFProductos.Col() == column::kQuantity && TxtMSF.Visible();
}

bool FrmOrvendalciales::EditorIsInPlace() {
  return MSFProductos.Row() == variables.editor_row && MSFProductos.Col() == variables.editor_column;
}

// A cell that the cursor only passes is not written: the editor's text was typed for another cell.
void FrmOrvendalciales::CommitQuantity() {
  if (!EditorIsInPlace()) return;
  MSFProductos.TextMatrix(MSFProductos.Row(), column::kQuantity, TxtMSF.Text());
}

void FrmOrvendalciales::TxtMSF_KeyDown(int& KeyCode, int /*Shift*/) {
  if (KeyCode == key::kUp) {
    MoverCelda("Arr");
    KeyCode = 0;
  } else if (KeyCode == key::kDown) {
    MoverCelda("Aba");
    KeyCode = 0;
  }
}

void FrmOrvendalciales::TxtMSF_KeyPress(int& KeyAscii) {
  if (MSFProductos.Col() == column::kQuantity) {
    KeyAscii = state_.globals.HerramientasGlobal().FiltrarTecla(TxtMSF, KeyAscii, true);
  }
  if (TxtEmpleado.Text().empty()) {
    RefuseBlankStylist();
    TxtMSF.Visible(false);
    PonerBotones(BotonesConLineas);
    return;
  }
  if (KeyAscii == character::kEnter) {
    ConfirmCell();
  } else if (KeyAscii == character::kEscape) {
    TxtMSF.Visible(false);
    PonerBotones(BotonesConLineas);
  } else if (MSFProductos.Col() == column::kPreviousQuantity) {
    // The editor never stands here in normal use.
    const bool is_digit = KeyAscii >= '0' && KeyAscii <= '9';
    if (!is_digit && KeyAscii != character::kBackspace) {
      KeyAscii = 0;
      Host().Beep();
    }
  }
}

// Enter in the editor.
void FrmOrvendalciales::ConfirmCell() {
  const int column = MSFProductos.Col();
  if (column == column::kCode && TxtMSF.Text().empty()) {
    MSFProductos.Col(column::kDescription);
  } else if (TxtMSF.Text().empty()) {
    return;
  } else if (column < column::kPreviousQuantity) {
    bool resolved = false;
    ValidarProducto(resolved);
    if (resolved) MSFProductos.Col(column::kQuantity);
  } else {
    ConfirmQuantity();
  }
}

void FrmOrvendalciales::ConfirmQuantity() {
  MSFlexGrid& grid = MSFProductos;
  if (grid.Col() == column::kQuantity) CommitQuantity();
  if (grid.Col() + 1 > variables.UltimaColumna) {
    if (grid.Row() + 1 > grid.Rows() - 1) grid.AddItem("");
    grid.Row(grid.Row() + 1);
    grid.Col(column::kCode);
  } else {
    grid.Col(grid.Col() + 1);
  }
}

}  // namespace orvendal
