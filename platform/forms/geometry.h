#pragma once

#include <algorithm>
#include <array>

namespace orvendal {

/// All lengths are twips: 15 to a pixel of the design resolution.
inline constexpr double kTwipsPerPixel = 15.0;

struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

struct Rect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  double Right() const { return left + width; }
  double Bottom() const { return top + height; }
  bool IsEmpty() const { return width <= 0 || height <= 0; }
  bool Contains(Point p) const { return p.x >= left && p.x < Right() && p.y >= top && p.y < Bottom(); }
  bool Intersects(const Rect& other) const {
    return left < other.Right() && other.left < Right() && top < other.Bottom() && other.top < Bottom();
  }
  Rect Intersection(const Rect& other) const {
    const double l = std::max(left, other.left);
    const double t = std::max(top, other.top);
    return {l, t, std::max(0.0, std::min(Right(), other.Right()) - l),
            std::max(0.0, std::min(Bottom(), other.Bottom()) - t)};
  }
  Rect Union(const Rect& other) const {
    if (IsEmpty()) return other;
    if (other.IsEmpty()) return *this;
    const double l = std::min(left, other.left);
    const double t = std::min(top, other.top);
    return {l, t, std::max(Right(), other.Right()) - l, std::max(Bottom(), other.Bottom()) - t};
  }
  Rect Moved(double dx, double dy) const { return {left + dx, top + dy, width, height}; }
  Rect Deflated(double margin) const {
    return {left + margin, top + margin, std::max(0.0, width - 2 * margin),
            std::max(0.0, height - 2 * margin)};
  }
  /// What is left of it without `hole`: above, below, left and right of it, each perhaps empty. Edges that
  /// meet are equal.
  std::array<Rect, 4> Around(const Rect& hole) const {
    const Rect cut = Intersection(hole);
    if (cut.IsEmpty()) return {*this};
    return {Rect{left, top, width, cut.top - top},
            {left, cut.Bottom(), width, Bottom() - cut.Bottom()},
            {left, cut.top, cut.left - left, cut.height},
            {cut.Right(), cut.top, Right() - cut.Right(), cut.height}};
  }
  bool operator==(const Rect&) const = default;
};

}  // namespace orvendal
