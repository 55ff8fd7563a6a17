#include "bench/plain_painting.h"

#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace orvendal::bench {
namespace {

int Pixel(double twips) {
  return static_cast<int>(std::floor(twips / kTwipsPerPixel + 0.5));
}

QColor ColorOf(Rgb color) {
  return QColor(color.red, color.green, color.blue);
}

QImage ImageOf(const Bitmap& bitmap) {
  QImage image(bitmap.width, bitmap.height, QImage::Format_RGB32);
  for (int y = 0; y < bitmap.height; ++y) {
    for (int x = 0; x < bitmap.width; ++x) {
      const auto place = static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width);
      image.setPixelColor(x, y, ColorOf(bitmap.palette[bitmap.pixels[place + static_cast<std::size_t>(x)]]));
    }
  }
  return image;
}

}  // namespace

void PlainPainting::Paint(QImage& image) const {
  QPainter painter(&image);
  painter.setPen(Qt::NoPen);
  QRect clip;
  for (const Step& step : steps_) {
    if (step.clip != clip) {
      clip = step.clip;
      if (clip.isEmpty()) {
        painter.setClipping(false);
      } else {
        painter.setClipRect(clip);
      }
    }
    step.draw(painter);
  }
}

QRect PlainPainting::Device(const Rect& rect) const {
  const QPoint corner(Pixel(origin_.x + rect.left), Pixel(origin_.y + rect.top));
  return QRect(corner, QSize(Pixel(origin_.x + rect.Right()) - corner.x(),
                             Pixel(origin_.y + rect.Bottom()) - corner.y()));
}

void PlainPainting::Add(const QRect& pixels, const QRect& clip, std::function<void(QPainter&)> draw) {
  if (!pixels.intersects(clip)) return;
  steps_.push_back({clip.contains(pixels) ? QRect() : clip, std::move(draw)});
}

void PlainPainting::Fill(const QRect& pixels, const QBrush& brush) {
  const QRect seen = pixels & clip_;
  if (seen.isEmpty()) return;
  if (brush.style() == Qt::SolidPattern) {
    steps_.push_back(
        {QRect(), [seen, color = brush.color()](QPainter& painter) { painter.fillRect(seen, color); }});
  } else {
    steps_.push_back({QRect(), [seen, brush](QPainter& painter) { painter.fillRect(seen, brush); }});
  }
}

void PlainPainting::Frame(const QRect& pixels, int width, const QBrush& brush) {
  const int between = std::max(0, pixels.height() - 2 * width);
  Fill(QRect(pixels.x(), pixels.y(), pixels.width(), width), brush);
  Fill(QRect(pixels.x(), pixels.y() + pixels.height() - width, pixels.width(), width), brush);
  Fill(QRect(pixels.x(), pixels.y() + width, width, between), brush);
  Fill(QRect(pixels.x() + pixels.width() - width, pixels.y() + width, width, between), brush);
}

void PlainPainting::FillRectangle(const Rect& rect, Rgb color) {
  Fill(Device(rect), ColorOf(color));
}

void PlainPainting::FrameRectangle(const Rect& rect, Rgb color, double width) {
  Frame(Device(rect), std::max(1, Pixel(width)), ColorOf(color));
}

void PlainPainting::FocusRectangle(const Rect& rect) {
  QImage dots(2, 2, QImage::Format_RGB32);
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 2; ++x) dots.setPixel(x, y, x == y ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
  }
  Frame(Device(rect), 1, QBrush(dots));
}

void PlainPainting::RoundedRectangle(const Rect& rect, double radius, std::optional<Rgb> fill, Rgb border,
                                     double width) {
  const QRect edge = Device(rect);
  const int line = std::max(1, Pixel(width));
  const QRect outer = edge.adjusted(-(line / 2), -(line / 2), line / 2, line / 2);
  const QRect inner = outer.adjusted(line, line, -line, -line);
  const double middle = std::min(radius / kTwipsPerPixel, std::min(edge.width(), edge.height()) / 2.0);
  const double half = line / 2.0;
  QPainterPath face;
  face.addRoundedRect(QRectF(outer).adjusted(half, half, -half, -half), middle, middle);
  QPainterPath ring;
  ring.setFillRule(Qt::OddEvenFill);
  ring.addRoundedRect(QRectF(outer), middle + half, middle + half);
  ring.addRoundedRect(QRectF(inner), std::max(0.0, middle - half), std::max(0.0, middle - half));
  Add(outer, clip_, [face, ring, fill, border](QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing, true);
    if (fill) painter.fillPath(face, ColorOf(*fill));
    painter.fillPath(ring, ColorOf(border));
    painter.setRenderHint(QPainter::Antialiasing, false);
  });
}

