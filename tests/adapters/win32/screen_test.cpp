#include "form/columns.h"
#include "tests/adapters/win32/real_screen.h"

namespace orvendal {
namespace {

TEST(ScreenOnWindows, ACountTypedInTheWindowEndsInTheStore) {
  RealScreen screen;
  screen.Open();
  ASSERT_TRUE(IsWindowVisible(screen.Window()));
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, column::kCode);
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
  screen.DoubleClickCell(1, column::kCode);
  EXPECT_TRUE(screen.form().TxtMSF.Visible());
  screen.Type("P17\n");
  EXPECT_EQ(screen.form().MSFProductos.TextMatrix(1, column::kDescription), "Producto 17");
  screen.Type("12\n");
  screen.Click(screen.form().LblGuardar_1);
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
  screen.ClickTitleBar(screen.form().Barra1.MinimizeButton());
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
