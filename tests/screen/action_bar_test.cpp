#include "screen/action_bar.h"
#include "form/columns.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tests/support/form_driver.h"

namespace orvendal {
namespace {

const char* const kActions[] = {"Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"};

class ActionBarTest : public testing::Test {
 protected:
  ActionBarTest() { screen.Open(); }

  Label& LabelOf(const std::string& action, int index) {
    return dynamic_cast<Label&>(
        *screen.form().FindControl("Lbl" + action + "(" + std::to_string(index) + ")"));
  }
  Shape& ShapeOf(const std::string& action, int index) {
    return dynamic_cast<Shape&>(
        *screen.form().FindControl("Div" + action + "(" + std::to_string(index) + ")"));
  }
  void Put(const std::string& a, const std::string& b, const std::string& c, const std::string& d,
           const std::string& e) {
    screen.form().PonerBotones({a, b, c, d, e});
  }

  /// Every look of every button must be wholly one or wholly the other.
  std::set<std::string> Available() {
    std::set<std::string> available;
    for (const std::string action : kActions) {
      SCOPED_TRACE(action);
      const bool on = LabelOf(action, 0).Enabled();
      EXPECT_EQ(LabelOf(action, 1).Enabled(), on);
      EXPECT_EQ(ShapeOf(action, 0).BorderColor(), on ? 0x800000U : 0xA5CACBU);
      EXPECT_EQ(ShapeOf(action, 1).BorderColor(), on ? 0xE1C0B3U : 0xD3E8E9U);
      EXPECT_EQ(ShapeOf(action, 1).BackColor(), on ? 0xE1C0B3U : 0xD3E8E9U);
      EXPECT_EQ(ShapeOf(action, 0).BackColor(), 0x80000005U);
      if (on) available.insert(action);
    }
    return available;
  }

  std::vector<double> Places() {
    std::vector<double> places;
    for (const std::string action : kActions) {
      for (const Control* control :
           {static_cast<Control*>(&LabelOf(action, 0)), static_cast<Control*>(&LabelOf(action, 1)),
            static_cast<Control*>(&ShapeOf(action, 0)), static_cast<Control*>(&ShapeOf(action, 1))}) {
        places.insert(places.end(), {control->Left(), control->Top(), control->Width(), control->Height()});
      }
    }
    return places;
  }

