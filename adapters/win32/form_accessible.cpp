#include "adapters/win32/form_accessible.h"

#include <oleacc.h>

#include <algorithm>
#include <numeric>

#include "adapters/win32/accessible_control.h"
#include "adapters/win32/accessible_object.h"
#include "adapters/win32/accessible_parts.h"
#include "adapters/win32/accessible_words.h"
#include "adapters/win32/win32_form_window.h"
#include "adapters/win32/win32_window_host.h"
#include "platform/forms/barra.h"
#include "platform/forms/ms_flex_grid.h"

namespace orvendal {

LONG AccessibleNumber(const Control& control) {
  const std::vector<Control*>& all = control.Parent().Controls();
  return static_cast<LONG>(std::find(all.begin(), all.end(), &control) - all.begin()) + 1;
}

FormAccessible::FormAccessible(Form& form, Win32FormWindow& window, Win32WindowHost& host)
    : form_(form), window_(window), host_(host), root_(new AccessibleObject(*this, *this)) {}

FormAccessible::~FormAccessible() {
  for (const auto& [number, object] : objects_) object->Disconnect();
  root_->Disconnect();
}

HWND FormAccessible::Window() const {
  return window_.Handle();
}
RECT FormAccessible::PixelsOf(const Rect& area) const {
  return window_.PixelsOf(area);
}
Point FormAccessible::PlaceOnForm(POINT inside) const {
  return window_.PlaceOnForm(inside);
}

std::optional<LRESULT> FormAccessible::Answer(LONG object, WPARAM wparam) {
  AccessibleObject* asked = object == OBJID_CLIENT ? root_ : HasChild(object) ? ObjectOf(object) : nullptr;
  if (asked == nullptr) return std::nullopt;
  const auto handed_over = SystemFunction<decltype(&LresultFromObject)>(L"oleacc.dll", "LresultFromObject");
  if (handed_over == nullptr) return std::nullopt;
  return handed_over(__uuidof(IAccessible), wparam, static_cast<IAccessible*>(asked));
}

void FormAccessible::PerformLater(std::function<void()> action) {
  actions_.push_back(std::move(action));
  PostMessageW(Window(), kPerformMessage, 0, 0);
}

void FormAccessible::Perform() {
  if (actions_.empty()) return;
  const std::function<void()> action = std::move(actions_.front());
  actions_.pop_front();
  host_.Guard(action);
}

void FormAccessible::Click(Point place, bool twice) {
  Form& form = form_;
  const ObjectRef keep = form.shared_from_this();
  form.MousePress(place, mouse_button::kLeft, 0, false);
  form.MouseRelease(place, mouse_button::kLeft, 0);
  if (!twice || !form.IsLoaded()) return;
  form.MousePress(place, mouse_button::kLeft, 0, true);
  form.MouseRelease(place, mouse_button::kLeft, 0);
}

bool FormAccessible::HasChild(LONG child) const {
  return child >= kSelf && static_cast<std::size_t>(child) <= form_.Controls().size();
}

std::vector<LONG> FormAccessible::Children() const {
  std::vector<LONG> all(form_.Controls().size());
  std::iota(all.begin(), all.end(), 1);
  return all;
}

AccessibleObject* FormAccessible::ObjectOf(LONG child) {
  if (child == kSelf) return root_;
  const auto found = objects_.find(child);
  if (found != objects_.end()) return found->second;
  Control& control = ControlOf(child);
  std::unique_ptr<AccessibleNode> node;
  if (control.Kind() == ControlKind::kMSFlexGrid) {
    node = std::make_unique<GridAccessible>(*this, static_cast<MSFlexGrid&>(control));
  } else if (control.Kind() == ControlKind::kBarra) {
    node = std::make_unique<TitleBarAccessible>(*this, static_cast<Barra&>(control));
  } else {
    return nullptr;
  }
  auto* object = new AccessibleObject(*this, std::move(node));
  objects_[child] = object;
  return object;
}

std::wstring FormAccessible::Name(LONG child) const {
  if (child == kSelf) return Wide(form_.Caption().empty() ? form_.Name() : form_.Caption());
  return Wide(AccessibleName(ControlOf(child)));
}

std::optional<std::wstring> FormAccessible::Value(LONG child) const {
  if (child == kSelf) return std::nullopt;
  const std::optional<std::string> value = AccessibleValue(ControlOf(child));
  if (!value) return std::nullopt;
  return Wide(*value);
}

LONG FormAccessible::Role(LONG child) const {
  return child == kSelf ? ROLE_SYSTEM_CLIENT : AccessibleRole(ControlOf(child));
}

LONG FormAccessible::State(LONG child) const {
  if (child != kSelf) return AccessibleState(ControlOf(child));
  LONG state = STATE_SYSTEM_FOCUSABLE;
  if (!form_.Visible()) state |= STATE_SYSTEM_INVISIBLE;
  if (!host_.TakesInput(form_)) state |= STATE_SYSTEM_UNAVAILABLE;
  if (GetFocus() == Window() && form_.ActiveControl() == nullptr) state |= STATE_SYSTEM_FOCUSED;
  return state;
}

RECT FormAccessible::Place(LONG child) const {
  if (child == kSelf) return PixelsOf({0, 0, form_.Width(), form_.Height()});
  const Control& control = ControlOf(child);
  return control.IsShown() ? PixelsOf(control.Bounds()) : RECT{};
}

std::optional<LONG> FormAccessible::Focus() const {
  if (GetFocus() != Window()) return std::nullopt;
  return form_.ActiveControl() == nullptr ? kSelf : AccessibleNumber(*form_.ActiveControl());
}

std::vector<LONG> FormAccessible::Selection() const {
  return {};
}

LONG FormAccessible::ChildAt(POINT inside) const {
  const Control* found = AccessibleControlAt(form_, PlaceOnForm(inside));
  return found == nullptr ? kSelf : AccessibleNumber(*found);
}

std::wstring FormAccessible::ActionName(LONG child) const {
  if (child == kSelf || !IsPressable(ControlOf(child))) return {};
  return AccessibleWordsOf(host_.UserRegion()).press;
}

std::function<void()> FormAccessible::Action(LONG child) {
  if (child == kSelf || !IsPressable(ControlOf(child)) || !ControlOf(child).IsOperable()) return {};
  return [this, &control = ControlOf(child)] {
    const Rect bounds = control.Bounds();
    const Point middle{bounds.left + bounds.width / 2, bounds.top + bounds.height / 2};
    const Control* hit = form_.ControlAt(middle);
    // The members of a control array lie on each other and mean the same.
    if (hit != nullptr && hit->Name() == control.Name()) Click(middle, false);
  };
}

std::function<void()> FormAccessible::FocusAction(LONG child) {
  if (child == kSelf || !ControlOf(child).IsFocusable()) return {};
  return [this, &control = ControlOf(child)] {
    if (form_.Visible() && control.IsFocusable() && host_.TakesInput(form_)) control.SetFocus();
  };
}

}  // namespace orvendal
