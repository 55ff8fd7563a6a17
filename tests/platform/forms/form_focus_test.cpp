#include <gtest/gtest.h>

#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/forms/picture_box.h"
#include "platform/forms/shape.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"
#include "tests/platform/forms/control_stage.h"
#include "tests/support/error_of.h"

namespace orvendal::testing {
namespace {

using Log = std::vector<std::string>;

using testing_support::ErrorOf;

/// Boxes A, B, C on the form, and D on a panel; tab order A, B, C, Panel, D.
class FormFocusTest : public ::testing::Test {
 protected:
  FormFocusTest() {
    for (TextBox* box : {&a, &b, &c, &d}) {
      box->OnGotFocus = [this, box] { log.push_back("+" + box->Name()); };
      box->OnLostFocus = [this, box] { log.push_back("-" + box->Name()); };
    }
    panel.OnGotFocus = [this] { log.push_back("+Panel"); };
    panel.OnLostFocus = [this] { log.push_back("-Panel"); };
    stage.Show();
    TakeLog();
  }
  Log TakeLog() { return std::exchange(log, {}); }
  void Tab() { stage.Key(key::kTab); }
  void BackTab() { stage.Key(key::kTab, shift_mask::kShift); }
  std::string Focused() {
    const Control* control = stage.form->ActiveControl();
    return control == nullptr ? "" : control->Name();
  }
  /// The controls that Tab visits, from the focused one round to it again.
  Log Round(bool backwards = false) {
    Log visited;
    const std::string start = Focused();
    do {
      backwards ? BackTab() : Tab();
      visited.push_back(Focused());
    } while (Focused() != start && visited.size() < 20);
    return visited;
  }

