#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// A day of 30 lines, which the grid does not show at once.
class ScrolledEditorTest : public testing::Test {
 protected:
  ScrolledEditorTest() {
    screen.AddCounts(30);
    screen.OpenWithStylist();
    grid().TopRow(1);
  }
  MSFlexGrid& grid() { return screen.form().MSFProductos; }
  TextBox& editor() { return screen.form().TxtMSF; }
  void Wheel(double lines) {
    const Rect bounds = grid().Bounds();
    screen.form().MouseWheel({bounds.left + 600, bounds.top + 900}, lines);
  }

  FormDriver screen;
};

TEST_F(ScrolledEditorTest, TheEditorMovesWithItsCellAndNotSideways) {
  screen.DoubleClickCell(5, kCode);
  const double top = editor().Top();
  const double left = editor().Left();
  Wheel(1);
  const int scrolled = grid().TopRow() - 1;
  ASSERT_GT(scrolled, 0);
  EXPECT_EQ(editor().Top(), top - 500 * scrolled);
  EXPECT_EQ(editor().Left(), left);
}

TEST_F(ScrolledEditorTest, TheEditorStaysWhereItIsWhileTheGridScrollsSideways) {
  grid().ColWidth(kDescription, grid().Width());
  screen.DoubleClickCell(5, kCode);
  const double left = editor().Left();
  const double cell = grid().CellRectangle(5, kDescription).left;
  grid().LeftCol(1);
  ASSERT_LT(grid().CellRectangle(5, kDescription).left, cell);
  EXPECT_EQ(editor().Left(), left);
}

TEST_F(ScrolledEditorTest, TheEditorComesBackWithTheView) {
  screen.DoubleClickCell(5, kQuantity);
  const double top = editor().Top();
  Wheel(3);
  Wheel(-3);
  EXPECT_EQ(grid().TopRow(), 1);
  EXPECT_EQ(editor().Top(), top);
}

TEST_F(ScrolledEditorTest, AScrollLeavesTextAndCursorAlone) {
  screen.DoubleClickCell(5, kQuantity);
  screen.Type("42");
  Wheel(3);
  EXPECT_EQ(editor().Text(), "42");
  EXPECT_EQ(Cursor(screen), "5,3");
  EXPECT_EQ(screen.Cell(5, kQuantity), "5");
}

TEST_F(ScrolledEditorTest, AClosedEditorFollowsToo) {
  screen.ClickCell(5, kCode);
  const double top = 2400 + grid().CellTop() - 10;
  Wheel(1);
  const int scrolled = grid().TopRow() - 1;
  ASSERT_GT(scrolled, 0);
  EXPECT_EQ(editor().Top(), top - 500 * scrolled);
  EXPECT_FALSE(editor().Visible());
}

TEST_F(ScrolledEditorTest, AScrollFarAwayPutsTheEditorOutsideTheGrid) {
  screen.DoubleClickCell(2, kCode);
  Wheel(15);
  EXPECT_LT(editor().Top(), grid().Top());
  EXPECT_TRUE(editor().Visible());
}

TEST_F(ScrolledEditorTest, ADoubleClickOnAScrolledLineOpensTheEditorOverIt) {
  screen.DoubleClickCell(28, kCode);
  EXPECT_EQ(Cursor(screen), "28,0");
  EXPECT_EQ(editor().Text(), "P37");
  const Rect cell = grid().CellRectangle(28, kCode);
  EXPECT_EQ(cell.height, 500);
  EXPECT_EQ(editor().Top(), 2400 + cell.top - 10);
}

TEST_F(ScrolledEditorTest, TheDownArrowBringsTheNextLineIntoViewWithTheEditor) {
  screen.DoubleClickCell(1, kCode);
  for (int line = 2; line <= 30; ++line) {
    screen.Key(key::kDown);
    const Rect cell = grid().CellRectangle(line, kCode);
    ASSERT_EQ(cell.height, 500) << line;
    ASSERT_EQ(editor().Top(), 2400 + cell.top - 10) << line;
  }
  for (int line = 29; line >= 1; --line) {
    screen.Key(key::kUp);
    const Rect cell = grid().CellRectangle(line, kCode);
    ASSERT_EQ(cell.height, 500) << line;
    ASSERT_EQ(editor().Top(), 2400 + cell.top - 10) << line;
  }
}

TEST_F(ScrolledEditorTest, WithTheEditorClosedACursorMovedByCodeDoesNotScroll) {
  grid().Row(30);
  EXPECT_EQ(grid().TopRow(), 1);
  EXPECT_FALSE(grid().RowIsVisible(30));
}

/// The strip along the top has a handler that hands its value to the recordset of the last save.
class ScrollStripTest : public testing::Test {
 protected:
  FormDriver screen;
};

TEST_F(ScrollStripTest, NoUserActionChangesIt) {
  screen.OpenWithStylist();
  const HScrollBar& strip = screen.form().ScrollProductos;
  EXPECT_EQ(strip.Min(), 1);
  EXPECT_EQ(strip.Max(), 1);
  const Rect bounds = strip.Bounds();
  screen.robot().ClickAt({bounds.left + bounds.width - 60, bounds.top + bounds.height / 2});
  screen.robot().ClickAt({bounds.left + bounds.width / 2, bounds.top + bounds.height / 2});
  EXPECT_EQ(strip.Value(), 1);
  EXPECT_TRUE(TakeErrors(screen).empty());
}

TEST_F(ScrollStripTest, BeforeAnySaveItsHandlerMeetsAClosedRecordset) {
  screen.OpenWithStylist();
  screen.form().ScrollProductos.Max(3);
  try {
    screen.form().ScrollProductos.Value(2);
    FAIL() << "the closed recordset took a position";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 3704);
  }
}

/// After a failed save the recordset is open: its kind of cursor decides.
class ScrollStripAfterAFailedSaveTest : public testing::TestWithParam<Dialect> {
 protected:
  FormDriver screen{GetParam()};
};

TEST_P(ScrollStripAfterAFailedSaveTest, ItsHandlerHandsTheValueToTheRecordset) {
  screen.AddCounts(3);
  screen.OpenWithStylist();
  screen.recordsets.FailUpdate(3, -2147217887, "No cabe.");
  screen.Click("LblGuardar");
  ASSERT_EQ(screen.form().variables.RsCodigos->State(), kStateOpen);
  screen.form().ScrollProductos.Max(3);
  std::int32_t error = 0;
  try {
    screen.form().ScrollProductos.Value(2);
  } catch (const RuntimeError& refused) {
    error = refused.Number();
  }
  EXPECT_EQ(error, GetParam() == Dialect::kJet ? 0 : 3251);
}

INSTANTIATE_TEST_SUITE_P(BothDialects, ScrollStripAfterAFailedSaveTest,
                         testing::Values(Dialect::kSqlServer, Dialect::kJet), DialectName);

TEST_F(ScrollStripTest, HasNoBearingOnTheGrid) {
  screen.AddCounts(30);
  screen.OpenWithStylist();
  const int top = screen.form().MSFProductos.TopRow();
  const std::string cursor = Cursor(screen);
  screen.form().ScrollProductos.Max(3);
  EXPECT_THROW(screen.form().ScrollProductos.Value(2), RuntimeError);
  EXPECT_EQ(screen.form().MSFProductos.TopRow(), top);
  EXPECT_EQ(Cursor(screen), cursor);
}

}  // namespace
}  // namespace orvendal
