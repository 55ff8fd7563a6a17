#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

constexpr ColorWord kFocusColour = 10865355;  // red 203, green 202, blue 165

class StylistSelectionTest : public testing::Test {
 protected:
  TextBox& box() { return screen.form().TxtEmpleado; }
  TextBox& code() { return screen.form().TxtCodigo; }
  void QueueAna() { screen.library.QueueEmployee({true, "E1", "Ana"}); }
  void QueueCancel() { screen.library.QueueEmployee({false, "E9", "Nadie"}); }
  static Texts PickerCalls(const std::string& para_nuevo) {
    return {"SelectorEmpleado.ParaNuevo(" + para_nuevo + ")", "SelectorEmpleado.Aceptado(False)",
            "SelectorEmpleado.OpcionFija(True)", "SelectorEmpleado.Nombre(\"\")",
            "SelectorEmpleado.Elegir(Conexion, \"01\")"};
  }
  FormDriver screen;
};

TEST_F(StylistSelectionTest, TheHeaderStartsEmptyAndEnabled) {
  screen.Open();
  EXPECT_EQ(box().Text(), "");
  EXPECT_TRUE(box().Enabled());
  EXPECT_FALSE(code().Visible());
}

TEST_F(StylistSelectionTest, TheGridAsksThenThePickerFillsTheHeader) {
  screen.Open();
  Forget(screen);
  QueueAna();
  screen.ClickCell(1, kCode);
  EXPECT_EQ(TakeMessages(screen), Texts{kAsksForStylist});
  EXPECT_EQ(box().Text(), "Ana");
  EXPECT_EQ(code().Text(), "E1");
  EXPECT_FALSE(box().Enabled());
  EXPECT_EQ(screen.Focused(), "MSFProductos");
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
}

TEST_F(StylistSelectionTest, TheGridAsksBeforeThePickerIsMade) {
  screen.Open();
  Forget(screen);
  QueueAna();
  screen.ClickCell(1, kCode);
  Texts expected = {"MensajesGlobal.Mostrar(\"Debe seleccionar un Estilista\", 64, \"\") = 1"};
  for (const std::string& call : PickerCalls("False")) expected.push_back(call);
  for (const char* call : {"SelectorEmpleado.Aceptado() = True", "SelectorEmpleado.Nombre() = \"Ana\"",
                           "SelectorEmpleado.Codigo() = \"E1\""})
    expected.push_back(call);
  EXPECT_EQ(TakeCalls(screen), expected);
}

TEST_F(StylistSelectionTest, ADoubleClickOnTheGridWithNoStylistAsksOnceAndOpensNoEditor) {
  screen.Open();
  Forget(screen);
  QueueAna();
  screen.DoubleClickCell(1, kCode);
  EXPECT_EQ(TakeMessages(screen).size(), 1U);
  EXPECT_FALSE(EditorIsOpen(screen));
  screen.DoubleClickCell(1, kCode);
  EXPECT_TRUE(EditorIsOpen(screen));
}

TEST_F(StylistSelectionTest, APickerCancelledFromTheGridRestsTheFocusAndLeavesTheBoxEnabled) {
  screen.Open();
  Forget(screen);
  QueueCancel();
  screen.ClickCell(1, kCode);
  EXPECT_EQ(TakeMessages(screen), Texts{kAsksForStylist});
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_TRUE(box().Enabled());
  EXPECT_EQ(box().Text(), "");
  EXPECT_EQ(code().Text(), "");
  EXPECT_EQ(AvailableButtons(screen), kBotonesEnReposo);
}

TEST_F(StylistSelectionTest, ACancelledPickerIsNotReadAnyFurther) {
  screen.Open();
  Forget(screen);
  QueueCancel();
  screen.Click("TxtEmpleado");
  Texts expected = PickerCalls("False");
  expected.push_back("SelectorEmpleado.Aceptado() = False");
  EXPECT_EQ(TakeCalls(screen), expected);
}

