#include "adapters/win32/module_use.h"
#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

/// A window of the host program, such as any caller has.
class HostWindow {
 public:
  HostWindow()
      : window_(CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 500, 500, 200, 100,
                                nullptr, nullptr, nullptr, nullptr)) {}
  ~HostWindow() { DestroyWindow(window_); }
  HWND Handle() const { return window_; }

 private:
  HWND window_;
};

class HostOnWindows : public Win32FormTest {
 protected:
  /// Runs `action` at the next turn of whatever message loop turns.
  void Later(std::function<void()> action) {
    later.push_back(std::move(action));
    if (later_timer == 0) later_timer = SetTimer(nullptr, 0, 10, RunLater);
  }
  static void CALLBACK RunLater(HWND, UINT, UINT_PTR identifier, DWORD) {
    KillTimer(nullptr, identifier);
    later_timer = 0;
    const std::vector<std::function<void()>> actions = std::move(later);
    later.clear();
    for (const auto& action : actions) action();
  }
  ~HostOnWindows() override { later.clear(); }

  static inline std::vector<std::function<void()>> later;
  static inline UINT_PTR later_timer = 0;
};

TEST_F(HostOnWindows, TheScreenIsThePrimaryDisplayInTwips) {
  EXPECT_DOUBLE_EQ(host.ScreenWidth(), GetSystemMetrics(SM_CXSCREEN) * 15.0);
  EXPECT_DOUBLE_EQ(host.ScreenHeight(), GetSystemMetrics(SM_CYSCREEN) * 15.0);
}

TEST_F(HostOnWindows, ColoursAreTheSystems) {
  for (const int index : {COLOR_BTNFACE, COLOR_HIGHLIGHT, COLOR_WINDOW, COLOR_WINDOWTEXT}) {
    EXPECT_EQ(host.SystemColor(static_cast<std::uint32_t>(index)), GetSysColor(index));
  }
  const COLORREF before = GetSysColor(COLOR_HIGHLIGHT);
  const int which = COLOR_HIGHLIGHT;
  const COLORREF odd = RGB(1, 2, 3);
  SetSysColors(1, &which, &odd);
  EXPECT_EQ(host.Resolve(system_color::kHighlight), (Rgb{1, 2, 3}));
  SetSysColors(1, &which, &before);
}

TEST_F(HostOnWindows, TextsAreMeasuredInTwips) {
  const FontSpec font{"Bookman Old Style", 12, 600, false};
  EXPECT_DOUBLE_EQ(host.TextWidth(font, ""), 0);
  EXPECT_NEAR(host.TextWidth(font, "WWWW"), 4 * host.TextWidth(font, "W"), 1);
  EXPECT_DOUBLE_EQ(host.TextWidth(font, "a\tb"), host.TextWidth(font, "a b"));
  EXPECT_GE(host.LineHeight(font), 16 * kTwipsPerPixel);
  EXPECT_LE(host.LineHeight(font), 26 * kTwipsPerPixel);
}

TEST_F(HostOnWindows, TheClipboardKeepsLettersOfAnyLanguage) {
  ShowForm();
  host.ClipboardText("Año: ñandú € 😀");
  EXPECT_EQ(host.ClipboardText(), "Año: ñandú € 😀");
  host.ClipboardText("");
  EXPECT_EQ(host.ClipboardText(), "");
}

TEST_F(HostOnWindows, AClipboardWithoutTextIsEmpty) {
  ShowForm();
  ASSERT_TRUE(OpenClipboard(Window()));
  EmptyClipboard();
  CloseClipboard();
  EXPECT_EQ(host.ClipboardText(), "");
}

