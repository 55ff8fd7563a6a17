#include "tests/adapters/win32/real_screen.h"

#include <atomic>
#include <thread>

#include "adapters/automation/module_lifetime.h"
#include "adapters/win32/form_accessible.h"
#include "adapters/win32/module_use.h"
#include "form/columns.h"
#include "tests/adapters/win32/accessible_client.h"

namespace orvendal {
namespace {

class AccessibleScreen : public ::testing::Test {
 protected:
  AccessibleScreen() {
    screen.Open();
    inside = Seen::Of(screen.Window());
  }
  ~AccessibleScreen() override { inside = {}; }

  Seen Control(const std::wstring& name, LONG role) const { return inside.ChildNamed(name, role); }
  Seen Grid() const { return Control(L"Existencias iniciales", ROLE_SYSTEM_TABLE); }
  Seen Cell(int row, int column) const {
    Seen grid = Grid();
    grid.Object()->AddRef();
    return {grid.Object(), row * screen.state.form->MSFProductos.Cols() + column + 1};
  }
  void AddLines(int count) {
    MSFlexGrid& grid = screen.form().MSFProductos;
    grid.Rows(count + 1);
    for (int row = 1; row <= count; ++row) {
      grid.TextMatrix(row, column::kCode, "P" + std::to_string(row));
      grid.TextMatrix(row, column::kDescription, "Producto " + std::to_string(row));
    }
    Pump();
  }

