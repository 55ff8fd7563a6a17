#include <gtest/gtest.h>

#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/picture_box.h"
#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

using Log = std::vector<std::string>;

class FormInputTest : public ::testing::Test {
 protected:
  FormInputTest() {
    for (Control* control :
         {static_cast<Control*>(&box), static_cast<Control*>(&other), static_cast<Control*>(&front),
          static_cast<Control*>(&back), static_cast<Control*>(&button), static_cast<Control*>(&panel),
          static_cast<Control*>(&inside)}) {
      Watch(*control);
    }
    box.OnChange = [this] { log.push_back("Box change"); };
    form().OnMouseDown = [this] { log.push_back("Form down"); };
    stage.Show();
    TakeLog();
  }
  void Watch(Control& control) {
    const std::string name = control.Name() + " ";
    control.OnMouseDown = [this, name](int, int, double, double) { log.push_back(name + "down"); };
    control.OnMouseUp = [this, name](int, int, double, double) { log.push_back(name + "up"); };
    control.OnClick = [this, name] { log.push_back(name + "click"); };
    control.OnDblClick = [this, name] { log.push_back(name + "double"); };
    control.OnGotFocus = [this, name] { log.push_back(name + "focus"); };
    control.OnLostFocus = [this, name] { log.push_back(name + "lost"); };
    control.OnKeyDown = [this, name](int& code, int) { log.push_back(name + "key " + std::to_string(code)); };
    control.OnKeyPress = [this, name](int& ascii) { log.push_back(name + "press " + std::to_string(ascii)); };
    control.OnKeyUp = [this, name](int& code, int) {
      log.push_back(name + "key up " + std::to_string(code));
    };
  }
  void Preview() {
    form().KeyPreview(true);
    form().OnKeyDown = [this](int& code, int) { log.push_back("Form key " + std::to_string(code)); };
    form().OnKeyPress = [this](int& ascii) { log.push_back("Form press " + std::to_string(ascii)); };
    form().OnKeyUp = [this](int& code, int) { log.push_back("Form key up " + std::to_string(code)); };
  }
  /// A modal box that comes and goes.
  void OpenDialog() { const ModalScope dialog(stage.host); }
  StageForm& form() { return *stage.form; }
  Log TakeLog() { return std::exchange(log, {}); }
  Point On(const Control& control) { return Stage::At(control, Stage::MiddleOf(control.LocalBounds())); }
  void Press(Point at, int button_number = mouse_button::kLeft, bool second = false) {
    form().MousePress(at, button_number, 0, second);
  }
  void Release(Point at, int button_number = mouse_button::kLeft) {
    form().MouseRelease(at, button_number, 0);
  }
  void TypeA() {
    form().KeyPress('A', 0);
    form().Character(U'a');
    form().KeyRelease('A', 0);
  }

  Stage stage;
  TextBox& box = stage.Add<TextBox>("Box", {0, 0, 1000, 300});
  TextBox& other = stage.Add<TextBox>("Other", {0, 400, 1000, 300});
  Label& front = stage.Add<Label>("Front", {0, 800, 1000, 300});
  Label& back = stage.Add<Label>("Back", {0, 800, 1000, 300});
  CommandButton& button = stage.Add<CommandButton>("Button", {0, 1200, 1000, 300});
  PictureBox& panel = stage.Add<PictureBox>("Panel", {2000, 0, 3000, 3000});
  TextBox& inside = stage.Add<TextBox>("Inside", {100, 100, 1000, 300}, &panel);
  Log log;
};

// Mouse.

TEST_F(FormInputTest, APressMovesTheFocusBetweenMouseDownAndMouseUp) {
  stage.Click(other);
  EXPECT_EQ(TakeLog(), (Log{"Other down", "Box lost", "Other focus", "Other up", "Other click"}));
}

TEST_F(FormInputTest, ADoubleClickHasOneDownAndOneClick) {
  stage.DoubleClick(box, {100, 100});
  EXPECT_EQ(TakeLog(), (Log{"Box down", "Box up", "Box click", "Box double", "Box up"}));
}

