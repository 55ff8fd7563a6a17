#include <limits>

#include "form/columns.h"
#include "form/frm_orvendalciales.h"
#include "platform/base/text.h"
#include "platform/data/ado_error.h"
#include "store/date_condition.h"
#include "store/statements.h"

namespace orvendal {
namespace {

// A delete of lines keeps the rows; only a load takes them away.
constexpr const char* kGridTooLong =
    "Overflow: the grid has more than the 32767 rows that a save takes. Nothing was deleted or saved. Note "
    "the "
    "lines that are new, press Cancel to load the day again, and enter fewer of them.";

constexpr const char* kLinesNotWhole =
    "The lines of the day could not be loaded whole. Nothing was deleted or saved. Press Cancel to load the "
    "day again.";

}  // namespace

void FrmOrvendalciales::LblGuardar_Click(int /*Index*/) {
  if (IsEditingQuantity()) CommitQuantity();
  TxtMSF.Visible(false);
  TxtMSF.Text("");
  if (TxtEmpleado.Text().empty()) {
    RefuseBlankStylist();
    return;
  }
  // The walk counts its rows in 16 bits; a grid beyond that is refused while nothing is lost yet.
  if (MSFProductos.Rows() > std::numeric_limits<std::int16_t>::max())
    throw RuntimeError(error_number::kOverflow, kGridTooLong);
  CheckLinesAreWhole();

  // The day of a save is the text that the screen shows: during a change of date the calendar is ahead of the
  // lines.
  const std::string condition = DateConditionOfSave(Session().Conexion, MkFecha.Text(), UserRegion());
  CheckQuantities();
  CodigosaRecalcular.Clear();
  const RecordsetRef rows = RsCodigosEnUso();
  if (rows->State() == kStateOpen) rows->Close();
  std::string statement = statements::DeleteDay(Session().ClaveSucursal(), condition);
  statements::OpenForWriting(*rows, statement, Session().Conexion);

  ConnectionRef connection = Session().Conexion;
  state_.globals.HerramientasGlobal().RegistrarSentencia(Session().CadenaSesion, connection, statement);
  Session().Conexion = connection;

  statements::OpenForWriting(*rows, statements::WholeHistory(), Session().Conexion);
  if (!StoreLines()) return;
  RecalculateProducts();

  TxtMSF.Visible(false);
  PonerBotones(BotonesEnReposo);
  rows->Close();
  Refresh();
  if (!LblSupervisor.Visible() && !variables.FlagFechaCambio) {
    TxtEmpleado.Enabled(true);
    TxtEmpleado.Text("");
    TxtCodigo.Text("");
  }
  CargarExistencias();
}

// What a load took away before it failed is still in the store, and the delete would take it out of there
// too.
void FrmOrvendalciales::CheckLinesAreWhole() {
  if (variables.lines_not_whole) throw RuntimeError(error_number::kInvalidProcedureCall, kLinesNotWhole);
}

// A quantity that the store's number cannot take ends the save with the error of its assignment, which would
// come after the delete: too late for the lines that follow. The editor opens over the quantity of that line.
void FrmOrvendalciales::CheckQuantities() {
  MSFlexGrid& grid = MSFProductos;
  for (int row = 1; row <= grid.Rows() - 1 && !grid.TextMatrix(row, column::kCode).empty(); ++row) {
    try {
      for (const int checked : {column::kPreviousQuantity, column::kQuantity}) {
        const std::string& text = grid.TextMatrix(row, checked);
        if (!text.empty()) Session().Conexion->CheckNumber(text);  // an empty one is stored as 0
      }
    } catch (const RuntimeError&) {
      grid.Row(row);
      grid.Col(column::kQuantity);
      int blank = ' ';
      EntrarCelda(blank);
      throw;
    }
  }
}

// One new row for each line; false after a refusal, see StoreRow. A form that was closed and loaded again
// meanwhile has a recordset of its new life, which is not open.
bool FrmOrvendalciales::StoreLines() {
  for (int row = 1; row <= MSFProductos.Rows() - 1; ++row) {
    const std::string code = MSFProductos.TextMatrix(row, column::kCode);
    if (code.empty()) break;
    if (!ExisteProducto(code)) continue;  // its old row is gone already: the product drops out of the day
    const RecordsetRef rows = RsCodigosEnUso();
    rows->AddNew();
    FillRow(*rows, row);
    if (!StoreRow(*rows, row)) return false;
  }
  return true;
}

// The eight fields of the pending row. Empty cells are filled in the grid itself first.
void FrmOrvendalciales::FillRow(Recordset& rows, int row) {
  const auto cell = [this, row](int column, const std::string& if_empty) {
    if (MSFProductos.TextMatrix(row, column).empty()) MSFProductos.TextMatrix(row, column, if_empty);
    return MSFProductos.TextMatrix(row, column);
  };
  rows.Collect("IdSucursal", Session().ClaveSucursal());
  rows.Collect("IdProducto", MSFProductos.TextMatrix(row, column::kCode));
  rows.Collect("stockAnterior", cell(column::kPreviousQuantity, "0"));
  rows.Collect("StockActual", cell(column::kQuantity, "0"));
  rows.Collect("IdEmpleado", cell(column::kEmployeeCode, TxtCodigo.Text()));
  rows.Collect("Fecha", FormatoFecha(cell(column::kDate, TxtFechaHora.Text())));
  Date now = Host().SystemClock().Now();
  rows.Collect("Actualizado", state_.globals.HerramientasGlobal().FechaHoraTexto(now));
  rows.Collect("ModificadoPor", Session().ClaveSucursal());  // the branch, not an employee
}

// False after a refusal, which ends the save where it stands: what was deleted and written so far remains.
bool FrmOrvendalciales::StoreRow(Recordset& rows, int row) {
  try {
    rows.Update();
    AnotarRecalculo(MSFProductos.TextMatrix(row, column::kCode));
    return true;
  } catch (const RuntimeError& error) {
    if (error.Number() == ado_error::kMultipleStep) {
      Mostrar("Error al grabar \r\n" + error.Description(), message::kStop, "Error");
      rows.CancelUpdate();
    } else {
      Mostrar("Nº Error:" + std::to_string(error.Number()) + "\r\n" + error.Description(), message::kStop,
              "");
    }
    return false;
  }
}

// Every product concerned: those stored now, and what the day held before, which has changed too.
void FrmOrvendalciales::RecalculateProducts() {
  for (int row = 1; row <= MSFProductos1.Rows() - 1; ++row) {
    const std::string code = MSFProductos1.TextMatrix(row, column::kCode);
    if (Trim(code).empty()) break;
    AnotarRecalculo(code);
  }
  for (int index = 0; index < CodigosaRecalcular.ListCount(); ++index) {
    std::string branch_key = Session().ClaveSucursal();
    std::string code = CodigosaRecalcular.List(index);
    std::string nothing;
    state_.globals.RecalculoGlobal().RecalcularProducto(Session().Conexion, branch_key, code, nothing);
  }
}

bool FrmOrvendalciales::ExisteProducto(const std::string& Codigo) {
  RecordsetRef product = NewRecordset();
  statements::OpenForReading(*product, statements::ProductByCode(Codigo), Session().Conexion);
  if (product->RecordCount() == 0) return false;
  product->Close();
  product.reset();
  return true;
}

void FrmOrvendalciales::AnotarRecalculo(const std::string& Codigo) {
  if (CodigosaRecalcular.Holds(Codigo)) {
    CodigosaRecalcular.Text(Codigo);
  } else {
    CodigosaRecalcular.AddItem(Codigo);
  }
}

}  // namespace orvendal
