#include "platform/forms/form.h"
#include "tests/host/host_fixture.h"

namespace orvendal {
namespace {

/// A form with one box whose keys go through the filter, as the cell editor's do.
class BoxForm final : public Form {
 public:
  BoxForm(WindowHost& host, Herramientas& tools) : Form(host, "FrmCaja") {
    Caja.OnKeyPress = [this, &tools](int& key_ascii) {
      key_ascii = tools.FiltrarTecla(Caja, key_ascii, decimals);
      answers.push_back(key_ascii);
    };
  }
  TextBox Caja{*this, nullptr, "Caja"};
  bool decimals = true;
  std::vector<int> answers;

 protected:
  void ApplyDesign() override {
    Width(3000);
    Height(1000);
    Caja.Move(0, 0, 2000, 400);
    Caja.TabIndex(0);
  }
};

class QuantityFilter : public HostTest {
 protected:
  explicit QuantityFilter(const Region& region = Region::Spanish()) : HostTest(region) {
    form->Show();
    form->Caja.SetFocus();
  }
  ~QuantityFilter() override { form->Unload(); }

  // What stands in the box after typing into `before`, whose characters from `start` on are selected.
  std::string Typed(const std::string& before, int start, int length, const std::string& keys) {
    form->Caja.Text(before);
    form->Caja.SelStart(start);
    form->Caja.SelLength(length);
    robot.Type(keys);
    return form->Caja.Text();
  }
  std::string Typed(const std::string& keys) { return Typed("", 0, 0, keys); }
  // One key after the other, as a hand types.
  std::string TypedByHand(const std::string& before, int start, int length, const std::string& keys) {
    std::string text = Typed(before, start, length, "");
    for (const char key : keys) robot.Type(std::string(1, key));
    return form->Caja.Text();
  }
  // What stands in the box after deleting from `before` at `start` with the key Delete, and Enter.
  std::string Entered(const std::string& before, int start, int deleted) {
    Typed(before, start, 0, "");
    for (int i = 0; i < deleted; ++i) robot.Key(key::kDelete);
    robot.Key(key::kReturn);
    return form->Caja.Text();
  }
  bool AllIsSelected() const {
    return form->Caja.SelStart() == 0 && form->Caja.SelText() == form->Caja.Text();
  }
  std::string Pasted(const std::string& before, int start, int length, const std::string& clipboard) {
    host.ClipboardText(clipboard);
    form->Caja.Text(before);
    form->Caja.SelStart(start);
    form->Caja.SelLength(length);
    robot.Key('V', shift_mask::kControl);
    return form->Caja.Text();
  }

