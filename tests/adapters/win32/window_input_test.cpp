#include "tests/adapters/win32/win32_fixture.h"

#include <imm.h>

#include <algorithm>
#include <stdexcept>

#include "platform/forms/keys.h"

namespace orvendal {
namespace {

class WindowInputOnWindows : public Win32FormTest {};

TEST_F(WindowInputOnWindows, AClickArrivesAtItsPlaceInTwips) {
  ShowForm();
  form->LogMouseWithPlaces(form->right);
  Press(210, 20, MK_LBUTTON | MK_SHIFT);
  Release(210, 20, MK_SHIFT);
  EXPECT_EQ(form->log, (Log{"down 1 1 150 300", "up", "click"}));
}

TEST_F(WindowInputOnWindows, TheSecondPressOfADoubleClickIsNoPressOfItsOwn) {
  ShowForm();
  form->LogMouse(form->left);
  Click(10, 10);
  Post(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
  Release(10, 10);
  EXPECT_EQ(form->log, (Log{"down", "up", "click", "double", "up"}));
}

TEST_F(WindowInputOnWindows, TheSystemTellsDoubleClicksToThisWindow) {
  ShowForm();
  EXPECT_NE(GetClassLongPtrW(Window(), GCL_STYLE) & CS_DBLCLKS, 0U);
}

TEST_F(WindowInputOnWindows, ADragOutOfTheWindowStaysWithTheControl) {
  ShowForm();
  form->left.OnMouseMove = [this](int buttons, int, double x, double) {
    form->Note("move " + std::to_string(buttons) + " " + std::to_string(static_cast<int>(x)));
  };
  form->left.OnMouseUp = [this](int, int, double, double) { form->Note("up"); };
  form->left.OnClick = [this] { form->Note("click"); };
  Press(10, 10);
  EXPECT_EQ(GetCapture(), Window());
  form->log.clear();
  Post(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-20, 10));
  Pump();
  Release(-20, 10);
  ASSERT_GE(form->log.size(), 2U);
  EXPECT_EQ(form->log[0], "move 1 -300");
  EXPECT_EQ(form->log[1], "up");
  EXPECT_EQ(std::count(form->log.begin(), form->log.end(), "click"), 0);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowInputOnWindows, AMouseThatIsTakenAwayEndsThePressWithoutAClick) {
  ShowForm();
  form->LogMouse(form->left);
  Press(10, 10);
  ReleaseCapture();
  Pump();
  EXPECT_EQ(form->log, (Log{"down", "up"}));
  Click(10, 10);
  EXPECT_EQ(form->log, (Log{"down", "up", "down", "up", "click"}));
}

TEST_F(WindowInputOnWindows, TheWheelTurnedTowardsTheUserScrollsDown) {
  ShowForm();
  UINT lines = 0;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  POINT place{10, 10};
  ClientToScreen(Window(), &place);
  Post(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), MAKELPARAM(place.x, place.y));
  Pump();
  EXPECT_DOUBLE_EQ(form->left.wheel_lines, lines);
}

TEST_F(WindowInputOnWindows, SmallTurnsOfTheWheelAddUpToWholeLines) {
  ShowForm();
  UINT lines = 0;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  ASSERT_EQ(lines, 3U);
  POINT place{10, 10};
  ClientToScreen(Window(), &place);
  for (int i = 0; i < 5; ++i) Post(WM_MOUSEWHEEL, MAKEWPARAM(0, -24), MAKELPARAM(place.x, place.y));
  Pump();
  EXPECT_DOUBLE_EQ(form->left.wheel_lines, 3);
  Post(WM_MOUSEWHEEL, MAKEWPARAM(0, 24), MAKELPARAM(place.x, place.y));
  Pump();
  EXPECT_DOUBLE_EQ(form->left.wheel_lines, 3) << "less than a line";
}

// Each line of a small turn was a month: a touchpad over the calendar flew a season a notch.
TEST_F(WindowInputOnWindows, ATouchpadTurnsACalendarByAMonthANotch) {
  const auto months = std::make_shared<CalendarForm>(host);
  months->Show();
  Pump();
  const HWND window = host.HandleOf(*months);
  POINT place{10, 200};
  ClientToScreen(window, &place);
  for (int turn = 0; turn < 12; ++turn) {
    PostMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(0, -10), MAKELPARAM(place.x, place.y));
  }
  Pump();
  EXPECT_EQ(months->calendar.ViewMonth(), Date(2026, 12, 1));
  months->Unload();
}

TEST_F(WindowInputOnWindows, ThePointerTakesTheShapeOfWhatLiesUnderIt) {
  ShowForm();
  const auto shape_at = [this](int x, int y) {
    SendMessageW(Window(), WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
    SendMessageW(Window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Window()),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
  };
  EXPECT_EQ(shape_at(10, 10), LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_IBEAM)));
  EXPECT_EQ(shape_at(10, 250), LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW)));
}

