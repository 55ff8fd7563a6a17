#include "adapters/win32/win32_canvas.h"

#include <algorithm>
#include <cmath>

namespace orvendal {
namespace {

constexpr double kTwipsPerInch = 1440.0;
constexpr double kDesignDpi = 96.0;
constexpr int kSamples = 4;  // a slanted edge is looked at in 4 by 4 places of each pixel

int Round(double pixels) {
  return static_cast<int>(std::floor(pixels + 0.5));
}

std::uint32_t PixelOf(Rgb color) {
  return static_cast<std::uint32_t>(color.red) << 16 | static_cast<std::uint32_t>(color.green) << 8 |
         color.blue;
}

int WidthOf(const RECT& rect) {
  return rect.right - rect.left;
}
int HeightOf(const RECT& rect) {
  return rect.bottom - rect.top;
}
bool IsEmpty(const RECT& rect) {
  return rect.right <= rect.left || rect.bottom <= rect.top;
}

RECT Common(const RECT& a, const RECT& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

RECT Grown(const RECT& rect, int by) {
  return {rect.left - by, rect.top - by, rect.right + by, rect.bottom + by};
}

std::uint32_t Mixed(std::uint32_t below, std::uint32_t above, double share) {
  const auto weight = static_cast<std::uint32_t>(Round(share * 256));
  std::uint32_t mixed = 0;
  for (const int shift : {0, 8, 16}) {
    const std::uint32_t channel =
        ((below >> shift & 0xFF) * (256 - weight) + (above >> shift & 0xFF) * weight + 128) >> 8;
    mixed |= channel << shift;
  }
  return mixed;
}

bool IsInside(const std::vector<Point>& polygon, double x, double y) {
  bool inside = false;
  for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
    const Point& a = polygon[i];
    const Point& b = polygon[j];
    if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x) inside = !inside;
  }
  return inside;
}

}  // namespace

// The outline of a rectangle with round corners, in pixels.
struct Win32Canvas::RoundedEdge {
  double left, top, right, bottom, radius;

  double CoverageAt(int x, int y) const {
    const double px = x + 0.5, py = y + 0.5;
    const double dx = std::max(left + radius - px, px - (right - radius));
    const double dy = std::max(top + radius - py, py - (bottom - radius));
    // The distance to the outline, negative inside.
    const double distance =
        std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) - radius;
    return std::clamp(0.5 - distance, 0.0, 1.0);
  }
};

Win32Canvas::Win32Canvas(DibSurface& surface, Win32Fonts& fonts, int dpi, const RECT& part)
    : surface_(surface),
      fonts_(fonts),
      dpi_(dpi),
      pixels_per_twip_(dpi / kTwipsPerInch),
      corner_{part.left, part.top},
      clip_(Common({0, 0, WidthOf(part), HeightOf(part)}, {0, 0, surface.Width(), surface.Height()})),
      dc_state_(SaveDC(surface.Dc())) {
  SetBkMode(surface_.Dc(), TRANSPARENT);
  SetTextAlign(surface_.Dc(), TA_LEFT | TA_TOP);
}

Win32Canvas::~Win32Canvas() {
  RestoreDC(surface_.Dc(), dc_state_);
  FinishText();
}

int Win32Canvas::X(double twips) const {
  return Round(Pixels(origin_.x + twips)) - corner_.x;
}
int Win32Canvas::Y(double twips) const {
  return Round(Pixels(origin_.y + twips)) - corner_.y;
}

RECT Win32Canvas::Device(const Rect& rect) const {
  return {X(rect.left), Y(rect.top), X(rect.Right()), Y(rect.Bottom())};
}

int Win32Canvas::LineWidth(double twips) const {
  return std::max(1, Round(Pixels(twips)));
}

void Win32Canvas::FinishText() {
  if (text_pending_) GdiFlush();
  text_pending_ = false;
}

void Win32Canvas::Fill(const RECT& pixels, std::uint32_t color) {
  const RECT seen = Common(pixels, clip_);
  if (IsEmpty(seen)) return;
  FinishText();
  for (int y = seen.top; y < seen.bottom; ++y) {
    std::fill(surface_.Row(y) + seen.left, surface_.Row(y) + seen.right, color);
  }
}

void Win32Canvas::Frame(const RECT& pixels, int width, const std::function<void(const RECT&)>& fill) {
  if (IsEmpty(pixels)) return;
  const int across = std::min(width, WidthOf(pixels));
  const int down = std::min(width, HeightOf(pixels));
  fill({pixels.left, pixels.top, pixels.right, pixels.top + down});
  fill({pixels.left, pixels.bottom - down, pixels.right, pixels.bottom});
  fill({pixels.left, pixels.top + down, pixels.left + across, pixels.bottom - down});
  fill({pixels.right - across, pixels.top + down, pixels.right, pixels.bottom - down});
}

