#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tests/support/design_form.h"

namespace orvendal {
namespace {

using testing_support::DesignForm;
using Events = std::set<std::string>;

// The events that have a handler, of every control that has any.
const std::map<std::string, Events> kHandlers = {
    {"Barra1", {"Minimizar", "Cerrar"}},
    {"BtnAnuloSuper", {"Click"}},
    {"CmdEmpl", {"Click"}},
    {"TxtEmpleado", {"GotFocus", "KeyPress", "LostFocus"}},
    {"Calendario", {"LostFocus", "SelChange", "DblClick", "KeyPress"}},
    {"MkFecha", {"GotFocus", "KeyPress", "LostFocus"}},
    {"TxtFechaHora", {"GotFocus", "LostFocus"}},
    {"MSFProductos",
     {"GotFocus", "Click", "DblClick", "KeyPress", "MouseDown", "RowColChange", "LeaveCell", "Scroll"}},
    {"TxtMSF", {"GotFocus", "KeyDown", "KeyPress"}},
    {"ScrollProductos", {"Change"}},
    {"TimerCBarra", {"Timer"}},
    {"LblNuevo(0)", {"Click", "MouseDown", "MouseUp"}},
    {"LblNuevo(1)", {"Click", "MouseDown", "MouseUp"}},
    {"LblBuscar(0)", {"Click", "MouseDown", "MouseUp"}},
    {"LblBuscar(1)", {"Click", "MouseDown", "MouseUp"}},
    {"LblBorrar(0)", {"Click", "MouseDown", "MouseUp"}},
    {"LblBorrar(1)", {"Click", "MouseDown", "MouseUp"}},
    {"LblGuardar(0)", {"Click", "MouseDown", "MouseUp"}},
    {"LblGuardar(1)", {"Click", "MouseDown", "MouseUp"}},
    {"LblCancelar(0)", {"Click", "MouseDown", "MouseUp"}},
    {"LblCancelar(1)", {"Click", "MouseDown", "MouseUp"}},
};

template <typename Event>
void Note(Events& events, const char* name, const Event& handler) {
  if (handler) events.insert(name);
}

Events EventsOf(Control& control) {
  Events events;
  Note(events, "Click", control.OnClick);
  Note(events, "DblClick", control.OnDblClick);
  Note(events, "MouseDown", control.OnMouseDown);
  Note(events, "MouseUp", control.OnMouseUp);
  Note(events, "MouseMove", control.OnMouseMove);
  Note(events, "KeyDown", control.OnKeyDown);
  Note(events, "KeyPress", control.OnKeyPress);
  Note(events, "KeyUp", control.OnKeyUp);
  Note(events, "GotFocus", control.OnGotFocus);
  Note(events, "LostFocus", control.OnLostFocus);
  if (auto* box = dynamic_cast<TextBox*>(&control)) Note(events, "Change", box->OnChange);
  if (auto* bar = dynamic_cast<HScrollBar*>(&control)) Note(events, "Change", bar->OnChange);
  if (auto* timer = dynamic_cast<Timer*>(&control)) Note(events, "Timer", timer->OnTimer);
  if (auto* calendar = dynamic_cast<MonthView*>(&control)) {
    Note(events, "SelChange", calendar->OnSelChange);
    Note(events, "DateClick", calendar->OnDateClick);
  }
  if (auto* grid = dynamic_cast<MSFlexGrid*>(&control)) {
    Note(events, "LeaveCell", grid->OnLeaveCell);
    Note(events, "EnterCell", grid->OnEnterCell);
    Note(events, "RowColChange", grid->OnRowColChange);
    Note(events, "Scroll", grid->OnScroll);
  }
  if (auto* bar = dynamic_cast<Barra*>(&control)) {
    Note(events, "Minimizar", bar->OnMinimizar);
    Note(events, "Cerrar", bar->OnCerrar);
  }
  return events;
}

TEST(EventWiringTest, EveryControlHasItsHandlersAndNoOther) {
  DesignForm design;
  for (Control* control : design.form().Controls()) {
    const auto listed = kHandlers.find(control->FullName());
    EXPECT_EQ(EventsOf(*control), listed == kHandlers.end() ? Events{} : listed->second)
        << control->FullName();
  }
}

TEST(EventWiringTest, TheFormItselfHearsOfLoadActivationKeysAndUnload) {
  FormDriver driver;
  const auto form = std::make_shared<FrmOrvendalciales>(driver.state);
  EXPECT_TRUE(form->OnLoad);
  EXPECT_TRUE(form->OnActivate);
  EXPECT_TRUE(form->OnKeyDown);
  EXPECT_TRUE(form->OnUnload);
  EXPECT_TRUE(form->OnCloseRequest);
  EXPECT_FALSE(form->OnKeyPress);
  EXPECT_FALSE(form->OnKeyUp);
  EXPECT_FALSE(form->OnResize);
  EXPECT_FALSE(form->OnGotFocus);
}

}  // namespace
}  // namespace orvendal
