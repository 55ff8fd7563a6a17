#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

constexpr ColorWord kFocusColour = 10865355;  // red 203, green 202, blue 165
constexpr ColorWord kWhite = 16777215;

/// Supervisor mode, with employee E2 "Berta".
class CalendarPanelTest : public testing::Test {
 protected:
  CalendarPanelTest() {
    screen.AddCounts(2);
    screen.Open();
    EnterSupervisorMode(screen);
    Forget(screen);
  }
  FrmOrvendalciales& form() { return screen.form(); }
  bool PanelIsOpen() { return form().PicCalendario.Visible(); }
  void OpenPanel() {
    screen.Click("MkFecha");
    ASSERT_TRUE(PanelIsOpen());
  }
  FormDriver screen;
};

TEST_F(CalendarPanelTest, IsHiddenUntilTheDateBoxHasTheFocus) {
  EXPECT_FALSE(PanelIsOpen());
}

TEST_F(CalendarPanelTest, OpensFromTheDateBoxWithTheFocusOnTheCalendar) {
  screen.Click("MkFecha");
  EXPECT_TRUE(PanelIsOpen());
  EXPECT_TRUE(form().Calendario.Visible());
  EXPECT_EQ(screen.Focused(), "Calendario");
  EXPECT_EQ(form().Calendario.Value(), Date(2026, 11, 16));
}

TEST_F(CalendarPanelTest, OpensAlsoByTheTabKey) {
  form().PicDatos.SetFocus();
  for (int presses = 0; presses < 12 && !PanelIsOpen(); ++presses) screen.Key(key::kTab);
  EXPECT_TRUE(PanelIsOpen());
  EXPECT_EQ(screen.Focused(), "Calendario");
}

TEST_F(CalendarPanelTest, WithNoStylistTheDateBoxOnlyTakesItsColour) {
  form().TxtEmpleado.Text("");
  form().PicDatos.SetFocus();
  screen.Click("MkFecha");
  EXPECT_FALSE(PanelIsOpen());
  EXPECT_EQ(form().MkFecha.BackColor(), kFocusColour);
  EXPECT_EQ(screen.Focused(), "MkFecha");
  EXPECT_TRUE(TakeMessages(screen).empty());
}

TEST_F(CalendarPanelTest, TheDateBoxIsWhiteAgainWithoutTheFocus) {
  form().TxtEmpleado.Text("");
  screen.Click("MkFecha");
  form().PicDatos.SetFocus();
  EXPECT_EQ(form().MkFecha.BackColor(), kWhite);
}

TEST_F(CalendarPanelTest, TheDateBoxIsWhiteWhileTheCalendarHasTheFocus) {
  OpenPanel();
  EXPECT_EQ(form().MkFecha.BackColor(), kWhite);
}

TEST_F(CalendarPanelTest, AFocusOnTheDateBoxWithThePanelOpenClosesIt) {
  form().PicCalendario.Visible(true);
  screen.Click("MkFecha");
  EXPECT_FALSE(PanelIsOpen());
  EXPECT_EQ(screen.Focused(), "MkFecha");
}

TEST_F(CalendarPanelTest, FromTheCalendarTheDateBoxOpensItAnewBecauseLosingTheFocusClosedIt) {
  OpenPanel();
  screen.Click("MkFecha");
  EXPECT_TRUE(PanelIsOpen());
  EXPECT_EQ(screen.Focused(), "Calendario");
}

