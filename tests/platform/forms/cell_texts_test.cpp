#include "platform/forms/cell_texts.h"

#include <gtest/gtest.h>

#include <random>

namespace orvendal {
namespace {

using Model = std::vector<std::vector<std::string>>;

void ExpectSame(const CellTexts& texts, const Model& model, int columns) {
  ASSERT_EQ(texts.Rows(), static_cast<int>(model.size()));
  for (int row = 0; row < texts.Rows(); ++row) {
    for (int column = 0; column < columns; ++column) {
      ASSERT_EQ(texts.Text(row, column),
                model[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)])
          << row << "," << column;
    }
  }
}

TEST(CellTextsTest, WhatWasWrittenStaysInItsCellWhicheverRowIsWrittenNext) {
  CellTexts texts;
  texts.Rows(3);
  texts.Text(0, 2, "c");
  texts.Text(2, 0, "a");
  texts.Text(0, 0, "x");
  texts.Text(1, 8, "last");
  EXPECT_EQ(texts.Text(0, 0), "x");
  EXPECT_EQ(texts.Text(0, 1), "");
  EXPECT_EQ(texts.Text(0, 2), "c");
  EXPECT_EQ(texts.Text(1, 8), "last");
  EXPECT_EQ(texts.Text(2, 0), "a");
  EXPECT_EQ(texts.Text(2, 8), "");
}

TEST(CellTextsTest, ATextOfAnyLengthAndAnyBytesIsKept) {
  CellTexts texts;
  texts.Rows(2);
  const std::string nul("a\0b\xFF", 4);
  for (const std::size_t length : {1UL, 254UL, 255UL, 256UL, 65535UL, 65536UL, 1048576UL}) {
    const std::string text(length, 'x');
    texts.Text(0, 1, nul);
    texts.Text(0, 3, text);
    texts.Text(0, 4, "end");
    texts.Text(1, 0, "closes row 0");
    ASSERT_EQ(texts.Text(0, 1), nul) << length;
    ASSERT_EQ(texts.Text(0, 3), text);
    ASSERT_EQ(texts.Text(0, 4), "end") << length;
    ASSERT_EQ(texts.Text(0, 5), "");
  }
}

TEST(CellTextsTest, ARowOfThreeHundredColumnsIsKept) {
  CellTexts texts;
  texts.Rows(2);
  for (int column = 0; column < 300; ++column) texts.Text(0, column, std::to_string(column));
  texts.Text(1, 0, "closes row 0");
  for (int column = 0; column < 300; ++column) ASSERT_EQ(texts.Text(0, column), std::to_string(column));
}

TEST(CellTextsTest, AnAddedRowTakesItsTextsBetweenTabsAndNoMoreThanItsColumns) {
  CellTexts texts;
  texts.Insert(0, "a\t\tc\td\te", 4);
  texts.Insert(0, "", 4);
  texts.Insert(2, "\t\tz", 4);
  const Model expected = {{"", "", "", "", ""}, {"a", "", "c", "d", ""}, {"", "", "z", "", ""}};
  ExpectSame(texts, expected, 5);
}

// Against a plain table, with all that a grid does to its rows.
TEST(CellTextsTest, RowsMoveWithTheirTextsHoweverTheyAreAddedWrittenAndRemoved) {
  constexpr int kColumns = 9;
  std::mt19937 random(7);
  const auto below = [&random](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  CellTexts texts;
  Model model;
  int columns = kColumns;
  for (int step = 0; step < 20000; ++step) {
    const int rows = texts.Rows();
    switch (below(12)) {
      case 0: {
        const int at = below(rows + 1);
        texts.Insert(at, "p\tq", columns);
        std::vector<std::string> line(kColumns);
        line[0] = "p";
        if (columns > 1) line[1] = "q";
        model.insert(model.begin() + at, line);
        break;
      }
      case 1:
        if (rows > 30 || (rows > 0 && below(3) == 0)) {
          const int at = below(rows);
          texts.Remove(at);
          model.erase(model.begin() + at);
        }
        break;
      case 2:
        if (below(40) == 0) {
          const int count = below(40);
          texts.Rows(count);
          model.resize(static_cast<std::size_t>(count), std::vector<std::string>(kColumns));
        }
        break;
      case 3:
        if (below(100) == 0) {
          columns = 1 + below(kColumns);
          texts.Cut(columns);
          for (auto& line : model) {
            for (int column = columns; column < kColumns; ++column)
              line[static_cast<std::size_t>(column)] = "";
          }
          columns = kColumns;
        }
        break;
      default:
        if (rows > 0) {
          const int row = below(rows);
          const int column = below(columns);
          const std::string text(static_cast<std::size_t>(below(20) == 0 ? 300 : below(12)), 'a');
          texts.Text(row, column, text);
          model[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = text;
        }
    }
    if (step % 50 == 0) {
      ASSERT_NO_FATAL_FAILURE(ExpectSame(texts, model, kColumns)) << step;
    }
  }
}

}  // namespace
}  // namespace orvendal