TEST_F(WindowInputOnWindows, AKeyIsPressedThenWrittenThenReleased) {
  ShowForm();
  form->LogKeys();
  Key('A');
  Key(VK_F1);
  Key(VK_RETURN);
  EXPECT_EQ(form->log,
            (Log{"down 65", "press 97", "up 65", "down 112", "up 112", "down 13", "press 13", "up 13"}));
  EXPECT_EQ(form->box.Text(), "a");
}

TEST_F(WindowInputOnWindows, KeysThatWaitInTheQueueKeepTheirOwnCharacters) {
  ShowForm();
  form->LogKeys();
  for (const WPARAM key : {'A', 'B'}) {
    Post(WM_KEYDOWN, key, 1);
    Post(WM_CHAR, key + 32, 1);
  }
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  EXPECT_EQ(form->log, (Log{"down 65", "press 97", "down 66", "press 98"}));
}

TEST_F(WindowInputOnWindows, ACharacterIsWrittenAfterAllThatItsKeyDid) {
  ShowForm();
  form->LogKeys();
  form->OnKeyDown = [this](int&, int) {
    form->Note("down");
    host.DoEvents();
    form->Note("done");
  };
  Post(WM_KEYDOWN, 'A', 1);
  Pump();
  EXPECT_EQ(form->log, (Log{"down", "done", "press 97"}));
}

TEST_F(WindowInputOnWindows, ADialogInsideAKeyDoesNotSwallowItsCharacter) {
  ShowForm();
  auto dialog = std::make_shared<ProbeForm>(host);
  form->box.OnKeyDown = [&](int&, int) {
    PostMessageW(Window(), WM_NULL, 0, 0);
    dialog->OnActivate = [&] { dialog->Hide(); };
    dialog->Show(ShowMode::kModal);
  };
  Key('A');
  EXPECT_EQ(form->box.Text(), "a");
  dialog->Unload();
}

TEST_F(WindowInputOnWindows, CharactersThatNeedTwoUnitsArriveAsOne) {
  ShowForm();
  Post(WM_CHAR, 0xD83D, 1);
  Post(WM_CHAR, 0xDE00, 1);
  Post(WM_CHAR, 0xDE00, 1);  // half a character is none
  Post(WM_CHAR, L'ñ', 1);
  Pump();
  EXPECT_EQ(form->box.Text(), "\xF0\x9F\x98\x80ñ");
  EXPECT_EQ(form->box.SelStart(), 2);
}

TEST_F(WindowInputOnWindows, ACharacterByItsCodePointIsTaken) {
  ShowForm();
  EXPECT_TRUE(SendMessageW(Window(), WM_UNICHAR, UNICODE_NOCHAR, 0));
  SendMessageW(Window(), WM_UNICHAR, 0x1F600, 0);
  EXPECT_EQ(form->box.Text(), "\xF0\x9F\x98\x80");
}

TEST_F(WindowInputOnWindows, TabGoesRoundTheControlsAndIsNoCharacter) {
  ShowForm();
  form->LogKeys();
  EXPECT_TRUE(form->box.HasFocus());
  Key(VK_TAB);
  EXPECT_TRUE(form->left.HasFocus());
  Key(VK_TAB);
  EXPECT_TRUE(form->right.HasFocus());
  Key(VK_TAB);
  EXPECT_TRUE(form->box.HasFocus());
  EXPECT_EQ(form->log, (Log{"up 9", "up 9", "up 9"}));
}

