#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// The steps of a save, statements and library calls in one order.
class SaveOrderTest : public testing::TestWithParam<Dialect> {
 protected:
  SaveOrderTest() {
    screen.AddCount("P10", 1, 2);
    screen.OpenWithStylist();
    screen.EnterLine("P1", "5");
    Forget(screen);
    log.drain_first = [this] { return TakeCalls(screen); };
  }
  bool IsJet() const { return GetParam() == Dialect::kJet; }
  std::string LoadCondition(const std::string& iso = "2026-11-16", const std::string& us = "11/16/2026") {
    return IsJet() ? "BETWEEN #" + us + " 00:00:00# AND #" + us + " 23:59:59#"
                   : "BETWEEN CONVERT(DATETIME, '" + iso + " 00:00:00', 102) AND CONVERT(DATETIME, '" + iso +
                         " 23:59:59', 102)";
  }
  std::string Delete() {
    return "DELETE FROM HistOrvendalcial WHERE (HistOrvendalcial.idSucursal Like '01') AND "
           "(HistOrvendalcial.Fecha " +
           (IsJet() ? "LIKE '16/11/2026%'" : LoadCondition()) + ")";
  }
  Texts Save() {
    screen.recordsets.OnOpen([this](const OpenedStatement& statement) {
      log.Add((statement.IsWriting() ? "write " : "read ") + statement.text);
    });
    screen.Click("LblGuardar");
    screen.recordsets.OnOpen({});
    return log.Take();
  }

  FormDriver screen{GetParam()};
  EventLog log;
};

TEST_P(SaveOrderTest, EachStepFollowsTheOneBefore) {
  const std::string format =
      "HerramientasGlobal.FormatoFecha(\"16/11/2026\", 1, \"D\", \"D\") = \"16/11/2026\"";
  const std::string moment =
      "HerramientasGlobal.FechaHoraTexto(2026-11-16 10:30:00) = \"16/11/2026 10:30:00\"";
  const std::string product = "read SELECT Productos.Codigo FROM Productos WHERE Productos.Codigo =";
  const Texts steps = Save();
  ASSERT_EQ(steps.size(), 12U);
  EXPECT_EQ(
      (Texts{steps.begin(), steps.begin() + 11}),
      (Texts{"write " + Delete(),
             "HerramientasGlobal.RegistrarSentencia(\"sesión de prueba\", Conexion, \"" + Delete() + "\")",
             "write SELECT HistOrvendalcial.* FROM HistOrvendalcial", product + "'P10'", format, moment,
             product + "'P1'", format, moment,
             "RecalculoGlobal.RecalcularProducto(Conexion, \"01\", \"P10\", \"\")",
             "RecalculoGlobal.RecalcularProducto(Conexion, \"01\", \"P1\", \"\")"}));
  EXPECT_TRUE(steps[11].starts_with("read SELECT HistOrvendalcial.IdSucursal, ")) << steps[11];
  EXPECT_TRUE(steps[11].ends_with("(HistOrvendalcial.Fecha " + LoadCondition() + ")")) << steps[11];
}

TEST_P(SaveOrderTest, TheEditorIsClosedAndEmptiedBeforeTheDelete) {
  screen.ClickCell(1, kQuantity);
  screen.Type("9");
  bool open = true;
  std::string text = "?";
  std::string cell;
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    if (!statement.text.starts_with("DELETE")) return;
    open = EditorIsOpen(screen);
    text = EditorText(screen);
    cell = screen.Cell(1, kQuantity);
  });
  screen.Click("LblGuardar");
  screen.recordsets.OnOpen({});
  EXPECT_FALSE(open);
  EXPECT_EQ(text, "");
  EXPECT_EQ(cell, "9");
}

TEST_P(SaveOrderTest, TheListOfCodesIsEmptyWhenTheDeleteRuns) {
  screen.form().CodigosaRecalcular.AddItem("P40");
  int codes = -1;
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    if (statement.text.starts_with("DELETE")) codes = screen.form().CodigosaRecalcular.ListCount();
  });
  screen.Click("LblGuardar");
  screen.recordsets.OnOpen({});
  EXPECT_EQ(codes, 0);
}

/// An open recordset that tells how many codes are gathered when it is closed, and cannot be opened again.
class ClosingWitness final : public Recordset {
 public:
  explicit ClosingWitness(const ComboBox& codes) : codes_(codes) {}
  int codes_at_close = -1;

  void Open(const std::string&, const ConnectionRef&, CursorType, LockType, std::int32_t) override {
    throw RuntimeError(1001, "hasta aquí");
  }
  void Close() override {
    codes_at_close = codes_.ListCount();
    state_ = kStateClosed;
  }
  std::int32_t State() const override { return state_; }
  std::int32_t EditMode() const override { return 0; }
  bool AtEnd() const override { return true; }
  void MoveNext() override {}
  std::int32_t RecordCount() const override { return 0; }
  void Find(const std::string&, std::int32_t, SearchDirection) override {}
  void AbsolutePosition(std::int32_t) override {}
  std::size_t FieldCount() const override { return 0; }
  std::string FieldName(std::size_t) const override { return {}; }
  void AddNew() override {}
  void Collect(std::string_view, const Value&) override {}
  void Update() override {}
  void CancelUpdate() override {}

