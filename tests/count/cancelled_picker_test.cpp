#include <gtest/gtest.h>

#include "tests/support/screen_report.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// The employee picker cancelled at each of its doors.
class CancelledPickerTest : public testing::Test {
 protected:
  CancelledPickerTest() { screen.AddCounts(2); }
  TextBox& box() { return screen.form().TxtEmpleado; }
  void QueueCancel() { screen.library.QueueEmployee({false, "E9", "Nadie"}); }
  /// A stylist was there and is gone; the box can have the focus.
  void OpenAndLoseStylist() {
    screen.OpenWithStylist();
    box().Enabled(true);
    box().Text("");
    screen.form().TxtCodigo.Text("");
    screen.form().PicDatos.SetFocus();
    Forget(screen);
  }
  void ExpectNobodyChosen() {
    EXPECT_EQ(box().Text(), "");
    EXPECT_EQ(screen.form().TxtCodigo.Text(), "");
    EXPECT_FALSE(screen.form().variables.CambiarEstilista);
    EXPECT_EQ(TakeCalls(screen, "SelectorEmpleado.Elegir").size(), 1U);
    EXPECT_FALSE(screen.library.HasQueuedAnswers());
    EXPECT_TRUE(TakeErrors(screen).empty());
    EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "2");
  }
  FormDriver screen;
};

TEST_F(CancelledPickerTest, FromTheGrid) {
  screen.Open();
  Forget(screen);
  QueueCancel();
  screen.ClickCell(2, kQuantity);
  EXPECT_EQ(TakeMessages(screen), Texts{kAsksForStylist});
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_TRUE(box().Enabled());
  ExpectNobodyChosen();
}

TEST_F(CancelledPickerTest, FromTheGridAgainAndAgain) {
  screen.Open();
  for (int times = 0; times < 3; ++times) {
    Forget(screen);
    QueueCancel();
    screen.ClickCell(1, kCode);
    EXPECT_EQ(TakeMessages(screen), Texts{kAsksForStylist});
    EXPECT_EQ(screen.Focused(), "PicDatos");
    ExpectNobodyChosen();
  }
}

TEST_F(CancelledPickerTest, FromADoubleClickOnTheGridOpensNoEditor) {
  screen.Open();
  Forget(screen);
  QueueCancel();
  screen.DoubleClickCell(1, kCode);
  EXPECT_EQ(TakeMessages(screen), Texts{kAsksForStylist});
  EXPECT_FALSE(EditorIsOpen(screen));
  ExpectNobodyChosen();
}

TEST_F(CancelledPickerTest, FromTheBox) {
  screen.Open();
  Forget(screen);
  QueueCancel();
  screen.Click("TxtEmpleado");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_TRUE(box().Enabled());
  ExpectNobodyChosen();
}

TEST_F(CancelledPickerTest, FromTheButton) {
  screen.Open();
  Forget(screen);
  QueueCancel();
  screen.Click("CmdEmpl");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_FALSE(box().Enabled());
  ExpectNobodyChosen();
}

TEST_F(CancelledPickerTest, FromANewCount) {
  screen.Open();
  Forget(screen);
  QueueCancel();
  const std::string focused = screen.Focused();
  screen.Click("LblNuevo");
  EXPECT_EQ(screen.Focused(), focused);
  EXPECT_TRUE(box().Enabled());
  EXPECT_FALSE(screen.form().LblSupervisor.Visible());
  ExpectNobodyChosen();
}

TEST_F(CancelledPickerTest, FromAKeyInTheEditor) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, kQuantity);
  box().Enabled(true);
  box().Text("");
  screen.form().TxtCodigo.Text("");
  Forget(screen);
  QueueCancel();
  screen.Type("5");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist});
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_TRUE(box().Enabled());
  EXPECT_EQ(screen.Cell(1, kQuantity), "1");
  ExpectNobodyChosen();
}

TEST_F(CancelledPickerTest, FromTheSave) {
  OpenAndLoseStylist();
  QueueCancel();
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist});
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_TRUE(box().Enabled());
  ExpectNobodyChosen();
}

TEST_F(CancelledPickerTest, FromTheSaveOfAClosingScreen) {
  OpenAndLoseStylist();
  screen.form().MSFProductos.TextMatrix(1, kQuantity, "9");
  screen.library.QueueAnswer(message::kYes);
  QueueCancel();
  ClickClose(screen);
  EXPECT_EQ(TakeMessages(screen), (Texts{GuardQuestion(6), kRefusesBlankStylist}));
  EXPECT_FALSE(screen.HasForm());
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(screen.Sql("SELECT StockActual FROM HistOrvendalcial WHERE IdProducto = 'P10'"), "1");
}

TEST_F(CancelledPickerTest, FromTheSaveOnTheWayOutOfSupervisorMode) {
  screen.Open();
  EnterSupervisorMode(screen);
  screen.form().MSFProductos.TextMatrix(1, kQuantity, "9");
  box().Enabled(true);
  box().Text("");
  screen.form().TxtCodigo.Text("");
  Forget(screen);
  screen.library.QueueAnswer(message::kYes);
  QueueCancel();
  screen.Click("BtnAnuloSuper");
  EXPECT_EQ(TakeMessages(screen), (Texts{GuardQuestion(6), kRefusesBlankStylist}));
  EXPECT_FALSE(screen.form().LblSupervisor.Visible());
  EXPECT_EQ(screen.Cell(1, kQuantity), "1");
  ExpectNobodyChosen();
}

TEST_F(CancelledPickerTest, ThenAnyDoorStillOpensIt) {
  screen.Open();
  QueueCancel();
  screen.Click("CmdEmpl");
  QueueCancel();
  screen.ClickCell(1, kCode);
  QueueCancel();
  screen.Click("TxtEmpleado");
  QueueCancel();
  screen.Click("LblNuevo");
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, kCode);
  EXPECT_EQ(box().Text(), "Ana");
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

}  // namespace
}  // namespace orvendal
