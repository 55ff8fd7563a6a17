#include <gtest/gtest.h>

#include <utility>

#include "tests/support/screen_report.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// The form is unloaded while one of its own handlers runs: by the host, while a dialog or a statement of the
/// handler is under way. The handler runs to its end, nothing falls over, and the next call opens afresh.
class ClosedInsideHandlerTest : public testing::Test {
 protected:
  ClosedInsideHandlerTest() { screen.AddCounts(2); }
  void TearDown() override {
    EXPECT_EQ(TakeErrors(screen), expected_errors);
    EXPECT_FALSE(screen.HasForm());
    screen.recordsets.OnOpen({});
    screen.Open();
    EXPECT_TRUE(screen.HasForm());
    EXPECT_EQ(screen.form().TxtEmpleado.Text(), "");
    EXPECT_FALSE(EditorIsOpen(screen));
    EXPECT_FALSE(screen.form().variables.FlagFechaCambio);
    EXPECT_FALSE(screen.form().variables.FlagSupervisor);
    EXPECT_FALSE(screen.form().variables.PintandoFila);
    // The screen works.
    screen.library.QueueEmployee({true, "E1", "Ana"});
    screen.ClickCell(1, kCode);
    screen.EnterLine("P3", "8");
    EXPECT_EQ(screen.Codes().back(), "P3");
  }
  void CloseDuringNextDialog() {
    screen.library.DuringNextDialog([this] { screen.form().Unload(); });
  }
  void CloseAtStatement(const std::string& beginning) {
    screen.recordsets.OnOpen([this, beginning](const OpenedStatement& statement) {
      if (statement.text.starts_with(beginning) && screen.HasForm()) screen.form().Unload();
    });
  }
  void QueueAna() { screen.library.QueueEmployee({true, "E1", "Ana"}); }
  void TypeLine() {
    screen.EnterLine("P1", "5");
    screen.Key(key::kEscape);
  }
  /// A control of a form that is gone cannot have the focus that the rest of the handler gives it.
  void ExpectRefusedFocus() { expected_errors = {"5: Invalid procedure call or argument"}; }

  Texts expected_errors;
  FormDriver screen;
};

TEST_F(ClosedInsideHandlerTest, WhileTheGridAsksForAStylist) {
  ExpectRefusedFocus();
  screen.Open();
  QueueAna();
  CloseDuringNextDialog();
  screen.ClickCell(1, kCode);
}

TEST_F(ClosedInsideHandlerTest, WhileThePickerOfTheBoxIsUp) {
  ExpectRefusedFocus();
  screen.Open();
  QueueAna();
  CloseDuringNextDialog();
  screen.Click("TxtEmpleado");
}

TEST_F(ClosedInsideHandlerTest, WhileThePickerOfTheButtonIsUp) {
  ExpectRefusedFocus();
  screen.OpenWithStylist();
  CloseDuringNextDialog();
  QueueAna();
  screen.Click("CmdEmpl");
}

TEST_F(ClosedInsideHandlerTest, WhileThePickerOfANewCountIsUp) {
  ExpectRefusedFocus();
  screen.OpenWithStylist();
  CloseDuringNextDialog();
  QueueAna();
  screen.Click("LblNuevo");
}

TEST_F(ClosedInsideHandlerTest, WhileTheSearchOfAKeyIsUp) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(3, kCode);
  screen.Type("xyz");
  CloseDuringNextDialog();
  screen.library.QueueProduct("P1");
  screen.Enter();
}

TEST_F(ClosedInsideHandlerTest, WhileTheSearchOfTheButtonIsUp) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(3, kCode);
  CloseDuringNextDialog();
  screen.library.QueueProduct("P1");
  screen.Click("LblBuscar");
}

TEST_F(ClosedInsideHandlerTest, WhileTheRepeatedProductIsRefused) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(3, kCode);
  screen.Type("P10");
  CloseDuringNextDialog();
  screen.Enter();
}

TEST_F(ClosedInsideHandlerTest, WhileTheEditorRefusesAKey) {
  ExpectRefusedFocus();
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, kQuantity);
  screen.form().TxtEmpleado.Enabled(true);
  screen.form().TxtEmpleado.Text("");
  CloseDuringNextDialog();
  QueueAna();
  screen.Type("5");
}

TEST_F(ClosedInsideHandlerTest, WhileASaveIsRefused) {
  ExpectRefusedFocus();
  screen.OpenWithStylist();
  screen.form().TxtEmpleado.Enabled(true);
  screen.form().TxtEmpleado.Text("");
  CloseDuringNextDialog();
  QueueAna();
  screen.Click("LblGuardar");
}