TEST_F(WindowInputOnWindows, ALoopThatKnowsDialogKeysLeavesThemToTheForm) {
  ShowForm();
  MSG tab{Window(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
  IsDialogMessageW(Window(), &tab);
  EXPECT_TRUE(form->left.HasFocus());
}

TEST_F(WindowInputOnWindows, AltF4AsksTheFormToClose) {
  ShowForm();
  int asked = 0;
  form->OnCloseRequest = [&] { ++asked; };
  Post(WM_SYSKEYDOWN, VK_F4, 0x20000001);
  Pump();
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(form->IsLoaded());
}

TEST_F(WindowInputOnWindows, TheMenuKeysAreKeysOfTheForm) {
  ShowForm();
  form->LogKeys();
  Post(WM_SYSKEYDOWN, VK_F10, 1);
  Post(WM_SYSKEYUP, VK_F10, static_cast<LPARAM>(0xC0000001));
  Post(WM_SYSKEYDOWN, VK_MENU, 0x20000001);
  Post(WM_SYSKEYUP, VK_MENU, static_cast<LPARAM>(0xC0000001));
  Pump();
  Key('A');
  EXPECT_EQ(form->log, (Log{"down 121", "up 121", "down 18+4", "up 18", "down 65", "press 97", "up 65"}));
}

TEST_F(WindowInputOnWindows, AKeyHeldDownRepeatsWithoutBeingReleased) {
  ShowForm();
  form->LogKeys();
  Post(WM_KEYDOWN, 'A', 1);
  Pump();
  Post(WM_KEYDOWN, 'A', 0x40000001);
  Pump();
  EXPECT_EQ(form->log, (Log{"down 65", "press 97", "down 65", "press 97"}));
}

TEST_F(WindowInputOnWindows, AFormThatUnloadsInsideAnyInputLeavesNothingToTouch) {
  const auto check = [this](UINT message, WPARAM wparam, LPARAM lparam) {
    auto victim = std::make_shared<ProbeForm>(host);
    const auto unload = [&] { victim->Unload(); };
    victim->OnKeyDown = [&](int&, int) { unload(); };
    victim->OnKeyPress = [&](int&) { unload(); };
    victim->OnKeyUp = [&](int&, int) { unload(); };
    victim->left.OnMouseDown = [&](int, int, double, double) { unload(); };
    victim->left.OnMouseMove = [&](int, int, double, double) { unload(); };
    victim->OnCloseRequest = unload;
    victim->Show();
    Pump();
    const HWND window = host.HandleOf(*victim);
    SendMessageW(window, message, wparam, lparam);
    Pump();
    EXPECT_FALSE(victim->IsLoaded()) << message;
    EXPECT_FALSE(IsWindow(window)) << message;
  };
  check(WM_KEYDOWN, 'A', 1);
  check(WM_CHAR, 'a', 1);
  check(WM_KEYUP, 'A', 1);
  check(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  check(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  check(WM_CLOSE, 0, 0);
  check(WM_SYSKEYDOWN, VK_F4, 0x20000001);
  EXPECT_TRUE(errors.empty());
}

TEST_F(WindowInputOnWindows, AnErrorInAnEventIsReportedAndTheWindowGoesOn) {
  ShowForm();
  form->left.OnClick = [] { throw RuntimeError(13); };
  form->OnCloseRequest = [] { throw std::runtime_error("broken"); };
  Click(10, 10);
  SendMessageW(Window(), WM_CLOSE, 0, 0);
  ASSERT_EQ(errors.size(), 2U);
  EXPECT_EQ(errors[0].Number(), 13);
  EXPECT_EQ(errors[1].Number(), 51);
  EXPECT_EQ(errors[1].Description(), "broken");
  Key('A');
  EXPECT_EQ(form->box.Text(), "");
  EXPECT_TRUE(form->left.HasFocus());
}

TEST_F(WindowInputOnWindows, TheCaretOfTheSystemStandsWhereTheTextGoesOn) {
  ShowForm();
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  const auto caret = [&] {
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return info.rcCaret;
  };
  const RECT first = caret();
  EXPECT_EQ(info.hwndCaret, Window());
  EXPECT_GT(first.left, 14);
  EXPECT_GE(first.top, 150);
  EXPECT_LE(first.bottom, 180);
  Key('W');
  EXPECT_GT(caret().left, first.left + 4);
  EXPECT_EQ(caret().left, static_cast<LONG>(form->CaretRectangle()->left / kTwipsPerPixel));
  Key(VK_TAB);
  caret();
  EXPECT_EQ(info.hwndCaret, nullptr) << "a picture has no caret";
}

TEST_F(WindowInputOnWindows, AnInputMethodWritesAtTheCaret) {
  ShowForm();
  Key('W');
  Key('W');
  const HIMC context = ImmGetContext(Window());
  ASSERT_NE(context, nullptr);
  COMPOSITIONFORM place{};
  EXPECT_TRUE(ImmGetCompositionWindow(context, &place));
  ImmReleaseContext(Window(), context);
  const Rect caret = *form->CaretRectangle();
  EXPECT_EQ(place.dwStyle, static_cast<DWORD>(CFS_POINT));
  EXPECT_EQ(place.ptCurrentPos.x, static_cast<LONG>(caret.left / kTwipsPerPixel));
  EXPECT_EQ(place.ptCurrentPos.y, static_cast<LONG>(caret.top / kTwipsPerPixel));
}

TEST_F(WindowInputOnWindows, WithoutTheKeyboardThereIsNoCaret) {
  ShowForm();
  SetFocus(nullptr);
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  GetGUIThreadInfo(GetCurrentThreadId(), &info);
  EXPECT_EQ(info.hwndCaret, nullptr);
  SetFocus(Window());
  GetGUIThreadInfo(GetCurrentThreadId(), &info);
  EXPECT_EQ(info.hwndCaret, Window());
}

}  // namespace
}  // namespace orvendal
