#include <algorithm>

#include "adapters/win32/form_accessible.h"
#include "form/columns.h"
#include "tests/adapters/win32/accessible_client.h"
#include "tests/adapters/win32/real_screen.h"

namespace orvendal {
namespace {

class AccessibleControls : public ::testing::Test {
 protected:
  AccessibleControls() {
    screen.Open();
    inside = Seen::Of(screen.Window());
  }
  ~AccessibleControls() override { inside = {}; }

  Seen SeenOf(const Control& control) const {
    return inside.Children().at(static_cast<std::size_t>(AccessibleNumber(control)) - 1);
  }
  void OpenEditor() {
    screen.library.QueueEmployee({true, "E1", "Ana"});
    screen.ClickCell(1, column::kCode);
    screen.DoubleClickCell(1, column::kCode);
  }
  void EnterSupervisorMode() {
    screen.library.QueueEmployee({true, "E2", "Berta"});
    screen.Click(screen.form().LblNuevo_1);
  }

  ComApartment apartment;
  RealScreen screen;
  Seen inside;
};

TEST_F(AccessibleControls, EachIsWhereTheScreenShowsItAndNowhereIfItDoesNot) {
  int shown = 0;
  for (const Control* control : screen.form().Controls()) {
    const RECT place = SeenOf(*control).Place();
    const Rect bounds = control->Bounds();
    if (SeenOf(*control).Is(STATE_SYSTEM_INVISIBLE)) {
      EXPECT_EQ(place.right - place.left, 0) << control->FullName();
      continue;
    }
    ++shown;
    EXPECT_NEAR(place.left, bounds.left / kTwipsPerPixel, 1) << control->FullName();
    EXPECT_NEAR(place.top, bounds.top / kTwipsPerPixel, 1) << control->FullName();
    EXPECT_NEAR(place.right, bounds.Right() / kTwipsPerPixel, 1) << control->FullName();
    EXPECT_NEAR(place.bottom, bounds.Bottom() / kTwipsPerPixel, 1) << control->FullName();
  }
  EXPECT_GT(shown, 25);
}

TEST_F(AccessibleControls, EachThatCanHaveTheFocusTakesItFromAReaderAndSaysSo) {
  const HWND window = screen.Window();
  FrmOrvendalciales& form = screen.form();
  for (const Control* control : std::vector<const Control*>{
           &form.TxtFechaHora, &form.ScrollProductos, &form.CmdEmpl, &form.PicDatos, &form.PicServicios}) {
    AccessibleListener listener(window);
    EXPECT_EQ(SeenOf(*control).TakeFocus(), S_OK) << control->FullName();
    Pump();
    EXPECT_TRUE(control->HasFocus()) << control->FullName();
    EXPECT_EQ(inside.Focus().Number(), AccessibleNumber(*control)) << control->FullName();
    EXPECT_TRUE(SeenOf(*control).Is(STATE_SYSTEM_FOCUSED)) << control->FullName();
    const auto events = listener.Take(EVENT_OBJECT_FOCUS);
    ASSERT_FALSE(events.empty()) << control->FullName();
    EXPECT_EQ(events.back().child, AccessibleNumber(*control)) << control->FullName();
  }
}

TEST_F(AccessibleControls, TheSurfaceThatHasTheFocusAtFirstIsCalledAsItsWindow) {
  const Seen surface = inside.Focus();
  EXPECT_EQ(surface.Role(), ROLE_SYSTEM_GROUPING);
  EXPECT_EQ(surface.Name(), L"Orvendal");
}

TEST_F(AccessibleControls, WhatCannotHaveTheFocusRefusesIt) {
  FrmOrvendalciales& form = screen.form();
  for (const Control* control :
       std::vector<const Control*>{&form.LblFecha, &form.Shape1, &form.TxtMSF, &form.LblGuardar_1}) {
    EXPECT_EQ(SeenOf(*control).TakeFocus(), DISP_E_MEMBERNOTFOUND) << control->FullName();
    EXPECT_FALSE(SeenOf(*control).Is(STATE_SYSTEM_FOCUSABLE)) << control->FullName();
  }
}

TEST_F(AccessibleControls, TheEditorIsReadWhereItStandsUnderTheTitleOfItsColumn) {
  OpenEditor();
  screen.Type("P17\n");
  const Seen editor = inside.Focus();
  ASSERT_EQ(editor.Role(), ROLE_SYSTEM_TEXT);
  EXPECT_EQ(editor.Name(), L"Cant.Actual");
  EXPECT_EQ(editor.Value(), L"17");
  const RECT place = editor.Place();
  const Seen found = inside.At({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  EXPECT_EQ(found.Number(), editor.Number()) << "it lies in front of its cell";
  AccessibleListener listener(screen.Window());
  SendMessageW(screen.Window(), WM_NULL, 0, 0);
  screen.Type("4");
  EXPECT_EQ(
      listener.Take(EVENT_OBJECT_VALUECHANGE),
      (std::vector<AccessibleListener::Event>{{EVENT_OBJECT_VALUECHANGE, OBJID_CLIENT, editor.Number()}}));
  EXPECT_EQ(editor.Value(), L"4");
}

TEST_F(AccessibleControls, TheActionBarTellsWhatCanBePressedInEachMode) {
  const auto is_off = [this](const Control& label) { return SeenOf(label).Is(STATE_SYSTEM_UNAVAILABLE); };
  FrmOrvendalciales& form = screen.form();
  EXPECT_TRUE(is_off(form.LblBuscar_1));
  OpenEditor();
  EXPECT_FALSE(is_off(form.LblBuscar_1));
  EXPECT_EQ(SeenOf(form.LblBuscar_1).Name(), L"Buscar");
  EXPECT_EQ(SeenOf(form.LblBuscar_1).Role(), ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_EQ(SeenOf(form.LblBuscar_1).Action(), L"Pulsar");
  screen.Key(key::kEscape);
  EXPECT_TRUE(is_off(form.LblBuscar_1));
}

TEST_F(AccessibleControls, TheCalendarTellsItsDayAndEachOneThatAKeyBrings) {
  EXPECT_TRUE(SeenOf(screen.form().Calendario).Is(STATE_SYSTEM_INVISIBLE));
  EnterSupervisorMode();
  screen.Click(screen.form().MkFecha);
  const Seen calendar = SeenOf(screen.form().Calendario);
  EXPECT_FALSE(calendar.Is(STATE_SYSTEM_INVISIBLE));
  EXPECT_TRUE(calendar.Is(STATE_SYSTEM_FOCUSED));
  EXPECT_EQ(calendar.Value(), L"16/11/2026");
  AccessibleListener listener(screen.Window());
  SendMessageW(screen.Window(), WM_NULL, 0, 0);
  PostMessageW(screen.Window(), WM_KEYDOWN, VK_LEFT, 1);
  const auto events = listener.Take(EVENT_OBJECT_VALUECHANGE);
  EXPECT_EQ(calendar.Value(), L"15/11/2026");
  EXPECT_NE(std::find(events.begin(), events.end(),
                      AccessibleListener::Event{EVENT_OBJECT_VALUECHANGE, OBJID_CLIENT, calendar.Number()}),
            events.end());
}

TEST_F(AccessibleControls, TheButtonsOfAModeCanBePressedByAReader) {
  EnterSupervisorMode();
  const Seen leave = inside.ChildNamed(L"Anulo Supervisor", ROLE_SYSTEM_PUSHBUTTON);
  ASSERT_TRUE(leave.Exists());
  EXPECT_EQ(leave.Press(), S_OK);
  Pump();
  EXPECT_FALSE(screen.form().LblSupervisor.Visible());
  EXPECT_FALSE(inside.ChildNamed(L"Anulo Supervisor", ROLE_SYSTEM_PUSHBUTTON).Exists());
}

}  // namespace
}  // namespace orvendal
