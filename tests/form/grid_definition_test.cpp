#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

struct Column {
  const char* title;
  double width;
  int title_alignment;  // -1: as designed
  int cell_alignment;
  const char* snapshot_title;
  double snapshot_width;  // -1: as designed
};

const Column kColumns[] = {
    {"Código", 1200, 4, 1, "Código", -1},
    {"Descripción", 7395, 1, 1, "Descripción", 3200},
    {"Cant.Ant", 1200, 4, 1, "CantidadAnterior", -1},
    {"Cant.Actual", 1500, 4, 1, "CantidadActual", 2000},
    {"", 0, -1, -1, "IdEmpleado", 2000},
    {"Estilista", 1500, 4, 1, "Estilista", 1200},
    {"Fecha", 0, -1, -1, "Fecha", -1},
    {"CodigoAnterior", 0, -1, -1, "CodigoAnterior", -1},
    {"CantidadAnterior", 0, -1, -1, "CantidadAnterior", -1},
};

class PlainForm final : public Form {
 public:
  explicit PlainForm(WindowHost& host) : Form(host, "FrmPlain") {}
  MSFlexGrid grid{*this, nullptr, "Grid"};
};

class GridDefinitionTest : public testing::Test {
 protected:
  FrmOrvendalciales& OpenedForm() {
    screen.Open();
    return screen.form();
  }

  FormDriver screen;
  FrmOrvendalciales& form = OpenedForm();
  MSFlexGrid& lines = form.MSFProductos;
  MSFlexGrid& snapshot = form.MSFProductos1;
};

TEST_F(GridDefinitionTest, TheNineColumns) {
  ASSERT_EQ(lines.Cols(), 9);
  ASSERT_EQ(snapshot.Cols(), 9);
  const auto plain = std::make_shared<PlainForm>(screen.host);
  const MSFlexGrid& designed = plain->grid;
  const double default_width = designed.ColWidth(column::kCode);
  for (int i = 0; i < 9; ++i) {
    SCOPED_TRACE(i);
    const Column& expected = kColumns[i];
    EXPECT_EQ(lines.TextMatrix(0, i), expected.title);
    EXPECT_EQ(lines.ColWidth(i), expected.width);
    EXPECT_EQ(snapshot.TextMatrix(0, i), expected.snapshot_title);
    EXPECT_EQ(snapshot.ColWidth(i), expected.snapshot_width < 0 ? default_width : expected.snapshot_width);
    EXPECT_EQ(lines.FixedAlignment(i),
              expected.title_alignment < 0 ? designed.FixedAlignment(0) : expected.title_alignment);
    EXPECT_EQ(lines.ColAlignment(i),
              expected.cell_alignment < 0 ? designed.ColAlignment(0) : expected.cell_alignment);
    EXPECT_EQ(snapshot.FixedAlignment(i), designed.FixedAlignment(0));
    EXPECT_EQ(snapshot.ColAlignment(i), designed.ColAlignment(0));
  }
}

TEST_F(GridDefinitionTest, TheOtherProperties) {
  EXPECT_EQ(lines.RowHeightMin(), 500);
  EXPECT_EQ(lines.Rows(), 13);
  EXPECT_EQ(lines.Height(), 6455);
  EXPECT_EQ(lines.FixedRows(), 1);
  EXPECT_EQ(lines.FixedCols(), 0);
  EXPECT_EQ(snapshot.RowHeightMin(), 300);
  EXPECT_EQ(snapshot.Rows(), 1);
  EXPECT_FALSE(snapshot.Visible());
  EXPECT_EQ(form.variables.UltimaColumna, 3);
}

TEST_F(GridDefinitionTest, TheEmployeesColumnHasNoTitleAndFourColumnsTakeNoRoom) {
  EXPECT_EQ(lines.TextMatrix(0, column::kEmployeeCode), "");
  for (const int hidden : {4, 6, 7, 8}) {
    EXPECT_EQ(lines.ColWidth(hidden), 0) << hidden;
    EXPECT_TRUE(lines.CellRectangle(1, hidden).IsEmpty()) << hidden;
  }
}

TEST_F(GridDefinitionTest, TheDescriptionFillsTheGrid) {
  double visible = 300;
  for (const int column : {0, 1, 2, 3, 5}) visible += lines.ColWidth(column);
  EXPECT_EQ(visible, lines.Width());
}

TEST_F(GridDefinitionTest, TheLastLineShowsCutBy45Twips) {
  EXPECT_EQ(lines.Rows() * lines.RowHeight(1) - lines.Height(), 45);
  const Rect last = lines.CellRectangle(12, 0);
  EXPECT_TRUE(lines.RowIsVisible(12));
  EXPECT_GT(last.height, 0);
  EXPECT_LT(last.height, 500);
  EXPECT_EQ(lines.CellRectangle(11, 0).height, 500);
}

TEST_F(GridDefinitionTest, AWordOfTheDictionaryAppearsInTheLinesOnly) {
  FormDriver other;
  other.session->general->Set("Codigo", "Referencia");
  other.session->general->Set("Descripcion", "Artículo");
  other.session->general->Set("Estilista", "Peluquera");
  other.Open();
  EXPECT_EQ(other.form().MSFProductos.TextMatrix(0, column::kCode), "Referencia");
  EXPECT_EQ(other.form().MSFProductos.TextMatrix(0, column::kDescription), "Artículo");
  EXPECT_EQ(other.form().MSFProductos.TextMatrix(0, column::kStylist), "Peluquera");
  EXPECT_EQ(other.form().MSFProductos1.TextMatrix(0, column::kCode), "Código");
  EXPECT_EQ(other.form().MSFProductos1.TextMatrix(0, column::kDescription), "Descripción");
  EXPECT_EQ(other.form().MSFProductos1.TextMatrix(0, column::kStylist), "Estilista");
}

TEST_F(GridDefinitionTest, TheFirstColumnTakesTheCurrentCell) {
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, column::kCode);
  EXPECT_EQ(lines.Row(), 1);
  EXPECT_EQ(lines.Col(), 0);
}

TEST_F(GridDefinitionTest, TheTitlesAreAlignedAsSaid) {
  EXPECT_EQ(lines.FixedAlignment(0), 4);
  EXPECT_EQ(lines.FixedAlignment(1), 1);
  EXPECT_EQ(lines.FixedAlignment(5), 4);
}

TEST_F(GridDefinitionTest, ALoadKeepsAtLeastTwelveLines) {
  FormDriver other;
  other.AddCounts(2);
  other.Open();
  EXPECT_EQ(other.form().MSFProductos.Rows(), 13);
  FormDriver full;
  full.AddCounts(15);
  full.Open();
  EXPECT_EQ(full.form().MSFProductos.Rows(), 17);  // and a free one after the last
  EXPECT_EQ(full.form().MSFProductos1.Rows(), 16);
}

}  // namespace
}  // namespace orvendal
