#include "platform/forms/text_box.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

constexpr int kShift = shift_mask::kShift;
constexpr int kControl = shift_mask::kControl;

class TextBoxTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    box.Appearance(Appearance::kFlat);
    box.OnChange = [this] { ++changes; };
  }
  void Begin(const std::string& text) {
    box.Text(text);
    changes = 0;
  }
  void Select(int start, int length) {
    box.SelStart(start);
    box.SelLength(length);
  }

  Stage stage;
  TextBox& box = stage.Add<TextBox>("TxtBox", {300, 300, 3000, 360});
  TextBox& other = stage.Add<TextBox>("TxtOther", {300, 900, 3000, 360});
  int changes = 0;
};

TEST_F(TextBoxTest, TypedCharactersArriveAtTheCaretAndEachRaisesChange) {
  stage.Type("abñ€");
  EXPECT_EQ(box.Text(), "abñ€");
  EXPECT_EQ(box.SelStart(), 4);
  EXPECT_EQ(changes, 4);
  stage.Key(key::kLeft);
  stage.Key(key::kLeft);
  stage.Type("é");
  EXPECT_EQ(box.Text(), "abéñ€");
  EXPECT_EQ(box.SelStart(), 3);
}

TEST_F(TextBoxTest, ControlCharactersInsertNothing) {
  stage.Key(key::kReturn);
  stage.Key(key::kEscape);
  stage.form->Character(2);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(changes, 0);
}