TEST_F(FormInputTest, TheSecondPressOnAnotherControlIsAFirstOne) {
  Press(On(box));
  Release(On(box));
  TakeLog();
  Press(On(front), mouse_button::kLeft, true);
  Release(On(front));
  EXPECT_EQ(TakeLog(), (Log{"Front down", "Front up", "Front click"}));
}

TEST_F(FormInputTest, AButtonClicksBeforeMouseUpAndKnowsNoDoubleClick) {
  stage.Click(button);
  EXPECT_EQ(TakeLog(), (Log{"Button down", "Box lost", "Button focus", "Button click", "Button up"}));
  Press(On(button), mouse_button::kLeft, true);
  Release(On(button));
  EXPECT_EQ(TakeLog(), (Log{"Button down", "Button click", "Button up"}));
}

TEST_F(FormInputTest, APressHoldsTheMouseUntilItsRelease) {
  Press(On(front));
  TakeLog();
  std::string moved;
  front.OnMouseMove = [&](int, int, double x, double) { moved = x > 1000 ? "outside" : "inside"; };
  form().MouseMove({6000, 6000}, 1, 0);
  EXPECT_EQ(moved, "outside");
  Release(On(other));
  EXPECT_EQ(TakeLog(), Log{"Front up"});
}

TEST_F(FormInputTest, ReleasedOverAnotherControlNeitherIsClicked) {
  Press(On(button));
  TakeLog();
  Release(On(other));
  EXPECT_EQ(TakeLog(), Log{"Button up"});
}

TEST_F(FormInputTest, TheRightButtonPressesAndFocusesAndDoesNotClick) {
  Press(On(other), mouse_button::kRight);
  Release(On(other), mouse_button::kRight);
  EXPECT_EQ(TakeLog(), (Log{"Other down", "Box lost", "Other focus", "Other up"}));
}

TEST_F(FormInputTest, OnlyTheLeftButtonRaisesTheDoubleClick) {
  for (const int button_number : {mouse_button::kRight, mouse_button::kMiddle}) {
    Press(On(front), button_number);
    Release(On(front), button_number);
    Press(On(front), button_number, true);
    Release(On(front), button_number);
    EXPECT_EQ(TakeLog(), (Log{"Front down", "Front up", "Front up"}));
  }
}

TEST_F(FormInputTest, AnotherButtonWhileOneIsHeldIsIgnored) {
  Press(On(front));
  TakeLog();
  Press(On(front), mouse_button::kRight);
  Release(On(front), mouse_button::kRight);
  EXPECT_EQ(TakeLog(), Log{});
  Release(On(front));
  EXPECT_EQ(TakeLog(), (Log{"Front up", "Front click"}));
}

TEST_F(FormInputTest, APressWhoseReleaseWentElsewhereDoesNotSwallowTheNextClick) {
  Press(On(front));
  TakeLog();
  stage.Click(front);
  EXPECT_EQ(TakeLog(), (Log{"Front up", "Front down", "Front up", "Front click"}));
}

TEST_F(FormInputTest, AReleaseWithoutAPressIsNothing) {
  Release(On(front));
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormInputTest, OfTwoLabelsTheOneMadeFirstIsInFront) {
  stage.Click(front);
  EXPECT_EQ(TakeLog(), (Log{"Front down", "Front up", "Front click"}));
}

TEST_F(FormInputTest, ADisabledLabelLetsTheOneBehindHaveTheMouse) {
  front.Enabled(false);
  stage.Click(front);
  EXPECT_EQ(TakeLog(), (Log{"Back down", "Back up", "Back click"}));
  back.Enabled(false);
  stage.Click(front);
  EXPECT_EQ(TakeLog(), Log{"Form down"});
}

TEST_F(FormInputTest, ADisabledWindowLetsItsContainerHaveTheMouse) {
  inside.Enabled(false);
  stage.Click(inside);
  EXPECT_EQ(TakeLog(), (Log{"Panel down", "Box lost", "Panel focus", "Panel up", "Panel click"}));
  panel.Enabled(false);
  TakeLog();
  stage.Click(inside);
  EXPECT_EQ(TakeLog(), Log{"Form down"});
}

