#include "platform/forms/boton.h"

#include <gtest/gtest.h>

#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class BotonTest : public ::testing::Test {
 protected:
  void SetUp() override { stage.Show(); }

  Stage stage;
  Boton& button = stage.Add<Boton>("BtnAnulo", {300, 300, 2775, 495});
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

}  // namespace
}  // namespace orvendal::testing
