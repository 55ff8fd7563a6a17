#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

class FunctionKeysTest : public testing::TestWithParam<Dialect> {
 protected:
  /// Another store of the same kind, with a count of its own.
  std::shared_ptr<SqliteConnection> OtherStore() {
    other = std::make_unique<FormDriver>(GetParam());
    other->AddCount("P3", 1, 2);
    return other->connection;
  }

  FormDriver screen{GetParam()};
  std::unique_ptr<FormDriver> other;
};

TEST_P(FunctionKeysTest, F1HandsOverConnectionAndWorkstation) {
  screen.Open("01", "Caja 2", "T1");
  screen.library.TakeCalls();
  screen.Key(key::kF1);
  EXPECT_EQ(screen.library.TakeCalls(),
            std::vector<std::string>{"HerramientasGlobal.AccionPuesto(Conexion, \"Caja 2\")"});
}

TEST_P(FunctionKeysTest, F2HandsOverTheSessionInItsOrder) {
  screen.session->meddle = [](const SessionArguments& arguments) { arguments.DatoPantalla = 7.0; };
  screen.Open("01", "Caja 2", "Tarde");
  screen.library.TakeCalls();
  screen.Key(key::kF2);
  EXPECT_EQ(screen.library.TakeCalls(),
            std::vector<std::string>{"CambioSesion.AbrirCambio(Conexion, 7, \"01\", \"Caja 2\", \"Tarde\", "
                                     "15360, 11520, 0)"});
}

TEST_P(FunctionKeysTest, NoOtherKeyDoesAnything) {
  screen.Open();
  screen.library.TakeCalls();
  for (int code = key::kF1 + 2; code <= key::kF12; ++code) screen.Key(code);
  screen.Type("hola");
  EXPECT_TRUE(screen.library.TakeCalls().empty());
}

TEST_P(FunctionKeysTest, ShiftMakesNoDifference) {
  screen.Open();
  screen.library.TakeCalls();
  screen.Key(key::kF1, shift_mask::kShift);
  screen.Key(key::kF2, shift_mask::kControl);
  EXPECT_EQ(screen.library.TakeCalls().size(), 2U);
}

TEST_P(FunctionKeysTest, AConnectionReplacedByF1ServesAllLaterQueries) {
  screen.Open();
  const auto store = OtherStore();
  screen.library.ReplaceConnection("AccionPuesto", store);
  screen.Key(key::kF1);
  EXPECT_EQ(screen.state.session.Conexion, store);
  EXPECT_TRUE(screen.Codes().empty());  // nothing is loaded by itself
  screen.Click("LblCancelar");
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P3"});
}

TEST_P(FunctionKeysTest, AConnectionReplacedByF2InTheMiddleOfACountTakesTheSave) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "12");
  const auto store = OtherStore();
  screen.library.ReplaceConnection("AbrirCambio", store);
  screen.Key(key::kF2);
  EXPECT_EQ(screen.Cell(1, column::kCode), "P1");
  screen.Click("LblGuardar");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "0");
  EXPECT_EQ(other->Sql("SELECT group_concat(IdProducto) FROM HistOrvendalcial"), "P1");
}

TEST_P(FunctionKeysTest, AFailingF1IsReportedAndTheConnectionStays) {
  screen.Open();
  screen.library.FailNext("AccionPuesto", RuntimeError(1001, "sin red"));
  screen.library.ReplaceConnection("AccionPuesto", OtherStore());
  screen.Key(key::kF1);
  ASSERT_EQ(screen.host.ReportedErrors().size(), 1U);
  EXPECT_EQ(screen.host.ReportedErrors()[0].Number(), 1001);
  EXPECT_EQ(screen.state.session.Conexion, screen.connection);
  EXPECT_TRUE(screen.HasForm());
}

TEST_P(FunctionKeysTest, AnF1ThatFailsAfterReplacingTheConnectionIsNotTakenOver) {
  screen.Open();
  const auto store = OtherStore();
  screen.library.ReplaceConnection("AccionPuesto", store);
  screen.library.OnAccionPuesto = [](std::string&) { throw RuntimeError(1001, "sin red"); };
  screen.Key(key::kF1);
  EXPECT_EQ(screen.state.session.Conexion, screen.connection);
}