TEST_F(TextBoxTest, AssigningTextPutsTheCaretToTheStartAndRaisesChangeOnlyIfItDiffers) {
  Begin("uno");
  Select(1, 2);
  box.Text("dos");
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 0);
  EXPECT_EQ(changes, 1);
  Select(1, 2);
  box.Text("dos");
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 0);
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, SelectionPropertiesCountCharactersAndStayInsideTheText) {
  Begin("añb");
  Select(1, 99);
  EXPECT_EQ(box.SelLength(), 2);
  EXPECT_EQ(box.SelText(), "ñb");
  box.SelStart(2);
  EXPECT_EQ(box.SelLength(), 0);
  box.SelStart(99);
  EXPECT_EQ(box.SelStart(), 3);
  const auto number_of = [](const auto& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(number_of([&] { box.SelStart(-1); }), 380);
  EXPECT_EQ(number_of([&] { box.SelLength(-1); }), 380);
}

TEST_F(TextBoxTest, TypingReplacesTheSelection) {
  Begin("estilista");
  Select(0, 9);
  stage.Type("7");
  EXPECT_EQ(box.Text(), "7");
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, BackspaceAndDeleteTakeOneCharacterOrTheSelection) {
  Begin("abcdé");
  box.SelStart(5);
  stage.Key(key::kBack);
  EXPECT_EQ(box.Text(), "abcd");
  box.SelStart(0);
  stage.Key(key::kDelete);
  EXPECT_EQ(box.Text(), "bcd");
  Select(0, 2);
  stage.Key(key::kDelete);
  EXPECT_EQ(box.Text(), "d");
  Select(0, 1);
  stage.Key(key::kBack);
  EXPECT_EQ(box.Text(), "");
  changes = 0;
  stage.Key(key::kBack);
  stage.Key(key::kDelete);
  EXPECT_EQ(changes, 0);
}

TEST_F(TextBoxTest, ShiftExtendsTheSelectionFromWhereItBegan) {
  Begin("abcdef");
  box.SelStart(3);
  stage.Key(key::kRight, kShift);
  stage.Key(key::kRight, kShift);
  EXPECT_EQ(box.SelText(), "de");
  stage.Key(key::kHome, kShift);
  EXPECT_EQ(box.SelText(), "abc");
  EXPECT_EQ(box.CaretPosition(), 0);
  stage.Key(key::kEnd, kShift);
  EXPECT_EQ(box.SelText(), "def");
}

TEST_F(TextBoxTest, AnArrowWithoutShiftLeavesTheSelectionAtThatEnd) {
  Begin("abcdef");
  Select(1, 3);
  stage.Key(key::kLeft);
  EXPECT_EQ(box.SelStart(), 1);
  EXPECT_EQ(box.SelLength(), 0);
  Select(1, 3);
  stage.Key(key::kRight);
  EXPECT_EQ(box.SelStart(), 4);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxTest, ControlWithArrowsMovesByWords) {
  Begin("tinte rojo  cobre");
  stage.Key(key::kRight, kControl);
  EXPECT_EQ(box.SelStart(), 6);
  stage.Key(key::kRight, kControl);
  EXPECT_EQ(box.SelStart(), 12);
  stage.Key(key::kRight, kControl);
  EXPECT_EQ(box.SelStart(), 17);
  stage.Key(key::kLeft, kControl);
  EXPECT_EQ(box.SelStart(), 12);
  stage.Key(key::kLeft, kControl | kShift);
  EXPECT_EQ(box.SelText(), "rojo  ");
}

TEST_F(TextBoxTest, ControlBackspaceAndControlDeleteTakeAWord) {
  Begin("tinte rojo cobre");
  box.SelStart(10);
  stage.Key(key::kBack, kControl);
  EXPECT_EQ(box.Text(), "tinte  cobre");
  box.SelStart(0);
  stage.Key(key::kDelete, kControl);
  EXPECT_EQ(box.Text(), "cobre");
}

TEST_F(TextBoxTest, ClipboardKeysSelectCopyCutAndPaste) {
  Begin("champú");
  stage.Key('A', kControl);
  EXPECT_EQ(box.SelText(), "champú");
  stage.Key('C', kControl);
  EXPECT_EQ(stage.host.ClipboardText(), "champú");
  EXPECT_EQ(changes, 0);
  stage.Key('X', kControl);
  EXPECT_EQ(box.Text(), "");
  stage.Key('V', kControl);
  stage.Key('V', kControl);
  EXPECT_EQ(box.Text(), "champúchampú");
  EXPECT_EQ(changes, 3);
}

TEST_F(TextBoxTest, TheOlderClipboardKeysDoTheSame) {
  Begin("abc");
  Select(0, 2);
  stage.Key(key::kInsert, kControl);
  EXPECT_EQ(stage.host.ClipboardText(), "ab");
  Select(1, 2);
  stage.Key(key::kDelete, kShift);
  EXPECT_EQ(box.Text(), "a");
  EXPECT_EQ(stage.host.ClipboardText(), "bc");
  stage.Key(key::kInsert, kShift);
  EXPECT_EQ(box.Text(), "abc");
}

TEST_F(TextBoxTest, CopyWithNothingSelectedKeepsTheClipboard) {
  stage.host.ClipboardText("antes");
  Begin("abc");
  stage.Key('C', kControl);
  stage.Key('X', kControl);
  EXPECT_EQ(stage.host.ClipboardText(), "antes");
  EXPECT_EQ(box.Text(), "abc");
}

TEST_F(TextBoxTest, APasteOfSeveralLinesTakesTheFirst) {
  stage.host.ClipboardText("8410001\r\n8410002\r\n");
  stage.Key('V', kControl);
  EXPECT_EQ(box.Text(), "8410001");
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, ControlZTakesBackTheLastEditAndThenTheTakingBack) {
  Begin("uno");
  box.SelStart(3);
  stage.Type(" dos");
  stage.Key('Z', kControl);
  EXPECT_EQ(box.Text(), "uno");
  stage.Key('Z', kControl);
  EXPECT_EQ(box.Text(), "uno dos");
  Select(0, 4);
  stage.Key(key::kDelete);
  EXPECT_EQ(box.Text(), "dos");
  changes = 0;
  stage.Key('Z', kControl);
  EXPECT_EQ(box.Text(), "uno dos");
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, WhatCodeWroteIsNotTakenBack) {
  stage.Type("uno");
  box.Text("dos");
  stage.Key('Z', kControl);
  EXPECT_EQ(box.Text(), "dos");
}

TEST_F(TextBoxTest, MaxLengthCutsTypingPastingAndAssignments) {
  box.MaxLength(4);
  stage.Type("abñdef");
  EXPECT_EQ(box.Text(), "abñd");
  Select(1, 2);
  stage.host.ClipboardText("123456");
  stage.Key('V', kControl);
  EXPECT_EQ(box.Text(), "a12d");
  box.Text("ñandúes");
  EXPECT_EQ(box.Text(), "ñand");
}

TEST_F(TextBoxTest, ALockedBoxTakesNoEditWhateverKeyArrives) {
  stage.Type("16/11/2026");
  box.Locked(true);
  changes = 0;
  stage.host.ClipboardText("x");
  for (int ascii = 1; ascii < 256; ++ascii) {
    stage.form->KeyPress(ascii, 0);
    stage.form->Character(static_cast<char32_t>(ascii));
    stage.form->KeyRelease(ascii, 0);
    if (!box.HasFocus()) box.SetFocus();  // Tab moved it away
  }
  stage.Key(key::kInsert, kShift);
  Select(0, 3);
  stage.Key(key::kDelete, kShift);
  stage.Key(key::kDelete, kControl);
  stage.Key(key::kBack, kControl);
  EXPECT_EQ(box.Text(), "16/11/2026");
  EXPECT_EQ(changes, 0);
}

TEST_F(TextBoxTest, ALockedBoxStillSelectsCopiesShowsACaretAndTakesTextFromCode) {
  Begin("16/11/2026");
  box.Locked(true);
  stage.Key(key::kEnd);
  stage.Key(key::kHome, kShift);
  stage.Key('C', kControl);
  EXPECT_EQ(stage.host.ClipboardText(), "16/11/2026");
  EXPECT_TRUE(stage.host.WindowOf(*stage.form)->LastCaret().has_value());
  box.Text("17/11/2026");
  EXPECT_EQ(box.Text(), "17/11/2026");
}

TEST_F(TextBoxTest, SelTextReplacesTheSelectionAlsoInALockedBox) {
  Begin("uno dos");
  box.Locked(true);
  Select(4, 3);
  box.SelText("tres");
  EXPECT_EQ(box.Text(), "uno tres");
  EXPECT_EQ(box.SelStart(), 8);
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, AKeyThatAHandlerTookDoesNothing) {
  box.OnKeyDown = [](int& code, int) {
    if (code == key::kDelete || code == key::kRight) code = 0;
  };
  box.OnKeyPress = [](int& ascii) {
    if (ascii == 'x' || ascii == character::kPaste) ascii = 0;
    if (ascii == '.') ascii = ',';
  };
  stage.host.ClipboardText("pegado");
  Begin("ab");
  stage.Key(key::kDelete);
  stage.Key(key::kRight);
  EXPECT_EQ(box.SelStart(), 0);
  stage.Type("x1.5");
  stage.Key(key::kInsert, kShift);
  EXPECT_EQ(box.Text(), "1,5ab");
}

TEST_F(TextBoxTest, ADisabledOrHiddenBoxTakesNothing) {
  box.Enabled(false);
  EXPECT_FALSE(box.HasFocus());
  stage.Click(box);
  EXPECT_FALSE(box.HasFocus());
  box.Text("gris");
  EXPECT_EQ(Find(stage.Painted(), "text", "gris").color, stage.host.Resolve(system_color::kGrayText));
}

TEST_F(TextBoxTest, TheFormMayBeUnloadedInsideChange) {
  box.OnChange = [this] { stage.form->Unload(); };
  stage.Type("a");
  EXPECT_FALSE(stage.form->IsLoaded());
  stage.Type("b");
  EXPECT_EQ(box.Text(), "a");
  box.OnChange = nullptr;
  stage.Show();
  EXPECT_EQ(box.Text(), "");
}

TEST_F(TextBoxTest, AClickFindsItsPlaceInATextFarLongerThanTheBox) {
  Begin(std::string(20000, 'a') + "b");
  stage.Key(key::kEnd);
  stage.Click(box, {2990, 180});
  EXPECT_EQ(box.SelStart(), 20001);
  stage.Click(box, {20, 180});
  EXPECT_GT(box.SelStart(), 19900);
  EXPECT_LT(box.SelStart(), 20001);
}

// The desktop's menu and its middle button.

class TextBoxMenuTest : public TextBoxTest {
 protected:
  void SetUp() override {
    TextBoxTest::SetUp();
    stage.host.OnEditMenu = [this](const EditMenu& menu) {
      offered = menu;
      return choice;
    };
    box.OnKeyPress = [this](int& ascii) {
      keys.push_back(ascii);
      if (refuse) ascii = 0;
    };
  }
  void ClickWith(int button, Point local = {600, 180}) {
    stage.form->MousePress(Stage::At(box, local), button, 0, false);
    stage.form->MouseRelease(Stage::At(box, local), button, 0);
  }

  std::optional<EditCommand> choice;
  std::optional<EditMenu> offered;
  std::vector<int> keys;
  bool refuse = false;
};

TEST_F(TextBoxMenuTest, ARightClickOffersWhatTheBoxCanDoNow) {
  Begin("uno dos");
  stage.host.ClipboardText("");
  ClickWith(mouse_button::kRight);
  ASSERT_TRUE(offered.has_value());
  EXPECT_FALSE(offered->cut || offered->copy || offered->paste);
  EXPECT_TRUE(offered->select_all);
  stage.host.ClipboardText("x");
  Select(0, 3);
  ClickWith(mouse_button::kRight);
  EXPECT_TRUE(offered->cut && offered->copy && offered->paste && offered->select_all);
  Select(0, 7);
  ClickWith(mouse_button::kRight);
  EXPECT_FALSE(offered->select_all);
  EXPECT_EQ(box.SelLength(), 7);
}

TEST_F(TextBoxMenuTest, ALockedBoxOffersToCopyAndToSelectOnly) {
  Begin("16/11/2026");
  box.Locked(true);
  stage.host.ClipboardText("x");
  Select(0, 2);
  ClickWith(mouse_button::kRight);
  ASSERT_TRUE(offered.has_value());
  EXPECT_FALSE(offered->cut || offered->paste);
  EXPECT_TRUE(offered->copy && offered->select_all);
}

TEST_F(TextBoxMenuTest, WhatIsChosenIsDone) {
  Begin("uno dos");
  Select(0, 4);
  choice = EditCommand::kCopy;
  ClickWith(mouse_button::kRight);
  EXPECT_EQ(stage.host.ClipboardText(), "uno ");
  choice = EditCommand::kCut;
  ClickWith(mouse_button::kRight);
  EXPECT_EQ(box.Text(), "dos");
  choice = EditCommand::kPaste;
  ClickWith(mouse_button::kRight);
  EXPECT_EQ(box.Text(), "uno dos");
  choice = EditCommand::kSelectAll;
  ClickWith(mouse_button::kRight);
  EXPECT_EQ(box.SelLength(), 7);
  EXPECT_EQ(keys, (std::vector<int>{character::kCut, character::kPaste}));
}

TEST_F(TextBoxMenuTest, APasteFromTheMenuPassesTheFilterOfThePasteKeys) {
  Begin("4");
  stage.Key(key::kTab);
  box.SetFocus();
  refuse = true;
  stage.host.ClipboardText("abc");
  choice = EditCommand::kPaste;
  ClickWith(mouse_button::kRight);
  EXPECT_EQ(box.Text(), "4");
  EXPECT_EQ(keys, std::vector<int>{character::kPaste});
}

TEST_F(TextBoxMenuTest, AMenuThatIsClosedChangesNothingAndTheNextClickIsAWholeOne) {
  Begin("uno");
  ClickWith(mouse_button::kRight);
  EXPECT_EQ(box.Text(), "uno");
  int clicks = 0;
  box.OnClick = [&clicks] { ++clicks; };
  stage.Click(box);
  EXPECT_EQ(clicks, 1);
}

TEST_F(TextBoxMenuTest, TheKeysForMenusOpenItToo) {
  choice = EditCommand::kSelectAll;
  Begin("uno");
  stage.Key(key::kMenu);
  EXPECT_EQ(box.SelLength(), 3);
  Select(0, 0);
  stage.Key(key::kF10, kShift);
  EXPECT_EQ(box.SelLength(), 3);
  Select(0, 0);
  stage.Key(key::kF10);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxMenuTest, TheFormMayGoWhileTheMenuIsUp) {
  Begin("uno");
  Select(0, 3);
  stage.host.OnEditMenu = [this](const EditMenu&) {
    stage.form->Unload();
    return EditCommand::kCut;
  };
  ClickWith(mouse_button::kRight);
  EXPECT_FALSE(stage.form->IsLoaded());
  EXPECT_TRUE(keys.empty());
}

TEST_F(TextBoxMenuTest, WhatTheUserSelectsIsTheDesktopsSelectionWhatCodeSelectsIsNot) {
  Begin("uno dos");
  Select(0, 7);
  EXPECT_EQ(stage.host.SelectedText(), "");
  stage.DoubleClick(box, {40, 180});
  EXPECT_EQ(stage.host.SelectedText(), "uno");
  stage.Press(box, {20, 180});
  stage.Drag(box, {2900, 180});
  stage.Release(box, {2900, 4000});
  EXPECT_EQ(stage.host.SelectedText(), "uno dos");
  stage.Key(key::kHome);
  stage.Key(key::kRight, kShift);
  EXPECT_EQ(stage.host.SelectedText(), "u");
  stage.Key('A', kControl);
  EXPECT_EQ(stage.host.SelectedText(), "uno dos");
  stage.Click(box);
  EXPECT_EQ(stage.host.SelectedText(), "uno dos");
}

TEST_F(TextBoxMenuTest, TheMiddleButtonPastesTheSelectionWhereItClicksThroughTheFilter) {
  Begin("12");
  Select(0, 2);
  stage.host.SelectedText("34");
  stage.host.ClipboardText("99");
  ClickWith(mouse_button::kMiddle, {2900, 180});
  EXPECT_EQ(box.Text(), "1234");
  EXPECT_EQ(keys, std::vector<int>{character::kPaste});
  refuse = true;
  ClickWith(mouse_button::kMiddle, {2900, 180});
  EXPECT_EQ(box.Text(), "1234");
  refuse = false;
  stage.Key('V', kControl);
  EXPECT_EQ(box.Text(), "123499");
  box.Locked(true);
  ClickWith(mouse_button::kMiddle);
  EXPECT_EQ(box.Text(), "123499");
}

}  // namespace
}  // namespace orvendal::testing
