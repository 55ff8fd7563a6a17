#include "adapters/win32/accessible_parts.h"

#include <oleacc.h>

#include "adapters/win32/accessible_control.h"
#include "adapters/win32/accessible_words.h"
#include "adapters/win32/form_accessible.h"
#include "adapters/win32/win32_window_host.h"
#include "platform/forms/barra.h"
#include "platform/forms/ms_flex_grid.h"

namespace orvendal {
namespace {

Point MiddleOf(const Rect& area) {
  return {area.left + area.width / 2, area.top + area.height / 2};
}

Rect OnForm(const Control& control, const Rect& local) {
  const Rect bounds = control.Bounds();
  return local.Moved(bounds.left, bounds.top);
}

Point InControl(const Control& control, Point on_form) {
  const Rect bounds = control.Bounds();
  return {on_form.x - bounds.left, on_form.y - bounds.top};
}

}  // namespace

// Cells.

LONG GridAccessible::NumberOf(const MSFlexGrid& grid, int row, int column) {
  return row * grid.Cols() + column + 1;
}

int GridAccessible::RowOf(LONG child) const {
  return (child - 1) / grid_.Cols();
}
int GridAccessible::ColumnOf(LONG child) const {
  return (child - 1) % grid_.Cols();
}

bool GridAccessible::IsTitle(LONG child) const {
  return RowOf(child) < grid_.FixedRows() || ColumnOf(child) < grid_.FixedCols();
}

bool GridAccessible::HasCursor() const {
  return grid_.Row() < grid_.Rows() && grid_.Col() < grid_.Cols() && grid_.Row() >= grid_.FixedRows();
}

bool GridAccessible::HasChild(LONG child) const {
  return child >= kSelf && child <= static_cast<LONG>(grid_.Rows()) * grid_.Cols();
}

std::vector<LONG> GridAccessible::Children() const {
  std::vector<LONG> listed;
  const auto add_row = [&](int row) {
    for (int column = 0; column < grid_.Cols(); ++column) {
      if (grid_.ColWidth(column) > 0) listed.push_back(NumberOf(grid_, row, column));
    }
  };
  for (int row = 0; row < grid_.FixedRows(); ++row) add_row(row);
  for (int row = grid_.TopRow(); row < grid_.Rows() && grid_.RowIsVisible(row); ++row) add_row(row);
  return listed;
}

AccessibleObject* GridAccessible::Parent() {
  return tree_.Root();
}
LONG GridAccessible::NumberInParent() const {
  return AccessibleNumber(grid_);
}

std::wstring GridAccessible::Name(LONG child) const {
  return Wide(child == kSelf ? AccessibleName(grid_) : ColumnTitle(grid_, ColumnOf(child)));
}

std::optional<std::wstring> GridAccessible::Value(LONG child) const {
  if (child == kSelf) return std::nullopt;
  return Wide(grid_.TextMatrix(RowOf(child), ColumnOf(child)));
}

LONG GridAccessible::Role(LONG child) const {
  if (child == kSelf) return ROLE_SYSTEM_TABLE;
  if (RowOf(child) < grid_.FixedRows()) return ROLE_SYSTEM_COLUMNHEADER;
  return ColumnOf(child) < grid_.FixedCols() ? ROLE_SYSTEM_ROWHEADER : ROLE_SYSTEM_CELL;
}

LONG GridAccessible::State(LONG child) const {
  LONG state = AccessibleState(grid_);
  if (child == kSelf) return state;
  state &= ~(STATE_SYSTEM_FOCUSED | STATE_SYSTEM_FOCUSABLE);
  const int row = RowOf(child), column = ColumnOf(child);
  if (grid_.ColWidth(column) <= 0) {
    state |= STATE_SYSTEM_INVISIBLE;
  } else if (grid_.CellRectangle(row, column).IsEmpty()) {
    state |= STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN;
  }
  if (IsTitle(child)) return state | STATE_SYSTEM_READONLY;
  state |= STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
  if (HasCursor() && row == grid_.Row() && column == grid_.Col()) {
    state |= STATE_SYSTEM_SELECTED;
    if (grid_.HasFocus()) state |= STATE_SYSTEM_FOCUSED;
  }
  return state;
}

RECT GridAccessible::Place(LONG child) const {
  if (!grid_.IsShown()) return {};
  if (child == kSelf) return tree_.PixelsOf(grid_.Bounds());
  const Rect cell = grid_.CellRectangle(RowOf(child), ColumnOf(child));
  return cell.IsEmpty() ? RECT{} : tree_.PixelsOf(OnForm(grid_, cell));
}

std::optional<LONG> GridAccessible::Focus() const {
  if (!grid_.HasFocus()) return std::nullopt;
  return HasCursor() ? NumberOf(grid_, grid_.Row(), grid_.Col()) : kSelf;
}

std::vector<LONG> GridAccessible::Selection() const {
  if (!HasCursor()) return {};
  return {NumberOf(grid_, grid_.Row(), grid_.Col())};
}

LONG GridAccessible::ChildAt(POINT inside) const {
  int row = 0, column = 0;
  const Point local = InControl(grid_, tree_.PlaceOnForm(inside));
  return grid_.CellAt(local, row, column) ? NumberOf(grid_, row, column) : kSelf;
}

std::optional<LONG> GridAccessible::Neighbour(LONG child, LONG direction) const {
  if (child == kSelf) return std::nullopt;
  int row = RowOf(child), column = ColumnOf(child);
  const int down = direction == NAVDIR_DOWN ? 1 : direction == NAVDIR_UP ? -1 : 0;
  const int right = direction == NAVDIR_RIGHT ? 1 : direction == NAVDIR_LEFT ? -1 : 0;
  if (down == 0 && right == 0) return std::nullopt;
  do {
    row += down;
    column += right;
    if (row < 0 || row >= grid_.Rows() || column < 0 || column >= grid_.Cols()) return std::nullopt;
  } while (grid_.ColWidth(column) <= 0);
  return NumberOf(grid_, row, column);
}

std::wstring GridAccessible::ActionName(LONG child) const {
  if (child == kSelf || IsTitle(child)) return {};
  const AccessibleWords& words = AccessibleWordsOf(tree_.Host().UserRegion());
  return grid_.OnDblClick ? words.edit : words.choose;
}

// As by hand, so that everything follows that follows a hand.
void GridAccessible::ClickCell(LONG child, bool twice) {
  Form& form = tree_.TheForm();
  if (!HasChild(child) || !grid_.IsOperable() || !tree_.Host().TakesInput(form)) return;
  const int row = RowOf(child), column = ColumnOf(child);
  if (grid_.ColWidth(column) <= 0) return;
  const ObjectRef keep = form.shared_from_this();
  if (grid_.CellRectangle(row, column).IsEmpty()) grid_.TopRow(row);
  if (form.IsLoaded() && grid_.CellRectangle(row, column).IsEmpty()) grid_.LeftCol(column);
  if (!form.IsLoaded() || grid_.CellRectangle(row, column).IsEmpty()) return;
  const Point middle = MiddleOf(OnForm(grid_, grid_.CellRectangle(row, column)));
  if (form.ControlAt(middle) == &grid_) tree_.Click(middle, twice);
}

std::function<void()> GridAccessible::Action(LONG child) {
  if (child == kSelf || IsTitle(child) || !grid_.IsOperable()) return {};
  return [this, child] { ClickCell(child, static_cast<bool>(grid_.OnDblClick)); };
}

std::function<void()> GridAccessible::FocusAction(LONG child) {
  if (!grid_.IsFocusable()) return {};
  if (child != kSelf) {
    if (IsTitle(child)) return {};
    return [this, child] { ClickCell(child, false); };
  }
  return [this] {
    if (grid_.IsFocusable() && tree_.Host().TakesInput(tree_.TheForm())) grid_.SetFocus();
  };
}

// The buttons of the title bar.

AccessibleObject* TitleBarAccessible::Parent() {
  return tree_.Root();
}
LONG TitleBarAccessible::NumberInParent() const {
  return AccessibleNumber(bar_);
}

Rect TitleBarAccessible::PlaceOnForm(LONG child) const {
  if (child == kSelf) return bar_.Bounds();
  return OnForm(bar_, child == kMinimize ? bar_.MinimizeButton() : bar_.CloseButton());
}

std::wstring TitleBarAccessible::Name(LONG child) const {
  const AccessibleWords& words = AccessibleWordsOf(tree_.Host().UserRegion());
  if (child == kMinimize) return words.minimize;
  if (child == kClose) return words.close;
  return Wide(AccessibleName(bar_));
}

LONG TitleBarAccessible::Role(LONG child) const {
  return child == kSelf ? ROLE_SYSTEM_TITLEBAR : ROLE_SYSTEM_PUSHBUTTON;
}

LONG TitleBarAccessible::State(LONG /*child*/) const {
  return AccessibleState(bar_);
}

RECT TitleBarAccessible::Place(LONG child) const {
  return bar_.IsShown() ? tree_.PixelsOf(PlaceOnForm(child)) : RECT{};
}

LONG TitleBarAccessible::ChildAt(POINT inside) const {
  const Point place = tree_.PlaceOnForm(inside);
  for (const LONG child : {kMinimize, kClose}) {
    if (PlaceOnForm(child).Contains(place)) return child;
  }
  return kSelf;
}

std::wstring TitleBarAccessible::ActionName(LONG child) const {
  return child == kSelf ? std::wstring() : AccessibleWordsOf(tree_.Host().UserRegion()).press;
}

std::function<void()> TitleBarAccessible::Action(LONG child) {
  if (child == kSelf || !bar_.IsOperable()) return {};
  return [this, child] { tree_.Click(MiddleOf(PlaceOnForm(child)), false); };
}

}  // namespace orvendal