TEST_F(HostOnWindows, AModalFormHoldsTheCallerAndShutsAllOtherWindows) {
  const HostWindow program;
  ShowForm();
  auto dialog = std::make_shared<ProbeForm>(host);
  bool was_shut = false, was_owned = false;
  form->left.OnClick = [&] {
    Later([&] {
      was_shut = !IsWindowEnabled(Window()) && !IsWindowEnabled(program.Handle());
      was_owned = GetWindow(host.HandleOf(*dialog), GW_OWNER) == Window();
      form->Note("up");
      dialog->Hide();
    });
    dialog->Show(ShowMode::kModal);
    form->Note("back");
  };
  Click(10, 10);
  EXPECT_EQ(form->log, (Log{"up", "back"}));
  EXPECT_TRUE(was_shut);
  EXPECT_TRUE(was_owned);
  EXPECT_TRUE(IsWindowEnabled(Window()));
  EXPECT_TRUE(IsWindowEnabled(program.Handle()));
  EXPECT_EQ(GetActiveWindow(), Window()) << "the owner is active again";
  dialog->Unload();
}

TEST_F(HostOnWindows, AFormThatIsRaisedBehindADialogLeavesTheDialogTheKeyboard) {
  ShowForm();
  auto dialog = std::make_shared<ProbeForm>(host);
  bool dialog_active = false, dialog_focused = false;
  form->left.OnClick = [&] {
    Later([&] {
      form->Show();
      dialog_active = GetActiveWindow() == host.HandleOf(*dialog);
      dialog_focused = GetFocus() == host.HandleOf(*dialog);
      dialog->Unload();
    });
    dialog->Show(ShowMode::kModal);
  };
  Click(10, 10);
  EXPECT_TRUE(dialog_active);
  EXPECT_TRUE(dialog_focused);
}

TEST_F(HostOnWindows, TheOwnerIsOpenBeforeTheDialogsWindowGoes) {
  ShowForm();
  auto dialog = std::make_shared<ProbeForm>(host);
  static bool open_at_destruction;
  static HWND owner;
  open_at_destruction = false;
  owner = Window();
  static WNDPROC inner;
  form->left.OnClick = [&] {
    Later([&] {
      const HWND window = host.HandleOf(*dialog);
      const WNDPROC spy = [](HWND w, UINT m, WPARAM wp, LPARAM lp) CALLBACK -> LRESULT {
        if (m == WM_DESTROY) open_at_destruction = IsWindowEnabled(owner) != FALSE;
        return CallWindowProcW(inner, w, m, wp, lp);
      };
      inner =
          reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(spy)));
      dialog->Unload();
    });
    dialog->Show(ShowMode::kModal);
  };
  Click(10, 10);
  EXPECT_TRUE(open_at_destruction);
}

TEST_F(HostOnWindows, ADialogOverADialogGivesBackOneAfterTheOther) {
  ShowForm();
  auto first = std::make_shared<ProbeForm>(host);
  auto second = std::make_shared<ProbeForm>(host);
  bool first_open = true, second_shut_all = false;
  form->left.OnClick = [&] {
    Later([&] {
      Later([&] {
        second_shut_all = !IsWindowEnabled(host.HandleOf(*first)) && !IsWindowEnabled(Window());
        second->Unload();
      });
      second->Show(ShowMode::kModal);
      first_open = IsWindowEnabled(host.HandleOf(*first)) && !IsWindowEnabled(Window());
      first->Unload();
    });
    first->Show(ShowMode::kModal);
  };
  Click(10, 10);
  EXPECT_TRUE(second_shut_all);
  EXPECT_TRUE(first_open);
  EXPECT_TRUE(IsWindowEnabled(Window()));
}

TEST_F(HostOnWindows, AnOuterDialogThatEndsFirstLeavesNobodyShut) {
  ShowForm();
  auto first = std::make_shared<ProbeForm>(host);
  auto second = std::make_shared<ProbeForm>(host);
  bool shut_between = false;
  form->left.OnClick = [&] {
    Later([&] {
      Later([&] {
        first->Hide();
        shut_between = !IsWindowEnabled(Window());
        second->Unload();
      });
      second->Show(ShowMode::kModal);
    });
    first->Show(ShowMode::kModal);
  };
  Click(10, 10);
  EXPECT_TRUE(shut_between);
  EXPECT_TRUE(IsWindowEnabled(Window()));
  first->Unload();
}

