#include "adapters/win32/module_use.h"
#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

constexpr WORD kRefresh = 77;

/// A dialog of the host program with two fields, as its designer makes them, and a frame that has
/// accelerators.
class HostDialog {
 public:
  HostDialog() {
    dialog_ = CreateWindowExW(WS_EX_CONTROLPARENT, L"#32770", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 500,
                              500, 300, 150, nullptr, nullptr, nullptr, nullptr);
    for (int i = 0; i < 2; ++i) {
      CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 5, 5 + 30 * i, 100, 25, dialog_,
                      nullptr, nullptr, nullptr);
    }
    SetWindowLongPtrW(dialog_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    inner_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(dialog_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
    ACCEL refresh{FVIRTKEY, VK_F5, kRefresh};
    accelerators_ = CreateAcceleratorTableW(&refresh, 1);
  }
  ~HostDialog() {
    DestroyAcceleratorTable(accelerators_);
    DestroyWindow(dialog_);
  }
  HWND Handle() const { return dialog_; }

  /// The loop that every book has.
  void Turn() const {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (TranslateAcceleratorW(dialog_, accelerators_, &message)) continue;
      if (IsDialogMessageW(dialog_, &message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  int refreshed = 0;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    auto* self = reinterpret_cast<HostDialog*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_COMMAND && LOWORD(wparam) == kRefresh) ++self->refreshed;
    return CallWindowProcW(self->inner_, window, message, wparam, lparam);
  }
  HWND dialog_ = nullptr;
  HACCEL accelerators_ = nullptr;
  WNDPROC inner_ = nullptr;
};

class LoopsOnWindows : public Win32FormTest {
 protected:
  /// Runs `action` at the next turn of whatever message loop turns.
  void Later(std::function<void()> action) {
    later = std::move(action);
    SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR identifier, DWORD) CALLBACK {
      KillTimer(nullptr, identifier);
      std::exchange(later, nullptr)();
    });
  }
  static inline std::function<void()> later;
};

