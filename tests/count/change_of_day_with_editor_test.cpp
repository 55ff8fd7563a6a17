#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

const Date kToday(2026, 11, 16);

struct Crossing {
  int column = 0;           // of the editor
  int lines_there = 0;      // lines of the day that is picked
  std::int32_t answer = 0;  // to the question of the guard; 0 when nothing was changed before
  int row = 3;              // of the editor
};

std::string CrossingName(const testing::TestParamInfo<Crossing>& instance) {
  const char* columns[] = {"Code", "Description", "Before", "Quantity"};
  const std::string answer = instance.param.answer == message::kYes  ? "Yes"
                             : instance.param.answer == message::kNo ? "No"
                                                                     : "Unasked";
  return std::string(columns[instance.param.column]) + "On" + std::to_string(instance.param.lines_there) +
         "Lines" + answer + "FromLine" + std::to_string(instance.param.row);
}

/// Today has five lines, the editor is open on one of them, and another day is picked.
class ChangeOfDayWithEditorTest : public testing::TestWithParam<Crossing> {
 protected:
  ChangeOfDayWithEditorTest() {
    screen.AddCounts(5);
    for (int line = 0; line < GetParam().lines_there; ++line)
      screen.AddCount("P" + std::to_string(40 - line), 0, 500 + line, "E3", "2026-11-20");
    screen.Open();
    EnterSupervisorMode(screen);
  }
  MSFlexGrid& grid() { return screen.form().MSFProductos; }
  void OpenEditor(const std::string& typed) {
    screen.DoubleClickCell(GetParam().row, GetParam().column);
    screen.Type(typed);
    Forget(screen);
  }
  void Cross() {
    if (GetParam().answer != 0) {
      screen.EnterLine("P1", "5");
      screen.Key(key::kEscape);
    }
    OpenEditor("77");
    if (GetParam().answer != 0) screen.library.QueueAnswer(GetParam().answer);
    PickDay(screen, Date(2026, 11, 20));
  }
  FormDriver screen;
};

TEST_P(ChangeOfDayWithEditorTest, TheTwoGridsAgreeAndTheNewDayIsUntouched) {
  Cross();
  EXPECT_EQ(TakeMessages(screen).size(), GetParam().answer != 0 ? 1U : 0U);
  EXPECT_TRUE(TakeErrors(screen).empty());
  ASSERT_EQ(screen.Codes().size(), static_cast<std::size_t>(GetParam().lines_there));
  for (int row = 1; row <= GetParam().lines_there; ++row) {
    EXPECT_EQ(screen.Line(row), SnapshotLine(screen, row)) << row;
    EXPECT_EQ(screen.Cell(row, kQuantity), std::to_string(499 + row)) << row;
  }
  for (int row = GetParam().lines_there + 1; row < grid().Rows(); ++row)
    EXPECT_EQ(screen.Line(row), Texts(9, "")) << row;
  EXPECT_FALSE(screen.form().HayCambios());
}

TEST_P(ChangeOfDayWithEditorTest, AnEditorThatStayedOpenIsPlacedAnewWithItsTextSelected) {
  Cross();
  if (GetParam().answer == message::kYes) {
    EXPECT_FALSE(EditorIsOpen(screen));  // the save closed it
    return;
  }
  ASSERT_TRUE(EditorIsOpen(screen));
  const int row = std::max(1, GetParam().lines_there);
  EXPECT_EQ(Cursor(screen), std::to_string(row) + "," + std::to_string(GetParam().column));
  EXPECT_EQ(EditorText(screen), screen.Cell(row, GetParam().column));
  EXPECT_TRUE(EditorTextIsSelected(screen));
  const Rect cell = grid().CellRectangle(row, GetParam().column);
  EXPECT_EQ(cell.height, 500);
  EXPECT_EQ(screen.form().TxtMSF.Top(), 2400 + cell.top - 10);
}

