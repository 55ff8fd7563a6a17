#include "platform/forms/boton.h"

#include <gtest/gtest.h>

#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class BotonTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    button.OnClick = [this] { ++clicks; };
  }
  Rgb Face() {
    RecordingCanvas canvas;
    button.Paint(canvas);
    return Find(canvas, "rounded").color;
  }

  Stage stage;
  Boton& button = stage.Add<Boton>("BtnAnulo", {300, 300, 2775, 495});
  int clicks = 0;
};

TEST_F(BotonTest, TakesCaptionFontAndBorderFromItsStoredProperties) {
  button.StoredProperties({{"_extentx", 4895},
                           {"_extenty", 873},
                           {"tamañoborde", std::string("3")},
                           {"caption", std::string("Anulo Supervisor")},
                           {"font", FontSpec{"Bookman Old Style", 12, 600, false}}});
  EXPECT_EQ(button.Caption(), "Anulo Supervisor");
  EXPECT_EQ(button.Font().Name(), "Bookman Old Style");
  EXPECT_EQ(button.Font().Size(), 12);
  EXPECT_EQ(button.Font().Weight(), 600);
  EXPECT_EQ(button.StoredProperties().size(), 5U);
  EXPECT_EQ(*FindStored<std::int32_t>(button.StoredProperties(), "_extentx"), 4895);
  const RecordingCanvas canvas = stage.Painted();
  EXPECT_EQ(Find(canvas, "text").text, "Anulo Supervisor");
  EXPECT_EQ(Find(canvas, "rounded").area, (Rect{300 + 22.5, 300 + 22.5, 2775 - 45, 495 - 45}));
}

TEST_F(BotonTest, AListWithoutThemLeavesTheDefaults) {
  button.StoredProperties({{"tamañoborde", std::string("ancho")}});
  EXPECT_EQ(button.Caption(), "");
  EXPECT_EQ(button.Font().Size(), 8.25);
  EXPECT_EQ(Find(stage.Painted(), "rounded").area, (Rect{307.5, 307.5, 2760, 480}));
}

TEST_F(BotonTest, ClicksByMouseEnterAndBlank) {
  stage.Click(button);
  EXPECT_EQ(clicks, 1);
  stage.Key(key::kReturn);
  EXPECT_EQ(clicks, 2);
  stage.form->KeyPress(key::kSpace, 0);
  EXPECT_EQ(clicks, 2);
  stage.form->KeyRelease(key::kSpace, 0);
  EXPECT_EQ(clicks, 3);
}

TEST_F(BotonTest, LooksPushedWhileThePointerHoldsIt) {
  const Rgb face = Face();
  stage.Press(button, {100, 100});
  EXPECT_NE(Face(), face);
  stage.Drag(button, {9000, 100});
  EXPECT_EQ(Face(), face);
  stage.Release(button, {9000, 100});
  EXPECT_EQ(clicks, 0);
}

}  // namespace
}  // namespace orvendal::testing
