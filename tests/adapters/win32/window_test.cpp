#include "platform/forms/color.h"
#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255);

RECT BoundsOf(HWND window) {
  RECT bounds{};
  GetWindowRect(window, &bounds);
  return bounds;
}
SIZE InsideOf(HWND window) {
  RECT inside{};
  GetClientRect(window, &inside);
  return {inside.right, inside.bottom};
}
std::wstring TitleOf(HWND window) {
  wchar_t title[200] = L"";
  GetWindowTextW(window, title, 200);
  return title;
}

class WindowOnWindows : public Win32FormTest {};

TEST_F(WindowOnWindows, AFormWithoutBorderIsABareWindowOfItsSizeWithATitle) {
  ShowForm();
  EXPECT_TRUE(IsWindowVisible(Window()));
  const RECT bounds = BoundsOf(Window());
  EXPECT_EQ(bounds.right - bounds.left, 400);
  EXPECT_EQ(bounds.bottom - bounds.top, 300);
  EXPECT_EQ(InsideOf(Window()).cx, 400);
  EXPECT_EQ(GetWindowLongPtrW(Window(), GWL_STYLE) & WS_CAPTION, 0);
  EXPECT_EQ(TitleOf(Window()), L"Orvendal");
  form->Caption("Año — recuento");
  EXPECT_EQ(TitleOf(Window()), L"Año — recuento");
  form->Caption("");
  EXPECT_EQ(TitleOf(Window()), L"Recuento") << "the application's";
}

TEST_F(WindowOnWindows, TheTaskbarKnowsABareWindowAndCanMinimizeIt) {
  ShowForm();
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(Window(), GWL_STYLE));
  EXPECT_NE(style & WS_MINIMIZEBOX, 0U);
  EXPECT_NE(style & WS_SYSMENU, 0U);
  EXPECT_NE(static_cast<DWORD>(GetWindowLongPtrW(Window(), GWL_EXSTYLE)) & WS_EX_APPWINDOW, 0U);
  EXPECT_EQ(GetWindow(Window(), GW_OWNER), nullptr);
}

TEST_F(WindowOnWindows, AFormWithABorderHasAFrameAroundItsSize) {
  form->border_style = 3;
  ShowForm();
  EXPECT_EQ(InsideOf(Window()).cx, 400);
  EXPECT_EQ(InsideOf(Window()).cy, 300);
  const RECT bounds = BoundsOf(Window());
  EXPECT_GT(bounds.bottom - bounds.top, 300);
  form->Width(500 * kTwipsPerPixel);
  EXPECT_EQ(InsideOf(Window()).cx, 500);
}

