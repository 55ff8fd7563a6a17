#include <cmath>

#include "platform/forms/form.h"

namespace orvendal {
namespace {

constexpr std::size_t kMostDirtyRectangles = 12;

// Whether two areas are together a rectangle, or miss it by less than anybody sees.
bool FillTheirUnion(const Rect& one, const Rect& other) {
  constexpr double kNothing = 0.5;
  const auto same = [](double a, double b) { return std::abs(a - b) < kNothing; };
  const auto touch = [](double from, double to, double other_from, double other_to) {
    return from < other_to + kNothing && other_from < to + kNothing;
  };
  if (same(one.top, other.top) && same(one.height, other.height)) {
    return touch(one.left, one.Right(), other.left, other.Right());
  }
  return same(one.left, other.left) && same(one.width, other.width) &&
         touch(one.top, one.Bottom(), other.top, other.Bottom());
}

Rect ClientArea(const Control& control) {
  const Point inside = control.ClientOrigin();
  return {inside.x, inside.y, control.Width() - 2 * inside.x, control.Height() - 2 * inside.y};
}

}  // namespace

bool Form::InvalidateArea(const Rect& area) {
  if (!visible_ || !window_) return false;
  Rect seen = area.Intersection({0, 0, Width(), Height()});
  if (seen.IsEmpty()) return false;
  for (const Rect& dirty : dirty_) {
    if (dirty.Intersection(seen) == seen) return true;
  }
  // The cells of a row are one area.
  for (std::size_t i = 0; i < dirty_.size();) {
    if (!FillTheirUnion(dirty_[i], seen)) {
      ++i;
      continue;
    }
    seen = seen.Union(dirty_[i]);
    dirty_.erase(dirty_.begin() + static_cast<std::ptrdiff_t>(i));
    i = 0;
  }
  if (dirty_.size() >= kMostDirtyRectangles) {
    for (const Rect& dirty : dirty_) seen = seen.Union(dirty);
    dirty_.clear();
  }
  dirty_.push_back(seen);
  window_->RequestPaint(seen);
  return true;
}

std::vector<Rect> Form::TakeDirtyRectangles() {
  std::vector<Rect> taken;
  taken.swap(dirty_);
  ++paint_round_;
  return taken;
}

void Form::Paint(Canvas& canvas, const Rect& area) {
  canvas.Push({0, 0}, area);
  if (HidingChild(canvas, nullptr, {}) == nullptr) canvas.FillRectangle(area, host_.Resolve(back_color_));
  PaintChildren(canvas, nullptr, area);
  canvas.Pop();
}

// The front child of `container` that hides all that the canvas could paint now: with it, the container and
// the children behind need not be painted. `client` is the corner from which children count.
const Control* Form::HidingChild(const Canvas& canvas, const Control* container, Point client) const {
  for (const Control* control : controls_) {
    if (control->Container() != container || control->IsLightweight() || !control->Visible()) continue;
    const Point corner{client.x + control->Left(), client.y + control->Top()};
    if (canvas.IsWithin(control->OpaqueArea().Moved(corner.x, corner.y))) return control;
  }
  return nullptr;
}

void Form::PaintChildren(Canvas& canvas, const Control* container, const Rect& area) {
  const Control* const hiding = HidingChild(canvas, container, {});
  bool hidden = hiding != nullptr;
  // Lightweight controls belong to the surface and lie behind the others; of each sort the first made is in
  // front.
  for (const bool lightweight : {true, false}) {
    for (auto it = controls_.rbegin(); it != controls_.rend(); ++it) {
      Control& control = **it;
      if (&control == hiding) hidden = false;
      if (hidden || control.Container() != container || control.IsLightweight() != lightweight ||
          !control.Visible()) {
        continue;
      }
      const Rect bounds{control.Left(), control.Top(), control.Width(), control.Height()};
      if (bounds.IsEmpty() || !bounds.Intersects(area)) continue;
      canvas.Push({bounds.left, bounds.top}, bounds);
      PaintControl(canvas, control, area.Moved(-bounds.left, -bounds.top));
      canvas.Pop();
    }
  }
}

// With its children. `area` counts from the control's corner.
void Form::PaintControl(Canvas& canvas, Control& control, const Rect& area) {
  if (control.IsLightweight()) {
    control.Paint(canvas);
    return;
  }
  const Rect client = ClientArea(control);
  const bool is_hidden =
      canvas.IsWithin(client) && HidingChild(canvas, &control, {client.left, client.top}) != nullptr;
  if (!is_hidden) PaintAroundChild(canvas, control, client);
  canvas.Push({client.left, client.top}, client);
  PaintChildren(canvas, &control, area.Moved(-client.left, -client.top));
  canvas.Pop();
}

// What a child hides of its container is not painted, if it is the larger part.
void Form::PaintAroundChild(Canvas& canvas, Control& control, const Rect& client) const {
  Rect hidden;
  for (const Control* child : controls_) {
    if (child->Container() != &control || child->IsLightweight() || !child->Visible()) continue;
    const Rect opaque = child->OpaqueArea()
                            .Moved(client.left + child->Left(), client.top + child->Top())
                            .Intersection(client);
    if (opaque.width * opaque.height > hidden.width * hidden.height) hidden = opaque;
  }
  const bool is_larger_part = 2 * hidden.width * hidden.height > control.Width() * control.Height();
  for (const Rect& part : control.LocalBounds().Around(is_larger_part ? hidden : Rect{})) {
    if (part.IsEmpty() || !canvas.ShowsAnyOf(part)) continue;
    canvas.Push({0, 0}, part);
    control.Paint(canvas);
    canvas.Pop();
  }
}

Control* Form::ControlAt(Point position) const {
  std::vector<Control*> hits;
  CollectAt(nullptr, position, hits);
  return hits.empty() ? nullptr : hits.front();
}

// All controls at that place that the mouse can reach, the front one first. `position` counts from the inside
// of `container`. A disabled window lets its container have the mouse; a disabled label lets through what
// lies behind.
void Form::CollectAt(const Control* container, Point position, std::vector<Control*>& hits) const {
  for (const bool lightweight : {false, true}) {
    for (Control* control : controls_) {
      if (control->Container() != container || control->IsLightweight() != lightweight ||
          !control->TakesMouse() || !control->Visible() || !control->Enabled()) {
        continue;
      }
      const Rect bounds{control->Left(), control->Top(), control->Width(), control->Height()};
      if (!bounds.Contains(position)) continue;
      if (!lightweight) {
        const Rect client = ClientArea(*control).Moved(bounds.left, bounds.top);
        if (client.Contains(position)) {
          CollectAt(control, {position.x - client.left, position.y - client.top}, hits);
        }
      }
      hits.push_back(control);
    }
  }
}

}  // namespace orvendal
