#include "platform/forms/keys.h"
#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

class TypingOnWindows : public Win32FormTest {
 protected:
  void LogKeys() {
    form->LogKeys();
    form->OnKeyUp = nullptr;
  }
  /// Keys as the keyboard of this thread has them while `action` runs.
  void WithKeysDown(const std::vector<int>& keys, const std::function<void()>& action) {
    BYTE before[256] = {}, now[256] = {};
    GetKeyboardState(before);
    for (const int key : keys) now[key] = 0x80;
    SetKeyboardState(now);
    action();
    SetKeyboardState(before);
  }
  /// A key with the character that the system has made of it already.
  void PostKey(WPARAM key, const std::wstring& characters, UINT kind = WM_CHAR) {
    Post(WM_KEYDOWN, key, 1);
    for (const wchar_t unit : characters) Post(kind, unit, 1);
    Post(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  }
  void DispatchAll() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
};

TEST_F(TypingOnWindows, AnAccentAndItsLetterAreOneCharacter) {
  ShowForm();
  LogKeys();
  PostKey(VK_OEM_7, L"´", WM_DEADCHAR);
  PostKey('A', L"á");
  DispatchAll();
  EXPECT_EQ(form->box.Text(), "á");
  EXPECT_EQ(form->log, (Log{"down 222", "down 65", "press 225"}));
}

TEST_F(TypingOnWindows, AnAccentBeforeALetterThatBearsNoneIsWrittenBeforeIt) {
  ShowForm();
  LogKeys();
  PostKey(VK_OEM_7, L"´", WM_DEADCHAR);
  PostKey('X', L"´x");
  DispatchAll();
  EXPECT_EQ(form->box.Text(), "´x");
  EXPECT_EQ(form->log, (Log{"down 222", "down 88", "press 180", "press 120"}));
}

TEST_F(TypingOnWindows, TheThirdLevelOfAKeyboardIsNeitherCtrlNorAlt) {
  ShowForm();
  LogKeys();
  WithKeysDown({VK_CONTROL, VK_LCONTROL, VK_MENU, VK_RMENU}, [&] {
    Post(WM_KEYDOWN, 'E', 1);
    Post(WM_CHAR, L'€', 1);
    DispatchAll();
  });
  EXPECT_EQ(form->box.Text(), "€");
  EXPECT_EQ(form->log, (Log{"down 69", "press 8364"}));
}

TEST_F(TypingOnWindows, ACharacterByItsNumberComesWithTheEndOfTheMenuKey) {
  ShowForm();
  Post(WM_SYSKEYDOWN, VK_MENU, 0x20000001);
  for (const WPARAM digit : {VK_NUMPAD0, VK_NUMPAD2, VK_NUMPAD2, VK_NUMPAD5}) {
    Post(WM_SYSKEYDOWN, digit, 0x20000001);
    Post(WM_SYSKEYUP, digit, static_cast<LPARAM>(0xE0000001));
  }
  Post(WM_KEYUP, VK_MENU, static_cast<LPARAM>(0xC0000001));
  Post(WM_CHAR, L'á', 1);
  DispatchAll();
  EXPECT_EQ(form->box.Text(), "á");
}

TEST_F(TypingOnWindows, CtrlAndShiftAreToldWithTheKey) {
  ShowForm();
  LogKeys();
  WithKeysDown({VK_CONTROL, VK_LCONTROL, VK_SHIFT, VK_LSHIFT}, [&] {
    Post(WM_KEYDOWN, VK_HOME, 1);
    DispatchAll();
  });
  EXPECT_EQ(form->log, (Log{"down 36+3"}));
}

TEST_F(TypingOnWindows, WhatAnInputMethodWritesArrivesCharacterByCharacter) {
  ShowForm();
  for (const wchar_t unit : std::wstring(L"日á\xD83D\xDE00")) SendMessageW(Window(), WM_IME_CHAR, unit, 1);
  EXPECT_EQ(form->box.Text(), "日á\xF0\x9F\x98\x80") << "at once, not by messages that a loop may spoil";
}

TEST_F(TypingOnWindows, ACharacterWithoutAKeyIsNotTakenForThatOfTheKeyBefore) {
  ShowForm();
  Key(VK_TAB);
  form->box.SetFocus();
  SendMessageW(Window(), WM_IME_CHAR, L'ñ', 1);
  Key(VK_TAB);
  form->box.SetFocus();
  SendMessageW(Window(), WM_UNICHAR, U'ç', 1);
  Key(VK_TAB);
  form->box.SetFocus();
  SendMessageW(Window(), WM_CHAR, L'à', 1);
  EXPECT_EQ(form->box.Text(), "ñçà");
}

TEST_F(TypingOnWindows, ACodePointThatIsNoCharacterIsDropped) {
  ShowForm();
  for (const WPARAM code : {0xD83D, 0xDFFF, 0x110000}) SendMessageW(Window(), WM_UNICHAR, code, 0);
  EXPECT_EQ(form->box.Text(), "");
  SendMessageW(Window(), WM_UNICHAR, 0x10FFFD, 0);
  EXPECT_EQ(form->box.Text(), "\xF4\x8F\xBF\xBD");
}

TEST_F(TypingOnWindows, AHostsLoopOfOldCodePagesLosesNoLetter) {
  ShowForm();
  PostKey('J', L"Ж");
  PostKey('E', L"€");
  MSG message{};
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
  EXPECT_EQ(form->box.Text(), "Ж€");
}

TEST_F(TypingOnWindows, AMessageOfAnotherProgramMayCloseTheFormWhileAKeyLooksForItsCharacter) {
  ShowForm();
  form->OnCloseRequest = [this] { form->Unload(); };
  const HWND window = Window();
  HANDLE sent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  struct Closing {
    HWND window;
    HANDLE sent;
  } closing{window, sent};
  const HANDLE thread = CreateThread(
      nullptr, 0,
      [](void* parameter) WINAPI -> DWORD {
        const auto* what = static_cast<Closing*>(parameter);
        SetEvent(what->sent);
        SendMessageW(what->window, WM_CLOSE, 0, 0);
        return 0;
      },
      &closing, 0, nullptr);
  WaitForSingleObject(sent, 5000);
  Sleep(50);
  CallWindowProcW(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC)), window, WM_KEYDOWN, 'A',
                  1);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_EQ(WaitForSingleObject(thread, 5000), WAIT_OBJECT_0);
  CloseHandle(thread);
  CloseHandle(sent);
}