TEST_F(HostOnWindows, ADialogGoesWithTheWindowThatItStandsInFrontOf) {
  ShowForm();
  auto first = std::make_shared<ProbeForm>(host);
  auto second = std::make_shared<ProbeForm>(host);
  form->left.OnClick = [&] {
    Later([&] {
      Later([&] { first->Unload(); });
      second->Show(ShowMode::kModal);
      form->Note("second is over");
    });
    first->Show(ShowMode::kModal);
    form->Note("first is over");
  };
  Click(10, 10);
  EXPECT_EQ(form->log, (Log{"second is over", "first is over"}));
  EXPECT_FALSE(second->IsLoaded());
  EXPECT_TRUE(IsWindowEnabled(Window()));
}

TEST_F(HostOnWindows, AProgramThatQuitsUnderADialogEndsItAndQuits) {
  ShowForm();
  auto dialog = std::make_shared<ProbeForm>(host);
  form->left.OnClick = [&] {
    Later([] { PostQuitMessage(7); });
    dialog->Show(ShowMode::kModal);
    form->Note("back");
  };
  Post(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
  Post(WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
  MSG message{};
  int turns = 0;
  while (GetMessageW(&message, nullptr, 0, 0) > 0 && ++turns < 1000) DispatchMessageW(&message);
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 7U);
  EXPECT_EQ(form->log, (Log{"back"}));
  EXPECT_FALSE(dialog->Visible());
  EXPECT_TRUE(IsWindowEnabled(Window()));
  dialog->Unload();
}

TEST_F(HostOnWindows, DoEventsPassesOnThatTheProgramQuits) {
  PostQuitMessage(3);
  host.DoEvents();
  MSG message{};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 3U);
}

TEST_F(HostOnWindows, AFormOfACenteredDesignStandsOverItsOwner) {
  ShowForm();
  form->Move(300 * kTwipsPerPixel, 200 * kTwipsPerPixel);
  auto dialog = std::make_shared<ProbeForm>(host);
  dialog->start_up_position = 1;
  dialog->border_style = 3;
  RECT at{};
  form->left.OnClick = [&] {
    Later([&] {
      GetWindowRect(host.HandleOf(*dialog), &at);
      dialog->Unload();
    });
    dialog->Show(ShowMode::kModal);
  };
  Click(10, 10);
  EXPECT_NEAR((at.left + at.right) / 2, 500, 1);
  EXPECT_NEAR((at.top + at.bottom) / 2, 350, 1);
}

TEST_F(HostOnWindows, ATimerRunsWhileItIsEnabled) {
  auto timers = std::make_shared<TimerForm>(host);
  int elapsed = 0;
  timers->timer.OnTimer = [&] { ++elapsed; };
  timers->Show();
  timers->timer.Interval(20);
  timers->timer.Enabled(true);
  EXPECT_TRUE(PumpUntil([&] { return elapsed >= 3; }));
  timers->timer.Enabled(false);
  const int then = elapsed;
  PumpUntil([] { return false; }, 100);
  EXPECT_EQ(elapsed, then);
  timers->Unload();
}

TEST_F(HostOnWindows, ATimerMayStopItselfOrItsForm) {
  auto timers = std::make_shared<TimerForm>(host);
  int elapsed = 0;
  timers->timer.OnTimer = [&] {
    ++elapsed;
    timers->Unload();
  };
  timers->Show();
  timers->timer.Interval(10);
  timers->timer.Enabled(true);
  EXPECT_TRUE(PumpUntil([&] { return elapsed > 0; }));
  PumpUntil([] { return false; }, 60);
  EXPECT_EQ(elapsed, 1);
  EXPECT_FALSE(timers->IsLoaded());
}

TEST_F(HostOnWindows, AnErrorInATimerIsReportedAndTheNextRunsAllTheSame) {
  auto timers = std::make_shared<TimerForm>(host);
  timers->timer.OnTimer = [] { throw RuntimeError(11, "Division by zero"); };
  timers->Show();
  timers->timer.Interval(10);
  timers->timer.Enabled(true);
  EXPECT_TRUE(PumpUntil([&] { return errors.size() >= 2; }));
  EXPECT_EQ(errors[0].Number(), 11);
  timers->Unload();
}

