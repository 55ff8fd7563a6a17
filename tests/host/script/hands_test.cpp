// The hands of a script where the screen offers them nothing to hold on to.

#include <gtest/gtest.h>

#include "host/script/hands.h"
#include "host/script/parser.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

std::string StopOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const ScriptStop& stop) {
    return stop.what();
  }
  return "no stop";
}

TEST(ScriptHandsOnAScreen, AKeyNeedsAFocus) {
  FormDriver driver;
  driver.Open();
  driver.form().PicServicios.Enabled(false);
  ASSERT_EQ(driver.form().ActiveControl(), nullptr);
  ScriptHands hands(driver.form());
  EXPECT_EQ(StopOf([&] { hands.Type("a"); }), "ningún control tiene el foco");
  EXPECT_EQ(StopOf([&] { hands.Key("F1"); }), "ningún control tiene el foco");
}

TEST(ScriptHandsOnAScreen, NothingReachesAMinimisedScreen) {
  FormDriver driver;
  driver.Open();
  driver.form().WindowState(WindowState::kMinimized);
  ScriptHands hands(driver.form());
  const std::string sentence = "la pantalla está minimizada";
  EXPECT_EQ(StopOf([&] { hands.Click("LblNuevo", ScriptHands::Clicks::kOne); }), sentence);
  EXPECT_EQ(StopOf([&] { hands.Key("Tab"); }), sentence);
  EXPECT_EQ(StopOf([&] { hands.Focus("PicDatos"); }), sentence);
}

TEST(ScriptHandsOnAScreen, AControlOutsideTheFormIsOutOfReach) {
  FormDriver driver;
  driver.Open();
  driver.form().CmdEmpl.Left(40000);
  ScriptHands hands(driver.form());
  EXPECT_EQ(StopOf([&] { hands.Click("CmdEmpl", ScriptHands::Clicks::kOne); }),
            "CmdEmpl queda fuera de la pantalla");
}

TEST(ScriptHandsOnAScreen, AnErrorOnTheWayOfTheFocusIsReported) {
  FormDriver driver;
  driver.Open();
  driver.form().MSFProductos.OnGotFocus = [] { throw RuntimeError(5); };
  ScriptHands hands(driver.form());
  hands.Focus("MSFProductos");
  ASSERT_EQ(driver.host.ReportedErrors().size(), 1U);
  EXPECT_EQ(driver.host.ReportedErrors()[0].Number(), 5);
}

TEST(ScriptHandsOnAScreen, KeysWithModifiersWorkTheEditor) {
  FormDriver driver;
  driver.OpenWithStylist();
  driver.DoubleClickCell(1, 0);
  ScriptHands hands(driver.form());
  hands.Type("uno dos");
  hands.Key("Ctrl+A");
  EXPECT_EQ(driver.form().TxtMSF.SelLength(), 7);
  hands.Key("Ctrl+C");
  hands.Key("Fin");
  hands.Key("Mayus+Ctrl+Izquierda");
  EXPECT_EQ(driver.form().TxtMSF.SelText(), "dos");
  hands.Key("Ctrl+V");
  EXPECT_EQ(driver.form().TxtMSF.Text(), "uno uno dos");
  hands.Key("Retroceso");
  EXPECT_EQ(driver.form().TxtMSF.Text(), "uno uno do");
}

}  // namespace
}  // namespace orvendal
