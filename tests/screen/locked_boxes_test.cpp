#include <gtest/gtest.h>

#include "tests/support/design_form.h"

namespace orvendal {
namespace {

using testing_support::DesignForm;

void PressEverything(Robot hands) {
  hands.Type("aZ1,5 ñ'\"");
  for (const int code : {key::kBack, key::kDelete, key::kEscape, key::kSpace, key::kInsert, key::kHome,
                         key::kEnd, key::kUp, key::kDown, key::kF12}) {
    hands.Key(code);
  }
  for (const int letter : {'V', 'X', 'Z', 'A', 'C'}) hands.Key(letter, shift_mask::kControl);
  hands.Key(key::kInsert, shift_mask::kShift);
  hands.Key(key::kDelete, shift_mask::kShift);
  hands.Key('V', shift_mask::kControl);
  hands.Key(key::kReturn);
}

class LockedBoxesTest : public testing::TestWithParam<const char*> {};

TEST_P(LockedBoxesTest, TakeNoTypedTextWhateverKeyArrives) {
  DesignForm design;
  FrmOrvendalciales& form = design.form();
  // The box alone: none of the handlers that would send the focus on.
  form.OnActivate = nullptr;
  form.OnKeyDown = nullptr;
  auto& box = dynamic_cast<TextBox&>(design.Find(GetParam()));
  box.OnGotFocus = nullptr;
  form.MSFProductos.OnGotFocus = nullptr;
  form.Show();
  box.Visible(true);
  box.Text("16/11/2026");
  box.SetFocus();
  design.driver.host.ClipboardText("pegado");
  ASSERT_EQ(form.ActiveControl(), &box);
  PressEverything(Robot(form));
  EXPECT_EQ(box.Text(), "16/11/2026");
}

INSTANTIATE_TEST_SUITE_P(EachBox, LockedBoxesTest, testing::Values("TxtEmpleado", "MkFecha", "TxtFechaHora"));

TEST(LockedBoxesOnTheScreenTest, TheDayTakesTheFocusOfAClickAndNoText) {
  FormDriver screen;
  screen.Open();
  screen.Click("TxtFechaHora");
  ASSERT_EQ(screen.Focused(), "TxtFechaHora");
  EXPECT_EQ(screen.form().TxtFechaHora.BackColor(), 0xA5CACBU);
  screen.host.ClipboardText("pegado");
  PressEverything(screen.robot());
  EXPECT_EQ(screen.form().TxtFechaHora.Text(), "16/11/2026");
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
}

TEST(LockedBoxesOnTheScreenTest, TheDayOfSupervisorModeIsChosenNotTyped) {
  FormDriver screen;
  screen.Open();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo");
  ASSERT_TRUE(screen.form().MkFecha.Visible());
  screen.Click("MkFecha");
  ASSERT_EQ(screen.Focused(), "Calendario");
  screen.Type("abc");
  EXPECT_EQ(screen.form().MkFecha.Text(), "16/11/2026");
}

TEST(LockedBoxesOnTheScreenTest, NothingMovesTheStripAlongTheTop) {
  FormDriver screen;
  screen.Open();
  HScrollBar& strip = screen.form().ScrollProductos;
  int changes = 0;
  strip.OnChange = [&] { ++changes; };
  const Rect bounds = strip.Bounds();
  for (const double x : {60.0, bounds.width / 3, bounds.width / 2, bounds.width - 60}) {
    screen.robot().ClickAt({bounds.left + x, bounds.top + bounds.height / 2});
  }
  ASSERT_EQ(screen.Focused(), "ScrollProductos");
  for (const int code : {key::kLeft, key::kRight, key::kPageUp, key::kPageDown, key::kHome, key::kEnd}) {
    screen.Key(code);
  }
  screen.form().MouseWheel({bounds.left + 100, bounds.top + 100}, 3);
  EXPECT_EQ(strip.Value(), 1);
  EXPECT_EQ(changes, 0);
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
}

TEST(LockedBoxesOnTheScreenTest, WhatIsNeverVisibleStaysSoThroughAWholeCount) {
  FormDriver screen;
  const auto expect_hidden = [&screen] {
    EXPECT_FALSE(screen.form().TxtCodigo.Visible());
    EXPECT_FALSE(screen.form().CodigosaRecalcular.Visible());
    EXPECT_FALSE(screen.form().MSFProductos1.Visible());
    EXPECT_FALSE(screen.form().TimerCBarra.Enabled());
  };
  screen.OpenWithStylist();
  expect_hidden();
  screen.EnterLine("P1", "3");
  expect_hidden();
  screen.Click("LblGuardar");
  expect_hidden();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo");
  expect_hidden();
  screen.Click("BtnAnuloSuper");
  expect_hidden();
}

TEST(LockedBoxesOnTheScreenTest, TheStylistIsPickedNotTyped) {
  FormDriver screen;
  screen.Open();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("TxtEmpleado");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Berta");
  screen.Type("xyz");
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Berta");
}

}  // namespace
}  // namespace orvendal
