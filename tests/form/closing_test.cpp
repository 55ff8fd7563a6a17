#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/form_driver.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using testing_support::ClickClose;
using testing_support::ClickMinimize;

void ByTheButton(FormDriver& screen) {
  ClickClose(screen);
}
void ByAltF4(FormDriver& screen) {
  screen.Key(key::kF4, shift_mask::kAlt);
}
void ByTheWindowManager(FormDriver& screen) {
  screen.form().CloseRequest();
}

// Types over the quantity of the day's one line, and leaves the editor open.
void TypeAnotherQuantity(FormDriver& screen) {
  screen.AddCount("P1", 7, 9);
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, column::kQuantity);
  screen.Type("15");
}

/// Every way of closing does the same.
class ClosingTest : public testing::TestWithParam<void (*)(FormDriver&)> {
 protected:
  void Close() { GetParam()(screen); }
  std::string Stored() {
    return screen.Sql("SELECT group_concat(IdProducto || '=' || StockActual) FROM HistOrvendalcial");
  }
  void ExpectTheQuestion() {
    const auto messages = screen.library.TakeMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].text, "Se ha encontrado Modificaciones sin Guardar,\r\n¿Guardar Modificaciones?");
    EXPECT_EQ(messages[0].style, 35);
    EXPECT_EQ(messages[0].title, "");
  }
  void EnterALine() {
    screen.OpenWithStylist();
    screen.EnterLine("P1", "12");
    screen.library.TakeMessages();
  }

  FormDriver screen;
};

TEST_P(ClosingTest, WithoutChangesNothingIsAsked) {
  screen.AddCount("P1", 7, 9);
  screen.Open();
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_TRUE(screen.library.TakeMessages().empty());
  EXPECT_EQ(screen.state.form, nullptr);
  EXPECT_EQ(Stored(), "P1=9");
}

TEST_P(ClosingTest, WithChangesTheQuestionComes) {
  EnterALine();
  screen.library.QueueAnswer(message::kNo);
  Close();
  ExpectTheQuestion();
}

TEST_P(ClosingTest, CancelLeavesLinesAndForm) {
  EnterALine();
  screen.library.QueueAnswer(message::kCancel);
  Close();
  ASSERT_TRUE(screen.HasForm());
  EXPECT_TRUE(screen.form().Visible());
  EXPECT_EQ(screen.Line(1)[column::kCode], "P1");
  EXPECT_EQ(screen.Line(1)[column::kQuantity], "12");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
  EXPECT_EQ(Stored(), "");
  EXPECT_TRUE(screen.form().TxtMSF.Visible());  // it stood on column 0 of the next line
  EXPECT_EQ(screen.form().MSFProductos.Row(), 2);
}

TEST_P(ClosingTest, YesSavesAndCloses) {
  EnterALine();
  screen.library.QueueAnswer(message::kYes);
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(Stored(), "P1=12");
}

TEST_P(ClosingTest, NoClosesWithoutSaving) {
  EnterALine();
  screen.library.QueueAnswer(message::kNo);
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(Stored(), "");
}

TEST_P(ClosingTest, AQuantityOpenInTheEditorIsCommittedAndCountsAsAChange) {
  TypeAnotherQuantity(screen);
  screen.library.TakeMessages();
  screen.library.QueueAnswer(message::kCancel);
  Close();
  ExpectTheQuestion();
  ASSERT_TRUE(screen.HasForm());
  EXPECT_EQ(screen.Cell(1, column::kQuantity), "15");
  EXPECT_FALSE(screen.form().TxtMSF.Visible());
  EXPECT_EQ(screen.form().TxtMSF.Text(), "");
}

TEST_P(ClosingTest, AQuantityOpenInTheEditorIsSavedOnYes) {
  TypeAnotherQuantity(screen);
  screen.library.QueueAnswer(message::kYes);
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(Stored(), "P1=15");
}

TEST_P(ClosingTest, ACodeOpenInTheEditorIsNoChange) {
  screen.AddCount("P1", 7, 9);
  screen.OpenWithStylist();
  screen.DoubleClickCell(2, column::kCode);
  screen.Type("P2");
  screen.library.TakeMessages();
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_TRUE(screen.library.TakeMessages().empty());
  EXPECT_EQ(Stored(), "P1=9");
}

TEST_P(ClosingTest, ADescriptionOpenInTheEditorIsNoChangeEither) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, column::kDescription);
  screen.Type("Crema");
  screen.library.TakeMessages();
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_TRUE(screen.library.TakeMessages().empty());
}

TEST_P(ClosingTest, AnUnchangedQuantityOpenInTheEditorIsNoChange) {
  screen.AddCount("P1", 7, 9);
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, column::kQuantity);
  screen.library.TakeMessages();
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_TRUE(screen.library.TakeMessages().empty());
}

