#include "form/columns.h"
#include "platform/base/date.h"
#include "platform/forms/keys.h"
#include "tests/adapters/win32/real_screen.h"

namespace orvendal {
namespace {

/// A day at the screen, by messages of the system alone, in whatever loop the host turns.
class RoadOnWindows : public ::testing::Test {
 protected:
  RoadOnWindows() { screen.Open(); }

  FrmOrvendalciales& form() { return screen.form(); }
  MSFlexGrid& grid() { return form().MSFProductos; }
  std::vector<std::string> Line(int row) {
    std::vector<std::string> texts;
    for (const int shown : {column::kCode, column::kDescription, column::kPreviousQuantity, column::kQuantity,
                            column::kStylist})
      texts.push_back(grid().TextMatrix(row, shown));
    return texts;
  }
  std::string Counted(const std::string& product, const std::string& day = "2026-11-16") {
    return screen.Sql("SELECT StockActual FROM HistOrvendalcial WHERE IdSucursal = '01' AND IdProducto = '" +
                      product + "' AND Fecha = '" + day + " 00:00:00'");
  }
  void EnterThreeLines() {
    screen.ChooseStylist("E1", "Ana");
    screen.DoubleClickCell(1, column::kCode);
    screen.Type("P17\n12\n");
    screen.Type("P18\n");  // its stock stands there, selected
    screen.Enter();
    screen.Type("\n");
    screen.Type("Producto 19\n");  // by its description
    screen.Type("3\n");
  }

  RealScreen screen;
};

TEST_F(RoadOnWindows, LinesAreEnteredOneAfterTheOtherAndSaved) {
  EnterThreeLines();
  EXPECT_EQ(Line(1), (Log{"P17", "Producto 17", "17", "12", "Ana"}));
  EXPECT_EQ(Line(2), (Log{"P18", "Producto 18", "18", "18", "Ana"}));
  EXPECT_EQ(Line(3), (Log{"P19", "Producto 19", "19", "3", "Ana"}));
  EXPECT_EQ(grid().Row(), 4);
  EXPECT_TRUE(form().TxtMSF.HasFocus());
  screen.Click(form().LblGuardar_1);
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "3");
  EXPECT_EQ(Counted("P17"), "12");
  EXPECT_EQ(Counted("P18"), "18");
  EXPECT_EQ(Counted("P19"), "3");
  EXPECT_TRUE(screen.errors.empty());
}

TEST_F(RoadOnWindows, ArrowsEscAndTheMouseLeaveAQuantityAsTheyShould) {
  EnterThreeLines();
  screen.ClickCell(1, column::kQuantity);
  screen.Type("5");
  screen.Key(key::kDown);
  EXPECT_EQ(Line(1)[3], "5") << "an arrow keeps it";
  EXPECT_EQ(grid().Row(), 2);
  screen.Type("6");
  screen.Key(key::kEscape);
  EXPECT_EQ(Line(2)[3], "18") << "Esc drops it";
  EXPECT_FALSE(form().TxtMSF.Visible());
  screen.DoubleClickCell(2, column::kQuantity);
  screen.Type("9");
  screen.ClickCell(3, column::kCode);
  EXPECT_EQ(Line(2)[3], "9") << "a click elsewhere keeps it";
  EXPECT_TRUE(screen.errors.empty());
}

TEST_F(RoadOnWindows, TheSearchBringsAProductAndALineCanBeDeleted) {
  EnterThreeLines();
  screen.library.QueueProduct("P30");
  screen.Click(form().LblBuscar_1);
  EXPECT_EQ(Line(4)[1], "Producto 30");
  screen.Type("2\n");
  screen.ClickCell(2, column::kCode);
  screen.Click(form().LblBorrar_1);
  EXPECT_EQ(Line(2)[0], "P19");
  EXPECT_EQ(Line(3)[0], "P30");
  screen.Click(form().LblGuardar_1);
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "3");
  EXPECT_EQ(Counted("P18"), "");
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
  screen.robot().ClickDay(form().Calendario, Date(2026, 11, 13));
  screen.Key(key::kEscape);
  EXPECT_EQ(form().MkFecha.Text(), "13/11/2026");
  screen.DoubleClickCell(1, column::kCode);
  screen.Type("P5\n4\n");
  screen.Click(form().LblGuardar_1);
  EXPECT_EQ(Counted("P5", "2026-11-13"), "4");
  EXPECT_EQ(Counted("P17"), "12") << "today's is as it was";
  EXPECT_TRUE(screen.errors.empty());
}

TEST_F(RoadOnWindows, ClosingAsksForWhatIsNotSaved) {
  EnterThreeLines();
  const HWND window = screen.Window();
  constexpr int kCancel = 2, kYes = 6;
  screen.library.QueueAnswer(kCancel);
  screen.ClickTitleBar(form().Barra1.CloseButton());
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_EQ(Line(1)[3], "12");
  screen.library.QueueAnswer(kYes);
  screen.ClickTitleBar(form().Barra1.CloseButton());
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(Counted("P17"), "12");
  EXPECT_EQ(screen.state.form, nullptr);
  screen.Open();
  EXPECT_EQ(Line(1), (Log{"P17", "Producto 17", "17", "12", "Ana"})) << "the day's count is there again";
  EXPECT_TRUE(screen.errors.empty());
}

TEST_F(RoadOnWindows, ACountSurvivesTheTaskbar) {
  EnterThreeLines();
  screen.ClickTitleBar(form().Barra1.MinimizeButton());
  EXPECT_TRUE(IsIconic(screen.Window()));
  SendMessageW(screen.Window(), WM_SYSCOMMAND, SC_RESTORE, 0);
  Pump();
  EXPECT_FALSE(IsIconic(screen.Window()));
  EXPECT_EQ(Line(3)[3], "3");
  screen.Type("P20\n4\n");
  EXPECT_EQ(Line(4)[3], "4") << "the editor goes on where it was";
}

}  // namespace
}  // namespace orvendal
