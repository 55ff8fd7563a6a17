#include "form/columns.h"
#include "form/frm_orvendalciales.h"
#include "store/statements.h"

namespace orvendal {

void FrmOrvendalciales::ValidarProducto(bool& Resultado) {
  Resultado = false;
  const std::string code = ChosenProduct();
  if (code.empty()) return;
  if (ProductoRepetido(code)) return;
  Resultado = CargarLinea(code);
}

// The product that the editor's text stands for: from the product table, else from the references, else from
// the user, who decides too where several products match. "" if he does not.
std::string FrmOrvendalciales::ChosenProduct() {
  const bool by_code = MSFProductos.Col() == column::kCode;
  const std::string text = TxtMSF.Text();
  const char* const field = by_code ? "Codigo" : "Descripcion";
  const RecordsetRef products = NewRecordset();
  statements::OpenForReading(
      *products, by_code ? statements::ProductsLikeCode(text) : statements::ProductsByDescription(text),
      Session().Conexion);
  std::string code;
  if (products->AtEnd()) {
    code = BuscarReferencia(text);
    if (code.empty()) code = AbrirBuscador(field, text);
  } else if (products->RecordCount() == 1) {
    code = TextOf(products->Fields("Codigo").Value());
  } else {
    code = AbrirBuscador(field, text);
  }
  products->Close();
  return code;
}

std::string FrmOrvendalciales::BuscarReferencia(const std::string& Referencia) {
  RecordsetRef references = NewRecordset();
  statements::OpenForReading(*references, statements::Reference(Referencia), Session().Conexion);
  std::string code;
  if (!references->AtEnd()) code = TextOf(references->Fields("IdProducto").Value());
  references->Close();
  references.reset();
  return code;
}

bool FrmOrvendalciales::ProductoRepetido(const std::string& Codigo) {
  const MSFlexGrid& grid = MSFProductos;
  int row = grid.FindRow(column::kCode, Codigo, 1);
  if (row == grid.Row()) row = grid.FindRow(column::kCode, Codigo, row + 1);
  if (row < 0) return false;
  // The first line without a code ends the lines.
  const int free_row = grid.FindRow(column::kCode, "", 1);
  if (free_row >= 0 && free_row < row) return false;
  Mostrar("El Producto Seleccionado ya se ha Introducido Anteriormente, Imposible Continuar",
          message::kInformation, "");
  return true;
}

bool FrmOrvendalciales::CargarLinea(const std::string& Codigo) {
  // A line is not loaded twice with the same product.
  if (Codigo == MSFProductos.TextMatrix(MSFProductos.Row(), column::kStoredCode)) return false;
  RecordsetRef product = NewRecordset();
  statements::OpenForReading(*product, statements::DescriptionOf(Codigo), Session().Conexion);
  if (product->AtEnd()) {
    product->Close();
    product.reset();
    return false;
  }
  try {
    WriteLine(*product, Codigo);
  } catch (const RuntimeError&) {
    // The editor holds the code, which would become the quantity as soon as the cursor left that cell.
    PlaceEditorAnew();
    throw;
  }
  product.reset();
  return true;
}

// `product` holds the description and is used again for the stock. An error leaves the line half written.
void FrmOrvendalciales::WriteLine(Recordset& product, const std::string& code) {
  MSFlexGrid& grid = MSFProductos;
  const int row = grid.Row();
  TxtMSF.Text(code);
  grid.TextMatrix(row, column::kCode, code);
  grid.TextMatrix(row, column::kDescription, TextOf(product.Fields("Descripcion").Value()));
  product.Close();

  statements::OpenForReading(product, statements::StockOf(Session().ClaveSucursal(), code),
                             Session().Conexion);
  std::int32_t stock = 0;
  if (!product.AtEnd()) stock = UserRegion().ToLong(product.Fields("Stock").Value());
  const std::string stock_text = TextOf(stock);
  grid.TextMatrix(row, column::kPreviousQuantity, stock_text);
  grid.TextMatrix(row, column::kQuantity, stock_text);
  grid.TextMatrix(row, column::kDate, TextOf(Calendario.Value()));
  grid.TextMatrix(row, column::kEmployeeCode, TxtCodigo.Text());
  grid.TextMatrix(row, column::kStylist, TxtEmpleado.Text());
  grid.TextMatrix(row, column::kStoredCode, code);
  product.Close();
}

}  // namespace orvendal
