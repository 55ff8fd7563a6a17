#include <algorithm>
#include <string>
#include <utility>

#include "platform/forms/control_looks.h"
#include "platform/forms/month_view.h"

namespace orvendal {
namespace {

constexpr int kColumns = 7;
constexpr int kWeeks = 6;
// Heights in rows of days: the heading, the names of the weekdays, the days, today.
constexpr double kHeadingRows = 1.4;
constexpr double kWeekdayRows = 1.0;
constexpr double kTodayRows = 1.2;
constexpr double kAllRows = kHeadingRows + kWeekdayRows + kWeeks + kTodayRows;
constexpr double kPartOfCellForText = 0.92;
constexpr int kBold = 700;
constexpr ColorWord kRing = 0x0000C0;

}  // namespace

struct MonthView::Layout {
  Rect heading;
  Rect previous;
  Rect next;
  Rect weekdays;
  Rect days;
  Rect today;

  Rect Cell(const Rect& area, int column, int row, int rows) const {
    const double width = area.width / kColumns;
    const double height = area.height / rows;
    return {area.left + column * width, area.top + row * height, width, height};
  }
};

MonthView::Layout MonthView::Measure() const {
  const Rect inside = LocalBounds().Deflated(BorderInset(BorderStyle(), Appearance()));
  const double row = inside.height / kAllRows;
  Layout layout;
  double top = inside.top;
  const auto take = [&](double rows) {
    const Rect part{inside.left, top, inside.width, rows * row};
    top += part.height;
    return part;
  };
  layout.heading = take(kHeadingRows);
  layout.weekdays = take(kWeekdayRows);
  layout.days = take(kWeeks);
  layout.today = take(kTodayRows);
  const double side = std::min(layout.heading.height, layout.heading.width / 4) * 0.7;
  const double margin = (layout.heading.height - side) / 2;
  layout.previous = {inside.left + margin, inside.top + margin, side, side};
  layout.next = {inside.Right() - margin - side, inside.top + margin, side, side};
  return layout;
}

Rect MonthView::PreviousButton() const {
  return Measure().previous;
}
Rect MonthView::NextButton() const {
  return Measure().next;
}
Rect MonthView::TodayLine() const {
  return Measure().today;
}

std::optional<Rect> MonthView::DayRectangle(Date day) const {
  const std::int32_t place = day.DayNumber() - FirstShownDay();
  if (place < 0 || place >= kColumns * kWeeks || !IsSelectable(day.DayNumber())) return std::nullopt;
  const Layout layout = Measure();
  return layout.Cell(layout.days, place % kColumns, place / kColumns, kWeeks);
}

std::optional<Date> MonthView::DayAt(Point local) const {
  const Rect days = Measure().days;
  if (!days.Contains(local)) return std::nullopt;
  const int column = std::min(kColumns - 1, static_cast<int>((local.x - days.left) * kColumns / days.width));
  const int week = std::min(kWeeks - 1, static_cast<int>((local.y - days.top) * kWeeks / days.height));
  const std::int32_t day = FirstShownDay() + week * kColumns + column;
  if (!IsSelectable(day)) return std::nullopt;
  return Date::FromDayNumber(day);
}

// The control's font, smaller where the widest text of a row of such cells would not fit.
FontSpec MonthView::FittedFont(const Rect& cell, std::string_view widest, int weight) const {
  FontSpec font = Font().Spec();
  font.weight = weight;
  const double height = Host().LineHeight(font);
  const double width = Host().TextWidth(font, widest);
  double factor = 1;
  if (height > 0) factor = std::min(factor, cell.height / height);
  if (width > 0) factor = std::min(factor, cell.width * kPartOfCellForText / width);
  font.size *= factor;
  return font;
}

void MonthView::Paint(Canvas& canvas) {
  const Rect bounds = LocalBounds();
  const Layout layout = Measure();
  canvas.FillRectangle(bounds, Resolve(month_back_color_));
  PaintHeading(canvas, layout);
  PaintDays(canvas, layout);
  PaintTodayLine(canvas, layout);
  PaintBorder(canvas, Host(), bounds, BorderStyle(), Appearance());
}

void MonthView::PaintHeading(Canvas& canvas, const Layout& layout) const {
  const Region& region = Host().UserRegion();
  canvas.FillRectangle(layout.heading, Resolve(system_color::kActiveTitleBar));
  for (const auto& [place, direction] :
       {std::pair{layout.previous, ArrowDirection::kLeft}, std::pair{layout.next, ArrowDirection::kRight}}) {
    PaintButtonFace(canvas, Host(), place, system_color::kButtonFace, Relief::kRaised);
    PaintArrow(canvas, place, direction, Resolve(system_color::kButtonText));
  }
  const std::string title = region.MonthName(view_month_.Month()) + " " + std::to_string(view_month_.Year());
  const Rect between{layout.previous.Right(), layout.heading.top,
                     std::max(0.0, layout.next.left - layout.previous.Right()), layout.heading.height};
  const FontSpec bold = FittedFont(between, title, kBold);
  canvas.DrawText(between, title, bold, Resolve(system_color::kTitleBarText), HorizontalAlign::kCenter,
                  VerticalAlign::kCenter);

  std::string widest;
  for (int weekday = 0; weekday < kColumns; ++weekday) {
    const std::string& name = region.WeekdayLetter(weekday);
    if (Host().TextWidth(Font().Spec(), name) > Host().TextWidth(Font().Spec(), widest)) widest = name;
  }
  const FontSpec font = FittedFont(layout.Cell(layout.weekdays, 0, 0, 1), widest, Font().Weight());
  for (int column = 0; column < kColumns; ++column) {
    const int weekday = (region.FirstWeekday() + column) % kColumns;
    canvas.DrawText(layout.Cell(layout.weekdays, column, 0, 1), region.WeekdayLetter(weekday), font,
                    Resolve(system_color::kActiveTitleBar), HorizontalAlign::kCenter, VerticalAlign::kCenter);
  }
  const double rule = layout.weekdays.Bottom();
  canvas.DrawLine({layout.weekdays.left, rule}, {layout.weekdays.Right(), rule}, Resolve(ForeColor()),
                  kTwipsPerPixel);
}

void MonthView::PaintDays(Canvas& canvas, const Layout& layout) const {
  const std::int32_t first = FirstShownDay();
  const std::int32_t today = Host().SystemClock().Today().DayNumber();
  const FontSpec font = FittedFont(layout.Cell(layout.days, 0, 0, kWeeks), "88", Font().Weight());
  for (int place = 0; place < kColumns * kWeeks; ++place) {
    if (!IsSelectable(first + place)) continue;
    const Date day = Date::FromDayNumber(first + place);
    const Rect cell = layout.Cell(layout.days, place % kColumns, place / kColumns, kWeeks);
    const bool selected = day == value_;
    const bool in_month = day.Month() == view_month_.Month();
    Rgb color = Resolve(in_month ? ForeColor() : system_color::kGrayText);
    if (!IsOperable()) color = Resolve(system_color::kGrayText);
    if (selected) {
      canvas.FillRectangle(cell.Deflated(kTwipsPerPixel), Resolve(system_color::kActiveTitleBar));
      color = Resolve(system_color::kTitleBarText);
    }
    canvas.DrawText(cell, std::to_string(day.Day()), font, color, HorizontalAlign::kCenter,
                    VerticalAlign::kCenter);
    if (first + place == today) {
      const Rect ring = cell.Deflated(kTwipsPerPixel);
      canvas.RoundedRectangle(ring, std::min(ring.width, ring.height) / 2, std::nullopt, RgbOf(kRing),
                              2 * kTwipsPerPixel);
    }
    if (selected && HasFocus()) canvas.FocusRectangle(cell.Deflated(2 * kTwipsPerPixel));
  }
}

void MonthView::PaintTodayLine(Canvas& canvas, const Layout& layout) const {
  const Region& region = Host().UserRegion();
  const Rect& line = layout.today;
  const Rect cell{line.left, line.top, line.width / kColumns, line.height};
  const Rect ring = cell.Deflated(cell.height * 0.2);
  canvas.RoundedRectangle(ring, std::min(ring.width, ring.height) / 2, std::nullopt, RgbOf(kRing),
                          2 * kTwipsPerPixel);
  const std::string text = region.TodayWord() + ": " + region.ToText(Host().SystemClock().Today());
  const Rect box{cell.Right(), line.top, line.width - cell.width, line.height};
  const FontSpec bold = FittedFont(box, text, kBold);
  canvas.DrawText(box, text, bold, Resolve(ForeColor()), HorizontalAlign::kLeft, VerticalAlign::kCenter);
}

}  // namespace orvendal
