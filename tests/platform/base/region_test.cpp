#include "platform/base/region.h"

#include <gtest/gtest.h>

#include <limits>

#include <clocale>

#include "platform/base/runtime_error.h"
#include "tests/support/error_of.h"

namespace orvendal {
namespace {

const Region& Spanish() {
  return Region::Spanish();
}
const Region& English() {
  return Region::English();
}

using testing_support::ErrorOf;

TEST(RegionTest, NumbersAreWrittenWithTheRegionsMark) {
  EXPECT_EQ(Spanish().ToText(2.5), "2,5");
  EXPECT_EQ(English().ToText(2.5), "2.5");
  EXPECT_EQ(Spanish().ToText(-0.125), "-0,125");
  EXPECT_EQ(Spanish().ToText(100.0), "100");
  EXPECT_EQ(Spanish().ToText(0.1 + 0.2), "0,3");
  EXPECT_EQ(Spanish().ToText(123456789012345.0), "123456789012345");
  EXPECT_EQ(Spanish().ToText(1e15), "1E+15");
  EXPECT_EQ(Spanish().ToText(1.5e-20), "1,5E-20");
}

TEST(RegionTest, DatesAreWrittenShortWithTheTimeOnlyIfThereIsOne) {
  EXPECT_EQ(Spanish().ToText(Date(2026, 11, 6)), "06/11/2026");
  EXPECT_EQ(Spanish().ToText(Date(2026, 11, 16, 9, 5, 0)), "16/11/2026 9:05:00");
  EXPECT_EQ(English().ToText(Date(2026, 11, 6)), "11/6/2026");
  EXPECT_EQ(English().ToText(Date(2026, 11, 6, 15, 4, 5)), "11/6/2026 3:04:05 PM");
  EXPECT_EQ(Spanish().ToText(Date(1899, 12, 30, 9, 5, 0)), "9:05:00");
}

TEST(RegionTest, NullHasNoText) {
  EXPECT_EQ(ErrorOf([] { Spanish().ToText(Value()); }), error_number::kInvalidUseOfNull);
}

TEST(RegionTest, NumbersAreReadWithTheRegionsMark) {
  EXPECT_EQ(Spanish().ParseNumber(" 2,5 "), 2.5);
  EXPECT_EQ(Spanish().ParseNumber("2.5"), std::nullopt);
  EXPECT_EQ(English().ParseNumber("-1e3"), -1000.0);
  EXPECT_EQ(Spanish().ParseNumber(""), std::nullopt);
  EXPECT_EQ(Spanish().ParseNumber("12a"), std::nullopt);
}

TEST(RegionTest, NumbersReadAlikeWhateverTheProgramsLocaleIs) {
  const char* const previous = std::setlocale(LC_NUMERIC, nullptr);
  const std::string kept = previous != nullptr ? previous : "C";
  for (const char* name : {"es_ES.UTF-8", "de_DE.UTF-8", "C"}) {
    std::setlocale(LC_NUMERIC, name);
    EXPECT_EQ(Spanish().ParseNumber("2,5"), 2.5) << name;
    EXPECT_EQ(Spanish().ToText(2.5), "2,5") << name;
  }
  std::setlocale(LC_NUMERIC, kept.c_str());
}

TEST(RegionTest, DatesAreReadInTheRegionsOrderAndElseInTheOneThatFits) {
  EXPECT_EQ(Spanish().ParseDate("5/6/2026"), Date(2026, 6, 5));
  EXPECT_EQ(English().ParseDate("5/6/2026"), Date(2026, 5, 6));
  EXPECT_EQ(Spanish().ParseDate("11/16/2026"), Date(2026, 11, 16));
  EXPECT_EQ(English().ParseDate("16/11/2026"), Date(2026, 11, 16));
  EXPECT_EQ(Spanish().ParseDate("2026-11-16 10:30:05"), Date(2026, 11, 16, 10, 30, 5));
  EXPECT_EQ(English().ParseDate("11/16/2026 3:04:05 PM"), Date(2026, 11, 16, 15, 4, 5));
  EXPECT_EQ(Spanish().ParseDate("16/11/26"), Date(2026, 11, 16));
  EXPECT_EQ(Spanish().ParseDate("16/11/30"), Date(1930, 11, 16));
  EXPECT_EQ(Spanish().ParseDate("31/2/2026"), std::nullopt);
  EXPECT_EQ(Spanish().ParseDate(""), std::nullopt);
  EXPECT_EQ(Spanish().ParseDate("mañana"), std::nullopt);
}

TEST(RegionTest, DatesThatARegionWroteReadBackWhateverItsSeparator) {
  for (const char separator : {'/', '-', '.', '_', ','}) {
    for (const DateOrder order :
         {DateOrder::kDayMonthYear, DateOrder::kMonthDayYear, DateOrder::kYearMonthDay}) {
      RegionSettings settings;
      settings.date_separator = separator;
      settings.date_order = order;
      const Region region = Region::FromSystem(settings);
      for (const Date date : {Date(2026, 3, 5), Date(2026, 11, 16, 9, 5, 0)}) {
        EXPECT_EQ(region.ParseDate(region.ToText(date)), date) << region.ToText(date);
      }
    }
  }
}

TEST(RegionTest, WholeNumbersRoundHalvesToTheEvenOne) {
  EXPECT_EQ(RoundToLong(882.5), 882);
  EXPECT_EQ(RoundToLong(883.5), 884);
  EXPECT_EQ(RoundToLong(-2.5), -2);
  EXPECT_EQ(Spanish().ToLong("2,5"), 2);
  EXPECT_EQ(Spanish().ToLong(Value(3.5)), 4);
  EXPECT_EQ(ErrorOf([] { RoundToLong(2147483647.5); }), error_number::kOverflow);
  EXPECT_EQ(ErrorOf([] { Spanish().ToLong("x"); }), error_number::kTypeMismatch);
  EXPECT_EQ(ErrorOf([] { Spanish().ToLong(Value()); }), error_number::kInvalidUseOfNull);
}

TEST(RegionTest, MasksFormatDatesAndTextsThatReadAsDates) {
  EXPECT_EQ(Spanish().Format("16/11/2026", "yyyy-mm-dd"), "2026-11-16");
  EXPECT_EQ(Spanish().Format(Date(2026, 1, 6), "m/d/yyyy"), "1/6/2026");
  EXPECT_EQ(Spanish().Format("46342", "yyyy-mm-dd"), "2026-11-16");
  EXPECT_EQ(Spanish().Format("", "yyyy-mm-dd"), "");
  EXPECT_EQ(Spanish().Format("nada", "yyyy-mm-dd"), "nada");
}

TEST(RegionTest, RegionsAreFoundByNameOrLanguage) {
  EXPECT_EQ(Region::Find("ca"), &Region::Catalan());
  EXPECT_EQ(Region::Find("es-ES"), &Region::Spanish());
  EXPECT_EQ(Region::Find("fr"), nullptr);
}

TEST(RegionTest, ANumberThatIsNotFiniteIsAnOverflow) {
  for (const double number :
       {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN()}) {
    try {
      Region::Spanish().ToText(Value(number));
      ADD_FAILURE();
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), error_number::kOverflow);
    }
  }
}

}  // namespace
}  // namespace orvendal
