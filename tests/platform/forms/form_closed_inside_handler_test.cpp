#include <gtest/gtest.h>

#include "platform/forms/barra.h"
#include "platform/forms/boton.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/h_scroll_bar.h"
#include "platform/forms/label.h"
#include "platform/forms/month_view.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/option_button.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

/// One control of each kind that a handler can hang on.
struct Cast {
  Stage stage;
  TextBox& box = stage.Add<TextBox>("Box", {0, 0, 2000, 300});
  TextBox& other = stage.Add<TextBox>("Other", {0, 400, 2000, 300});
  CommandButton& button = stage.Add<CommandButton>("Button", {0, 800, 1000, 300});
  Boton& boton = stage.Add<Boton>("Boton", {0, 1200, 1000, 300});
  OptionButton& option = stage.Add<OptionButton>("Option", {0, 1600, 1000, 300});
  ComboBox& combo = stage.Add<ComboBox>("Combo", {0, 2000, 1000, 300});
  HScrollBar& bar = stage.Add<HScrollBar>("Bar", {0, 2400, 3000, 300});
  MSFlexGrid& grid = stage.Add<MSFlexGrid>("Grid", {4000, 0, 4000, 2000});
  MonthView& calendar = stage.Add<MonthView>("Calendar", {4000, 3000, 3540, 3420});
  Barra& title = stage.Add<Barra>("Title", {0, 4000, 3000, 555});
  Label& label = stage.Add<Label>("Label", {0, 2800, 1000, 300});
  Timer& timer = stage.Add<Timer>("Timer", {0, 0, 0, 0});

  void Show() {
    stage.Show();
    grid.Cols(3);  // no bar below
    grid.Rows(40);
    combo.AddItem("a");
    combo.AddItem("b");
    calendar.Value(Date(2026, 11, 16));
  }
  /// Unloads the form and gives up the last reference that is not the engine's own.
  void Close() {
    stage.form->Unload();
    stage.form.reset();
  }
  Point On(const Control& control) const {
    return Stage::At(control, Stage::MiddleOf(control.LocalBounds()));
  }
};

struct Case {
  const char* name;
  void (*wire)(Cast&);
  void (*use)(Cast&, Form&);
};

void Press(Form& form, Point at) {
  form.MousePress(at, mouse_button::kLeft, 0, false);
}
void Click(Form& form, Point at) {
  Press(form, at);
  form.MouseRelease(at, mouse_button::kLeft, 0);
}
void Key(Form& form, int code, char32_t character = 0) {
  form.KeyPress(code, 0);
  if (character != 0) form.Character(character);
  form.KeyRelease(code, 0);
}
/// Middle of a cell of the grid.
Point Cell(const Cast& cast, int row, int column) {
  return Stage::At(cast.grid, Stage::MiddleOf(cast.grid.CellRectangle(row, column)));
}

