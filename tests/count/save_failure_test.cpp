#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/stored_counts.h"

namespace orvendal {
namespace {

using namespace testing_support;

constexpr std::int32_t kMultipleStep = -2147217887;
constexpr std::int32_t kIntegrity = -2147217873;
constexpr std::int32_t kStoreGone = -2147467259;

/// A day of three lines, the stored ones, and a fourth that was typed. The saves of these tests fail.
class SaveFailureTest : public testing::TestWithParam<Dialect> {
 protected:
  SaveFailureTest() {
    screen.AddCounts(3);
    screen.OpenWithStylist();
    screen.EnterLine("P1", "5");
    Forget(screen);
  }
  std::string StoredCodes() { return testing_support::StoredCodes(screen); }
  /// What holds after the `Update` of a row failed, whatever its number.
  void ExpectStoppedAtSecondRow() {
    EXPECT_TRUE(TakeErrors(screen).empty());
    EXPECT_EQ(StoredCodes(), "P10");
    EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12", "P1"}));
    EXPECT_TRUE(TakeCalls(screen, "RecalculoGlobal").empty());
    EXPECT_EQ(screen.form().variables.RsCodigos->State(), kStateOpen);
    EXPECT_TRUE(screen.form().HayCambios());
    EXPECT_EQ(screen.form().MSFProductos1.Rows(), 4);
    EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
    EXPECT_EQ(screen.form().TxtCodigo.Text(), "E1");
    EXPECT_EQ(AvailableButtons(screen), kBotonesEnCelda);
    EXPECT_FALSE(EditorIsOpen(screen));
    EXPECT_EQ(screen.form().CodigosaRecalcular.ListCount(), 1);
  }
  void ExpectNextSaveStartsClean() {
    Forget(screen);
    screen.Click("LblGuardar");
    EXPECT_TRUE(TakeErrors(screen).empty());
    EXPECT_TRUE(TakeMessages(screen).empty());
    EXPECT_EQ(StoredCodes(), "P10 P11 P12 P1");
    EXPECT_EQ(TakeCalls(screen, "RecalculoGlobal").size(), 4U);
    EXPECT_FALSE(screen.form().HayCambios());
  }
  FormDriver screen{GetParam()};
};

TEST_P(SaveFailureTest, ARefusalOfTheStoreIsToldAndTheRowDropped) {
  screen.recordsets.FailUpdate(2, kMultipleStep, "Valor demasiado largo.");
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeMessages(screen),
            Texts{"[16] \"Error\" \"Error al grabar \\r\\nValor demasiado largo.\" -> 1"});
  EXPECT_EQ(screen.form().variables.RsCodigos->EditMode(), 0);
  ExpectStoppedAtSecondRow();
  ExpectNextSaveStartsClean();
}

TEST_P(SaveFailureTest, AnyOtherFailureIsToldWithItsNumberAndTheRowStaysPending) {
  screen.recordsets.FailUpdate(2, kIntegrity, "Clave duplicada.");
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeMessages(screen), Texts{"[16] \"\" \"Nº Error:-2147217873\\r\\nClave duplicada.\" -> 1"});
  EXPECT_EQ(screen.form().variables.RsCodigos->EditMode(), 2);
  ExpectStoppedAtSecondRow();
  ExpectNextSaveStartsClean();
}

TEST_P(SaveFailureTest, AnErrorOfTheRuntimeIsToldTheSameWay) {
  screen.recordsets.FailUpdate(2, 13, "Type mismatch");
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeMessages(screen), Texts{"[16] \"\" \"Nº Error:13\\r\\nType mismatch\" -> 1"});
  ExpectStoppedAtSecondRow();
  ExpectNextSaveStartsClean();
}

TEST_P(SaveFailureTest, TheMessageShowsWithTheEditorClosedAndTheDeleteDone) {
  screen.recordsets.FailUpdate(1, kMultipleStep, "No.");
  std::string stored = "?";
  screen.library.DuringNextDialog([&] { stored = StoredCodes(); });
  screen.Click("LblGuardar");
  EXPECT_EQ(stored, "");
  EXPECT_EQ(screen.form().CodigosaRecalcular.ListCount(), 0);
}

