#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/stored_counts.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// The connection is replaced in the middle of a count, from the store of one dialect to one of the other.
class ReplacedConnectionTest : public testing::TestWithParam<Dialect> {
 protected:
  ReplacedConnectionTest() {
    here.AddCount("P10", 1, 2);
    there.AddCount("P20", 3, 4);
    there.AddCount("P21", 3, 4, "E1", "2026-11-16", "02");
    here.OpenWithStylist();
    here.EnterLine("P1", "5");
    Forget(here);
  }
  static std::string Stored(FormDriver& store, const std::string& branch = "01") {
    return StoredCodesIn(store, branch);
  }
  void ReplaceByF2() {
    here.library.ReplaceConnection("AbrirCambio", there.connection);
    here.Key(key::kF2);
  }
  FormDriver here{GetParam()};
  FormDriver there{GetParam() == Dialect::kJet ? Dialect::kSqlServer : Dialect::kJet};
};

TEST_P(ReplacedConnectionTest, LeavesLinesEditorAndHeaderAsTheyAre) {
  here.Type("P4");
  ReplaceByF2();
  EXPECT_EQ(here.state.session.Conexion, there.connection);
  EXPECT_EQ(here.Codes(), (Texts{"P10", "P1"}));
  EXPECT_TRUE(EditorIsOpen(here));
  EXPECT_EQ(EditorText(here), "P4");
  EXPECT_EQ(here.form().TxtEmpleado.Text(), "Ana");
  EXPECT_TRUE(TakeStatements(here).empty());
}

TEST_P(ReplacedConnectionTest, LinesEnteredAfterItComeFromTheNewStore) {
  there.Execute("UPDATE Productos SET Descripcion = 'Otra laca' WHERE Codigo = 'P4'");
  ReplaceByF2();
  here.Type("P4\n");
  EXPECT_EQ(here.Cell(3, kDescription), "Otra laca");
}

TEST_P(ReplacedConnectionTest, TheSaveGoesToTheNewStoreInItsDialect) {
  ReplaceByF2();
  Forget(here);
  here.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(here).empty());
  EXPECT_EQ(Stored(here), "P10");
  EXPECT_EQ(Stored(there), "P10 P1");
  const Texts statements = TakeStatements(here);
  ASSERT_FALSE(statements.empty());
  const bool jet_there = GetParam() != Dialect::kJet;
  EXPECT_EQ(statements[0].find("LIKE '16/11/2026%'") != std::string::npos, jet_there) << statements[0];
  EXPECT_EQ(here.Codes(), (Texts{"P10", "P1"}));
}

TEST_P(ReplacedConnectionTest, ASaveThatFailedInTheOldStoreStartsCleanInTheNewOne) {
  here.recordsets.FailUpdate(2, -2147217873, "Clave duplicada.");
  here.Click("LblGuardar");
  ASSERT_EQ(here.form().variables.RsCodigos->EditMode(), 2);
  here.ClickCell(1, kCode);
  ReplaceByF2();
  Forget(here);
  here.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(here).empty());
  EXPECT_TRUE(TakeMessages(here).empty());
  EXPECT_EQ(Stored(there), "P10 P1");
  EXPECT_EQ(Stored(here), "P10");  // what the failed save had left there
}

TEST_P(ReplacedConnectionTest, AnotherBranchFromF2IsUsedByTheSave) {
  here.library.OnAbrirCambio = [](std::string& branch, std::string&, std::string&) { branch = "02"; };
  ReplaceByF2();
  here.Click("LblGuardar");
  EXPECT_EQ(Stored(there, "01"), "P20");
  EXPECT_EQ(Stored(there, "02"), "P10 P1");
  EXPECT_EQ(here.form().LblSucursal.Caption(), "  Sucursal 01 Centro  ");
}

TEST_P(ReplacedConnectionTest, ByF1WorksTheSame) {
  here.library.ReplaceConnection("AccionPuesto", there.connection);
  here.Key(key::kF1);
  here.Click("LblGuardar");
  EXPECT_EQ(Stored(there), "P10 P1");
}

TEST_P(ReplacedConnectionTest, ByThePickerWorksTheSame) {
  here.library.ReplaceConnection("Elegir", there.connection);
  here.ChooseStylist("E2", "Berta");
  here.Click("LblGuardar");
  EXPECT_EQ(Stored(there), "P10 P1");
}

TEST_P(ReplacedConnectionTest, AFailureOfF2KeepsTheOldConnection) {
  here.library.ReplaceConnection("AbrirCambio", there.connection);
  here.library.FailNext("AbrirCambio", RuntimeError(1001, "sin cambio"));
  here.Key(key::kF2);
  EXPECT_EQ(TakeErrors(here), Texts{"1001: sin cambio"});
  EXPECT_EQ(here.state.session.Conexion, here.connection);
  here.Click("LblGuardar");
  EXPECT_EQ(Stored(here), "P10 P1");
}

TEST_P(ReplacedConnectionTest, ByNothingTheNextStatementIsReportedAndTheLinesStay) {
  here.library.ReplaceConnection("AbrirCambio", nullptr);
  here.Key(key::kF2);
  here.Click("LblGuardar");
  EXPECT_EQ(TakeErrors(here), Texts{"91: Object variable or With block variable not set"});
  EXPECT_EQ(here.Codes(), (Texts{"P10", "P1"}));
  EXPECT_EQ(Stored(here), "P10");
}

TEST_P(ReplacedConnectionTest, TheDayOfTheNewStoreIsSeenWithTheNextLoad) {
  ReplaceByF2();
  here.Click("LblCancelar");
  EXPECT_EQ(here.Codes(), Texts{"P20"});
}

INSTANTIATE_TEST_SUITE_P(BothDialects, ReplacedConnectionTest,
                         testing::Values(Dialect::kSqlServer, Dialect::kJet), DialectName);

}  // namespace
}  // namespace orvendal
