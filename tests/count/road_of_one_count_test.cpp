#include <gtest/gtest.h>

#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

class RoadOfOneCountTest : public testing::TestWithParam<Dialect> {
 protected:
  FormDriver screen{GetParam()};
};

TEST_P(RoadOfOneCountTest, FromTheKeyboardToTheStore) {
  screen.OpenWithStylist();
  ASSERT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
  screen.EnterLine("P1", "12");
  screen.EnterLine("8400000000024", "3,5");
  screen.Click("LblGuardar");

  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "2");
  EXPECT_EQ(
      screen.Sql("SELECT IdSucursal || ' ' || Fecha || ' ' || StockAnterior || ' ' || StockActual || ' ' || "
                 "IdEmpleado || ' ' || Actualizado || ' ' || ModificadoPor FROM HistOrvendalcial "
                 "WHERE IdProducto = 'P1'"),
      "01 2026-11-16 00:00:00 7 12 E1 2026-11-16 10:30:00 01");
  EXPECT_EQ(screen.Sql("SELECT StockActual FROM HistOrvendalcial WHERE IdProducto = 'P2'"), "3.5");
  EXPECT_EQ(screen.Codes(), (std::vector<std::string>{"P1", "P2"}));
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, RoadOfOneCountTest,
                         testing::Values(Dialect::kSqlServer, Dialect::kJet));

}  // namespace
}  // namespace orvendal
