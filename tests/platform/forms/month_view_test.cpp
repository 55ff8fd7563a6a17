#include "platform/forms/month_view.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "platform/forms/text_box.h"
#include "tests/platform/forms/control_stage.h"

namespace orvendal::testing {
namespace {

class MonthViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    stage.Show();
    calendar.Value(Date(2026, 11, 10));
    calendar.OnSelChange = [this](Date start, Date end, bool& cancel) {
      log += "sel " + Text(start) + " " + Text(end) + " value " + Text(calendar.Value()) + ";";
      cancel = refuse;
    };
    calendar.OnDateClick = [this](Date clicked) { log += "date " + Text(clicked) + ";"; };
    calendar.OnClick = [this] { log += "click;"; };
    calendar.OnDblClick = [this] { log += "dblclick;"; };
    calendar.SetFocus();
  }
  static std::string Text(Date date) { return Region::Spanish().Format(date, "dd-mm"); }
  Point Of(Date day) { return Stage::MiddleOf(calendar.DayRectangle(day).value()); }
  void PressDay(Date day) { stage.Press(calendar, Of(day)); }

  Stage stage;
  MonthView& calendar = stage.Add<MonthView>("Calendario", {300, 300, 3540, 3420});
  TextBox& box = stage.Add<TextBox>("TxtBox", {6000, 300, 1500, 450});
  std::string log;
  bool refuse = false;
};

TEST_F(MonthViewTest, CodeSelectsADayWithoutTimeAndRaisesNothing) {
  calendar.Value(Date(2025, 2, 28, 17, 30, 0));
  EXPECT_EQ(calendar.Value(), Date(2025, 2, 28));
  EXPECT_EQ(calendar.ViewMonth(), Date(2025, 2, 1));
  EXPECT_EQ(log, "");
}

TEST_F(MonthViewTest, ADayOutsideTheLimitsIsRefusedAndTheOldOneStays) {
  calendar.MinDate(Date(2026, 11, 5));
  calendar.MaxDate(Date(2026, 12, 20));
  for (const Date day : {Date(2026, 11, 4), Date(2026, 12, 21)}) {
    try {
      calendar.Value(day);
      FAIL() << "no error";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 35773);
    }
  }
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 10));
  EXPECT_FALSE(calendar.DayRectangle(Date(2026, 11, 4)).has_value());
}

TEST_F(MonthViewTest, AClickOnAnotherDaySelectsItWithTheNewValueInsideTheEvent) {
  PressDay(Date(2026, 11, 17));
  EXPECT_EQ(log, "sel 17-11 17-11 value 17-11;date 17-11;");
  stage.Release(calendar, Of(Date(2026, 11, 17)));
  EXPECT_EQ(log, "sel 17-11 17-11 value 17-11;date 17-11;click;");
}

TEST_F(MonthViewTest, AClickOnTheSelectedDayIsOnlyADateClick) {
  PressDay(Date(2026, 11, 10));
  EXPECT_EQ(log, "date 10-11;");
}

TEST_F(MonthViewTest, ADoubleClickSelectsOnceAndThenRaisesDblClick) {
  stage.DoubleClick(calendar, Of(Date(2026, 11, 12)));
  EXPECT_EQ(log, "sel 12-11 12-11 value 12-11;date 12-11;click;dblclick;");
}

TEST_F(MonthViewTest, CancelPutsTheOldDayAndItsMonthBack) {
  refuse = true;
  PressDay(Date(2026, 12, 2));
  EXPECT_EQ(log, "sel 02-12 02-12 value 02-12;");
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 10));
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 11, 1));
}

TEST_F(MonthViewTest, ADayOfTheNeighbourMonthTurnsTheView) {
  PressDay(Date(2026, 10, 28));
  EXPECT_EQ(calendar.Value(), Date(2026, 10, 28));
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 10, 1));
}

TEST_F(MonthViewTest, TheMonthButtonsTurnTheViewOnlyAsOftenAsTheyArePressed) {
  const Point next = Stage::MiddleOf(calendar.NextButton());
  stage.DoubleClick(calendar, next);
  EXPECT_EQ(calendar.ViewMonth(), Date(2027, 1, 1));
  stage.Click(calendar, Stage::MiddleOf(calendar.PreviousButton()));
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 12, 1));
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 10));
  EXPECT_EQ(log, "");
}

