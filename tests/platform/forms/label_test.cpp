#include "platform/forms/label.h"

#include <gtest/gtest.h>

#include "platform/forms/control_looks.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class LabelTest : public ::testing::Test {
 protected:
  void SetUp() override { stage.Show(); }
  double WidthOf(const std::string& text) { return stage.host.TextWidth(label.Font().Spec(), text); }
  double RoomFor(const std::string& text) { return RoomOf(stage.host, label.Font().Spec(), text).x; }
  double LineHeight() { return stage.host.LineHeight(label.Font().Spec()); }

  Stage stage;
  Label& label = stage.Add<Label>("LblTitle", {1000, 500, 2000, 400});
};

TEST_F(LabelTest, AutoSizeFitsOneLineOnEachChangeOfCaptionAndKeepsThePlace) {
  label.AutoSize(true);
  label.Caption("  Orvendal  ");
  EXPECT_DOUBLE_EQ(label.Width(), WidthOf("  Orvendal  "));
  EXPECT_DOUBLE_EQ(label.Height(), LineHeight());
  EXPECT_EQ(label.Left(), 1000);
  EXPECT_EQ(label.Top(), 500);
}

TEST_F(LabelTest, AutoSizeFitsOnAChangeOfFont) {
  label.AutoSize(true);
  label.Caption("Guardar");
  const double before = label.Width();
  label.Font().Size(label.Font().Size() * 2);
  EXPECT_GT(label.Width(), 1.8 * before);
  EXPECT_DOUBLE_EQ(label.Width(), RoomFor("Guardar"));
  EXPECT_DOUBLE_EQ(label.Height(), LineHeight());
}

TEST_F(LabelTest, ASizeWrittenToAnAutoSizeLabelStaysUntilCaptionOrFontChange) {
  label.Design("Guardar", true, false);
  EXPECT_EQ(label.Width(), 2000);
  label.Width(label.Width() + 40);
  label.Caption("Guardar");
  label.Font().Size(8.25);
  EXPECT_EQ(label.Width(), 2040);
  label.Caption("Guarda");
  EXPECT_DOUBLE_EQ(label.Width(), RoomFor("Guarda"));
}

TEST_F(LabelTest, AutoSizeLeavesRoomForTheBorder) {
  label.BorderStyle(1);
  label.AutoSize(true);
  label.Caption("Fecha");
  EXPECT_DOUBLE_EQ(label.Width(), RoomFor("Fecha") + 30);
  EXPECT_DOUBLE_EQ(label.Height(), LineHeight() + 30);
}

TEST_F(LabelTest, WithoutAutoSizeTheSizeStays) {
  label.Caption("un texto bastante largo para esta etiqueta");
  EXPECT_EQ(label.Width(), 2000);
  EXPECT_EQ(label.Height(), 400);
}

TEST_F(LabelTest, AnAmpersandMarksALetterAndTwoPrintOne) {
  label.AutoSize(true);
  label.Caption("&Corte && color");
  EXPECT_DOUBLE_EQ(label.Width(), RoomFor("Corte & color"));
  const RecordingCanvas canvas = stage.Painted();
  EXPECT_EQ(canvas.Texts(), std::vector<std::string>{"Corte & color"});
  EXPECT_NEAR(Find(canvas, "line").area.width, WidthOf("C"), 0.01);
  EXPECT_EQ(ReadCaption("fin&").text, "fin");
}

TEST_F(LabelTest, AnOpaqueLabelCoversATransparentOneDoesNot) {
  label.BackColor(0xD3E8E9);
  EXPECT_EQ(stage.Painted().FillAt({1100, 600}), RgbOf(0xD3E8E9));
  label.Opaque(false);
  EXPECT_NE(stage.Painted().FillAt({1100, 600}), RgbOf(0xD3E8E9));
}

TEST_F(LabelTest, AFlatBorderIsABlackFrame) {
  label.BorderStyle(1);
  label.Appearance(Appearance::kFlat);
  EXPECT_EQ(Find(stage.Painted(), "frame").color, (Rgb{0, 0, 0}));
}

TEST_F(LabelTest, ADisabledLabelIsGreyAndTheMouseDoesNotSeeIt) {
  int clicks = 0;
  label.Caption("Borrar");
  label.ForeColor(0x000080);
  label.OnClick = [&clicks] { ++clicks; };
  stage.Click(label);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Find(stage.Painted(), "text").color, RgbOf(0x000080));
  label.Enabled(false);
  stage.Click(label);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Find(stage.Painted(), "text").color, stage.host.Resolve(system_color::kGrayText));
}

TEST_F(LabelTest, TheSameCaptionAsksForNoPainting) {
  label.Caption("Buscar");
  stage.form->TakeDirtyRectangles();
  label.Caption("Buscar");
  EXPECT_TRUE(stage.form->TakeDirtyRectangles().empty());
  label.Caption("Borrar");
  EXPECT_FALSE(stage.form->TakeDirtyRectangles().empty());
}

}  // namespace
}  // namespace orvendal::testing
