#include "adapters/headless/robot.h"

#include <cctype>
#include <stdexcept>

#include "platform/base/text.h"
#include "platform/forms/month_view.h"
#include "platform/forms/ms_flex_grid.h"

namespace orvendal {
namespace {

// Milliseconds.
constexpr int kPause = 500;
constexpr int kBetweenKeys = 10;

constexpr double kInsideBorder = 4 * kTwipsPerPixel;

// Punctuation has key codes of its own: the characters' numbers are those of arrows and other keys.
int KeyCodeOf(char32_t character) {
  constexpr int kComma = 188;
  constexpr int kMinus = 189;
  constexpr int kPeriod = 190;
  constexpr int kOther = 231;
  if (character == U' ') return key::kSpace;
  if (character == U',') return kComma;
  if (character == U'-') return kMinus;
  if (character == U'.') return kPeriod;
  if (character < 128 && std::isalnum(static_cast<int>(character)) != 0)
    return std::toupper(static_cast<int>(character));
  return kOther;
}

}  // namespace

Control& Robot::Find(std::string_view name) const {
  if (Control* control = form_.FindControl(name)) return *control;
  if (Control* area = form_.FindControl(std::string(name) + "(1)")) return *area;
  throw std::invalid_argument("there is no control " + std::string(name));
}

Robot::Reach Robot::ReachOf(const Control& control, Point position) const {
  if (!control.IsShown()) return {Obstacle::kHidden, nullptr};
  if (!control.IsOperable()) return {Obstacle::kDisabled, nullptr};
  const Control* hit = form_.ControlAt(position);
  const bool same_array = hit != nullptr && control.Index() >= 0 && hit->Name() == control.Name();
  if (hit == &control || same_array) return {};
  const bool inside = Rect{0, 0, form_.Width(), form_.Height()}.Contains(position);
  return {inside ? Obstacle::kCovered : Obstacle::kOutside, hit};
}

std::string Robot::WhyUnreachable(const Control& control, Point position) const {
  const Reach reach = ReachOf(control, position);
  switch (reach.obstacle) {
    case Obstacle::kNone:
      return {};
    case Obstacle::kHidden:
      return control.FullName() + " is hidden";
    case Obstacle::kDisabled:
      return control.FullName() + " is disabled";
    case Obstacle::kOutside:
      return control.FullName() + " lies outside the form";
    case Obstacle::kCovered:
      break;
  }
  return control.FullName() + " is covered" + (reach.by != nullptr ? " by " + reach.by->FullName() : "");
}

Point Robot::MiddleOf(const Control& control) const {
  const Rect bounds = control.Bounds();
  return {bounds.left + bounds.width / 2, bounds.top + bounds.height / 2};
}

void Robot::Press(Point position, int button, int shift) {
  input_.MousePress(form_, position, button, shift, false);
}
void Robot::Release(Point position, int button, int shift) {
  input_.MouseRelease(form_, position, button, shift);
}

void Robot::ClickAt(Point position) {
  input_.MousePress(form_, position, mouse_button::kLeft, 0, false);
  input_.MouseRelease(form_, position, mouse_button::kLeft, 0);
}

void Robot::DoubleClickAt(Point position) {
  ClickAt(position);
  input_.MousePress(form_, position, mouse_button::kLeft, 0, true);
  input_.MouseRelease(form_, position, mouse_button::kLeft, 0);
}

void Robot::Click(const Control& control) {
  const Point middle = MiddleOf(control);
  const std::string why = WhyUnreachable(control, middle);
  if (!why.empty()) throw std::invalid_argument(why);
  ClickAt(middle);
}

void Robot::DoubleClick(const Control& control) {
  const Point middle = MiddleOf(control);
  const std::string why = WhyUnreachable(control, middle);
  if (!why.empty()) throw std::invalid_argument(why);
  DoubleClickAt(middle);
}

Point Robot::CellPosition(MSFlexGrid& grid, int row, int column) const {
  if (row < 0 || row >= grid.Rows() || column < 0 || column >= grid.Cols()) {
    throw std::invalid_argument(grid.FullName() + " has no cell " + std::to_string(row) + " " +
                                std::to_string(column));
  }
  if (grid.ColWidth(column) == 0) {
    throw std::invalid_argument("column " + std::to_string(column) + " of " + grid.FullName() + " is hidden");
  }
  // What takes no input does not scroll either; its middle is out of reach for the same reason as the cell.
  if (!grid.IsOperable()) return MiddleOf(grid);
  // A row out of view is scrolled to with the wheel, over the titles; one that shows in part is not.
  const Rect bounds = grid.Bounds();
  const Point titles{bounds.left + kInsideBorder, bounds.top + kInsideBorder};
  for (int turn = 0; turn <= grid.Rows() && grid.CellRectangle(row, column).IsEmpty(); ++turn) {
    const int top = grid.TopRow();
    form_.MouseWheel(titles, row < top ? -1 : 1);
    if (grid.TopRow() == top) break;
  }
  const Rect cell = grid.CellRectangle(row, column);
  if (cell.IsEmpty()) throw std::invalid_argument("that cell of " + grid.FullName() + " is out of view");
  return {bounds.left + cell.left + cell.width / 2, bounds.top + cell.top + cell.height / 2};
}

void Robot::ClickCell(MSFlexGrid& grid, int row, int column) {
  const Point position = CellPosition(grid, row, column);
  const std::string why = WhyUnreachable(grid, position);
  if (!why.empty()) throw std::invalid_argument(why);
  ClickAt(position);
}

void Robot::DoubleClickCell(MSFlexGrid& grid, int row, int column) {
  const Point position = CellPosition(grid, row, column);
  const std::string why = WhyUnreachable(grid, position);
  if (!why.empty()) throw std::invalid_argument(why);
  DoubleClickAt(position);
}

void Robot::ClickDay(MonthView& calendar, Date day) {
  if (!calendar.IsOperable()) throw std::invalid_argument(calendar.FullName() + " is not open");
  const Rect bounds = calendar.Bounds();
  const auto middle = [&bounds](const Rect& place) {
    return Point{bounds.left + place.left + place.width / 2, bounds.top + place.top + place.height / 2};
  };
  const auto month_of = [](Date date) { return date.Year() * 12 + date.Month(); };
  int distance = month_of(day) - month_of(calendar.ViewMonth());
  while (distance != 0) {
    ClickAt(middle(distance < 0 ? calendar.PreviousButton() : calendar.NextButton()));
    const int left = month_of(day) - month_of(calendar.ViewMonth());
    if (left == distance) throw std::invalid_argument("the calendar does not reach that day");
    distance = left;
  }
  const std::optional<Rect> place = calendar.DayRectangle(day);
  if (!place) throw std::invalid_argument("the calendar does not show that day");
  ClickAt(middle(*place));
}

void Robot::Wait(int milliseconds) const {
  WindowHost& host = form_.Host();
  host.InputTime(host.InputTime() + static_cast<std::uint64_t>(milliseconds));
}

char32_t Robot::CharacterOf(int key_code, int shift) {
  if (key_code == key::kReturn || key_code == key::kEscape || key_code == key::kBack) {
    return static_cast<char32_t>(key_code);
  }
  const bool control = (shift & shift_mask::kControl) != 0;
  if (control && key_code >= 'A' && key_code <= 'Z') return static_cast<char32_t>(key_code - 'A' + 1);
  return 0;
}

void Robot::Key(int key_code, int shift) {
  KeyAfter(kPause, key_code, shift);
}

void Robot::KeyAfter(int milliseconds, int key_code, int shift, std::optional<char32_t> character) {
  Wait(milliseconds);
  input_.Key(form_, key_code, shift, character.value_or(CharacterOf(key_code, shift)));
}

void Robot::Type(std::string_view text) {
  TypeAfter(kPause + kBetweenKeys, kBetweenKeys, text);
}

void Robot::Write(std::string_view text) {
  TypeAfter(kPause, kPause, text);
}

void Robot::TypeAfter(int first, int between, std::string_view text) {
  int pause = first;
  for (std::size_t offset = 0; offset < text.size(); pause = between) {
    const char32_t character = NextCharacter(text, offset);
    if (character == U'\n') {
      KeyAfter(pause, key::kReturn, 0);
    } else if (character == U'\t') {
      KeyAfter(pause, key::kTab, 0);
    } else {
      KeyAfter(pause, KeyCodeOf(character), 0, character);
    }
  }
}

}  // namespace orvendal
