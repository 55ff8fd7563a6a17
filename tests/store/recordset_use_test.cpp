#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/event_log.h"
#include "tests/support/form_driver.h"
#include "tests/support/recording_recordsets.h"

namespace orvendal {
namespace {

using Log = std::vector<std::string>;

class RecordsetUseTest : public testing::TestWithParam<Dialect> {
 protected:
  void Open() {
    ClassOrvendal component(state);
    component.Orvendal(screen.session, "01", "P1", "T1");
  }
  void OpenOnAFreeCell(int column) {
    Open();
    screen.library.QueueEmployee({true, "E1", "Ana"});
    hands().ClickCell(state.form->MSFProductos, 1, 0);
    hands().DoubleClickCell(state.form->MSFProductos, 1, column);
    log.Take();
    screen.library.TakeMessages();
  }
  Robot hands() { return Robot(*state.form); }
  bool jet() const { return GetParam() == Dialect::kJet; }
  std::string LoadCondition() const {
    return jet() ? "BETWEEN #11/16/2026 00:00:00# AND #11/16/2026 23:59:59#"
                 : "BETWEEN CONVERT(DATETIME, '2026-11-16 00:00:00', 102) AND CONVERT(DATETIME, "
                   "'2026-11-16 23:59:59', 102)";
  }
  std::string SaveCondition() const { return jet() ? "LIKE '16/11/2026%'" : LoadCondition(); }
  std::string OpenOfDay() const {
    return "Open SELECT HistOrvendalcial.IdSucursal, HistOrvendalcial.Fecha, HistOrvendalcial.IdProducto, "
           "Productos.Descripcion, HistOrvendalcial.StockAnterior, HistOrvendalcial.StockActual, "
           "HistOrvendalcial.IdEmpleado, Empleados.Nombre FROM (HistOrvendalcial INNER JOIN Productos ON "
           "HistOrvendalcial.IdProducto = Productos.Codigo)  LEFT JOIN Empleados ON "
           "HistOrvendalcial.IdEmpleado = Empleados.Codigo WHERE (HistOrvendalcial.idSucursal = '01') AND "
           "(HistOrvendalcial.Fecha " +
           LoadCondition() + ") (3, 1, -1)";
  }
  std::string OpenOfDelete() const {
    return "Open DELETE FROM HistOrvendalcial WHERE (HistOrvendalcial.idSucursal Like '01') AND "
           "(HistOrvendalcial.Fecha " +
           SaveCondition() + ") (2, 3, -1)";
  }

