#include "adapters/win32/accessible_events.h"

#include <oleacc.h>

#include "adapters/win32/accessible_control.h"
#include "adapters/win32/accessible_parts.h"
#include "adapters/win32/form_accessible.h"
#include "platform/forms/form.h"
#include "platform/forms/ms_flex_grid.h"

namespace orvendal {

AccessibleEvents::Spot AccessibleEvents::SpotOf(const Control& control) {
  const LONG number = AccessibleNumber(control);
  if (control.Kind() != ControlKind::kMSFlexGrid) return {OBJID_CLIENT, number};
  const auto& grid = static_cast<const MSFlexGrid&>(control);
  if (grid.Row() >= grid.Rows() || grid.Col() >= grid.Cols()) return {number, CHILDID_SELF};
  return {number, GridAccessible::NumberOf(grid, grid.Row(), grid.Col())};
}

void AccessibleEvents::AnnounceValue(HWND window, const Spot& spot, const std::string& value) {
  const auto [known, is_new] = values_.try_emplace(spot, value);
  if (is_new || known->second == value) return;
  known->second = value;
  NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window, spot.object, spot.child);
}

void AccessibleEvents::Announce(const Form& form, HWND window) {
  if (window == nullptr || !form.Visible()) return;
  if (!IsWinEventHookInstalled(EVENT_OBJECT_FOCUS) && !IsWinEventHookInstalled(EVENT_OBJECT_VALUECHANGE)) {
    values_.clear();
    return;
  }
  const Control* active = form.ActiveControl();
  if (active != nullptr && GetFocus() == window) {
    const Spot spot = SpotOf(*active);
    if (focus_ != spot) {
      focus_ = spot;
      NotifyWinEvent(EVENT_OBJECT_FOCUS, window, spot.object, spot.child);
    }
  }
  for (Control* control : form.Controls()) {
    if (const std::optional<std::string> value = AccessibleValue(*control)) {
      AnnounceValue(window, SpotOf(*control), *value);
    }
  }
  if (active == nullptr || active->Kind() != ControlKind::kMSFlexGrid) return;
  const auto& grid = static_cast<const MSFlexGrid&>(*active);
  const Spot spot = SpotOf(grid);
  if (spot.child == CHILDID_SELF) return;
  if (cell_ && cell_ != spot) values_.erase(*cell_);
  cell_ = spot;
  AnnounceValue(window, spot, grid.TextMatrix(grid.Row(), grid.Col()));
}

}  // namespace orvendal