TEST_F(StylistSelectionTest, AClickOnTheEmptyBoxOpensThePickerWithoutAMessage) {
  screen.Open();
  Forget(screen);
  QueueAna();
  screen.Click("TxtEmpleado");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(box().Text(), "Ana");
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

TEST_F(StylistSelectionTest, TheTabKeyReachesTheBoxAndOpensThePicker) {
  screen.Open();
  QueueAna();
  for (int presses = 0; presses < 12 && box().Text().empty(); ++presses) screen.Key(key::kTab);
  EXPECT_EQ(box().Text(), "Ana");
  EXPECT_EQ(code().Text(), "E1");
}

TEST_F(StylistSelectionTest, TheBoxTakesItsColourOnFocusAndKeepsIt) {
  screen.Open();
  EXPECT_NE(box().BackColor(), kFocusColour);
  QueueCancel();
  screen.Click("TxtEmpleado");
  EXPECT_EQ(box().BackColor(), kFocusColour);
  screen.form().PicDatos.SetFocus();
  EXPECT_EQ(box().BackColor(), kFocusColour);
}

TEST_F(StylistSelectionTest, AFilledAndEnabledBoxSendsTheFocusAwayWithNoDialog) {
  screen.OpenWithStylist();
  QueueCancel();
  screen.Click("LblNuevo");  // cancelled: the box stays filled, and is enabled now
  ASSERT_TRUE(box().Enabled());
  ASSERT_EQ(box().Text(), "Ana");
  Forget(screen);
  screen.Click("TxtEmpleado");
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_EQ(box().Text(), "Ana");
  EXPECT_EQ(box().BackColor(), kFocusColour);
  EXPECT_TRUE(TakeCalls(screen).empty());
}

TEST_F(StylistSelectionTest, ADisabledBoxTakesNoClick) {
  screen.OpenWithStylist();
  EXPECT_THROW(screen.Click("TxtEmpleado"), std::invalid_argument);
}

TEST_F(StylistSelectionTest, TheButtonBringsAnotherEmployee) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, kCode);
  ASSERT_TRUE(screen.IsAvailable("Buscar"));
  screen.ChooseStylist("E2", "Berta");
  EXPECT_EQ(box().Text(), "Berta");
  EXPECT_EQ(code().Text(), "E2");
  EXPECT_FALSE(box().Enabled());
  EXPECT_FALSE(screen.form().variables.CambiarEstilista);
  EXPECT_EQ(screen.Focused(), "MSFProductos");
  // The search is off until the editor opens again, although it never closed.
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_FALSE(screen.IsAvailable("Buscar"));
  screen.Click("TxtMSF");
  screen.Key(key::kEscape);
  screen.DoubleClickCell(1, kCode);
  EXPECT_TRUE(screen.IsAvailable("Buscar"));
}

TEST_F(StylistSelectionTest, TheButtonCancelledKeepsTheNameAndDisablesTheBoxAgain) {
  screen.OpenWithStylist();
  QueueCancel();
  screen.Click("CmdEmpl");
  EXPECT_EQ(box().Text(), "Ana");
  EXPECT_EQ(code().Text(), "E1");
  EXPECT_FALSE(box().Enabled());
  EXPECT_FALSE(screen.form().variables.CambiarEstilista);
  EXPECT_EQ(screen.Focused(), "PicDatos");
}