TEST_F(ClosedInsideHandlerTest, WhileAFailedSaveIsTold) {
  screen.OpenWithStylist();
  TypeLine();
  screen.recordsets.FailUpdate(2, -2147217887, "No cabe.");
  CloseDuringNextDialog();
  screen.Click("LblGuardar");
}

TEST_F(ClosedInsideHandlerTest, InTheMiddleOfASave) {
  screen.OpenWithStylist();
  TypeLine();
  CloseAtStatement("SELECT Productos.Codigo FROM");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "3");
}

TEST_F(ClosedInsideHandlerTest, InTheMiddleOfALoad) {
  screen.OpenWithStylist();
  CloseAtStatement("SELECT HistOrvendalcial.IdSucursal");
  screen.Click("LblCancelar");
}

TEST_F(ClosedInsideHandlerTest, WhileTheQuestionOfItsOwnCloseIsUp) {
  for (const std::int32_t answer : {message::kYes, message::kNo}) {
    if (!screen.HasForm()) screen.OpenWithStylist();
    screen.EnterLine(answer == message::kYes ? "P1" : "P4", "5");
    screen.Key(key::kEscape);
    CloseDuringNextDialog();
    screen.library.QueueAnswer(answer);
    ClickClose(screen);
    EXPECT_FALSE(screen.HasForm());
  }
}

TEST_F(ClosedInsideHandlerTest, WhileTheQuestionOfAChangeOfDayIsUp) {
  screen.Open();
  EnterSupervisorMode(screen);
  TypeLine();
  CloseDuringNextDialog();
  screen.library.QueueAnswer(message::kNo);
  PickDay(screen, Date(2026, 11, 20));
}

TEST_F(ClosedInsideHandlerTest, WhileTheQuestionOfLeavingSupervisorModeIsUp) {
  screen.Open();
  EnterSupervisorMode(screen);
  TypeLine();
  CloseDuringNextDialog();
  screen.library.QueueAnswer(message::kNo);
  screen.Click("BtnAnuloSuper");
}

TEST_F(ClosedInsideHandlerTest, WhilePendingEventsRunAfterSupervisorMode) {
  screen.Open();
  EnterSupervisorMode(screen);
  screen.host.QueueEvent([this] { screen.form().Unload(); });
  screen.Click("BtnAnuloSuper");
}

TEST_F(ClosedInsideHandlerTest, WhileTheCursorLeavesACell) {
  screen.OpenWithStylist();
  MSFlexGrid& grid = screen.form().MSFProductos;
  const std::function<void()> leave = grid.OnLeaveCell;
  bool closed = false;
  grid.OnLeaveCell = [&, leave] {
    leave();
    if (!std::exchange(closed, true)) screen.form().Unload();
  };
  screen.ClickCell(2, kQuantity);
}

TEST_F(ClosedInsideHandlerTest, WhileTheLibraryFiltersAKey) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, kQuantity);
  TextBox& editor = screen.form().TxtMSF;
  editor.OnChange = [this] {
    if (screen.state.form) screen.form().Unload();
  };
  screen.Type("5");
}

/// The same with a library that keeps the form: it is unloaded, and its next load starts afresh.
TEST_F(ClosedInsideHandlerTest, WithTheFormKeptByTheLibrary) {
  screen.library.KeepForm(true);
  screen.OpenWithStylist();
  TypeLine();
  screen.recordsets.FailUpdate(2, -2147217887, "No cabe.");
  CloseDuringNextDialog();
  screen.Click("LblGuardar");
}

/// The library keeps the form, and the host calls again before the handler has ended: it finds everything
/// new.
TEST_F(ClosedInsideHandlerTest, AndLoadedAgainInTheMiddleOfASave) {
  screen.library.KeepForm(true);
  screen.OpenWithStylist();
  TypeLine();
  bool again = false;
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) {
    if (!statement.text.starts_with("SELECT Productos.Codigo FROM") || std::exchange(again, true)) return;
    screen.form().Unload();
    screen.Open();
  });
  screen.Click("LblGuardar");
  EXPECT_TRUE(again);
  // The fields of the row go to the recordset of the form's new life, which is closed.
  expected_errors = {"3704: Operation is not allowed when the object is closed."};
  EXPECT_TRUE(screen.HasForm());
  screen.form().Unload();
}

}  // namespace
}  // namespace orvendal
