#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class CellEditorTest : public testing::Test {
 protected:
  CellEditorTest() {
    screen.AddCounts(3);
    screen.OpenWithStylist();
  }
  FrmOrvendalciales& form() { return screen.form(); }

  /// The editor lies over the current cell, by the three distances that it keeps.
  void ExpectEditorOverCell() {
    EXPECT_EQ(form().TxtMSF.Top(), form().MSFProductos.Top() + form().MSFProductos.CellTop() - 10);
    EXPECT_EQ(form().TxtMSF.Left(), form().MSFProductos.Left() + form().MSFProductos.CellLeft() - 10);
    EXPECT_EQ(form().TxtMSF.Width(), form().MSFProductos.CellWidth() + 30);
  }

  FormDriver screen;
};

TEST_F(CellEditorTest, IsClosedWhenTheScreenOpens) {
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
}

TEST_F(CellEditorTest, OpensByADoubleClickWithTheTextOfTheCellSelected) {
  screen.DoubleClickCell(2, kDescription);
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(screen.Focused(), "TxtMSF");
  EXPECT_EQ(EditorText(screen), "Producto 11");
  EXPECT_EQ(form().TxtMSF.SelStart(), 0);
  EXPECT_EQ(form().TxtMSF.SelLength(), 11);
}

TEST_F(CellEditorTest, MakesAllFiveButtonsAvailableWhenItOpens) {
  screen.DoubleClickCell(1, kCode);
  EXPECT_EQ(AvailableButtons(screen), kBotonesEnCelda);
}

TEST_F(CellEditorTest, HasTheFocusAfterTheButtonsAreAvailable) {
  std::string buttons;
  const std::function<void()> focused = form().TxtMSF.OnGotFocus;
  form().TxtMSF.OnGotFocus = [&] {
    buttons = AvailableButtons(screen);
    focused();
  };
  screen.DoubleClickCell(1, kCode);
  form().TxtMSF.OnGotFocus = focused;
  EXPECT_EQ(buttons, kBotonesEnCelda);
  EXPECT_TRUE(EditorTextIsSelected(screen));
}

TEST_F(CellEditorTest, LiesOverEachOfTheCellsThatMayBeEdited) {
  for (const int row : {1, 2, 3}) {
    for (const int column : {kCode, kDescription, kQuantity}) {
      screen.DoubleClickCell(row, column);
      ASSERT_EQ(Cursor(screen), std::to_string(row) + "," + std::to_string(column));
      ExpectEditorOverCell();
    }
  }
}

TEST_F(CellEditorTest, StandsWhereTheDesignPutsIt) {
  screen.DoubleClickCell(1, kCode);
  const Rect cell = form().MSFProductos.CellRectangle(1, kCode);
  EXPECT_EQ(cell.width, 1200);
  EXPECT_EQ(form().TxtMSF.Left(), 1200 + cell.left - 10);
  EXPECT_EQ(form().TxtMSF.Top(), 2400 + cell.top - 10);
  EXPECT_EQ(form().TxtMSF.Width(), 1230);
  screen.DoubleClickCell(3, kQuantity);
  // Two rows of 500 twips further down; 13095 - 1200 - 1200 - 1500 - 1500 - 300 twips of description.
  EXPECT_EQ(form().TxtMSF.Left(), 1200 + cell.left + 1200 + 7395 + 1200 - 10);
  EXPECT_EQ(form().TxtMSF.Top(), 2400 + cell.top + 1000 - 10);
  EXPECT_EQ(form().TxtMSF.Width(), 1530);
}

TEST_F(CellEditorTest, KeepsTheHeightThatTheStartGaveIt) {
  screen.DoubleClickCell(1, kCode);
  EXPECT_EQ(form().TxtMSF.Height(), 510);
  screen.DoubleClickCell(3, kQuantity);
  EXPECT_EQ(form().TxtMSF.Height(), 510);
}

TEST_F(CellEditorTest, TakesAnyNumberOfCharacters) {
  EXPECT_EQ(form().TxtMSF.MaxLength(), 0);
  screen.DoubleClickCell(4, kCode);
  screen.Type(std::string(300, 'x'));
  EXPECT_EQ(EditorText(screen), std::string(300, 'x'));
}