TEST_P(ClosingTest, YesClosesThoughTheStylistIsBlankAndNothingIsSaved) {
  screen.AddCount("P1", 7, 9);
  screen.Open();
  screen.form().MSFProductos.TextMatrix(1, 3, "11");
  screen.library.QueueAnswer(message::kYes);
  screen.library.QueueEmployee({false, "", ""});  // the save sends the focus to the stylist
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(Stored(), "P1=9");
  const auto messages = screen.library.TakeMessages();
  ASSERT_EQ(messages.size(), 2U);
  EXPECT_EQ(messages[1].text, "El Estilista no puede estar en blanco");
}

TEST_P(ClosingTest, YesClosesThoughTheSaveStopsAtARowWithItsOwnMessage) {
  EnterALine();
  screen.recordsets.FailUpdate(1, -2147217887, "demasiado largo");
  screen.library.QueueAnswer(message::kYes);
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(Stored(), "");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
}

TEST_P(ClosingTest, AnErrorThatNobodyTrapsInTheSaveKeepsTheFormOpen) {
  EnterALine();
  screen.recordsets.FailOpen(1, -2147467259, "el almacén no responde");
  screen.library.QueueAnswer(message::kYes);
  Close();
  ASSERT_EQ(screen.host.ReportedErrors().size(), 1U);
  ASSERT_TRUE(screen.HasForm());
  EXPECT_EQ(screen.Codes(), std::vector<std::string>{"P1"});
  EXPECT_EQ(screen.Cell(1, column::kQuantity), "12");
  screen.library.QueueAnswer(message::kNo);
  Close();
  EXPECT_FALSE(screen.HasForm());
}

TEST_P(ClosingTest, TheFormGoesToTheLibraryAfterTheSave) {
  EnterALine();
  screen.library.TakeCalls();
  screen.library.QueueAnswer(message::kYes);
  Close();
  const std::vector<std::string> calls = screen.library.TakeCalls();
  ASSERT_GT(calls.size(), 2U);
  EXPECT_NE(calls.front().find("MensajesGlobal.Mostrar"), std::string::npos);
  EXPECT_NE(calls[calls.size() - 2].find("RecalcularProducto"), std::string::npos);
  EXPECT_EQ(calls.back(), "HerramientasGlobal.LiberarForm(FrmOrvendalciales)");
}

TEST_P(ClosingTest, InSupervisorModeTheGuardAsksTheSame) {
  screen.AddCount("P1", 7, 9);
  screen.Open();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo");
  screen.DoubleClickCell(1, column::kQuantity);
  screen.Type("4");
  screen.library.TakeMessages();
  screen.library.QueueAnswer(message::kYes);
  Close();
  EXPECT_FALSE(screen.HasForm());
  EXPECT_EQ(Stored(), "P1=4");
}

TEST_P(ClosingTest, ClosingIsNotHeardWhileADialogIsUp) {
  screen.Open();
  screen.library.DuringNextDialog([this] { Close(); });
  screen.Key(key::kF1);
  EXPECT_TRUE(screen.HasForm());
}

INSTANTIATE_TEST_SUITE_P(EveryWay, ClosingTest, testing::Values(&ByTheButton, &ByAltF4, &ByTheWindowManager),
                         [](const auto& instance) -> std::string {
                           if (instance.param == &ByTheButton) return "Button";
                           return instance.param == &ByAltF4 ? "AltF4" : "WindowManager";
                         });

TEST(MinimisingTest, TheButtonMinimisesAndTheFormStaysLoaded) {
  FormDriver screen;
  screen.OpenWithStylist();
  screen.EnterLine("P1", "12");
  screen.library.TakeMessages();
  ClickMinimize(screen);
  EXPECT_EQ(screen.form().WindowState(), WindowState::kMinimized);
  EXPECT_TRUE(screen.HasForm());
  EXPECT_TRUE(screen.library.TakeMessages().empty());
  EXPECT_EQ(screen.Cell(1, column::kQuantity), "12");
}

TEST(MinimisingTest, AnOpenQuantityStaysOpen) {
  FormDriver screen;
  TypeAnotherQuantity(screen);
  ClickMinimize(screen);
  screen.Open();
  EXPECT_TRUE(screen.form().TxtMSF.Visible());
  EXPECT_EQ(screen.form().TxtMSF.Text(), "15");
  EXPECT_EQ(screen.Cell(1, column::kQuantity), "9");
}

TEST(MinimisingTest, TheMaximisedFormIsClosedLikeAnyOther) {
  FormDriver screen;
  screen.Open();
  ClickMinimize(screen);
  screen.Open();
  ClickClose(screen);
  EXPECT_FALSE(screen.HasForm());
}

}  // namespace
}  // namespace orvendal