  Stage stage;
  TextBox& a = stage.Add<TextBox>("A", {0, 0, 1000, 300});
  TextBox& b = stage.Add<TextBox>("B", {0, 400, 1000, 300});
  TextBox& c = stage.Add<TextBox>("C", {0, 800, 1000, 300});
  Label& label = stage.Add<Label>("Label", {0, 1200, 1000, 300});
  PictureBox& panel = stage.Add<PictureBox>("Panel", {2000, 0, 3000, 3000});
  TextBox& d = stage.Add<TextBox>("D", {0, 0, 1000, 300}, &panel);
  Shape& shape = stage.Add<Shape>("Shape", {0, 1600, 1000, 300});
  Timer& timer = stage.Add<Timer>("Timer", {0, 0, 0, 0});
  Log log;
};

TEST_F(FormFocusTest, TheFirstOfTheTabOrderHasItAfterShow) {
  EXPECT_EQ(Focused(), "A");
  EXPECT_TRUE(a.HasFocus());
}

TEST_F(FormFocusTest, TabGoesByIndexThroughContainersAndRound) {
  EXPECT_EQ(Round(), (Log{"B", "C", "Panel", "D", "A"}));
  EXPECT_EQ(Round(true), (Log{"D", "Panel", "C", "B", "A"}));
}

TEST_F(FormFocusTest, TheIndexDecidesNotTheOrderOfMaking) {
  a.TabIndex(40);
  d.TabIndex(0);
  EXPECT_EQ(Round(), (Log{"D", "B", "C", "Panel", "A"}));
}

TEST_F(FormFocusTest, TabPassesByWhatCannotHaveItOrWantsNone) {
  b.Enabled(false);
  c.TabStop(false);
  EXPECT_EQ(Round(), (Log{"Panel", "D", "A"}));
  panel.Visible(false);
  TakeLog();
  Tab();
  EXPECT_EQ(Focused(), "A");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormFocusTest, ADisabledContainerTakesItsChildrenOutOfTheOrder) {
  panel.Enabled(false);
  EXPECT_EQ(Round(), (Log{"B", "C", "A"}));
}

TEST_F(FormFocusTest, TabRaisesNoKeyEventsWhenItMoves) {
  for (TextBox* box : {&a, &b}) {
    box->OnKeyDown = [this](int&, int) { log.push_back("down"); };
    box->OnKeyPress = [this](int&) { log.push_back("press"); };
  }
  stage.form->KeyPress(key::kTab, 0);
  stage.form->Character(U'\t');
  EXPECT_EQ(TakeLog(), (Log{"-A", "+B"}));
  EXPECT_EQ(b.Text(), "");
}

TEST_F(FormFocusTest, TabIsAKeyLikeOthersWhereItCannotMove) {
  for (TextBox* box : {&b, &c}) box->Enabled(false);
  panel.Visible(false);
  a.OnKeyDown = [this](int& code, int) { log.push_back("down " + std::to_string(code)); };
  TakeLog();
  Tab();
  EXPECT_EQ(TakeLog(), Log{"down 9"});
}

TEST_F(FormFocusTest, LostFocusComesBeforeGotFocus) {
  c.SetFocus();
  EXPECT_EQ(TakeLog(), (Log{"-A", "+C"}));
}

TEST_F(FormFocusTest, InsideItsLostFocusAControlNoLongerHoldsIt) {
  bool had = true;
  Control* active = &a;
  a.OnLostFocus = [&] {
    had = a.HasFocus();
    active = stage.form->ActiveControl();
  };
  b.SetFocus();
  EXPECT_FALSE(had);
  EXPECT_EQ(active, nullptr);
}

TEST_F(FormFocusTest, InsideItsGotFocusAControlHoldsIt) {
  bool had = false;
  b.OnGotFocus = [&] { had = b.HasFocus(); };
  b.SetFocus();
  EXPECT_TRUE(had);
}

TEST_F(FormFocusTest, SetFocusOnTheFocusedControlRaisesNothing) {
  a.SetFocus();
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormFocusTest, SetFocusOnWhatCannotHaveItIsError5) {
  b.Visible(false);
  EXPECT_EQ(ErrorOf([&] { b.SetFocus(); }), 5);
  c.Enabled(false);
  EXPECT_EQ(ErrorOf([&] { c.SetFocus(); }), 5);
  panel.Enabled(false);
  EXPECT_EQ(ErrorOf([&] { d.SetFocus(); }), 5);
  EXPECT_EQ(ErrorOf([&] { label.SetFocus(); }), 5);
  EXPECT_EQ(ErrorOf([&] { shape.SetFocus(); }), 5);
  EXPECT_EQ(ErrorOf([&] { timer.SetFocus(); }), 5);
  EXPECT_EQ(Focused(), "A");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormFocusTest, SetFocusOnAFormThatIsNotShownIsError5) {
  stage.form->Unload();
  stage.form->Load();
  EXPECT_EQ(ErrorOf([&] { b.SetFocus(); }), 5);
}

TEST_F(FormFocusTest, TabStopFalseDoesNotKeepSetFocusOrAClickOut) {
  b.TabStop(false);
  b.SetFocus();
  EXPECT_EQ(Focused(), "B");
  a.SetFocus();
  stage.Click(b);
  EXPECT_EQ(Focused(), "B");
}

TEST_F(FormFocusTest, HidingTheFocusedControlMovesItToTheNextStop) {
  b.SetFocus();
  TakeLog();
  b.Visible(false);
  EXPECT_EQ(TakeLog(), (Log{"-B", "+C"}));
}

TEST_F(FormFocusTest, DisablingTheLastOneGoesRoundToTheFirst) {
  d.SetFocus();
  TakeLog();
  d.Enabled(false);
  EXPECT_EQ(TakeLog(), (Log{"-D", "+A"}));
}

TEST_F(FormFocusTest, HidingOrDisablingItsContainerMovesItToo) {
  d.SetFocus();
  TakeLog();
  panel.Visible(false);
  EXPECT_EQ(TakeLog(), (Log{"-D", "+A"}));
  panel.Visible(true);
  d.SetFocus();
  TakeLog();
  panel.Enabled(false);
  EXPECT_EQ(TakeLog(), (Log{"-D", "+A"}));
}

TEST_F(FormFocusTest, AnExplicitSetFocusAfterHidingWins) {
  a.Visible(false);
  d.SetFocus();
  EXPECT_EQ(TakeLog(), (Log{"-A", "+B", "-B", "+D"}));
  EXPECT_EQ(Focused(), "D");
}

TEST_F(FormFocusTest, HidingSomethingElseMovesNothing) {
  b.Visible(false);
  c.Enabled(false);
  EXPECT_EQ(Focused(), "A");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormFocusTest, WhereNothingIsLeftNobodyHasIt) {
  for (TextBox* box : {&b, &c}) box->Enabled(false);
  panel.Visible(false);
  a.Enabled(false);
  EXPECT_EQ(Focused(), "");
  EXPECT_EQ(TakeLog(), Log{"-A"});
  c.Enabled(true);
  EXPECT_EQ(Focused(), "");
  stage.form->SetFocus();
  EXPECT_EQ(Focused(), "C");
}

TEST_F(FormFocusTest, SetFocusInsideGotFocusNestsAndTheInnerOneKeepsIt) {
  b.OnGotFocus = [this] {
    log.push_back("+B");
    c.SetFocus();
    log.push_back("B goes on");
  };
  b.SetFocus();
  EXPECT_EQ(TakeLog(), (Log{"-A", "+B", "-B", "+C", "B goes on"}));
  EXPECT_EQ(Focused(), "C");
}

TEST_F(FormFocusTest, SetFocusInsideLostFocusWinsOverTheMoveThatCausedIt) {
  a.OnLostFocus = [this] {
    log.push_back("-A");
    c.SetFocus();
  };
  b.SetFocus();
  EXPECT_EQ(TakeLog(), (Log{"-A", "+C"}));
  EXPECT_EQ(Focused(), "C");
}

TEST_F(FormFocusTest, ATargetThatIsHiddenInLostFocusPassesItOn) {
  a.OnLostFocus = [this] {
    log.push_back("-A");
    b.Visible(false);
  };
  b.SetFocus();
  EXPECT_EQ(TakeLog(), (Log{"-A", "+C"}));
}

TEST_F(FormFocusTest, AControlThatHidesItselfInItsGotFocusPassesItOn) {
  b.OnGotFocus = [this] {
    log.push_back("+B");
    b.Visible(false);
  };
  b.SetFocus();
  EXPECT_EQ(TakeLog(), (Log{"-A", "+B", "-B", "+C"}));
}

TEST_F(FormFocusTest, SetFocusOfTheFormKeepsItWhereItIs) {
  c.SetFocus();
  TakeLog();
  stage.form->SetFocus();
  EXPECT_EQ(Focused(), "C");
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormFocusTest, ADialogNeitherTakesItNorGivesItBack) {
  const auto dialog = std::make_shared<StageForm>(stage.host);
  TextBox& inside = dialog->Add<TextBox>("Inside", {0, 0, 1000, 300});
  stage.host.QueueDialog([&](Form& shown) {
    EXPECT_TRUE(inside.HasFocus());
    EXPECT_TRUE(a.HasFocus());
    shown.Hide();
  });
  dialog->Show(ShowMode::kModal);
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_EQ(Focused(), "A");
}

TEST_F(FormFocusTest, AClickOnALabelMovesNothingAClickOnAPanelFocusesIt) {
  stage.Click(label);
  EXPECT_EQ(TakeLog(), Log{});
  stage.Click(panel, {2500, 2500});
  EXPECT_EQ(TakeLog(), (Log{"-A", "+Panel"}));
}

TEST_F(FormFocusTest, TheCaretFollowsTheFocus) {
  HeadlessWindow* window = stage.host.WindowOf(*stage.form);
  stage.Click(b);
  ASSERT_TRUE(window->LastCaret().has_value());
  EXPECT_TRUE(b.Bounds().Contains({window->LastCaret()->left, window->LastCaret()->top}));
  stage.Click(panel, {2500, 2500});
  EXPECT_FALSE(window->LastCaret().has_value());
}

}  // namespace
}  // namespace orvendal::testing