  FormDriver screen{GetParam()};
  testing_support::EventLog log;
  SqliteRecordsetFactory inner;
  testing_support::RecordingRecordsets recordsets{inner, log};
  ComponentState state{Environment{screen.host, recordsets, screen.library}};
};

TEST_P(RecordsetUseTest, AStartReadsTheBranchesAndTheDay) {
  Open();
  const Log expected = {"1 new",
                        "2 new",
                        "3 new",  // the dictionaries, which the host replaces at once
                        "3 gone",
                        "2 gone",
                        "1 gone",
                        "4 new",
                        "4 Open SELECT Sucursales.Sucursal, Sucursales.Nombre FROM Sucursales ORDER BY "
                        "Sucursales.Nombre (3, 1, -1)",
                        "4 Find Sucursal like '01' (0, 1)",
                        "4 Fields(Nombre)",
                        "4 Close",
                        "4 gone",
                        "5 new",
                        "5 " + OpenOfDay(),
                        "5 State",
                        "5 Close",
                        "5 gone"};
  EXPECT_EQ(log.Take(), expected);
}

TEST_P(RecordsetUseTest, EveryStatementOfAStartGoesToTheConnectionOfTheSession) {
  Open();
  EXPECT_EQ(recordsets.Connections(), (std::vector<ConnectionRef>{screen.connection, screen.connection}));
}

TEST_P(RecordsetUseTest, AMissingBranchClosesTheBranchesToo) {
  screen.Execute("DELETE FROM Sucursales WHERE Sucursal = '01'");
  Open();
  const Log all = log.Take();
  EXPECT_EQ((Log{all.begin() + 8, all.begin() + 11}),
            (Log{"4 Find Sucursal like '01' (0, 1)", "4 Close", "4 gone"}));
}

TEST_P(RecordsetUseTest, NoBranchesAtAllAreNotSearched) {
  screen.Execute("DELETE FROM Sucursales");
  Open();
  const Log all = log.Take();
  EXPECT_EQ((Log{all.begin() + 8, all.begin() + 10}), (Log{"4 Close", "4 gone"}));
}

TEST_P(RecordsetUseTest, TheLinesOfTheDayAreReadRowByRow) {
  screen.AddCount("P1", 1, 2);
  screen.AddCount("P2", 3, 4);
  Open();
  const Log all = log.Take();
  const Log row = {"5 Fields(IdProducto)",    "5 Fields(Descripcion)",
                   "5 Fields(stockAnterior)", "5 Fields(StockActual)",
                   "5 Fields(IdEmpleado)",    "5 Fields(Nombre)",
                   "5 Fields(Fecha)",         "5 Fields(IdProducto)",
                   "5 Fields(StockActual)",   "5 MoveNext"};
  Log expected = row;
  expected.insert(expected.end(), row.begin(), row.end());
  expected.insert(expected.end(), {"5 State", "5 Close", "5 gone"});
  ASSERT_GT(all.size(), expected.size());
  EXPECT_EQ((Log{all.end() - static_cast<std::ptrdiff_t>(expected.size()), all.end()}), expected);
}

TEST_P(RecordsetUseTest, ACodeIsLookedUpAndItsLineFilledInTwoReadings) {
  OpenOnAFreeCell(column::kCode);
  hands().Type("P1");
  hands().Key(key::kReturn);
  const std::string by_code =
      " Open SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Codigo Like 'P1' "
      "(3, 1, -1)";
  EXPECT_EQ(log.Take(),
            (Log{"6 new", "6" + by_code, "6 RecordCount", "6 Fields(Codigo)", "6 Close", "6 gone", "7 new",
                 "7 Open SELECT Productos.Descripcion FROM Productos WHERE Productos.Codigo ='P1' (3, 1, -1)",
                 "7 Fields(Descripcion)", "7 Close",
                 "7 Open SELECT * FROM ProdSucStock WHERE IdSucursal ='01' AND IdProducto ='P1' (3, 1, -1)",
                 "7 Fields(Stock)", "7 Close", "7 gone"}));
}

TEST_P(RecordsetUseTest, ABarCodeIsLookedUpWhileTheSearchByCodeStaysOpen) {
  OpenOnAFreeCell(column::kCode);
  hands().Type("8400000000024");
  hands().Key(key::kReturn);
  const Log all = log.Take();
  const Log expected = {
      "6 new",
      "6 Open SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Codigo Like "
      "'8400000000024' (3, 1, -1)",
      "7 new",
      "7 Open SELECT Referencias.IdProducto FROM Referencias WHERE Referencias.Referencia ='8400000000024' "
      "(3, 1, -1)",
      "7 Fields(IdProducto)",
      "7 Close",
      "7 gone",
      "6 Close",
      "6 gone"};
  ASSERT_GE(all.size(), expected.size());
  EXPECT_EQ((Log{all.begin(), all.begin() + 9}), expected);
}

TEST_P(RecordsetUseTest, ADescriptionIsLookedUpByItsBeginning) {
  OpenOnAFreeCell(column::kDescription);
  hands().Type("Laca");
  hands().Key(key::kReturn);
  const Log all = log.Take();
  ASSERT_GE(all.size(), 2U);
  EXPECT_EQ(all[1],
            "6 Open SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE "
            "Productos.Descripcion Like 'Laca%' (3, 1, -1)");
  EXPECT_EQ(state.form->MSFProductos.TextMatrix(1, column::kCode), "P4");
}

TEST_P(RecordsetUseTest, ASaveDeletesAndAddsThroughTheOneRecordsetOfTheForm) {
  OpenOnAFreeCell(column::kCode);
  hands().Type("P1");
  hands().Key(key::kReturn);
  hands().Type("12");
  hands().Key(key::kReturn);
  log.Take();
  hands().Click(hands().Find("LblGuardar"));
  const Log expected = {
      "8 new",
      "8 State",
      "8 " + OpenOfDelete(),
      "8 Open SELECT HistOrvendalcial.* FROM HistOrvendalcial (2, 3, -1)",
      "9 new",
      "9 Open SELECT Productos.Codigo FROM Productos WHERE Productos.Codigo ='P1' (3, 1, -1)",
      "9 RecordCount",
      "9 Close",
      "9 gone",
      "8 AddNew",
      "8 Collect IdSucursal = 01",
      "8 Collect IdProducto = P1",
      "8 Collect stockAnterior = 7",
      "8 Collect StockActual = 12",
      "8 Collect IdEmpleado = E1",
      "8 Collect Fecha = 16/11/2026",
      "8 Collect Actualizado = 16/11/2026 10:30:00",
      "8 Collect ModificadoPor = 01",
      "8 Update",
      "8 Close",
      "10 new",
      "10 " + OpenOfDay(),
  };
  const Log all = log.Take();
  ASSERT_GE(all.size(), expected.size());
  EXPECT_EQ((Log{all.begin(), all.begin() + static_cast<std::ptrdiff_t>(expected.size())}), expected);
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
}

TEST_P(RecordsetUseTest, AProductThatIsGoneLeavesItsLookUpToBeDroppedOpen) {
  OpenOnAFreeCell(column::kCode);
  hands().Type("P1");
  hands().Key(key::kReturn);
  hands().Key(key::kReturn);
  screen.Execute("DELETE FROM Productos WHERE Codigo = 'P1'");
  log.Take();
  hands().Click(hands().Find("LblGuardar"));
  const Log all = log.Take();
  ASSERT_GT(all.size(), 9U);
  EXPECT_EQ(
      (Log{all.begin() + 4, all.begin() + 9}),
      (Log{"9 new", "9 Open SELECT Productos.Codigo FROM Productos WHERE Productos.Codigo ='P1' (3, 1, -1)",
           "9 RecordCount", "9 gone", "8 Close"}));
}

TEST_P(RecordsetUseTest, TheRecordsetOfASaveIsMadeOnFirstUseAndLivesAsLongAsTheForm) {
  OpenOnAFreeCell(column::kCode);
  EXPECT_EQ(state.form->variables.RsCodigos, nullptr);
  hands().Click(hands().Find("LblGuardar"));
  const RecordsetRef first = state.form->variables.RsCodigos;
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->State(), kStateClosed);
  screen.library.QueueEmployee({true, "E1", "Ana"});
  hands().ClickCell(state.form->MSFProductos, 1, 0);
  hands().Click(hands().Find("LblGuardar"));
  EXPECT_EQ(state.form->variables.RsCodigos, first);
}

TEST_P(RecordsetUseTest, AfterAFailedSaveTheRecordsetStaysOpenUntilTheNextOne) {
  OpenOnAFreeCell(column::kCode);
  hands().Type("P1");
  hands().Key(key::kReturn);
  hands().Key(key::kReturn);
  // A code that is longer than its column.
  state.form->MSFProductos.TextMatrix(1, 4, std::string(200, 'E'));
  hands().Click(hands().Find("LblGuardar"));
  ASSERT_EQ(screen.library.TakeMessages().size(), 1U);
  ASSERT_EQ(state.form->variables.RsCodigos->State(), kStateOpen);
  log.Take();

  state.form->MSFProductos.TextMatrix(1, 4, "E1");
  hands().Click(hands().Find("LblGuardar"));
  const Log all = log.Take();
  ASSERT_GT(all.size(), 4U);
  EXPECT_EQ(all[0], "8 State");
  EXPECT_EQ(all[1], "8 Close");
  EXPECT_EQ(all[2], "8 " + OpenOfDelete());
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "1");
}

