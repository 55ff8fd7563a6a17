#include "adapters/win32/user_region.h"
#include "tests/adapters/win32/win32_fixture.h"

namespace orvendal {
namespace {

/// One of the user's own settings, put back at the end.
class UserSetting {
 public:
  UserSetting(LCTYPE type, const wchar_t* value) : type_(type) {
    wchar_t before[100] = L"";
    GetLocaleInfoW(LOCALE_USER_DEFAULT, type, before, 100);
    before_ = before;
    SetLocaleInfoW(LOCALE_USER_DEFAULT, type, value);
  }
  ~UserSetting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, type_, before_.c_str()); }
  UserSetting(const UserSetting&) = delete;
  UserSetting& operator=(const UserSetting&) = delete;

 private:
  LCTYPE type_;
  std::wstring before_;
};

const Date kMoment(2026, 3, 5, 14, 7, 9);

TEST(RegionOfSystem, NumbersAreWrittenAndReadWithTheUsersDecimalMark) {
  const UserSetting mark(LOCALE_SDECIMAL, L",");
  const Region region = UserRegionOfSystem();
  EXPECT_EQ(region.ToText(2.5), "2,5");
  EXPECT_EQ(region.ParseNumber("2,5"), 2.5);
  const UserSetting other(LOCALE_SDECIMAL, L".");
  EXPECT_EQ(UserRegionOfSystem().ToText(2.5), "2.5");
}

TEST(RegionOfSystem, DatesAreWrittenInTheUsersOrder) {
  const UserSetting separator(LOCALE_SDATE, L"/");
  const UserSetting clock(LOCALE_STIMEFORMAT, L"H:mm:ss");
  {
    const UserSetting order(LOCALE_SSHORTDATE, L"dd/MM/yyyy");
    EXPECT_EQ(UserRegionOfSystem().ToText(kMoment), "05/03/2026 14:07:09");
    EXPECT_EQ(UserRegionOfSystem().ParseDate("05/03/2026"), Date(2026, 3, 5));
  }
  {
    const UserSetting order(LOCALE_SSHORTDATE, L"M/d/yyyy");
    EXPECT_EQ(UserRegionOfSystem().ToText(kMoment), "3/5/2026 14:07:09");
    EXPECT_EQ(UserRegionOfSystem().ParseDate("05/03/2026"), Date(2026, 5, 3));
  }
  {
    const UserSetting order(LOCALE_SSHORTDATE, L"yyyy-MM-dd");
    const UserSetting dash(LOCALE_SDATE, L"-");
    EXPECT_EQ(UserRegionOfSystem().ToText(kMoment), "2026-03-05 14:07:09");
  }
}

TEST(RegionOfSystem, ATwelveHourClockSaysAmAndPm) {
  const UserSetting clock(LOCALE_STIMEFORMAT, L"h:mm:ss tt");
  const std::string text = UserRegionOfSystem().ToText(kMoment);
  EXPECT_NE(text.find("2:07:09 PM"), std::string::npos) << text;
}

TEST(RegionOfSystem, TheWeekBeginsWhereTheUserSays) {
  const UserSetting monday(LOCALE_IFIRSTDAYOFWEEK, L"0");
  EXPECT_EQ(UserRegionOfSystem().FirstWeekday(), 0);
  const UserSetting sunday(LOCALE_IFIRSTDAYOFWEEK, L"6");
  EXPECT_EQ(UserRegionOfSystem().FirstWeekday(), 6);
}

TEST(RegionOfSystem, MonthsAndDaysHaveNamesOfTheSystem) {
  const Region region = UserRegionOfSystem();
  wchar_t march[100] = L"";
  GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SMONTHNAME3, march, 100);
  EXPECT_EQ(region.MonthName(3), Utf8(march));
  for (int month = 1; month <= 12; ++month) EXPECT_FALSE(region.MonthName(month).empty());
  for (int day = 0; day < 7; ++day) EXPECT_FALSE(region.WeekdayLetter(day).empty());
  EXPECT_FALSE(region.TodayWord().empty());
  EXPECT_NE(region.Name().find('-'), std::string::npos) << region.Name();
}

TEST(RegionOfSystem, TheHostUsesItUnlessToldOtherwise) {
  const UserSetting mark(LOCALE_SDECIMAL, L"#");
  Win32WindowHost host;
  EXPECT_EQ(host.UserRegion().DecimalMark(), '#');
}

TEST(RegionOfSystem, TheClockIsTheSystemsInLocalTime) {
  SYSTEMTIME before{}, after{};
  GetLocalTime(&before);
  const Date now = LocalClock().Now();
  GetLocalTime(&after);
  const auto date_of = [](const SYSTEMTIME& t) {
    return Date(t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond);
  };
  EXPECT_LE(date_of(before), now);
  EXPECT_LE(now, date_of(after));
}

}  // namespace
}  // namespace orvendal