  FormDriver screen;
};

using Names = std::set<std::string>;
const Names kAll = {"Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar"};

TEST_F(ActionBarTest, TheSetsAreTheirLiteralLists) {
  EXPECT_EQ(BotonesEnCelda, (ButtonSet{"", "", "", "", ""}));
  EXPECT_EQ(BotonesConLineas, (ButtonSet{"Buscar", "", "", "", ""}));
  EXPECT_EQ(BotonesEnReposo, (ButtonSet{"Buscar", "Borrar", "Guardar", "", ""}));
  EXPECT_EQ(BotonesSoloCancelar, (ButtonSet{"Buscar", "Borrar", "Guardar", "Nuevo", ""}));
  EXPECT_EQ(BotonesBloqueados, (ButtonSet{"Buscar", "Borrar", "Guardar", "Cancelar", "Nuevo"}));
}

TEST_F(ActionBarTest, EachSetLeavesItsButtonsAvailable) {
  screen.form().PonerBotones(BotonesEnCelda);
  EXPECT_EQ(Available(), kAll);
  screen.form().PonerBotones(BotonesConLineas);
  EXPECT_EQ(Available(), (Names{"Nuevo", "Borrar", "Guardar", "Cancelar"}));
  screen.form().PonerBotones(BotonesEnReposo);
  EXPECT_EQ(Available(), (Names{"Nuevo", "Cancelar"}));
  screen.form().PonerBotones(BotonesSoloCancelar);
  EXPECT_EQ(Available(), Names{"Cancelar"});
  screen.form().PonerBotones(BotonesBloqueados);
  EXPECT_EQ(Available(), Names{});
}

TEST_F(ActionBarTest, ABarOfTheDesignHasGapsOf882) {
  const std::map<std::string, double> lefts = {
      {"Nuevo", 882}, {"Buscar", 3729}, {"Borrar", 6576}, {"Guardar", 9543}, {"Cancelar", 12510}};
  for (const auto& [action, left] : lefts) {
    SCOPED_TRACE(action);
    EXPECT_EQ(LabelOf(action, 1).Left(), left);
    EXPECT_EQ(ShapeOf(action, 0).Left(), left);
    EXPECT_EQ(ShapeOf(action, 1).Left(), left + 90);
  }
  EXPECT_EQ(screen.form().Width() - 12510 - LabelOf("Cancelar", 1).Width(), 885);
}

TEST_F(ActionBarTest, CaptionsKeepTheirOffsetInsideTheButton) {
  // Their design offsets from the rim; that of Guardar stands 60 twips beside its click area.
  const std::map<std::string, double> offsets = {
      {"Nuevo", 240}, {"Buscar", 465}, {"Borrar", 120}, {"Guardar", 405}, {"Cancelar", 360}};
  for (const auto& [action, offset] : offsets) {
    EXPECT_EQ(LabelOf(action, 0).Left(), LabelOf(action, 1).Left() + offset) << action;
  }
}

TEST_F(ActionBarTest, TopWidthAndHeightOfTheGroupsStay) {
  for (const std::string action : kActions) {
    SCOPED_TRACE(action);
    EXPECT_EQ(LabelOf(action, 1).Top(), 120);
    EXPECT_EQ(LabelOf(action, 1).Height(), 735);
    EXPECT_EQ(LabelOf(action, 0).Top(), 300);
    EXPECT_EQ(ShapeOf(action, 0).Top(), 120);
    EXPECT_EQ(ShapeOf(action, 1).Top(), 210);
    EXPECT_EQ(ShapeOf(action, 1).Height(), 570);
  }
  EXPECT_EQ(LabelOf("Nuevo", 1).Width(), 1965);
  EXPECT_EQ(LabelOf("Guardar", 1).Width(), 2085);
  EXPECT_EQ(ShapeOf("Guardar", 0).Width(), 1965);
}

TEST_F(ActionBarTest, AnExactHalfGapGoesToTheEvenNumber) {
  screen.form().Width(15360 + 6);  // 883.5
  Put("", "", "", "", "");
  EXPECT_EQ(LabelOf("Nuevo", 1).Left(), 884);
  screen.form().Width(15360 + 12);  // 884.5
  Put("", "", "", "", "");
  EXPECT_EQ(LabelOf("Nuevo", 1).Left(), 884);
}

TEST_F(ActionBarTest, ARepeatedCallMovesNothing) {
  const std::vector<double> places = Places();
  Put("Buscar", "", "", "", "");
  Put("", "", "", "", "");
  EXPECT_EQ(Places(), places);
}

TEST_F(ActionBarTest, AButtonNamedTwiceIsSwitchedOffOnce) {
  Put("Guardar", "Guardar", "", "", "");
  EXPECT_EQ(Available(), (Names{"Nuevo", "Buscar", "Borrar", "Cancelar"}));
}

TEST_F(ActionBarTest, NamesAreComparedExactly) {
  Put("nuevo", "NUEVO", "Nuevo ", "Nuev", "");
  EXPECT_EQ(Available(), kAll);
}

TEST_F(ActionBarTest, AnyNameMayStandInAnyPlace) {
  for (int place = 0; place < 5; ++place) {
    for (const std::string action : kActions) {
      ButtonSet off;
      off[static_cast<std::size_t>(place)] = action;
      screen.form().PonerBotones(off);
      Names expected = kAll;
      expected.erase(action);
      EXPECT_EQ(Available(), expected) << action << " at " << place;
    }
  }
}

TEST_F(ActionBarTest, FiveEmptyNamesAfterFiveNamesRestoreEverything) {
  Put("Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar");
  EXPECT_EQ(Available(), Names{});
  Put("", "", "", "", "");
  EXPECT_EQ(Available(), kAll);
}

TEST_F(ActionBarTest, AnUnknownNameDoesNothing) {
  Put("Imprimir", "", "", "", "");
  EXPECT_EQ(Available(), kAll);
}

TEST_F(ActionBarTest, AChangeOfLookIsPaintedAtOnce) {
  screen.form().TakeDirtyRectangles();
  Put("Nuevo", "Buscar", "Borrar", "Guardar", "Cancelar");
  const std::vector<Rect> dirty = screen.form().TakeDirtyRectangles();
  const Rect face = ShapeOf("Nuevo", 1).Bounds();
  EXPECT_TRUE(
      std::any_of(dirty.begin(), dirty.end(), [&](const Rect& area) { return area.Intersects(face); }));
}

TEST_F(ActionBarTest, TheSetsOfTheRoadOfOneCount) {
  EXPECT_EQ(Available(), (Names{"Nuevo", "Cancelar"}));  // at rest
  screen.library.QueueEmployee({true, "E1", "Ana"});
  screen.ClickCell(1, column::kCode);
  EXPECT_EQ(Available(), (Names{"Nuevo", "Borrar", "Guardar", "Cancelar"}));  // a stylist chosen
  screen.DoubleClickCell(1, column::kCode);
  EXPECT_EQ(Available(), kAll);  // over a cell
  screen.Key(key::kEscape);
  EXPECT_EQ(Available(), (Names{"Nuevo", "Borrar", "Guardar", "Cancelar"}));
  screen.DoubleClickCell(1, column::kCode);
  screen.Click("LblCancelar");
  EXPECT_EQ(Available(), (Names{"Nuevo", "Borrar", "Guardar", "Cancelar"}));
  screen.Click("LblGuardar");
  EXPECT_EQ(Available(), (Names{"Nuevo", "Cancelar"}));
}

TEST_F(ActionBarTest, CancelWithNoStylistLeavesTheBarAsItIs) {
  screen.Click("LblCancelar");
  EXPECT_EQ(Available(), (Names{"Nuevo", "Cancelar"}));
}

TEST_F(ActionBarTest, InAndOutOfSupervisorMode) {
  screen.library.QueueEmployee({true, "E2", "Berta"});
  screen.Click("LblNuevo");
  EXPECT_EQ(Available(), (Names{"Nuevo", "Borrar", "Guardar", "Cancelar"}));
  screen.Click("BtnAnuloSuper");
  EXPECT_EQ(Available(), Names{"Cancelar"});
}

}  // namespace
}  // namespace orvendal
