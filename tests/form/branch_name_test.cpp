#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

class BranchNameTest : public testing::TestWithParam<Dialect> {
 protected:
  double FittedWidth(const std::string& caption) {
    return screen.host.TextWidth({"Bookman Old Style", 12, 600, false}, caption);
  }
  Label& name() { return screen.form().LblSucursal; }

  FormDriver screen{GetParam()};
};

TEST_P(BranchNameTest, ShowsWordKeyAndName) {
  screen.Open("01");
  EXPECT_EQ(name().Caption(), "  Sucursal 01 Centro  ");
  EXPECT_EQ(name().Tag(), "01");
}

TEST_P(BranchNameTest, OnlyTheFirstTwoCharactersCount) {
  screen.Open("0123");
  EXPECT_EQ(name().Caption(), "  Sucursal 01 Centro  ");
  EXPECT_EQ(name().Tag(), "01");
  EXPECT_TRUE(screen.library.TakeMessages().empty());
}

TEST_P(BranchNameTest, NoWildcardIsAdded) {
  screen.Execute("DELETE FROM Sucursales WHERE Sucursal = '01'");
  screen.Execute("INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('0', 'Cero')");
  screen.Open("01");
  EXPECT_EQ(screen.library.TakeMessages().size(), 1U);
}

TEST_P(BranchNameTest, AShorterCodeLooksForWhatThereIs) {
  screen.Execute("INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('7', 'Siete')");
  screen.Open("7");
  EXPECT_EQ(name().Caption(), "  Sucursal 7 Siete  ");
  EXPECT_EQ(name().Tag(), "7");
}

TEST_P(BranchNameTest, AnEmptyCodeLooksForTheEmptyKey) {
  screen.Open("");
  EXPECT_EQ(screen.library.TakeMessages().size(), 1U);
  EXPECT_EQ(name().Tag(), "");
  EXPECT_TRUE(screen.HasForm());
}

TEST_P(BranchNameTest, TheRightEdgeStaysWhereItWas) {
  screen.Open("02");
  EXPECT_EQ(name().Width(), FittedWidth("  Sucursal 02 Norte  "));
  EXPECT_EQ(name().Left() + name().Width(), 11280 + 2805);
}

TEST_P(BranchNameTest, ALongNameGrowsToTheLeft) {
  screen.Execute(
      "UPDATE Sucursales SET Nombre = 'Centro comercial de la ronda del norte' WHERE Sucursal = '01'");
  screen.Open("01");
  EXPECT_LT(name().Left(), 11280);
  EXPECT_EQ(name().Left() + name().Width(), 11280 + 2805);
}

TEST_P(BranchNameTest, ABranchThatIsMissingIsToldOnceAndTheScreenWorks) {
  screen.Open("09");
  const auto messages = screen.library.TakeMessages();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].text, "Error al cargar la sucursal");
  EXPECT_EQ(messages[0].style, 16);
  EXPECT_EQ(messages[0].title, "Atención");
  EXPECT_EQ(name().Caption(), "");
  EXPECT_EQ(name().Left(), 11280);
  EXPECT_EQ(name().Width(), 2805);

  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, column::kCode);
  screen.EnterLine("P1", "12");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT IdSucursal || IdProducto || StockActual FROM HistOrvendalcial"), "09P112");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
}

TEST_P(BranchNameTest, AnEmptyTableOfBranchesIsToldTooAndTheScreenWorks) {
  screen.Execute("DELETE FROM Sucursales");
  screen.Open("01");
  EXPECT_EQ(screen.library.TakeMessages().size(), 1U);
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(screen.form().TxtFechaHora.Text(), "16/11/2026");
  EXPECT_EQ(screen.Focused(), "PicServicios");
}

TEST_P(BranchNameTest, TheMessageComesBeforeTheDatesAreSet) {
  std::string date_at_message = "none";
  screen.library.DuringNextDialog([&] { date_at_message = screen.state.form->MkFecha.Text(); });
  screen.Open("09");
  EXPECT_EQ(date_at_message, "");
  EXPECT_EQ(screen.form().MkFecha.Text(), "16/11/2026");
}

TEST_P(BranchNameTest, ANameThatIsNullIsJoinedAsNothing) {
  screen.Execute("UPDATE Sucursales SET Nombre = NULL WHERE Sucursal = '01'");
  screen.Open("01");
  EXPECT_EQ(name().Caption(), "  Sucursal 01   ");
  EXPECT_EQ(name().Left() + name().Width(), 11280 + 2805);
  EXPECT_TRUE(screen.library.TakeMessages().empty());
}

TEST_P(BranchNameTest, ALaterBranchOfTheListIsFoundToo) {
  screen.Execute("UPDATE Sucursales SET Nombre = 'Ático' WHERE Sucursal = '02'");
  screen.Execute("INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('03', 'Zona sur')");
  screen.Open("03");
  EXPECT_EQ(name().Caption(), "  Sucursal 03 Zona sur  ");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, BranchNameTest, testing::Values(Dialect::kSqlServer, Dialect::kJet));

}  // namespace
}  // namespace orvendal