const Case kCases[] = {
    {"Click", [](Cast& c) { c.label.OnClick = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, c.On(c.label)); }},
    {"DblClick", [](Cast& c) { c.box.OnDblClick = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) {
       const Point at = c.On(c.box);
       Click(f, at);
       f.MousePress(at, mouse_button::kLeft, 0, true);
       f.MouseRelease(at, mouse_button::kLeft, 0);
     }},
    {"MouseDown", [](Cast& c) { c.box.OnMouseDown = [&c](int, int, double, double) { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, c.On(c.box)); }},
    {"MouseUp", [](Cast& c) { c.box.OnMouseUp = [&c](int, int, double, double) { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, c.On(c.box)); }},
    {"MouseMove", [](Cast& c) { c.box.OnMouseMove = [&c](int, int, double, double) { c.Close(); }; },
     [](Cast& c, Form& f) {
       const Point at = c.On(c.box);
       Press(f, at);
       f.MouseMove(at, 1, 0);
     }},
    {"MouseDownOnTheForm", [](Cast& c) { c.stage.form->OnMouseDown = [&c] { c.Close(); }; },
     [](Cast&, Form& f) {
       Click(f, {14000, 8000});
     }},
    {"KeyDown", [](Cast& c) { c.box.OnKeyDown = [&c](int&, int) { c.Close(); }; },
     [](Cast&, Form& f) { Key(f, 'A', U'a'); }},
    {"KeyPress", [](Cast& c) { c.box.OnKeyPress = [&c](int&) { c.Close(); }; },
     [](Cast&, Form& f) { Key(f, 'A', U'a'); }},
    {"KeyUp", [](Cast& c) { c.box.OnKeyUp = [&c](int&, int) { c.Close(); }; },
     [](Cast&, Form& f) { Key(f, 'A', U'a'); }},
    {"KeyDownOfTheForm",
     [](Cast& c) {
       c.stage.form->KeyPreview(true);
       c.stage.form->OnKeyDown = [&c](int&, int) { c.Close(); };
     },
     [](Cast&, Form& f) { Key(f, key::kF1); }},
    {"KeyPressOfTheForm",
     [](Cast& c) {
       c.stage.form->KeyPreview(true);
       c.stage.form->OnKeyPress = [&c](int&) { c.Close(); };
     },
     [](Cast&, Form& f) { Key(f, 'A', U'a'); }},
    {"KeyUpOfTheForm",
     [](Cast& c) {
       c.stage.form->KeyPreview(true);
       c.stage.form->OnKeyUp = [&c](int&, int) { c.Close(); };
     },
     [](Cast&, Form& f) { Key(f, 'A', U'a'); }},
    {"GotFocus", [](Cast& c) { c.other.OnGotFocus = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, c.On(c.other)); }},
    {"GotFocusByTab", [](Cast& c) { c.other.OnGotFocus = [&c] { c.Close(); }; },
     [](Cast&, Form& f) { Key(f, key::kTab, U'\t'); }},
    {"LostFocus", [](Cast& c) { c.box.OnLostFocus = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, c.On(c.other)); }},
    {"LostFocusByHiding",
     [](Cast& c) {
       c.box.OnLostFocus = [&c] { c.Close(); };
       c.box.OnKeyDown = [&c](int&, int) { c.box.Visible(false); };
     },
     [](Cast&, Form& f) { Key(f, 'A', U'a'); }},
    {"Change", [](Cast& c) { c.box.OnChange = [&c] { c.Close(); }; },
     [](Cast&, Form& f) { Key(f, 'A', U'a'); }},
    {"ChangeByDelete",
     [](Cast& c) {
       c.box.Text("abc");
       c.box.OnChange = [&c] { c.Close(); };
     },
     [](Cast&, Form& f) { Key(f, key::kDelete); }},
    {"ChangeOfAScrollBar", [](Cast& c) { c.bar.OnChange = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) {
       const Point at = Stage::At(c.bar, {c.bar.Width() - 60, 150});
       Click(f, at);
     }},
    {"ChangeOfAScrollBarByKey",
     [](Cast& c) {
       c.bar.OnChange = [&c] { c.Close(); };
       c.bar.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kRight); }},
    {"ClickOfAButton", [](Cast& c) { c.button.OnClick = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, c.On(c.button)); }},
    {"ClickOfAButtonByEnter",
     [](Cast& c) {
       c.button.OnClick = [&c] { c.Close(); };
       c.button.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kReturn, U'\r'); }},
    {"ClickOfAButtonByTheBlank",
     [](Cast& c) {
       c.button.OnClick = [&c] { c.Close(); };
       c.button.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kSpace, U' '); }},
    {"ClickOfTheMakersButton", [](Cast& c) { c.boton.OnClick = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, c.On(c.boton)); }},
    {"ClickOfTheMakersButtonByEnter",
     [](Cast& c) {
       c.boton.OnClick = [&c] { c.Close(); };
       c.boton.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kReturn, U'\r'); }},
    {"ClickOfAnOption", [](Cast& c) { c.option.OnClick = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, c.On(c.option)); }},
    {"ClickOfAList",
     [](Cast& c) {
       c.combo.OnClick = [&c] { c.Close(); };
       c.combo.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kDown); }},
    {"Minimizar", [](Cast& c) { c.title.OnMinimizar = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, Stage::At(c.title, Stage::MiddleOf(c.title.MinimizeButton()))); }},
    {"Cerrar", [](Cast& c) { c.title.OnCerrar = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, Stage::At(c.title, Stage::MiddleOf(c.title.CloseButton()))); }},
    {"LeaveCell", [](Cast& c) { c.grid.OnLeaveCell = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, Cell(c, 2, 2)); }},
    {"EnterCell", [](Cast& c) { c.grid.OnEnterCell = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, Cell(c, 2, 2)); }},
    {"RowColChange", [](Cast& c) { c.grid.OnRowColChange = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { Click(f, Cell(c, 2, 2)); }},
    {"RowColChangeByKey",
     [](Cast& c) {
       c.grid.OnRowColChange = [&c] { c.Close(); };
       c.grid.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kDown); }},
    {"LeaveCellByKey",
     [](Cast& c) {
       c.grid.OnLeaveCell = [&c] { c.Close(); };
       c.grid.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kPageDown); }},
    {"ScrollByKey",
     [](Cast& c) {
       c.grid.OnScroll = [&c] { c.Close(); };
       c.grid.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kPageDown); }},
    {"ScrollByWheel", [](Cast& c) { c.grid.OnScroll = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) { f.MouseWheel(c.On(c.grid), 3); }},
    {"ScrollByBar", [](Cast& c) { c.grid.OnScroll = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) {
       Click(f, Stage::At(c.grid, {c.grid.Width() - 100, c.grid.Height() - 100}));
     }},
    {"DblClickOfAGrid", [](Cast& c) { c.grid.OnDblClick = [&c] { c.Close(); }; },
     [](Cast& c, Form& f) {
       const Point at = Cell(c, 2, 2);
       Click(f, at);
       f.MousePress(at, mouse_button::kLeft, 0, true);
       f.MouseRelease(at, mouse_button::kLeft, 0);
     }},
    {"SelChange", [](Cast& c) { c.calendar.OnSelChange = [&c](Date, Date, bool&) { c.Close(); }; },
     [](Cast& c, Form& f) {
       Click(f, Stage::At(c.calendar, Stage::MiddleOf(*c.calendar.DayRectangle(Date(2026, 11, 20)))));
     }},
    {"SelChangeByKey",
     [](Cast& c) {
       c.calendar.OnSelChange = [&c](Date, Date, bool&) { c.Close(); };
       c.calendar.SetFocus();
     },
     [](Cast&, Form& f) { Key(f, key::kRight); }},
    {"DateClick", [](Cast& c) { c.calendar.OnDateClick = [&c](Date) { c.Close(); }; },
     [](Cast& c, Form& f) {
       Click(f, Stage::At(c.calendar, Stage::MiddleOf(*c.calendar.DayRectangle(Date(2026, 11, 20)))));
     }},
    {"Timer",
     [](Cast& c) {
       c.timer.Interval(10);
       c.timer.OnTimer = [&c] { c.Close(); };
     },
     [](Cast& c, Form&) { c.stage.host.PassTime(10); }},
    {"CloseRequest", [](Cast& c) { c.stage.form->OnCloseRequest = [&c] { c.Close(); }; },
     [](Cast&, Form& f) { f.CloseRequest(); }},
    {"AltF4", [](Cast& c) { c.stage.form->OnCloseRequest = [&c] { c.Close(); }; },
     [](Cast&, Form& f) {
       f.KeyPress(key::kF4, shift_mask::kAlt);
       f.KeyRelease(key::kF4, shift_mask::kAlt);
     }},
};

