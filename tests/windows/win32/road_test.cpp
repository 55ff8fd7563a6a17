#include "platform/base/date.h"
#include "platform/forms/keys.h"
#include "tests/windows/win32/real_screen.h"

namespace orvendal {
namespace {

/// A day at the screen, by messages of the system alone, in whatever loop the host turns.
class RoadOnWindows : public ::testing::Test {
 protected:
  RoadOnWindows() { screen.Open(); }

  FrmOrvendalciales& form() { return screen.Screen(); }
  MSFlexGrid& grid() { return form().MSFProductos; }
  std::vector<std::string> Line(int row) {
    std::vector<std::string> texts;
    for (const int column : {0, 1, 2, 3, 5}) texts.push_back(grid().TextMatrix(row, column));
    return texts;
  }
  /// A key of its own, of which the loop makes the character.
  void Key(WPARAM key_code) {
    PostMessageW(screen.Window(), WM_KEYDOWN, key_code, 1);
    PostMessageW(screen.Window(), WM_KEYUP, key_code, static_cast<LPARAM>(0xC0000001));
    Pump();
  }
  void PickStylist(const std::string& code, const std::string& name) {
    screen.library.QueueEmployee({true, code, name});
    screen.Click(form().CmdEmpl);
  }
  void ClickPart(const Rect& part) {
    const Rect bar = form().Barra1.Bounds();
    screen.ClickAt({bar.left + part.left + part.width / 2, bar.top + part.top + part.height / 2});
  }
  void ClickDay(const Date& day) {
    const Rect bounds = form().Calendario.Bounds();
    const std::optional<Rect> place = form().Calendario.DayRectangle(day);
    ASSERT_TRUE(place);
    screen.ClickAt(
        {bounds.left + place->left + place->width / 2, bounds.top + place->top + place->height / 2});
  }
  std::string Counted(const std::string& product, const std::string& day = "2026-11-16") {
    return screen.Sql("SELECT StockActual FROM HistOrvendalcial WHERE IdSucursal = '01' AND IdProducto = '" +
                      product + "' AND Fecha = '" + day + " 00:00:00'");
  }
  void EnterThreeLines() {
    PickStylist("E1", "Ana");
    screen.ClickCell(1, 0, true);
    screen.Type(L"P7\r12\r");
    screen.Type(L"P8\r");  // its stock stands there, selected
    Key(VK_RETURN);
    screen.Type(L"\r");
    screen.Type(L"Producto 19\r");  // by its description
    screen.Type(L"3\r");
  }

  RealScreen screen;
};

TEST_F(RoadOnWindows, LinesAreEnteredOneAfterTheOtherAndSaved) {
  EnterThreeLines();
  EXPECT_EQ(Line(1), (Log{"P7", "Producto 7", "7", "12", "Ana"}));
  EXPECT_EQ(Line(2), (Log{"P8", "Producto 8", "8", "8", "Ana"}));
  EXPECT_EQ(Line(3), (Log{"P19", "Producto 19", "19", "3", "Ana"}));
  EXPECT_EQ(grid().Row(), 4);
  EXPECT_TRUE(form().TxtMSF.HasFocus());
  screen.Click(form().LblGuardar_1);
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "3");
  EXPECT_EQ(Counted("P7"), "12");
  EXPECT_EQ(Counted("P8"), "8");
  EXPECT_EQ(Counted("P19"), "3");
  EXPECT_TRUE(screen.errors.empty());
}

TEST_F(RoadOnWindows, ArrowsEscAndTheMouseLeaveAQuantityAsTheyShould) {
  EnterThreeLines();
  screen.ClickCell(1, 3);
  screen.Type(L"5");
  Key(VK_DOWN);
  EXPECT_EQ(Line(1)[3], "5") << "an arrow keeps it";
  EXPECT_EQ(grid().Row(), 2);
  screen.Type(L"6");
  Key(VK_ESCAPE);
  EXPECT_EQ(Line(2)[3], "8") << "Esc drops it";
  EXPECT_FALSE(form().TxtMSF.Visible());
  screen.ClickCell(2, 3, true);
  screen.Type(L"9");
  screen.ClickCell(3, 0);
  EXPECT_EQ(Line(2)[3], "9") << "a click elsewhere keeps it";
  EXPECT_TRUE(screen.errors.empty());
}

TEST_F(RoadOnWindows, TheSearchBringsAProductAndALineCanBeDeleted) {
  EnterThreeLines();
  screen.library.QueueProduct("P30");
  screen.Click(form().LblBuscar_1);
  EXPECT_EQ(Line(4)[1], "Producto 30");
  screen.Type(L"2\r");
  screen.ClickCell(2, 0);
  screen.Click(form().LblBorrar_1);
  EXPECT_EQ(Line(2)[0], "P19");
  EXPECT_EQ(Line(3)[0], "P30");
  screen.Click(form().LblGuardar_1);
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "3");
  EXPECT_EQ(Counted("P8"), "");
  EXPECT_EQ(Counted("P30"), "2");
}

TEST_F(RoadOnWindows, ASupervisorPutsAnotherDayRight) {
  EnterThreeLines();
  screen.Click(form().LblGuardar_1);
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click(form().LblNuevo_1);
  ASSERT_TRUE(form().LblSupervisor.Visible());
  screen.Click(form().MkFecha);
  ASSERT_TRUE(form().PicCalendario.Visible());
  ClickDay(Date(2026, 11, 13));
  Key(VK_ESCAPE);
  EXPECT_EQ(form().MkFecha.Text(), "13/11/2026");
  screen.ClickCell(1, 0, true);
  screen.Type(L"P5\r4\r");
  screen.Click(form().LblGuardar_1);
  EXPECT_EQ(Counted("P5", "2026-11-13"), "4");
  EXPECT_EQ(Counted("P7"), "12") << "today's is as it was";
  EXPECT_TRUE(screen.errors.empty());
}

TEST_F(RoadOnWindows, ClosingAsksForWhatIsNotSaved) {
  EnterThreeLines();
  const HWND window = screen.Window();
  constexpr int kCancel = 2, kYes = 6;
  screen.library.QueueAnswer(kCancel);
  ClickPart(form().Barra1.CloseButton());
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_EQ(Line(1)[3], "12");
  screen.library.QueueAnswer(kYes);
  ClickPart(form().Barra1.CloseButton());
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(Counted("P7"), "12");
  EXPECT_EQ(screen.state.form, nullptr);
  screen.Open();
  EXPECT_EQ(Line(1), (Log{"P7", "Producto 7", "7", "12", "Ana"})) << "the day's count is there again";
  EXPECT_TRUE(screen.errors.empty());
}

TEST_F(RoadOnWindows, ACountSurvivesTheTaskbar) {
  EnterThreeLines();
  ClickPart(form().Barra1.MinimizeButton());
  EXPECT_TRUE(IsIconic(screen.Window()));
  SendMessageW(screen.Window(), WM_SYSCOMMAND, SC_RESTORE, 0);
  Pump();
  EXPECT_FALSE(IsIconic(screen.Window()));
  EXPECT_EQ(Line(3)[3], "3");
  screen.Type(L"P20\r4\r");
  EXPECT_EQ(Line(4)[3], "4") << "the editor goes on where it was";
}

}  // namespace
}  // namespace orvendal
