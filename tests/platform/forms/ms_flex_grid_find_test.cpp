#include <random>

#include "tests/platform/forms/ms_flex_grid_fixture.h"

namespace orvendal {
namespace {

class GridFindTest : public GridTest {
 protected:
  /// The answer of somebody who walks over the rows.
  int Walk(int column, const std::string& text, int from) {
    for (int row = from; row < Grid().Rows(); ++row) {
      if (Grid().TextMatrix(row, column) == text) return row;
    }
    return -1;
  }
};

TEST_F(GridFindTest, ARowIsFoundByItsText) {
  Grid().TextMatrix(0, 0, "Code");
  Grid().TextMatrix(3, 0, "P1");
  Grid().TextMatrix(5, 0, "P1");
  Grid().TextMatrix(4, 1, "P1");
  EXPECT_EQ(Grid().FindRow(0, "P1", 1), 3);
  EXPECT_EQ(Grid().FindRow(0, "P1", 4), 5);
  EXPECT_EQ(Grid().FindRow(0, "P1", 6), -1);
  EXPECT_EQ(Grid().FindRow(1, "P1", 1), 4);
  EXPECT_EQ(Grid().FindRow(0, "p1", 1), -1);
  EXPECT_EQ(Grid().FindRow(0, "", 1), 1);
  EXPECT_THROW(Grid().FindRow(4, "P1", 1), RuntimeError);
}

TEST_F(GridFindTest, FindingRaisesNothingAndPaintsNothing) {
  Grid().FindRow(0, "P1", 1);
  EXPECT_EQ(TakeLog(), std::vector<std::string>{});
  EXPECT_TRUE(form->TakeDirtyRectangles().empty());
}

TEST_F(GridFindTest, RowsAreFoundWhereTheyAreNowWhateverWasDone) {
  std::mt19937 random(20261116);
  const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
  const auto text = [&] {
    const int number = below(30);
    return number == 0 ? std::string() : "P" + std::to_string(number);
  };
  for (int step = 0; step < 4000; ++step) {
    switch (below(40)) {
      case 0:
        Grid().AddItem(text() + "\t" + text());
        break;
      case 1:
        Grid().AddItem(text(), 1 + below(Grid().Rows()));
        break;
      case 2:
        if (Grid().Rows() > 2) Grid().RemoveItem(1 + below(Grid().Rows() - 1));
        break;
      case 3:
        Grid().Rows(13 + below(20));
        break;
      case 4:
        Grid().Cols(2 + below(3));
        break;
      default:
        Grid().TextMatrix(below(Grid().Rows()), below(2), text());
    }
    const int column = below(10) == 0 ? 1 : 0;
    const int from = below(Grid().Rows());
    const std::string wanted = text();
    ASSERT_EQ(Grid().FindRow(column, wanted, from), Walk(column, wanted, from)) << "step " << step;
  }
}

TEST_F(GridFindTest, ALoadedDesignStartsEmpty) {
  Grid().TextMatrix(3, 0, "P1");
  EXPECT_EQ(Grid().FindRow(0, "P1", 1), 3);
  form->Unload();
  form->Show();
  EXPECT_EQ(Grid().FindRow(0, "P1", 1), -1);
  EXPECT_EQ(Grid().FindRow(0, "", 1), 1);
}

}  // namespace
}  // namespace orvendal
