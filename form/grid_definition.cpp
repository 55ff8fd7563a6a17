#include "form/columns.h"
#include "form/frm_orvendalciales.h"

namespace orvendal {

void FrmOrvendalciales::DefineLineGrid() {
  MSFlexGrid& grid = MSFProductos;
  grid.RowHeightMin(500);
  grid.Cols(column::kCount);
  grid.Rows(13);
  grid.Height(6455);

  RecordsetRef& words = Session().DiccGeneral;
  grid.TextMatrix(0, 0, TextOf(Word(words, "Codigo")));
  grid.TextMatrix(0, 1, TextOf(Word(words, "Descripcion")));
  grid.TextMatrix(0, 2, "Cant.Ant");
  grid.TextMatrix(0, 3, "Cant.Actual");
  grid.TextMatrix(0, 5, TextOf(Word(words, "Estilista")));
  grid.TextMatrix(0, 6, "Fecha");
  grid.TextMatrix(0, 7, "CodigoAnterior");
  grid.TextMatrix(0, 8, "CantidadAnterior");

  grid.FixedAlignment(0, 4);
  grid.FixedAlignment(1, 1);
  grid.FixedAlignment(2, 4);
  grid.FixedAlignment(3, 4);
  grid.FixedAlignment(5, 4);
  for (const int shown : {0, 1, 2, 3, 5}) grid.ColAlignment(shown, 1);

  grid.ColWidth(0, 1200);
  grid.ColWidth(2, 1200);
  grid.ColWidth(3, 1500);
  grid.ColWidth(4, 0);
  variables.UltimaColumna = 3;
  grid.ColWidth(5, 1500);
  grid.ColWidth(6, 0);
  grid.ColWidth(7, 0);
  grid.ColWidth(8, 0);
  FitDescriptionColumn();
}

void FrmOrvendalciales::FitDescriptionColumn() {
  MSFlexGrid& grid = MSFProductos;
  grid.ColWidth(1, RoundToLong(grid.Width() - grid.ColWidth(0) - grid.ColWidth(2) - grid.ColWidth(3) -
                               grid.ColWidth(5) - 300));
}

// Over the description of the first line; `beyond_column` twips wider than that.
void FrmOrvendalciales::FitEditor(double beyond_column) {
  TxtMSF.Height(MSFProductos.RowHeightMin() + 10);
  TxtMSF.Width(MSFProductos.ColWidth(1) + beyond_column);
  TxtMSF.Left(MSFProductos.Left() + MSFProductos.ColWidth(0));
  TxtMSF.Top(MSFProductos.Top() + MSFProductos.RowHeightMin());
}

// Column 8 bears the title of column 2 on purpose; nobody looks a column up by its title.
void FrmOrvendalciales::DefineSnapshotGrid() {
  MSFlexGrid& grid = MSFProductos1;
  grid.Cols(column::kCount);
  grid.TextMatrix(0, 0, "Código");
  grid.TextMatrix(0, 1, "Descripción");
  grid.TextMatrix(0, 2, "CantidadAnterior");
  grid.TextMatrix(0, 3, "CantidadActual");
  grid.TextMatrix(0, 4, "IdEmpleado");
  grid.TextMatrix(0, 5, "Estilista");
  grid.TextMatrix(0, 6, "Fecha");
  grid.TextMatrix(0, 7, "CodigoAnterior");
  grid.TextMatrix(0, 8, "CantidadAnterior");
  grid.ColWidth(1, 3200);
  grid.ColWidth(3, 2000);
  grid.ColWidth(4, 2000);
  grid.ColWidth(5, 1200);
}

}  // namespace orvendal
