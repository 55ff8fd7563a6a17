#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/form_driver.h"
#include "tests/support/title_bar.h"

namespace orvendal {
namespace {

/// Something in a dialog of the library closes the form that waits for it.
class ClosedFromInsideTest : public testing::Test {
 protected:
  void CloseDuringTheNextDialog() {
    screen.library.DuringNextDialog([this] { screen.form().Unload(); });
  }
  void ExpectGoneAndAFreshOneToCome() {
    EXPECT_FALSE(screen.HasForm());
    screen.Open();
    ASSERT_TRUE(screen.HasForm());
    EXPECT_EQ(screen.form().TxtEmpleado.Text(), "");
    EXPECT_EQ(screen.Focused(), "PicServicios");
    screen.host.ForgetErrors();
    screen.library.QueueEmployee({true, "E1", "Ana"});
    screen.ClickCell(1, column::kCode);
    screen.EnterLine("P1", "3");
    EXPECT_EQ(screen.Cell(1, column::kQuantity), "3");
    EXPECT_TRUE(screen.host.ReportedErrors().empty());
  }

  FormDriver screen;
};

TEST_F(ClosedFromInsideTest, InF1TheConnectionIsTakenOverAllTheSame) {
  screen.Open();
  FormDriver other;
  screen.library.ReplaceConnection("AccionPuesto", other.connection);
  CloseDuringTheNextDialog();
  screen.Key(key::kF1);
  EXPECT_EQ(screen.state.session.Conexion, other.connection);
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  ExpectGoneAndAFreshOneToCome();
}

TEST_F(ClosedFromInsideTest, InF2) {
  screen.Open();
  CloseDuringTheNextDialog();
  screen.Key(key::kF2);
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  ExpectGoneAndAFreshOneToCome();
}

TEST_F(ClosedFromInsideTest, InThePickerOfTheStylistsButton) {
  screen.Open();
  screen.library.QueueEmployee({true, "E1", "Ana"});
  CloseDuringTheNextDialog();
  screen.Click("CmdEmpl");
  ExpectGoneAndAFreshOneToCome();
}

TEST_F(ClosedFromInsideTest, InThePickerOfSupervisorMode) {
  screen.Open();
  screen.library.QueueEmployee({true, "E2", "Berta"});
  CloseDuringTheNextDialog();
  screen.Click("LblNuevo");
  ExpectGoneAndAFreshOneToCome();
}

TEST_F(ClosedFromInsideTest, InTheMessageThatAsksForAStylist) {
  screen.Open();
  CloseDuringTheNextDialog();
  screen.ClickCell(1, column::kCode);
  ExpectGoneAndAFreshOneToCome();
}

TEST_F(ClosedFromInsideTest, InTheProductSearch) {
  screen.OpenWithStylist();
  screen.DoubleClickCell(1, column::kCode);
  screen.Type("nada");
  screen.library.QueueProduct("P1");
  CloseDuringTheNextDialog();
  screen.Enter();
  ExpectGoneAndAFreshOneToCome();
}

TEST_F(ClosedFromInsideTest, InTheQuestionOfTheCloseButton) {
  screen.OpenWithStylist();
  screen.EnterLine("P1", "3");
  screen.library.QueueAnswer(message::kNo);
  CloseDuringTheNextDialog();
  testing_support::ClickClose(screen);
  EXPECT_TRUE(screen.host.ReportedErrors().empty());
  ExpectGoneAndAFreshOneToCome();
}

}  // namespace
}  // namespace orvendal
