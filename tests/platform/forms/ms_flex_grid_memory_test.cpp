#include <malloc.h>

#include "tests/platform/forms/ms_flex_grid_fixture.h"

namespace orvendal {
namespace {

class GridMemoryTest : public GridTest {
 protected:
  static double BytesInUse() {
    const auto used = mallinfo2();
    return static_cast<double>(used.uordblks + used.hblkhd);
  }
};

// A day of 100,000 lines, as the two grids of the screen hold it: 400 bytes a line is what both may take.
TEST_F(GridMemoryTest, ALineOfADayTakesLittleMoreThanItsTexts) {
  constexpr int kLines = 20000;
  MSFlexGrid& grid = Grid();
  grid.OnLeaveCell = grid.OnEnterCell = grid.OnRowColChange = nullptr;  // their log would be counted
  grid.Cols(9);
  grid.Rows(1);
  const double before = BytesInUse();
  for (int line = 1; line <= kLines; ++line) {
    const std::string number = std::to_string(100000 + line);
    const char* const texts[] = {number.c_str(),
                                 "Champú reparador de 250 ml",
                                 "12",
                                 "13",
                                 "E14",
                                 "Estilista número 14",
                                 "date",
                                 number.c_str(),
                                 "13"};
    grid.AddItem("");
    for (int column = 0; column < 9; ++column) grid.TextMatrix(line, column, texts[column]);
    grid.Row(line);
    for (int column = 0; column < 9; ++column) {
      grid.Col(column);
      grid.CellBackColor(0xD3E8E9);
      grid.CellForeColor(1);
    }
  }
  EXPECT_LE((BytesInUse() - before) / kLines, 200);
}

}  // namespace
}  // namespace orvendal