TEST_F(TypingOnWindows, ThePointerChangesItsShapeWithTheMoveThatBringsItThere) {
  ShowForm();
  const HCURSOR text = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_IBEAM));
  const HCURSOR arrow = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
  SendMessageW(Window(), WM_MOUSEMOVE, 0, MAKELPARAM(10, 10));
  EXPECT_EQ(GetCursor(), text);
  SendMessageW(Window(), WM_MOUSEMOVE, 0, MAKELPARAM(10, 250));
  EXPECT_EQ(GetCursor(), arrow);
}

TEST_F(TypingOnWindows, TheWheelObeysTheUsersSetting) {
  ShowForm();
  UINT before = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &before, 0);
  POINT place{10, 10};
  ClientToScreen(Window(), &place);
  const auto lines_with = [&](UINT setting) {
    SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, setting, nullptr, 0);
    form->left.wheel_lines = 0;
    SendMessageW(Window(), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), MAKELPARAM(place.x, place.y));
    return form->left.wheel_lines;
  };
  EXPECT_DOUBLE_EQ(lines_with(1), 1);
  EXPECT_DOUBLE_EQ(lines_with(7), 7);
  EXPECT_DOUBLE_EQ(lines_with(0), 0);
  EXPECT_GT(lines_with(WHEEL_PAGESCROLL), 5) << "a page";
  SystemParametersInfoW(SPI_SETWHEELSCROLLLINES, before, nullptr, 0);
}

}  // namespace
}  // namespace orvendal
