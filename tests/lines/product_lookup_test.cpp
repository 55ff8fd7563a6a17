#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// What the text in the editor stands for, in both dialects.
class ProductLookupTest : public testing::TestWithParam<Dialect> {
 protected:
  ProductLookupTest() { screen.OpenWithStylist(); }

  void Enter(int column, const std::string& text) {
    screen.DoubleClickCell(1, column);
    Forget(screen);
    screen.Type(text);
    screen.Enter();
  }
  static std::string Search(const std::string& field, const std::string& text, const std::string& chosen) {
    return "BuscadorProductos.Buscar(DatosSesion, FrmOrvendalciales, \"Orvendalcial\", \"" + field +
           "\", \"" + text + "\", \"Modal\", False) = \"" + chosen + "\"";
  }

  FormDriver screen{GetParam()};
};

TEST_P(ProductLookupTest, ACodeTypedExactlyLoadsTheLine) {
  Enter(kCode, "P1");
  EXPECT_EQ(screen.Line(1), (Texts{"P1", "Champú suave", "7", "7", "E1", "Ana", "16/11/2026", "P1", ""}));
  EXPECT_EQ(CellAndEditor(screen), "1,3 [7]");
  EXPECT_TRUE(TakeCalls(screen).empty());
}

TEST_P(ProductLookupTest, ABarCodeInTheCodeColumnLoadsItsProduct) {
  Enter(kCode, "8400000000024");
  EXPECT_EQ(screen.Cell(1, kCode), "P2");
  EXPECT_EQ(screen.Cell(1, kDescription), "Crema de manos");
  EXPECT_EQ(Cursor(screen), "1,3");
  EXPECT_TRUE(TakeCalls(screen, "BuscadorProductos").empty());
}

TEST_P(ProductLookupTest, ABarCodeInTheDescriptionColumnLoadsItsProductToo) {
  Enter(kDescription, "8400000000024");
  EXPECT_EQ(screen.Cell(1, kCode), "P2");
  EXPECT_EQ(Cursor(screen), "1,3");
  EXPECT_TRUE(TakeCalls(screen, "BuscadorProductos").empty());
}

TEST_P(ProductLookupTest, OneDescriptionThatBeginsSoLoadsTheLineWithNoDialog) {
  Enter(kDescription, "CREMA F");  // the store does not tell upper and lower case apart
  EXPECT_EQ(screen.Cell(1, kCode), "P3");
  EXPECT_TRUE(TakeCalls(screen, "BuscadorProductos").empty());
}

TEST_P(ProductLookupTest, SeveralDescriptionsThatBeginSoOpenTheDialog) {
  screen.Execute("INSERT INTO Productos (Codigo, Descripcion) VALUES ('P6', 'Crema solar')");
  screen.library.QueueProduct("P6");
  Enter(kDescription, "CRE");
  EXPECT_EQ(TakeCalls(screen, "BuscadorProductos"), Texts{Search("Descripcion", "CRE", "P6")});
  EXPECT_EQ(screen.Cell(1, kCode), "P6");
  EXPECT_EQ(Cursor(screen), "1,3");
}

TEST_P(ProductLookupTest, AWildcardThatFindsTwoCodesOpensTheDialog) {
  screen.library.QueueProduct("P21");
  Enter(kCode, "P2%");
  EXPECT_EQ(TakeCalls(screen, "BuscadorProductos"), Texts{Search("Codigo", "P2%", "P21")});
  EXPECT_EQ(screen.Cell(1, kCode), "P21");
}

TEST_P(ProductLookupTest, AWildcardThatFindsOneCodeIsThatCode) {
  Enter(kCode, "_40");
  EXPECT_EQ(screen.Cell(1, kCode), "P40");
  EXPECT_EQ(screen.Cell(1, kDescription), "Producto 40");
  EXPECT_TRUE(TakeCalls(screen, "BuscadorProductos").empty());
}

TEST_P(ProductLookupTest, ATextThatNothingKnowsOpensTheDialogOnItsField) {
  screen.library.QueueProduct("P1");
  Enter(kCode, "xyz");
  EXPECT_EQ(TakeCalls(screen, "BuscadorProductos"), Texts{Search("Codigo", "xyz", "P1")});
  EXPECT_EQ(screen.Cell(1, kCode), "P1");
}

