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
  EXPECT_EQ(Typed("12345678"), "1234567");
  EXPECT_EQ(Typed("1234567,1234"), "1234567,123");
  EXPECT_EQ(Typed("1234567,12", 0, 0, "9"), "1234567,12");
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