TEST_P(SaveFailureTest, AnEmptyQuantityShowsZeroInTheGridAfterwards) {
  screen.ClickCell(2, kQuantity);
  screen.Key(key::kDelete);
  screen.ClickCell(5, kCode);
  ASSERT_EQ(screen.Cell(2, kQuantity), "");
  screen.recordsets.FailUpdate(2, kMultipleStep, "No.");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Cell(2, kQuantity), "0");
}

TEST_P(SaveFailureTest, ATextThatIsTooLongForItsColumnIsRefusedByTheStoreItself) {
  screen.form().MSFProductos.TextMatrix(2, kEmployeeCode, std::string(300, 'E'));
  screen.Click("LblGuardar");
  const Texts messages = TakeMessages(screen);
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_TRUE(messages[0].starts_with("[16] \"Error\" \"Error al grabar \\r\\n")) << messages[0];
  EXPECT_EQ(StoredCodes(), "P10");
  screen.form().MSFProductos.TextMatrix(2, kEmployeeCode, "E1");
  ExpectNextSaveStartsClean();
}

TEST_P(SaveFailureTest, ARowThatTheStoreMustNotTakeTwiceIsToldWithItsNumber) {
  screen.AddCount("P1", 1, 2, "E1", "2026-11-01");
  screen.Execute("CREATE UNIQUE INDEX OnceOnly ON HistOrvendalcial (IdSucursal, IdProducto)");
  screen.Click("LblGuardar");
  const Texts messages = TakeMessages(screen);
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_TRUE(messages[0].starts_with("[16] \"\" \"Nº Error:-")) << messages[0];
  EXPECT_EQ(StoredCodes(), "P1 P10 P11 P12");
  screen.Execute("DROP INDEX OnceOnly");
  screen.Execute("DELETE FROM HistOrvendalcial WHERE Fecha < '2026-11-16'");
  ExpectNextSaveStartsClean();
}

/// Failures of all other steps: nobody traps them, the host reports them.
class UntrappedSaveFailureTest : public SaveFailureTest {
 protected:
  void ExpectReported(const std::string& error) {
    EXPECT_EQ(TakeErrors(screen), Texts{error});
    EXPECT_TRUE(TakeMessages(screen).empty());
    EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12", "P1"}));
    EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
    EXPECT_FALSE(screen.form().variables.FlagFechaCambio);
    EXPECT_TRUE(screen.form().HayCambios());
  }
};

TEST_P(UntrappedSaveFailureTest, OfTheDeleteLosesNothing) {
  screen.recordsets.FailOpen(1, kStoreGone, "no responde");
  screen.Click("LblGuardar");
  ExpectReported("-2147467259: no responde");
  EXPECT_EQ(StoredCodes(), "P10 P11 P12");
  EXPECT_TRUE(TakeCalls(screen, "HerramientasGlobal.RegistrarSentencia").empty());
  ExpectNextSaveStartsClean();
}

TEST_P(UntrappedSaveFailureTest, OfTheJournalComesAfterTheDelete) {
  screen.library.FailNext("RegistrarSentencia", RuntimeError(1001, "sin diario"));
  screen.Click("LblGuardar");
  ExpectReported("1001: sin diario");
  EXPECT_EQ(StoredCodes(), "");
  ExpectNextSaveStartsClean();
}

TEST_P(UntrappedSaveFailureTest, OfTheTableComesAfterTheJournal) {
  screen.recordsets.FailOpen(2, kStoreGone, "no responde");
  screen.Click("LblGuardar");
  ExpectReported("-2147467259: no responde");
  EXPECT_EQ(StoredCodes(), "");
  ExpectNextSaveStartsClean();
}

