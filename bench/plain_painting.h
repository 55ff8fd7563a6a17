#pragma once

#include <QBrush>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <QSize>
#include <functional>
#include <optional>
#include <vector>

#include "adapters/qt/qt_fonts.h"
#include "platform/forms/canvas.h"

namespace orvendal::bench {

/// The floor of painting: keeps what a canvas is asked for as rectangles, texts and pictures that are ready
/// for Qt, cut to what shows, and paints them with a plain painter, as often as wanted. A clip is set only
/// for what would not stay within it.
class PlainPainting final : public Canvas {
 public:
  PlainPainting(QtFonts& fonts, QSize size) : fonts_(fonts), clip_(QPoint(0, 0), size) {}

  void Paint(QImage& image) const;

  void FillRectangle(const Rect& rect, Rgb color) override;
  void FrameRectangle(const Rect& rect, Rgb color, double width) override;
  void FocusRectangle(const Rect& rect) override;
  void RoundedRectangle(const Rect& rect, double radius, std::optional<Rgb> fill, Rgb border,
                        double width) override;
  void DrawLine(Point from, Point to, Rgb color, double width) override;
  void FillPolygon(const std::vector<Point>& points, Rgb color) override;
  void DrawText(const Rect& box, std::string_view text, const FontSpec& font, Rgb color,
                HorizontalAlign horizontal, VerticalAlign vertical) override;
  void DrawBitmap(Point at, const Bitmap& bitmap, const Rect& clip) override;
  void Push(Point origin, const Rect& clip) override;
  void Pop() override;
  bool ShowsAnyOf(const Rect& rect) const override { return Device(rect).intersects(clip_); }
  bool IsWithin(const Rect& rect) const override { return Device(rect).contains(clip_); }

 private:
  struct Step {
    QRect clip;  // none if empty
    std::function<void(QPainter&)> draw;
  };
  struct Level {
    Point origin;
    QRect clip;
  };
  QRect Device(const Rect& rect) const;
  void Fill(const QRect& pixels, const QBrush& brush);
  void Frame(const QRect& pixels, int width, const QBrush& brush);
  /// What takes the room `pixels`, within `clip`.
  void Add(const QRect& pixels, const QRect& clip, std::function<void(QPainter&)> draw);

  QtFonts& fonts_;
  Point origin_;
  QRect clip_;
  std::vector<Level> levels_;
  std::vector<Step> steps_;
};

}  // namespace orvendal::bench