TEST_F(HostOnWindows, AnErrorIsShownWithNumberAndDescription) {
  Win32HostOptions options = Options();
  options.on_error = nullptr;
  Win32WindowHost shown(options);
  auto failing = std::make_shared<ProbeForm>(shown);
  failing->left.OnClick = [] { throw RuntimeError(13, "Type mismatch"); };
  failing->Show();
  Pump();
  const HWND window = shown.HandleOf(*failing);
  std::wstring title, text;
  bool owner_shut = false, form_takes_input = true;
  const std::function<void()> look = [&] {
    const HWND box = FindWindowW(L"#32770", L"Recuento");
    if (box == nullptr) {
      Later(look);
      return;
    }
    wchar_t buffer[200] = L"";
    GetWindowTextW(box, buffer, 200);
    title = buffer;
    GetWindowTextW(GetDlgItem(box, 0xFFFF), buffer, 200);
    text = buffer;
    owner_shut = !IsWindowEnabled(window);
    form_takes_input = shown.TakesInput(*failing);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  };
  Later(look);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
  EXPECT_TRUE(PumpUntil([&] { return !text.empty() && shown.TakesInput(*failing); }));
  EXPECT_EQ(text, L"Error 13: Type mismatch");
  EXPECT_EQ(title, L"Recuento");
  EXPECT_TRUE(owner_shut);
  EXPECT_FALSE(form_takes_input);
  EXPECT_TRUE(IsWindowEnabled(window));
  failing->Unload();
}

TEST_F(HostOnWindows, AnErrorThatCannotBeToldSilencesNoneAfterIt) {
  bool has_words = false;
  Win32HostOptions options = Options();
  options.on_error = nullptr;
  options.describe_error = [&](const RuntimeError& error) {
    if (!std::exchange(has_words, true)) throw std::runtime_error("no words");
    return error.Description();
  };
  Win32WindowHost speechless(options);
  speechless.Guard([] { throw RuntimeError(5, "Invalid"); });
  std::wstring text;
  int looks = 0;
  const std::function<void()> look = [&] {
    const HWND box = FindWindowW(L"#32770", L"Recuento");
    if (box == nullptr) {
      if (++looks < 200) Later(look);
      return;
    }
    wchar_t buffer[200] = L"";
    GetWindowTextW(GetDlgItem(box, 0xFFFF), buffer, 200);
    text = buffer;
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  };
  Later(look);
  speechless.ReportError(RuntimeError(6, "Overflow"));
  EXPECT_EQ(text, L"Error 6: Overflow");
}

TEST_F(HostOnWindows, NothingIsInUseOnceTheLastFormIsUnloaded) {
  EXPECT_FALSE(ModuleIsInUse());
  ShowForm();
  EXPECT_TRUE(ModuleIsInUse());
  form->Unload();
  EXPECT_FALSE(ModuleIsInUse());
  EXPECT_EQ(FindWindowW(L"OrvendalForm", nullptr), nullptr);
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  EXPECT_FALSE(GetClassInfoExW(ThisModule(), L"OrvendalForm", &description));
}

TEST_F(HostOnWindows, TimersLeaveNoWindowAndNoClassBehind) {
  auto timers = std::make_shared<TimerForm>(host);
  timers->Load();
  timers->timer.Interval(1000);
  timers->timer.Enabled(true);
  EXPECT_NE(FindWindowExW(HWND_MESSAGE, nullptr, L"OrvendalTimers", nullptr), nullptr);
  timers->Unload();
  EXPECT_EQ(FindWindowExW(HWND_MESSAGE, nullptr, L"OrvendalTimers", nullptr), nullptr);
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  EXPECT_FALSE(GetClassInfoExW(ThisModule(), L"OrvendalTimers", &description));
}

}  // namespace
}  // namespace orvendal
