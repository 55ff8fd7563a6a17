#include "platform/forms/barra.h"

#include <gtest/gtest.h>

#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class BarraTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    bar.StoredProperties({{"_extentx", 27093}, {"_extenty", 979}, {"caption", std::string("Orvendal")}});
    bar.OnMinimizar = [this] { log += "minimizar "; };
    bar.OnCerrar = [this] { log += "cerrar "; };
    bar.OnClick = [this] { log += "click "; };
    bar.OnDblClick = [this] { log += "dblclick "; };
  }
  Point Minimize() { return Stage::MiddleOf(bar.MinimizeButton()); }
  Point Close() { return Stage::MiddleOf(bar.CloseButton()); }
  std::size_t DarkEdges() {
    RecordingCanvas canvas;
    bar.Paint(canvas);
    std::size_t edges = 0;
    const Rgb dark = stage.host.Resolve(system_color::kButtonDarkShadow);
    // A pushed button is dark along its left edge.
    for (const Rect& place : {bar.MinimizeButton(), bar.CloseButton()}) {
      if (canvas.FillAt({place.left + 1, Stage::MiddleOf(place).y}) == dark) ++edges;
    }
    return edges;
  }

  Stage stage;
  Barra& bar = stage.Add<Barra>("Barra1", {0, 0, 15000, 555});
  TextBox& box = stage.Add<TextBox>("TxtBox", {300, 900, 1500, 450});
  std::string log;
};

TEST_F(BarraTest, ShowsItsCaptionInTheColoursOfATitleBar) {
  const RecordingCanvas canvas = stage.Painted();
  EXPECT_EQ(Find(canvas, "text").text, "Orvendal");
  EXPECT_EQ(Find(canvas, "text").color, stage.host.Resolve(system_color::kTitleBarText));
  EXPECT_EQ(canvas.FillAt({5000, 300}), stage.host.Resolve(system_color::kActiveTitleBar));
}

TEST_F(BarraTest, ItsTwoButtonsLieAtTheRightEndApartFromOneAnother) {
  EXPECT_LT(bar.MinimizeButton().Right(), bar.CloseButton().left);
  EXPECT_LT(bar.CloseButton().Right(), bar.Width());
  EXPECT_GT(bar.MinimizeButton().left, 13000);
  EXPECT_GT(bar.CloseButton().width, 300);
  bar.Height(300);
  EXPECT_LT(bar.CloseButton().Bottom(), 300);
}

TEST_F(BarraTest, AButtonRaisesItsEventWhenReleasedInside) {
  stage.Press(bar, Minimize());
  EXPECT_EQ(log, "");
  stage.Release(bar, Minimize());
  EXPECT_EQ(log, "minimizar ");
  stage.Click(bar, Close());
  EXPECT_EQ(log, "minimizar cerrar ");
}

TEST_F(BarraTest, ReleasedElsewhereItRaisesNothing) {
  stage.Press(bar, Close());
  stage.Release(bar, Minimize());
  stage.Press(bar, Minimize());
  stage.Release(bar, {5000, 5000});
  EXPECT_EQ(log, "");
  stage.Press(bar, {5000, 300});
  stage.Release(bar, Close());
  EXPECT_EQ(log, "click ");
}

TEST_F(BarraTest, TheLookFollowsThePointer) {
  EXPECT_EQ(DarkEdges(), 0U);
  stage.Press(bar, Close());
  EXPECT_EQ(DarkEdges(), 1U);
  stage.Drag(bar, {100, 100});
  EXPECT_EQ(DarkEdges(), 0U);
  stage.Drag(bar, Close());
  EXPECT_EQ(DarkEdges(), 1U);
  bar.OnCerrar = nullptr;
  stage.Release(bar, Close());
  EXPECT_EQ(DarkEdges(), 0U);
}

TEST_F(BarraTest, TwoQuickPressesAreTwoEventsAndOnlyTheBarItselfIsClicked) {
  stage.DoubleClick(bar, Minimize());
  EXPECT_EQ(log, "minimizar minimizar ");
  log.clear();
  stage.DoubleClick(bar, {5000, 300});
  EXPECT_EQ(log, "click dblclick ");
}

TEST_F(BarraTest, TheOtherMouseButtonDoesNothingAndTheFocusStays) {
  stage.form->MousePress(Stage::At(bar, Close()), mouse_button::kRight, 0, false);
  stage.form->MouseRelease(Stage::At(bar, Close()), mouse_button::kRight, 0);
  EXPECT_EQ(log, "");
  stage.Click(bar, Minimize());
  EXPECT_TRUE(box.HasFocus());
}

TEST_F(BarraTest, TheFormMayBeUnloadedInsideItsEvents) {
  bar.OnCerrar = [this] { stage.form->Unload(); };
  stage.Click(bar, Close());
  EXPECT_FALSE(stage.form->IsLoaded());
}

}  // namespace
}  // namespace orvendal::testing