 protected:
  std::size_t FieldIndex(std::string_view) const override { return 0; }
  Value FieldValue(std::size_t) const override { return {}; }

 private:
  const ComboBox& codes_;
  std::int32_t state_ = kStateOpen;
};

TEST_P(SaveOrderTest, TheListOfCodesIsEmptiedBeforeTheOpenRecordsetIsClosed) {
  const auto left_open = std::make_shared<ClosingWitness>(screen.form().CodigosaRecalcular);
  screen.form().CodigosaRecalcular.AddItem("P40");
  screen.form().variables.RsCodigos = left_open;
  screen.Click("LblGuardar");
  EXPECT_EQ(left_open->codes_at_close, 0);
  EXPECT_EQ(TakeErrors(screen), Texts{"1001: hasta aquí"});
}

TEST_P(SaveOrderTest, TheListOfCodesIsKeptWhereTheConditionOfTheDayCannotBeMade) {
  screen.form().CodigosaRecalcular.AddItem("P40");
  screen.state.session.Conexion.reset();
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeErrors(screen), Texts{"91: Object variable or With block variable not set"});
  EXPECT_EQ(screen.form().CodigosaRecalcular.ListCount(), 1);
}

TEST_P(SaveOrderTest, TheTableIsClosedAfterTheBarIsSetWithNoTestOfItsState) {
  // Somebody closes it while the codes of the day are gathered.
  screen.form().CodigosaRecalcular.OnClick = [this] { screen.form().variables.RsCodigos->Close(); };
  screen.Click("LblGuardar");
  screen.form().CodigosaRecalcular.OnClick = nullptr;
  EXPECT_EQ(TakeErrors(screen), Texts{"3704: Operation is not allowed when the object is closed."});
  EXPECT_EQ(AvailableButtons(screen), kBotonesEnReposo);
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "2");
}

TEST_P(SaveOrderTest, TheTableIsOpenWhileTheProductsAreRecalculated) {
  std::int32_t state_then = -1;
  std::string buttons_then;
  screen.library.FailNext("RecalcularProducto", RuntimeError(1001, "aquí"));
  screen.host.OnReport = [&](const RuntimeError&) {
    state_then = screen.form().variables.RsCodigos->State();
    buttons_then = AvailableButtons(screen);
  };
  screen.Click("LblGuardar");
  screen.host.OnReport = nullptr;
  EXPECT_EQ(state_then, kStateOpen);
  EXPECT_EQ(buttons_then, kBotonesEnCelda);
}

TEST_P(SaveOrderTest, AnEditorThatOpenedMeanwhileIsClosedAtTheEnd) {
  screen.form().CodigosaRecalcular.OnClick = [this] { screen.form().TxtMSF.Visible(true); };
  screen.Click("LblGuardar");
  screen.form().CodigosaRecalcular.OnClick = nullptr;
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_P(SaveOrderTest, TheHeaderIsEmptiedBeforeTheDayIsLoadedAgain) {
  std::string name = "?";
  std::int32_t state = -1;
  std::string buttons;
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    if (!statement.text.starts_with("SELECT HistOrvendalcial.IdSucursal")) return;
    name = screen.form().TxtEmpleado.Text();
    state = screen.form().variables.RsCodigos->State();
    buttons = AvailableButtons(screen);
  });
  screen.Click("LblGuardar");
  screen.recordsets.OnOpen({});
  EXPECT_EQ(name, "");
  EXPECT_EQ(state, kStateClosed);
  EXPECT_EQ(buttons, kBotonesEnReposo);
}

TEST_P(SaveOrderTest, ASecondSaveWritesUnderTheDayOfTheDateBox) {
  screen.Click("LblGuardar");
  EnterSupervisorMode(screen);
  PickDay(screen, Date(2026, 11, 5));
  screen.EnterLine("P4", "6");
  log.Take();
  const Texts steps = Save();
  ASSERT_FALSE(steps.empty());
  EXPECT_EQ(steps[0],
            "write DELETE FROM HistOrvendalcial WHERE (HistOrvendalcial.idSucursal Like '01') AND "
            "(HistOrvendalcial.Fecha " +
                (IsJet() ? "LIKE '05/11/2026%'" : LoadCondition("2026-11-05", "11/5/2026")) + ")");
  EXPECT_EQ(screen.Sql("SELECT Fecha FROM HistOrvendalcial WHERE IdProducto = 'P4'"), "2026-11-05 00:00:00");
}

TEST_P(SaveOrderTest, TheJournalMayReplaceTheConnectionForWhatFollows) {
  FormDriver other{GetParam()};
  screen.library.ReplaceConnection("RegistrarSentencia", other.connection);
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.state.session.Conexion, other.connection);
  // The delete ran here, the rows went there.
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "0");
  EXPECT_EQ(other.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "2");
}

INSTANTIATE_TEST_SUITE_P(BothDialects, SaveOrderTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal
