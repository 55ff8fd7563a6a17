#include "platform/forms/form.h"

namespace orvendal {
namespace {

constexpr std::size_t kMostDirtyRectangles = 12;

Rect ClientArea(const Control& control) {
  const Point inside = control.ClientOrigin();
  return {inside.x, inside.y, control.Width() - 2 * inside.x, control.Height() - 2 * inside.y};
}

}  // namespace

void Form::InvalidateArea(const Rect& area) {
  if (!visible_ || !window_) return;
  const Rect seen = area.Intersection({0, 0, Width(), Height()});
  if (seen.IsEmpty()) return;
  for (const Rect& dirty : dirty_) {
    if (dirty.Intersection(seen) == seen) return;
  }
  if (dirty_.size() >= kMostDirtyRectangles) {
    Rect all = seen;
    for (const Rect& dirty : dirty_) all = all.Union(dirty);
    dirty_ = {all};
  } else {
    dirty_.push_back(seen);
  }
  window_->RequestPaint(dirty_.back());
}

std::vector<Rect> Form::TakeDirtyRectangles() {
  std::vector<Rect> taken;
  taken.swap(dirty_);
  return taken;
}

void Form::Paint(Canvas& canvas, const Rect& area) {
  canvas.Push({0, 0}, area);
  canvas.FillRectangle(area, host_.Resolve(back_color_));
  PaintChildren(canvas, nullptr, area);
  canvas.Pop();
}

void Form::PaintChildren(Canvas& canvas, const Control* container, const Rect& area) {
  // Lightweight controls belong to the surface and lie behind the others; of each sort the first made is in
  // front.
  for (const bool lightweight : {true, false}) {
    for (auto it = controls_.rbegin(); it != controls_.rend(); ++it) {
      Control& control = **it;
      if (control.Container() != container || control.IsLightweight() != lightweight || !control.Visible())
        continue;
      const Rect bounds{control.Left(), control.Top(), control.Width(), control.Height()};
      if (bounds.IsEmpty() || !bounds.Intersects(area)) continue;
      canvas.Push({bounds.left, bounds.top}, bounds);
      control.Paint(canvas);
      if (!lightweight) {
        const Rect client = ClientArea(control);
        canvas.Push({client.left, client.top}, client);
        PaintChildren(canvas, &control, area.Moved(-bounds.left - client.left, -bounds.top - client.top));
        canvas.Pop();
      }
      canvas.Pop();
    }
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