TEST_F(MonthViewTest, TheViewStaysWithinTheLimits) {
  calendar.MinDate(Date(2026, 11, 5));
  calendar.MaxDate(Date(2026, 12, 20));
  stage.Click(calendar, Stage::MiddleOf(calendar.PreviousButton()));
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 11, 1));
  for (int i = 0; i < 3; ++i) stage.Click(calendar, Stage::MiddleOf(calendar.NextButton()));
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 12, 1));
}

TEST_F(MonthViewTest, TheEndsOfTheCalendarCanBeShown) {
  calendar.Value(Date(9999, 12, 31));
  EXPECT_FALSE(stage.Painted().Operations().empty());
  stage.Key(key::kRight);
  EXPECT_EQ(calendar.Value(), Date(9999, 12, 31));
  calendar.MinDate(Date(100, 1, 1));
  calendar.Value(Date(100, 1, 1));
  EXPECT_FALSE(stage.Painted().Operations().empty());
  stage.Key(key::kPageUp);
  EXPECT_EQ(calendar.Value(), Date(100, 1, 1));
  EXPECT_EQ(log, "");
}

TEST_F(MonthViewTest, ArrowsMoveByDaysAndWeeks) {
  stage.Key(key::kLeft);
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 9));
  stage.Key(key::kUp);
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 2));
  stage.Key(key::kUp);
  EXPECT_EQ(calendar.Value(), Date(2026, 10, 26));
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 10, 1));
  stage.Key(key::kDown);
  stage.Key(key::kRight);
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 3));
  EXPECT_EQ(log,
            "sel 09-11 09-11 value 09-11;sel 02-11 02-11 value 02-11;sel 26-10 26-10 value 26-10;"
            "sel 02-11 02-11 value 02-11;sel 03-11 03-11 value 03-11;");
}

TEST_F(MonthViewTest, PageKeysMoveByMonthsToADayThatTheMonthHas) {
  calendar.Value(Date(2028, 1, 31));
  stage.Key(key::kPageDown);
  EXPECT_EQ(calendar.Value(), Date(2028, 2, 29));
  stage.Key(key::kPageUp);
  EXPECT_EQ(calendar.Value(), Date(2028, 1, 29));
}

TEST_F(MonthViewTest, HomeAndEndGoToTheEdgesOfTheMonth) {
  stage.Key(key::kEnd);
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 30));
  stage.Key(key::kHome);
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 1));
  stage.Key(key::kHome, shift_mask::kControl);
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 16));
}

TEST_F(MonthViewTest, EnterAndEscapeAreLeftToTheHandler) {
  std::string keys;
  calendar.OnKeyPress = [&keys](int& ascii) { keys += std::to_string(ascii) + " "; };
  stage.Key(key::kReturn);
  stage.Key(key::kEscape);
  EXPECT_EQ(keys, "13 27 ");
  EXPECT_EQ(log, "");
}

TEST_F(MonthViewTest, TheLineAtTheBottomSelectsToday) {
  stage.Press(calendar, Stage::MiddleOf(calendar.TodayLine()));
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 16));
  EXPECT_EQ(log, "sel 16-11 16-11 value 16-11;");
}

TEST_F(MonthViewTest, WeeksBeginAsTheRegionSays) {
  EXPECT_EQ(calendar.DayRectangle(Date(2026, 10, 26))->left, 0);  // a Monday
  EXPECT_FALSE(calendar.DayRectangle(Date(2026, 10, 25)).has_value());
  EXPECT_TRUE(calendar.DayRectangle(Date(2026, 12, 6)).has_value());  // the last of six weeks
  FixedClock clock{Date(2026, 11, 16)};
  HeadlessHost american{Region::English(), clock};
  const auto form = std::make_shared<StageForm>(american);
  auto& sunday_first = form->Add<MonthView>("Calendar", {0, 0, 3540, 3420});
  form->Show();
  EXPECT_EQ(sunday_first.DayRectangle(Date(2026, 11, 1))->left, 0);  // a Sunday
}

