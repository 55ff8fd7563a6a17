#include "platform/forms/option_button.h"

#include <gtest/gtest.h>

#include "platform/forms/picture_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class OptionButtonTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    first.OnClick = [this] { log += "first "; };
    second.OnClick = [this] { log += "second "; };
  }

  Stage stage;
  PictureBox& group = stage.Add<PictureBox>("PicGroup", {0, 3000, 3000, 1500});
  OptionButton& first = stage.Add<OptionButton>("OptFirst", {300, 300, 1500, 300});
  OptionButton& second = stage.Add<OptionButton>("OptSecond", {300, 700, 1500, 300});
  OptionButton& elsewhere = stage.Add<OptionButton>("OptElsewhere", {300, 300, 1500, 300}, &group);
  std::string log;
};

TEST_F(OptionButtonTest, AClickTakesTheMarkFromTheOthersOfTheContainer) {
  elsewhere.Value(true);
  stage.Click(first);
  EXPECT_TRUE(first.Value());
  stage.Click(second);
  EXPECT_FALSE(first.Value());
  EXPECT_TRUE(second.Value());
  EXPECT_TRUE(elsewhere.Value());
  EXPECT_EQ(log, "first second ");
}

TEST_F(OptionButtonTest, AReleaseOutsideChoosesNothing) {
  stage.Press(first, {100, 100});
  stage.Release(first, {100, 2000});
  EXPECT_FALSE(first.Value());
  EXPECT_EQ(log, "");
}

TEST_F(OptionButtonTest, CodeAndTheBlankKeyRaiseClickOnANewChoiceOnly) {
  first.Value(true);
  first.Value(true);
  EXPECT_EQ(log, "first ");
  second.SetFocus();
  stage.Key(key::kSpace);
  stage.Key(key::kSpace);
  EXPECT_EQ(log, "first second ");
  second.Value(false);
  EXPECT_FALSE(second.Value());
  EXPECT_EQ(log, "first second ");
}

TEST_F(OptionButtonTest, TheArrowsTakeFocusAndMarkToTheNeighbourOfTheGroup) {
  first.Value(true);
  first.SetFocus();
  log.clear();
  stage.Key(key::kRight);
  EXPECT_TRUE(second.Value());
  EXPECT_TRUE(second.HasFocus());
  stage.Key(key::kDown);
  EXPECT_TRUE(first.Value());
  stage.Key(key::kUp);
  EXPECT_TRUE(second.Value());
  stage.Key(key::kLeft);
  EXPECT_TRUE(first.HasFocus());
  EXPECT_FALSE(elsewhere.Value());
  EXPECT_EQ(log, "second first second first ");
}

TEST_F(OptionButtonTest, TheArrowsPassByAChoiceThatIsNotOffered) {
  first.SetFocus();
  second.Enabled(false);
  stage.Key(key::kRight);
  EXPECT_TRUE(first.HasFocus());
  EXPECT_FALSE(second.Value());
}

TEST_F(OptionButtonTest, TheChosenOneShowsItsMark) {
  first.Caption("Tarde");
  RecordingCanvas plain;
  first.Paint(plain);
  EXPECT_EQ(Find(plain, "text").text, "Tarde");
  first.Value(true);
  RecordingCanvas marked;
  first.Paint(marked);
  EXPECT_EQ(Count(marked, "rounded"), Count(plain, "rounded") + 1);
}

}  // namespace
}  // namespace orvendal::testing
