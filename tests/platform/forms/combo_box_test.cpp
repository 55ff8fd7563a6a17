#include "platform/forms/combo_box.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "tests/platform/forms/control_stage.h"
#include "tests/support/error_of.h"

namespace orvendal::testing {
namespace {

using testing_support::ErrorOf;

class ComboBoxTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    for (const char* entry : {"Tinte", "Champú", "Laca", "Champú"}) combo.AddItem(entry);
    combo.OnClick = [this] { ++clicks; };
  }

  Stage stage;
  ComboBox& combo = stage.Add<ComboBox>("CmbList", {300, 300, 1500, 315});
  int clicks = 0;
};

TEST_F(ComboBoxTest, TextSelectsTheFirstEntryThatIsExactlyThat) {
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(combo.Text(), "");
  combo.Text("Champú");
  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(combo.Text(), "Champú");
}

TEST_F(ComboBoxTest, ATextThatIsNoEntryIsRefusedAndTheChoiceStays) {
  combo.Text("Laca");
  EXPECT_EQ(ErrorOf([&] { combo.Text("laca"); }), 383);
  EXPECT_EQ(ErrorOf([&] { combo.Text("Lac"); }), 383);
  EXPECT_EQ(combo.Text(), "Laca");
}

TEST_F(ComboBoxTest, EntriesAreReadByIndexAndClearForgetsThem) {
  EXPECT_EQ(combo.ListCount(), 4);
  EXPECT_EQ(combo.List(3), "Champú");
  EXPECT_EQ(ErrorOf([&] { combo.List(4); }), 381);
  EXPECT_EQ(ErrorOf([&] { combo.ListIndex(4); }), 380);
  combo.ListIndex(2);
  combo.Clear();
  EXPECT_EQ(combo.ListCount(), 0);
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(ErrorOf([&] { combo.Text("Tinte"); }), 383);
}

TEST_F(ComboBoxTest, KeysAndWheelChooseAndEachNewChoiceIsAClick) {
  stage.Key(key::kDown);
  stage.Key(key::kDown);
  EXPECT_EQ(combo.Text(), "Champú");
  stage.Key(key::kEnd);
  EXPECT_EQ(combo.ListIndex(), 3);
  stage.Key(key::kDown);
  stage.Key(key::kHome);
  EXPECT_EQ(combo.ListIndex(), 0);
  stage.form->MouseWheel(Stage::At(combo, {100, 100}), 1, 1);
  EXPECT_EQ(combo.ListIndex(), 1);
  stage.form->MouseWheel(Stage::At(combo, {100, 100}), -1, 1);
  stage.Key(key::kUp);
  EXPECT_EQ(combo.ListIndex(), 0);
  EXPECT_EQ(clicks, 6);
  stage.Click(combo);
  EXPECT_EQ(clicks, 6);
}

// Each of them chose the next one.
TEST_F(ComboBoxTest, TwelveQuarterLinesOfATouchpadChooseTheNext) {
  combo.ListIndex(0);
  for (int turn = 0; turn < 12; ++turn) stage.form->MouseWheel(Stage::At(combo, {100, 100}), 0.25);
  EXPECT_EQ(combo.ListIndex(), 1);
  for (int turn = 0; turn < 12; ++turn) stage.form->MouseWheel(Stage::At(combo, {100, 100}), -0.25);
  EXPECT_EQ(combo.ListIndex(), 0);
}

TEST_F(ComboBoxTest, AnEmptyListTakesNoKey) {
  combo.Clear();
  stage.Key(key::kDown);
  stage.Key(key::kEnd);
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, ItsHeightReadsBackAndItShowsTheChoice) {
  combo.Move(100, 200, 900);
  EXPECT_EQ(combo.Height(), 315);
  combo.Text("Tinte");
  EXPECT_EQ(stage.Painted().Texts(), std::vector<std::string>{"Tinte"});
}

TEST_F(ComboBoxTest, LookingUpATextDoesNotWalkTheList) {
  for (int i = 0; i < 20000; ++i) combo.AddItem("08" + std::to_string(i));
  for (int i = 0; i < 20000; ++i) combo.Text("08" + std::to_string(i));
  EXPECT_EQ(combo.ListIndex(), 20003);
}

}  // namespace
}  // namespace orvendal::testing