class FormClosedInsideHandlerTest : public ::testing::TestWithParam<Case> {};

TEST_P(FormClosedInsideHandlerTest, TheEngineStopsThereAndTouchesNothingMore) {
  Cast cast;
  cast.Show();
  GetParam().wire(cast);
  const std::weak_ptr<Form> form = cast.stage.form;
  {
    // What the adapter holds while it hands the input in.
    const std::shared_ptr<Form> held = cast.stage.form;
    GetParam().use(cast, *held);
    EXPECT_FALSE(held->IsLoaded());
    EXPECT_FALSE(held->Visible());
    EXPECT_EQ(held->ActiveControl(), nullptr);
  }
  EXPECT_TRUE(form.expired());
  EXPECT_TRUE(cast.stage.host.ReportedErrors().empty());
}

INSTANTIATE_TEST_SUITE_P(EachEvent, FormClosedInsideHandlerTest, ::testing::ValuesIn(kCases),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST(FormClosedWhileItOpensTest, InsideActivate) {
  Cast cast;
  const std::weak_ptr<Form> form = cast.stage.form;
  cast.stage.form->OnActivate = [&cast] { cast.Close(); };
  Form* const shown = cast.stage.form.get();
  shown->Show();
  EXPECT_TRUE(form.expired());
}

TEST(FormClosedWhileItOpensTest, InsideResize) {
  Cast cast;
  const std::weak_ptr<Form> form = cast.stage.form;
  cast.stage.form->OnResize = [&cast] { cast.Close(); };
  Form* const shown = cast.stage.form.get();
  shown->Show();
  EXPECT_TRUE(form.expired());
}

TEST(FormClosedWhileItOpensTest, InsideTheFirstFocus) {
  Cast cast;
  const std::weak_ptr<Form> form = cast.stage.form;
  cast.box.OnGotFocus = [&cast] { cast.Close(); };
  Form* const shown = cast.stage.form.get();
  shown->Show();
  EXPECT_TRUE(form.expired());
}

TEST(FormClosedWhileItOpensTest, ReloadedInsideAHandlerItIsAnotherLife) {
  Cast cast;
  cast.Show();
  int clicks = 0;
  cast.box.OnMouseDown = [&cast](int, int, double, double) {
    cast.stage.form->Unload();
    cast.stage.form->Show();
  };
  cast.box.OnMouseUp = [&clicks](int, int, double, double) { ++clicks; };
  cast.box.OnClick = [&clicks] { ++clicks; };
  Click(*cast.stage.form, cast.On(cast.box));
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(cast.stage.form->IsLoaded());
}

TEST(FormClosedInsideAKeyTest, ThatStandsForACharacterToo) {
  Cast cast;
  cast.Show();
  const std::weak_ptr<Form> form = cast.stage.form;
  cast.box.OnKeyDown = [&cast](int&, int) { cast.Close(); };
  // Nobody but the engine holds the form here.
  cast.stage.form->KeyPress(key::kInsert, shift_mask::kShift);
  EXPECT_TRUE(form.expired());
}

TEST(FormClosedWhileItOpensTest, TwoTimersDueAtOnceOfWhichTheFirstCloses) {
  Cast cast;
  Timer& second = cast.stage.Add<Timer>("Second", {0, 0, 0, 0});
  cast.Show();
  int fired = 0;
  const auto close = [&cast, &fired] {
    ++fired;
    cast.Close();
  };
  cast.timer.OnTimer = close;
  second.OnTimer = close;
  cast.timer.Interval(10);
  second.Interval(10);
  cast.stage.host.PassTime(10);
  EXPECT_EQ(fired, 1);
  cast.stage.host.PassTime(100);
  EXPECT_EQ(fired, 1);
}

}  // namespace
}  // namespace orvendal::testing