TEST_F(CalendarPanelTest, ClosesOnEnterWithTheFocusOnTheGrid) {
  OpenPanel();
  screen.Enter();
  EXPECT_FALSE(PanelIsOpen());
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

TEST_F(CalendarPanelTest, ClosesOnEscapeWithTheFocusOnTheGrid) {
  OpenPanel();
  screen.Key(key::kEscape);
  EXPECT_FALSE(PanelIsOpen());
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

TEST_F(CalendarPanelTest, ClosesWithTheFocusOnAnOpenEditor) {
  for (const int code : {key::kReturn, key::kEscape}) {
    screen.DoubleClickCell(1, kCode);
    ASSERT_TRUE(EditorIsOpen(screen));
    OpenPanel();
    screen.Key(code);
    EXPECT_FALSE(PanelIsOpen());
    EXPECT_EQ(screen.Focused(), "TxtMSF");
    EXPECT_TRUE(EditorIsOpen(screen));
    screen.Key(key::kEscape);
  }
}

TEST_F(CalendarPanelTest, ClosesByTheKeyEvenWhereTheGridCannotHaveTheFocus) {
  OpenPanel();
  form().MSFProductos.Enabled(false);
  form().Calendario.OnLostFocus = nullptr;  // only the key closes it now
  screen.Key(key::kEscape);
  EXPECT_FALSE(PanelIsOpen());
  EXPECT_EQ(TakeErrors(screen), Texts{"5: Invalid procedure call or argument"});
}

TEST_F(CalendarPanelTest, ClosesOnADoubleClick) {
  OpenPanel();
  const Rect bounds = form().Calendario.Bounds();
  const std::optional<Rect> day = form().Calendario.DayRectangle(Date(2026, 11, 16));
  ASSERT_TRUE(day.has_value());
  screen.robot().DoubleClickAt(
      {bounds.left + day->left + day->width / 2, bounds.top + day->top + day->height / 2});
  EXPECT_FALSE(PanelIsOpen());
}

TEST_F(CalendarPanelTest, ClosesWhenTheFocusGoesElsewhere) {
  OpenPanel();
  screen.ClickCell(1, kCode);
  EXPECT_FALSE(PanelIsOpen());
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

TEST_F(CalendarPanelTest, StaysOpenOnOtherKeys) {
  OpenPanel();
  screen.Type("a ");
  EXPECT_TRUE(PanelIsOpen());
  EXPECT_EQ(screen.Focused(), "Calendario");
}

TEST_F(CalendarPanelTest, StaysOpenOnASingleClickOfADay) {
  OpenPanel();
  screen.robot().ClickDay(form().Calendario, Date(2026, 11, 20));
  EXPECT_TRUE(PanelIsOpen());
  EXPECT_EQ(screen.Focused(), "Calendario");
}

TEST_F(CalendarPanelTest, TurningTheMonthSelectsNothing) {
  OpenPanel();
  const Rect bounds = form().Calendario.Bounds();
  const Rect next = form().Calendario.NextButton();
  screen.robot().ClickAt({bounds.left + next.left + next.width / 2, bounds.top + next.top + next.height / 2});
  EXPECT_EQ(form().Calendario.Value(), Date(2026, 11, 16));
  EXPECT_EQ(form().MkFecha.Text(), "16/11/2026");
  EXPECT_TRUE(TakeStatements(screen).empty());
}

TEST_F(CalendarPanelTest, EnterInTheDateBoxGivesTheFocusToTheGrid) {
  form().PicCalendario.Visible(true);
  screen.Click("MkFecha");  // closes the panel, the box keeps the focus
  ASSERT_EQ(screen.Focused(), "MkFecha");
  screen.Enter();
  EXPECT_EQ(screen.Focused(), "MSFProductos");
}

TEST_F(CalendarPanelTest, EnterInTheDateBoxGivesTheFocusToAnOpenEditor) {
  screen.DoubleClickCell(1, kCode);
  form().PicCalendario.Visible(true);
  screen.Click("MkFecha");
  screen.Enter();
  EXPECT_EQ(screen.Focused(), "TxtMSF");
}

TEST_F(CalendarPanelTest, TheDateBoxIsLocked) {
  form().PicCalendario.Visible(true);
  screen.Click("MkFecha");
  screen.Type("99");
  screen.Key(key::kDelete);
  EXPECT_EQ(form().MkFecha.Text(), "16/11/2026");
  EXPECT_EQ(screen.Focused(), "MkFecha");
}

/// Normal mode shows the other date box.
class ShownDateTest : public testing::Test {
 protected:
  FormDriver screen;
};

TEST_F(ShownDateTest, TakesItsColourOnFocusAndIsWhiteAfterIt) {
  screen.OpenWithStylist();
  screen.Click("TxtFechaHora");
  EXPECT_EQ(screen.Focused(), "TxtFechaHora");
  EXPECT_EQ(screen.form().TxtFechaHora.BackColor(), kFocusColour);
  screen.ClickCell(1, kCode);
  EXPECT_EQ(screen.form().TxtFechaHora.BackColor(), kWhite);
}

TEST_F(ShownDateTest, OpensNoCalendarAndCannotBeTypedInto) {
  screen.OpenWithStylist();
  screen.Click("TxtFechaHora");
  screen.Type("1");
  EXPECT_FALSE(screen.form().PicCalendario.Visible());
  EXPECT_EQ(screen.form().TxtFechaHora.Text(), "16/11/2026");
}

}  // namespace
}  // namespace orvendal
