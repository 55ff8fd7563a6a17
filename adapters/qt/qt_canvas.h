#pragma once

#include <QPainter>
#include <QRect>
#include <QTransform>
#include <vector>

#include "adapters/qt/qt_fonts.h"
#include "platform/forms/canvas.h"

namespace orvendal {

/// A canvas over a painter of a widget or an image.
///
/// A twip is `scale` / 15 pixels of the device; edges go to the nearest pixel, so equal edges meet, and lines
/// are whole pixels wide at any scale. Texts are laid out once, at the size of scale 1, and drawn larger, so
/// that they take the same room at any scale.
///
/// A text on a ground of one colour is copied from a picture of it where there is one (QtTextImages).
///
/// Invariants: `origin_` is in twips from the device's corner, `clip_` in pixels of the device. The painter
/// is the canvas's own while the canvas lives; its state is as before afterwards.
class QtCanvas final : public Canvas {
 public:
  /// `origin` is the place of the first twip on the device, in twips.
  QtCanvas(QPainter& painter, QtFonts& fonts, double scale, Point origin = {});
  ~QtCanvas() override;
  QtCanvas(const QtCanvas&) = delete;
  QtCanvas& operator=(const QtCanvas&) = delete;

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

  /// Turns every colour inside `rect` round; what a caret is made of.
  void Invert(const Rect& rect);

 private:
  struct Level {
    Point origin;
    QRect clip;
  };

  double Pixels(double twips) const { return twips * pixels_per_twip_; }
  int X(double twips) const;
  int Y(double twips) const;
  QRect Device(const Rect& rect) const;
  int LineWidth(double twips) const;
  /// Limits the painter to `clip` within the current one; false if nothing is left to paint on.
  bool Limit(const QRect& clip);
  void RememberGround(const QRect& filled, QRgb color);
  bool CopyText(const QString& line, const FontSpec& font, QRgb color, QPoint corner, const QRect& clip);
  void Fill(const QRect& pixels, Rgb color);
  void Frame(const QRect& pixels, int width, const QBrush& brush);

  QPainter& painter_;
  QtFonts& fonts_;
  double scale_;
  double pixels_per_twip_;
  QTransform device_transform_;  // painter units are pixels of the device
  QTransform text_transform_;    // painter units are pixels of scale 1
  const QFont* font_ = nullptr;  // that the painter has
  Point origin_;
  QRect clip_;
  QRect painter_clip_;
  QRect ground_;  // the pixels that have one colour for sure, since nothing but that was painted there
  QRgb ground_color_ = 0;
  std::vector<Level> levels_;
};

}  // namespace orvendal
