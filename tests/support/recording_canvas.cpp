#include "tests/support/recording_canvas.h"

#include <cmath>

namespace orvendal {

std::vector<std::string> RecordingCanvas::Texts() const {
  std::vector<std::string> texts;
  for (const Operation& operation : operations_) {
    if (operation.kind == "text") texts.push_back(operation.text);
  }
  return texts;
}

Rgb RecordingCanvas::FillAt(Point position) const {
  for (auto it = operations_.rbegin(); it != operations_.rend(); ++it) {
    const bool fills = it->kind == "fill" || it->kind == "rounded";
    if (fills && it->area.Contains(position)) return it->color;
  }
  return {};
}

void RecordingCanvas::Record(const std::string& kind, const Rect& area, Rgb color, const std::string& text) {
  Rect seen = area;
  if (!frames_.empty()) {
    seen = area.Moved(frames_.back().origin.x, frames_.back().origin.y).Intersection(frames_.back().clip);
  }
  if (seen.width < 0 || seen.height < 0 || (seen.IsEmpty() && kind != "line")) return;
  operations_.push_back({kind, seen, color, text});
}

void RecordingCanvas::FillRectangle(const Rect& rect, Rgb color) {
  Record("fill", rect, color);
}
void RecordingCanvas::FrameRectangle(const Rect& rect, Rgb color, double) {
  Record("frame", rect, color);
}
void RecordingCanvas::FocusRectangle(const Rect& rect) {
  Record("focus", rect, {});
}

void RecordingCanvas::RoundedRectangle(const Rect& rect, double, std::optional<Rgb> fill, Rgb border,
                                       double) {
  if (fill) Record("rounded", rect, *fill);
  Record("frame", rect, border);
}

void RecordingCanvas::DrawLine(Point from, Point to, Rgb color, double) {
  Record("line",
         {std::min(from.x, to.x), std::min(from.y, to.y), std::fabs(to.x - from.x), std::fabs(to.y - from.y)},
         color);
}

void RecordingCanvas::FillPolygon(const std::vector<Point>& points, Rgb color) {
  if (points.empty()) return;
  Rect box{points.front().x, points.front().y, 0, 0};
  for (const Point& point : points) {
    const double right = std::max(box.Right(), point.x);
    const double bottom = std::max(box.Bottom(), point.y);
    box.left = std::min(box.left, point.x);
    box.top = std::min(box.top, point.y);
    box.width = right - box.left;
    box.height = bottom - box.top;
  }
  Record("polygon", box, color);
}

void RecordingCanvas::DrawText(const Rect& box, std::string_view text, const FontSpec&, Rgb color,
                               HorizontalAlign, VerticalAlign) {
  Record("text", box, color, std::string(text));
}

void RecordingCanvas::DrawBitmap(Point at, const Bitmap& bitmap, const Rect& clip) {
  const Rect whole{at.x, at.y, bitmap.width * kTwipsPerPixel, bitmap.height * kTwipsPerPixel};
  Record("bitmap", whole.Intersection(clip), {});
}

void RecordingCanvas::Push(Point origin, const Rect& clip) {
  if (frames_.empty()) {
    frames_.push_back({origin, clip});
    return;
  }
  const Frame& outer = frames_.back();
  frames_.push_back({{outer.origin.x + origin.x, outer.origin.y + origin.y},
                     clip.Moved(outer.origin.x, outer.origin.y).Intersection(outer.clip)});
}

void RecordingCanvas::Pop() {
  frames_.pop_back();
}

}  // namespace orvendal