TEST_P(FunctionKeysTest, AFailingF2IsReportedAndTheConnectionStays) {
  screen.Open();
  screen.library.ReplaceConnection("AbrirCambio", OtherStore());
  screen.library.OnAbrirCambio = [](std::string& branch, std::string&, std::string&) {
    branch = "02";
    throw RuntimeError(1002, "cancelado por el sistema");
  };
  screen.Key(key::kF2);
  ASSERT_EQ(screen.host.ReportedErrors().size(), 1U);
  EXPECT_EQ(screen.host.ReportedErrors()[0].Number(), 1002);
  EXPECT_EQ(screen.state.session.Conexion, screen.connection);
  // What goes by reference has changed all the same.
  EXPECT_EQ(screen.state.session.CodSucursal, "02");
}

TEST_P(FunctionKeysTest, AfterF2TheBranchOnTheScreenCanDifferUntilTheNextLoad) {
  screen.Open("01", "P1", "T1");
  screen.library.OnAbrirCambio = [](std::string& branch, std::string& station, std::string& shift) {
    branch = "02";
    station = "P2";
    shift = "T2";
  };
  screen.AddCount("P5", 4, 5, "E1", "2026-11-16", "02");
  screen.Key(key::kF2);
  EXPECT_EQ(screen.state.session.CodSucursal, "02");
  EXPECT_EQ(screen.state.session.CodPuesto, "P2");
  EXPECT_EQ(screen.state.session.CodTurno, "T2");
  EXPECT_EQ(screen.form().LblSucursal.Caption(), "  Sucursal 01 Centro  ");
  EXPECT_EQ(screen.form().LblSucursal.Tag(), "01");
  EXPECT_TRUE(screen.Codes().empty());

  screen.Click("LblCancelar");  // queries go by the session at once
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P5"});
  EXPECT_EQ(screen.form().LblSucursal.Caption(), "  Sucursal 01 Centro  ");

  screen.form().Unload();
  screen.Open("02");
  EXPECT_EQ(screen.form().LblSucursal.Caption(), "  Sucursal 02 Norte  ");
}

TEST_P(FunctionKeysTest, TheEditorStaysAsItIs) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, column::kCode);
  screen.Type("P1");
  const Rect place = screen.form().TxtMSF.Bounds();
  for (const int code : {key::kF1, key::kF2}) {
    screen.Key(code);
    EXPECT_TRUE(screen.form().TxtMSF.Visible());
    EXPECT_EQ(screen.form().TxtMSF.Text(), "P1");
    EXPECT_EQ(screen.form().TxtMSF.SelStart(), 2);
    EXPECT_EQ(screen.form().TxtMSF.Bounds(), place);
    EXPECT_EQ(screen.Focused(), "TxtMSF");
  }
  screen.Enter();
  EXPECT_EQ(screen.Cell(1, column::kCode), "P1");
}

TEST_P(FunctionKeysTest, ReachTheFormWhateverHasTheFocus) {
  screen.OpenWithStylist();
  screen.library.TakeCalls();
  screen.ClickCell(1, column::kCode);
  ASSERT_EQ(screen.Focused(), "MSFProductos");
  screen.Key(key::kF1);
  screen.Click("TxtFechaHora");
  screen.Key(key::kF1);
  EXPECT_EQ(screen.library.TakeCalls().size(), 2U);
}

TEST_P(FunctionKeysTest, ANestedKeyDoesNotReachTheScreenWhileTheDialogIsUp) {
  screen.Open();
  screen.library.TakeCalls();
  screen.library.DuringNextDialog([this] { screen.Key(key::kF2); });
  screen.Key(key::kF1);
  EXPECT_EQ(screen.library.TakeCalls().size(), 1U);
}

TEST_P(FunctionKeysTest, F1ThatChangesTheWorkstationKeepsItForTheNext) {
  screen.Open("01", "P1", "T1");
  screen.library.OnAccionPuesto = [](std::string& station) { station = "P9"; };
  screen.Key(key::kF1);
  EXPECT_EQ(screen.state.session.CodPuesto, "P9");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, FunctionKeysTest, testing::Values(Dialect::kSqlServer, Dialect::kJet));

}  // namespace
}  // namespace orvendal
