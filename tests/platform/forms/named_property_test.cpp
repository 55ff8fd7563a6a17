#include "platform/forms/named_property.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "platform/forms/boton.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/label.h"
#include "platform/forms/month_view.h"
#include "platform/forms/ms_flex_grid.h"
#include "platform/forms/shape.h"
#include "platform/forms/text_box.h"
#include "platform/forms/timer.h"
#include "tests/platform/forms/control_stage.h"
#include "tests/support/error_of.h"

namespace orvendal::testing {
namespace {

using testing_support::ErrorOf;

class NamedPropertyTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    grid.Rows(5);
    grid.Cols(4);
  }

  static const NamedProperty& Of(const Control& control, std::string_view name, std::size_t arguments = 0) {
    const NamedProperty* found = FindProperty(control.Kind(), name, arguments);
    if (found == nullptr) throw std::logic_error("no property " + std::string(name));
    return *found;
  }
  static Value Get(Control& control, std::string_view name, const NamedProperty::Place& place = {}) {
    return Of(control, name, place.size()).get(control, place);
  }
  static void Put(Control& control, std::string_view name, const Value& value,
                  const NamedProperty::Place& place = {}) {
    Of(control, name, place.size()).put(control, place, value);
  }

  Stage stage;
  TextBox& box = stage.Add<TextBox>("Box", {0, 0, 3000, 300});
  MSFlexGrid& grid = stage.Add<MSFlexGrid>("Grid", {0, 600, 6000, 3000});
  Label& label = stage.Add<Label>("Label", {6000, 0, 900, 300});
  MonthView& calendar = stage.Add<MonthView>("Calendar", {6000, 600, 3000, 3000});
  Timer& timer = stage.Add<Timer>("Timer", {9000, 0, 0, 0});
  Shape& shape = stage.Add<Shape>("Shape", {9000, 300, 300, 300});
  Boton& boton = stage.Add<Boton>("Boton", {9000, 600, 900, 300});
  CommandButton& button = stage.Add<CommandButton>("Button", {9000, 900, 900, 300});
};

TEST_F(NamedPropertyTest, IsReadAndWrittenAsTheMemberOfThatName) {
  Put(box, "Text", "Champú");
  EXPECT_EQ(box.Text(), "Champú");
  EXPECT_EQ(Get(box, "Text"), Value("Champú"));
  Put(box, "Left", 150.0);
  EXPECT_EQ(box.Left(), 150);
  Put(box, "Visible", 0);
  EXPECT_FALSE(box.Visible());
  EXPECT_EQ(Get(box, "Visible"), Value(0));
  Put(box, "BackColor", static_cast<double>(system_color::kHighlight));
  EXPECT_EQ(box.BackColor(), system_color::kHighlight);
  Put(calendar, "Value", Date(2026, 11, 20));
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 20));
  EXPECT_EQ(Get(calendar, "Day"), Value(20));
  Put(button, "Caption", "&Sí");
  EXPECT_EQ(button.Caption(), "&Sí");
}

TEST_F(NamedPropertyTest, AKindsOwnMemberComesBeforeThatOfEveryControl) {
  int ticks = 0;
  timer.OnTimer = [&] { ++ticks; };
  timer.Enabled(false);
  timer.Interval(10);
  Put(timer, "Enabled", 1);
  stage.host.PassTime(10);
  EXPECT_EQ(ticks, 1);
}

TEST_F(NamedPropertyTest, CellsAndColumnsAreNamedByTheirNumbers) {
  grid.TextMatrix(2, 1, "P7");
  EXPECT_EQ(Get(grid, "TextMatrix", {2, 1}), Value("P7"));
  Put(grid, "ColWidth", 1200.0, {3});
  EXPECT_EQ(grid.ColWidth(3), 1200);
  EXPECT_EQ(Get(grid, "ColWidth", {3}), Value(1200.0));
  grid.Row(2);
  grid.CellBackColor(0x00FF00);
  EXPECT_EQ(Get(grid, "CellBackColor"), Get(grid, "CellBackColor", {2, grid.Col()}));
}

TEST_F(NamedPropertyTest, TheNameIsReadInWhateverCase) {
  EXPECT_EQ(FindProperty(ControlKind::kTextBox, "selstart"), FindProperty(ControlKind::kTextBox, "SELSTART"));
  EXPECT_EQ(Of(box, "selstart").name, "SelStart");
  EXPECT_EQ(Of(label, "FONT.BOLD").type, PropertyType::kFlag);
}

TEST_F(NamedPropertyTest, WhatAKindDoesNotHaveIsNotFound) {
  EXPECT_EQ(FindProperty(ControlKind::kShape, "Caption"), nullptr);
  EXPECT_EQ(FindProperty(ControlKind::kLabel, "Text"), nullptr);
  EXPECT_EQ(FindProperty(ControlKind::kMSFlexGrid, "TextMatrix", 1), nullptr);
  EXPECT_EQ(FindProperty(ControlKind::kPictureBox, "Rows"), nullptr);
  EXPECT_FALSE(Of(boton, "Caption").put) << "it comes with the stored properties";
  EXPECT_FALSE(Of(grid, "CellTop").put);
}

TEST_F(NamedPropertyTest, WhatTheMemberRaisesComesOut) {
  EXPECT_EQ(ErrorOf([&] { Put(grid, "Row", 5); }), 30009);
  EXPECT_EQ(ErrorOf([&] { Get(grid, "RowHeight", {9}); }), 381);
  EXPECT_EQ(ErrorOf([&] { Get(shape, "Font.Size"); }), 438);
  EXPECT_EQ(ErrorOf([&] { Put(box, "Text", 5); }), 13) << "a number is no text";
}

TEST_F(NamedPropertyTest, AFormIsReadAndWrittenByTheSameNamesInWhateverCase) {
  const auto put = [this](std::string_view name, const Value& value) {
    FindFormProperty(name)->put(*stage.form, value);
  };
  put("caption", "Recuento");
  EXPECT_EQ(stage.form->Caption(), "Recuento");
  put("LEFT", 300);
  put("Top", 450);
  EXPECT_EQ(stage.form->Left(), 300);
  EXPECT_EQ(stage.form->Top(), 450);
  EXPECT_EQ(FindFormProperty("top")->get(*stage.form), Value(450));
  put("Visible", 0);
  EXPECT_FALSE(stage.form->Visible());
  EXPECT_EQ(FindFormProperty("Visible")->type, PropertyType::kFlag);
  EXPECT_FALSE(FindFormProperty("Name")->put);
  EXPECT_EQ(FindFormProperty("Text"), nullptr);
}

TEST_F(NamedPropertyTest, AStateThatAWindowDoesNotHaveIsRefused) {
  const auto put = [this](int state) { FindFormProperty("WindowState")->put(*stage.form, state); };
  put(1);
  EXPECT_EQ(stage.form->WindowState(), WindowState::kMinimized);
  EXPECT_EQ(ErrorOf([&] { put(3); }), 380);
  EXPECT_EQ(ErrorOf([&] { put(-1); }), 380);
  EXPECT_EQ(stage.form->WindowState(), WindowState::kMinimized);
}

}  // namespace
}  // namespace orvendal::testing