  std::unique_ptr<Herramientas> tools = library.NewHerramientas();
  std::shared_ptr<BoxForm> form = std::make_shared<BoxForm>(host, *tools);
  Robot robot{*form};
};

class QuantityFilterInEnglish : public QuantityFilter {
 protected:
  QuantityFilterInEnglish() : QuantityFilter(Region::English()) {}
};

TEST_F(QuantityFilter, TakesDigitsAndRefusesLettersSignsAndBlanks) {
  EXPECT_EQ(Typed("12"), "12");
  EXPECT_EQ(Typed("-1a 2b+ñ3€"), "123");
}

TEST_F(QuantityFilter, TurnsThePointOfTheNumberPadIntoTheRegionsMark) {
  EXPECT_EQ(Typed("2.5"), "2,5");
  EXPECT_EQ(Typed("2,5"), "2,5");
}

TEST_F(QuantityFilterInEnglish, TakesThePointAndRefusesTheComma) {
  EXPECT_EQ(Typed("2,5"), "25");
  EXPECT_EQ(Typed("2.5"), "2.5");
}

TEST_F(QuantityFilter, TakesOneMarkOnlyAndNoneWithoutADigitBeforeIt) {
  EXPECT_EQ(Typed("1,2,3"), "1,23");
  EXPECT_EQ(Typed(",5"), "5");
  EXPECT_EQ(Typed("12", 0, 0, ","), "12");
}

TEST_F(QuantityFilter, TakesSevenWholeAndThreeDecimalDigits) {
  EXPECT_EQ(Typed("1234567"), "1234567");
  EXPECT_EQ(Typed("1234567,123"), "1234567,123");
  EXPECT_EQ(TypedByHand("", 0, 0, "12345678"), "1234567");
  EXPECT_EQ(TypedByHand("", 0, 0, "1234567,1234"), "1234567,123");
  EXPECT_EQ(Typed("1234567,12", 0, 0, "9"), "1234567,12");
  EXPECT_EQ(host.Beeps(), 3);
}

TEST_F(QuantityFilter, ABarCodeScannedIntoTheBoxGivesBackWhatItShowed) {
  EXPECT_EQ(Typed("12", 0, 2, "8412345678905\n"), "12");
  EXPECT_TRUE(AllIsSelected());
  EXPECT_EQ(host.Beeps(), 1);
  EXPECT_EQ(form->answers.back(), 0) << "the reader's Enter confirms nothing";
  EXPECT_EQ(Typed("-3,5", 0, 4, "84123456789054321\n"), "-3,5");
  EXPECT_EQ(Typed("4", 1, 0, "8412345678905"), "4");
  EXPECT_EQ(host.Beeps(), 3);
}

TEST_F(QuantityFilter, WhatAHandTypesAfterAScanIsTaken) {
  Typed("12", 0, 2, "8412345678905\n");
  robot.Type("7");
  EXPECT_EQ(form->Caja.Text(), "7");
  robot.Key(key::kReturn);
  EXPECT_EQ(form->answers.back(), character::kEnter);
}

TEST_F(QuantityFilter, AScanAfterTypedDigitsLeavesThem) {
  TypedByHand("12", 0, 2, "45");
  robot.Type("8412345678905\n");
  EXPECT_EQ(form->Caja.Text(), "45");
}

TEST_F(QuantityFilter, ACodeWithLettersScannedIntoTheBoxGivesBackWhatItShowed) {
  EXPECT_EQ(Typed("12", 0, 2, "CHA01\n"), "12");
  EXPECT_TRUE(AllIsSelected());
  EXPECT_EQ(form->answers.back(), 0);
  EXPECT_EQ(host.Beeps(), 1);
}

TEST_F(QuantityFilter, AQuantityThatIsTypedFastIsConfirmed) {
  EXPECT_EQ(Typed("12", 0, 2, "1234567\n"), "1234567");
  EXPECT_EQ(form->answers.back(), character::kEnter);
  EXPECT_EQ(Typed("12", 0, 2, "1.2,5+\n"), "1,25");
  EXPECT_EQ(form->answers.back(), character::kEnter);
  EXPECT_EQ(host.Beeps(), 0);
}

TEST_F(QuantityFilter, AtEnterALoneMarkOrSignIsNoQuantity) {
  EXPECT_EQ(Entered("4,", 0, 1), "");
  EXPECT_EQ(form->answers.back(), 0);
  EXPECT_EQ(Entered("-2", 1, 1), "");
  EXPECT_EQ(Entered("-2,", 1, 1), "");
  EXPECT_EQ(host.Beeps(), 3);
}

TEST_F(QuantityFilter, AtEnterAQuantityWithAPartMissingIsPutRight) {
  EXPECT_EQ(Entered("4,5", 2, 1), "4");
  EXPECT_EQ(Entered("4,5", 0, 1), "0,5");
  EXPECT_EQ(Entered("-4,5", 1, 1), "-0,5");
  EXPECT_EQ(form->answers.back(), character::kEnter);
  EXPECT_EQ(Entered("", 0, 0), "");
  EXPECT_EQ(form->answers.back(), character::kEnter);
  EXPECT_EQ(host.Beeps(), 0);
}

TEST_F(QuantityFilter, AtEnterWhatIsTooLongOrNoNumberIsRefusedAndSelected) {
  EXPECT_EQ(Entered("1234567,12", 7, 1), "123456712");
  EXPECT_EQ(form->answers.back(), 0);
  EXPECT_TRUE(AllIsSelected());
  EXPECT_EQ(Entered("CHA01", 2, 0), "CHA01");
  EXPECT_EQ(form->answers.back(), 0);
  EXPECT_EQ(host.Beeps(), 2);
}

TEST_F(QuantityFilter, AtEnterTheStocksOwnNumberStandsHoweverLong) {
  for (const std::string stock : {"-3", "123456789", "-12,5"}) {
    Typed(stock, 0, static_cast<int>(stock.size()), "\n");
    EXPECT_EQ(form->Caja.Text(), stock);
    EXPECT_EQ(form->answers.back(), character::kEnter) << stock;
  }
}

TEST_F(QuantityFilter, ASignThatTheStoreHeldStaysBeforeWhatIsTyped) {
  EXPECT_EQ(Typed("-3", 2, 0, "5"), "-35");
  EXPECT_EQ(Typed("-3", 1, 1, "8"), "-8");
  EXPECT_EQ(Typed("-3", 0, 0, "5"), "-3");
  EXPECT_EQ(Typed("3", 0, 0, "-"), "3");
  EXPECT_EQ(Pasted("-3", 2, 0, "4"), "-34");
  EXPECT_EQ(Pasted("-3", 0, 2, "-4"), "-3");
}

TEST_F(QuantityFilter, RefusesAMarkThatWouldLeaveTooManyDecimals) {
  EXPECT_EQ(Typed("12345", 1, 0, ","), "12345");
  EXPECT_EQ(Typed("12345", 2, 0, ","), "12,345");
}

TEST_F(QuantityFilter, CountsWithWhatTheSelectionGivesUp) {
  EXPECT_EQ(Typed("1234567", 0, 7, "8"), "8");
  EXPECT_EQ(Typed("1,5", 1, 1, "."), "1,5");
  EXPECT_EQ(Typed("1,5", 0, 1, ","), "1,5");
}

TEST_F(QuantityFilter, ReplacesANegativeStockThatIsSelected) {
  EXPECT_EQ(Typed("-3", 0, 2, "4"), "4");
}

TEST_F(QuantityFilter, WholeQuantitiesTakeNoMark) {
  form->decimals = false;
  EXPECT_EQ(Typed("2,5"), "25");
}

TEST_F(QuantityFilter, LetsEnterEscapeBackspaceAndCopyThrough) {
  for (const int code : {1, 3, 8, 13, 24, 26, 27, 127}) {
    EXPECT_EQ(tools->FiltrarTecla(form->Caja, code, true), code) << code;
  }
}

TEST_F(QuantityFilter, PastesWhatMakesAQuantityOfTheBox) {
  EXPECT_EQ(Pasted("", 0, 0, "12,5"), "12,5");
  EXPECT_EQ(Pasted("30", 1, 0, "2"), "320");
  EXPECT_EQ(Pasted("999", 0, 3, "1234567"), "1234567");
}

TEST_F(QuantityFilter, RefusesAPasteThatMakesNone) {
  EXPECT_EQ(Pasted("7", 1, 0, "abc"), "7");
  EXPECT_EQ(Pasted("7", 1, 0, "1.5"), "7");
  EXPECT_EQ(Pasted("1,5", 3, 0, ",2"), "1,5");
  EXPECT_EQ(Pasted("1234567", 7, 0, "8"), "1234567");
  EXPECT_EQ(Pasted("7", 1, 0, ""), "7");
  EXPECT_EQ(Pasted("7", 1, 0, "1\n2"), "7");
}

TEST_F(QuantityFilter, PastesWithoutTheBlanksAround) {
  EXPECT_EQ(Pasted("", 0, 0, " 12 \n"), "12");
  EXPECT_EQ(form->Caja.SelStart(), 2);
}

TEST_F(QuantityFilter, FiltersThePasteOfShiftInsertToo) {
  host.ClipboardText("abc");
  form->Caja.Text("7");
  robot.Key(key::kInsert, shift_mask::kShift);
  EXPECT_EQ(form->Caja.Text(), "7");
  EXPECT_EQ(form->answers, std::vector<int>{0});
}

}  // namespace
}  // namespace orvendal
