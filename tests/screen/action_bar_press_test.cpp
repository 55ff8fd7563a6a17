#include <gtest/gtest.h>

#include "form/columns.h"
#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

constexpr ColorWord kWhite = 0xFFFFFF;
constexpr ColorWord kBlack = 0;

class ActionBarPressTest : public testing::TestWithParam<const char*> {
 protected:
  ActionBarPressTest() {
    screen.OpenWithStylist();
    screen.form().PonerBotones(BotonesEnCelda);
    for (Label* member : {&caption(), &area()}) {
      member->OnClick = [this, member] {
        ++clicks;
        member_clicked = member;
      };
    }
  }
  Label& Member(int index) {
    return dynamic_cast<Label&>(
        *screen.form().FindControl("Lbl" + std::string(GetParam()) + "(" + std::to_string(index) + ")"));
  }
  Label& caption() { return Member(0); }
  Label& area() { return Member(1); }
  /// A corner of the click area, away from the caption.
  Point Corner() {
    const Rect bounds = area().Bounds();
    return {bounds.left + 30, bounds.top + 30};
  }
  Point Middle() { return screen.robot().MiddleOf(caption()); }
  static Point Outside() { return {7000, 3000}; }

  FormDriver screen;
  int clicks = 0;
  Label* member_clicked = nullptr;
};

TEST_P(ActionBarPressTest, TheCaptionIsWhiteWhilePressedThenBlackThenClicked) {
  screen.robot().Press(Middle());
  EXPECT_EQ(caption().ForeColor(), kWhite);
  EXPECT_EQ(clicks, 0);
  screen.robot().Release(Middle());
  EXPECT_EQ(caption().ForeColor(), kBlack);
  EXPECT_EQ(clicks, 1);
}

TEST_P(ActionBarPressTest, ThePressOnTheAreaColoursTheCaptionToo) {
  const ColorWord area_color = area().ForeColor();
  screen.robot().Press(Corner());
  EXPECT_EQ(caption().ForeColor(), kWhite);
  EXPECT_EQ(area().ForeColor(), area_color);
  screen.robot().Release(Corner());
  EXPECT_EQ(caption().ForeColor(), kBlack);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(member_clicked, &area());
}

TEST_P(ActionBarPressTest, TheShapesDoNotChange) {
  const auto& face =
      dynamic_cast<Shape&>(*screen.form().FindControl("Div" + std::string(GetParam()) + "(1)"));
  screen.robot().Press(Middle());
  EXPECT_EQ(face.BackColor(), 0xE1C0B3U);
  EXPECT_EQ(face.BorderColor(), 0xE1C0B3U);
}

TEST_P(ActionBarPressTest, ReleasedOutsideTheCaptionIsBlackAgainAndNothingIsClicked) {
  screen.robot().Press(Middle());
  screen.robot().Release(Outside());
  EXPECT_EQ(caption().ForeColor(), kBlack);
  EXPECT_EQ(clicks, 0);
}

TEST_P(ActionBarPressTest, AnyMouseButtonColours) {
  screen.robot().Press(Middle(), mouse_button::kRight);
  EXPECT_EQ(caption().ForeColor(), kWhite);
  screen.robot().Release(Middle(), mouse_button::kRight);
  EXPECT_EQ(caption().ForeColor(), kBlack);
  EXPECT_EQ(clicks, 0);
}

TEST_P(ActionBarPressTest, WhiteComesBeforeBlackBeforeTheClick) {
  std::vector<std::string> order;
  for (Label* member : {&caption(), &area()}) {
    const auto down = member->OnMouseDown;
    const auto up = member->OnMouseUp;
    member->OnMouseDown = [&order, down, this](int button, int shift, double x, double y) {
      down(button, shift, x, y);
      order.push_back("down " + std::to_string(caption().ForeColor()));
    };
    member->OnMouseUp = [&order, up, this](int button, int shift, double x, double y) {
      up(button, shift, x, y);
      order.push_back("up " + std::to_string(caption().ForeColor()));
    };
    member->OnClick = [&order] { order.push_back("click"); };
  }
  screen.robot().ClickAt(Middle());
  EXPECT_EQ(order, (std::vector<std::string>{"down 16777215", "up 0", "click"}));
}

TEST_P(ActionBarPressTest, AnUnavailableButtonRaisesNothing) {
  const std::string action = GetParam();
  const ColorWord before = caption().ForeColor();
  screen.form().PonerBotones({action, "", "", "", ""});
  bool colored = false;
  for (const Point place : {Middle(), Corner()}) {
    screen.robot().Press(place);
    colored = colored || caption().ForeColor() != before;
    screen.robot().Release(place);
  }
  EXPECT_FALSE(colored);
  EXPECT_EQ(clicks, 0);
}

TEST_P(ActionBarPressTest, AClickDoesNotMoveTheFocus) {
  screen.DoubleClickCell(1, column::kCode);
  ASSERT_EQ(screen.Focused(), "TxtMSF");
  screen.robot().ClickAt(Middle());
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(screen.Focused(), "TxtMSF");
}

TEST_P(ActionBarPressTest, ASecondPressOfADoubleClickIsNoSecondClick) {
  screen.robot().DoubleClickAt(Middle());
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(caption().ForeColor(), kBlack);
}

TEST_P(ActionBarPressTest, ADialogThatAKeyOpensMeanwhileLeavesNoWhiteCaptionAndTheNextClickCounts) {
  screen.robot().Press(Middle());
  ASSERT_EQ(caption().ForeColor(), kWhite);
  screen.Key(key::kF1);  // the release goes to the panel
  EXPECT_EQ(caption().ForeColor(), kBlack);
  EXPECT_EQ(clicks, 0);
  screen.robot().ClickAt(Middle());
  EXPECT_EQ(clicks, 1);
}

INSTANTIATE_TEST_SUITE_P(EachButton, ActionBarPressTest,
                         testing::Values("Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"));

TEST(ActionBarPressOnTheScreenTest, GuardarOverACellTurnsWhiteThenBlackAndSaves) {
  FormDriver screen;
  screen.OpenWithStylist();
  screen.EnterLine("P1", "12");
  ASSERT_TRUE(screen.form().TxtMSF.Visible());
  const Point middle = screen.robot().MiddleOf(screen.form().LblGuardar_0);
  screen.robot().Press(middle);
  EXPECT_EQ(screen.form().LblGuardar_0.ForeColor(), kWhite);
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "0");
  screen.robot().Release(middle);
  EXPECT_EQ(screen.form().LblGuardar_0.ForeColor(), kBlack);
  EXPECT_EQ(screen.Sql("SELECT COUNT(*) FROM HistOrvendalcial"), "1");
}

}  // namespace
}  // namespace orvendal
