#include "platform/forms/cell_colors.h"

#include <gtest/gtest.h>

#include <random>

namespace orvendal {
namespace {

using Colors = CellColors::Colors;

TEST(CellColorsTest, ARowKeepsItsColoursWhenOthersThatLookedLikeItAreColouredAnew) {
  CellColors colors;
  for (int row = 1; row <= 3; ++row) {
    for (int column = 0; column < 9; ++column) {
      colors.Back(row, column, 0xC0FFEE);
      colors.Fore(row, column, 1);
    }
  }
  colors.Back(2, 4, 0xFF);
  EXPECT_EQ(colors.At(1, 4), (Colors{0xC0FFEE, 1}));
  EXPECT_EQ(colors.At(2, 4), (Colors{0xFF, 1}));
  EXPECT_EQ(colors.At(3, 4), (Colors{0xC0FFEE, 1}));
  EXPECT_EQ(colors.At(0, 0), Colors{});
  EXPECT_EQ(colors.At(3, 9), Colors{});
  EXPECT_EQ(colors.At(100, 0), Colors{});
}

TEST(CellColorsTest, AColourTakenBackLeavesTheGridsOwn) {
  CellColors colors;
  colors.Back(5, 2, 0xFF);
  colors.Back(1, 0, 0xFF);
  colors.Back(5, 2, 0);
  colors.Fore(2, 0, 0xFF);
  EXPECT_EQ(colors.At(5, 2), Colors{});
  EXPECT_EQ(colors.At(1, 0), (Colors{0xFF, 0}));
}

// Against a plain table, with all that a grid does to its rows.
TEST(CellColorsTest, RowsMoveWithTheirColoursHoweverTheyAreAddedColouredAndRemoved) {
  constexpr std::size_t kColumns = 5;
  using Line = std::vector<Colors>;
  std::mt19937 random(11);
  const auto below = [&random](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  CellColors colors;
  std::vector<Line> model(1, Line(kColumns));
  for (int step = 0; step < 20000; ++step) {
    const int rows = static_cast<int>(model.size());
    const int row = below(rows);
    const std::ptrdiff_t at = row;
    switch (below(14)) {
      case 0:
        colors.Insert(row);
        model.insert(model.begin() + at, Line(kColumns));
        break;
      case 1:
        if (rows > 20 || (rows > 1 && below(3) == 0)) {
          colors.Remove(row);
          model.erase(model.begin() + at);
        }
        break;
      case 2:
        if (below(40) == 0) {
          colors.CutRows(row + 1);
          model.resize(static_cast<std::size_t>(row + 1));
          model.resize(model.size() + static_cast<std::size_t>(below(20)), Line(kColumns));
        }
        break;
      case 3:
        if (below(60) == 0) {
          const int columns = below(kColumns);
          colors.CutColumns(columns);
          for (Line& line : model) {
            line.resize(static_cast<std::size_t>(columns));
            line.resize(kColumns);
          }
        }
        break;
      case 4:
        for (std::size_t column = 0; column < kColumns; ++column) {
          colors.Back(row, static_cast<int>(column), 0xABC);
          colors.Fore(row, static_cast<int>(column), 0xDEF);
          model[static_cast<std::size_t>(row)][column] = {0xABC, 0xDEF};
        }
        break;
      default: {
        const int column = below(kColumns);
        Colors& cell = model[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
        const auto color = static_cast<ColorWord>(below(3));
        if (below(2) == 0) {
          colors.Back(row, column, color);
          cell.back = color;
        } else {
          colors.Fore(row, column, color);
          cell.fore = color;
        }
      }
    }
    if (step % 50 != 0) continue;
    for (std::size_t y = 0; y < model.size(); ++y) {
      for (std::size_t x = 0; x < kColumns; ++x) {
        ASSERT_EQ(colors.At(static_cast<int>(y), static_cast<int>(x)), model[y][x]) << step;
      }
    }
  }
}

}  // namespace
}  // namespace orvendal