TEST_F(FormInputTest, AHiddenControlIsNotThere) {
  inside.Visible(false);
  EXPECT_EQ(form().ControlAt(On(inside)), &panel);
  panel.Visible(false);
  EXPECT_EQ(form().ControlAt(On(inside)), nullptr);
}

TEST_F(FormInputTest, PositionsCountFromTheControlsCorner) {
  Point seen;
  inside.OnMouseDown = [&](int, int, double x, double y) { seen = {x, y}; };
  stage.Press(inside, {250, 120});
  EXPECT_EQ(seen, (Point{250, 120}));
}

TEST_F(FormInputTest, ADialogInMouseDownSwallowsTheRestOfTheGesture) {
  other.OnMouseDown = [this](int, int, double, double) {
    log.push_back("dialog");
    OpenDialog();
  };
  Press(On(other));
  Release(On(other));
  Press(On(other), mouse_button::kLeft, true);
  Release(On(other));
  EXPECT_EQ(TakeLog(), Log{"dialog"});
  EXPECT_EQ(form().ActiveControl(), &box);
}

TEST_F(FormInputTest, ADialogInTheFocusOfAPressSwallowsUpAndClick) {
  other.OnGotFocus = [this] {
    log.push_back("dialog");
    OpenDialog();
  };
  stage.DoubleClick(other, {100, 100});
  EXPECT_EQ(TakeLog(), (Log{"Other down", "Box lost", "dialog"}));
}

TEST_F(FormInputTest, ADialogInClickSwallowsTheDoubleClick) {
  box.OnClick = [this] {
    log.push_back("dialog");
    OpenDialog();
  };
  stage.DoubleClick(box, {100, 100});
  EXPECT_EQ(TakeLog(), (Log{"Box down", "Box up", "dialog"}));
}

TEST_F(FormInputTest, TheGestureAfterADialogIsAWholeOneAgain) {
  box.OnMouseDown = [this](int, int, double, double) { OpenDialog(); };
  Press(On(box));
  Release(On(box));
  TakeLog();
  stage.Click(front);
  EXPECT_EQ(TakeLog(), (Log{"Front down", "Front up", "Front click"}));
}

TEST_F(FormInputTest, ADialogThatAKeyOpensLetsGoOfWhatTheMouseHolds) {
  Log during;
  box.OnKeyDown = [&](int&, int) {
    const ModalScope dialog(stage.host);
    during = TakeLog();
    Release(On(front));  // goes to the dialog
  };
  Press(On(front));
  form().MouseMove({500, 1000}, 1, 0);
  TakeLog();
  Point released;
  front.OnMouseUp = [&](int, int, double x, double y) {
    log.push_back("Front up");
    released = {x, y};
  };
  form().KeyPress(key::kF1, 0);
  EXPECT_EQ(during, Log{"Front up"});
  EXPECT_EQ(released, (Point{500, 200}));
  Release(On(front));
  EXPECT_EQ(TakeLog(), Log{});
  stage.Click(other);
  EXPECT_EQ(TakeLog(), (Log{"Other down", "Box lost", "Other focus", "Other up", "Other click"}));
}

TEST_F(FormInputTest, AReportOfAnErrorInAKeyLetsGoToo) {
  box.OnKeyDown = [](int&, int) { throw RuntimeError(5); };
  Press(On(front));
  TakeLog();
  form().KeyPress('A', 0);
  EXPECT_EQ(TakeLog(), Log{"Front up"});
  EXPECT_EQ(stage.host.ReportedErrors().size(), 1U);
}

TEST_F(FormInputTest, ADialogLetsGoOfAButtonThatTheBlankKeyHolds) {
  button.SetFocus();
  form().KeyPress(key::kSpace, 0);
  TakeLog();
  OpenDialog();
  form().KeyRelease(key::kSpace, 0);
  EXPECT_EQ(TakeLog(), Log{"Button key up 32"});
}

