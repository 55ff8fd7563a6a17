#include "platform/forms/command_button.h"

#include <gtest/gtest.h>

#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class CommandButtonTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    button.Caption("&Aceptar");
    button.OnClick = [this] { log += "click "; };
    button.OnMouseUp = [this](int, int, double, double) { log += "up "; };
    button.OnKeyPress = [this](int& ascii) { log += "key " + std::to_string(ascii) + " "; };
    raised = Look();
  }
  // What is painted of the button itself, so that two looks can be told apart.
  std::string Look() {
    RecordingCanvas canvas;
    button.Paint(canvas);
    std::string look;
    for (const auto& operation : canvas.Operations()) {
      look += operation.kind + std::to_string(operation.color.red) + "@" +
              std::to_string(operation.area.left) + " ";
    }
    return look;
  }

  Stage stage;
  CommandButton& button = stage.Add<CommandButton>("CmdOk", {300, 300, 1500, 450});
  TextBox& box = stage.Add<TextBox>("TxtBox", {300, 900, 1500, 450});
  std::string log;
  std::string raised;
};

TEST_F(CommandButtonTest, AClickByMouseComesBeforeMouseUp) {
  stage.Click(button);
  EXPECT_EQ(log, "click up ");
}

TEST_F(CommandButtonTest, TwoQuickClicksAreTwoClicks) {
  stage.DoubleClick(button, {100, 100});
  EXPECT_EQ(log, "click up click up ");
}

TEST_F(CommandButtonTest, TheLookFollowsThePointerAndAReleaseOutsideIsNoClick) {
  stage.Press(button, {100, 100});
  const std::string pushed = Look();
  EXPECT_NE(pushed, raised);
  stage.Drag(button, {5000, 100});
  EXPECT_EQ(Look(), raised);
  stage.Drag(button, {200, 100});
  EXPECT_EQ(Look(), pushed);
  stage.Drag(button, {5000, 100});
  stage.Release(button, {5000, 100});
  EXPECT_EQ(log, "up ");
  EXPECT_EQ(Look(), raised);
}

TEST_F(CommandButtonTest, EnterClicksAtOnceAndNoCharacterArrives) {
  stage.form->KeyPress(key::kReturn, 0);
  EXPECT_EQ(log, "click ");
  stage.form->Character(13);
  stage.form->KeyRelease(key::kReturn, 0);
  EXPECT_EQ(log, "click ");
}

TEST_F(CommandButtonTest, TheBlankKeyPushesAndClicksWhenItIsReleased) {
  stage.form->KeyPress(key::kSpace, 0);
  stage.form->Character(' ');
  EXPECT_EQ(log, "key 32 ");
  EXPECT_NE(Look(), raised);
  stage.form->KeyRelease(key::kSpace, 0);
  EXPECT_EQ(log, "key 32 click ");
  EXPECT_EQ(Look(), raised);
}

TEST_F(CommandButtonTest, TheBlankKeyReleasedAfterTheFocusCameIsNoClick) {
  box.SetFocus();
  stage.form->KeyPress(key::kSpace, 0);
  button.SetFocus();
  stage.form->KeyRelease(key::kSpace, 0);
  EXPECT_EQ(log, "");
  stage.form->KeyPress(key::kSpace, 0);
  box.SetFocus();
  button.SetFocus();
  stage.form->KeyRelease(key::kSpace, 0);
  EXPECT_EQ(log, "");
}

TEST_F(CommandButtonTest, ADialogThatOpensBetweenPressAndReleaseLeavesTheButtonRaised) {
  box.SetFocus();
  button.OnGotFocus = [this] { const ModalScope dialog(stage.host); };
  stage.Press(button, {100, 100});
  EXPECT_EQ(Look(), raised);
  stage.Release(button, {100, 100});
  EXPECT_EQ(log, "");
}

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
  EXPECT_EQ(log, "");
}

TEST_F(CommandButtonTest, TheFormMayBeUnloadedInsideClick) {
  button.OnClick = [this] { stage.form->Unload(); };
  stage.Click(button);
  EXPECT_FALSE(stage.form->IsLoaded());
  stage.Show();
  button.OnClick = [this] { stage.form->Unload(); };
  stage.form->KeyPress(key::kReturn, 0);
  EXPECT_FALSE(stage.form->IsLoaded());
}

}  // namespace
}  // namespace orvendal::testing
