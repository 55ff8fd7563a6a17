#include "platform/forms/command_button.h"

#include <gtest/gtest.h>

#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class CommandButtonTest : public ::testing::Test {
 protected:
  void SetUp() override { stage.Show(); }

  Stage stage;
  CommandButton& button = stage.Add<CommandButton>("CmdOk", {300, 300, 1500, 450});
};

TEST_F(CommandButtonTest, GraphicalStyleShowsItsColour) {
  button.BackColor(0xA5CACB);
  RecordingCanvas plain;
  button.Paint(plain);
  EXPECT_EQ(Find(plain, "fill").color, stage.host.Resolve(system_color::kButtonFace));
  button.Style(1);
  RecordingCanvas graphical;
  button.Paint(graphical);
  EXPECT_EQ(Find(graphical, "fill").color, RgbOf(0xA5CACB));
}

TEST_F(CommandButtonTest, TheFocusIsSeenAndADisabledOneIsGrey) {
  button.Caption("&Aceptar");
  int clicks = 0;
  button.OnClick = [&clicks] { ++clicks; };
  RecordingCanvas focused;
  button.Paint(focused);
  EXPECT_EQ(Count(focused, "focus"), 1U);
  EXPECT_EQ(Find(focused, "text").text, "Aceptar");
  button.Enabled(false);
  RecordingCanvas disabled;
  button.Paint(disabled);
  EXPECT_EQ(Count(disabled, "focus"), 0U);
  EXPECT_EQ(Find(disabled, "text").color, stage.host.Resolve(system_color::kGrayText));
  stage.Click(button);
  EXPECT_EQ(clicks, 0);
}

}  // namespace
}  // namespace orvendal::testing
