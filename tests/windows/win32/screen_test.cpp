#include "tests/windows/win32/real_screen.h"

namespace orvendal {
namespace {

TEST(ScreenOnWindows, ACountTypedInTheWindowEndsInTheStore) {
  RealScreen screen;
  screen.Open();
  ASSERT_TRUE(IsWindowVisible(screen.Window()));
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, 0);
  EXPECT_EQ(screen.Screen().TxtEmpleado.Text(), "Ana");
  screen.ClickCell(1, 0, true);
  EXPECT_TRUE(screen.Screen().TxtMSF.Visible());
  screen.Type(L"P7\r");
  EXPECT_EQ(screen.Screen().MSFProductos.TextMatrix(1, 1), "Producto 7");
  screen.Type(L"12\r");
  screen.Click(screen.Screen().LblGuardar_1);
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "1");
  EXPECT_TRUE(screen.errors.empty());
}

TEST(ScreenOnWindows, TheScreenCoversTheDisplayAndComesBackMaximizedWhenItIsCalledAgain) {
  RealScreen screen;
  screen.Open();
  RECT bounds{};
  GetWindowRect(screen.Window(), &bounds);
  EXPECT_EQ(bounds.right, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_EQ(bounds.bottom, GetSystemMetrics(SM_CYSCREEN));
  const Rect bar = screen.Screen().Barra1.Bounds();
  const Rect button = screen.Screen().Barra1.MinimizeButton();
  screen.ClickAt({bar.left + button.left + button.width / 2, bar.top + button.top + button.height / 2});
  EXPECT_TRUE(IsIconic(screen.Window()));
  screen.Open();
  EXPECT_TRUE(IsZoomed(screen.Window()));
  EXPECT_FALSE(IsIconic(screen.Window()));
  GetWindowRect(screen.Window(), &bounds);
  EXPECT_EQ(bounds.right, GetSystemMetrics(SM_CXSCREEN));
}

TEST(ScreenOnWindows, AltF4ClosesTheScreenForGood) {
  RealScreen screen;
  screen.Open();
  const HWND window = screen.Window();
  PostMessageW(window, WM_SYSKEYDOWN, VK_F4, 0x20000001);
  Pump();
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(screen.state.form, nullptr);
}

}  // namespace
}  // namespace orvendal