TEST_P(UntrappedSaveFailureTest, OfTheLookUpOfAProductLeavesTheRowsBefore) {
  screen.recordsets.FailOpen(4, kStoreGone, "no responde");  // delete, table, first product, second product
  screen.Click("LblGuardar");
  ExpectReported("-2147467259: no responde");
  EXPECT_EQ(StoredCodes(), "P10");
  ExpectNextSaveStartsClean();
}

TEST_P(UntrappedSaveFailureTest, OfTheDateOfALineLeavesItsRowPending) {
  screen.library.FailNext("FormatoFecha", RuntimeError(1001, "sin fechas"));
  screen.Click("LblGuardar");
  ExpectReported("1001: sin fechas");
  EXPECT_EQ(StoredCodes(), "");
  EXPECT_EQ(screen.form().variables.RsCodigos->EditMode(), 2);
  ExpectNextSaveStartsClean();
}

TEST_P(UntrappedSaveFailureTest, OfTheMomentLeavesItsRowPendingToo) {
  screen.library.FailNext("FechaHoraTexto", RuntimeError(1001, "sin hora"));
  screen.Click("LblGuardar");
  ExpectReported("1001: sin hora");
  EXPECT_EQ(StoredCodes(), "");
  ExpectNextSaveStartsClean();
}

TEST_P(UntrappedSaveFailureTest, OfADateThatIsNoneComesFromItsAssignment) {
  screen.form().MSFProductos.TextMatrix(2, kDate, "ayer");
  screen.Click("LblGuardar");
  const Texts errors = TakeErrors(screen);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_TRUE(errors[0].starts_with("3421: ")) << errors[0];
  EXPECT_EQ(StoredCodes(), "P10");
  EXPECT_TRUE(TakeMessages(screen).empty());
  screen.form().MSFProductos.TextMatrix(2, kDate, "16/11/2026");
  ExpectNextSaveStartsClean();
}

TEST_P(UntrappedSaveFailureTest, OfTheRecalculationLeavesTheRowsAndTheLines) {
  screen.library.FailNext("RecalcularProducto", RuntimeError(1001, "sin recálculo"));
  screen.Click("LblGuardar");
  ExpectReported("1001: sin recálculo");
  EXPECT_EQ(StoredCodes(), "P10 P11 P12 P1");
  EXPECT_EQ(screen.form().variables.RsCodigos->State(), kStateOpen);
  EXPECT_EQ(AvailableButtons(screen), kBotonesEnCelda);
  ExpectNextSaveStartsClean();
}

TEST_P(UntrappedSaveFailureTest, OfTheLoadAtTheEndComesAfterTheCountIsOver) {
  screen.recordsets.FailOpen(7, kStoreGone, "no responde");  // delete, table, four products, the day
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeErrors(screen), Texts{"-2147467259: no responde"});
  EXPECT_EQ(StoredCodes(), "P10 P11 P12 P1");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "");
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12", "P1"}));
}

TEST_P(UntrappedSaveFailureTest, WithADisabledEmptyBoxIsErrorFive) {
  screen.library.QueueEmployee({true, "E9", ""});  // accepted with an empty name: the grid asks again
  screen.library.QueueEmployee({false, "", ""});
  screen.Click("CmdEmpl");
  screen.library.QueueEmployee({false, "", ""});
  screen.Click("CmdEmpl");
  ASSERT_FALSE(screen.form().TxtEmpleado.Enabled());
  ASSERT_TRUE(screen.IsAvailable("Guardar"));
  Forget(screen);
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist});
  EXPECT_EQ(TakeErrors(screen), Texts{"5: Invalid procedure call or argument"});
  EXPECT_EQ(StoredCodes(), "P10 P11 P12");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12", "P1"}));
  screen.ChooseStylist("E2", "Berta");
  ExpectNextSaveStartsClean();
}

INSTANTIATE_TEST_SUITE_P(BothDialects, SaveFailureTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);
INSTANTIATE_TEST_SUITE_P(BothDialects, UntrappedSaveFailureTest,
                         testing::Values(Dialect::kSqlServer, Dialect::kJet), DialectName);

}  // namespace
}  // namespace orvendal