TEST_F(LoopsOnWindows, ALoopWithDialogsAndAcceleratorsLeavesTheFormItsKeys) {
  HostDialog program;
  ShowForm();
  form->OnKeyPress = [this](int& ascii) { form->Note("press " + std::to_string(ascii)); };
  for (const WPARAM key : {static_cast<WPARAM>('A'), static_cast<WPARAM>(VK_RETURN),
                           static_cast<WPARAM>(VK_ESCAPE), static_cast<WPARAM>(VK_TAB)}) {
    Post(WM_KEYDOWN, key, 1);
    Post(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    program.Turn();
  }
  EXPECT_EQ(form->log, (Log{"press 97", "press 13", "press 27"}));
  EXPECT_TRUE(form->left.HasFocus()) << "Tab went to the form, not to the host's dialog";
  EXPECT_TRUE(IsWindow(program.Handle())) << "Esc closed nothing";
  Post(WM_KEYDOWN, VK_F5, 1);
  program.Turn();
  EXPECT_EQ(program.refreshed, 1) << "what the host takes for itself it keeps";
}

TEST_F(LoopsOnWindows, AHostThatShutsTheWindowForItsOwnDialogGetsNoInputThere) {
  HostDialog program;
  ShowForm();
  form->left.OnClick = [this] { form->Note("click"); };
  EnableWindow(Window(), FALSE);
  form->Show();
  EXPECT_NE(GetFocus(), Window()) << "raising it does not turn the host's dialog round";
  EXPECT_FALSE(IsWindowEnabled(Window()));
  EnableWindow(Window(), TRUE);
  form->Show();
  EXPECT_EQ(GetFocus(), Window());
  Click(10, 10);
  EXPECT_EQ(form->log, (Log{"click"}));
}

TEST_F(LoopsOnWindows, ADialogThatAKeyOpensWhileAButtonIsHeldLeavesNothingPressed) {
  ShowForm();
  auto dialog = std::make_shared<ProbeForm>(host);
  form->left.OnMouseUp = [this](int, int, double, double) { form->Note("up"); };
  form->left.OnClick = [this] { form->Note("click"); };
  const std::vector<std::function<void()>> openers = {
      [&] {
        Later([&] { dialog->Hide(); });
        dialog->Show(ShowMode::kModal);
      },
      [&] {
        Later([] { PostMessageW(FindWindowW(L"#32770", L"Recuento"), WM_COMMAND, IDOK, 0); });
        host.ShowMessage("¿Seguro?", MB_OK, "");
      }};
  for (const auto& open : openers) {
    form->log.clear();
    form->OnKeyDown = [&](int&, int) { open(); };
    Press(10, 10);
    Key(VK_F1);
    EXPECT_EQ(form->log, (Log{"up"})) << "the dialog has the release, and nothing was clicked";
    form->OnKeyDown = nullptr;
    form->log.clear();
    Click(10, 10);
    EXPECT_EQ(form->log, (Log{"up", "click"})) << "the next click is a click";
  }
}

TEST_F(LoopsOnWindows, AHostThatDestroysTheWindowUnderADialogEndsBoth) {
  ShowForm();
  auto dialog = std::make_shared<ProbeForm>(host);
  form->left.OnClick = [&] {
    Later([&] { DestroyWindow(Window()); });
    dialog->Show(ShowMode::kModal);
    form->Note("back");
  };
  Click(10, 10);
  EXPECT_EQ(form->log, (Log{"back"}));
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_FALSE(dialog->IsLoaded());
  EXPECT_FALSE(ModuleIsInUse());
}

TEST_F(LoopsOnWindows, AFormThatWillNotGoWithItsWindowGetsANewOne) {
  ShowForm();
  form->OnUnload = [](int& cancel) { cancel = 1; };
  const HWND first = Window();
  DestroyWindow(first);
  EXPECT_FALSE(IsWindow(first));
  EXPECT_TRUE(form->IsLoaded());
  EXPECT_FALSE(form->Visible());
  form->Show();
  Pump();
  EXPECT_TRUE(IsWindowVisible(Window()));
  Key('A');
  EXPECT_EQ(form->box.Text(), "a");
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  GetGUIThreadInfo(GetCurrentThreadId(), &info);
  EXPECT_EQ(info.hwndCaret, Window()) << "with a caret of its own";
  form->OnUnload = nullptr;
}

TEST_F(LoopsOnWindows, AFormThatComesBackAsADialogHasItsCaret) {
  ShowForm();
  form->Hide();
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  Later([&] {
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    form->Hide();
  });
  form->Show(ShowMode::kModal);
  EXPECT_EQ(info.hwndCaret, Window());
}

TEST_F(LoopsOnWindows, AWindowClassGoesEvenAfterAWindowThatWasClosedInItsOwnMessage) {
  ShowForm();
  DestroyWindow(Window());
  EXPECT_FALSE(ModuleIsInUse());
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  EXPECT_FALSE(GetClassInfoExW(ThisModule(), L"OrvendalForm", &description));
}

TEST_F(LoopsOnWindows, AProgramThatQuitsUnderTwoDialogsEndsBothAndQuits) {
  ShowForm();
  auto first = std::make_shared<ProbeForm>(host);
  auto second = std::make_shared<ProbeForm>(host);
  form->left.OnClick = [&] {
    Later([&] {
      Later([] { PostQuitMessage(9); });
      second->Show(ShowMode::kModal);
      form->Note("second");
    });
    first->Show(ShowMode::kModal);
    form->Note("first");
  };
  Post(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
  Post(WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
  MSG message{};
  int turns = 0;
  while (GetMessageW(&message, nullptr, 0, 0) > 0 && ++turns < 1000) DispatchMessageW(&message);
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 9U);
  EXPECT_EQ(form->log, (Log{"second", "first"}));
  EXPECT_TRUE(IsWindowEnabled(Window()));
}

TEST_F(LoopsOnWindows, WhateverAHandlerThrowsStaysInTheWindow) {
  ShowForm();
  form->OnKeyDown = [](int&, int) { throw 42; };
  form->OnKeyPress = [](int&) { throw std::bad_alloc(); };
  form->left.OnMouseMove = [](int, int, double, double) { throw std::string("text"); };
  form->left.OnMouseDown = [](int, int, double, double) { throw RuntimeError(9); };
  form->OnCloseRequest = [] { throw nullptr; };
  SendMessageW(Window(), WM_KEYDOWN, 'A', 1);
  SendMessageW(Window(), WM_CHAR, 'a', 1);
  SendMessageW(Window(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageW(Window(), WM_CLOSE, 0, 0);
  std::vector<int> numbers;
  for (const RuntimeError& error : errors) numbers.push_back(error.Number());
  EXPECT_EQ(numbers, (std::vector<int>{51, 51, 51, 9, 51}));
  form->left.OnPaint = [] { throw 42; };
  form->left.Color({0, 255, 0});
  Pump();
  form->left.OnPaint = nullptr;
  form->OnKeyDown = nullptr;
  form->OnKeyPress = nullptr;
  form->box.SetFocus();
  Key('B');
  EXPECT_EQ(form->box.Text(), "b");
}

TEST_F(LoopsOnWindows, ASessionThatEndsClosesWhatTheCloseButtonWouldClose) {
  ShowForm();
  form->OnCloseRequest = [this] { form->Unload(); };
  EXPECT_NE(SendMessageW(Window(), WM_QUERYENDSESSION, 0, 0), 0);
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(LoopsOnWindows, ASessionThatEndsIsKeptByAScreenThatStaysOpenOnItsQuestion) {
  ShowForm();
  int asked = 0;
  form->OnCloseRequest = [&] { ++asked; };
  EXPECT_EQ(SendMessageW(Window(), WM_QUERYENDSESSION, 0, 0), 0);
  SendMessageW(Window(), WM_ENDSESSION, FALSE, 0);
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(form->IsLoaded());
  const auto critical = static_cast<LPARAM>(static_cast<LONG>(ENDSESSION_CRITICAL));
  EXPECT_NE(SendMessageW(Window(), WM_QUERYENDSESSION, 0, critical), 0);
  EXPECT_EQ(asked, 1) << "nobody can answer any more";
}

TEST_F(LoopsOnWindows, ASessionThatEndsIsKeptByAScreenUnderADialog) {
  ShowForm();
  int asked = 0;
  form->OnCloseRequest = [&] { ++asked; };
  LRESULT answer = TRUE;
  auto dialog = std::make_shared<ProbeForm>(host);
  Later([&] {
    answer = SendMessageW(Window(), WM_QUERYENDSESSION, 0, 0);
    dialog->Hide();
  });
  dialog->Show(ShowMode::kModal);
  EXPECT_EQ(answer, 0);
  EXPECT_EQ(asked, 0);
}

TEST_F(LoopsOnWindows, AClipboardThatAnotherProgramHoldsIsLeftAlone) {
  ShowForm();
  host.ClipboardText("antes");
  HANDLE events[2] = {CreateEventW(nullptr, TRUE, FALSE, nullptr),
                      CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  const HANDLE thread = CreateThread(
      nullptr, 0,
      [](void* parameter) WINAPI -> DWORD {
        auto* both = static_cast<HANDLE*>(parameter);
        const BOOL opened = OpenClipboard(nullptr);
        SetEvent(both[0]);
        WaitForSingleObject(both[1], 5000);
        if (opened) CloseClipboard();
        return 0;
      },
      events, 0, nullptr);
  WaitForSingleObject(events[0], 5000);
  host.ClipboardText("después");
  EXPECT_EQ(host.ClipboardText(), "");
  SetEvent(events[1]);
  WaitForSingleObject(thread, 5000);
  EXPECT_EQ(host.ClipboardText(), "antes");
  CloseHandle(thread);
  for (const HANDLE event : events) CloseHandle(event);
}

}  // namespace
}  // namespace orvendal
