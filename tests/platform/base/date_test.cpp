#include "platform/base/date.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"

namespace orvendal {
namespace {

TEST(DateTest, DayZeroIsThe30thOfDecember1899) {
  EXPECT_EQ(Date().Year(), 1899);
  EXPECT_EQ(Date().Month(), 12);
  EXPECT_EQ(Date().Day(), 30);
  EXPECT_EQ(Date(1900, 1, 1).DayNumber(), 2);
}

TEST(DateTest, KnowsItsWeekday) {
  EXPECT_EQ(Date(2026, 11, 16).Weekday(), 0);
  EXPECT_EQ(Date(2026, 11, 22).Weekday(), 6);
}

TEST(DateTest, LeapDayExistsOnlyInLeapYears) {
  EXPECT_TRUE(Date::IsValid(2024, 2, 29));
  EXPECT_FALSE(Date::IsValid(2026, 2, 29));
  EXPECT_FALSE(Date::IsValid(1900, 2, 29));
  EXPECT_THROW(Date(2026, 2, 29), RuntimeError);
}

TEST(DateTest, SerialHoldsDayAndTime) {
  const Date noon(2026, 11, 16, 12, 0, 0);
  EXPECT_DOUBLE_EQ(noon.Serial(), 46342.5);
  EXPECT_EQ(Date::FromSerial(46342.5), noon);
}

TEST(DateTest, SerialOneBlinkBeforeMidnightIsTheNextDay) {
  EXPECT_EQ(Date::FromSerial(46342.9999999), Date(2026, 11, 17));
}

TEST(DateTest, NegativeSerialCountsItsTimeForward) {
  EXPECT_EQ(Date::FromSerial(-1.25), Date(1899, 12, 29, 6, 0, 0));
  EXPECT_DOUBLE_EQ(Date(1899, 12, 29, 6, 0, 0).Serial(), -1.25);
}

TEST(DateTest, SerialOutsideTheCalendarIsRefused) {
  EXPECT_THROW(Date::FromSerial(3000000), RuntimeError);
  EXPECT_THROW(Date::FromSerial(-700000), RuntimeError);
}

}  // namespace
}  // namespace orvendal