  ComApartment apartment;
  RealScreen screen;
  Seen inside;
};

TEST_F(AccessibleScreen, TheFormIsReadWithAllItsControls) {
  ASSERT_TRUE(inside.Exists());
  EXPECT_EQ(inside.Role(), ROLE_SYSTEM_CLIENT);
  const std::vector<Seen> children = inside.Children();
  EXPECT_EQ(children.size(), screen.form().Controls().size());
  for (const Seen& child : children) {
    EXPECT_FALSE(child.Name().empty());
    EXPECT_GT(child.Role(), 0) << child.Number();
    EXPECT_GE(child.State(), 0) << child.Number();
  }
}

TEST_F(AccessibleScreen, BoxesHaveTheNamesOfTheLabelsBesideThem) {
  const Seen stylist = Control(L"Estilista", ROLE_SYSTEM_TEXT);
  ASSERT_TRUE(stylist.Exists());
  EXPECT_TRUE(stylist.Is(STATE_SYSTEM_READONLY));
  EXPECT_TRUE(stylist.Is(STATE_SYSTEM_FOCUSABLE));
  const Seen date = Control(L"Fecha", ROLE_SYSTEM_TEXT);
  ASSERT_TRUE(date.Exists());
  EXPECT_EQ(date.Value(), L"16/11/2026");
  EXPECT_TRUE(Control(L"Estilista", ROLE_SYSTEM_PUSHBUTTON).Exists()) << "the button with three dots";
}

TEST_F(AccessibleScreen, TheActionBarIsButtonsThatSayWhetherTheyWork) {
  const Seen supervisor = Control(L"Supervisor", ROLE_SYSTEM_PUSHBUTTON);
  ASSERT_TRUE(supervisor.Exists());
  EXPECT_FALSE(supervisor.Is(STATE_SYSTEM_UNAVAILABLE));
  EXPECT_EQ(supervisor.Action(), L"Pulsar");
  const Seen save = Control(L"Guardar", ROLE_SYSTEM_PUSHBUTTON);
  ASSERT_TRUE(save.Exists());
  EXPECT_TRUE(save.Is(STATE_SYSTEM_UNAVAILABLE));
  EXPECT_EQ(save.Press(), DISP_E_MEMBERNOTFOUND);
}

TEST_F(AccessibleScreen, TheTitleBarHasItsTwoButtons) {
  const Seen bar = Control(L"Orvendal", ROLE_SYSTEM_TITLEBAR);
  ASSERT_TRUE(bar.Exists());
  const std::vector<Seen> buttons = bar.Children();
  ASSERT_EQ(buttons.size(), 2U);
  EXPECT_EQ(buttons[0].Name(), L"Minimizar");
  EXPECT_EQ(buttons[1].Name(), L"Cerrar");
  EXPECT_EQ(buttons[1].Role(), ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_EQ(buttons[0].Press(), S_OK);
  EXPECT_FALSE(IsIconic(screen.Window())) << "whoever asks does not wait for it";
  Pump();
  EXPECT_TRUE(IsIconic(screen.Window()));
}

TEST_F(AccessibleScreen, TheCellsOfTheGridHaveTheTitlesOfTheirColumns) {
  AddLines(3);
  const Seen grid = Grid();
  ASSERT_TRUE(grid.Exists());
  EXPECT_EQ(Cell(0, column::kDescription).Role(), ROLE_SYSTEM_COLUMNHEADER);
  EXPECT_EQ(Cell(0, column::kDescription).Value(), L"Descripción");
  EXPECT_EQ(Cell(2, column::kDescription).Role(), ROLE_SYSTEM_CELL);
  EXPECT_EQ(Cell(2, column::kDescription).Name(), L"Descripción");
  EXPECT_EQ(Cell(2, column::kDescription).Value(), L"Producto 2");
  EXPECT_EQ(Cell(2, column::kCode).Name(), L"Código");
  EXPECT_TRUE(Cell(2, column::kStoredQuantity).Is(STATE_SYSTEM_INVISIBLE)) << "a hidden column";
}

TEST_F(AccessibleScreen, ALongGridListsWhatShowsAndAnswersForEveryCell) {
  AddLines(3000);
  const std::size_t listed = Grid().Children().size();
  EXPECT_GT(listed, 50U);
  EXPECT_LT(listed, 500U);
  EXPECT_EQ(Cell(3000, column::kDescription).Value(), L"Producto 3000");
  EXPECT_TRUE(Cell(3000, column::kDescription).Is(STATE_SYSTEM_OFFSCREEN));
  EXPECT_FALSE(Cell(1, column::kDescription).Is(STATE_SYSTEM_OFFSCREEN));
  VARIANT role;
  EXPECT_EQ(Grid().Object()->get_accRole(Child(3001 * 9 + 1), &role), E_INVALIDARG);
  EXPECT_EQ(Grid().Object()->get_accRole(Child(-1), &role), E_INVALIDARG);
}

TEST_F(AccessibleScreen, TheArrowsOfTheReaderGoFromCellToCell) {
  AddLines(3);
  EXPECT_EQ(Cell(1, column::kDescription).Go(NAVDIR_DOWN).Value(), L"Producto 2");
  EXPECT_EQ(Cell(2, column::kDescription).Go(NAVDIR_UP).Value(), L"Producto 1");
  EXPECT_EQ(Cell(2, column::kDescription).Go(NAVDIR_LEFT).Value(), L"P2");
  EXPECT_EQ(Cell(2, column::kCode).Go(NAVDIR_RIGHT).Value(), L"Producto 2");
  EXPECT_FALSE(Cell(2, column::kCode).Go(NAVDIR_LEFT).Exists());
  EXPECT_FALSE(Cell(0, column::kCode).Go(NAVDIR_UP).Exists());
  EXPECT_EQ(Grid().Go(NAVDIR_FIRSTCHILD).Value(), L"Código");
}

TEST_F(AccessibleScreen, NextAndPreviousGoThroughTheControlsAndTheirObjects) {
  Seen at = inside.Go(NAVDIR_FIRSTCHILD);
  std::size_t count = 0;
  bool met_grid = false;
  while (at.Exists() && count < 100) {
    ++count;
    met_grid = met_grid || at.Role() == ROLE_SYSTEM_TABLE;
    at = at.Go(NAVDIR_NEXT);
  }
  EXPECT_EQ(count, screen.form().Controls().size());
  EXPECT_TRUE(met_grid);
  EXPECT_TRUE(inside.Go(NAVDIR_LASTCHILD).Go(NAVDIR_PREVIOUS).Exists());
}

TEST_F(AccessibleScreen, WhatLiesUnderAPointIsFoundThere) {
  AddLines(3);
  for (const Seen& wanted : {Control(L"Fecha", ROLE_SYSTEM_TEXT), Cell(2, column::kDescription),
                             Control(L"Supervisor", ROLE_SYSTEM_PUSHBUTTON)}) {
    const RECT place = wanted.Place();
    ASSERT_GT(place.right, place.left) << Utf8(wanted.Name());
    const Seen found = inside.At({(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    ASSERT_TRUE(found.Exists());
    EXPECT_EQ(found.Name(), wanted.Name());
    EXPECT_EQ(found.Value(), wanted.Value());
    EXPECT_EQ(found.Role(), wanted.Role());
  }
  EXPECT_FALSE(inside.At({-50, -50}).Exists());
}

TEST_F(AccessibleScreen, ThePlaceOfAControlIsThatOnTheDisplay) {
  const Rect bounds = screen.form().TxtFechaHora.Bounds();
  const RECT place = Control(L"Fecha", ROLE_SYSTEM_TEXT).Place();
  EXPECT_NEAR(place.left, bounds.left / kTwipsPerPixel, 1);
  EXPECT_NEAR(place.bottom, bounds.Bottom() / kTwipsPerPixel, 1);
}

TEST_F(AccessibleScreen, AReaderCanDoAWholeCount) {
  screen.library.QueueEmployee({true, "E1", "Ana"});
  EXPECT_EQ(Control(L"Estilista", ROLE_SYSTEM_PUSHBUTTON).Press(), S_OK);
  Pump();
  EXPECT_EQ(Control(L"Estilista", ROLE_SYSTEM_TEXT).Value(), L"Ana");
  EXPECT_EQ(Cell(1, column::kCode).Action(), L"Editar");
  EXPECT_EQ(Cell(1, column::kCode).Press(), S_OK);
  Pump();
  const Seen editor = inside.Focus();
  ASSERT_TRUE(editor.Exists());
  EXPECT_EQ(editor.Role(), ROLE_SYSTEM_TEXT);
  EXPECT_EQ(editor.Name(), L"Código") << "the column that is edited";
  EXPECT_TRUE(editor.Is(STATE_SYSTEM_FOCUSED));
  screen.Type("P17\n");
  EXPECT_EQ(inside.Focus().Value(), L"17");
  screen.Type("12\n");
  EXPECT_EQ(Cell(1, column::kDescription).Value(), L"Producto 17");
  EXPECT_EQ(Control(L"Guardar", ROLE_SYSTEM_PUSHBUTTON).Press(), S_OK);
  Pump();
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "1");
}

TEST_F(AccessibleScreen, TheFocusIsTheCellWhileTheGridHasIt) {
  AddLines(3);
  screen.library.QueueEmployee({true, "E1", "Ana"});
  EXPECT_EQ(Cell(3, column::kDescription).TakeFocus(), S_OK);
  Pump();
  screen.library.QueueEmployee({true, "E1", "Ana"});
  EXPECT_EQ(Cell(2, column::kDescription).TakeFocus(), S_OK);
  Pump();
  const Seen focus = inside.Focus();
  ASSERT_TRUE(focus.Exists());
  EXPECT_EQ(focus.Role(), ROLE_SYSTEM_CELL);
  EXPECT_EQ(focus.Value(), L"Producto 2");
  EXPECT_TRUE(focus.Is(STATE_SYSTEM_SELECTED));
  VARIANT selection;
  ASSERT_EQ(Grid().Object()->get_accSelection(&selection), S_OK);
  EXPECT_EQ(selection.lVal, focus.Number());
}

TEST_F(AccessibleScreen, TheParentOfTheGridIsTheFormAndThatOfTheFormTheWindow) {
  IDispatch* parent = nullptr;
  ASSERT_EQ(Grid().Object()->get_accParent(&parent), S_OK);
  EXPECT_EQ(static_cast<void*>(parent), static_cast<void*>(inside.Object()));
  parent->Release();
  ASSERT_EQ(inside.Object()->get_accParent(&parent), S_OK);
  HWND window = nullptr;
  IOleWindow* whole = nullptr;
  ASSERT_EQ(inside.Object()->QueryInterface(IID_IOleWindow, reinterpret_cast<void**>(&whole)), S_OK);
  EXPECT_EQ(whole->GetWindow(&window), S_OK);
  EXPECT_EQ(window, screen.Window());
  whole->Release();
  parent->Release();
}

TEST_F(AccessibleScreen, QuestionsThatMakeNoSenseAreRefused) {
  BSTR name = nullptr;
  VARIANT child = Child(1);
  EXPECT_EQ(inside.Object()->get_accName(child, nullptr), E_POINTER);
  EXPECT_EQ(inside.Object()->get_accName(Child(1000), &name), E_INVALIDARG);
  child.vt = VT_EMPTY;
  EXPECT_EQ(inside.Object()->get_accName(child, &name), E_INVALIDARG);
  EXPECT_EQ(inside.Object()->get_accValue(Child(CHILDID_SELF), &name), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(inside.Object()->accSelect(SELFLAG_ADDSELECTION, Child(1)), E_INVALIDARG);
  EXPECT_EQ(inside.Object()->put_accValue(Child(1), nullptr), DISP_E_MEMBERNOTFOUND);
}

TEST_F(AccessibleScreen, AnObjectThatSomebodyKeepsIsNotConnectedAfterTheFormIsGone) {
  const Seen grid = Grid();
  const Seen cell = Cell(0, column::kCode);
  screen.form().OnUnload = nullptr;
  screen.form().Unload();
  BSTR name = nullptr;
  VARIANT answer;
  LONG number = 0;
  EXPECT_EQ(inside.Object()->get_accName(Child(CHILDID_SELF), &name), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(grid.Object()->get_accRole(Child(CHILDID_SELF), &answer), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(cell.Object()->get_accState(Child(cell.Number()), &answer), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(inside.Object()->get_accChildCount(&number), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(inside.Object()->get_accFocus(&answer), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(inside.Object()->accHitTest(5, 5, &answer), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(inside.Press(), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessibleScreen, AReaderOnAnotherThreadReadsTheScreenTooAndLosesItWithTheForm) {
  const HWND window = screen.Window();
  std::atomic<int> stage = 0;
  std::wstring date, title;
  HRESULT after = S_OK;
  const auto read = [&] {
    const ComApartment own;
    const Seen outside = Seen::Of(window);
    if (!outside.Exists()) return;
    date = outside.ChildNamed(L"Fecha", ROLE_SYSTEM_TEXT).Value();
    const Seen grid = outside.ChildNamed(L"Existencias iniciales", ROLE_SYSTEM_TABLE);
    if (grid.Exists()) title = grid.Children().at(1).Value();
    stage = 1;
    while (stage == 1) Sleep(5);
    BSTR name = nullptr;
    after = outside.Object()->get_accName(Child(CHILDID_SELF), &name);
  };
  std::thread reader([&] {
    read();
    stage = 3;
  });
  PumpUntil([&] { return stage != 0; });
  screen.form().OnUnload = nullptr;
  screen.form().Unload();
  if (stage == 1) stage = 2;
  PumpUntil([&] { return stage == 3; });
  reader.join();
  EXPECT_EQ(date, L"16/11/2026");
  EXPECT_EQ(title, L"Descripción");
  EXPECT_TRUE(FAILED(after));
  inside = {};
  EXPECT_TRUE(module_lifetime::IsFree() && !ModuleIsInUse()) << "the reader outside keeps nothing alive";
}

TEST_F(AccessibleScreen, TheFocusIsAnnouncedWhereverItGoes) {
  const HWND window = screen.Window();
  AccessibleListener listener(window);
  const LONG date = AccessibleNumber(screen.form().TxtFechaHora);
  screen.form().TxtFechaHora.SetFocus();
  SendMessageW(window, WM_NULL, 0, 0);
  EXPECT_EQ(listener.Take(EVENT_OBJECT_FOCUS),
            (std::vector<AccessibleListener::Event>{{EVENT_OBJECT_FOCUS, OBJID_CLIENT, date}}));
  SendMessageW(window, WM_NULL, 0, 0);
  EXPECT_TRUE(listener.Take(EVENT_OBJECT_FOCUS).empty()) << "no news, no event";
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, column::kDescription);
  screen.ClickCell(1, column::kDescription);
  const LONG grid = AccessibleNumber(screen.form().MSFProductos);
  const auto events = listener.Take(EVENT_OBJECT_FOCUS);
  ASSERT_FALSE(events.empty());
  EXPECT_EQ(events.back(), (AccessibleListener::Event{EVENT_OBJECT_FOCUS, grid, 1 * 9 + 1 + 1}));
  // The reader asks for the object that the event names.
  IAccessible* object = nullptr;
  VARIANT child;
  ASSERT_EQ(
      AccessibleObjectFromEvent(window, static_cast<DWORD>(grid), static_cast<DWORD>(11), &object, &child),
      S_OK);
  const Seen cell(object, child.lVal);
  EXPECT_EQ(cell.Role(), ROLE_SYSTEM_CELL);
}

TEST_F(AccessibleScreen, AChangedValueIsAnnounced) {
  const HWND window = screen.Window();
  AccessibleListener listener(window);
  SendMessageW(window, WM_NULL, 0, 0);
  const LONG box = AccessibleNumber(screen.form().TxtEmpleado);
  screen.form().TxtEmpleado.Text("Ana");
  SendMessageW(window, WM_NULL, 0, 0);
  EXPECT_EQ(listener.Take(EVENT_OBJECT_VALUECHANGE),
            (std::vector<AccessibleListener::Event>{{EVENT_OBJECT_VALUECHANGE, OBJID_CLIENT, box}}));
  SendMessageW(window, WM_NULL, 0, 0);
  EXPECT_TRUE(listener.Take(EVENT_OBJECT_VALUECHANGE).empty());
}

}  // namespace
}  // namespace orvendal