TEST_F(FormInputTest, AnErrorInTheLastMouseUpIsReportedAndTheDialogComes) {
  front.OnMouseUp = [](int, int, double, double) { throw RuntimeError(13); };
  Press(On(front));
  bool came = false;
  box.OnKeyDown = [&](int&, int) {
    const ModalScope dialog(stage.host);
    came = true;
  };
  form().KeyPress(key::kF1, 0);
  EXPECT_TRUE(came);
  EXPECT_EQ(stage.host.ReportedErrors().size(), 1U);
}

TEST_F(FormInputTest, NoInputArrivesWhileADialogIsUp) {
  const ModalScope dialog(stage.host);
  stage.Click(other);
  TypeA();
  form().MouseWheel(On(box), 1);
  form().CloseRequest();
  EXPECT_EQ(TakeLog(), Log{});
  EXPECT_TRUE(form().IsLoaded());
}

TEST_F(FormInputTest, AControlThatIsDisabledInItsMouseDownGetsNoMore) {
  box.OnMouseDown = [this](int, int, double, double) { box.Enabled(false); };
  Press(On(box));
  Release(On(box));
  EXPECT_EQ(TakeLog(), (Log{"Box lost", "Other focus"}));
}

TEST_F(FormInputTest, AControlThatIsHiddenInItsMouseUpIsNotClicked) {
  front.OnMouseUp = [this](int, int, double, double) { front.Visible(false); };
  Press(On(front));
  Release(On(front));
  EXPECT_EQ(TakeLog(), Log{"Front down"});
}

TEST_F(FormInputTest, TheWheelGoesToWhatIsUnderThePointerAndMakesUseOfIt) {
  MSFlexGrid& grid = stage.Add<MSFlexGrid>("Grid", {6000, 0, 3000, 1500});
  form().Unload();
  stage.Show();
  grid.Rows(50);
  form().MouseWheel(On(grid), 3);
  EXPECT_GT(grid.TopRow(), 1);
  const int top = grid.TopRow();
  form().MouseWheel(On(box), 3);
  EXPECT_EQ(grid.TopRow(), top);
  grid.Enabled(false);
  form().MouseWheel(On(grid), 3);
  EXPECT_EQ(grid.TopRow(), top);
}

TEST_F(FormInputTest, ASmallTurnOfTheWheelCountsOnlyForWhatIsUnderThePointer) {
  MSFlexGrid& grid = stage.Add<MSFlexGrid>("Grid", {6000, 0, 3000, 1500});
  form().Unload();
  stage.Show();
  grid.Rows(50);
  form().MouseWheel(On(grid), 0.75);
  form().MouseWheel(On(box), 0.5);
  form().MouseWheel(On(grid), 0.75);
  EXPECT_EQ(grid.TopRow(), 1);
  for (int turn = 0; turn < 5; ++turn) form().MouseWheel(On(grid), 0.05);
  EXPECT_EQ(grid.TopRow(), 2) << "twentieths add up to a whole";
}

// Keys.

TEST_F(FormInputTest, WithKeyPreviewTheFormHearsOfEachKeyFirst) {
  Preview();
  TypeA();
  EXPECT_EQ(TakeLog(), (Log{"Form key 65", "Box key 65", "Form press 97", "Box press 97", "Box change",
                            "Form key up 65", "Box key up 65"}));
}

TEST_F(FormInputTest, WithoutItTheFormHearsNothing) {
  Preview();
  form().KeyPreview(false);
  TypeA();
  EXPECT_EQ(TakeLog(), (Log{"Box key 65", "Box press 97", "Box change", "Box key up 65"}));
}

TEST_F(FormInputTest, WithNobodyFocusedTheFormHearsAllTheSame) {
  Preview();
  form().KeyPreview(false);
  for (Control* control : {static_cast<Control*>(&box), static_cast<Control*>(&other),
                           static_cast<Control*>(&button), static_cast<Control*>(&panel)}) {
    control->Enabled(false);
  }
  TakeLog();
  TypeA();
  EXPECT_EQ(TakeLog(), (Log{"Form key 65", "Form press 97", "Form key up 65"}));
}

