#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// The editor is open when the header loses its stylist.
class BlankStylistTest : public testing::Test {
 protected:
  BlankStylistTest() {
    screen.AddCounts(2);
    screen.OpenWithStylist();
  }
  void LoseStylist(int column) {
    screen.DoubleClickCell(1, column);
    screen.form().TxtEmpleado.Enabled(true);
    screen.form().TxtEmpleado.Text("");
    Forget(screen);
  }
  /// The header is empty and its box disabled, as the button leaves it after a picker that was cancelled.
  void LoseStylistByTheButton() {
    screen.DoubleClickCell(1, kCode);
    screen.library.QueueEmployee({true, "E9", ""});  // accepted with an empty name: the grid asks again
    screen.library.QueueEmployee({false, "", ""});
    screen.Click("CmdEmpl");
    screen.library.QueueEmployee({false, "", ""});
    screen.Click("CmdEmpl");
    Forget(screen);
  }
  FormDriver screen;
};

TEST_F(BlankStylistTest, AnyKeyInTheEditorShowsTheMessage) {
  for (const char* text : {"P", "7", " "}) {
    LoseStylist(kCode);
    screen.library.QueueEmployee({true, "E1", "Ana"});
    screen.Type(text);
    EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist}) << text;
  }
}

TEST_F(BlankStylistTest, EnterEscapeAndBackspaceShowTheMessageToo) {
  for (const int code : {key::kReturn, key::kEscape, key::kBack}) {
    LoseStylist(kCode);
    screen.library.QueueEmployee({true, "E1", "Ana"});
    screen.Key(code);
    EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist}) << code;
  }
}

TEST_F(BlankStylistTest, TheMessageThenThePickerThenTheEditorCloses) {
  LoseStylist(kCode);
  bool open_in_message = false;
  bool open_in_picker = false;
  screen.library.DuringNextDialog([&] { open_in_message = EditorIsOpen(screen); });
  screen.library.DuringNextDialog([&] { open_in_picker = EditorIsOpen(screen); });
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Type("P");
  EXPECT_TRUE(open_in_message);
  EXPECT_TRUE(open_in_picker);
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(TakeCalls(screen),
            (Texts{"MensajesGlobal.Mostrar(\"El Estilista no puede estar en blanco\", 16, \"Atención\") = 1",
                   "SelectorEmpleado.ParaNuevo(False)", "SelectorEmpleado.Aceptado(False)",
                   "SelectorEmpleado.OpcionFija(True)", "SelectorEmpleado.Nombre(\"\")",
                   "SelectorEmpleado.Elegir(Conexion, \"01\")", "SelectorEmpleado.Aceptado() = True",
                   "SelectorEmpleado.Nombre() = \"Berta\"", "SelectorEmpleado.Codigo() = \"E2\""}));
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

TEST_F(BlankStylistTest, AQuantityIsFilteredBeforeTheMessage) {
  LoseStylist(kQuantity);
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.Type("7");
  const Texts calls = TakeCalls(screen);
  ASSERT_GE(calls.size(), 2U);
  EXPECT_EQ(calls[0], "HerramientasGlobal.FiltrarTecla(TxtMSF, 55, True) = 55");
  EXPECT_TRUE(calls[1].starts_with("MensajesGlobal.Mostrar"));
}

TEST_F(BlankStylistTest, APickerCancelledLeavesTheFocusAtRestAndTheEditorClosed) {
  LoseStylist(kCode);
  screen.library.QueueEmployee({false, "", ""});
  screen.Type("P");
  EXPECT_EQ(screen.Focused(), "PicDatos");
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
  EXPECT_TRUE(screen.form().TxtEmpleado.Enabled());
}

TEST_F(BlankStylistTest, NoProductIsLookedUp) {
  LoseStylist(kCode);
  screen.form().TxtMSF.Text("P1");
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.Enter();
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_EQ(screen.Cell(1, kCode), "P10");
}

TEST_F(BlankStylistTest, WithItsBoxDisabledTheErrorIsReportedAndTheTextStays) {
  LoseStylistByTheButton();
  ASSERT_FALSE(screen.form().TxtEmpleado.Enabled());
  ASSERT_TRUE(EditorIsOpen(screen));
  screen.Click("TxtMSF");
  ASSERT_EQ(screen.Focused(), "TxtMSF");
  screen.form().TxtMSF.Text("P1");
  screen.Type("5");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist});
  EXPECT_EQ(TakeErrors(screen), Texts{"5: Invalid procedure call or argument"});
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "P1");
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11"}));

  // The screen goes on: the button brings a stylist.
  screen.ChooseStylist("E3", "Carmen");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Carmen");
  EXPECT_TRUE(TakeErrors(screen).empty());
}

}  // namespace
}  // namespace orvendal