TEST_F(CellEditorTest, NotesCodeAndPreviousQuantityOfItsLine) {
  screen.DoubleClickCell(2, kDescription);
  EXPECT_EQ(form().variables.CodigoCelda, "P11");
  EXPECT_EQ(form().variables.CantidadCelda, "1");
  screen.DoubleClickCell(3, kDescription);
  EXPECT_EQ(form().variables.CodigoCelda, "P12");
  EXPECT_EQ(form().variables.CantidadCelda, "2");
}

TEST_F(CellEditorTest, OpensOnTheNewQuantityWhenThePreviousOneIsDoubleClicked) {
  screen.DoubleClickCell(2, kPreviousQuantity);
  EXPECT_EQ(Cursor(screen), "2,3");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "2");
  ExpectEditorOverCell();
}

TEST_F(CellEditorTest, OpensOnTheNewQuantityWhenTheStylistIsDoubleClicked) {
  screen.DoubleClickCell(2, kStylist);
  EXPECT_EQ(Cursor(screen), "2,3");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "2");
  ExpectEditorOverCell();
}

TEST_F(CellEditorTest, OpensOnTheNewQuantityAlsoWhenThePreviousOneIsTheCurrentCell) {
  form().MSFProductos.Row(2);
  form().MSFProductos.Col(kPreviousQuantity);
  int blank = ' ';
  form().EntrarCelda(blank);
  EXPECT_EQ(Cursor(screen), "2,3");
  EXPECT_EQ(EditorText(screen), "2");
  EXPECT_EQ(blank, ' ');
}

TEST_F(CellEditorTest, ClosesOnEscapeAndTheCellKeepsItsValue) {
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("99");
  screen.Key(key::kEscape);
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(screen.Cell(2, kQuantity), "2");
  EXPECT_EQ(Cursor(screen), "2,3");
}

TEST_F(CellEditorTest, SwitchesTheSearchOffOnEscape) {
  screen.DoubleClickCell(2, kCode);
  ASSERT_TRUE(screen.IsAvailable("Buscar"));
  screen.Key(key::kEscape);
  EXPECT_EQ(AvailableButtons(screen), kBotonesConLineas);
}

TEST_F(CellEditorTest, ComesBackAfterEscapeOnlyByADoubleClickWithTheValueOfTheCell) {
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("99");
  screen.Key(key::kEscape);
  screen.ClickCell(2, kQuantity);
  EXPECT_FALSE(EditorIsOpen(screen));
  screen.DoubleClickCell(2, kQuantity);
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "2");
}

TEST_F(CellEditorTest, DropsWhatWasTypedInACodeOnEscape) {
  screen.DoubleClickCell(2, kCode);
  screen.Type("P1");
  screen.Key(key::kEscape);
  EXPECT_EQ(screen.Cell(2, kCode), "P11");
  EXPECT_FALSE(EditorIsOpen(screen));
}

TEST_F(CellEditorTest, DoesNotOpenByKeysOnTheGrid) {
  screen.ClickCell(2, kCode);
  ASSERT_EQ(screen.Focused(), "MSFProductos");
  const Texts before = screen.Line(2);
  screen.Type("P1 7");
  screen.Enter();
  screen.Key(key::kEscape);
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(screen.Line(2), before);
  EXPECT_EQ(screen.Codes(), (Texts{"P10", "P11", "P12"}));
  EXPECT_EQ(Cursor(screen), "2,0");
}