void Win32Canvas::Blend(const RECT& bounds, Rgb color, const Coverage& coverage) {
  const RECT seen = Common(bounds, clip_);
  if (IsEmpty(seen)) return;
  FinishText();
  const std::uint32_t pixel = PixelOf(color);
  for (int y = seen.top; y < seen.bottom; ++y) {
    std::uint32_t* row = surface_.Row(y);
    for (int x = seen.left; x < seen.right; ++x) {
      const double share = coverage(x, y);
      if (share > 0) row[x] = Mixed(row[x], pixel, share);
    }
  }
}

void Win32Canvas::FillRectangle(const Rect& rect, Rgb color) {
  Fill(Device(rect), PixelOf(color));
}

void Win32Canvas::FrameRectangle(const Rect& rect, Rgb color, double width) {
  Frame(Device(rect), LineWidth(width), [&](const RECT& side) { Fill(side, PixelOf(color)); });
}

// Black and white squares that hang on the form's corner, so that a frame painted in parts is one frame.
void Win32Canvas::FocusRectangle(const Rect& rect) {
  const int dot = std::max(1, Round(dpi_ / kDesignDpi));
  Frame(Device(rect), dot, [&](const RECT& side) {
    const RECT seen = Common(side, clip_);
    if (IsEmpty(seen)) return;
    FinishText();
    for (int y = seen.top; y < seen.bottom; ++y) {
      for (int x = seen.left; x < seen.right; ++x) {
        const int square = (x + corner_.x) / dot + (y + corner_.y) / dot;
        surface_.Row(y)[x] = square % 2 == 0 ? 0x000000 : 0xFFFFFF;
      }
    }
  });
}

void Win32Canvas::RoundedRectangle(const Rect& rect, double radius, std::optional<Rgb> fill, Rgb border,
                                   double width) {
  const RECT edge = Device(rect);
  const int line = LineWidth(width);
  const RECT outer = Grown(edge, line / 2);
  const RECT inner = Grown(outer, -line);
  if (IsEmpty(outer)) return;
  if (radius <= 0) {
    if (fill) Fill(inner, PixelOf(*fill));
    Frame(outer, line, [&](const RECT& side) { Fill(side, PixelOf(border)); });
    return;
  }
  const double middle = std::min(Pixels(radius), std::min(WidthOf(edge), HeightOf(edge)) / 2.0);
  const double half = line / 2.0;
  const auto edge_of = [](const RECT& at, double deflation, double corner) {
    return RoundedEdge{at.left + deflation, at.top + deflation, at.right - deflation, at.bottom - deflation,
                       corner};
  };
  if (fill) {
    // Up to the middle of the border, so that no background shines through between the two.
    const RoundedEdge face = edge_of(outer, half, middle);
    Blend(outer, *fill, [&](int x, int y) { return face.CoverageAt(x, y); });
  }
  const RoundedEdge outside = edge_of(outer, 0, middle + half);
  const RoundedEdge inside = edge_of(inner, 0, std::max(0.0, middle - half));
  const bool hollow = !IsEmpty(inner);
  Blend(outer, border,
        [&](int x, int y) { return outside.CoverageAt(x, y) - (hollow ? inside.CoverageAt(x, y) : 0.0); });
}

void Win32Canvas::DrawLine(Point from, Point to, Rgb color, double width) {
  const int line = LineWidth(width);
  const int x1 = X(from.x), y1 = Y(from.y), x2 = X(to.x), y2 = Y(to.y);
  if (y1 == y2) {
    const int left = std::min(x1, x2), top = y1 - line / 2;
    Fill({left, top, left + std::max(std::abs(x2 - x1), 1), top + line}, PixelOf(color));
  } else if (x1 == x2) {
    const int left = x1 - line / 2, top = std::min(y1, y2);
    Fill({left, top, left + line, top + std::max(std::abs(y2 - y1), 1)}, PixelOf(color));
  } else {
    const double length = std::hypot(x2 - x1, y2 - y1);
    const double dx = (y2 - y1) / length * line / 2, dy = (x2 - x1) / length * line / 2;
    FillPixelPolygon({{x1 + dx, y1 - dy}, {x2 + dx, y2 - dy}, {x2 - dx, y2 + dy}, {x1 - dx, y1 + dy}}, color);
  }
}

void Win32Canvas::FillPolygon(const std::vector<Point>& points, Rgb color) {
  std::vector<Point> pixels;
  for (const Point& point : points) {
    pixels.push_back({Pixels(origin_.x + point.x) - corner_.x, Pixels(origin_.y + point.y) - corner_.y});
  }
  FillPixelPolygon(pixels, color);
}