void PlainPainting::DrawLine(Point from, Point to, Rgb color, double width) {
  const int line = std::max(1, Pixel(width));
  const int x1 = Pixel(origin_.x + from.x), y1 = Pixel(origin_.y + from.y);
  const int x2 = Pixel(origin_.x + to.x), y2 = Pixel(origin_.y + to.y);
  if (y1 == y2) {
    Fill(QRect(std::min(x1, x2), y1 - line / 2, std::max(std::abs(x2 - x1), 1), line), ColorOf(color));
  } else if (x1 != x2) {
    const QRect room(QPoint(std::min(x1, x2) - line, std::min(y1, y2) - line),
                     QPoint(std::max(x1, x2) + line, std::max(y1, y2) + line));
    Add(room, clip_, [from = QPointF(x1, y1), to = QPointF(x2, y2), color, line](QPainter& painter) {
      painter.setRenderHint(QPainter::Antialiasing, true);
      painter.setPen(QPen(ColorOf(color), line, Qt::SolidLine, Qt::FlatCap));
      painter.drawLine(from, to);
      painter.setRenderHint(QPainter::Antialiasing, false);
    });
  } else {
    Fill(QRect(x1 - line / 2, std::min(y1, y2), line, std::max(std::abs(y2 - y1), 1)), ColorOf(color));
  }
}

void PlainPainting::FillPolygon(const std::vector<Point>& points, Rgb color) {
  QPolygonF polygon;
  for (const Point& point : points) {
    polygon << QPointF((origin_.x + point.x) / kTwipsPerPixel, (origin_.y + point.y) / kTwipsPerPixel);
  }
  Add(polygon.boundingRect().toAlignedRect(), clip_, [polygon, color](QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ColorOf(color));
    painter.drawPolygon(polygon);
    painter.setRenderHint(QPainter::Antialiasing, false);
  });
}

void PlainPainting::DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb color,
                             HorizontalAlign horizontal, VerticalAlign vertical) {
  const QRect clip = clip_ & Device(box);
  if (text.empty() || clip.isEmpty()) return;
  const QString line = SingleLine(text);
  const QtFonts::Measures measures = fonts_.LineMeasures(font);
  const auto share = [](int place) { return place == 0 ? 0.0 : place == 1 ? 1.0 : 0.5; };
  const double across = share(static_cast<int>(horizontal));
  const double down = vertical == VerticalAlign::kTop ? 0.0 : vertical == VerticalAlign::kBottom ? 1.0 : 0.5;
  const double left = box.left + across * (box.width - fonts_.TextWidth(font, line) * kTwipsPerPixel);
  const double top = box.top + down * (box.height - measures.height * kTwipsPerPixel);
  const QPoint corner(Pixel(origin_.x + left), Pixel(origin_.y + top));
  const QRect ink = fonts_.TextInk(font, line).toAlignedRect().translated(corner);
  Add(ink, clip,
      [place = QPointF(corner.x(), corner.y() + measures.ascent), line, font = fonts_.Font(font),
       color = ColorOf(color)](QPainter& painter) {
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(place, line);
      });
}

void PlainPainting::DrawBitmap(Point at, const Bitmap& bitmap, const Rect& clip) {
  const QPoint corner(Pixel(origin_.x + at.x), Pixel(origin_.y + at.y));
  const QRect place(corner, QSize(bitmap.width, bitmap.height));
  const QRect seen = clip_ & Device(clip) & place;
  if (seen.isEmpty()) return;
  const QImage image = ImageOf(bitmap).copy(seen.translated(-corner));
  Add(seen, seen, [corner = seen.topLeft(), image](QPainter& painter) { painter.drawImage(corner, image); });
}

void PlainPainting::Push(Point origin, const Rect& clip) {
  levels_.push_back({origin_, clip_});
  clip_ &= Device(clip);
  origin_ = {origin_.x + origin.x, origin_.y + origin.y};
}

void PlainPainting::Pop() {
  origin_ = levels_.back().origin;
  clip_ = levels_.back().clip;
  levels_.pop_back();
}

}  // namespace orvendal::bench
