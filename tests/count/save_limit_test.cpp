#include <gtest/gtest.h>

#include "tests/support/screen_report.h"

namespace orvendal {
namespace {

using namespace testing_support;

/// The walk over the lines counts in 16 bits.
class SaveLimitTest : public testing::Test {
 protected:
  SaveLimitTest() {
    screen.AddCount("P1", 1, 2);
    screen.OpenWithStylist();
    screen.EnterLine("P4", "5");
    Forget(screen);
  }
  std::string Stored() { return screen.Sql("SELECT GROUP_CONCAT(IdProducto, ' ') FROM HistOrvendalcial"); }
  FormDriver screen;
};

TEST_F(SaveLimitTest, AGridOf32767RowsIsSaved) {
  screen.form().MSFProductos.Rows(32767);
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(Stored(), "P1 P4");
}

TEST_F(SaveLimitTest, AGridOf32768RowsIsRefusedBeforeTheDeleteAndNothingIsLost) {
  screen.form().MSFProductos.Rows(32768);
  screen.Click("LblGuardar");
  EXPECT_EQ(
      TakeErrors(screen),
      Texts{"6: Overflow: the grid has more than the 32767 rows that a save takes. Nothing was deleted or "
            "saved. Note the lines that are new, press Cancel to load the day again, and enter fewer of "
            "them."});
  EXPECT_TRUE(TakeStatements(screen).empty());
  EXPECT_TRUE(TakeMessages(screen).empty());
  EXPECT_EQ(Stored(), "P1");
  EXPECT_EQ(screen.Codes(), (Texts{"P1", "P4"}));
  EXPECT_EQ(screen.form().TxtEmpleado.Text(), "Ana");
  screen.form().MSFProductos.Rows(13);
  screen.Click("LblGuardar");
  EXPECT_EQ(Stored(), "P1 P4");
}

TEST_F(SaveLimitTest, WhatTheReportSaysHelps) {
  screen.form().MSFProductos.Rows(32768);
  screen.ClickCell(1, kCode);
  screen.Click("LblBorrar");
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeErrors(screen).size(), 1U);  // taking lines away leaves the grid as long
  screen.Click("LblCancelar");
  screen.EnterLine("P4", "5");
  screen.Click("LblGuardar");
  EXPECT_TRUE(TakeErrors(screen).empty());
  EXPECT_EQ(Stored(), "P1 P4");
}

TEST_F(SaveLimitTest, TheStylistIsAskedForFirst) {
  screen.form().MSFProductos.Rows(32768);
  screen.form().TxtEmpleado.Enabled(true);
  screen.form().TxtEmpleado.Text("");
  screen.library.QueueEmployee({false, "", ""});
  screen.Click("LblGuardar");
  EXPECT_EQ(TakeMessages(screen), Texts{kRefusesBlankStylist});
  EXPECT_TRUE(TakeErrors(screen).empty());
}

}  // namespace
}  // namespace orvendal
