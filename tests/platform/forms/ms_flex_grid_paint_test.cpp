#include <algorithm>

#include "tests/platform/forms/ms_flex_grid_fixture.h"

namespace orvendal {
namespace {

/// Counts what is asked of it, seen or not, and keeps how texts were aligned.
class CountingCanvas final : public Canvas {
 public:
  int operations = 0;
  std::vector<std::pair<HorizontalAlign, VerticalAlign>> alignments;

  void FillRectangle(const Rect&, Rgb) override { ++operations; }
  void FrameRectangle(const Rect&, Rgb, double) override { ++operations; }
  void FocusRectangle(const Rect&) override { ++operations; }
  void RoundedRectangle(const Rect&, double, std::optional<Rgb>, Rgb, double) override { ++operations; }
  void DrawLine(Point, Point, Rgb, double) override { ++operations; }
  void FillPolygon(const std::vector<Point>&, Rgb) override { ++operations; }
  void DrawText(const Rect&, std::string_view, const FontSpec&, Rgb, HorizontalAlign horizontal,
                VerticalAlign vertical) override {
    ++operations;
    alignments.emplace_back(horizontal, vertical);
  }
  void DrawBitmap(Point, const Bitmap&, const Rect&) override { ++operations; }
  void Push(Point, const Rect&) override {}
  void Pop() override {}
};

class GridPaintTest : public GridTest {
 protected:
  const RecordingCanvas& Paint() {
    canvas_.Forget();
    form->Paint(canvas_, {0, 0, form->Width(), form->Height()});
    return canvas_;
  }
  int WorkOfPainting() {
    CountingCanvas canvas;
    Grid().Paint(canvas);
    return canvas.operations;
  }
  std::vector<std::string> Texts() { return Paint().Texts(); }
  /// The colour behind the text of a cell.
  Rgb BackOf(int row, int column) { return Paint().FillAt(MiddleOf(row, column)); }
  Rgb TextColorOf(const std::string& text) {
    for (const auto& operation : Paint().Operations()) {
      if (operation.text == text) return operation.color;
    }
    ADD_FAILURE() << text << " is not painted";
    return {};
  }
  Rect OnFormRect(const Rect& local) { return local.Moved(GridForm::kLeft, GridForm::kTop); }

