#include "platform/forms/month_view.h"

#include <algorithm>

#include "platform/base/runtime_error.h"
#include "platform/forms/form.h"
#include "platform/forms/window_host.h"

namespace orvendal {
namespace {

constexpr int kDaysOfWeek = 7;

int MonthNumber(Date day) {
  return day.Year() * 12 + day.Month() - 1;
}

Date FirstOfMonth(int month_number) {
  return Date(month_number / 12, month_number % 12 + 1, 1);
}

}  // namespace

MonthView::MonthView(Form& form, Control* container, std::string_view name, int index)
    : Control(form, container, name, index) {
  InitializeDefaults();
}

ControlProperties MonthView::DefaultProperties() const {
  ControlProperties properties;
  properties.back_color = system_color::kWindowBackground;
  properties.fore_color = system_color::kWindowText;
  return properties;
}

void MonthView::RestoreDefaults() {
  Control::RestoreDefaults();
  min_date_ = Date(1753, 1, 1);
  max_date_ = Date(9999, 12, 31);
  month_back_color_ = system_color::kWindowBackground;
  Show(std::clamp(Host().SystemClock().Today(), min_date_, max_date_));
}

void MonthView::Show(Date day) {
  value_ = day;
  view_month_ = FirstOfMonth(MonthNumber(day));
  Invalidate();
}

void MonthView::Value(Date day) {
  const Date whole = day.DayOnly();
  if (!IsSelectable(whole.DayNumber())) throw RuntimeError(error_number::kDateOutOfRange);
  Show(whole);
}

void MonthView::MinDate(Date day) {
  if (day.DayOnly() > max_date_) throw RuntimeError(error_number::kDateOutOfRange);
  min_date_ = day.DayOnly();
  if (value_ < min_date_) Show(min_date_);
  Invalidate();
}

void MonthView::MaxDate(Date day) {
  if (day.DayOnly() < min_date_) throw RuntimeError(error_number::kDateOutOfRange);
  max_date_ = day.DayOnly();
  if (value_ > max_date_) Show(max_date_);
  Invalidate();
}

void MonthView::MonthBackColor(ColorWord color) {
  if (color == month_back_color_) return;
  month_back_color_ = color;
  Invalidate();
}

bool MonthView::IsSelectable(std::int32_t day_number) const {
  return day_number >= min_date_.DayNumber() && day_number <= max_date_.DayNumber();
}

std::int32_t MonthView::FirstShownDay() const {
  const int before = (view_month_.Weekday() - Host().UserRegion().FirstWeekday() + kDaysOfWeek) % kDaysOfWeek;
  return view_month_.DayNumber() - before;
}

bool MonthView::TurnView(int months) {
  const int wanted = MonthNumber(view_month_) + months;
  const Date turned = FirstOfMonth(std::clamp(wanted, MonthNumber(min_date_), MonthNumber(max_date_)));
  if (turned == view_month_) return false;
  view_month_ = turned;
  Invalidate();
  return true;
}

bool MonthView::SelectByUser(Date day) {
  if (day == value_) {
    Show(day);
    return true;
  }
  const Date old_value = value_;
  const Date old_view = view_month_;
  const std::uint64_t dialogs = Host().ModalSerial();
  Show(day);
  const auto revert = [&] {
    value_ = old_value;
    view_month_ = old_view;
    Invalidate();
  };
  bool cancel = false;
  try {
    if (OnSelChange) OnSelChange(day, day, cancel);
  } catch (...) {
    if (Parent().IsLoaded()) revert();  // a change that failed half-way selects no new day
    throw;
  }
  if (!Parent().IsLoaded()) return false;
  if (cancel) revert();
  return !cancel && Host().ModalSerial() == dialogs && IsOperable();
}

void MonthView::MousePressed(int button, int, Point local) {
  if (button != mouse_button::kLeft) return;
  if (PreviousButton().Contains(local)) {
    TurnView(-1);
    return;
  }
  if (NextButton().Contains(local)) {
    TurnView(1);
    return;
  }
  if (TodayLine().Contains(local)) {
    const Date today = Host().SystemClock().Today();
    if (IsSelectable(today.DayNumber())) SelectByUser(today);
    return;
  }
  const std::optional<Date> day = DayAt(local);
  if (day && SelectByUser(*day) && OnDateClick) OnDateClick(*day);
}

bool MonthView::RaisesClick(Point local) const {
  return !PreviousButton().Contains(local) && !NextButton().Contains(local);
}

Date MonthView::MonthsAway(int months) const {
  const int month = std::clamp(MonthNumber(value_) + months, MonthNumber(min_date_), MonthNumber(max_date_));
  const Date first = FirstOfMonth(month);
  const int day = std::min(value_.Day(), Date::DaysInMonth(first.Year(), first.Month()));
  return Date(first.Year(), first.Month(), day);
}

std::optional<std::int32_t> MonthView::DayForKey(int key_code, bool with_control) const {
  const std::int32_t day = value_.DayNumber();
  const std::int32_t first = day - value_.Day() + 1;
  switch (key_code) {
    case key::kLeft:
      return day - 1;
    case key::kRight:
      return day + 1;
    case key::kUp:
      return day - kDaysOfWeek;
    case key::kDown:
      return day + kDaysOfWeek;
    case key::kPageUp:
      return MonthsAway(-1).DayNumber();
    case key::kPageDown:
      return MonthsAway(1).DayNumber();
    case key::kHome:
      return with_control ? Host().SystemClock().Today().DayNumber() : first;
    case key::kEnd:
      return first + Date::DaysInMonth(value_.Year(), value_.Month()) - 1;
    default:
      return std::nullopt;
  }
}

bool MonthView::KeyDownDefault(int key_code, int shift) {
  if ((shift & shift_mask::kAlt) != 0) return false;
  const std::optional<std::int32_t> day = DayForKey(key_code, (shift & shift_mask::kControl) != 0);
  if (!day) return false;
  SelectByUser(Date::FromDayNumber(std::clamp(*day, min_date_.DayNumber(), max_date_.DayNumber())));
  return false;
}

bool MonthView::MouseWheel(WheelTurn turn) {
  TurnView(turn.notches);
  return true;
}

void MonthView::FocusChanged(bool) {
  Invalidate();
}

}  // namespace orvendal
