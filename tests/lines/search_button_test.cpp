#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

class SearchButtonTest : public testing::Test {
 protected:
  SearchButtonTest() {
    screen.AddCounts(2);
    screen.OpenWithStylist();
  }
  void Search(const std::string& answer) {
    Forget(screen);
    screen.library.QueueProduct(answer);
    screen.Click("LblBuscar");
  }
  Texts Searches() {
    Texts arguments;
    for (const std::string& call : TakeCalls(screen, "BuscadorProductos.Buscar(")) {
      const std::string before = "\"Orvendalcial\", ";
      const std::size_t from = call.find(before) + before.size();
      arguments.push_back(call.substr(from, call.find(", \"Modal\"") - from));
    }
    return arguments;
  }
  FormDriver screen;
};

TEST_F(SearchButtonTest, OnTheCodeStartsFromTheCodeOfTheLine) {
  screen.DoubleClickCell(1, kCode);
  Search("");
  EXPECT_EQ(Searches(), Texts{"\"Codigo\", \"P10\""});
}

TEST_F(SearchButtonTest, HandsOverSessionFormAndModeToTheLetter) {
  screen.DoubleClickCell(1, kCode);
  Search("");
  EXPECT_EQ(TakeCalls(screen),
            Texts{"BuscadorProductos.Buscar(DatosSesion, FrmOrvendalciales, \"Orvendalcial\", \"Codigo\", "
                  "\"P10\", \"Modal\", False) = \"\""});
}

TEST_F(SearchButtonTest, OnTheDescriptionStartsFromTheDescription) {
  screen.DoubleClickCell(2, kDescription);
  Search("");
  EXPECT_EQ(Searches(), Texts{"\"Descripcion\", \"Producto 11\""});
}

TEST_F(SearchButtonTest, OnTheQuantitySearchesByDescription) {
  screen.DoubleClickCell(2, kQuantity);
  Search("");
  EXPECT_EQ(Searches(), Texts{"\"Descripcion\", \"Producto 11\""});
  EXPECT_EQ(EditorText(screen), "2");
}

TEST_F(SearchButtonTest, DoesNotSeeWhatIsTypedAndNotConfirmed) {
  screen.DoubleClickCell(3, kCode);
  screen.Type("P1");
  Search("");
  EXPECT_EQ(Searches(), Texts{"\"Codigo\", \"\""});
  EXPECT_EQ(EditorText(screen), "P1");
}

TEST_F(SearchButtonTest, CancelledLeavesEverythingAsItIs) {
  screen.DoubleClickCell(2, kCode);
  const Texts before = screen.Line(2);
  Search("");
  EXPECT_EQ(screen.Line(2), before);
  EXPECT_EQ(Cursor(screen), "2,0");
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(SearchButtonTest, AProductChosenFillsTheLineAndGoesToItsQuantity) {
  screen.DoubleClickCell(3, kCode);
  Search("P1");
  EXPECT_EQ(screen.Line(3), (Texts{"P1", "Champú suave", "7", "7", "E1", "Ana", "16/11/2026", "P1", ""}));
  EXPECT_EQ(CellAndEditor(screen), "3,3 [7]");
}

TEST_F(SearchButtonTest, AProductChosenOnTheQuantityShowsItsStockSelectedToo) {
  screen.DoubleClickCell(2, kQuantity);
  Search("P1");
  EXPECT_EQ(screen.Cell(2, kCode), "P1");
  EXPECT_EQ(screen.Cell(2, kQuantity), "7");
  EXPECT_EQ(CellAndEditor(screen), "2,3 [7]");
  // What the editor shows is what leaving the cell writes back.
  screen.ClickCell(1, kCode);
  EXPECT_EQ(screen.Cell(2, kQuantity), "7");
}

TEST_F(SearchButtonTest, AProductWithALineElsewhereIsRefused) {
  screen.DoubleClickCell(2, kCode);
  Search("P10");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesRepeatedProduct});
  EXPECT_EQ(screen.Cell(2, kCode), "P11");
  EXPECT_EQ(Cursor(screen), "2,0");
}

TEST_F(SearchButtonTest, TheProductOfTheLineItselfChangesNothing) {
  screen.DoubleClickCell(2, kCode);
  Search("P11");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(Cursor(screen), "2,0");
  EXPECT_EQ(screen.Cell(2, kQuantity), "2");
}

TEST_F(SearchButtonTest, AProductThatIsGoneChangesNothing) {
  screen.DoubleClickCell(3, kCode);
  Search("GONE");
  EXPECT_EQ(screen.Line(3), Texts(9, ""));
  EXPECT_EQ(Cursor(screen), "3,0");
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(SearchButtonTest, MakesNoTestOfTheStylist) {
  screen.DoubleClickCell(3, kCode);
  screen.form().TxtEmpleado.Text("");
  screen.form().TxtCodigo.Text("");
  Search("P1");
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(screen.Line(3), (Texts{"P1", "Champú suave", "7", "7", "", "", "16/11/2026", "P1", ""}));
}

TEST_F(SearchButtonTest, IsAvailableOnlyWhileTheEditorIsOpen) {
  EXPECT_FALSE(screen.IsAvailable("Buscar"));
  EXPECT_THROW(screen.Click("LblBuscar"), std::invalid_argument);
  screen.DoubleClickCell(1, kCode);
  EXPECT_TRUE(screen.IsAvailable("Buscar"));
  screen.Key(key::kEscape);
  EXPECT_FALSE(screen.IsAvailable("Buscar"));
}

TEST_F(SearchButtonTest, ADialogThatFailsIsReportedAndTheEditorStays) {
  screen.DoubleClickCell(3, kCode);
  screen.Type("P1");
  screen.library.FailNext("Buscar", RuntimeError(429, "sin buscador"));
  screen.Click("LblBuscar");
  EXPECT_EQ(TakeErrors(screen), Texts{"429: sin buscador"});
  EXPECT_EQ(EditorText(screen), "P1");
  EXPECT_TRUE(EditorIsOpen(screen));
  screen.Click("TxtMSF");
  screen.Enter();
  EXPECT_EQ(screen.Cell(3, kCode), "P1");
}

}  // namespace
}  // namespace orvendal
