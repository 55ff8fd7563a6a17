#include <array>

#include "form/columns.h"
#include "form/flag_scope.h"
#include "form/frm_orvendalciales.h"
#include "store/date_condition.h"
#include "store/statements.h"

namespace orvendal {
namespace {

// The grid never has fewer rows: the title row and 12 lines.
constexpr int kFloorRows = 13;
constexpr int kFloorLines = 12;

// The field of each column, in the order of the columns.
constexpr std::array<const char*, column::kCount> kFields = {"IdProducto",  "Descripcion", "stockAnterior",
                                                             "StockActual", "IdEmpleado",  "Nombre",
                                                             "Fecha",       "IdProducto",  "StockActual"};

}  // namespace

void FrmOrvendalciales::CargarExistencias() {
  const std::string condition = DateConditionOfLoad(Session().Conexion, Calendario.Value(), UserRegion());
  const bool cuts_lines =
      MSFProductos.Rows() > kFloorRows && !MSFProductos.TextMatrix(kFloorRows, column::kCode).empty();
  bool has_written = false;
  try {
    const FlagScope loading(variables.CargandoLineas);
    LoadLines(condition, has_written);
  } catch (const RuntimeError&) {
    if (has_written || cuts_lines) variables.lines_not_whole = true;
    // What is typed in the editor is kept only if its line is as it was, neither written over nor removed.
    if (has_written || !EditorIsInPlace()) PlaceEditorAnew();
    throw;
  }
  variables.lines_not_whole = false;
  variables.day_of_lines = Calendario.Value();
  ++variables.loads;
  PlaceEditorAnew();  // an editor that stayed open shows what its cell holds now
}

// `has_written` turns true before the first line is written over.
void FrmOrvendalciales::LoadLines(const std::string& condition, bool& has_written) {
  MSFProductos.Rows(kFloorRows);
  MSFProductos1.Rows(1);
  const RecordsetRef lines = NewRecordset();
  statements::OpenForReading(*lines, statements::LinesOfDay(Session().ClaveSucursal(), condition),
                             Session().Conexion);
  int row = 1;
  std::string joined;  // one text for all rows
  for (; !lines->AtEnd(); ++row) {
    has_written = true;
    if (row > MSFProductos.Rows() - 1) MSFProductos.AddItem("");
    WriteLoadedRow(row, *lines, joined);
    MSFProductos.Row(row);  // the row events colour the line
    if (!MSFProductos.RowIsVisible(row)) MSFProductos.TopRow(MSFProductos.Rows() - kFloorLines);
    lines->MoveNext();
  }
  // A free row stands after the last line.
  if (row - 1 == MSFProductos.Rows() - 1) MSFProductos.AddItem("");
  for (; row < kFloorRows; ++row) {
    for (int column = 0; column < MSFProductos.Cols(); ++column) MSFProductos.TextMatrix(row, column, "");
  }
  if (MSFProductos.TextMatrix(1, column::kCode).empty()) MSFProductos.Row(1);
  if (lines->State() == kStateOpen) lines->Close();
}

// The same nine values go to the line and, joined by tabs, to the snapshot.
void FrmOrvendalciales::WriteLoadedRow(int row, const Recordset& lines, std::string& joined) {
  joined.clear();
  for (int column = 0; column < column::kCount; ++column) {
    Value value = lines.Fields(kFields[static_cast<std::size_t>(column)]).Value();
    // A stylist whom the store no longer knows shows as an empty text; any other Null is an error.
    const bool is_unknown_stylist = column == column::kStylist && value.IsNull();
    const std::string text = is_unknown_stylist ? std::string() : TextOf(std::move(value));
    MSFProductos.TextMatrix(row, column, text);
    if (column > 0) joined += '\t';
    joined += text;
  }
  MSFProductos1.AddItem(joined);
}

}  // namespace orvendal
