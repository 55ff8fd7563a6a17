#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// Writes down the events of grid and editor as they are raised, with the cell that the cursor is on.
class EventOrderTest : public testing::Test {
 protected:
  EventOrderTest() {
    screen.AddCounts(3);
    screen.OpenWithStylist();
    MSFlexGrid& grid = screen.form().MSFProductos;
    TextBox& editor = screen.form().TxtMSF;
    Record(grid.OnLeaveCell, "LeaveCell");
    Record(grid.OnRowColChange, "RowColChange");
    Record(grid.OnClick, "Click");
    Record(grid.OnDblClick, "DblClick");
    Record(grid.OnGotFocus, "GotFocus");
    Record(editor.OnGotFocus, "TxtMSF_GotFocus");
    Record(editor.OnChange, "TxtMSF_Change");
    const auto mouse_down = grid.OnMouseDown;
    grid.OnMouseDown = [this, mouse_down](int button, int shift, double x, double y) {
      Note("MouseDown");
      mouse_down(button, shift, x, y);
    };
  }
  void Note(const std::string& event) {
    if (!screen.form().variables.PintandoFila) events.push_back(event + " " + Cursor(screen));
  }
  /// In brackets, so that what an event raises in turn stands inside.
  void Record(std::function<void()>& handler, const std::string& name) {
    handler = [this, name, inner = handler] {
      const bool silent = screen.form().variables.PintandoFila;
      Note(name);
      if (inner) inner();
      if (!silent) events.push_back("end " + name);
    };
  }
  Texts Take() {
    Texts taken;
    taken.swap(events);
    return taken;
  }
  Texts events;
  FormDriver screen;
};

TEST_F(EventOrderTest, OfAClickOnAnotherLine) {
  screen.form().PicDatos.SetFocus();
  Take();
  screen.ClickCell(1, kDescription);
  EXPECT_EQ(Take(), (Texts{"LeaveCell 1,0", "end LeaveCell", "RowColChange 1,1", "end RowColChange",
                           "MouseDown 1,1", "GotFocus 1,1", "end GotFocus", "Click 1,1", "end Click"}));
}

TEST_F(EventOrderTest, OfADoubleClickOnThePreviousQuantity) {
  screen.ClickCell(2, kCode);
  Take();
  screen.DoubleClickCell(2, kPreviousQuantity);
  EXPECT_EQ(Take(),
            (Texts{"LeaveCell 2,0", "end LeaveCell", "RowColChange 2,2", "end RowColChange", "MouseDown 2,2",
                   "Click 2,2", "LeaveCell 2,2", "end LeaveCell", "RowColChange 2,3", "end RowColChange",
                   "end Click", "DblClick 2,3", "TxtMSF_Change 2,3", "end TxtMSF_Change",
                   "TxtMSF_GotFocus 2,3", "end TxtMSF_GotFocus", "end DblClick"}));
}

TEST_F(EventOrderTest, OfAClickFarBelowTheLastLine) {
  screen.ClickCell(2, kCode);
  Take();
  screen.ClickCell(9, kCode);
  // The move to the first free line is nested in the event of the move by the mouse.
  EXPECT_EQ(Take(), (Texts{"LeaveCell 2,0", "end LeaveCell", "RowColChange 9,0", "LeaveCell 9,0",
                           "end LeaveCell", "RowColChange 4,0", "end RowColChange", "end RowColChange",
                           "MouseDown 4,0", "Click 4,0", "end Click"}));
}

TEST_F(EventOrderTest, OfEnterOnAQuantity) {
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("5");
  Take();
  screen.Enter();
  // First the row, with the column kept, then the column.
  EXPECT_EQ(Take(),
            (Texts{"LeaveCell 1,3", "end LeaveCell", "RowColChange 2,3", "TxtMSF_Change 2,3",
                   "end TxtMSF_Change", "end RowColChange", "LeaveCell 2,3", "end LeaveCell",
                   "RowColChange 2,0", "TxtMSF_Change 2,0", "end TxtMSF_Change", "end RowColChange"}));
}

TEST_F(EventOrderTest, EnterWritesTheQuantityBeforeTheCursorMoves) {
  screen.DoubleClickCell(1, kQuantity);
  screen.Type("5");
  std::string written;
  std::function<void()>& leave = screen.form().MSFProductos.OnLeaveCell;
  leave = [&written, this, inner = leave] {
    if (written.empty()) written = screen.Cell(1, kQuantity);
    inner();
  };
  screen.Enter();
  EXPECT_EQ(written, "5");
}

TEST_F(EventOrderTest, OfAProductOnTheFreeLine) {
  screen.DoubleClickCell(4, kCode);
  screen.Type("P");
  Take();
  screen.Type("1");
  EXPECT_EQ(Take(), (Texts{"TxtMSF_Change 4,0", "end TxtMSF_Change"}));
  screen.Enter();
  // The stock is shown once on the way over column 3.
  EXPECT_EQ(Take(), (Texts{"LeaveCell 4,0", "end LeaveCell", "RowColChange 4,3", "TxtMSF_Change 4,3",
                           "end TxtMSF_Change", "end RowColChange"}));
}

TEST_F(EventOrderTest, OfTheEditorWhenItWouldOpenOnThePreviousQuantity) {
  screen.DoubleClickCell(2, kDescription);
  Take();
  screen.form().MoverCelda("Der");
  // Placing the editor on column 2 moves on to 3, nested; the outer run then finds the cell there.
  EXPECT_EQ(Take(), (Texts{"LeaveCell 2,1", "end LeaveCell", "RowColChange 2,2", "LeaveCell 2,2",
                           "end LeaveCell", "RowColChange 2,3", "TxtMSF_Change 2,3", "end TxtMSF_Change",
                           "end RowColChange", "end RowColChange"}));
}

TEST_F(EventOrderTest, OfALoadMovesTheCursorFromLineToLine) {
  screen.ClickCell(1, kCode);
  Take();
  screen.Click("LblCancelar");
  EXPECT_EQ(Take(), (Texts{"LeaveCell 1,0", "end LeaveCell", "RowColChange 2,0", "end RowColChange",
                           "LeaveCell 2,0", "end LeaveCell", "RowColChange 3,0", "end RowColChange"}));
}

TEST_F(EventOrderTest, OfTheFirstPressWithNoStylistEndsWithTheDialog) {
  screen.form().TxtEmpleado.Text("");
  screen.form().PicDatos.SetFocus();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  Take();
  screen.DoubleClickCell(2, kCode);
  // No Click and no DblClick: the dialog swallowed the rest of the gesture. The focus came back to the grid.
  const Texts taken = Take();
  for (const std::string& event : taken) {
    EXPECT_FALSE(event.starts_with("Click")) << event;
    EXPECT_FALSE(event.starts_with("DblClick")) << event;
  }
  ASSERT_GE(taken.size(), 4U);
  EXPECT_EQ(taken[taken.size() - 1], "end GotFocus");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Berta");
}

TEST_F(EventOrderTest, AQuantityTypedBeforeAClickFarBelowReachesTheStoreOnce) {
  screen.DoubleClickCell(2, kQuantity);
  screen.Type("77");
  screen.ClickCell(10, kQuantity);
  EXPECT_EQ(Cursor(screen), "4,3");
  EXPECT_EQ(EditorText(screen), "");
  screen.Click("LblGuardar");
  EXPECT_EQ(screen.Sql("SELECT GROUP_CONCAT(StockActual, ' ') FROM HistOrvendalcial"), "1 77 3");
}

}  // namespace
}  // namespace orvendal