TEST_F(FormInputTest, AFormThatZeroesTheCharacterHidesItFromTheControl) {
  Preview();
  form().OnKeyPress = [](int& ascii) { ascii = 0; };
  TypeA();
  EXPECT_EQ(TakeLog(), (Log{"Form key 65", "Box key 65", "Form key up 65", "Box key up 65"}));
  EXPECT_EQ(box.Text(), "");
}

TEST_F(FormInputTest, AControlThatZeroesTheCharacterSwallowsIt) {
  box.OnKeyPress = [](int& ascii) { ascii = 0; };
  TypeA();
  EXPECT_EQ(box.Text(), "");
}

TEST_F(FormInputTest, ACharacterThatIsReplacedIsTypedAsTheOther) {
  box.OnKeyPress = [](int& ascii) { ascii = 0xF1; };
  TypeA();
  EXPECT_EQ(box.Text(), "ñ");
}

TEST_F(FormInputTest, AZeroedKeyCodeCancelsTheKeysOwnActionNotItsCharacter) {
  box.Text("abc");
  box.OnKeyDown = [](int& code, int) { code = 0; };
  stage.Key(key::kRight);
  EXPECT_EQ(box.SelStart(), 0);
  stage.Key(key::kDelete);
  EXPECT_EQ(box.Text(), "abc");
  TypeA();
  EXPECT_EQ(box.Text(), "aabc");
}

TEST_F(FormInputTest, AFormThatZeroesTheKeyCodeHidesTheKeyFromTheControl) {
  Preview();
  form().OnKeyDown = [](int& code, int) { code = 0; };
  box.Text("abc");
  TakeLog();
  stage.Key(key::kRight);
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(TakeLog(), (Log{"Form key up 39", "Box key up 39"}));
}

TEST_F(FormInputTest, ADialogInKeyDownDoesNotSwallowTheCharacter) {
  box.OnKeyDown = [this](int&, int) { OpenDialog(); };
  TypeA();
  EXPECT_EQ(box.Text(), "a");
}

TEST_F(FormInputTest, TheCharacterBelongsToTheControlInWhichTheKeyWentDown) {
  box.OnKeyDown = [this](int&, int) { other.SetFocus(); };
  TypeA();
  EXPECT_EQ(box.Text(), "a");
  EXPECT_EQ(other.Text(), "");
  EXPECT_EQ(TakeLog().back(), "Other key up 65");
}

TEST_F(FormInputTest, AControlThatIsHiddenInItsKeyDownGetsNoCharacter) {
  box.OnKeyDown = [this](int&, int) { box.Visible(false); };
  TypeA();
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(other.Text(), "");
}

TEST_F(FormInputTest, ControlCharactersHaveTheirCodes) {
  std::vector<int> codes;
  box.OnKeyPress = [&](int& ascii) { codes.push_back(ascii); };
  for (const int letter : {'C', 'V', 'X', 'Z'}) stage.Key(letter, shift_mask::kControl);
  for (const int code : {key::kBack, key::kReturn, key::kEscape}) stage.Key(code);
  for (const int code : {key::kDelete, key::kLeft, key::kHome, key::kF12}) stage.Key(code);
  EXPECT_EQ(codes, (std::vector<int>{3, 22, 24, 26, 8, 13, 27}));
}

TEST_F(FormInputTest, TheOlderClipboardKeysPassTheSameFilter) {
  std::vector<int> codes;
  box.OnKeyPress = [&](int& ascii) { codes.push_back(ascii); };
  stage.Key(key::kInsert, shift_mask::kShift);
  stage.Key(key::kInsert, shift_mask::kControl);
  stage.Key(key::kDelete, shift_mask::kShift);
  EXPECT_EQ(codes, (std::vector<int>{22, 3, 24}));
}

