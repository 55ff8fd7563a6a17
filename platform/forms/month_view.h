#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "platform/base/date.h"
#include "platform/forms/control.h"

namespace orvendal {

/// A calendar of one month with a selected day.
///
/// Invariants: Value is a day without time, MinDate <= Value <= MaxDate. The month that shows is the view; it
/// follows the selection, and the month buttons turn it without selecting.
class MonthView final : public Control {
 public:
  MonthView(Form& form, Control* container, std::string_view name, int index = -1);
  ControlKind Kind() const override { return ControlKind::kMonthView; }

  Date Value() const { return value_; }
  /// Selects the day and shows its month, raising nothing. Outside MinDate..MaxDate error 35773.
  void Value(Date day);
  Date MinDate() const { return min_date_; }
  void MinDate(Date day);
  Date MaxDate() const { return max_date_; }
  void MaxDate(Date day);
  ColorWord MonthBackColor() const { return month_back_color_; }
  void MonthBackColor(ColorWord color);

  /// The user selected another day: Value is new already; `cancel` True, or an error, puts the old one back.
  std::function<void(Date start, Date end, bool& cancel)> OnSelChange;
  /// The user clicked a day, after OnSelChange if that changed the selection.
  std::function<void(Date clicked)> OnDateClick;

  /// First day of the month that shows.
  Date ViewMonth() const { return view_month_; }
  /// The line at the bottom that names today.
  Rect TodayLine() const;
  /// Place of a day of the view (neighbour months' days included), relative to the control; nothing if it
  /// does not show.
  std::optional<Rect> DayRectangle(Date day) const;
  Rect PreviousButton() const;
  Rect NextButton() const;

  void RestoreDefaults() override;
  void Paint(Canvas& canvas) override;
  void MousePressed(int button, int shift, Point local) override;
  bool KeyDownDefault(int key_code, int shift) override;
  bool MouseWheel(WheelTurn turn) override;
  void FocusChanged(bool has_focus) override;
  /// The month buttons are parts of their own.
  bool RaisesClick(Point local) const override;

 protected:
  ControlProperties DefaultProperties() const override;

 private:
  struct Layout;
  Layout Measure() const;
  bool IsSelectable(std::int32_t day_number) const;
  std::int32_t FirstShownDay() const;  // a day number: it may lie before all dates
  std::optional<Date> DayAt(Point local) const;
  bool SelectByUser(Date day);  // whether the selection stands, with the form as it was
  void Show(Date day);
  bool TurnView(int months);
  Date MonthsAway(int months) const;
  std::optional<std::int32_t> DayForKey(int key_code, bool with_control) const;

  void PaintHeading(Canvas& canvas, const Layout& layout) const;
  void PaintDays(Canvas& canvas, const Layout& layout) const;
  void PaintTodayLine(Canvas& canvas, const Layout& layout) const;
  FontSpec FittedFont(const Rect& cell, std::string_view widest, int weight) const;

  Date value_;
  Date view_month_;
  Date min_date_;
  Date max_date_;
  ColorWord month_back_color_ = system_color::kWindowBackground;
};

}  // namespace orvendal