TEST_F(CellEditorTest, DoesNotOpenByASingleClick) {
  screen.ClickCell(3, kQuantity);
  EXPECT_FALSE(EditorIsOpen(screen));
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

TEST_F(CellEditorTest, TakesTheFocusBackWhenTheGridIsClicked) {
  screen.DoubleClickCell(1, kCode);
  screen.ClickCell(3, kDescription);
  EXPECT_EQ(screen.Focused(), "TxtMSF");
  EXPECT_EQ(CellAndEditor(screen), "3,1 [Producto 12]");
  ExpectEditorOverCell();
}

TEST_F(CellEditorTest, AClickIgnoresAnEditorThatCannotHaveTheFocus) {
  screen.DoubleClickCell(1, kCode);
  form().TxtMSF.Enabled(false);
  Forget(screen);
  screen.ClickCell(3, kDescription);
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(Cursor(screen), "3,1");
  EXPECT_EQ(EditorText(screen), "Producto 12");
}

TEST_F(CellEditorTest, SelectsItsTextAnewEachTimeItGetsTheFocus) {
  screen.DoubleClickCell(1, kDescription);
  screen.Key(key::kEnd);
  ASSERT_EQ(form().TxtMSF.SelLength(), 0);
  form().PicDatos.SetFocus();
  form().TxtMSF.SetFocus();
  EXPECT_TRUE(EditorTextIsSelected(screen));
  EXPECT_EQ(form().TxtMSF.SelLength(), 11);
}

TEST_F(CellEditorTest, TakesEveryCharacterInCodeAndDescription) {
  screen.DoubleClickCell(4, kCode);
  screen.Type("aB-9 ñ%");
  EXPECT_EQ(EditorText(screen), "aB-9 ñ%");
  screen.Key(key::kEscape);
  screen.DoubleClickCell(4, kDescription);
  screen.Type("Champú nº 5,5");
  EXPECT_EQ(EditorText(screen), "Champú nº 5,5");
  EXPECT_EQ(screen.host.Beeps(), 0);
}

TEST_F(CellEditorTest, BeepsAtWhatIsNoDigitIfItEverStandsOnThePreviousQuantity) {
  screen.DoubleClickCell(2, kQuantity);
  // The cursor is carried past the previous quantity; only with the events silenced does it stay there.
  form().variables.PintandoFila = true;
  form().MSFProductos.Col(kPreviousQuantity);
  form().variables.PintandoFila = false;
  screen.Type("a5/:");
  EXPECT_EQ(EditorText(screen), "5");
  EXPECT_EQ(screen.host.Beeps(), 3);
  screen.Type("09");
  screen.Key(key::kBack);
  EXPECT_EQ(EditorText(screen), "50");
  EXPECT_EQ(screen.host.Beeps(), 3);
}

TEST_F(CellEditorTest, NeverBeepsOnTheNewQuantity) {
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("x7");
  EXPECT_EQ(EditorText(screen), "7");
  EXPECT_EQ(screen.host.Beeps(), 0);
}

TEST_F(CellEditorTest, AsksTheLibraryAboutEveryKeyOfTheNewQuantity) {
  screen.DoubleClickCell(2, kQuantity);
  Forget(screen);
  screen.Type("1x,");
  screen.Key(key::kBack);
  screen.Key(key::kEscape);
  EXPECT_EQ(TakeCalls(screen), (Texts{"HerramientasGlobal.FiltrarTecla(TxtMSF, 49, True) = 49",
                                      "HerramientasGlobal.FiltrarTecla(TxtMSF, 120, True) = 0",
                                      "HerramientasGlobal.FiltrarTecla(TxtMSF, 44, True) = 44",
                                      "HerramientasGlobal.FiltrarTecla(TxtMSF, 8, True) = 8",
                                      "HerramientasGlobal.FiltrarTecla(TxtMSF, 27, True) = 27"}));
}

TEST_F(CellEditorTest, AsksTheLibraryAboutEnterOnTheNewQuantityBeforeItActs) {
  screen.DoubleClickCell(2, kQuantity);
  Forget(screen);
  screen.Enter();
  EXPECT_EQ(TakeCalls(screen), Texts{"HerramientasGlobal.FiltrarTecla(TxtMSF, 13, True) = 13"});
  EXPECT_EQ(Cursor(screen), "3,0");
}

TEST_F(CellEditorTest, DoesNotAskTheLibraryAboutKeysOfCodeAndDescription) {
  screen.DoubleClickCell(4, kCode);
  Forget(screen);
  screen.Type("P1");
  screen.Key(key::kEscape);
  screen.DoubleClickCell(4, kDescription);
  screen.Type("Laca");
  screen.Key(key::kEscape);
  EXPECT_TRUE(TakeCalls(screen).empty());
}

TEST_F(CellEditorTest, TakesTheKeyThatTheLibraryGivesForAnother) {
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("1.5");
  EXPECT_EQ(EditorText(screen), "1,5");  // the point of the numeric pad is the mark of the region
}

TEST_F(CellEditorTest, ALibraryThatFailsOnAKeyIsReportedAndTheTextStays) {
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("4");
  Forget(screen);
  screen.library.FailNext("FiltrarTecla", RuntimeError(1001, "sin filtro"));
  screen.Type("5");
  EXPECT_EQ(TakeErrors(screen), Texts{"1001: sin filtro"});
  EXPECT_EQ(EditorText(screen), "4");
  EXPECT_TRUE(EditorIsOpen(screen));
  screen.Type("6");
  EXPECT_EQ(EditorText(screen), "46");
}

}  // namespace
}  // namespace orvendal
