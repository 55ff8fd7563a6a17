#include "tests/support/screen_looks.h"

#include "screen/control_catalogue.h"

namespace orvendal {
namespace {

constexpr int kColumns = 9;

// What most steps change.
constexpr const char* kAfterEachStep[] = {
    "TxtMSF.Visible",
    "TxtMSF.Text",
    "TxtMSF.SelStart",
    "TxtMSF.SelLength",
    "TxtMSF.Left",
    "TxtMSF.Top",
    "TxtMSF.Width",
    "MSFProductos.Row",
    "MSFProductos.Col",
    "MSFProductos.Rows",
    "MSFProductos.TopRow",
    "MSFProductos.CellBackColor",
    "MSFProductos.CellForeColor",
    "MSFProductos1.Rows",
    "TxtEmpleado.Text",
    "TxtEmpleado.Enabled",
    "TxtEmpleado.BackColor",
    "TxtCodigo.Text",
    "CmdEmpl.Enabled",
    "MkFecha.Text",
    "MkFecha.Visible",
    "TxtFechaHora.Text",
    "Calendario.Value",
    "PicCalendario.Visible",
    "LblSupervisor.Visible",
    "BtnAnuloSuper.Visible",
    "LblNuevo(1).Enabled",
    "LblBuscar(1).Enabled",
    "LblBorrar(1).Enabled",
    "LblGuardar(1).Enabled",
    "LblCancelar(1).Enabled",
    "Form.WindowState",
    "Form.CodigoCelda",
    "Form.CantidadCelda",
    "Form.PintandoFila",
    "Form.MoviendoColumna",
    "Form.CambiarEstilista",
    "Form.FlagSupervisor",
    "Form.FlagFechaCambio",
    "Form.RsCodigos.State",
    "Form.RsCodigos.EditMode",
    "Form.CodSucursal",
};

constexpr const char* kOfControls[] = {
    "Left",
    "Top",
    "Width",
    "Height",
    "Visible",
    "Enabled",
    "TabIndex",
    "TabStop",
    "BackColor",
    "ForeColor",
    "Appearance",
    "BorderStyle",
    "Align",
    "Tag",
    "Font.Name",
    "Font.Size",
    "Font.Weight",
    "Font.Bold",
    "Font.Italic",
    "Caption",
    "AutoSize",
    "Alignment",
    "BackStyle",
    "Text",
    "SelStart",
    "SelLength",
    "SelText",
    "Locked",
    "MaxLength",
    "ListCount",
    "ListIndex",
    "Row",
    "Col",
    "RowSel",
    "ColSel",
    "Rows",
    "Cols",
    "FixedRows",
    "FixedCols",
    "TopRow",
    "LeftCol",
    "RowHeightMin",
    "RowHeight(1)",
    "ColWidth(0)",
    "ColWidth(1)",
    "ColWidth(4)",
    "ColWidth(8)",
    "ColAlignment(2)",
    "CellLeft",
    "CellTop",
    "CellWidth",
    "CellHeight",
    "RowIsVisible(1)",
    "BackColorFixed",
    "ForeColorFixed",
    "BackColorSel",
    "ForeColorSel",
    "BackColorBkg",
    "Value",
    "MinDate",
    "MaxDate",
    "MonthBackColor",
    "Min",
    "Max",
    "SmallChange",
    "LargeChange",
    "Shape",
    "BorderColor",
    "BorderWidth",
    "Style",
    "Interval",
    "List(0)",
};

constexpr const char* kOfForm[] = {
    "Caption",
    "Left",
    "Top",
    "Width",
    "Height",
    "Visible",
    "KeyPreview",
    "BorderStyle",
    "StartUpPosition",
    "BackColor",
    "ActiveControl",
    "Controls.Count",
    "RsCodigos",
    "PrimeraActivacion",
    "ModoNuevo",
    "BufferTeclas",
    "UltimaColumna",
    "CodPuesto",
    "CodTurno",
    "CadenaSesion",
    "AnchoBase",
    "AltoBase",
};

}  // namespace

ScreenLook LookAtScreen(ScriptWriter& script) {
  ScreenLook look;
  look.messages = script.Do("mostrar mensajes").value_or("");
  script.Do("mostrar sentencias");
  look.library_calls = script.Do("mostrar biblioteca").value_or("");
  if (!script.Do("mostrar foco")) return look;  // there is no screen
  script.Do("mostrar lineas");
  for (const char* reference : kAfterEachStep) script.Do(std::string("mostrar ") + reference);
  return look;
}

void InspectScreen(ScriptWriter& script, int rows) {
  if (!script.Ask("mostrar foco")) return;
  for (const char* property : kOfForm) script.Do(std::string("mostrar Form.") + property);
  for (const CatalogueRow& control : ControlCatalogue()) {
    for (const char* property : kOfControls) script.Do("mostrar " + control.FullName() + "." + property);
  }
  script.Do("mostrar foto");
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      const std::string cell = "(" + std::to_string(row) + "," + std::to_string(column) + ")";
      for (const char* property : {"CellBackColor", "CellForeColor"}) {
        script.Do("mostrar MSFProductos." + std::string(property) + cell);
      }
    }
  }
}

void LookAtStore(ScriptWriter& script, const std::string& branch) {
  const std::string of_branch = " WHERE IdSucursal = '" + branch + "' ";
  script.Do("sql \"SELECT * FROM HistOrvendalcial" + of_branch +
            "AND Fecha >= '2026-11-14' ORDER BY Fecha, rowid\"");
  script.Do(
      "sql \"SELECT Fecha, count(*), sum(StockAnterior), sum(StockActual), max(Actualizado) FROM "
      "HistOrvendalcial" +
      of_branch + "GROUP BY Fecha ORDER BY Fecha\"");
  script.Do("sql \"SELECT count(*), sum(Stock), total(Stock * rowid) FROM ProdSucStock" + of_branch + "\"");
  script.Do("sql \"SELECT rowid, * FROM Diario ORDER BY rowid\"");
}

void LookAtWholeStore(ScriptWriter& script) {
  for (const char* table : {"HistOrvendalcial", "ProdSucStock"}) {
    script.Do("sql \"SELECT IdSucursal, count(*), total(rowid), max(rowid) FROM " + std::string(table) +
              " GROUP BY IdSucursal ORDER BY IdSucursal\"");
  }
}

}  // namespace orvendal