TEST_P(RecordsetUseTest, AQuoteTypedIntoACodeEndsTheTextEarlyAndIsReported) {
  OpenOnAFreeCell(column::kCode);
  hands().Type("P'1");
  hands().Key(key::kReturn);
  ASSERT_EQ(screen.host.ReportedErrors().size(), 1U);
  EXPECT_EQ(screen.host.ReportedErrors()[0].Number(), -2147217900);
  EXPECT_EQ(state.form->TxtMSF.Text(), "P'1");
  EXPECT_TRUE(state.form->TxtMSF.Visible());
  const Log all = log.Take();
  ASSERT_GE(all.size(), 2U);
  EXPECT_EQ(all[1],
            "6 Open SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Codigo "
            "Like 'P'1' (3, 1, -1)");
}

TEST_P(RecordsetUseTest, ANullWhereATextIsNeededStopsTheLoadWithError94) {
  screen.AddCount("P1", 1, 2);
  screen.Execute("UPDATE Productos SET Descripcion = NULL WHERE Codigo = 'P1'");
  try {
    Open();
    FAIL() << "the load went on";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 94);
  }
  EXPECT_FALSE(state.form->IsLoaded());
}

TEST_P(RecordsetUseTest, TheNameOfAStylistMayBeNull) {
  screen.AddCount("P1", 1, 2, "E9");
  Open();
  EXPECT_EQ(state.form->MSFProductos.TextMatrix(1, column::kStylist), "");
  EXPECT_EQ(state.form->MSFProductos.TextMatrix(1, column::kEmployeeCode), "E9");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, RecordsetUseTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         [](const auto& instance) {
                           return instance.param == Dialect::kJet ? "Jet" : "SqlServer";
                         });

}  // namespace
}  // namespace orvendal