TEST_F(WindowOnWindows, AFramedWindowStaysWhereTheUserPutsIt) {
  form->border_style = 3;
  ShowForm();
  SetWindowPos(Window(), nullptr, 37, 41, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  form->Height(320 * kTwipsPerPixel);
  EXPECT_EQ(BoundsOf(Window()).left, 37);
  EXPECT_EQ(BoundsOf(Window()).top, 41);
}

TEST_F(WindowOnWindows, PlaceAndSizeFollowTheForm) {
  ShowForm();
  form->Move(150, 300);
  form->Width(3000);
  const RECT bounds = BoundsOf(Window());
  EXPECT_EQ(bounds.left, 10);
  EXPECT_EQ(bounds.top, 20);
  EXPECT_EQ(bounds.right, 210);
  EXPECT_EQ(bounds.bottom, 320);
}

TEST_F(WindowOnWindows, AMaximizedFormCoversTheWholeDisplay) {
  ShowForm();
  int resized = 0;
  form->OnResize = [&] { ++resized; };
  form->WindowState(WindowState::kMaximized);
  Pump();
  const RECT bounds = BoundsOf(Window());
  EXPECT_EQ(bounds.left, 0);
  EXPECT_EQ(bounds.top, 0);
  EXPECT_EQ(bounds.right, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_EQ(bounds.bottom, GetSystemMetrics(SM_CYSCREEN));
  EXPECT_EQ(resized, 1);
  form->WindowState(WindowState::kNormal);
  Pump();
  EXPECT_EQ(InsideOf(Window()).cx, 400);
  EXPECT_FALSE(IsZoomed(Window()));
  EXPECT_EQ(resized, 2);
}

TEST_F(WindowOnWindows, AMinimizedFormComesBackFromTheTaskbarAsItWas) {
  ShowForm();
  form->WindowState(WindowState::kMaximized);
  form->WindowState(WindowState::kMinimized);
  Pump();
  EXPECT_TRUE(IsIconic(Window()));
  SendMessageW(Window(), WM_SYSCOMMAND, SC_RESTORE, 0);
  Pump();
  EXPECT_FALSE(IsIconic(Window()));
  EXPECT_EQ(form->WindowState(), WindowState::kMaximized);
  SendMessageW(Window(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  Pump();
  EXPECT_EQ(form->WindowState(), WindowState::kMinimized);
  form->WindowState(WindowState::kNormal);
  Pump();
  EXPECT_FALSE(IsIconic(Window()));
  EXPECT_EQ(InsideOf(Window()).cx, 400);
}

TEST_F(WindowOnWindows, AFormThatIsMinimizedBeforeItIsShownShowsNothingYet) {
  form->OnLoad = [this] { form->WindowState(WindowState::kMinimized); };
  ShowForm();
  EXPECT_TRUE(IsIconic(Window()));
  form->WindowState(WindowState::kMaximized);
  Pump();
  EXPECT_EQ(BoundsOf(Window()).right, GetSystemMetrics(SM_CXSCREEN));
}

TEST_F(WindowOnWindows, TheSystemsCloseIsARequestToTheForm) {
  ShowForm();
  bool asked = false;
  form->OnCloseRequest = [&] { asked = true; };
  SendMessageW(Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_TRUE(asked);
  EXPECT_TRUE(IsWindow(Window()));
  form->OnCloseRequest = nullptr;
  const HWND window = Window();
  SendMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(WindowOnWindows, HideAndShowKeepTheSameWindow) {
  ShowForm();
  const HWND window = Window();
  form->Hide();
  EXPECT_FALSE(IsWindowVisible(window));
  form->Show();
  EXPECT_EQ(Window(), window);
  EXPECT_TRUE(IsWindowVisible(window));
}

TEST_F(WindowOnWindows, AWindowThatSomebodyElseHidComesBackWithShow) {
  ShowForm();
  const HWND window = Window();
  ShowWindow(window, SW_HIDE);
  Pump();
  EXPECT_FALSE(IsWindowVisible(window));
  form->Show();
  EXPECT_EQ(Window(), window);
  EXPECT_TRUE(IsWindowVisible(window));
  form->Hide();
  EXPECT_FALSE(IsWindowVisible(window)) << "and goes when the form goes";
}

TEST_F(WindowOnWindows, AWindowThatTheHostDestroysUnloadsItsForm) {
  ShowForm();
  DestroyWindow(Window());
  EXPECT_FALSE(form->IsLoaded());
  form->Show();
  Pump();
  EXPECT_TRUE(IsWindowVisible(Window()));
}

TEST_F(WindowOnWindows, EachControlIsPaintedInItsPlace) {
  ShowForm();
  EXPECT_EQ(PixelOf(Window(), 5, 5), kRed);
  EXPECT_EQ(PixelOf(Window(), 199, 99), kRed);
  EXPECT_EQ(PixelOf(Window(), 200, 99), kBlue);
  EXPECT_EQ(PixelOf(Window(), 5, 280), GetSysColor(COLOR_BTNFACE));
}

TEST_F(WindowOnWindows, OnlyWhatChangedIsPaintedAnew) {
  ShowForm();
  form->left.times_painted = form->right.times_painted = 0;
  form->left.Color({0, 255, 0});
  EXPECT_EQ(form->left.times_painted, 0) << "not before the next turn of the loop";
  Pump();
  EXPECT_EQ(form->left.times_painted, 1);
  EXPECT_EQ(form->right.times_painted, 0);
  EXPECT_EQ(PixelOf(Window(), 5, 5), RGB(0, 255, 0));
  form->left.Color({255, 255, 0});
  form->Refresh();
  EXPECT_EQ(PixelOf(Window(), 5, 5), RGB(255, 255, 0)) << "Refresh does not wait";
}

TEST_F(WindowOnWindows, AChangeInsideADoEventsIsSeen) {
  ShowForm();
  form->left.Color({0, 255, 255});
  host.DoEvents();
  EXPECT_EQ(PixelOf(Window(), 5, 5), RGB(0, 255, 255));
}

TEST_F(WindowOnWindows, AnErrorWhilePaintingLeavesTheWindowUsable) {
  form->left.OnPaint = [] { throw RuntimeError(6); };
  ShowForm();
  EXPECT_TRUE(errors.empty());
  form->left.OnPaint = nullptr;
  form->left.Refresh();
  Pump();
  EXPECT_EQ(PixelOf(Window(), 5, 5), kRed);
}

TEST_F(WindowOnWindows, TheWindowCanBePrintedOnAnotherSurface) {
  ShowForm();
  DibSurface surface(400, 300);
  SendMessageW(Window(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(surface.Dc()), PRF_CLIENT);
  GdiFlush();
  EXPECT_EQ(surface.Row(5)[5] & 0xFFFFFF, 0xFF0000U);
  EXPECT_EQ(surface.Row(5)[300] & 0xFFFFFF, 0x0000FFU);
}

TEST_F(WindowOnWindows, AtAHigherResolutionEverythingIsLarger) {
  Win32HostOptions options = Options();
  options.dpi = 144;
  Win32WindowHost fine(options);
  auto large = std::make_shared<ProbeForm>(fine);
  large->Show();
  Pump();
  const HWND window = fine.HandleOf(*large);
  EXPECT_EQ(InsideOf(window).cx, 600);
  EXPECT_EQ(InsideOf(window).cy, 450);
  EXPECT_EQ(PixelOf(window, 299, 149), kRed);
  EXPECT_EQ(PixelOf(window, 300, 149), kBlue);
  double x = 0;
  large->right.OnMouseDown = [&](int, int, double at, double) { x = at; };
  SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(330, 10));
  EXPECT_DOUBLE_EQ(x, 300);
  EXPECT_DOUBLE_EQ(fine.ScreenWidth(), GetSystemMetrics(SM_CXSCREEN) * 10.0);
  EXPECT_NEAR(fine.TextWidth({}, "Champú para cabellos"), host.TextWidth({}, "Champú para cabellos"), 300);
  large->Unload();
}

}  // namespace
}  // namespace orvendal
