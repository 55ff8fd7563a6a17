#include "adapters/qt/qt_canvas.h"

#include <QImage>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <utility>

namespace orvendal {
namespace {

QColor ColorOf(Rgb color) {
  return QColor(color.red, color.green, color.blue);
}

// Halves go up. Every edge of every rectangle comes here, and std::floor is a call of the C library.
int Round(double pixels) {
  const double raised = pixels + 0.5;
  const int whole = static_cast<int>(raised);
  return whole - (raised < whole ? 1 : 0);
}

// Black and white squares of `size` pixels, seen on any background. They hang on the device's corner, so that
// a frame painted in parts is one frame.
QBrush DottedBrush(int size) {
  QImage pattern(2 * size, 2 * size, QImage::Format_RGB32);
  for (int y = 0; y < pattern.height(); ++y) {
    for (int x = 0; x < pattern.width(); ++x) {
      pattern.setPixel(x, y, (x / size + y / size) % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
  }
  return QBrush(pattern);
}

// A bitmap's pixels as Qt wants them. Each tile is turned into them when it is first seen: most of a picture
// behind panels never is.
class KeptImage final : public DeviceBitmap {
 public:
  explicit KeptImage(const Bitmap& bitmap)
      : image_(bitmap.width, bitmap.height, QImage::Format_RGB32),
        bits_(image_.bits()),
        across_((bitmap.width + kTile - 1) / kTile),
        made_(static_cast<std::size_t>(across_) *
              static_cast<std::size_t>((bitmap.height + kTile - 1) / kTile)) {
    palette_.fill(qRgb(0, 0, 0));
    for (std::size_t i = 0; i < std::min<std::size_t>(bitmap.palette.size(), palette_.size()); ++i) {
      palette_[i] = qRgb(bitmap.palette[i].red, bitmap.palette[i].green, bitmap.palette[i].blue);
    }
  }

  // A part, which lies within the bitmap.
  QImage Part(const Bitmap& bitmap, const QRect& part) {
    for (int y = part.top() / kTile; y <= part.bottom() / kTile; ++y) {
      for (int x = part.left() / kTile; x <= part.right() / kTile; ++x) {
        const auto tile =
            static_cast<std::size_t>(y) * static_cast<std::size_t>(across_) + static_cast<std::size_t>(x);
        if (!made_[tile]) Make(bitmap, QRect(x * kTile, y * kTile, kTile, kTile) & image_.rect());
        made_[tile] = true;
      }
    }
    return QImage(reinterpret_cast<const uchar*>(Pixels(part.y()) + part.x()), part.width(), part.height(),
                  image_.bytesPerLine(), image_.format());
  }

 private:
  static constexpr int kTile = 32;

  QRgb* Pixels(int y) { return reinterpret_cast<QRgb*>(bits_ + y * image_.bytesPerLine()); }

  void Make(const Bitmap& bitmap, const QRect& tile) {
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
      const std::uint8_t* source =
          bitmap.pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width);
      QRgb* const target = Pixels(y);
      for (int x = tile.left(); x <= tile.right(); ++x) target[x] = palette_[source[x]];
    }
  }

  QImage image_;
  uchar* bits_;
  int across_;  // tiles
  std::vector<bool> made_;
  std::array<QRgb, 256> palette_;
};

KeptImage& KeptImageOf(const Bitmap& bitmap) {
  auto* kept = dynamic_cast<KeptImage*>(bitmap.device.kept.get());
  if (kept == nullptr) {
    auto made = std::make_unique<KeptImage>(bitmap);
    kept = made.get();
    bitmap.device.kept = std::move(made);
  }
  return *kept;
}

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, QtFonts& fonts, double scale, Point origin)
    : painter_(painter),
      fonts_(fonts),
      scale_(scale),
      pixels_per_twip_(scale / kTwipsPerPixel),
      origin_(origin) {
  const double ratio = painter.device()->devicePixelRatioF();
  device_transform_ = QTransform::fromScale(1 / ratio, 1 / ratio);
  text_transform_ = QTransform::fromScale(scale / ratio, scale / ratio);
  clip_ = QRect(0, 0, static_cast<int>(std::ceil(painter.device()->width() * ratio)),
                static_cast<int>(std::ceil(painter.device()->height() * ratio)));
  painter_.save();
  painter_.setTransform(device_transform_);
}

QtCanvas::~QtCanvas() {
  painter_.restore();
}

int QtCanvas::X(double twips) const {
  return Round(Pixels(origin_.x + twips));
}
int QtCanvas::Y(double twips) const {
  return Round(Pixels(origin_.y + twips));
}

QRect QtCanvas::Device(const Rect& rect) const {
  const QPoint corner(X(rect.left), Y(rect.top));
  return QRect(corner, QSize(X(rect.Right()) - corner.x(), Y(rect.Bottom()) - corner.y()));
}

int QtCanvas::LineWidth(double twips) const {
  return std::max(1, Round(Pixels(twips)));
}

bool QtCanvas::Limit(const QRect& clip) {
  const QRect wanted = clip_ & clip;
  if (wanted.isEmpty()) return false;
  if (wanted != painter_clip_) {
    painter_.setClipRect(wanted);
    painter_clip_ = wanted;
  }
  return true;
}

void QtCanvas::Fill(const QRect& pixels, Rgb color) {
  const QRect seen = pixels & clip_;
  if (seen.isEmpty() || !Limit(clip_)) return;
  painter_.fillRect(seen, ColorOf(color));
  RememberGround(seen, ColorOf(color).rgb());
}

// A line along an edge of the ground makes it smaller.
void QtCanvas::RememberGround(const QRect& filled, QRgb color) {
  if (!filled.intersects(ground_) || filled.contains(ground_) ||
      (filled.width() > 1 && filled.height() > 1)) {
    ground_ = filled;
    ground_color_ = color;
    return;
  }
  if (filled.height() == 1 && filled.top() == ground_.top()) {
    ground_.setTop(filled.top() + 1);
  } else if (filled.height() == 1 && filled.bottom() == ground_.bottom()) {
    ground_.setBottom(filled.top() - 1);
  } else if (filled.width() == 1 && filled.left() == ground_.left()) {
    ground_.setLeft(filled.left() + 1);
  } else if (filled.width() == 1 && filled.right() == ground_.right()) {
    ground_.setRight(filled.left() - 1);
  } else {
    ground_ = QRect();
  }
}

void QtCanvas::Frame(const QRect& pixels, int width, const QBrush& brush) {
  if (pixels.isEmpty() || !pixels.intersects(clip_) || !Limit(clip_)) return;
  ground_ = QRect();
  const int across = std::min(width, pixels.width());
  const int down = std::min(width, pixels.height());
  const int between = std::max(0, pixels.height() - 2 * down);
  const auto fill = [&](int x, int y, int w, int h) {
    const QRect seen = QRect(x, y, w, h) & clip_;
    if (!seen.isEmpty()) painter_.fillRect(seen, brush);
  };
  fill(pixels.x(), pixels.y(), pixels.width(), down);
  fill(pixels.x(), pixels.y() + pixels.height() - down, pixels.width(), down);
  fill(pixels.x(), pixels.y() + down, across, between);
  fill(pixels.x() + pixels.width() - across, pixels.y() + down, across, between);
}

void QtCanvas::FillRectangle(const Rect& rect, Rgb color) {
  Fill(Device(rect), color);
}

void QtCanvas::FrameRectangle(const Rect& rect, Rgb color, double width) {
  Frame(Device(rect), LineWidth(width), QBrush(ColorOf(color)));
}

void QtCanvas::FocusRectangle(const Rect& rect) {
  const int dot = std::max(1, Round(scale_));
  Frame(Device(rect), dot, DottedBrush(dot));
}

void QtCanvas::RoundedRectangle(const Rect& rect, double radius, std::optional<Rgb> fill, Rgb border,
                                double width) {
  const QRect edge = Device(rect);
  const int line = LineWidth(width);
  const QRect outer = edge.adjusted(-(line / 2), -(line / 2), line / 2, line / 2);
  if (outer.isEmpty() || !outer.intersects(clip_) || !Limit(clip_)) return;
  ground_ = QRect();
  const QRect inner = outer.adjusted(line, line, -line, -line);

  if (radius <= 0) {
    if (fill && !inner.isEmpty()) Fill(inner, *fill);
    Frame(outer, line, QBrush(ColorOf(border)));
    return;
  }
  const double middle = std::min(Pixels(radius), std::min(edge.width(), edge.height()) / 2.0);
  const double half = line / 2.0;
  painter_.setRenderHint(QPainter::Antialiasing, true);
  if (fill) {
    // Up to the middle of the border, so that no background shines through between the two.
    QPainterPath face;
    face.addRoundedRect(QRectF(outer).adjusted(half, half, -half, -half), middle, middle);
    painter_.fillPath(face, ColorOf(*fill));
  }
  QPainterPath ring;
  ring.setFillRule(Qt::OddEvenFill);
  ring.addRoundedRect(QRectF(outer), middle + half, middle + half);
  if (!inner.isEmpty()) {
    const double inside = std::max(0.0, middle - half);
    ring.addRoundedRect(QRectF(inner), inside, inside);
  }
  painter_.fillPath(ring, ColorOf(border));
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

void QtCanvas::DrawLine(Point from, Point to, Rgb color, double width) {
  const int line = LineWidth(width);
  const int x1 = X(from.x), y1 = Y(from.y), x2 = X(to.x), y2 = Y(to.y);
  if (y1 == y2) {
    Fill(QRect(std::min(x1, x2), y1 - line / 2, std::max(std::abs(x2 - x1), 1), line), color);
  } else if (x1 == x2) {
    Fill(QRect(x1 - line / 2, std::min(y1, y2), line, std::max(std::abs(y2 - y1), 1)), color);
  } else if (Limit(clip_)) {
    ground_ = QRect();
    painter_.setRenderHint(QPainter::Antialiasing, true);
    painter_.setPen(QPen(ColorOf(color), line, Qt::SolidLine, Qt::FlatCap));
    painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
    painter_.setRenderHint(QPainter::Antialiasing, false);
  }
}

void QtCanvas::FillPolygon(const std::vector<Point>& points, Rgb color) {
  if (points.size() < 3 || !Limit(clip_)) return;
  ground_ = QRect();
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const Point& point : points) {
    polygon << QPointF(Pixels(origin_.x + point.x), Pixels(origin_.y + point.y));
  }
  painter_.setRenderHint(QPainter::Antialiasing, true);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(ColorOf(color));
  painter_.drawPolygon(polygon);
  painter_.setBrush(Qt::NoBrush);
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

void QtCanvas::DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb color,
                        HorizontalAlign horizontal, VerticalAlign vertical) {
  const QRect clip = Device(box);
  if (text.empty() || !clip.intersects(clip_)) return;
  const QString line = SingleLine(text);
  const QtFonts::Measures measures = fonts_.LineMeasures(font);

  double left = box.left;
  if (horizontal != HorizontalAlign::kLeft) {
    const double room = box.width - fonts_.TextWidth(font, line) * kTwipsPerPixel;
    left += horizontal == HorizontalAlign::kRight ? room : room / 2;
  }
  double top = box.top;
  if (vertical != VerticalAlign::kTop) {
    const double room = box.height - measures.height * kTwipsPerPixel;
    top += vertical == VerticalAlign::kBottom ? room : room / 2;
  }
  if (CopyText(line, font, ColorOf(color).rgb(), QPoint(X(left), Y(top)), clip)) return;
  if (!Limit(clip)) return;
  ground_ = QRect();
  const QFont& wanted = fonts_.Font(font);
  if (font_ != &wanted) painter_.setFont(wanted);
  font_ = &wanted;
  painter_.setPen(ColorOf(color));
  const bool is_scaled = text_transform_ != device_transform_;
  if (is_scaled) painter_.setTransform(text_transform_);
  painter_.drawText(QPointF(X(left) / scale_, Y(top) / scale_ + measures.ascent), line);
  if (is_scaled) painter_.setTransform(device_transform_);
}

// False if the ground is not of one colour, if letters might come out otherwise at this scale, or if there is
// no picture. `corner` is that of the line.
bool QtCanvas::CopyText(const QString& line, const FontSpec& font, QRgb color, QPoint corner,
                        const QRect& clip) {
  constexpr qsizetype kLongestText = 100;
  if (text_transform_ != QTransform() || device_transform_ != QTransform() || line.size() > kLongestText) {
    return false;
  }
  const QRect shown = clip & clip_;
  if (!ground_.contains(shown)) return false;
  const QtTextImages::Picture* const picture =
      fonts_.Images().Of({&fonts_.Font(font), line, color, ground_color_}, [&]() -> QtTextImages::Picture {
        const QRect ink = fonts_.TextInk(font, line).toAlignedRect().adjusted(-1, -1, 1, 1);
        QImage image(ink.size(), QImage::Format_RGB32);
        image.fill(ground_color_);
        QPainter painter(&image);
        painter.setFont(fonts_.Font(font));
        painter.setPen(QColor::fromRgb(color));
        painter.drawText(QPointF(0, fonts_.LineMeasures(font).ascent) - QPointF(ink.topLeft()), line);
        return {image, ink.topLeft()};
      });
  if (picture == nullptr) return false;
  const QRect place(corner + picture->corner, picture->image.size());
  const QRect seen = place & shown;
  if (!seen.isEmpty() && Limit(clip_)) {
    painter_.drawImage(seen.topLeft(), picture->image, seen.translated(-place.topLeft()));
  }
  ground_ = QRect();
  return true;
}

void QtCanvas::DrawBitmap(Point at, const Bitmap& bitmap, const Rect& clip) {
  if (bitmap.width <= 0 || bitmap.height <= 0 ||
      bitmap.pixels.size() <
          static_cast<std::size_t>(bitmap.width) * static_cast<std::size_t>(bitmap.height)) {
    return;
  }
  const int left = X(at.x);
  const int top = Y(at.y);
  const QRect target(left, top, Round(bitmap.width * scale_), Round(bitmap.height * scale_));
  const QRect seen = clip_ & Device(clip) & target;
  if (seen.isEmpty() || !Limit(seen)) return;
  ground_ = QRect();
  // Only the part that is seen is drawn: a caret that blinks over a large picture costs no more than the
  // caret. One pixel more at each side lets the smoothing see its neighbours.
  const int first_x = static_cast<int>(std::floor((seen.left() - left) / scale_)) - 1;
  const int first_y = static_cast<int>(std::floor((seen.top() - top) / scale_)) - 1;
  const int last_x = static_cast<int>(std::ceil((seen.right() + 1 - left) / scale_)) + 1;
  const int last_y = static_cast<int>(std::ceil((seen.bottom() + 1 - top) / scale_)) + 1;
  const QRect part =
      QRect(first_x, first_y, last_x - first_x, last_y - first_y) & QRect(0, 0, bitmap.width, bitmap.height);
  const QImage image = KeptImageOf(bitmap).Part(bitmap, part);
  painter_.setRenderHint(QPainter::SmoothPixmapTransform, scale_ != std::floor(scale_));
  painter_.drawImage(QRectF(left + part.x() * scale_, top + part.y() * scale_, part.width() * scale_,
                            part.height() * scale_),
                     image, QRectF(image.rect()));
}

void QtCanvas::Push(Point origin, const Rect& clip) {
  levels_.push_back({origin_, clip_});
  clip_ &= Device(clip);
  origin_ = {origin_.x + origin.x, origin_.y + origin.y};
}

void QtCanvas::Pop() {
  origin_ = levels_.back().origin;
  clip_ = levels_.back().clip;
  levels_.pop_back();
}

void QtCanvas::Invert(const Rect& rect) {
  QRect pixels = Device(rect);
  pixels.setWidth(std::max(1, pixels.width()));
  if (!Limit(pixels)) return;
  ground_ = QRect();
  painter_.setCompositionMode(QPainter::CompositionMode_Difference);
  painter_.fillRect(pixels, Qt::white);
  painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

}  // namespace orvendal
