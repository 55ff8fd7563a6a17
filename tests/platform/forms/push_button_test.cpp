#include "platform/forms/push_button.h"

#include <gtest/gtest.h>

#include "platform/forms/boton.h"
#include "platform/forms/command_button.h"
#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

/// What every kind of push button does.
template <typename Kind>
class PushButtonTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
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
  Kind& button = stage.Add<Kind>("BtnOk", {300, 300, 1500, 450});
  TextBox& box = stage.Add<TextBox>("TxtBox", {300, 900, 1500, 450});
  std::string log;
  std::string raised;
};

using Kinds = ::testing::Types<CommandButton, Boton>;
TYPED_TEST_SUITE(PushButtonTest, Kinds);

TYPED_TEST(PushButtonTest, AClickByMouseComesBeforeMouseUp) {
  this->stage.Click(this->button);
  EXPECT_EQ(this->log, "click up ");
}

TYPED_TEST(PushButtonTest, TwoQuickClicksAreTwoClicks) {
  this->stage.DoubleClick(this->button, {100, 100});
  EXPECT_EQ(this->log, "click up click up ");
}

TYPED_TEST(PushButtonTest, TheLookFollowsThePointerAndAReleaseOutsideIsNoClick) {
  this->stage.Press(this->button, {100, 100});
  const std::string pushed = this->Look();
  EXPECT_NE(pushed, this->raised);
  this->stage.Drag(this->button, {5000, 100});
  EXPECT_EQ(this->Look(), this->raised);
  this->stage.Drag(this->button, {200, 100});
  EXPECT_EQ(this->Look(), pushed);
  this->stage.Drag(this->button, {5000, 100});
  this->stage.Release(this->button, {5000, 100});
  EXPECT_EQ(this->log, "up ");
  EXPECT_EQ(this->Look(), this->raised);
}

TYPED_TEST(PushButtonTest, EnterClicksAtOnceAndNoCharacterArrives) {
  this->stage.form->KeyPress(key::kReturn, 0);
  EXPECT_EQ(this->log, "click ");
  this->stage.form->Character(13);
  this->stage.form->KeyRelease(key::kReturn, 0);
  EXPECT_EQ(this->log, "click ");
}

TYPED_TEST(PushButtonTest, TheBlankKeyPushesAndClicksWhenItIsReleased) {
  this->stage.form->KeyPress(key::kSpace, 0);
  this->stage.form->Character(' ');
  EXPECT_EQ(this->log, "key 32 ");
  EXPECT_NE(this->Look(), this->raised);
  this->stage.form->KeyRelease(key::kSpace, 0);
  EXPECT_EQ(this->log, "key 32 click ");
  EXPECT_EQ(this->Look(), this->raised);
}

TYPED_TEST(PushButtonTest, TheBlankKeyReleasedAfterTheFocusCameIsNoClick) {
  this->box.SetFocus();
  this->stage.form->KeyPress(key::kSpace, 0);
  this->button.SetFocus();
  this->stage.form->KeyRelease(key::kSpace, 0);
  EXPECT_EQ(this->log, "");
  this->stage.form->KeyPress(key::kSpace, 0);
  this->box.SetFocus();
  this->button.SetFocus();
  this->stage.form->KeyRelease(key::kSpace, 0);
  EXPECT_EQ(this->log, "");
}

TYPED_TEST(PushButtonTest, ADialogThatOpensBetweenPressAndReleaseLeavesTheButtonRaised) {
  this->box.SetFocus();
  this->button.OnGotFocus = [this] { const ModalScope dialog(this->stage.host); };
  this->stage.Press(this->button, {100, 100});
  EXPECT_EQ(this->Look(), this->raised);
  this->stage.Release(this->button, {100, 100});
  EXPECT_EQ(this->log, "");
}

TYPED_TEST(PushButtonTest, TheFormMayBeUnloadedInsideClick) {
  this->button.OnClick = [this] { this->stage.form->Unload(); };
  this->stage.Click(this->button);
  EXPECT_FALSE(this->stage.form->IsLoaded());
  this->stage.Show();
  this->button.OnClick = [this] { this->stage.form->Unload(); };
  this->stage.form->KeyPress(key::kReturn, 0);
  EXPECT_FALSE(this->stage.form->IsLoaded());
}

}  // namespace
}  // namespace orvendal::testing