TEST_F(FormInputTest, AltF4AsksToCloseAndIsNoKey) {
  Preview();
  form().OnCloseRequest = [this] { log.push_back("asked"); };
  form().KeyPress(key::kF4, shift_mask::kAlt);
  EXPECT_EQ(TakeLog(), Log{"asked"});
  form().KeyPress(key::kF4, 0);
  EXPECT_EQ(TakeLog(), (Log{"Form key 115", "Box key 115"}));
}

// Errors that no handler traps.

TEST_F(FormInputTest, AnErrorInAHandlerIsReportedOnceAndTheScreenGoesOn) {
  const auto fail = [] { throw RuntimeError(5); };
  other.OnClick = fail;
  other.OnGotFocus = fail;
  other.OnKeyDown = [](int&, int) { throw RuntimeError(5); };
  other.OnKeyPress = [](int&) { throw RuntimeError(5); };
  other.OnKeyUp = [](int&, int) { throw RuntimeError(5); };
  other.OnDblClick = fail;

  Press(On(other));  // the focus fails
  EXPECT_EQ(stage.host.ReportedErrors().size(), 1U);
  EXPECT_EQ(stage.host.ReportedErrors()[0].Number(), 5);
  EXPECT_EQ(stage.host.ReportedErrors()[0].Description(), "Invalid procedure call or argument");
  Release(On(other));  // the rest of the gesture is gone
  EXPECT_EQ(stage.host.ReportedErrors().size(), 1U);
  EXPECT_EQ(form().ActiveControl(), &other);

  stage.Click(other);
  EXPECT_EQ(stage.host.ReportedErrors().size(), 2U);
  TypeA();
  EXPECT_EQ(stage.host.ReportedErrors().size(), 5U);
  EXPECT_EQ(other.Text(), "");

  TakeLog();
  stage.Click(box);
  TypeA();
  EXPECT_EQ(stage.host.ReportedErrors().size(), 5U);
  EXPECT_EQ(box.Text(), "a");
}

TEST_F(FormInputTest, WhileAnErrorIsReportedNoInputArrives) {
  box.OnKeyDown = [](int&, int) { throw RuntimeError(5); };
  stage.host.OnReport = [this](const RuntimeError&) { stage.Click(other); };
  form().KeyPress('A', 0);
  EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(FormInputTest, TheReportSwallowsTheRestOfTheGesture) {
  box.OnClick = [] { throw RuntimeError(13); };
  stage.DoubleClick(box, {100, 100});
  EXPECT_EQ(TakeLog(), (Log{"Box down", "Box up"}));
  EXPECT_EQ(stage.host.ReportedErrors().size(), 1U);
}

TEST_F(FormInputTest, AnErrorInMouseDownLetsTheNextGestureBegin) {
  front.OnMouseDown = [](int, int, double, double) { throw RuntimeError(13); };
  stage.Click(front);
  stage.Click(other);
  EXPECT_EQ(TakeLog(), (Log{"Other down", "Box lost", "Other focus", "Other up", "Other click"}));
}

TEST_F(FormInputTest, AnErrorInTheCloseRequestKeepsTheFormOpen) {
  form().OnCloseRequest = [] { throw RuntimeError(13); };
  form().CloseRequest();
  EXPECT_TRUE(form().IsLoaded());
  EXPECT_EQ(stage.host.ReportedErrors().size(), 1U);
}

TEST_F(FormInputTest, AFaultThatIsNoRuntimeErrorIsNotTakenForOne) {
  box.OnKeyDown = [](int&, int) { throw std::logic_error("a fault of the program"); };
  EXPECT_THROW(form().KeyPress('A', 0), std::logic_error);
  EXPECT_TRUE(stage.host.ReportedErrors().empty());
}

TEST_F(FormInputTest, AnUnloadedFormTakesNoInput) {
  form().Unload();
  stage.Click(front);
  TypeA();
  EXPECT_EQ(TakeLog(), Log{});
}

}  // namespace
}  // namespace orvendal::testing
