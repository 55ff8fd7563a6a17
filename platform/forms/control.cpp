#include "platform/forms/control.h"

#include "platform/base/runtime_error.h"
#include "platform/forms/form.h"

namespace orvendal {
namespace {

// A label writes its text anew when the part of it changes that no window in front covers.
void RefreshLabelsBehind(const Control& window, const Rect& place) {
  if (window.IsLightweight() || !window.Parent().Visible()) return;
  for (Control* other : window.Parent().Controls()) {
    if (other->Kind() != ControlKind::kLabel || other->Container() != window.Container()) continue;
    if (place.Intersects({other->Left(), other->Top(), other->Width(), other->Height()})) other->Refresh();
  }
}

}  // namespace

Control::Control(Form& form, Control* container, std::string_view name, int index)
    : form_(form), container_(container), name_(name), index_(index), font_([this] { FontChanged(); }) {
  form_.Register(this);
}

Control::~Control() = default;

std::string Control::FullName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::InitializeDefaults() {
  RestoreDefaults();
}

void Control::RestoreDefaults() {
  properties_ = DefaultProperties();
  font_.Restore();
}

WindowHost& Control::Host() const {
  return form_.Host();
}

Rgb Control::Resolve(ColorWord color) const {
  return Host().Resolve(color);
}

ControlFont& Control::Font() {
  if (!HasFont()) throw RuntimeError(error_number::kNoSuchMember);
  return font_;
}

const ControlFont& Control::Font() const {
  if (!HasFont()) throw RuntimeError(error_number::kNoSuchMember);
  return font_;
}

void Control::Left(double twips) {
  Move(twips, Top(), Width(), Height());
}
void Control::Top(double twips) {
  Move(Left(), twips, Width(), Height());
}
void Control::Width(double twips) {
  Move(Left(), Top(), twips, Height());
}
void Control::Height(double twips) {
  Move(Left(), Top(), Width(), twips);
}
void Control::Move(double left, double top, double width) {
  Move(left, top, width, Height());
}

void Control::Move(double left, double top, double width, double height) {
  if (width < 0 || height < 0) throw RuntimeError(error_number::kInvalidPropertyValue);
  if (properties_.align == AlignMode::kNone) {
    SetBounds({left, top, width, height});
    return;
  }
  SetBounds({Left(), Top(), Width(), height});
  form_.LayOutAligned();
}

void Control::PlaceAligned(double left, double top, double width) {
  SetBounds({left, top, width, Height()});
}

void Control::SetBounds(const Rect& bounds) {
  const Rect old{Left(), Top(), Width(), Height()};
  if (bounds == old) return;
  Invalidate();
  properties_.left = bounds.left;
  properties_.top = bounds.top;
  properties_.width = bounds.width;
  properties_.height = bounds.height;
  if (bounds.width != old.width || bounds.height != old.height) SizeChanged();
  Invalidate();
  RefreshLabelsBehind(*this, old);
  RefreshLabelsBehind(*this, bounds);
}

void Control::Visible(bool visible) {
  if (visible == properties_.visible) return;
  Invalidate();
  properties_.visible = visible;
  Invalidate();
  RefreshLabelsBehind(*this, {Left(), Top(), Width(), Height()});
  if (properties_.align != AlignMode::kNone) form_.LayOutAligned();
  form_.LeaveIneligible();
}

void Control::Enabled(bool enabled) {
  if (enabled == properties_.enabled) return;
  properties_.enabled = enabled;
  Invalidate();
  form_.LeaveIneligible();
}

void Control::BackColor(ColorWord color) {
  if (color == properties_.back_color) return;
  properties_.back_color = color;
  Invalidate();
}

void Control::ForeColor(ColorWord color) {
  if (color == properties_.fore_color) return;
  properties_.fore_color = color;
  Invalidate();
}

void Control::Appearance(enum Appearance appearance) {
  properties_.appearance = appearance;
  Invalidate();
}

void Control::BorderStyle(int style) {
  properties_.border_style = style;
  Invalidate();
}

void Control::Align(AlignMode align) {
  properties_.align = align;
  form_.LayOutAligned();
}

void Control::SetFocus() {
  if (!form_.Visible() || !IsFocusable()) throw RuntimeError(error_number::kInvalidProcedureCall);
  form_.MoveFocus(this);
}

bool Control::HasFocus() const {
  return form_.ActiveControl() == this;
}

void Control::Refresh() {
  Invalidate();
}

bool Control::IsShown() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->properties_.visible) return false;
  }
  return true;
}

bool Control::IsOperable() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->properties_.visible || !control->properties_.enabled) return false;
  }
  return true;
}

Rect Control::Bounds() const {
  Rect bounds{Left(), Top(), Width(), Height()};
  for (const Control* outer = container_; outer != nullptr; outer = outer->container_) {
    const Point inside = outer->ClientOrigin();
    bounds = bounds.Moved(outer->Left() + inside.x, outer->Top() + inside.y);
  }
  return bounds;
}

void Control::Invalidate() {
  if (RequestPaint(LocalBounds())) round_of_whole_ = form_.paint_round_;
}

void Control::Invalidate(const Rect& local) {
  RequestPaint(local);
}

bool Control::RequestPaint(const Rect& local) {
  if (!form_.Visible() || !IsShown()) return false;
  const Rect bounds = Bounds();
  return form_.InvalidateArea(local.Moved(bounds.left, bounds.top));
}

bool Control::WaitsWhole() const {
  return round_of_whole_ == form_.paint_round_;
}

CursorShape Control::Cursor(Point) const {
  return CursorShape::kArrow;
}

}  // namespace orvendal