 private:
  RecordingCanvas canvas_;
};

TEST_F(GridPaintTest, OnlyRowsThatShowArePainted) {
  Grid().TextMatrix(0, 0, "title");
  for (int row = 1; row < Grid().Rows(); ++row) Grid().TextMatrix(row, 1, std::to_string(row));
  EXPECT_EQ(Texts(), (Log{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "title"}));
  Grid().TopRow(15);
  EXPECT_EQ(Texts(), (Log{"15", "16", "17", "18", "19", "20", "21", "22", "23", "24", "title"}));
}

TEST_F(GridPaintTest, PaintingTenThousandRowsIsNoMoreWorkThanThirty) {
  const int few = WorkOfPainting();
  Grid().Rows(10001);
  EXPECT_EQ(WorkOfPainting(), few);
}

TEST_F(GridPaintTest, HiddenColumnsAreNotPainted) {
  Grid().TextMatrix(1, 2, "hidden");
  EXPECT_EQ(Texts(), Log{});
  const int work = WorkOfPainting();
  Grid().Cols(5);
  Grid().ColWidth(3, 0);
  Grid().ColWidth(4, 1500);
  EXPECT_EQ(WorkOfPainting(), work) << "one column more is hidden, one less is seen";
}

TEST_F(GridPaintTest, ColumnsBeyondTheEdgeAreNotPainted) {
  Grid().ColWidth(1, 6000);
  const int work = WorkOfPainting();
  Grid().Cols(20);
  EXPECT_EQ(WorkOfPainting(), work);
}

TEST_F(GridPaintTest, ATextIsCutToItsCell) {
  Grid().TextMatrix(1, 0, "long");
  const Rect cell = OnFormRect(Grid().CellRectangle(1, 0));
  for (const auto& operation : Paint().Operations()) {
    if (operation.kind == "text") {
      EXPECT_EQ(operation.area.Intersection(cell), operation.area);
    }
  }
}

TEST_F(GridPaintTest, TheRowThatIsCutStaysInsideTheGrid) {
  Grid().Height(GridForm::kHeight + 45);
  Grid().TextMatrix(11, 0, "cut");
  const double bottom = GridForm::kTop + Grid().Height() - 30;
  bool found = false;
  for (const auto& operation : Paint().Operations()) {
    if (operation.text != "cut") continue;
    found = true;
    EXPECT_LE(operation.area.Bottom(), bottom);
  }
  EXPECT_TRUE(found);
}

TEST_F(GridPaintTest, WritingACellRepaintsThatCellAlone) {
  Grid().TextMatrix(4, 1, "new");
  EXPECT_EQ(form->TakeDirtyRectangles(), (std::vector<Rect>{OnFormRect(Grid().CellRectangle(4, 1))}));
  Grid().TextMatrix(4, 1, "new");
  EXPECT_TRUE(form->TakeDirtyRectangles().empty()) << "nothing changed";
  Grid().TextMatrix(20, 1, "out of view");
  Grid().TextMatrix(4, 2, "hidden");
  EXPECT_TRUE(form->TakeDirtyRectangles().empty());
}

TEST_F(GridPaintTest, ColouringACellRepaintsThatCellAlone) {
  const std::vector<Rect> current{OnFormRect(Grid().CellRectangle(1, 0))};
  Grid().CellBackColor(0x102030);
  EXPECT_EQ(form->TakeDirtyRectangles(), current);
  Grid().CellForeColor(0x102030);
  EXPECT_EQ(form->TakeDirtyRectangles(), current);
}

TEST_F(GridPaintTest, MovingTheCursorRepaintsTheTwoCells) {
  Grid().Row(5);
  EXPECT_EQ(form->TakeDirtyRectangles(), (std::vector<Rect>{OnFormRect(Grid().CellRectangle(1, 0)),
                                                            OnFormRect(Grid().CellRectangle(5, 0))}));
}

TEST_F(GridPaintTest, AddingARowOutOfViewRepaintsTheBarAlone) {
  Grid().AddItem("far");
  const std::vector<Rect> dirty = form->TakeDirtyRectangles();
  ASSERT_EQ(dirty.size(), 1U);
  EXPECT_EQ(dirty[0].width, 240);
}

TEST_F(GridPaintTest, AddingARowInViewRepaintsThatRowAlone) {
  Grid().Rows(5);
  form->TakeDirtyRectangles();
  Grid().AddItem("100\tLaca");
  Rect dirty;
  for (const Rect& area : form->TakeDirtyRectangles()) dirty = dirty.Union(area);
  EXPECT_EQ(dirty, OnFormRect(Grid().CellRectangle(5, 0).Union(Grid().CellRectangle(5, 3))));
}

TEST_F(GridPaintTest, ABarThatAppearsRepaintsTheGrid) {
  Grid().Rows(11);
  form->TakeDirtyRectangles();
  Grid().AddItem("");
  EXPECT_EQ(form->TakeDirtyRectangles(), (std::vector<Rect>{Grid().Bounds()}));
}

TEST_F(GridPaintTest, ACellThatChangesAfterTheWholeGridWasPaintedIsPaintedAgain) {
  Grid().BackColorFixed(0x102030);
  Grid().TextMatrix(4, 1, "one");
  EXPECT_EQ(form->TakeDirtyRectangles(), (std::vector<Rect>{Grid().Bounds()}));
  Grid().TextMatrix(4, 1, "two");
  EXPECT_EQ(form->TakeDirtyRectangles(), (std::vector<Rect>{OnFormRect(Grid().CellRectangle(4, 1))}));
}

TEST_F(GridPaintTest, ACellThatChangesAfterTheGridWasHiddenIsPainted) {
  Grid().Visible(false);
  form->TakeDirtyRectangles();
  Grid().BackColorFixed(0x102030);  // asks for nothing
  Grid().Visible(true);
  form->TakeDirtyRectangles();
  Grid().TextMatrix(4, 1, "two");
  EXPECT_EQ(form->TakeDirtyRectangles(), (std::vector<Rect>{OnFormRect(Grid().CellRectangle(4, 1))}));
}

TEST_F(GridPaintTest, LoadingOutOfViewAsksForNoPainting) {
  Grid().Row(20);
  form->TakeDirtyRectangles();
  for (int row = 21; row < Grid().Rows(); ++row) {
    Grid().Row(row);
    Grid().CellBackColor(5);
    Grid().TextMatrix(row, 1, "line");
  }
  EXPECT_TRUE(form->TakeDirtyRectangles().empty());
}

TEST_F(GridPaintTest, CellsTakeTheColoursOfTheGridUntilTheyHaveTheirOwn) {
  Grid().BackColor(0x010203);
  Grid().ForeColor(0x040506);
  Grid().TextMatrix(3, 1, "text");
  EXPECT_EQ(BackOf(3, 1), RgbOf(0x010203));
  EXPECT_EQ(TextColorOf("text"), RgbOf(0x040506));
  Grid().Row(3);
  Grid().Col(1);
  Grid().CellBackColor(0xE1C0B3);
  Grid().CellForeColor(0xFFFFFF);
  EXPECT_EQ(BackOf(3, 1), RgbOf(0xE1C0B3));
  EXPECT_EQ(TextColorOf("text"), RgbOf(0xFFFFFF));
  Grid().CellBackColor(0);
  Grid().CellForeColor(0);
  EXPECT_EQ(BackOf(3, 1), RgbOf(0x010203)) << "0 is the grid's colour, not black";
  EXPECT_EQ(TextColorOf("text"), RgbOf(0x040506));
  Grid().CellForeColor(1);
  EXPECT_EQ(TextColorOf("text"), RgbOf(1));
}

TEST_F(GridPaintTest, TitlesAndTheEmptyAreaHaveColoursOfTheirOwn) {
  Grid().BackColorFixed(0xA5CACB);
  Grid().ForeColorFixed(0x112233);
  Grid().BackColorBkg(0x334455);
  Grid().TextMatrix(0, 1, "title");
  Grid().Rows(4);
  EXPECT_EQ(BackOf(0, 1), RgbOf(0xA5CACB));
  EXPECT_EQ(TextColorOf("title"), RgbOf(0x112233));
  EXPECT_EQ(Paint().FillAt(OnForm(600, 2500)), RgbOf(0x334455));
}

TEST_F(GridPaintTest, TheSelectedRangeShowsExceptTheCurrentCell) {
  Grid().BackColorSel(0xFFC0C0);
  Grid().BackColor(0xD3E8E9);
  Press(MiddleOf(2, 0));
  Drag(MiddleOf(4, 1));
  EXPECT_EQ(BackOf(2, 0), RgbOf(0xD3E8E9));
  EXPECT_EQ(BackOf(2, 1), RgbOf(0xFFC0C0));
  EXPECT_EQ(BackOf(4, 0), RgbOf(0xFFC0C0));
  EXPECT_EQ(BackOf(5, 0), RgbOf(0xD3E8E9));
  EXPECT_EQ(BackOf(4, 3), RgbOf(0xD3E8E9));
}

TEST_F(GridPaintTest, WithoutHighLightTheSelectedRangeDoesNotShow) {
  Grid().BackColorSel(0xFFC0C0);
  Grid().BackColor(0xD3E8E9);
  Grid().HighLight(false);
  Press(MiddleOf(2, 0));
  Drag(MiddleOf(4, 1));
  EXPECT_EQ(Grid().RowSel(), 4);
  EXPECT_EQ(BackOf(2, 1), RgbOf(0xD3E8E9));
  EXPECT_EQ(BackOf(4, 0), RgbOf(0xD3E8E9));
}

TEST_F(GridPaintTest, WithoutBigSelectionAPressOnATitleDoesNothing) {
  Grid().AllowBigSelection(false);
  Click(MiddleOf(5, 1));
  TakeLog();
  Click(MiddleOf(0, 1));
  EXPECT_EQ(Cursor(), "5,1");
  EXPECT_EQ(Grid().RowSel(), 5);
  EXPECT_TRUE(TakeLog().empty());
}

TEST_F(GridPaintTest, AFocusFrameMarksTheCurrentCellOfTheFocusedGrid) {
  const auto frames = [this] {
    std::vector<Rect> found;
    for (const auto& operation : Paint().Operations()) {
      if (operation.kind == "focus") found.push_back(operation.area);
    }
    return found;
  };
  form->other.Visible(false);
  form->grid.SetFocus();
  Grid().Row(3);
  ASSERT_EQ(frames().size(), 1U);
  EXPECT_TRUE(OnFormRect(Grid().CellRectangle(3, 0)).Contains({frames()[0].left, frames()[0].top}));
  Grid().Row(25);
  EXPECT_TRUE(frames().empty()) << "out of view";
  Grid().Row(3);
  form->other.Visible(true);
  form->other.SetFocus();
  for (const Rect& frame : frames()) EXPECT_GE(frame.left, form->other.Left());
}

TEST_F(GridPaintTest, TakingTheFocusRepaintsTheCurrentCellAlone) {
  Grid().SetFocus();
  const std::vector<Rect> dirty = form->TakeDirtyRectangles();
  EXPECT_NE(std::find(dirty.begin(), dirty.end(), OnFormRect(Grid().CellRectangle(1, 0))), dirty.end());
  for (const Rect& area : dirty) EXPECT_LE(area.height, 300);
}

TEST_F(GridPaintTest, LinesDivideTheCells) {
  const Rect cell = OnFormRect(Grid().CellRectangle(2, 1));
  const Rgb grey{0xC0, 0xC0, 0xC0};
  EXPECT_EQ(Paint().FillAt({cell.left + 100, cell.Bottom() - 7}), grey);
  EXPECT_EQ(Paint().FillAt({cell.Right() - 7, cell.top + 100}), grey);
  EXPECT_NE(Paint().FillAt({cell.left + 100, cell.top + 100}), grey);
}

TEST_F(GridPaintTest, TextsAreAlignedAsTheirColumnSays) {
  const auto alignment_of = [this](int row, const std::string& text) {
    Grid().TextMatrix(row, 0, text);
    CountingCanvas canvas;
    Grid().Paint(canvas);
    Grid().TextMatrix(row, 0, "");
    return canvas.alignments.at(0);
  };
  using Pair = std::pair<HorizontalAlign, VerticalAlign>;
  EXPECT_EQ(alignment_of(1, "Laca"), (Pair{HorizontalAlign::kLeft, VerticalAlign::kCenter}));
  EXPECT_EQ(alignment_of(1, "12,5"), (Pair{HorizontalAlign::kRight, VerticalAlign::kCenter}));
  Grid().ColAlignment(0, 1);
  EXPECT_EQ(alignment_of(1, "12,5"), (Pair{HorizontalAlign::kLeft, VerticalAlign::kCenter}));
  Grid().ColAlignment(0, 7);
  EXPECT_EQ(alignment_of(1, "Laca"), (Pair{HorizontalAlign::kRight, VerticalAlign::kCenter}));
  Grid().FixedAlignment(0, 4);
  EXPECT_EQ(alignment_of(0, "Codigo"), (Pair{HorizontalAlign::kCenter, VerticalAlign::kCenter}));
}

}  // namespace
}  // namespace orvendal
