#include "platform/forms/text_index.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace orvendal {
namespace {

/// A column of texts beside its index, and the answers of somebody who walks over it.
class TextIndexTest : public ::testing::Test {
 protected:
  void Append(const std::string& text) {
    column.push_back(text);
    index.Append(text);
  }
  void Change(int row, const std::string& text) {
    column[static_cast<std::size_t>(row)] = text;
    index.Change(row, text);
  }
  int Find(const std::string& text, int from = 0) {
    return index.Find(text, from, [this](int row) {
      ++looks;
      return std::string_view(column[static_cast<std::size_t>(row)]);
    });
  }
  int Walk(const std::string& text, int from) const {
    for (std::size_t row = static_cast<std::size_t>(from); row < column.size(); ++row) {
      if (column[row] == text) return static_cast<int>(row);
    }
    return -1;
  }

  std::vector<std::string> column;
  TextIndex index{0};
  int looks = 0;  // at texts
};

TEST_F(TextIndexTest, NothingIsFoundWhereNothingIs) {
  EXPECT_EQ(Find("P1"), -1);
  EXPECT_EQ(Find(""), -1);
}

TEST_F(TextIndexTest, TheFirstOfEqualTextsIsFound) {
  for (const char* text : {"P1", "P2", "P1", "", "P1", ""}) Append(text);
  EXPECT_EQ(Find("P1"), 0);
  EXPECT_EQ(Find("P1", 1), 2);
  EXPECT_EQ(Find("P1", 5), -1);
  EXPECT_EQ(Find(""), 3);
  EXPECT_EQ(Find("", 4), 5);
  EXPECT_EQ(Find("p2"), -1) << "texts are compared to the letter";
}

TEST_F(TextIndexTest, ATextThatWasWrittenOverIsNotFoundAnyMore) {
  for (const char* text : {"P1", "P2", ""}) Append(text);
  Change(0, "P3");
  EXPECT_EQ(Find("P1"), -1);
  EXPECT_EQ(Find("P3"), 0);
  EXPECT_EQ(Find(""), 2);
  Change(1, "");
  EXPECT_EQ(Find(""), 1);
  Change(1, "P1");
  EXPECT_EQ(Find(""), 2);
  EXPECT_EQ(Find("P1"), 1);
}

// A title, the lines one after the other, and a free one after them.
TEST_F(TextIndexTest, ACountThatIsTypedInLooksAtFewLinesForEach) {
  constexpr int kLines = 2000;
  Append("Code");
  Append("");
  for (int line = 1; line <= kLines; ++line) {
    const std::string code = "P" + std::to_string(line);
    EXPECT_EQ(Find(code, 1), -1);
    EXPECT_EQ(Find("", 1), line);
    Change(line, code);
    Append("");
  }
  EXPECT_LT(looks, 4 * kLines);
}

TEST_F(TextIndexTest, ItFindsWhatAWalkFindsAfterAnyWriting) {
  std::mt19937 random(20261116);
  const auto text = [&random] {
    const auto number = random() % 40;
    return number == 0 ? std::string() : "P" + std::to_string(number);
  };
  for (int step = 0; step < 5000; ++step) {
    if (column.empty() || random() % 8 == 0) {
      Append(text());
    } else {
      Change(static_cast<int>(random() % column.size()), text());
    }
    const std::string wanted = text();
    const int from = static_cast<int>(random() % (column.size() + 1));
    ASSERT_EQ(Find(wanted, from), Walk(wanted, from))
        << "step " << step << ", \"" << wanted << "\" from " << from;
    ASSERT_EQ(Find(wanted), Walk(wanted, 0)) << "step " << step;
  }
}

}  // namespace
}  // namespace orvendal