TEST_P(ChangeOfDayWithEditorTest, GoingOnToAnotherCellWritesNothingOfTheOldDay) {
  Cross();
  screen.Key(key::kEscape);  // out of the calendar
  for (const int column : {kCode, kQuantity, kDescription, kCode}) {
    if (Cursor(screen) != "1," + std::to_string(column)) screen.ClickCell(1, column);
  }
  EXPECT_EQ(Cursor(screen), "1,0");
  EXPECT_FALSE(screen.form().HayCambios());
}

TEST_P(ChangeOfDayWithEditorTest, TheOldDayKeepsWhatTheAnswerSays) {
  Cross();
  const bool quantity_saved =
      GetParam().answer == message::kYes && GetParam().column == kQuantity && GetParam().row == 3;
  EXPECT_EQ(screen.Sql("SELECT StockActual FROM HistOrvendalcial WHERE IdProducto = 'P12' AND Fecha LIKE "
                       "'2026-11-16%'"),
            quantity_saved ? "77" : "3");
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial WHERE Fecha LIKE '2026-11-20%'"),
            std::to_string(GetParam().lines_there));
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial WHERE IdProducto = 'P1'"),
            GetParam().answer == message::kYes ? "1" : "0");
}

INSTANTIATE_TEST_SUITE_P(
    Columns, ChangeOfDayWithEditorTest,
    testing::Values(Crossing{kCode, 0, 0}, Crossing{kCode, 2, 0}, Crossing{kCode, 5, 0},
                    Crossing{kCode, 20, 0}, Crossing{kDescription, 0, 0}, Crossing{kDescription, 2, 0},
                    Crossing{kDescription, 5, 0}, Crossing{kDescription, 20, 0}, Crossing{kQuantity, 0, 0},
                    Crossing{kQuantity, 2, 0}, Crossing{kQuantity, 3, 0}, Crossing{kQuantity, 5, 0},
                    Crossing{kQuantity, 20, 0}, Crossing{kCode, 2, message::kYes},
                    Crossing{kDescription, 3, message::kYes}, Crossing{kQuantity, 3, message::kYes},
                    Crossing{kCode, 3, message::kNo}, Crossing{kDescription, 20, message::kNo},
                    Crossing{kQuantity, 3, message::kNo}, Crossing{kQuantity, 0, message::kNo},
                    // The cursor is on the first line already, so that no event of its own places the editor.
                    Crossing{kCode, 0, 0, 1}, Crossing{kDescription, 1, 0, 1}, Crossing{kQuantity, 0, 0, 1},
                    Crossing{kQuantity, 1, 0, 1}, Crossing{kQuantity, 5, message::kNo, 1}),
    CrossingName);

/// The answer Cancel leaves the editor as it is.
class CancelledChangeOfDayTest : public testing::TestWithParam<int> {
 protected:
  FormDriver screen;
};

TEST_P(CancelledChangeOfDayTest, LeavesTheEditorWithWhatWasTyped) {
  screen.AddCounts(5);
  screen.Open();
  EnterSupervisorMode(screen);
  screen.EnterLine("P1", "5");
  screen.Key(key::kEscape);
  screen.DoubleClickCell(3, GetParam());
  screen.Type("77");
  const std::string cursor = Cursor(screen);
  screen.library.QueueAnswer(message::kCancel);
  PickDay(screen, Date(2026, 11, 20));
  EXPECT_TRUE(EditorIsOpen(screen));
  EXPECT_EQ(EditorText(screen), "77");
  EXPECT_EQ(Cursor(screen), cursor);
  EXPECT_EQ(screen.Cell(3, kQuantity), "3");
  EXPECT_EQ(screen.form().Calendario.Value(), kToday);
  screen.Key(key::kEscape);
  EXPECT_EQ(screen.Focused(), "TxtMSF");
}

INSTANTIATE_TEST_SUITE_P(Columns, CancelledChangeOfDayTest, testing::Values(kCode, kDescription, kQuantity));

}  // namespace
}  // namespace orvendal