void Win32Canvas::FillPixelPolygon(const std::vector<Point>& pixels, Rgb color) {
  if (pixels.size() < 3) return;
  const auto [left, right] =
      std::minmax_element(pixels.begin(), pixels.end(), [](Point a, Point b) { return a.x < b.x; });
  const auto [top, bottom] =
      std::minmax_element(pixels.begin(), pixels.end(), [](Point a, Point b) { return a.y < b.y; });
  const RECT bounds{static_cast<LONG>(std::floor(left->x)), static_cast<LONG>(std::floor(top->y)),
                    static_cast<LONG>(std::ceil(right->x)), static_cast<LONG>(std::ceil(bottom->y))};
  Blend(bounds, color, [&](int x, int y) {
    int covered = 0;
    for (int sample = 0; sample < kSamples * kSamples; ++sample) {
      const double sx = x + (sample % kSamples + 0.5) / kSamples;
      const double sy = y + (sample / kSamples + 0.5) / kSamples;
      if (IsInside(pixels, sx, sy)) ++covered;
    }
    return static_cast<double>(covered) / (kSamples * kSamples);
  });
}

void Win32Canvas::DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb color,
                           HorizontalAlign horizontal, VerticalAlign vertical) {
  const RECT seen = Common(Device(box), clip_);
  if (text.empty() || IsEmpty(seen)) return;
  const std::wstring line = SingleLine(text);

  double left = box.left;
  if (horizontal != HorizontalAlign::kLeft) {
    const double room = box.width - fonts_.TextWidth(font, dpi_, line) / pixels_per_twip_;
    left += horizontal == HorizontalAlign::kRight ? room : room / 2;
  }
  double top = box.top;
  if (vertical != VerticalAlign::kTop) {
    const double room = box.height - fonts_.LineMeasures(font, dpi_).height / pixels_per_twip_;
    top += vertical == VerticalAlign::kBottom ? room : room / 2;
  }
  const HDC dc = surface_.Dc();
  const HGDIOBJ before = SelectObject(dc, fonts_.Font(font, dpi_));
  SetTextColor(dc, RGB(color.red, color.green, color.blue));
  ExtTextOutW(dc, X(left), Y(top), ETO_CLIPPED, &seen, line.data(), static_cast<UINT>(line.size()), nullptr);
  SelectObject(dc, before);
  text_pending_ = true;
}

void Win32Canvas::DrawBitmap(Point at, const Bitmap& bitmap, const Rect& clip) {
  if (bitmap.width <= 0 || bitmap.height <= 0 ||
      bitmap.pixels.size() <
          static_cast<std::size_t>(bitmap.width) * static_cast<std::size_t>(bitmap.height)) {
    return;
  }
  const double scale = dpi_ / kDesignDpi;
  const int left = X(at.x), top = Y(at.y);
  const RECT target{left, top, left + Round(bitmap.width * scale), top + Round(bitmap.height * scale)};
  const RECT seen = Common(Common(target, Device(clip)), clip_);
  if (IsEmpty(seen)) return;
  FinishText();
  std::vector<std::uint32_t> palette(256, 0);
  for (std::size_t i = 0; i < std::min<std::size_t>(bitmap.palette.size(), palette.size()); ++i) {
    palette[i] = PixelOf(bitmap.palette[i]);
  }
  const auto pixel = [&](int x, int y) {
    const int column = std::clamp(x, 0, bitmap.width - 1), row = std::clamp(y, 0, bitmap.height - 1);
    return palette[bitmap.pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(bitmap.width) +
                                 static_cast<std::size_t>(column)]];
  };
  const bool smooth = scale != std::floor(scale);
  for (int y = seen.top; y < seen.bottom; ++y) {
    std::uint32_t* row = surface_.Row(y);
    const double source_y = (y - top + 0.5) / scale - (smooth ? 0.5 : 0.0);
    const int upper = static_cast<int>(std::floor(source_y));
    for (int x = seen.left; x < seen.right; ++x) {
      const double source_x = (x - left + 0.5) / scale - (smooth ? 0.5 : 0.0);
      const int before = static_cast<int>(std::floor(source_x));
      if (!smooth) {
        row[x] = pixel(before, upper);
        continue;
      }
      const double right_share = source_x - before;
      row[x] =
          Mixed(Mixed(pixel(before, upper), pixel(before + 1, upper), right_share),
                Mixed(pixel(before, upper + 1), pixel(before + 1, upper + 1), right_share), source_y - upper);
    }
  }
}

void Win32Canvas::Push(Point origin, const Rect& clip) {
  levels_.push_back({origin_, clip_});
  clip_ = Common(clip_, Device(clip));
  origin_ = {origin_.x + origin.x, origin_.y + origin.y};
}

void Win32Canvas::Pop() {
  origin_ = levels_.back().origin;
  clip_ = levels_.back().clip;
  levels_.pop_back();
}

}  // namespace orvendal