TEST_P(ProductLookupTest, ADialogThatIsCancelledLeavesTheTextAndSaysNothing) {
  screen.library.QueueProduct("");
  Enter(kDescription, "xyz");
  EXPECT_EQ(TakeCalls(screen, "BuscadorProductos"), Texts{Search("Descripcion", "xyz", "")});
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(EditorText(screen), "xyz");
  EXPECT_EQ(Cursor(screen), "1,1");
  EXPECT_EQ(screen.Focused(), "TxtMSF");
  EXPECT_EQ(screen.Line(1), Texts(9, ""));
}

TEST_P(ProductLookupTest, ADialogOverSeveralProductsMayBeCancelledToo) {
  screen.library.QueueProduct("");
  Enter(kDescription, "Crema");
  EXPECT_EQ(EditorText(screen), "Crema");
  EXPECT_EQ(Cursor(screen), "1,1");
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_P(ProductLookupTest, TheReferencesAreAskedOnlyWhenNoProductMatches) {
  screen.Execute("INSERT INTO Referencias (Referencia, IdProducto) VALUES ('P1', 'P4')");
  Enter(kCode, "P1");
  EXPECT_EQ(screen.Cell(1, kCode), "P1");
  for (const std::string& statement : TakeStatements(screen))
    EXPECT_EQ(statement.find("Referencias"), std::string::npos) << statement;
}

TEST_P(ProductLookupTest, OfSeveralRowsOfAReferenceTheFirstIsTaken) {
  screen.Execute("INSERT INTO Referencias (Referencia, IdProducto) VALUES ('99', 'P3'), ('99', 'P4')");
  Enter(kCode, "99");
  EXPECT_EQ(screen.Cell(1, kCode), screen.Sql("SELECT IdProducto FROM Referencias WHERE Referencia = '99'"));
  EXPECT_TRUE(TakeCalls(screen, "BuscadorProductos").empty());
}

TEST_P(ProductLookupTest, ACodeIsComparedWhole) {
  screen.library.QueueProduct("");
  Enter(kCode, "P");
  EXPECT_EQ(TakeCalls(screen, "BuscadorProductos"), Texts{Search("Codigo", "P", "")});
}

TEST_P(ProductLookupTest, ALineShowsTheCodeAsTheStoreWritesIt) {
  Enter(kCode, "p1");
  EXPECT_EQ(screen.Cell(1, kCode), "P1");
  EXPECT_EQ(screen.Cell(1, kStoredCode), "P1");
}

TEST_P(ProductLookupTest, TheStatementsGoInTheirOrder) {
  Enter(kCode, "8400000000017");
  EXPECT_EQ(TakeStatements(screen),
            (Texts{"SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Codigo "
                   "Like '8400000000017'",
                   "SELECT Referencias.IdProducto FROM Referencias WHERE Referencias.Referencia "
                   "='8400000000017'",
                   "SELECT Productos.Descripcion FROM Productos WHERE Productos.Codigo ='P1'",
                   "SELECT * FROM ProdSucStock WHERE IdSucursal ='01' AND IdProducto ='P1'"}));
}

TEST_P(ProductLookupTest, TheDialogComesAfterProductsAndReferences) {
  EventLog log;
  log.drain_first = [this] { return TakeCalls(screen); };
  screen.library.QueueProduct("P1");
  screen.DoubleClickCell(1, kDescription);
  Forget(screen);
  screen.recordsets.OnOpen([&](const OpenedStatement& statement) { log.Add(statement.text); });
  screen.Type("xyz\n");
  const Texts steps = log.Take();
  screen.recordsets.OnOpen({});
  ASSERT_EQ(steps.size(), 5U);
  EXPECT_EQ(steps[0],
            "SELECT Productos.Codigo, Productos.Descripcion FROM Productos WHERE Productos.Descripcion "
            "Like 'xyz%'");
  EXPECT_EQ(steps[1], "SELECT Referencias.IdProducto FROM Referencias WHERE Referencias.Referencia ='xyz'");
  EXPECT_EQ(steps[2], Search("Descripcion", "xyz", "P1"));
  EXPECT_EQ(steps[3], "SELECT Productos.Descripcion FROM Productos WHERE Productos.Codigo ='P1'");
}

TEST_P(ProductLookupTest, AFormThatTheDialogHandsBackIsTheForm) {
  const std::shared_ptr<FrmOrvendalciales> before = screen.state.form;
  screen.library.QueueProduct("P1");
  Enter(kCode, "xyz");
  EXPECT_EQ(screen.state.form, before);
}

INSTANTIATE_TEST_SUITE_P(BothDialects, ProductLookupTest, testing::Values(Dialect::kSqlServer, Dialect::kJet),
                         DialectName);

}  // namespace
}  // namespace orvendal