TEST_F(MonthViewTest, ShowsMonthNameWeekdaysTodayAndNeighbourDaysInGrey) {
  const RecordingCanvas canvas = stage.Painted();
  EXPECT_EQ(Find(canvas, "text", "noviembre 2026").text, "noviembre 2026");
  EXPECT_EQ(Find(canvas, "text", "Hoy: 16/11/2026").text, "Hoy: 16/11/2026");
  EXPECT_EQ(canvas.Texts().size(), 1U + 7U + 42U + 1U);
  EXPECT_EQ(canvas.Texts()[1], "lu");
  EXPECT_EQ(Find(canvas, "text", "26").color, stage.host.Resolve(system_color::kGrayText));  // of October
  EXPECT_EQ(Find(canvas, "text", "15").color, stage.host.Resolve(system_color::kWindowText));
  const Rect selected = *calendar.DayRectangle(Date(2026, 11, 10));
  EXPECT_EQ(canvas.FillAt(Stage::At(calendar, Stage::MiddleOf(selected))),
            stage.host.Resolve(system_color::kActiveTitleBar));
  const Point today = Stage::At(calendar, Of(Date(2026, 11, 16)));
  bool ringed = false;
  for (const auto& operation : canvas.Operations()) {
    ringed = ringed || (operation.kind == "frame" && operation.area.Contains(today));
  }
  EXPECT_TRUE(ringed);
}

TEST_F(MonthViewTest, TheLayoutFillsWhateverSizeIsWritten) {
  calendar.Move(-7, 0, 2765, 2671);
  EXPECT_EQ(calendar.Width(), 2765);
  EXPECT_EQ(calendar.Height(), 2671);
  const Rect last = *calendar.DayRectangle(Date(2026, 12, 6));
  EXPECT_NEAR(last.Right(), 2765, 0.01);
  EXPECT_NEAR(calendar.TodayLine().Bottom(), 2671, 0.01);
}

TEST_F(MonthViewTest, TheFormMayBeUnloadedInsideSelChange) {
  calendar.OnSelChange = [this](Date, Date, bool& cancel) {
    cancel = true;
    stage.form->Unload();
  };
  PressDay(Date(2026, 11, 17));
  EXPECT_FALSE(stage.form->IsLoaded());
  EXPECT_EQ(log, "");
}

TEST_F(MonthViewTest, AnErrorInsideSelChangeIsReportedAndSelectsNoNewDay) {
  calendar.OnSelChange = [](Date, Date, bool&) { throw RuntimeError(error_number::kObjectNotSet); };
  stage.Click(calendar, Of(Date(2026, 12, 2)));
  ASSERT_EQ(stage.host.ReportedErrors().size(), 1U);
  EXPECT_EQ(stage.host.ReportedErrors()[0].Number(), 91);
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 10));
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 11, 1));
  EXPECT_EQ(log, "");
}

TEST_F(MonthViewTest, ADialogInsideSelChangeEndsTheGesture) {
  calendar.OnSelChange = [this](Date, Date, bool&) { const ModalScope dialog(stage.host); };
  stage.DoubleClick(calendar, Of(Date(2026, 11, 17)));
  EXPECT_EQ(log, "");
  EXPECT_EQ(calendar.Value(), Date(2026, 11, 17));
}

TEST_F(MonthViewTest, HiddenInsideSelChangeItRaisesNoDateClick) {
  calendar.OnSelChange = [this](Date, Date, bool&) { calendar.Visible(false); };
  stage.Click(calendar, Of(Date(2026, 11, 17)));
  EXPECT_EQ(log, "");
  EXPECT_TRUE(box.HasFocus());
}

TEST_F(MonthViewTest, TheWheelTurnsTheView) {
  stage.form->MouseWheel(Stage::At(calendar, {500, 2000}), 3);
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 12, 1));
  stage.form->MouseWheel(Stage::At(calendar, {500, 2000}), -3);
  stage.form->MouseWheel(Stage::At(calendar, {500, 2000}), -3);
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 10, 1));
  EXPECT_EQ(log, "");
}

// Each of them was a month: a touchpad over the calendar flew a year.
TEST_F(MonthViewTest, TwelveQuarterLinesOfATouchpadAreOneMonth) {
  for (int turn = 0; turn < 12; ++turn) stage.form->MouseWheel(Stage::At(calendar, {500, 2000}), 0.25);
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 12, 1));
  for (int turn = 0; turn < 24; ++turn) stage.form->MouseWheel(Stage::At(calendar, {500, 2000}), -0.25);
  EXPECT_EQ(calendar.ViewMonth(), Date(2026, 10, 1));
}

}  // namespace
}  // namespace orvendal::testing
