#include "form/columns.h"
#include "form/frm_orvendalciales.h"

namespace orvendal {

void FrmOrvendalciales::LblBuscar_Click(int /*Index*/) {
  const int row = MSFProductos.Row();
  // The search starts from the cell: what is typed and not confirmed does not reach it.
  const std::string code =
      MSFProductos.Col() == column::kCode
          ? AbrirBuscador("Codigo", MSFProductos.TextMatrix(row, column::kCode))
          : AbrirBuscador("Descripcion", MSFProductos.TextMatrix(row, column::kDescription));
  if (code.empty() || ProductoRepetido(code) || !CargarLinea(code)) return;
  if (MSFProductos.Col() == column::kQuantity) {
    PlaceEditorAnew();  // the cursor does not move, so no event brings the stock into the editor
  } else {
    MSFProductos.Col(column::kQuantity);
  }
}

std::string FrmOrvendalciales::AbrirBuscador(const std::string& field, const std::string& text) {
  std::unique_ptr<BuscadorProductos> dialog = state_.environment.library.NewBuscadorProductos();
  ObjectRef form = GlobalForm();
  bool ignored = false;
  const std::string code =
      dialog->Buscar(Session().DatosSesion, form, "Orvendalcial", field, text, "Modal", ignored);
  TakeGlobalForm(form);
  return code;
}

}  // namespace orvendal
