#include "platform/forms/color.h"
#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

class LooksOnWindows : public Win32FormTest {
 protected:
  /// Times that the control has been painted at the next turn after `action`.
  int PaintedAfter(const std::function<void()>& action) {
    form->left.times_painted = 0;
    action();
    Pump();
    return form->left.times_painted;
  }
};

TEST_F(LooksOnWindows, ANewLookOfTheSystemIsPaintedAtOnce) {
  ShowForm();
  for (const UINT change :
       {static_cast<UINT>(WM_SYSCOLORCHANGE), 0x031AU, static_cast<UINT>(WM_SETTINGCHANGE)}) {
    EXPECT_EQ(PaintedAfter([&] { SendMessageW(Window(), change, 0, 0); }), 1) << change;
  }
  EXPECT_EQ(PaintedAfter([&] { SendMessageW(Window(), WM_DISPLAYCHANGE, 32, MAKELPARAM(800, 600)); }), 1);
}

TEST_F(LooksOnWindows, ColourWordsOfTheSystemAreTheUsersOwnColours) {
  ShowForm();
  const COLORREF before = GetSysColor(COLOR_BTNFACE);
  const int which = COLOR_BTNFACE;
  const COLORREF odd = RGB(10, 120, 200);
  SetSysColors(1, &which, &odd);
  Pump();
  EXPECT_EQ(PixelOf(Window(), 5, 280), odd);
  SetSysColors(1, &which, &before);
  Pump();
  EXPECT_EQ(PixelOf(Window(), 5, 280), before);
}

TEST_F(LooksOnWindows, EachPixelOfAChangeIsPaintedOnceAndInOneGo) {
  ShowForm();
  // What is erased before it is painted flickers.
  EXPECT_NE(SendMessageW(Window(), WM_ERASEBKGND, 0, 0), 0);
  EXPECT_EQ(GetClassLongPtrW(Window(), GCLP_HBRBACKGROUND), 0U);
  EXPECT_EQ(GetClassLongPtrW(Window(), GCL_STYLE) & (CS_HREDRAW | CS_VREDRAW), 0U);
  // While a control paints, its window still shows what it showed.
  COLORREF during = CLR_INVALID;
  form->left.OnPaint = [&] { during = PixelOf(Window(), 5, 5); };
  form->left.Color({0, 255, 0});
  Pump();
  EXPECT_EQ(during, RGB(255, 0, 0));
  EXPECT_EQ(PixelOf(Window(), 5, 5), RGB(0, 255, 0));
}

TEST_F(LooksOnWindows, TwoChangesInOppositeCornersDoNotPaintWhatLiesBetween) {
  ShowForm();
  form->left.times_painted = form->right.times_painted = 0;
  const RECT corners[] = {{0, 0, 10, 10}, {390, 290, 400, 300}};
  for (const RECT& corner : corners) InvalidateRect(Window(), &corner, FALSE);
  Pump();
  EXPECT_EQ(form->left.times_painted, 1);
  EXPECT_EQ(form->right.times_painted, 0);
}

TEST_F(LooksOnWindows, AWindowThatSomebodyMadeLargerShowsTheDesktopAroundTheForm) {
  ShowForm();
  SetWindowPos(Window(), nullptr, 0, 0, 450, 350, SWP_NOMOVE | SWP_NOZORDER);
  InvalidateRect(Window(), nullptr, FALSE);
  Pump();
  EXPECT_EQ(PixelOf(Window(), 5, 5), RGB(255, 0, 0));
  EXPECT_EQ(PixelOf(Window(), 430, 20), GetSysColor(COLOR_BACKGROUND));
  EXPECT_EQ(PixelOf(Window(), 20, 330), GetSysColor(COLOR_BACKGROUND));
}

TEST_F(LooksOnWindows, AFrameThatTheSystemDrawsWiderTakesNothingFromTheForm) {
  form->border_style = 3;
  ShowForm();
  // The system's say in what of the window is its frame: five pixels more all around.
  static WNDPROC inner;
  const WNDPROC wider = [](HWND window, UINT message, WPARAM wparam, LPARAM lparam) CALLBACK -> LRESULT {
    const LRESULT result = CallWindowProcW(inner, window, message, wparam, lparam);
    if (message == WM_NCCALCSIZE) InflateRect(reinterpret_cast<RECT*>(lparam), -5, -5);
    return result;
  };
  inner =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrW(Window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(wider)));
  form->Width(500 * kTwipsPerPixel);
  RECT inside{};
  GetClientRect(Window(), &inside);
  EXPECT_EQ(inside.right, 500);
  EXPECT_EQ(inside.bottom, 300);
}

TEST_F(LooksOnWindows, ADisplayOfAnotherResolutionMakesTheWindowLargerWhereTheSystemSays) {
  constexpr UINT kDpiChanged = 0x02E0;
  form->border_style = 3;
  ShowForm();
  const RECT suggested{120, 90, 800, 600};
  SendMessageW(Window(), kDpiChanged, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
  Pump();
  RECT inside{}, outside{};
  GetClientRect(Window(), &inside);
  GetWindowRect(Window(), &outside);
  EXPECT_EQ(inside.right, 600);
  EXPECT_EQ(inside.bottom, 450);
  EXPECT_EQ(outside.left, 120);
  EXPECT_EQ(outside.top, 90);
  EXPECT_EQ(PixelOf(Window(), 299, 149), RGB(255, 0, 0));
  EXPECT_EQ(PixelOf(Window(), 300, 149), RGB(0, 0, 255));
}

// Pixels as threads of the system count them; older systems know one way only.
using Context = HANDLE;
Context Mark(std::intptr_t number) {
  return reinterpret_cast<Context>(number);
}
const auto context_of_thread = UserFunction<Context(WINAPI*)()>("GetThreadDpiAwarenessContext");
const auto set_context = UserFunction<Context(WINAPI*)(Context)>("SetThreadDpiAwarenessContext");
const auto context_of_window = UserFunction<Context(WINAPI*)(HWND)>("GetWindowDpiAwarenessContext");
const auto awareness = UserFunction<int(WINAPI*)(Context)>("GetAwarenessFromDpiAwarenessContext");
constexpr int kUnaware = 0, kEachDisplay = 2;

TEST_F(LooksOnWindows, TheWindowIsSharpInAProgramThatKnowsNothingOfResolutions) {
  const Context before = set_context(Mark(-1));
  {
    Win32WindowHost unaware(Options());
    auto sharp = std::make_shared<ProbeForm>(unaware);
    std::vector<int> during;
    const auto look = [&] { during.push_back(awareness(context_of_thread())); };
    sharp->OnLoad = look;
    sharp->OnActivate = look;
    sharp->left.OnMouseDown = [&](int, int, double, double) { look(); };
    sharp->OnUnload = [&](int&) { look(); };
    sharp->Show();
    look();
    Pump();
    const HWND window = unaware.HandleOf(*sharp);
    EXPECT_EQ(awareness(context_of_window(window)), kEachDisplay);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    sharp->Unload();
    look();
    EXPECT_EQ(during, std::vector<int>(6, kUnaware)) << "what the program does is done its own way";
  }
  set_context(before);
}

}  // namespace
}  // namespace orvendal