TEST_F(StylistSelectionTest, TheButtonCancelledWithNoStylistDisablesTheEmptyBox) {
  screen.Open();
  QueueCancel();
  screen.Click("CmdEmpl");
  EXPECT_EQ(box().Text(), "");
  EXPECT_FALSE(box().Enabled());
  // The grid enables it again.
  QueueAna();
  screen.ClickCell(1, kCode);
  EXPECT_EQ(box().Text(), "Ana");
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_F(StylistSelectionTest, TheRequestOfTheButtonStandsWhileThePickerIsUp) {
  screen.OpenWithStylist();
  bool requested = false;
  bool enabled = false;
  screen.library.DuringNextDialog([&] {
    requested = screen.form().variables.CambiarEstilista;
    enabled = box().Enabled();
  });
  screen.ChooseStylist("E2", "Berta");
  EXPECT_TRUE(requested);
  EXPECT_TRUE(enabled);
}

TEST_F(StylistSelectionTest, AnEmptyNameLeavesTheBoxEnabledAndTakesTheCode) {
  screen.Open();
  screen.library.QueueEmployee({true, "E7", ""});
  QueueCancel();  // the grid, which then gets the focus, asks again
  Forget(screen);
  screen.Click("TxtEmpleado");
  EXPECT_EQ(box().Text(), "");
  EXPECT_EQ(code().Text(), "E7");
  EXPECT_TRUE(box().Enabled());
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
  EXPECT_EQ(TakeMessages(screen), Texts{kAsksForStylist});
  EXPECT_EQ(screen.Focused(), "PicDatos");
}

TEST_F(StylistSelectionTest, AnEmptyNameLeavesTheBoxEnabledAlsoWhereTheGridHasTheFocusAndAsksNothing) {
  screen.Open();
  screen.library.QueueEmployee({true, "E7", ""});
  screen.library.DuringNextDialog([this] {  // a library that uses the form while its picker is up
    box().Text("alguien");
    screen.form().MSFProductos.SetFocus();
  });
  Forget(screen);
  screen.Click("TxtEmpleado");
  EXPECT_EQ(screen.Focused(), "MSFProductos");
  EXPECT_EQ(box().Text(), "");
  EXPECT_EQ(code().Text(), "E7");
  EXPECT_TRUE(box().Enabled());
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(StylistSelectionTest, TheBarIsSetBeforeTheGridHasTheFocus) {
  screen.Open();
  screen.library.QueueEmployee({true, "E7", ""});
  QueueCancel();
  std::string buttons;
  screen.library.DuringNextDialog([] {});  // the picker
  screen.library.DuringNextDialog([&] { buttons = AvailableButtons(screen); });
  screen.Click("TxtEmpleado");
  EXPECT_EQ(buttons, kBotonesConLineas);
}

TEST_F(StylistSelectionTest, AChangeOfStylistTouchesNoLineThatIsThere) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "3");
  screen.ChooseStylist("E2", "Berta");
  screen.Click("TxtMSF");  // it stayed open over the free line
  screen.EnterLine("P4", "4");
  EXPECT_EQ(screen.Cell(1, kStylist), "Ana");
  EXPECT_EQ(screen.Cell(1, kEmployeeCode), "E1");
  EXPECT_EQ(screen.Cell(2, kStylist), "Berta");
  EXPECT_EQ(screen.Cell(2, kEmployeeCode), "E2");
}

TEST_F(StylistSelectionTest, NobodyTypesIntoTheBox) {
  screen.OpenWithStylist();
  int ascii = 'x';
  screen.form().TxtEmpleado_KeyPress(ascii);
  EXPECT_EQ(ascii, 'x');
  EXPECT_EQ(box().Text(), "Ana");
}

TEST_F(StylistSelectionTest, ThePickerMayReplaceTheConnection) {
  screen.Open();
  const std::shared_ptr<SqliteConnection> other =
      SqliteConnection::Open(":memory:", Dialect::kJet, Region::Spanish(), OpenMode::kCreate);
  screen.library.ReplaceConnection("Elegir", other);
  QueueAna();
  screen.ClickCell(1, kCode);
  EXPECT_EQ(screen.state.session.Conexion, other);
}

TEST_F(StylistSelectionTest, APickerThatFailsIsReportedAndMayBeTriedAgain) {
  screen.Open();
  const ConnectionRef before = screen.state.session.Conexion;
  screen.library.FailNext("Elegir", RuntimeError(429, "sin selector"));
  screen.Click("CmdEmpl");
  EXPECT_EQ(TakeErrors(screen), Texts{"429: sin selector"});
  EXPECT_EQ(screen.state.session.Conexion, before);
  EXPECT_EQ(box().Text(), "");
  QueueAna();
  screen.Click("CmdEmpl");
  EXPECT_EQ(box().Text(), "Ana");
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_F(StylistSelectionTest, TheWholeBranchCodeGoesToThePicker) {
  screen.Open("01-CENTRO");
  Forget(screen);
  QueueAna();
  screen.ClickCell(1, kCode);
  EXPECT_EQ(TakeCalls(screen, "SelectorEmpleado.Elegir"),
            Texts{"SelectorEmpleado.Elegir(Conexion, \"01-CENTRO\")"});
}

}  // namespace
}  // namespace orvendal
